# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""A session with a screen: an X server without hardware, a window manager, and the accessibility
bus, through which a test finds the controls."""

import json
import os
import pathlib
import re
import subprocess
import time

import session


class Desktop(session.Session):
    SCREEN = "1280x900x24"

    def x_server(self):
        """The server's command."""
        return ["Xvfb", "-screen", "0", self.SCREEN]

    def setUp(self):
        super().setUp()
        self.accessible = None
        self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self.start_display()
        self.start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                   stdout=subprocess.DEVNULL)
        session.wait_for(lambda: self.has_name("org.a11y.Bus"), "the accessibility bus")

    def start_display(self):
        """Starts the X server and the window manager."""
        self.start_x_server()
        self.start(["openbox"], stdout=subprocess.DEVNULL)
        # A window that is shown while it starts is never mapped, so it has to do something first.
        session.wait_for(self.manages_windows, "the window manager")

    def manages_windows(self):
        """Whether the window manager does what it is told: to have a single desktop."""
        self.run_program("wmctrl", "-n", "1")
        return self.run_program(
            "xprop", "-root", "_NET_NUMBER_OF_DESKTOPS").stdout.strip().endswith("= 1")

    def start_x_server(self):
        read, write = os.pipe()
        # Without -noreset, the server would reset when its first client disconnects, and drop
        # another that is just connecting.
        self.start([*self.x_server(), "-displayfd", write, "-nolisten", "tcp", "-noreset"],
                   pass_fds=(write,), stdout=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.env["DISPLAY"] = ":" + pipe.readline().strip()

    def has_name(self, name):
        """Whether the name is owned on the bus."""
        return self.run_program(
            "busctl", "--user", "call", "org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus", "NameHasOwner", "s", name).stdout == "b true\n"

    def things(self, application, *options):
        """Returns what the application exposes to screen readers; options are those of
        accessible.py."""
        if not self.accessible:
            script = pathlib.Path(__file__).with_name("accessible.py")
            self.accessible = self.start(["/usr/bin/python3", "-B", script], stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE)
        self.accessible.stdin.write(json.dumps([application, *options]) + "\n")
        self.accessible.stdin.flush()
        return json.loads(session.read_line(self.accessible.stdout, f"what {application} shows"))

    def press(self, application, name, role):
        """Presses a control through the accessibility bus, as a screen reader does."""
        options = ["--items"] if role == "list item" else []
        session.wait_for(
            lambda: self.things(application, *options, "--find", name, role, "--press"),
            f"{role} '{name}' of {application}")

    def find(self, application, name, role=None, showing=True, inside=()):
        """Waits for the thing with that name or description below the given path, and returns its
        properties."""
        options = ["--items"] if role == "list item" else []
        if not showing:
            options += ["--all", "--hidden"]
        return session.wait_for(
            lambda: self.things(application, *options, "--find", name, role or "", "--inside",
                                json.dumps(inside)),
            f"{role or 'thing'} '{name}' of {application}")

    def identify_displays(self, look, what):
        """Has the panel identify the displays, and returns what look() returns while the signs are
        there; they go after three seconds, so that a slow machine may need another look."""
        def attempt():
            begin = time.monotonic()
            self.press("qvtblt", "Identify displays", "push button")
            while time.monotonic() < begin + 2.5:
                if seen := look():
                    return seen
            session.wait_for(lambda: not self.signs_said(), "the end of the signs")
            return None
        return session.wait_for(attempt, what)

    def signs_said(self):
        """Returns what screen readers hear of the signs on the displays."""
        return {thing["name"] for thing in self.things("qvtblt")
                if thing["role"] == "notification" and thing["showing"]
                and thing["name"].startswith("Display #")}

    def xdotool(self, *words):
        result = self.run_program("xdotool", *words)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout.strip()

    def click(self, thing, x=None):
        """Clicks a thing, in its middle or x points from its left edge, once its window is on the
        screen and both rest."""
        root = int(re.search("Window id: (0x[0-9a-f]+)",
                             self.run_program("xwininfo", "-root").stdout)[1], 16)
        places = [None]

        def is_under_the_pointer():
            now = self.things(thing["application"], "--at", json.dumps(thing["path"]))
            if not now or now["height"] <= 0:
                return False
            before = places[0]
            places[0] = (now["x"] + (now["width"] // 2 if x is None else x),
                         now["y"] + now["height"] // 2)
            place = self.xdotool("mousemove", *places[0], "getmouselocation", "--shell")
            return places[0] == before and f"WINDOW={root}" not in place.splitlines()
        session.wait_for(is_under_the_pointer, f"a resting {thing['role']} '{thing['name']}'")
        self.xdotool("click", 1)

    def close_window(self, title):
        """Asks a window to close, like its close button."""
        self.ask_to_close(session.wait_for(
            lambda: self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                     title).stdout.split(), f"the window '{title}'")[0])

    def ask_to_close(self, window):
        """The same for the window with that ID. Goes through the window manager, since a key that
        is pressed right after a window has been shown may get lost."""
        result = self.run_program("wmctrl", "-i", "-c", window)
        self.assertEqual(result.returncode, 0, result.stderr)

    def pixels(self, x, y, width, height):
        """Returns the colours of a part of the screen, row by row, as #RRGGBB."""
        result = self.run_program("import", "-silent", "-window", "root", "-crop",
                                  f"{width}x{height}+{x}+{y}", "-depth", "8", "txt:-")
        self.assertEqual(result.returncode, 0, result.stderr)
        return re.findall("#[0-9A-F]{6}", result.stdout)

    def pixel(self, x, y):
        """Returns the colour of a pixel of the screen."""
        return self.pixels(x, y, 1, 1)[0]

    def take_picture(self, folder):
        self.screenshot(folder / "screen.png")

    def screenshot(self, path):
        """Writes a screenshot."""
        result = self.run_program("import", "-window", "root", path)
        self.assertEqual(result.returncode, 0, result.stderr)
