# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The profile follows the application in front: with KWin on Wayland, and with another window
manager on X11.

Usage: follow_test.py NAMED-WINDOWS [unittest's arguments], NAMED-WINDOWS being a program that opens
windows
"""

import os
import plistlib
import random
import shutil
import signal
import struct
import subprocess
import sys
import time
import unittest

import desktop
import session

FOLLOWER = "org.quorvia.TabletFollower"
KWIN = "org.kde.KWin"
PLUGIN = "org.quorvia.qvtbltctl.follow"
APPLICATIONS = ("org.test.one", "org.test.two", "org.test.three")
# The pressure curves of the profiles for them, and of the one that the user has chosen.
CURVES = {"org.test.one": 10, "org.test.two": 20, "org.test.three": 30, "": 150}


class Following(desktop.Desktop):
    """A desktop with a tablet whose profiles have different pressure curves."""

    def make_profiles(self):
        """Makes a profile for each application, and one that is nobody's, which is the current."""
        for application in (*APPLICATIONS, ""):
            self.assertEqual(
                self.patient_ctl("set", "Pen/PressureThreshold", CURVES[application]).returncode, 0)
            self.assertEqual(
                self.patient_ctl("profile", "save", application or "My own").returncode, 0)
        for file in (self.home / ".local/share/qvtblt/profiles/20737").iterdir():
            profile = plistlib.loads(file.read_bytes())
            if profile["Name"] in APPLICATIONS:
                profile["Applications"] = [profile["Name"].upper()]  # case does not matter
                file.write_bytes(plistlib.dumps(profile))

    def start_follower(self):
        follower = self.start([session.BIN / "qvtbltctl", "follow"], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE)
        session.wait_for(lambda: self.has_name(FOLLOWER), "the follower")
        return follower

    def stop(self, program, number=signal.SIGTERM):
        """Ends a program with a signal, and returns its exit code and what it has said."""
        program.send_signal(number)
        _, said = program.communicate(timeout=session.PATIENCE)
        return program.returncode, said

    def start_windows(self, *names):
        windows = self.start([NAMED_WINDOWS, *names], stdout=subprocess.PIPE)
        self.assertEqual(session.read_line(windows.stdout, "the windows"), "ready")
        return windows

    def pushes(self):
        return int(self.simulator("Pushes")[1])

    def curve(self):
        record = self.record()
        return struct.unpack_from("<h", record, 283)[0] if record else None

    def wait_for_curve(self, curve):
        session.wait_for(lambda: self.curve() == curve, f"the profile with {curve}")

    def current(self):
        lines = self.patient_ctl("profile", "list").stdout.splitlines()
        return [line[2:].split("\t")[0] for line in lines if line.startswith("* ")]

    def refuse(self, why):
        """Checks that nothing can be followed here."""
        result = self.ctl("follow")
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertEqual(result.stderr, f"qvtbltctl: {why}\n")


class OnKWin(Following):
    scripts = 0

    def start_display(self):
        # The installed file has a capability that a container may not grant.
        self.kwin_program = shutil.copy("/usr/bin/kwin_wayland", self.folder)
        self.env |= {"KWIN_COMPOSE": "Q", "QT_QPA_PLATFORM": "wayland",
                     "WAYLAND_DISPLAY": "qvtblt-test"}
        self.start_kwin()

    def start_kwin(self):
        before = self.env
        self.env = {name: value for name, value in before.items()
                    if name not in ("QT_QPA_PLATFORM", "WAYLAND_DISPLAY")}
        self.kwin = self.start(
            [self.kwin_program, "--virtual", "--width", "800", "--height", "600", "--no-lockscreen",
             "--no-global-shortcuts", "--socket", "qvtblt-test"], stdout=subprocess.DEVNULL)
        self.env = before
        session.wait_for(lambda: self.has_name(KWIN), "KWin")
        session.wait_for(lambda: self.scripting("isScriptLoaded", "s", "none") == "b false\n",
                         "KWin's scripts")

    def take_picture(self, folder):
        """KWin shows nothing that could be seen."""

    def scripting(self, method, *arguments, path="/Scripting",
                  interface="org.kde.kwin.Scripting"):
        return self.run_program("busctl", "--user", "call", KWIN, path, interface, method,
                                *arguments).stdout

    def activate(self, *names):
        """Has KWin bring windows to the front, one right after the other."""
        script = self.folder / "activate.js"
        script.write_text(f"""
            var windows = (workspace.windowList || workspace.clientList)();
            {list(names)}.forEach(function(name) {{
                windows.forEach(function(window) {{
                    if (window.caption === name) {{
                        workspace[workspace.windowList ? "activeWindow" : "activeClient"] = window;
                    }}
                }});
            }});""")
        self.scripts += 1
        self.scripting("loadScript", "ss", str(script), f"test {self.scripts}")
        # All that do not run yet: its number may be that of another script, which would run.
        self.scripting("start")

    def prepare(self):
        """Starts all and brings the first application to the front."""
        self.driver = self.start_driver()
        self.make_profiles()
        self.start_windows(*APPLICATIONS, "org.test.other")
        follower = self.start_follower()
        self.activate("org.test.one")
        self.wait_for_curve(10)
        return follower

    def test_the_profile_follows_and_the_users_own_comes_back(self):
        follower = self.prepare()
        self.assertEqual(self.current(), ["org.test.one"])
        for name in ("org.test.three", "org.test.two", "org.test.other", "org.test.one"):
            pushes = self.pushes()
            self.activate(name)
            self.wait_for_curve(CURVES.get(name, 150))
            self.assertEqual(self.pushes(), pushes + 1)
        settings = plistlib.loads(self.config().read_bytes())
        self.assertEqual(settings["Pen"]["PressureThreshold"], 10)
        # All of it was the user's, and nothing had to be kept.
        self.assertEqual(len(list((self.home / ".local/share/qvtblt/profiles/20737").iterdir())), 4)
        # Its object is for other programs, too, as long as there is no panel.
        self.assertEqual(self.patient_ctl("set", "Pen/Speed", "3").returncode, 0)
        self.assertEqual(self.patient_ctl("profile", "use", "org.test.two").returncode, 0)
        self.wait_for_curve(20)
        self.activate("org.test.other")
        self.activate("org.test.one")
        self.wait_for_curve(10)
        self.activate("org.test.other")
        self.wait_for_curve(20)  # chosen by hand
        self.assertEqual(self.stop(follower)[0], 0)

    def test_ends_with_each_signal_and_takes_its_script_along(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                follower = self.start_follower()
                session.wait_for(
                    lambda: self.scripting("isScriptLoaded", "s", PLUGIN) == "b true\n", "it")
                self.assertEqual(self.stop(follower, number)[0], 0)
                self.assertEqual(self.scripting("isScriptLoaded", "s", PLUGIN), "b false\n")

    def test_a_killed_one_leaves_nothing_that_hinders_the_next(self):
        follower = self.prepare()
        for name in ("org.test.two", "org.test.three", "org.test.two"):
            follower.kill()
            follower.wait(timeout=session.PATIENCE)
            self.activate(name)
            # KWin 5 gives its script the number of another one, since one less is left.
            follower = self.start_follower()
            self.wait_for_curve(CURVES[name])

    def test_only_one_follows(self):
        self.prepare()
        self.refuse("another process already follows the application in front")
        self.activate("org.test.two")
        self.wait_for_curve(20)

    def test_a_new_kwin_is_followed_too(self):
        follower = self.prepare()
        for _ in range(2):
            self.end(self.kwin)
            session.wait_for(lambda: not self.has_name(KWIN), "KWin's end")
            self.assertIsNone(follower.poll())
            self.start_kwin()
            self.start_windows(*APPLICATIONS)
            for name in ("org.test.two", "org.test.one"):
                self.activate(name)
                self.wait_for_curve(CURVES[name])

    def test_nobody_but_kwin_says_what_is_in_front(self):
        self.prepare()
        result = self.run_program(
            "busctl", "--user", "call", FOLLOWER, "/org/quorvia/FrontWindow",
            "org.quorvia.FrontWindow1", "Activated", "ssss", "org.test.two", "", "", "1")
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr, "Call failed: Access denied\n")
        pushes = self.pushes()
        self.activate("org.test.three")
        self.wait_for_curve(30)
        self.assertEqual(self.pushes(), pushes + 1)

    def test_the_panel_in_front_changes_nothing_and_shows_what_others_do(self):
        follower = self.prepare()
        pushes = self.pushes()
        panel = self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "Left scroll strip", "check box")
        session.wait_for(lambda: self.owner_of_panel() == panel.pid, "the panel's name")
        self.activate("Quorvia Tablet")
        self.activate("org.test.one")
        self.activate("Quorvia Tablet")
        self.activate("org.test.two")
        self.wait_for_curve(20)
        self.assertEqual(self.pushes(), pushes + 1)
        self.press("qvtblt", "Pen", "page tab")
        session.wait_for(
            lambda: self.find("qvtblt", "Pressure, from light to heavy", "slider")["value"] == 200,
            "the panel's slider")  # it has ten steps for each
        panel.terminate()
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)
        session.wait_for(lambda: self.owner_of_panel() == follower.pid, "the name's way back")
        self.activate("org.test.three")
        self.wait_for_curve(30)

    def owner_of_panel(self):
        result = self.run_program(
            "busctl", "--user", "call", "org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus", "GetConnectionUnixProcessID", "s", "org.quorvia.TabletPanel")
        return int(result.stdout.split()[1]) if result.returncode == 0 else None

    def test_goes_on_without_a_driver_and_says_so_once(self):
        driver = self.start_driver()
        self.make_profiles()
        self.stop_driver(driver)
        self.start_windows(*APPLICATIONS)
        follower = self.start_follower()
        said = session.read_line(follower.stderr, "what is wrong")
        self.assertEqual(said, "qvtbltctl: the driver does not answer")
        for name in APPLICATIONS:
            self.activate(name)
        self.activate("org.test.two")
        self.start_driver()
        self.wait_for_curve(20)  # without a further change
        code, said = self.stop(follower)
        self.assertEqual(code, 0)
        self.assertNotIn("does not answer", said)

    def test_tries_again_when_the_driver_was_busy(self):
        follower = self.prepare()
        self.driver.send_signal(signal.SIGSTOP)
        self.activate("org.test.two")
        said = ""
        while not said.startswith("qvtbltctl:"):
            said = session.read_line(follower.stderr, "what is wrong")
        self.driver.send_signal(signal.SIGCONT)
        self.wait_for_curve(20)

    def test_a_thousand_changes_lose_nothing_and_push_no_more_than_they_have_to(self):
        self.prepare()
        seed = int(os.environ.get("QVTBLT_SEED", time.time_ns() % 1000000))
        chance = random.Random(seed)
        bursts = 40
        before = self.pushes()
        last = "org.test.one"
        others = 0
        for count in range(bursts):
            with self.subTest(seed=seed, count=count):
                names = [chance.choice(APPLICATIONS) for _ in range(25)]
                self.activate(*names)
                others += names[-1] != last
                last = names[-1]
                self.wait_for_curve(CURVES[last])
        pushes = self.pushes() - before
        self.assertGreaterEqual(pushes, others)
        # On a busy machine, a process may be stopped for longer than windows rest.
        self.assertLessEqual(pushes, others + bursts // 4)
        self.assertEqual(self.current(), [last])


class OnX11(Following):
    def setUp(self):
        super().setUp()
        self.windows = {}

    def open(self, *names):
        """Opens windows and waits until the window manager has them."""
        self.start_windows(*names)
        for name in names:
            self.windows[name] = session.wait_for(
                lambda name=name: self.run_program(
                    "xdotool", "search", "--onlyvisible", "--name", f"^{name}$").stdout.split(),
                f"the window '{name}'")[0]

    def property(self, name, *words):
        result = self.run_program("xprop", "-id", self.windows[name], *words)
        self.assertEqual(result.returncode, 0, result.stderr)

    def name_it(self, name, property_name, value):
        self.property(name, "-f", property_name, "8u", "-set", property_name, value)

    def activate(self, name):
        self.xdotool("windowactivate", "--sync", self.windows[name])

    def prepare(self):
        self.start_driver()
        self.make_profiles()
        self.open("one", "two", "three", "other")
        for name in ("one", "two", "three", "other"):
            self.property(name, "-remove", "_KDE_NET_WM_DESKTOP_FILE")
        self.name_it("one", "_KDE_NET_WM_DESKTOP_FILE", "/usr/share/applications/org.test.one.desktop")
        self.name_it("two", "_GTK_APPLICATION_ID", "org.test.two")
        self.property("three", "-f", "WM_CLASS", "8s", "-set", "WM_CLASS", "org.test.three")
        follower = self.start_follower()
        self.activate("one")
        self.wait_for_curve(10)
        return follower

    def test_the_profile_follows_by_each_kind_of_name(self):
        follower = self.prepare()
        for name, curve in (("two", 20), ("three", 30), ("other", 150), ("one", 10)):
            pushes = self.pushes()
            self.activate(name)
            self.wait_for_curve(curve)
            self.assertEqual(self.pushes(), pushes + 1)
        # The same display in each profile: the whole screen, which only another process knows.
        self.assertEqual(struct.unpack_from("<4h", self.record(), 295), (0, 1280, 0, 900))
        self.assertEqual(self.ctl("mapped-area", "1").stdout, "0 0 1280 900\n")
        code, said = self.stop(follower)
        self.assertEqual(code, 0, said)

    def test_properties_may_be_huge_or_wrong_and_windows_may_go(self):
        follower = self.prepare()
        self.name_it("two", "_GTK_APPLICATION_ID", "x" * 100000)
        self.property("three", "-f", "WM_CLASS", "32c", "-set", "WM_CLASS", "1")
        self.property("other", "-f", "_NET_WM_PID", "8s", "-set", "_NET_WM_PID", "no number")
        self.property("other", "-f", "_NET_WM_WINDOW_TYPE", "32c", "-set", "_NET_WM_WINDOW_TYPE", "7")
        for name in ("two", "three", "other"):
            self.activate(name)
            self.wait_for_curve(150)
            self.activate("one")
            self.wait_for_curve(10)
        for number in range(20):
            windows = self.start_windows(f"passing {number}")
            windows.kill()
            windows.wait(timeout=session.PATIENCE)
        self.run_program("xprop", "-root", "-f", "_NET_ACTIVE_WINDOW", "32x", "-set",
                         "_NET_ACTIVE_WINDOW", "0x7777777")
        self.run_program("xprop", "-root", "-f", "_NET_ACTIVE_WINDOW", "8s", "-set",
                         "_NET_ACTIVE_WINDOW", "none")
        self.name_it("two", "_GTK_APPLICATION_ID", "org.test.two")
        self.activate("two")
        self.wait_for_curve(20)
        self.assertIsNone(follower.poll())

    def test_the_panel_in_front_changes_nothing(self):
        self.prepare()
        pushes = self.pushes()
        panel = self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "Left scroll strip", "check box")
        self.windows["panel"] = session.wait_for(
            lambda: self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                     "^Quorvia Tablet$").stdout.split(), "the panel")[0]
        # Known by its process alone.
        for words in (("-remove", "_KDE_NET_WM_DESKTOP_FILE"), ("-remove", "_GTK_APPLICATION_ID"),
                      ("-f", "WM_CLASS", "8s", "-set", "WM_CLASS", "another")):
            self.property("panel", *words)
        self.activate("panel")
        self.activate("two")
        self.wait_for_curve(20)
        self.assertEqual(self.pushes(), pushes + 1)
        self.assertIsNone(panel.poll())

    def test_the_end_of_the_x_server_is_told(self):
        follower = self.prepare()
        self.end(self.x_server_process)
        _, said = follower.communicate(timeout=session.PATIENCE)
        self.assertEqual(follower.returncode, 1)
        self.assertTrue(said.endswith("qvtbltctl: the X server has ended\n"), said)

    def start(self, command, **options):
        program = super().start(command, **options)
        if command[0] == "Xvfb":
            self.x_server_process = program
        return program

    def take_picture(self, folder):
        if self.x_server_process.poll() is None:
            super().take_picture(folder)


class Elsewhere(Following):
    def start_display(self):
        """There is none."""

    def take_picture(self, folder):
        """There is nothing to see."""

    def test_it_says_why_it_cannot_follow(self):
        self.refuse("cannot follow: there is no desktop, neither KWin on the session bus nor an X "
                    "display in DISPLAY")
        self.env["DISPLAY"] = ":98765"
        self.refuse("cannot follow: the X display :98765 cannot be opened")
        self.env["WAYLAND_DISPLAY"] = "somewhere"
        self.refuse("cannot follow: this Wayland desktop does not tell other programs which window "
                    "is in front; only KWin's does")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere"
        self.refuse("cannot follow: there is no session bus")

    def test_without_displays_there_is_no_area(self):
        result = self.ctl("mapped-area", "0")
        self.assertEqual((result.returncode, result.stdout), (1, ""))


NAMED_WINDOWS = sys.argv.pop(1)

if __name__ == "__main__":
    unittest.main()
