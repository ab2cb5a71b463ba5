# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The module in System Settings on a Wayland desktop: the same tests.

Usage: systemsettings_wayland_test.py PLUGINS [unittest's arguments], as systemsettings_test.py
"""

import unittest

import systemsettings_test
import wayland

# Windows know where their controls are, but not where they are themselves: so all are in the corner,
# without borders.
RULES = """[General]
count=1
rules=corner

[corner]
noborder=true
noborderrule=2
position=0,0
positionrule=2
"""


class OnWayland(wayland.Wayland, systemsettings_test.SystemSettings):
    # What is found is the same, and only a keyboard's characters get here.
    test_is_all_that_is_found_by_a_word_in_each_language = None
    # The display is too small for it.
    test_has_room_for_each_page_at_twice_the_density = None

    def start_display(self):
        config = self.home / ".config"
        config.mkdir()
        (config / "kwinrulesrc").write_text(RULES)
        super().start_display()

    def point(self, x, y):
        self.xdotool("mousemove", x, y, "click", 1)

    def close(self):
        self.xdotool("key", "ctrl+q")


if __name__ == "__main__":
    unittest.main()
