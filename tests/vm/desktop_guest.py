# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Where the pen lands on a real desktop: a compositor on displays of the virtual machine, the real driver
with a made tablet, and a window over each display that tells where the pen is. Runs in the virtual
machine, see desktop_test.py.

Usage: desktop_guest.py DESKTOP PEN-LOG
"""

import json
import pathlib
import subprocess
import sys
import time

from gi.repository import Gio, GLib

import guest
import session
from guest import FOLDER, HERE, PATIENCE, Bus, Program, Record, wait_for
from tablet import PRESSURE_MAX, Tablet

WIDTH, HEIGHT = 1024, 768
PLACES = [(x, y) for y in (0, 0.5, 1) for x in (0, 0.5, 1)]
BEGIN = time.monotonic()


def say(text):
    print(f"{time.monotonic() - BEGIN:6.1f} s  {text}", flush=True)


class Desktop:
    """A compositor, with the driver and the window. Subclasses start the compositor."""

    def __init__(self, pen_log):
        self.pen_log = pen_log
        (FOLDER / "runtime").mkdir(parents=True, mode=0o700)
        home = FOLDER / "home"
        (home / ".config").mkdir(parents=True)
        wacom = pathlib.Path("/usr/share/libwacom")
        if wacom.exists():
            subprocess.run(["mount", "-t", "tmpfs", "tmpfs", wacom], check=True)
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
        self.start()
        say(f"{type(self).__name__} is there")
        self.driver = Program([session.BIN / "tdsg-driver"], self.env)
        self.driver.wait("ready")
        self.tablet = Tablet(has_pad=False)
        self.record = Record(self.tablet)
        self.driver.wait("obeys the settings")
        self.window = Program([pen_log], self.env)
        self.window.wait('"shown"')
        say("the driver and the window are there")

    def start(self):
        raise NotImplementedError

    def push(self):
        guest.World.push(self, self.record)

    def call(self, *words, **options):
        return guest.World.call(self, *words, **options)

    def set_area(self, x, y, width, height):
        self.record.set(XOrg=x, Width=width, YOrg=y, Height=height)

    def events(self, begin):
        return [event for event in map(json.loads, self.window.lines[begin:]) if "pressure" in event]

    def learn(self, sizes):
        """Waits until the windows have these sizes, side by side."""
        def shown():
            last = {}
            for event in map(json.loads, self.window.lines):
                if "shown" in event:
                    last[event["shown"]] = (event["width"], event["height"])
            return all(last.get(name) == size for name, size in sizes.items())
        wait_for(shown, f"windows of {sizes}")
        time.sleep(3)  # nothing tells when the driver has followed
        self.bounds = {}
        x = 0
        for name, (width, height) in sizes.items():
            self.bounds[name] = (x, 0, width, height)
            x += width
        self.all = (0, 0, x, max(height for _, height in sizes.values()))

    def areas(self):
        """The areas that the panel offers."""
        if len(self.bounds) == 1:
            return {"all": self.all}
        return {"all": self.all} | {f"#{number}": bounds
                                    for number, bounds in enumerate(self.bounds.values(), 1)}

    def measure_all(self, table):
        """Fills the table."""
        raise NotImplementedError

    def unplug_in_a_stroke(self, unplug):
        """The stroke ends on the display that is unplugged; the next one is on the other, also without
        a push."""
        begin = len(self.window.lines)
        self.record.set(XOrg=WIDTH, Width=WIDTH, YOrg=0, Height=HEIGHT, rotationFlag=0)
        self.push()
        self.tablet.pen(24000, 15000, 4000)
        wait_for(lambda: any(event["pressure"] > 0 for event in self.events(begin)), "the stroke")
        unplug()
        begin = len(self.window.lines)
        self.tablet.pen(24100, 15000, 4000)
        self.tablet.away()
        event = self.touch(24000, 15000, 4000)
        if event["display"] != "Virtual-1" or any(
                other["pressure"] > 0 for other in self.events(begin)[:-2]
                if other["display"] != "Virtual-1"):
            raise AssertionError(f"the stroke went on: {self.events(begin)}")
        say("a display was unplugged in a stroke")

    def touch(self, x, y, pressure):
        """Touches a place of the tablet; returns the display, the place on it and the pressure that the
        window was told last before the pen was lifted."""
        begin = len(self.window.lines)
        self.tablet.pen(x, y)
        self.tablet.pen(x, y, pressure)
        session.wait_for(lambda: any(event["pressure"] > 0 for event in self.events(begin)),
                         f"a touch at {x}, {y}", 20)
        event = [event for event in self.events(begin) if event["pressure"] > 0][-1]
        self.tablet.pen(x, y)
        self.tablet.away()
        return event


class KWin5(Desktop):
    OBJECT = "org.kde.KWin.InputDevice"

    def arrange(self, *settings, sizes):
        """Has the compositor arrange its displays; waits until the windows have these sizes."""
        result = subprocess.run(["kscreen-doctor", *settings],
                                env=self.env | {"KSCREEN_BACKEND_INPROCESS": "1",
                                                "QT_QPA_PLATFORM": "wayland"},
                                capture_output=True, text=True, timeout=PATIENCE, check=False)
        if result.returncode != 0:
            raise AssertionError(result.stdout + result.stderr)
        self.learn(sizes)

    def property(self, name):
        node = pathlib.Path(guest.Node.find(guest.PEN)).name
        return self.bus.call_sync(
            "org.kde.KWin", f"/org/kde/KWin/InputDevice/{node}", "org.freedesktop.DBus.Properties", "Get",
            GLib.Variant("(ss)", (self.OBJECT, name)), None, Gio.DBusCallFlags.NONE, 60000).unpack()[0]

    def change(self, name, value):
        """Sets what KWin does with the pen, as its module in System Settings does."""
        node = pathlib.Path(guest.Node.find(guest.PEN)).name
        self.bus.call_sync(
            "org.kde.KWin", f"/org/kde/KWin/InputDevice/{node}", "org.freedesktop.DBus.Properties", "Set",
            GLib.Variant("(ssv)", (self.OBJECT, name, value)), None, Gio.DBusCallFlags.NONE, 60000)

    def be_put_right(self):
        """The driver takes back what the user changes."""
        before = self.property("outputArea")
        self.change("outputArea", GLib.Variant("(dddd)", (0, 0, 0.5, 0.5)))
        wait_for(lambda: self.property("outputArea") == before, "the driver to win")
        say("KWin's settings were put right")

    def measure_all(self, table):
        self.learn({"Virtual-1": (WIDTH, HEIGHT), "Virtual-2": (WIDTH, HEIGHT)})
        table.fill("two", self.areas())
        table.fill("two", {"#2": self.areas()["#2"]}, parts=("proportions kept", "calibrated"))
        self.be_put_right()
        table.fill("two, after a change in KWin", {"#2": self.areas()["#2"]}, turns=(0,))
        self.arrange("output.Virtual-1.scale.1.25", "output.Virtual-2.scale.2",
                     "output.Virtual-2.position.819,0",
                     sizes={"Virtual-1": (819, 614), "Virtual-2": (512, 384)})
        table.fill("two, scaled 1.25 and 2", self.areas())
        self.arrange("output.Virtual-1.scale.1", "output.Virtual-2.scale.1",
                     "output.Virtual-2.position.1024,0",
                     sizes={"Virtual-1": (WIDTH, HEIGHT), "Virtual-2": (WIDTH, HEIGHT)})
        self.unplug_in_a_stroke(lambda: self.arrange("output.Virtual-2.disable",
                                                     sizes={"Virtual-1": (WIDTH, HEIGHT)}))
        table.fill("one", self.areas())
        self.arrange("output.Virtual-1.rotation.right", sizes={"Virtual-1": (HEIGHT, WIDTH)})
        table.fill("one, upright", self.areas())

    def start(self):
        kwin = FOLDER / "kwin_wayland"
        subprocess.run(["cp", "/usr/bin/kwin_wayland", kwin], check=True)  # without its capability
        self.kwin = Program([kwin, "--drm", "--no-lockscreen", "--no-global-shortcuts",
                             "--no-kactivities", "--socket", "wayland-0"],
                            self.env | {"KWIN_COMPOSE": "Q", "XDG_SESSION_ID": "1",
                                        "XDG_SESSION_TYPE": "wayland",
                                        "QT_LOGGING_RULES": "kwin_*.debug=true"})
        try:
            wait_for((FOLDER / "runtime/wayland-0").exists, "KWin")
        except AssertionError:
            print(*self.kwin.lines, sep="\n")
            raise
        self.env["WAYLAND_DISPLAY"] = "wayland-0"
        self.env["QT_QPA_PLATFORM"] = "wayland"
        self.env["XDG_SESSION_TYPE"] = "wayland"


PARTS = {  # of the tablet: left, top, right, bottom
    "whole tablet": (0, 0, 1, 1),
    "proportions kept": (0, 0.1, 1, 0.9),
    "calibrated": (0.125, 0.25, 0.875, 0.75),
}


class Table:
    """The largest distance from where the record says, in points, and of the pressure, in levels."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.rows = []

    def fill(self, title, areas, turns=(0, 180), parts=("whole tablet",)):
        for area_name, area in areas.items():
            for turn in turns:
                for part in parts:
                    begin = time.monotonic()
                    distance, levels = self.measure(area, turn, PARTS[part])
                    self.rows.append((title, area_name, turn, part, distance, levels))
                    say(f"{title}, {area_name}, {turn}\u00b0, {part}: {distance:.2f} points, {levels:.2f} "
                        f"levels, {time.monotonic() - begin:.1f} s")

    def measure(self, area, turn, part):
        desktop, tablet = self.desktop, self.desktop.tablet
        begin_x, begin_y, end_x, end_y = (round(side * length) for side, length in zip(
            part, (tablet.x_max, tablet.y_max) * 2))
        x, y, width, height = area
        desktop.record.set(XOrg=x, YOrg=y, Width=width, Height=height, rotationFlag=turn,
                           cTabletXmin=begin_x, cTabletYmin=begin_y, cTabletXmax=end_x,
                           cTabletYmax=end_y)
        desktop.push()
        far = levels = 0
        for number, (across, down) in enumerate(PLACES):
            place = [begin_x + across * (end_x - begin_x), begin_y + down * (end_y - begin_y)]
            if turn:
                place = [tablet.x_max - place[0], tablet.y_max - place[1]]
            goal = (x + across * (width - 1), y + down * (height - 1))
            if not any(left <= goal[0] < left + wide and top <= goal[1] < top + high
                       for left, top, wide, high in desktop.bounds.values()):
                continue  # displays of several sizes leave gaps
            pressure = 500 + 900 * number
            event = desktop.touch(round(place[0]), round(place[1]), pressure)
            bounds = desktop.bounds[event["display"]]
            for got, wanted in ((bounds[0] + event["x"], x + across * width),
                                (bounds[1] + event["y"], y + down * height)):
                far = max(far, abs(got - wanted))
            levels = max(levels, abs(event["pressure"] * PRESSURE_MAX - pressure))
        return far, levels

    def print(self):
        print("\n| displays | area | turned | part of the tablet | points | levels |\n|---|---|---|---|---|---|")
        for title, area, turn, part, far, levels in self.rows:
            print(f"| {title} | {area} | {turn}\u00b0 | {part} | {far:.2f} | {levels:.2f} |")


def main():
    desktop = {"kwin5": KWin5}[sys.argv[1]](sys.argv[2])
    table = Table(desktop)
    try:
        desktop.measure_all(table)
    except BaseException:
        for name in ("kwin", "driver", "window"):
            print(name, *getattr(desktop, name).lines[-40:], sep="\n    ", flush=True)
        raise
    finally:
        table.print()
    for *_, far, levels in table.rows:
        if far > 1 or levels > 1:
            sys.exit("The pen is not where the record says")


if __name__ == "__main__":
    main()
