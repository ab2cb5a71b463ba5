# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""A Wayland desktop with two displays side by side and no hardware: KWin, whose displays are windows
of an X server that renders into memory."""

import re
import shutil
import subprocess

import desktop
import session

WIDTH, HEIGHT = 1280, 720  # of a display, in points


class Wayland(desktop.Desktop):
    """Its displays are X11-0 and, to the right of it, X11-1."""

    SCREEN = f"{2 * WIDTH}x{HEIGHT}x24"
    SCALE = 1  # pixels for a point; a subclass with another one needs a larger screen

    def start_display(self):
        # Without a window manager, so that the windows are where the displays are.
        self.start_x_server()
        # The installed file has a capability that a container may not grant.
        kwin = shutil.copy("/usr/bin/kwin_wayland", self.folder)
        self.env["LIBGL_ALWAYS_SOFTWARE"] = "1"
        self.start([kwin, "--x11-display", self.env["DISPLAY"], "--output-count", "2",
                    "--width", WIDTH, "--height", HEIGHT, "--scale", self.SCALE, "--no-lockscreen",
                    "--no-global-shortcuts", "--socket", "qvtblt-test"], stdout=subprocess.DEVNULL)
        session.wait_for(lambda: self.has_name("org.kde.KWin"), "KWin")
        _, second = sorted(session.wait_for(self.displays, "KWin's displays"))
        width, height = self.display_size()
        self.xdotool("windowmove", "--sync", second, width, 0)
        self.xdotool("mousemove", width // 2, height // 2)  # to where windows are to appear
        self.env |= {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "qvtblt-test"}

    def displays(self):
        """Returns the windows that are KWin's displays, once both are there."""
        windows = re.findall('(0x[0-9a-f]+) "KDE Wayland Compositor',
                             self.run_program("xwininfo", "-root", "-tree").stdout)
        return [int(window, 16) for window in windows] if len(windows) == 2 else None

    def display_size(self):
        """Returns the size of a display in pixels."""
        return round(WIDTH * self.SCALE), round(HEIGHT * self.SCALE)

    def pixels(self, display):
        """Returns the contents of the first display, 0, or the second, 1: a function that returns
        (red, green, blue) at a position."""
        result = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "rgb:-"],
                                env=self.env, capture_output=True, timeout=session.PATIENCE, check=True)
        width, height = self.display_size()
        self.assertEqual(len(result.stdout), 3 * 2 * width * height)

        def pixel(x, y):
            at = 3 * (y * 2 * width + display * width + x)
            return tuple(result.stdout[at:at + 3])
        return pixel
