# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The key page in use: a combination by mouse and by keyboard, an application, and switching models
back and forth."""

import unittest

import desktop
import session

TITLE = "Quorvia Tablet"
CTRL_SHIFT_Z = 0x03063836


class KeyPage(desktop.Desktop):
    def setUp(self):
        super().setUp()
        self.start_driver()
        self.application = self.home / "draw.desktop"
        self.application.write_text("[Desktop Entry]\n")

    def start_panel(self):
        panel = self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "Express key 3", "combo box")
        return panel

    def close_panel(self, panel):
        self.close_window(TITLE)
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)

    def slot(self, number):
        """Returns kind, combination and path of a slot in the driver's record."""
        start = 319 + 264 * number
        record = self.record()[start:start + 264]
        return (int.from_bytes(record[0:2], "little", signed=True),
                int.from_bytes(record[4:8], "little"), record[8:].split(b"\0")[0].decode())

    def choose(self, box, item):
        """Opens a box's list with the mouse and clicks an item."""
        found = self.find("qvtblt", box, "combo box")
        self.click(found)
        self.click(self.find("qvtblt", item, "list item", inside=found["path"]))

    def wait_for_slot(self, number, expected):
        session.wait_for(lambda: len(self.record()) and self.slot(number) == expected,
                         f"{expected} in slot {number}")

    def shown(self):
        """Returns how many boxes show the combination, and how many the application."""
        names = [thing["name"] for thing in self.things("qvtblt") if thing["role"] == "combo box"]
        return names.count("Ctrl  Shift  Z"), names.count(str(self.application))

    def wait_for_shown(self, expected):
        session.wait_for(lambda: self.shown() == expected, f"{expected} boxes")

    def assign_by_mouse(self):
        self.choose("Express key 3", "Press keys…")
        for key in ("Control", "Shift", "Z"):
            self.click(self.find("qvtblt", key, "push button"))
        self.click(self.find("qvtblt", "OK", "push button"))
        self.wait_for_slot(2, (3, CTRL_SHIFT_Z, ""))

    def assign_application(self):
        self.choose("Express key 4", "Open an application…")
        session.wait_for(lambda: self.run_program(
            "xdotool", "search", "--onlyvisible", "--name", "Choose an application").stdout,
            "the chooser")
        self.click(self.find("qvtblt", "Other File…", "push button"))
        self.find("qvtblt", "File name:", "text")
        self.xdotool("type", str(self.application))
        self.xdotool("key", "Return")
        self.wait_for_slot(3, (2, 0, str(self.application)))

    def test_a_combination_by_mouse_and_an_application_last(self):
        panel = self.start_panel()
        self.assign_by_mouse()
        self.assign_application()
        self.assertEqual(self.slot(2), (3, CTRL_SHIFT_Z, ""))
        self.wait_for_shown((1, 1))
        self.close_panel(panel)

        panel = self.start_panel()
        self.wait_for_shown((1, 1))
        self.close_panel(panel)

        self.simulator("Attach", "q", "20752")  # four keys, and its own file
        panel = self.start_panel()
        self.find("qvtblt", "Quorvia Pocket", "label")
        self.wait_for_shown((0, 0))
        self.close_panel(panel)
        self.simulator("Attach", "q", "20737")
        panel = self.start_panel()
        self.wait_for_shown((1, 1))
        self.close_panel(panel)

    def focus(self, name):
        """Focuses a control with Tab."""
        for _ in range(90):
            if name in self.things("qvtblt", "--focused"):
                return
            self.xdotool("key", "Tab")
        self.fail(f"Tab does not reach '{name}'")

    def test_a_combination_by_keyboard_alone(self):
        panel = self.start_panel()
        self.xdotool("search", "--sync", "--onlyvisible", "--name", TITLE, "windowactivate",
                     "--sync")
        self.focus("Express key 3")
        self.xdotool("key", "Down")
        self.find("qvtblt", "Press keys…", "list item")
        self.xdotool("key", "Home", *["Down"] * 6, "Return")
        for key in ("Control", "Shift", "Z"):
            self.find("qvtblt", key, "push button")
            self.focus(key)
            self.xdotool("key", "space")
        self.xdotool("key", "Return")
        self.wait_for_slot(2, (3, CTRL_SHIFT_Z, ""))
        self.xdotool("key", "alt+F4")
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)
        self.start_panel()
        self.wait_for_shown((1, 0))

    def test_edits_are_undone_and_redone(self):
        self.start_panel()
        self.choose("Express key 3", "Pause the tablet")
        self.wait_for_slot(2, (6, 0, ""))
        self.choose("Express key 4", "Go to the next display")
        self.wait_for_slot(3, (4, 0, ""))
        self.click(self.find("qvtblt", "Edit"))
        self.xdotool("key", "Down", "Return")  # the first item of the menu
        session.wait_for(lambda: self.slot(3)[0] != 4, "the undo")
        self.xdotool("key", "ctrl+z")
        session.wait_for(lambda: self.slot(2)[0] != 6, "the undo")
        self.xdotool("key", "ctrl+shift+z")
        self.wait_for_slot(2, (6, 0, ""))

    def test_a_key_that_is_pressed_on_the_tablet_is_told_once(self):
        self.start_panel()

        def told():
            return [thing["name"] for thing in self.things("qvtblt")
                    if thing["showing"] and "is pressed" in thing["name"]]

        self.assertEqual(told(), [])
        self.simulator("Press", "qb", "2", "true")
        session.wait_for(lambda: told() == ["Express key 3 is pressed"], "the key")
        self.simulator("Press", "qb", "2", "false")
        session.wait_for(lambda: told() == [], "its release")


if __name__ == "__main__":
    unittest.main()
