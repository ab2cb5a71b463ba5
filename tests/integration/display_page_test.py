# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The display page while real displays are connected, disconnected, moved and rotated."""

import plistlib
import re
import struct
import subprocess
import time
import unittest

import displays
import session

LIST = "The part of the desktop that the pen reaches."


class Page(displays.Displays):
    def setUp(self):
        super().setUp()
        self.env.update(self.SETTINGS)
        self.start_driver()
        self.start([session.BIN / "qvtblt"])
        self.press("qvtblt", "Display", "page tab")
        self.find("qvtblt", LIST, "combo box")

    SETTINGS = {}

    def items(self):
        return [thing["name"] for thing in self.things("qvtblt", "--items-of", LIST)
                if thing["role"] == "list item"]

    def wait_for_items(self, count):
        names = ["Display #1"] if count == 1 else [
            "All displays", *(f"Display #{i + 1}" for i in range(count))]
        session.wait_for(lambda: self.items() == names, names)

    def mapped(self):
        """Returns left, top, width and height of the driver's mapped area; None before a push."""
        record = self.record()
        if not record:
            return None
        left, width, top, height = struct.unpack_from("<4h", record, 295)
        return left, top, width, height

    def choose(self, item):
        """Chooses an item of the list with the keyboard, by its index."""
        box = self.find("qvtblt", LIST, "combo box")
        self.click(box)
        self.xdotool("key", "Home", *["Down"] * item, "Return")

    def expect_mapped(self, item, area):
        self.choose(item)
        session.wait_for(lambda: self.mapped() == area, f"{area}, not {self.mapped()}")

    def miniatures_are(self, places):
        """Returns whether the magenta shapes on screen are these displays, in their proportions."""
        picture = subprocess.run(["import", "-window", "root", "-depth", "8", "ppm:-"],
                                 env=self.env, capture_output=True, check=True).stdout
        header, _, pixels = picture.partition(b"\n255\n")
        width = int(header.split()[1])
        magenta = set()
        at = pixels.find(b"\xff\x00\xff")
        while at >= 0:
            if at % 3 == 0:
                magenta.add((at // 3 % width, at // 3 // width))
            at = pixels.find(b"\xff\x00\xff", at + 1)
        if not magenta:
            return False
        # Their common corner; an edge may partly cover pixels.
        left = min(x for x, _ in magenta) - min(place[0] for place in places) / 15
        top = min(y for _, y in magenta) - min(place[1] for place in places) / 15
        rects = [(left + x / 15, top + y / 15, left + (x + w) / 15, top + (y + h) / 15)
                 for x, y, w, h in places]
        # Nothing reaches beyond them; lines and names may cover them.
        if any(not any(x0 - 2 <= x <= x1 + 2 and y0 - 2 <= y <= y1 + 2 for x0, y0, x1, y1 in rects)
               for x, y in magenta):
            return False
        return all(any((round(x + inX * i), round(y + inY * j)) in magenta
                       for i in range(2, 6) for j in range(2, 6))
                   for x0, y0, x1, y1 in rects
                   for x, inX in ((x0, 1), (x1, -1)) for y, inY in ((y0, 1), (y1, -1)))

    def expect_page(self, *places):
        """Expects these displays in the list, in any order, and in the picture. Each of them can be
        chosen, and all displays together give their bounding box."""
        self.wait_for_items(len(places))
        session.wait_for(lambda: self.miniatures_are(places), f"a picture of {places}")
        chosen = []
        for item in range(1 if len(places) > 1 else 0, len(places) + (len(places) > 1)):
            before = self.simulator("Pushes")
            self.choose(item)
            session.wait_for(lambda: self.simulator("Pushes") != before, "the push")
            chosen.append(self.mapped())
        self.assertEqual(sorted(chosen), sorted(places))
        left, top = (min(place[i] for place in places) for i in (0, 1))
        right, bottom = (max(place[i] + place[i + 2] for place in places) for i in (0, 1))
        self.expect_mapped(0, (left, top, right - left, bottom - top))


class SignsPage(Page):
    """What the button shows on the displays."""

    def signs(self):
        """Returns left, top, width and height of each sign, by what it says."""
        found = {}
        for window in self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                       "^Display #").stdout.split():
            name = self.run_program("xdotool", "getwindowname", window).stdout.strip()
            place = dict(re.findall(r"(\w+)=(-?\d+)", self.run_program(
                "xdotool", "getwindowgeometry", "--shell", window).stdout))
            if name and place:
                found[name] = tuple(int(place[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))
        return found

    def identify(self, *displays):
        """Presses the button, and expects a sign in the middle of each of the displays. Returns
        the numbers on them."""
        signs = self.identify_displays(
            lambda: len(found := self.signs()) == len(displays) and found, "the signs")
        numbers = []
        for left, top, width, height in displays:
            said = [words for words, (x, y, w, h) in signs.items()
                    if abs(2 * x + w - 2 * left - width) < 8
                    and abs(2 * y + h - 2 * top - height) < 8]
            self.assertEqual(len(said), 1, signs)
            self.assertRegex(said[0], rf"^Display #\d: .+, {width} × {height} pixels$")
            numbers.append(int(said[0][len("Display #")]))
        return numbers


class Signs(SignsPage):
    def test_each_display_says_which_number_it_has(self):
        self.plug(1, "800x600", "1024x0")
        self.wait_for_items(2)
        displays = (0, 0, 1024, 768), (1024, 0, 800, 600)
        numbers = self.identify(*displays)
        session.wait_for(lambda: not self.signs(), "the end of the signs")
        for number, display in zip(numbers, displays):
            self.expect_mapped(number, display)

    def test_screen_readers_hear_it(self):
        self.identify_displays(
            lambda: any(re.match(r"Display #1: .+, 1024 × 768 pixels$", words)
                        for words in self.signs_said()), "the sign")

    def test_it_ends_when_pressed_again_and_with_escape(self):
        self.expect_early_end(
            lambda: self.press("qvtblt", "Identify displays", "push button"))
        self.expect_early_end(lambda: self.xdotool(
            "search", "--sync", "--onlyvisible", "--name", "^Quorvia Tablet$",
            "windowactivate", "--sync", "key", "Escape"))

    def expect_early_end(self, act):
        """Expects that something ends the signs before they go by themselves, after 3 s; tries again
        if that took so long that nobody can tell."""
        def attempt():
            begin = time.monotonic()
            self.identify_displays(self.signs, "the sign")
            act()
            while time.monotonic() < begin + 2.5:
                if not self.signs():
                    return True
            session.wait_for(lambda: not self.signs(), "the end of the signs")
            return False
        session.wait_for(attempt, "an end before its time")


class ScaledSigns(SignsPage):
    SETTINGS = {"QT_SCALE_FACTOR": "1.5"}

    def test_each_display_says_which_number_it_has_however_it_is_scaled(self):
        self.plug(1, "800x600", "1024x0")
        self.wait_for_items(2)
        self.assertEqual(self.identify((0, 0, 1024, 768), (1024, 0, 800, 600)), [1, 2])


class MonitorMemory(Page):
    def test_the_chosen_monitor_is_offered_when_it_gets_another_number(self):
        self.plug(1, "800x600", "1024x0")
        self.wait_for_items(2)
        self.expect_mapped(2, (1024, 0, 800, 600))
        self.xrandr("--output", "DUMMY1", "--primary")  # the main display comes first
        self.find("qvtblt", "The monitor that you chose for the tablet is now display 1.")
        self.assertNotEqual(self.mapped(), (0, 0, 800, 600), "nothing is mapped unasked")
        self.press("qvtblt", "Choose Display 1", "push button")
        session.wait_for(lambda: self.mapped() == (0, 0, 800, 600), "the monitor")
        self.find("qvtblt", "Display #1", "combo box")
        session.wait_for(lambda: not any("that you chose" in thing["name"]
                                         for thing in self.things("qvtblt")), "the line's end")


class DisplayPage(Page):
    def test_displays_that_come_move_and_go(self):
        self.expect_page((0, 0, 1024, 768))
        self.plug(1, "800x600", "1024x0")
        self.expect_page((0, 0, 1024, 768), (1024, 0, 800, 600))
        # To the left of the main display, with negative positions.
        self.xrandr("--output", "DUMMY1", "--pos", "0x0", "--output", "DUMMY0", "--pos", "800x0")
        self.expect_page((0, 0, 1024, 768), (-800, 0, 800, 600))
        # Apart from it, and lower.
        self.xrandr("--output", "DUMMY0", "--pos", "0x0", "--output", "DUMMY1", "--pos", "1174x300")
        self.expect_page((0, 0, 1024, 768), (1174, 300, 800, 600))
        self.unplug(1)
        self.expect_page((0, 0, 1024, 768))

    def test_places_count_from_the_display_that_is_the_main_one(self):
        self.plug(1, "800x600", "1024x168")
        self.expect_page((0, 0, 1024, 768), (1024, 168, 800, 600))
        self.xrandr("--output", "DUMMY1", "--primary")
        self.expect_page((-1024, -168, 1024, 768), (0, 0, 800, 600))
        self.xrandr("--output", "DUMMY0", "--primary")
        self.expect_page((0, 0, 1024, 768), (1024, 168, 800, 600))

    def test_three_and_four_displays_and_of_five_the_first_four(self):
        places = [(0, 0, 1024, 768), (1024, 0, 800, 600)]
        self.plug(1, "800x600", "1024x0")
        for number, mode, position in ((2, "640x480", (1824, 0)), (3, "800x600", (1024, 600))):
            self.plug(number, mode, "{}x{}".format(*position))
            places.append((*position, *(int(word) for word in mode.split("x"))))
            self.expect_page(*places)
        self.plug(4, "640x480", "0x768")
        time.sleep(1)
        self.expect_page(*places)


class ChosenSecond(Page):
    """With the second display chosen at the start."""

    def start_driver(self):
        self.plug(1, "800x600", "1024x0")
        driver = super().start_driver()
        settings = plistlib.loads(self.config().read_bytes())
        settings["Monitor"]["num"] = 2
        self.config().write_bytes(plistlib.dumps(settings))
        return driver

    def expect_second(self):
        self.find("qvtblt", "Display #2", "combo box")  # the page has been drawn
        self.press("qvtblt", "Keep proportions", "push button")
        session.wait_for(lambda: self.mapped() == (1024, 0, 800, 600), "the area")
        self.press("qvtblt", "Calibrate…", "push button")
        ScaledDisplay.expect_second_covered(self)


class DenseMainDisplay(ChosenSecond):
    SETTINGS = {"QT_SCREEN_SCALE_FACTORS": "DUMMY0=2"}

    def test_the_display_beside_it_is_mapped_and_covered(self):
        self.expect_second()


class ScaledSession(ChosenSecond):
    SETTINGS = {"QT_SCALE_FACTOR": "1.5"}

    def test_the_display_beside_the_main_one_is_mapped_and_covered(self):
        self.expect_second()


class ScaledDisplay(Page):
    SETTINGS = {"QT_SCREEN_SCALE_FACTORS": "DUMMY1=2"}

    def test_a_display_of_another_density_is_as_large_as_to_the_window_system(self):
        self.plug(1, "800x600", "1024x0")
        self.expect_page((0, 0, 1024, 768), (1024, 0, 800, 600))
        self.choose(2)
        self.press("qvtblt", "Calibrate…", "push button")
        self.expect_second_covered()

    def expect_second_covered(self):
        window = session.wait_for(
            lambda: self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                     "^Calibration$").stdout.split(), "the window")[0]
        geometry = ["X=1024", "Y=0", "WIDTH=800", "HEIGHT=600"]
        session.wait_for(
            lambda: set(geometry) <= set(self.xdotool(
                "getwindowgeometry", "--shell", window).splitlines()), geometry)


if __name__ == "__main__":
    unittest.main()
