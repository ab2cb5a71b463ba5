# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The simulated tablet's window, under a window manager, by mouse and by keyboard."""

import json
import pathlib
import re
import struct
import subprocess
import unittest

import desktop
import displays
import models
import session

PANEL = pathlib.Path(session.__file__).with_name("peer_panel.py")
PROGRAM = "tdsg-driver"
MARGIN = 3  # around the surface, in its widget
WIDTH, HEIGHT = 20320, 12700  # of the first model's surface, in tablet units
UNKNOWN = "unknown until the panel sends its settings"


def surface_rect(widget):
    """Returns left, top and size of the surface on the screen, as large as its proportions
    allow."""
    width, height = widget["width"] - 2 * MARGIN, widget["height"] - 2 * MARGIN
    scale = min(width / WIDTH, height / HEIGHT)
    return (widget["x"] + MARGIN + (width - WIDTH * scale) / 2,
            widget["y"] + MARGIN + (height - HEIGHT * scale) / 2, WIDTH * scale, HEIGHT * scale)


class Tablet:
    """Operates the window by mouse and keyboard."""

    def open_tablet(self, *arguments):
        self.driver = self.start_driver("--window", *arguments)
        self.window = session.wait_for(
            lambda: self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                     "Virtual tablet").stdout.split(), "the window")[0]
        self.xdotool("windowactivate", "--sync", self.window)

    def place(self, across, down):
        """Returns the screen position of a point of the surface, given as fractions."""
        left, top, width, height = surface_rect(self.find(PROGRAM, "Surface"))
        return round(left + across * width), round(top + down * height)

    def units(self, x, y):
        """Returns the tablet units of a screen position."""
        left, top, width, height = surface_rect(self.find(PROGRAM, "Surface"))
        return round((x - left) / width * WIDTH), round((y - top) / height * HEIGHT)

    def said(self, pattern):
        """Waits for a line from the driver, and returns the match."""
        while True:
            line = session.read_line(self.driver.stdout, f"the driver's line {pattern}")
            match = re.fullmatch(pattern, line)
            if match:
                return match

    def said_pen(self, what):
        """Waits until the driver reports the pen as down or up, and returns the point."""
        return tuple(map(int, self.said(rf"pen {what} at (\d+), (\d+)").groups()))

    def labels(self):
        return [thing["name"] for thing in self.things(PROGRAM)
                if thing["role"] == "label" and thing["showing"]]

    def wait_for_label(self, text):
        session.wait_for(lambda: text in self.labels(), f"the label '{text}'")

    def assert_near(self, points, expected):
        """Checks that the points are equal, except for the rounding of pixel positions."""
        for one, other in zip(points, expected, strict=True):
            self.assertAlmostEqual(one, other, delta=2)

    def press(self, x, y):
        self.xdotool("mousemove", x, y, "mousedown", 1)

    def release(self):
        self.xdotool("mouseup", 1)


class CalibrationByHand(Tablet, displays.Displays):
    LIST = "The part of the desktop that the pen reaches."

    def value(self, format, offset):
        return struct.unpack_from(format, self.record(), offset)

    def start_calibration(self, item):
        self.start([session.BIN / "qvtblt"])
        self.click(self.find("qvtblt", "Display", "page tab"))
        if item:
            self.click(self.find("qvtblt", self.LIST, "combo box"))
            self.xdotool("key", "Home", *["Down"] * item, "Return")
        # Beside the panel's controls, so that neither covers the other.
        self.xdotool("windowmove", "--sync", self.window, 390, 150)
        button = self.find("qvtblt", "Calibrate…", "push button")
        panel = self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                 "^Quorvia Tablet$").stdout.split()[0]
        self.xdotool("windowactivate", "--sync", panel)
        self.click(button)
        self.find("qvtblt", "Calibration")
        self.wait_for_label("calibrating: it gets pen reports")

    def is_open(self):
        return any(thing["name"] == "Calibration" and thing["showing"]
                   for thing in self.things("qvtblt"))

    def test_fits_the_tablet_to_the_second_display(self):
        self.plug(1, "800x600", "1024x0")
        self.open_tablet()
        self.start_calibration(2)
        self.xdotool("windowactivate", "--sync", self.window)
        points = []
        for across, down in ((0.1, 0.2), (0.8, 0.21), (0.81, 0.7), (0.12, 0.72)):
            x, y = self.place(across, down)
            self.assertLess(x, 1024)
            self.press(x, y)
            self.assert_near(self.said_pen("down"), self.units(x, y))
            self.release()
            points.append(self.said_pen("up"))
            self.assertTrue(self.is_open())
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        # The crosses stand 50 points in: 700 and 500 points of 800 by 600 apart.
        (x0, y0), (x1, y1), (x2, y2), (x3, y3) = points
        left, right, top, bottom = (x0 + x3) // 2, (x1 + x2) // 2, (y0 + y1) // 2, (y2 + y3) // 2
        across, down = (right - left) * 50 / 700, (bottom - top) * 50 / 500
        area = (max(int(left - across), 0), int(right + across),
                max(int(top - down), 0), int(bottom + down))
        self.assertEqual(self.value("<h4h", 293)[0], 0)
        self.assertEqual(self.value("<4h", 295), (1024, 800, 0, 600))
        self.assertEqual(self.value("<4H", 303), area)
        self.click(self.find("qvtblt", "OK", "push button"))
        session.wait_for(lambda: not self.is_open(), "the window's end")
        self.assertEqual(self.value("<4H", 303), area)
        self.wait_for_label("not calibrating: it gets no pen reports")
        self.wait_for_label("the part that covers the screen, x {} to {}, y {} to {}".format(*area))

    def test_the_tablet_can_be_reached_above_a_calibration_of_the_only_display(self):
        self.open_tablet()
        self.start_calibration(0)
        # As a task bar does, or Alt+Tab.
        self.xdotool("windowactivate", "--sync", self.window)
        self.press(*self.place(0.3, 0.3))
        down = self.said_pen("down")
        self.release()
        self.assertEqual(self.said_pen("up"), down)
        self.assertTrue(self.is_open())


class VirtualTablet(Tablet, desktop.Desktop):
    def start_panel(self):
        panel = self.start(["/usr/bin/python3", "-B", PANEL], stdin=subprocess.PIPE,
                           stdout=subprocess.PIPE)
        for expected in ("pushed", "calibrating"):
            self.assertEqual(session.read_line(panel.stdout, expected).split()[0], expected)
        return panel

    @staticmethod
    def report(panel):
        """Returns the next report that the panel gets: key, x, y."""
        return tuple(map(int, session.read_line(panel.stdout, "a report").split()[:3]))

    def reports_until(self, panel, last):
        """Returns the reports up to that one."""
        reports = [self.report(panel)]
        while reports[-1] != last:
            reports.append(self.report(panel))
        return reports

    def buttons(self):
        return [thing["name"] for thing in self.things(PROGRAM)
                if thing["role"] == "push button" and thing["showing"]]

    def test_shows_the_tablet_and_what_the_panel_does(self):
        self.open_tablet()
        self.find(PROGRAM, "Virtual tablet: Quorvia Draft S")
        self.wait_for_label("not calibrating: it gets no pen reports")
        self.wait_for_label(UNKNOWN)
        self.ctl("set", "Monitor/cTabletXmin", "1234")
        self.wait_for_label(f"the part that covers the screen, x 1234 to {WIDTH}, y 0 to {HEIGHT}")
        x, y = self.place(0.25, 0.5)
        self.xdotool("mousemove", x, y)
        x, y = self.units(x, y)
        session.wait_for(
            lambda: any(f"up at {a}, {b}" in self.labels()
                        for a in range(x - 2, x + 3) for b in range(y - 2, y + 3)), "the pen")
        self.start_panel()
        self.wait_for_label("calibrating: it gets pen reports")

    def test_everything_that_takes_the_focus_has_a_name(self):
        self.open_tablet()
        things = []

        def has_all():
            things[:] = [thing for thing in self.things(PROGRAM)
                         if thing["focusable"] and thing["showing"] and thing["role"] != "filler"]
            # Eight keys, the strip, the pen's two, the models, the surface.
            return len(things) == 13
        session.wait_for(has_all, "thirteen things that take the focus")
        for thing in things:
            self.assertTrue(thing["name"] and (thing["description"] or thing["role"] != "combo box"))
        surface = self.find(PROGRAM, "Surface")
        self.assertIn("space bar", surface["description"])
        session.wait_for(lambda: self.find(PROGRAM, "Surface")["focused"], "the focus")

    def test_has_the_keys_of_each_layout(self):
        self.open_tablet("none")
        pen = ["Upper pen button", "Lower pen button"]
        for model in models.of_each_layout():
            with self.subTest(model.name):
                self.simulator("Attach", "q", str(model.product))
                expected = [f"Key {key + 1}" for key in range(model.keys)] + pen[:model.pen_buttons]
                expected += ["Left scroll strip"] * model.strips
                session.wait_for(lambda: sorted(self.buttons()) == sorted(expected), expected)

    def test_tells_what_a_key_does(self):
        self.open_tablet()
        self.click(self.find(PROGRAM, "Key 3"))
        self.wait_for_label(f"Key 3: {UNKNOWN}")
        self.ctl("set", "Key/Key2/Valid", "4")
        for name, does in (("Key 3", "Go to the next display"), ("Key 4", "No action"),
                           ("Left scroll strip", "Scroll at speed 5"),
                           ("Lower pen button", "Middle mouse button")):
            self.click(self.find(PROGRAM, name))
            self.wait_for_label(f"{name}: {does}")

    def test_a_long_path_leaves_the_window_as_wide_as_it_is(self):
        self.open_tablet()
        width = self.find(PROGRAM, "Virtual tablet: Quorvia Draft S")["width"]
        path = 255 * "W"
        self.ctl("set", "Key/Key2/App", path)
        self.ctl("set", "Key/Key2/Valid", "2")
        for name, does in (("Key 3", f"Open {path}"), ("Key 4", "No action")):
            self.click(self.find(PROGRAM, name))
            self.wait_for_label(f"{name}: {does}")
        self.assertEqual(self.find(PROGRAM, "Virtual tablet: Quorvia Draft S")["width"], width)

    def test_reports_a_press_a_drag_and_a_lift(self):
        self.open_tablet()
        panel = self.start_panel()
        self.press(*self.place(0.2, 0.3))
        first = self.said_pen("down")
        self.xdotool("mousemove", *self.place(0.5, 0.6), "mousemove", *self.place(0.7, 0.8))
        self.release()
        last = self.said_pen("up")
        self.assert_near(last, self.units(*self.place(0.7, 0.8)))
        reports = self.reports_until(panel, (0, *last))
        self.assertEqual(reports[0], (1, *first))
        self.assertEqual(reports[-2], (1, *last))
        self.assertEqual({key for key, *_ in reports[:-1]}, {1})

    def test_a_pen_that_is_held_still_goes_on_reporting(self):
        self.open_tablet()
        panel = self.start_panel()
        self.press(*self.place(0.2, 0.3))
        point = self.said_pen("down")
        for _ in range(50):
            self.assertEqual(self.report(panel), (1, *point))
        self.release()
        rest = self.reports_until(panel, (0, *point))
        self.assertLessEqual(set(rest[:-1]), {(1, *point)})

    def test_reports_nothing_while_no_panel_asks(self):
        self.open_tablet()
        self.press(*self.place(0.2, 0.3))
        self.release()
        panel = self.start_panel()
        self.ctl("sim", "tap", 7, 8)
        self.assertEqual(self.reports_until(panel, (0, 7, 8)), [(1, 7, 8)] * 5 + [(0, 7, 8)])
        self.wait_for_label("up at 7, 8")

    def test_a_panel_that_begins_to_ask_hears_of_the_pen_that_is_down(self):
        self.open_tablet()
        x, y = self.place(0.2, 0.3)
        self.press(x, y)
        panel = self.start_panel()
        key, *point = self.report(panel)
        self.assertEqual(key, 1)
        self.assert_near(point, self.units(x, y))
        self.release()
        self.reports_until(panel, (0, *point))

    def test_a_tablet_that_is_detached_while_it_is_pressed_reports_no_lift(self):
        self.open_tablet()
        panel = self.start_panel()
        self.press(*self.place(0.2, 0.3))
        point = self.said_pen("down")
        self.simulator("Detach")
        self.wait_for_label("No tablet is attached. Choose one above.")
        self.find(PROGRAM, "Virtual tablet")
        self.assertEqual(self.buttons(), [])
        self.release()
        self.simulator("Attach", "q", str(0x5101))
        self.find(PROGRAM, "Surface")
        self.wait_for_label("not calibrating: it gets no pen reports")
        panel.stdin.write("push 1\n")  # only the panel knows that it is still calibrating
        panel.stdin.flush()
        before = []
        while not before or before[-1][0] != "pushed":
            before.append(session.read_line(panel.stdout, "the push").split())
        self.assertEqual({tuple(map(int, report[:3])) for report in before[:-1]}, {(1, *point)})
        self.ctl("sim", "tap", 7, 8)
        self.assertEqual(self.reports_until(panel, (0, 7, 8)), [(1, 7, 8)] * 5 + [(0, 7, 8)])

    def test_the_keyboard_alone_does_it(self):
        self.open_tablet()
        panel = self.start_panel()
        self.xdotool("mousemove", 1, 1)  # away from the surface
        self.xdotool("key", "Left", "shift+Up", "keydown", "space", "key", "Right", "keyup", "space")
        middle, step = (WIDTH // 2, HEIGHT // 2), WIDTH // 100
        start = (middle[0] - step, middle[1] - 10 * step)
        reports = self.reports_until(panel, (0, start[0] + step, start[1]))
        self.assertEqual(reports[0], (1, *start))
        self.assertEqual(self.said_pen("down"), start)
        # To the list of the tablets, and from there to the next one.
        self.xdotool("key", "alt+t", "Down")
        session.wait_for(lambda: self.simulator("Attached") == ["q", str(0x5102)], "the tablet")
        self.find(PROGRAM, "Virtual tablet: Quorvia Draft M")
        self.xdotool("key", "Home")
        session.wait_for(lambda: self.simulator("Attached") == ["q", "0"], "no tablet")
        self.wait_for_label("No tablet is attached. Choose one above.")

    def test_says_why_a_tablet_cannot_be_attached(self):
        self.open_tablet("none")
        (self.home / "Library").write_text("in the way")
        self.xdotool("key", "alt+t", "Down")
        session.wait_for(
            lambda: any("cannot create the folder" in label for label in self.labels()), "the reason")
        self.find(PROGRAM, "No tablet", "combo box")

    def test_closing_it_ends_the_driver_and_saves(self):
        self.open_tablet("20739")
        self.ctl("set", "Pen/Speed", "9")
        self.close_window("Virtual tablet")
        rest, _ = self.driver.communicate(timeout=session.PATIENCE)
        self.assertEqual((self.driver.returncode, rest.splitlines()[-1]), (0, "ended"))
        state = json.loads((self.home / ".local/state/tdsg-driver/state.json").read_text())
        self.assertEqual((state["attached"], state["pushes"]), (20739, 1))

    def test_a_signal_ends_it_too(self):
        self.open_tablet()
        self.assertEqual(self.stop_driver(self.driver)[-1], "ended")
        self.assertEqual(self.driver.returncode, 0)


class WithoutDisplay(session.Session):
    def test_a_window_needs_a_display(self):
        for display in (None, ":987"):
            with self.subTest(display):
                if display:
                    self.env["DISPLAY"] = display
                result = self.run_program(session.BIN / PROGRAM, "--window")
                self.assertEqual((result.returncode, result.stdout), (1, ""))
                self.assertEqual(result.stderr.splitlines()[-1],
                                 "tdsg-driver: there is no display to open a window on")
                self.assertEqual(list(self.home.iterdir()), [])

    def test_what_is_only_printed_needs_none(self):
        for words in (("--window", "--help"), ("--list", "--window")):
            result = self.run_program(session.BIN / PROGRAM, *words)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertTrue(result.stdout)


if __name__ == "__main__":
    unittest.main()
