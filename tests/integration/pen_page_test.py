# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The pen page in use: the slider bends the curve, and the pad shows strokes at once."""

import struct
import unittest

import desktop
import displays
import pens
import session

BLACK, GREY, WHITE = "#000000", "#C0C0C0", "#FFFFFF"


class Panel:
    """The panel with its pen page open, and the positions of its controls."""

    def setUp(self):
        super().setUp()
        self.open_panel()

    def open_panel(self):
        self.start_driver()
        self.start([session.BIN / "qvtblt"])
        self.press("qvtblt", "Pen", "page tab")
        self.pad = session.wait_for(self.drawn_pad, "the pad")
        self.curve = self.find("qvtblt", "Pressure curve")
        self.slider = self.find("qvtblt", "Pressure, from light to heavy", "slider")

    def drawn_pad(self):
        """The pad once it is on the screen where it says it is: a page that has just been shown may
        still be laid out, which moves the pad and wipes it."""
        pad = self.find("qvtblt", "Drawing pad")
        row = self.pixels(pad["x"], pad["y"] + 60, 61, 1)
        return pad if (row[0], row[60]) == (BLACK, GREY) else None

    def on_pad(self, x, y):
        return self.pad["x"] + x, self.pad["y"] + y

    def press_on_pad(self, *places):
        """Presses at the first position and drags to the others; the button stays down."""
        self.xdotool("mousemove", *self.on_pad(*places[0]), "mousedown", 1)
        for place in places[1:]:
            self.xdotool("mousemove", *self.on_pad(*place))

    def wait_for_pixel(self, place, colour):
        session.wait_for(lambda: self.pixel(*place) == colour, f"{colour} at {place}")


class PenPage(Panel, desktop.Desktop):
    def threshold(self):
        return struct.unpack_from("<h", self.record(), 283)[0]

    def test_a_stroke_appears_while_the_button_is_down_and_clear_wipes_it(self):
        self.wait_for_pixel(self.on_pad(60, 60), GREY)
        self.press_on_pad((20, 60), (30, 60), (100, 60))
        self.wait_for_pixel(self.on_pad(60, 60), BLACK)
        self.xdotool("mouseup", 1)
        self.press("qvtblt", "Clear", "push button")
        self.wait_for_pixel(self.on_pad(60, 60), GREY)
        self.wait_for_pixel(self.on_pad(0, 60), BLACK)  # the frame

    def test_a_stroke_that_leaves_the_pad_ends_with_its_release(self):
        self.press_on_pad((20, 60), (40, 60), (-30, 60))
        self.xdotool("mouseup", 1)
        self.xdotool("mousemove", *self.on_pad(100, 150))
        self.press_on_pad((100, 150), (150, 150))
        self.wait_for_pixel(self.on_pad(125, 150), BLACK)
        self.assertEqual(self.pixel(*self.on_pad(60, 105)), GREY)

    def test_a_stroke_outlives_another_window_above_it(self):
        self.press_on_pad((20, 60), (30, 60), (100, 60))
        self.xdotool("mouseup", 1)
        self.wait_for_pixel(self.on_pad(60, 60), BLACK)
        other = self.start(["xmessage", "-title", "above", "-geometry", "300x300", "above"])
        window = session.wait_for(
            lambda: self.run_program("xdotool", "search", "--name", "^above$").stdout.split(),
            "the window above")[0]
        self.xdotool("windowmove", window, *self.on_pad(-20, -20))
        self.wait_for_pixel(self.on_pad(60, 90), WHITE)
        other.kill()
        self.wait_for_pixel(self.on_pad(60, 60), BLACK)

    def drag_slider(self):
        """Drags from one end to the other in steps, and returns the driver's threshold after
        each."""
        left, right = self.slider["x"] + 8, self.slider["x"] + self.slider["width"] - 8
        middle = self.slider["y"] + self.slider["height"] // 3
        self.xdotool("mousemove", (left + right) // 2, middle, "mousedown", 1)
        for x in [left - 40, *range(left, right, 3), right + 40]:
            self.xdotool("mousemove", x, middle)
            yield
        self.xdotool("mouseup", 1)

    def test_the_slider_pushes_every_value_and_bends_the_curve(self):
        # At a quarter of the width, only the curve is black.
        x, y, height = self.curve["x"], self.curve["y"], self.curve["height"]
        quarter = self.curve["width"] // 4

        def curve_at_quarter():
            column = self.pixels(x + quarter, y + 2, 1, height - 4)
            rows = [row for row, colour in enumerate(column, 2) if colour < "#606060"]
            return height - sum(rows) / len(rows) if rows else None

        pushes = [int(self.simulator("Pushes")[1])]
        thresholds = []
        for _ in self.drag_slider():
            session.wait_for(lambda: self.record(), "a push")
            thresholds.append(self.threshold())
            pushes.append(int(self.simulator("Pushes")[1]))
        session.wait_for(lambda: self.threshold() == 200, "the heavy end")
        self.assertIn(0, thresholds)
        self.assertEqual(sorted(thresholds[1:]), thresholds[1:])
        self.assertGreater(len(set(thresholds)), 20)
        self.assertGreater(pushes[-1] - pushes[0], 20)
        self.assertAlmostEqual(curve_at_quarter(), 9, delta=2)
        self.xdotool("key", "Home")
        session.wait_for(lambda: self.threshold() == 0, "the light end")
        self.assertAlmostEqual(curve_at_quarter(), 101, delta=3)

    def test_the_slider_stays_smooth_while_the_driver_hangs(self):
        self.simulator("Stall", "u", "60000")
        self.run_program("busctl", "--user", "--timeout=1", "call", session.DRIVER_NAME,
                         *session.EVENTS, "Send", "uua(u(uv))", "0", "0", "0")
        for _ in self.drag_slider():
            pass
        session.wait_for(
            lambda: self.find("qvtblt", "Pressure, from light to heavy", "slider")["value"] == 2000,
            "the slider's end")

    def test_the_keyboard_reaches_everything(self):
        self.xdotool("key", "alt+l")
        session.wait_for(
            lambda: self.find("qvtblt", "Pressure, from light to heavy", "slider")["focused"],
            "the slider")
        self.xdotool("key", "Home", "Right", "Page_Up")
        session.wait_for(lambda: self.record() and self.threshold() == 11, "eleven")
        self.xdotool("key", "alt+w")
        session.wait_for(
            lambda: not self.find("qvtblt", "Width follows pressure", "check box")["checked"],
            "the box")
        self.press_on_pad((20, 60), (30, 60))
        self.xdotool("mouseup", 1)
        self.wait_for_pixel(self.on_pad(25, 60), BLACK)
        self.xdotool("key", "alt+r")
        self.wait_for_pixel(self.on_pad(25, 60), GREY)


class AnotherScreen(Panel, displays.Displays):
    """With a second display of twice the pixel density."""

    def setUp(self):
        super(Panel, self).setUp()
        self.xrandr("--newmode", "large", *"173 1920 2048 2248 2576 1080 1083 1088 1120".split())
        self.plug(1, "large", "1024x0")
        self.env["QT_SCREEN_SCALE_FACTORS"] = "DUMMY1=2"
        self.open_panel()

    def test_a_stroke_goes_on_when_the_window_is_moved_to_another_screen(self):
        window = self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                  "^Quorvia Tablet$").stdout.split()[0]
        self.press_on_pad((20, 60), (30, 60), (100, 60))
        self.wait_for_pixel(self.on_pad(60, 60), BLACK)
        left, top = (int(line.split(":")[1]) for line in self.run_program(
            "xwininfo", "-id", window).stdout.splitlines() if "Absolute" in line)
        self.xdotool("windowmove", window, 1024, 0)
        # There, everything is twice as large; the drawn stroke is cleared, and continues.
        place = [1064 + 2 * (self.pad["x"] - left), 120 + 2 * (self.pad["y"] - top)]
        self.wait_for_pixel((place[0] + 10, place[1]), GREY)
        for step in (60, 70):  # above what the smaller window hides
            self.xdotool("mousemove", place[0] + step, place[1] + 30)
        self.wait_for_pixel((place[0] + 65, place[1] + 30), BLACK)
        self.xdotool("mouseup", 1)
        self.assertEqual(self.pixel(place[0] + 10, place[1]), GREY)


class RealPen(Panel, pens.Pens):
    """With a pen of the X server, with pressure and an eraser."""

    def line(self, pen, y, pressure):
        """Draws a line across the pad at one pressure, long enough to smooth it."""
        pen.stroke([(*self.on_pad(20 + step, y), pressure) for step in range(300)])

    def height_of_line(self, y):
        """Returns the height of a line near its end, in black pixels."""
        return self.pixels(*self.on_pad(300, y - 40), 1, 80).count(BLACK)

    def test_a_line_is_as_wide_as_the_pen_presses_and_the_eraser_wipes_it(self):
        pen = self.pen()
        self.line(pen, 60, 0.2)
        self.line(pen, 150, 0.8)
        self.find("qvtblt", "Pen", "label")
        session.wait_for(lambda: abs(self.height_of_line(60) - 10) <= 2, "a line of 10 points")
        session.wait_for(lambda: abs(self.height_of_line(150) - 40) <= 2, "a line of 40 points")
        self.line(self.pen("eraser"), 60, 0.5)
        self.find("qvtblt", "Eraser", "label")
        session.wait_for(lambda: self.height_of_line(60) == 0, "the eraser")
        self.assertAlmostEqual(self.height_of_line(150), 40, delta=2)


if __name__ == "__main__":
    unittest.main()
