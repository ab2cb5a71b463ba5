# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The panel on a Wayland desktop with two displays: a calibration on the second one, the signs that
tell which display is which, and scaled displays."""

import plistlib
import struct
import subprocess
import unittest

import session
import wayland

BLACK = (0, 0, 0)
# The crosses stand 50 points in: 1180 and 620 points of 1280 by 720 apart, here ten units each.
TAPS = ((1000, 2000), (12800, 2000), (12800, 8200), (1000, 8200))
CROSSES = ((50, 50), (1230, 50), (1230, 670), (50, 670))
AREA = (500, 13300, 1500, 8700)


def is_yellow(pixel):
    """Returns whether a pixel is yellow with 70 % opacity on black."""
    return all(abs(part - wanted) < 6 for part, wanted in zip(pixel, (178, 178, 0)))


def is_red(pixel):
    return pixel[0] > 170 and pixel[1] < 90 and pixel[2] < 40


class WaylandCalibration(wayland.Wayland):
    def setUp(self):
        super().setUp()
        self.start_driver()
        settings = plistlib.loads(self.config().read_bytes())
        settings["Monitor"]["num"] = 2
        self.config().write_bytes(plistlib.dumps(settings))
        self.start([session.BIN / "qvtblt"])

    def crosses(self):
        """Returns the numbers of the crosses on the second display."""
        pixel = self.pixels(1)
        return [number for number, (x, y) in enumerate(CROSSES)
                if any(is_red(pixel(x + 15, y + i)) for i in (-1, 0))
                and any(is_red(pixel(x + i, y + 15)) for i in (-1, 0))]

    def check_opacity(self):
        """Looks between the crosses and beside each of them, where the window is drawn again."""
        pixel = self.pixels(1)
        for x in (0, 40, 640, 1240, 1279):
            for y in (0, 10, 40, 600, 660, 719):
                self.assertTrue(is_yellow(pixel(x, y)), (x, y, pixel(x, y)))

    def test_it_covers_the_chosen_display_and_runs_to_its_end(self):
        self.press("qvtblt", "Display", "page tab")
        self.press("qvtblt", "Calibrate…", "push button")
        session.wait_for(lambda: self.crosses() == [0], "the first cross")
        self.check_opacity()
        first = self.pixels(0)
        self.assertFalse(any(is_yellow(first(x, y))
                             for x in range(0, 1280, 10) for y in range(0, 720, 10)))

        for number, (x, y) in enumerate(TAPS):
            session.wait_for(lambda number=number: self.crosses() == [number], f"cross {number}")
            self.check_opacity()
            result = self.ctl("sim", "tap", x, y)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        self.press("qvtblt", "OK", "push button")
        session.wait_for(lambda: self.pixels(1)(640, 600) == BLACK, "the window's end")
        self.assertEqual(struct.unpack_from("<4h", self.record(), 295), (1280, 1280, 0, 720))
        self.assertEqual(struct.unpack_from("<4H", self.record(), 303), AREA)
        self.assertEqual(struct.unpack_from("<h", self.record(), 293), (0,))


class Signs(wayland.Wayland):
    """What the button that identifies the displays shows on them."""

    def empty_displays(self):
        """Returns the numbers of the displays that show nothing, once the panel is on one of them."""
        width, height = self.display_size()
        empty = []
        for display in (0, 1):
            pixel = self.pixels(display)
            if all(pixel(x, y) == BLACK for x in range(0, width, 8) for y in range(0, height, 8)):
                empty.append(display)
        return empty if len(empty) == 1 else None

    def differences(self, before):
        """Returns for each display the box of what differs: left, top, right and bottom."""
        boxes = []
        width, height = self.display_size()
        for display, then in enumerate(before):
            now = self.pixels(display)
            points = [(x, y) for x in range(0, width, 8) for y in range(0, height, 8)
                      if now(x, y) != then(x, y)]
            boxes.append(points and (min(x for x, _ in points), min(y for _, y in points),
                                     max(x for x, _ in points), max(y for _, y in points)))
        return boxes

    def check_signs(self, **settings):
        driver = self.start_driver()
        before = self.env
        self.env = {**before, **settings}
        panel = self.start([session.BIN / "qvtblt"])
        self.env = before
        self.press("qvtblt", "Display", "page tab")
        self.find("qvtblt", "Identify displays", "push button")
        # Where the panel appears is up to the compositor.
        (empty,) = session.wait_for(self.empty_displays, "the panel on one display")
        pictures = [self.pixels(0), self.pixels(1)]
        said, boxes = self.identify_displays(
            lambda: all(boxes := self.differences(pictures))
            and len(said := self.signs_said()) == 2 and (said, boxes), "the signs")
        # On the other display, there is nothing but the sign, in its middle.
        left, top, right, bottom = boxes[empty]
        width, height = self.display_size()
        self.assertLess(abs(left + right - width), 32)
        self.assertLess(abs(top + bottom - height), 32)
        self.assertGreater(bottom - top, 200)
        self.assertEqual({words[:len("Display #1:")] for words in said},
                         {"Display #1:", "Display #2:"})
        for words in said:
            self.assertIn(f"{width} × {height} pixels", words)
        session.wait_for(lambda: not self.differences(pictures)[empty], "their end")
        panel.terminate()
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)
        self.stop_driver(driver)

    def test_each_display_has_one_for_three_seconds(self):
        for settings in ({}, {"QT_SCALE_FACTOR": "1.5"}):
            with self.subTest(**settings):
                self.check_signs(**settings)


class ScaledSigns(Signs):
    SCREEN = "3840x1080x24"
    SCALE = 1.5


class ScaledByTheToolkit(wayland.Wayland):
    def test_the_second_display_is_as_large_as_to_the_compositor(self):
        scales = [{"QT_SCALE_FACTOR": "1.5"}]
        # On a busy machine, Qt 5 hears of the second display after it has applied these.
        linked = subprocess.run(["ldd", session.BIN / "qvtblt"], check=True, capture_output=True)
        if b"libQt5" not in linked.stdout:
            scales += [{"QT_SCREEN_SCALE_FACTORS": "1;2"},
                       {"QT_SCREEN_SCALE_FACTORS": "X11-1=1.25"}]
        for settings in scales:
            with self.subTest(**settings):
                driver = self.start_driver()
                config = plistlib.loads(self.config().read_bytes())
                config["Monitor"]["num"] = 2
                self.config().write_bytes(plistlib.dumps(config))
                before = self.env
                self.env = {**before, **settings}
                panel = self.start([session.BIN / "qvtblt"])
                self.env = before
                self.press("qvtblt", "Display", "page tab")
                self.find("qvtblt", "Display #2", "combo box")  # the page has been drawn
                self.press("qvtblt", "Keep proportions", "push button")
                session.wait_for(lambda: self.record() and struct.unpack_from(
                    "<4h", self.record(), 295) == (1280, 1280, 0, 720), "the area")
                panel.terminate()
                self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)
                self.stop_driver(driver)


if __name__ == "__main__":
    unittest.main()
