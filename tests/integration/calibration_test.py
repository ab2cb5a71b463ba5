# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Complete calibrations: a real display beside the main one, the real driver, scripted taps."""

import plistlib
import signal
import struct
import subprocess
import time
import unittest

import displays
import session

TITLE = "Quorvia Tablet"
LIST = "The part of the desktop that the pen reaches."
# The crosses stand 50 points in: 700 and 500 points of 800 by 600 apart, here ten units each.
TAPS = ((1000, 2000), (8000, 2000), (8000, 7000), (1000, 7000))
AREA = (500, 8500, 1500, 7500)


class Calibration(displays.Displays):
    def setUp(self):
        super().setUp()
        self.plug(1, "800x600", "1024x0")
        self.driver = self.start_driver()
        self.panel = self.start([session.BIN / "qvtblt"])
        self.press("qvtblt", "Display", "page tab")
        box = self.find("qvtblt", LIST, "combo box")
        self.click(box)
        self.xdotool("key", "End", "Return")
        session.wait_for(lambda: self.record() and self.mapped() == (1024, 0, 800, 600), "the list")
        self.press_calibrate()

    def press_calibrate(self):
        self.press("qvtblt", "Calibrate…", "push button")
        self.find("qvtblt", "Calibration", showing=True)
        self.wait_for_flag(1)
        self.taken = 0
        self.wait_for_crosses([0])

    def mapped(self):
        left, width, top, height = struct.unpack_from("<4h", self.record(), 295)
        return left, top, width, height

    def flag(self):
        return struct.unpack_from("<h", self.record(), 293)[0]

    def wait_for_flag(self, flag):
        session.wait_for(lambda: self.flag() == flag, f"disableFlag {flag}")

    def area(self):
        return struct.unpack_from("<4H", self.record(), 303)

    def tap(self, points):
        """Touches points that each count for a cross. After the fourth, the panel asks something."""
        for x, y in points:
            self.touch(x, y)
            self.taken = (self.taken + 1) % 4
            if self.taken:
                self.wait_for_crosses([self.taken])

    def touch(self, x, y):
        result = self.ctl("sim", "tap", x, y)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def is_open(self):
        return any(thing["name"] == "Calibration" and thing["showing"]
                   for thing in self.things("qvtblt"))

    def accept(self):
        """Checks after four touches that the driver has the area before the user has agreed."""
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        self.assertEqual((self.flag(), self.area()), (0, AREA))
        self.xdotool("key", "Return")
        session.wait_for(lambda: not self.is_open(), "the window's end")
        self.assertEqual((self.flag(), self.area()), (0, AREA))

    def crosses(self):
        """Returns the numbers of the crosses that are visible on the display."""
        pixels = subprocess.run(
            ["import", "-window", "root", "-crop", "800x600+1024+0", "-depth", "8", "rgb:-"],
            env=self.env, capture_output=True, check=True).stdout

        def is_drawn(x, y):
            red, green, blue = pixels[3 * (800 * y + x):][:3]
            return red > 200 and green < 160 and blue < 80
        return [number for number, (x, y) in enumerate(((50, 50), (750, 50), (750, 550), (50, 550)))
                if is_drawn(x + 15, y) and is_drawn(x, y + 15) and not is_drawn(x + 15, y + 5)]

    def wait_for_crosses(self, numbers):
        session.wait_for(lambda: self.crosses() == numbers, f"crosses {numbers}")

    def test_four_taps_fit_the_tablet_to_the_second_display(self):
        window = self.find("qvtblt", "Calibration")
        self.assertEqual((window["x"], window["y"], window["width"], window["height"]),
                         (1024, 0, 800, 600))
        self.tap(TAPS)
        self.accept()
        self.assertNotEqual(self.ctl("sim", "tap", 1, 1).returncode, 0)

    def test_cancelled_and_accepted_at_the_second_pass(self):
        before = self.area()
        self.tap(TAPS)
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        self.xdotool("key", "Escape")
        self.wait_for_flag(1)
        self.assertEqual(self.area(), before)
        self.tap(TAPS)
        self.accept()

    def test_another_order_begins_again(self):
        before = self.area()
        self.tap((TAPS[1], TAPS[0], TAPS[3], TAPS[2]))
        self.find("qvtblt", "The crosses were not touched in order. "
                            "Please start again with the first one.")
        self.xdotool("key", "Return")
        self.wait_for_flag(1)
        self.assertEqual(self.area(), before)
        self.assertTrue(self.is_open())

    def test_escape_ends_it_at_each_cross(self):
        # In an order in which no calibration begins near where the last one ended.
        for taken in (0, 2, 3, 1):
            self.tap(TAPS[:taken])
            self.wait_for_crosses([taken])
            self.xdotool("key", "Escape")
            self.wait_for_flag(0)
            session.wait_for(lambda: not self.is_open(), "the window's end")
            self.press_calibrate()

    def test_a_touch_near_the_last_one_does_not_count(self):
        self.tap(TAPS[:1])
        self.touch(1100, 2899)  # x + y differs by 999
        self.wait_for_crosses([1])
        self.tap(TAPS[1:])
        self.accept()

    def test_the_keys_s_and_e_only_draw(self):
        self.tap(TAPS[:2])
        self.wait_for_crosses([2])
        self.xdotool("key", "s")
        self.wait_for_crosses([0])
        self.xdotool("key", "e")
        self.wait_for_crosses([])
        self.tap(TAPS[2:3])
        self.wait_for_crosses([3])
        self.xdotool("key", "e", "s")
        self.wait_for_crosses([0])
        self.tap(TAPS[3:])
        self.accept()

    def test_closing_the_panel_frees_the_driver(self):
        self.tap(TAPS[:1])
        self.close_window(TITLE)
        self.assertEqual(self.panel.wait(timeout=session.PATIENCE), 0)
        self.wait_for_flag(0)

    def test_a_panel_that_is_told_to_end_frees_the_driver(self):
        self.tap(TAPS[:1])
        self.panel.send_signal(signal.SIGTERM)
        self.assertEqual(self.panel.wait(timeout=session.PATIENCE), 0)
        self.wait_for_flag(0)

    def area_in_file(self):
        monitor = plistlib.loads(self.config().read_bytes())["Monitor"]
        return tuple(monitor[f"cTablet{edge}"] for edge in ("Xmin", "Xmax", "Ymin", "Ymax"))

    def expect_ended_as_before(self, before):
        self.panel.send_signal(signal.SIGTERM)
        self.assertEqual(self.panel.wait(timeout=session.PATIENCE), 0)
        session.wait_for(lambda: (self.flag(), self.area()) == (0, before), "the last push")
        self.assertEqual(self.area_in_file(), before)
        self.assertEqual(plistlib.loads(self.config().read_bytes())["Monitor"]["disableFlag"], 0)

    def test_a_panel_told_to_end_while_it_asks_keeps_the_area_from_before(self):
        before = self.area()
        self.assertNotEqual(before, AREA)
        self.tap(TAPS)
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        self.assertEqual(self.area(), AREA)
        self.expect_ended_as_before(before)

    def test_a_panel_told_to_end_while_it_says_what_was_wrong_frees_the_driver(self):
        before = self.area()
        self.tap((TAPS[1], TAPS[0], TAPS[3], TAPS[2]))
        self.find("qvtblt", "The crosses were not touched in order. "
                            "Please start again with the first one.")
        self.expect_ended_as_before(before)

    def test_a_caps_lock_that_is_escape_ends_it(self):
        result = self.run_program("setxkbmap", "-option", "caps:escape")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.xdotool("key", "66")  # the position of Caps Lock
        self.wait_for_flag(0)
        session.wait_for(lambda: not self.is_open(), "the window's end")

    def test_a_driver_that_dies_and_comes_back_can_be_calibrated_anew(self):
        self.tap(TAPS[:2])
        self.stop_driver(self.driver, signal.SIGKILL)
        self.driver = self.start_driver()
        # The new driver does not know of a calibration.
        self.assertNotEqual(self.ctl("sim", "tap", *TAPS[2]).returncode, 0)
        self.xdotool("key", "Escape")
        session.wait_for(lambda: not self.is_open(), "the window's end")
        self.press_calibrate()
        self.tap(TAPS)
        self.accept()


if __name__ == "__main__":
    unittest.main()
