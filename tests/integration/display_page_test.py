# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The display page on real displays that come, go, move and turn while the page is shown."""

import struct
import subprocess
import time
import unittest

import displays
import session

LIST = "The part of the desktop that the pen reaches."


class DisplayPage(displays.Displays):
    def setUp(self):
        super().setUp()
        self.start_driver()
        self.start([session.BIN / "qvtblt"], stderr=subprocess.DEVNULL)
        self.click(self.find("qvtblt", "Display", "page tab"))
        self.find("qvtblt", LIST, "combo box")

    def items(self):
        box = next(thing for thing in self.things("qvtblt", "--items")
                   if thing["description"] == LIST)
        return [thing["name"] for thing in self.things("qvtblt", "--items")
                if thing["role"] == "list item" and thing["path"][:len(box["path"])] == box["path"]]

    def wait_for_items(self, count):
        names = ["Display #1"] if count == 1 else [
            "All displays", *(f"Display #{i + 1}" for i in range(count))]
        session.wait_for(lambda: self.items() == names, names)

    def mapped(self):
        """Left, top, width and height of the driver's mapped area; nothing before any push."""
        record = self.record()
        if not record:
            return None
        left, width, top, height = struct.unpack_from("<4h", record, 295)
        return left, top, width, height

    def choose(self, item):
        """Chooses an item of the list by the keyboard, by its place."""
        box = self.find("qvtblt", LIST, "combo box")
        self.click(box)
        self.xdotool("key", "Home", *["Down"] * item, "Return")

    def expect_mapped(self, item, area):
        self.choose(item)
        session.wait_for(lambda: self.mapped() == area, f"{area}, not {self.mapped()}")

    def test_displays_that_come_move_and_go(self):
        self.wait_for_items(1)
        self.plug(1, "800x600", "1024x0")
        self.wait_for_items(2)
        self.expect_mapped(2, (1024, 0, 800, 600))
        self.expect_mapped(0, (0, 0, 1824, 768))

        # To the left of the main display: its places are negative then.
        self.xrandr("--output", "DUMMY1", "--pos", "0x0", "--output", "DUMMY0", "--pos", "800x0")
        time.sleep(1)  # until all have come to rest
        self.wait_for_items(2)
        places = set()
        for item in (1, 2):
            before = self.simulator("Pushes")
            self.choose(item)
            session.wait_for(lambda: self.simulator("Pushes") != before, "the push")
            places.add(self.mapped())
        self.assertEqual(places, {(0, 0, 1024, 768), (-800, 0, 800, 600)})

        self.unplug(1)
        self.wait_for_items(1)
        self.expect_mapped(0, (0, 0, 1024, 768))

    def test_more_than_four_displays_are_four(self):
        for number in range(1, 5):
            self.plug(number, "800x600", f"{1024 + 800 * (number - 1)}x0")
        self.wait_for_items(4)
        self.expect_mapped(4, (1024 + 1600, 0, 800, 600))


if __name__ == "__main__":
    unittest.main()
