# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Notifications about real displays that are connected, disconnected and moved: one when a change
begins, one when all have settled.

Usage: displays_test.py DISPLAY-NOTICES, the program that prints the notifications
"""

import queue
import subprocess
import sys
import threading
import unittest

import displays
import session

NOTICES = sys.argv.pop(1)


class Notices(displays.Displays):
    def setUp(self):
        super().setUp()
        self.watch()
        self.expect_now("0,0,1024,768*")

    def watch(self):
        lines = self.lines = queue.Queue()
        program = self.start([NOTICES], stdout=subprocess.PIPE)
        threading.Thread(target=lambda: [lines.put(line.split()) for line in program.stdout],
                         daemon=True).start()

    def expect_now(self, *bounds):
        what, *places = self.lines.get(timeout=session.PATIENCE)
        self.assertEqual((what, sorted(places)), ("now", sorted(bounds)))

    def expect_change(self, *bounds):
        """Expects one change: it begins once, ends once, and then all displays have these
        bounds."""
        self.assertEqual(self.lines.get(timeout=session.PATIENCE)[0], "begin")
        what, *places = self.lines.get(timeout=session.PATIENCE)
        self.assertEqual((what, sorted(places)), ("end", sorted(bounds)))

    def test_the_end_is_told_when_all_displays_have_come_to_rest(self):
        # To the right: nothing else moves.
        self.plug(1, "800x600", "1024x0")
        self.expect_change("0,0,1024,768*", "1024,0,800,600")
        # To the left: the main display moves, and the origin with it.
        self.run_program("xrandr", "--addmode", "DUMMY2", "640x480")
        self.xrandr("--output", "DUMMY2", "--mode", "640x480", "--pos", "0x0",
                    "--output", "DUMMY0", "--pos", "640x0", "--output", "DUMMY1", "--pos", "1664x0")
        self.expect_change("-640,0,640,480", "0,0,1024,768*", "1024,0,800,600")
        # Another becomes the main one, with a gap below it and above the others.
        self.xrandr("--output", "DUMMY1", "--primary", "--pos", "700x900")
        self.expect_change("-700,-900,640,480", "-60,-900,1024,768", "0,0,800,600*")
        # Disconnect the main one.
        self.xrandr("--output", "DUMMY1", "--off", "--output", "DUMMY0", "--primary")
        self.expect_change("-640,0,640,480", "0,0,1024,768*")
        # Upright, as if rotated; this X server cannot rotate displays.
        self.xrandr("--newmode", "upright", *"25 480 496 544 640 640 650 652 680".split())
        self.plug(2, "upright", "0x0")
        self.expect_change("-640,0,480,640", "0,0,1024,768*")
        self.assertTrue(self.lines.empty())

    def test_displays_side_by_side_touch_however_they_are_scaled(self):
        self.run_program("xrandr", "--newmode", "odd", *(
            "85.5 1366 1436 1579 1792 768 771 774 798").split())
        self.plug(1, "800x600", "1024x0")
        self.plug(2, "odd", "0x768")
        for settings in ({"QT_SCALE_FACTOR": "1.25"}, {"QT_SCALE_FACTOR": "1.5"},
                         {"QT_SCALE_FACTOR": "1.75"}, {"QT_SCALE_FACTOR": "2"},
                         {"QT_SCREEN_SCALE_FACTORS": "DUMMY0=1;DUMMY1=2;DUMMY2=1.25;"},
                         {"QT_SCREEN_SCALE_FACTORS": "DUMMY0=2;DUMMY1=1;DUMMY2=1.5;",
                          "QT_AUTO_SCREEN_SCALE_FACTOR": "0"},
                         {"QT_SCREEN_SCALE_FACTORS": "1.25;1.5;2"}, {"QT_FONT_DPI": "144"},
                         {"QT_SCALE_FACTOR": "1.25", "QT_SCREEN_SCALE_FACTORS": "DUMMY1=2"}):
            with self.subTest(**settings):
                before = self.env
                self.env = {**before, **settings}
                self.watch()
                self.env = before
                self.expect_now("0,0,1024,768*", "1024,0,800,600", "0,768,1366,768")


if __name__ == "__main__":
    unittest.main()
