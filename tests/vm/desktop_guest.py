# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Where the pen lands on a real desktop: a compositor on displays of the virtual machine, the real driver
with a made tablet, and a window over each display that tells where the pen is. Runs in the virtual
machine, see desktop_test.py, which reads the lines that begin with RESULT.

Usage: desktop_guest.py DESKTOP PEN-LOG [--all]
"""

import json
import os
import pathlib
import subprocess
import sys
import threading
import time
import traceback

from gi.repository import Gio, GLib

import guest
import session
from guest import FOLDER, HERE, PATIENCE, Bus, Program, Record, wait_for
from tablet import PRESSURE_MAX, Tablet

FIRST, SECOND = "Virtual-1", "Virtual-2"
WIDTH, HEIGHT = 1024, 768
PLACES = [(x, y) for y in (0, 0.5, 1) for x in (0, 0.5, 1)]
SCALES = (1, 1.25, 2)
TURNS = (0, 180)
RELEASE = 93  # QEvent::TabletRelease
RESULT = "result: "
BEGIN = time.monotonic()


def say(text):
    print(f"{time.monotonic() - BEGIN:6.1f} s  {text}", flush=True)


class Desktop:
    """A compositor, with the driver and the windows. Subclasses start the compositor and arrange its
    displays. An arrangement is the scale of each display that is on, side by side; a negative one is
    turned by a quarter."""

    ARRANGEMENTS = [(scale, scale) for scale in SCALES] + [(1.25, 2)], [(scale,) for scale in SCALES]

    def __init__(self, pen_log):
        self.pen_log = pen_log
        (FOLDER / "runtime").mkdir(parents=True, mode=0o700)
        home = FOLDER / "home"
        (home / ".config").mkdir(parents=True)
        # Many files that are read here, and take long to read in this machine: in the midst of a stroke,
        # KWin looks at all programs, and does nothing else meanwhile.
        for name in ("libwacom", "applications", "kservices5", "kservicetypes5"):
            share = pathlib.Path("/usr/share", name)
            if share.exists():
                subprocess.run(["mount", "-t", "tmpfs", "tmpfs", share], check=True)
        subprocess.run(["cp", session.SOURCE / "packaging/tdsg-driver.quirks", "/usr/share/libinput"],
                       check=True)
        subprocess.run(["udevadm", "trigger", "--subsystem-match=drm"], check=True)
        subprocess.run(["udevadm", "settle"], check=True)
        self.system = Bus("system")
        self.session = Bus("session")
        self.env = {
            "DBUS_SESSION_BUS_ADDRESS": self.session.address,
            "DBUS_SYSTEM_BUS_ADDRESS": self.system.address,
            "HOME": str(home), "LANG": "C.UTF-8",
            "PATH": f"{session.BIN}:/usr/local/bin:/usr/bin:/bin",
            "XDG_RUNTIME_DIR": str(FOLDER / "runtime"),
        }
        self.logind = Program([sys.executable, HERE / "logind.py"], self.env, stdin=subprocess.PIPE)
        self.logind.wait("ready")
        self.bus = self.session.connect()
        self.compositor = self.driver = self.window = None
        self.scales = (1, 1)
        self.bounds = {}

    def begin(self):
        """Starts everything."""
        self.start()
        say("the desktop is there")
        self.driver = Program([session.BIN / "tdsg-driver"], self.env)
        self.driver.wait("ready")
        self.tablet = Tablet(has_pad=False)
        self.record = Record(self.tablet)
        self.driver.wait("obeys the settings")
        say("the driver is there")
        self.open_windows()

    def open_windows(self):
        self.window = Program([self.pen_log], self.env)
        self.window.wait('"shown"')
        say("the windows are there")

    def start(self):
        """Starts the compositor, and has the environment lead to it."""
        raise NotImplementedError

    def change(self, scales):
        """Arranges the displays."""
        raise NotImplementedError

    def wait_for_socket(self, name):
        session.wait_for(lambda: (FOLDER / "runtime" / name).exists(), "the compositor",
                         2 * session.PATIENCE)
        self.env |= {"WAYLAND_DISPLAY": name, "QT_QPA_PLATFORM": "wayland",
                     "XDG_SESSION_TYPE": "wayland"}

    def run(self, *words, env=None):
        """Runs a program of the desktop to its end."""
        result = subprocess.run(words, env=self.env | (env or {}), capture_output=True, text=True,
                                timeout=PATIENCE, check=False)
        if result.returncode != 0:
            raise AssertionError(f"{words}: {result.stdout}{result.stderr}")
        return result.stdout

    def arrange(self, scales):
        """Arranges the displays, and waits until windows and pen have followed."""
        if scales != self.scales:
            self.change(scales)
            self.scales = scales
        self.learn()

    def push(self):
        guest.World.push(self, self.record)

    def call(self, *words, **options):
        return guest.World.call(self, *words, **options)

    def reports(self, begin=0):
        """What the windows have printed, but for what Qt has to say."""
        return [json.loads(line) for line in self.window.lines[begin:] if line.startswith("{")]

    def events(self, begin):
        return [report for report in self.reports(begin) if "pressure" in report]

    def has_touched(self, begin):
        return any(event["pressure"] > 0 for event in self.events(begin))

    def learn(self):
        """Waits until the windows cover the displays, and until the pen can be led to the last one."""
        wanted = {}
        for name, scale in zip((FIRST, SECOND), self.scales):
            size = [int(length / abs(scale)) for length in (WIDTH, HEIGHT)]
            wanted[name] = size if scale > 0 else size[::-1]

        def shown():
            self.bounds = {}
            for report in self.reports():
                if "shown" in report:
                    self.bounds[report["shown"]] = report["bounds"]
                elif "gone" in report:
                    self.bounds.pop(report["gone"], None)
            # A display whose scale is no whole number may have a begun pixel more.
            return self.bounds.keys() == wanted.keys() and all(
                0 <= self.bounds[name][side] - wanted[name][side - 2] <= 1
                for name in wanted for side in (2, 3))
        try:
            wait_for(shown, "the windows")
        except AssertionError:
            raise AssertionError(f"the windows are at {self.bounds}, not {wanted}") from None
        begin = time.monotonic()
        name, (x, y, width, height) = list(self.bounds.items())[-1]
        self.set_area(self.areas()["all"])
        self.push()
        while True:
            # The X server and its clients know a pen only when it has been there once.
            try:
                event = self.touch(*self.place_of(x + width / 2, y + height / 2), 4000, 10)
            except AssertionError:
                event = None
            if event and event["display"] == name and abs(event["x"] - width / 2) <= 1 \
                    and abs(event["y"] - height / 2) <= 1:
                break
            if time.monotonic() - begin > session.PATIENCE:
                raise AssertionError(f"the pen does not follow the displays: {event}, {self.bounds}")
        say(f"scales {self.scales}: the pen has followed after {time.monotonic() - begin:.1f} s")

    def place_of(self, x, y):
        """The place of the tablet that leads to a place of all displays."""
        _, _, width, height = self.areas()["all"]
        return round(x / width * self.tablet.x_max), round(y / height * self.tablet.y_max)

    def areas(self):
        """The areas that the panel offers."""
        if len(self.bounds) == 1:
            return {"all": self.bounds[FIRST]}
        ends = [max(bounds[side] + bounds[side + 2] for bounds in self.bounds.values())
                for side in (0, 1)]
        return {"all": (0, 0, *ends)} | {f"#{number}": self.bounds[name]
                                         for number, name in enumerate((FIRST, SECOND), 1)}

    def parts(self, area):
        """The parts of the tablet that the panel offers: left, top, right, bottom. All displays together
        cannot be calibrated."""
        _, _, width, height = area
        wide, high = self.tablet.x_max / width, self.tablet.y_max / height
        parts = {"whole tablet": (0, 0, 1, 1),
                 "proportions kept": (0, 0, min(1, high / wide), min(1, wide / high))}
        if list(area) in self.bounds.values():
            parts["calibrated"] = (0.125, 0.25, 0.875, 0.75)
        return parts

    def set_area(self, area, turn=0, part=(0, 0, 1, 1)):
        """Sets the area of the record; returns the part of the tablet in its units."""
        x, y, width, height = area
        left, top, right, bottom = (round(side * length) for side, length in zip(
            part, (self.tablet.x_max, self.tablet.y_max) * 2))
        self.record.set(XOrg=x, YOrg=y, Width=width, Height=height, rotationFlag=turn,
                        cTabletXmin=left, cTabletYmin=top, cTabletXmax=right, cTabletYmax=bottom)
        return left, top, right, bottom

    def touch(self, x, y, pressure, seconds=session.PATIENCE):
        """Touches a place of the tablet; returns what the windows were told last of the stroke before the
        pen was lifted. Waits for each step: a compositor may put together what comes at once."""
        begin = len(self.window.lines)
        self.tablet.pen(x, y)
        self.tablet.pen(x, y, pressure)
        try:
            session.wait_for(lambda: self.has_touched(begin), f"a touch at {x}, {y}", seconds)
        finally:
            self.tablet.pen(x, y)
            self.tablet.away()
        session.wait_for(lambda: any(event["type"] == RELEASE for event in self.events(begin)),
                         "the pen to be lifted")
        return [event for event in self.events(begin) if event["pressure"] > 0][-1]

    def measure(self, area, turn, part):
        """Touches nine places; returns how far the window saw the pen at most from where the record says,
        in the display's pixels, and how much the pressure differed at most, in levels. The ends of the
        tablet are the first and the last pixel of the area."""
        left, top, right, bottom = self.set_area(area, turn, part)
        self.push()
        x, y, width, height = area
        far = levels = 0
        for number, (across, down) in enumerate(PLACES):
            # Displays of several sizes leave gaps.
            if not any(0 <= x + across * (width - 1) - bounds[0] < bounds[2]
                       and 0 <= y + down * (height - 1) - bounds[1] < bounds[3]
                       for bounds in self.bounds.values()):
                continue
            place = left + across * (right - left), top + down * (bottom - top)
            if turn:
                place = self.tablet.x_max - place[0], self.tablet.y_max - place[1]
            pressure = 500 + 900 * number
            event = self.touch(round(place[0]), round(place[1]), pressure)
            name = event["display"]
            scale = abs(self.scales[(FIRST, SECOND).index(name)])
            far_x = self.bounds[name][0] + event["x"] - x - across * (width - 1 / scale)
            far_y = self.bounds[name][1] + event["y"] - y - down * (height - 1 / scale)
            far = max(far, scale * abs(far_x), scale * abs(far_y))
            levels = max(levels, abs(event["pressure"] * PRESSURE_MAX - pressure))
        return far, levels

    def fill(self):
        """Measures the areas of the panel with the displays as they are arranged; says a line for each."""
        begin = time.monotonic()
        for area_name, area in self.areas().items():
            for part_name, part in self.parts(area).items():
                for turn in TURNS:
                    far, levels = self.measure(area, turn, part)
                    print(RESULT + json.dumps(
                        {"scales": self.scales, "area": area_name, "part": part_name, "turn": turn,
                         "pixels": round(far, 3), "levels": round(levels, 3)}), flush=True)
        say(f"scales {self.scales}: {time.monotonic() - begin:.1f} s")

    def unplug_in_a_stroke(self, name):
        """The second display goes while a stroke is on a display. The stroke ends, though the pen still
        moves on the tablet; the next one is on the display that is left. Says how many events are
        elsewhere: most desktops lead the pen to what is left before the driver can know, and how long
        that takes depends on the machine."""
        self.arrange((1, 1))
        self.set_area(self.bounds[name])
        self.push()
        ended = threading.Event()

        def move():
            step = 0
            while not ended.wait(0.02):
                step = (step + 1) % 40
                self.tablet.pen(24000 + 100 * step, 15000, 4000)

        begin = len(self.window.lines)
        self.tablet.pen(24000, 15000)
        mover = threading.Thread(target=move)
        mover.start()
        try:
            wait_for(lambda: self.has_touched(begin), "the stroke")
            self.change((1,))
            self.scales = (1,)
            wait_for(lambda: any("gone" in report for report in self.reports(begin)), "the change")
            wait_for(lambda: not any(event["pressure"] > 0 for event in self.events(begin)[-50:]),
                     "the end of the stroke")
        finally:
            ended.set()
            mover.join()
        self.tablet.away()
        events = self.events(begin)
        drawn = [event["pressure"] > 0 for event in events]
        wrong = [event for event in events if event["pressure"] > 0 and (
            event["display"] != name or abs(event["y"] - HEIGHT / 2) > 1
            or not WIDTH / 2 - 1 <= event["x"] <= WIDTH / 2 + WIDTH / 10)]
        say(f"unplugged with a stroke on {name}: {sum(drawn)} of {len(events)} events of it, "
            f"{len(wrong)} of these elsewhere")
        strokes = sum(now and not before for before, now in zip([False, *drawn], drawn))
        if strokes > 1:
            raise AssertionError(f"the stroke went on: {strokes} strokes, {wrong}")
        event = self.touch(24000, 15000, 4000)
        if event["display"] != FIRST or abs(event["x"] - WIDTH / 2) > 1:
            raise AssertionError(f"the next stroke is at {event}")

    def test_more(self):
        """What only this desktop has."""

    def measure_all(self, everything):
        """Measures all arrangements, or the first one."""
        two, one = self.ARRANGEMENTS
        for scales in two if everything else two[:1]:
            self.arrange(scales)
            self.fill()
        self.unplug_in_a_stroke(SECOND)
        if everything:
            for scales in one:
                self.arrange(scales)
                self.fill()
            self.unplug_in_a_stroke(FIRST)
            self.arrange((1, 1))
            self.test_more()


class KWin(Desktop):
    OBJECT = "org.kde.KWin.InputDevice"
    ARRANGEMENTS = Desktop.ARRANGEMENTS[0], Desktop.ARRANGEMENTS[1] + [(-1,)]
    # What the user changes in KWin's own module, which the driver takes back.
    CHANGE = ()

    def start(self):
        kwin = FOLDER / "kwin_wayland"
        subprocess.run(["cp", "/usr/bin/kwin_wayland", kwin], check=True)  # without its capability
        (FOLDER / "runtime/wayland-0").unlink(missing_ok=True)
        self.compositor = Program(
            [kwin, "--drm", "--no-lockscreen", "--no-global-shortcuts", "--no-kactivities",
             "--socket", "wayland-0"],
            self.env | {"KWIN_COMPOSE": "Q", "XDG_SESSION_ID": "1", "XDG_SESSION_TYPE": "wayland"})
        self.wait_for_socket("wayland-0")

    def change(self, scales):
        words = []
        x = 0
        for name, scale in zip((FIRST, SECOND), scales):
            words += [f"output.{name}.enable", f"output.{name}.scale.{abs(scale)}",
                      f"output.{name}.rotation.{'right' if scale < 0 else 'none'}",
                      f"output.{name}.position.{x},0"]
            x += round(WIDTH / abs(scale))
        if len(scales) == 1:
            words.append(f"output.{SECOND}.disable")
        self.run("kscreen-doctor", *words, env={"KSCREEN_BACKEND_INPROCESS": "1"})

    def properties(self, method, arguments):
        node = pathlib.Path(guest.Node.find(guest.PEN)).name
        return self.bus.call_sync(
            "org.kde.KWin", f"/org/kde/KWin/InputDevice/{node}", "org.freedesktop.DBus.Properties",
            method, arguments, None, Gio.DBusCallFlags.NONE, 60000)

    def property(self, name):
        return self.properties("Get", GLib.Variant("(ss)", (self.OBJECT, name))).unpack()[0]

    def test_more(self):
        for name, value in self.CHANGE:
            before = self.property(name)
            self.properties("Set", GLib.Variant("(ssv)", (self.OBJECT, name, value)))
            wait_for(lambda: self.property(name) == before, f"the driver to take back {name}")
        self.learn()
        say("KWin's settings were put right")
        self.window.end()
        self.compositor.end()
        self.start()
        self.open_windows()
        self.learn()
        event = self.touch(*self.place_of(self.bounds[SECOND][0] + 2, 2), 4000)
        if event["display"] != SECOND or abs(event["x"] - 2) > 1 or abs(event["y"] - 2) > 1:
            raise AssertionError(f"after KWin was started again, the pen is at {event}")
        say("KWin was started again")


class KWin5(KWin):
    CHANGE = (("outputArea", GLib.Variant("(dddd)", (0, 0, 0.5, 0.5))),
              ("outputName", GLib.Variant("s", SECOND)),
              ("leftHanded", GLib.Variant("b", True)))


class KWin6(KWin):
    CHANGE = (("mapToWorkspace", GLib.Variant("b", False)),
              ("outputArea", GLib.Variant("(dddd)", (0, 0, 0.5, 0.5))))


class Xorg(Desktop):
    """Has no scales: programs draw larger on their own."""

    ARRANGEMENTS = [(1, 1)], [(1,)]

    def start(self):
        display = ":77"  # no other's: the files in /tmp are those of the real machine
        config = FOLDER / "xorg.conf"
        config.write_text('Section "Device"\nIdentifier "card"\nDriver "modesetting"\n'
                          'Option "AccelMethod" "none"\nEndSection\n')
        self.compositor = Program(
            ["/usr/lib/xorg/Xorg", display, "-config", config, "-logfile", FOLDER / "xorg.log",
             "-novtswitch", "-sharevts", "-nolisten", "tcp", "-noreset"], self.env)
        self.env |= {"DISPLAY": display, "QT_QPA_PLATFORM": "xcb", "XDG_SESSION_TYPE": "x11"}
        wait_for(lambda: subprocess.run(
            ["xrandr"], env=self.env, capture_output=True, check=False).returncode == 0, "the X server")
        self.change((1, 1))

    def change(self, scales):
        words = ["--output", FIRST, "--primary", "--mode", f"{WIDTH}x{HEIGHT}", "--pos", "0x0",
                 "--output", SECOND]
        words += ["--off"] if len(scales) == 1 else ["--mode", f"{WIDTH}x{HEIGHT}", "--right-of", FIRST]
        self.run("xrandr", *words)


class Sway(Desktop):
    """Also for other compositors that use wlroots."""

    ARRANGEMENTS = Desktop.ARRANGEMENTS[0], Desktop.ARRANGEMENTS[1] + [(-1,)]

    def start(self):
        # It does not start as root, so that another user needs the devices.
        nobody = 65534
        os.chown(FOLDER / "runtime", nobody, nobody)
        rules = pathlib.Path("/run/udev/rules.d")
        rules.mkdir(exist_ok=True)
        (rules / "99-test.rules").write_text('SUBSYSTEM=="drm|input", MODE="0666"\n')
        for words in (["control", "--reload"], ["trigger", "--subsystem-match=drm",
                                                "--subsystem-match=input"], ["settle"]):
            subprocess.run(["udevadm", *words], check=True)
        config = FOLDER / "sway.conf"
        config.write_text(f"xwayland disable\ndefault_border none\n"
                          f"output {FIRST} pos 0 0\noutput {SECOND} pos {WIDTH} 0\n")
        self.env["SWAYSOCK"] = str(FOLDER / "runtime/sway.sock")
        user = ["setpriv", f"--reuid={nobody}", f"--regid={nobody}", "--clear-groups"]
        self.compositor = Program([*user, "sway", "--config", config], self.env | {
            "LIBSEAT_BACKEND": "builtin", "SEATD_VTBOUND": "0", "WLR_BACKENDS": "drm,libinput",
            "WLR_RENDERER": "pixman", "XDG_SEAT": "seat0"})
        self.wait_for_socket("wayland-1")

    def change(self, scales):
        words = []
        x = 0
        for name, scale in zip((FIRST, SECOND), scales):
            words.append(f"output {name} enable scale {abs(scale)} pos {x} 0 "
                         f"transform {90 if scale < 0 else 'normal'}")
            x += round(WIDTH / abs(scale))
        if len(scales) == 1:
            # The workspace of a display that goes is shown on the other, in front of what was there.
            words += [f"output {SECOND} disable", "workspace number 1"]
        # It waits for the answer for three seconds only, which may be too short here. Whether it was done
        # is to be seen in the windows.
        subprocess.run(["swaymsg", "; ".join(words)], env=self.env, capture_output=True, check=False,
                       timeout=PATIENCE)


DESKTOPS = {"kwin5": KWin5, "kwin6": KWin6, "sway": Sway, "xorg": Xorg}


def main():
    desktop = DESKTOPS[sys.argv[1]](sys.argv[2])
    try:
        desktop.begin()
        desktop.measure_all("--all" in sys.argv)
    except BaseException:
        traceback.print_exc()
        for name in ("compositor", "driver", "window"):
            if program := getattr(desktop, name):
                print(name, *program.lines[-40:], sep="\n    ", flush=True)
        sys.exit(1)
    say("good")


if __name__ == "__main__":
    main()
