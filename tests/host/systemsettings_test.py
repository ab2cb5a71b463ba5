# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The module in System Settings, as a person uses it.

Usage: systemsettings_test.py PLUGINS [unittest's arguments], PLUGINS being the build's Qt plug-ins

With QVTBLT_PICTURES, pictures of the pages go into that folder.
"""

import os
import pathlib
import re
import unittest

import desktop
import host
import session

APPLICATION = "systemsettings"
# Where the result of a search stands in the window, below the categories that it is in.
RESULTS = {"associations": (113, 119), "stylus": (113, 119 if host.PLASMA == "5" else 89)}
# For each locale a word to search for, and the only module that has it.
FINDS = {
    "de_DE": ("grafiktablett", "Quorvia-Tablett"),
    "en_US": ("stylus", "Quorvia Tablet"),
    "es_ES": ("dibujo", "Tableta Quorvia"),
    "fr_FR": ("calibrage", "Tablette Quorvia"),
    "ja_JP": ("筆圧", "Quorvia タブレット"),
    "zh_CN": ("压感", "Quorvia 数位板"),
}
PAGES = {"Keys": "keys", "Pen": "pen", "Display": "display"}


class SystemSettings(host.Host):
    SCREEN = "2560x1800x24"  # for its window at twice the density

    def start_settings(self, *modules):
        return self.start_host("systemsettings", *modules)

    def start_at_the_module(self):
        settings = self.start_settings("kcm_qvtblt")
        self.find(APPLICATION, host.STRIP, "check box")
        return settings

    def press(self, name):
        self.click(self.wait_for_button(APPLICATION, name, True))

    def close(self):
        self.ask_to_close(self.window())

    def window(self):
        return session.wait_for(
            lambda: self.run_program("xdotool", "search", "--onlyvisible", "--class",
                                     "systemsettings").stdout.split(), "the window")[0]

    def title(self):
        """Returns the window's accessible name, which is that of the module."""
        return next((thing["name"].strip() for thing in self.things(APPLICATION)
                     if thing["role"] == "frame" and thing["showing"] and len(thing["path"]) == 2),
                    None)

    def point(self, x, y):
        """Clicks into the window. Plasma 5's list at the side is not accessible to screen
        readers."""
        window = self.window()
        self.xdotool("mousemove", "--window", window, x, y, "click", 1)

    def entries(self):
        """Returns the names in the list at the side."""
        return [thing["name"] for thing in self.things(APPLICATION)
                if thing["role"] == "list item" and thing["showing"]]

    def searched(self):
        """Returns the contents of the field for searching. Plasma 5's is not accessible."""
        return next((thing["text"] for thing in self.things(APPLICATION)
                     if thing["role"] == "text" and thing["showing"]), None)

    def add_keys(self, characters):
        """Puts characters on keys that have none. xdotool would borrow a key for each while it types,
        and give it back before a busy application has asked what is on it."""
        missing = sorted({character for character in characters if not character.isascii()})
        spare = re.findall(r"^keycode +(\d+) =$", self.run_program("xmodmap", "-pke").stdout,
                           re.MULTILINE)
        self.assertGreater(len(spare), len(missing))
        for key, character in zip(spare, missing):
            result = self.run_program("xmodmap", "-e", f"keycode {key} = U{ord(character):04X}")
            self.assertEqual(result.returncode, 0, result.stderr)

    def search(self, word):
        self.point(110, 20)
        self.xdotool("key", "ctrl+a", "type", word)

    def go(self, word, arrived):
        """Searches for a word that only one module has, and clicks the result."""
        self.search(word)

        def click():
            self.point(*RESULTS[word])
            return arrived()
        session.wait_for(click, f"what '{word}' leads to")

    def leave_for_another(self):
        self.go("associations", lambda: self.title() == "File Associations")

    def test_is_found_by_what_it_is_for(self):
        self.start_driver_with_log()
        self.start_settings()
        session.wait_for(lambda: self.title() is not None, "the window")
        self.go("stylus", lambda: self.title() == "Quorvia Tablet")
        self.find(APPLICATION, "Quorvia Draft S", "label")
        self.assertEqual(self.showings(), 1)

    @unittest.skipIf(host.PLASMA == "5", "its list is not accessible to screen readers")
    def test_is_all_that_is_found_by_a_word_in_each_language(self):
        self.add_keys("".join(word for word, _ in FINDS.values()))
        for locale, (word, name) in FINDS.items():
            settings = self.start_host("env", f"LANG={locale}.UTF-8", "systemsettings")
            session.wait_for(lambda: len(self.entries()) > 1, "the list")
            for word, found in (("nowhere", []), (word, [name])):
                self.search(word)
                session.wait_for(lambda: self.searched() == word, f"'{word}' in the search field")
                session.wait_for(lambda: self.entries() == found, f"{found} for '{word}'")
            self.end(settings)

    def open_pages(self):
        """Opens each page in turn, checks that it has room, and returns the name of its picture."""
        for page, file in PAGES.items():
            desktop.Desktop.press(self, APPLICATION, page, "page tab")
            # It has the current page's name.
            tabs = self.find(APPLICATION, page, "page tab list")
            things = self.things(APPLICATION)
            pages, = [thing for thing in things if thing["path"] == tabs["path"][:-1]]
            window = next(thing for thing in things if thing["path"] == pages["path"][:2])
            apply = self.find(APPLICATION, "Apply", "push button")
            self.assertLessEqual(pages["x"] + pages["width"], window["x"] + window["width"])
            self.assertLessEqual(pages["y"] + pages["height"], apply["y"])
            # Where the host scrolls the module, the pages are inside of what has the scroll bar.
            self.assertEqual([thing for thing in things if thing["role"] == "scroll bar"
                              and thing["showing"]
                              and len(thing["path"]) < len(pages["path"])
                              and pages["path"][:len(thing["path"]) - 2] == thing["path"][:-2]],
                             [], "only what is on a page scrolls")
            yield f"systemsettings-{file}.png"

    def test_has_room_for_each_page_and_changes_nothing(self):
        self.start_driver_with_log()
        self.start_at_the_module()
        for name in self.open_pages():
            if "QVTBLT_PICTURES" in os.environ:
                picture = pathlib.Path(os.environ["QVTBLT_PICTURES"]) / name
                self.xdotool("mousemove", 0, 0)  # avoids a highlight under the pointer
                self.run_program("sleep", "1")  # the tab's own animation
                self.run_program("import", "-frame", "-window", self.window(), picture)
        self.wait_for_button(APPLICATION, "Apply", False)
        self.wait_for_button(APPLICATION, "Reset", False)
        self.assertEqual(self.pushes(), 0)

    def test_has_room_for_each_page_at_twice_the_density(self):
        self.env["QT_SCALE_FACTOR"] = "2"
        self.start_driver_with_log()
        self.start_at_the_module()
        for _ in self.open_pages():
            pass

    def test_apply_saves_what_the_driver_has_already(self):
        self.start_driver_with_log()
        self.start_at_the_module()
        self.edit(APPLICATION)
        self.assertFalse(self.driver_strip())
        self.assertTrue(self.file_strip())
        self.press("Apply")
        session.wait_for(lambda: not self.file_strip(), "the file")
        self.wait_for_button(APPLICATION, "Apply", False)
        self.assertEqual(self.showings(), 1)

    def test_an_edit_taken_back_by_hand_leaves_nothing_to_apply(self):
        self.start_driver_with_log()
        self.start_at_the_module()
        self.edit(APPLICATION)
        self.wait_for_button(APPLICATION, "Apply", True)
        self.edit(APPLICATION)
        self.wait_for_button(APPLICATION, "Apply", False)

    def test_undo_takes_an_edit_back_and_leaves_nothing_to_apply(self):
        self.start_driver_with_log()
        self.start_at_the_module()
        self.edit(APPLICATION)
        self.wait_for_button(APPLICATION, "Apply", True)
        self.xdotool("key", "ctrl+z")
        session.wait_for(self.driver_strip, "the driver")
        self.wait_for_button(APPLICATION, "Apply", False)
        self.assertTrue(self.find(APPLICATION, host.STRIP)["checked"])
        self.xdotool("key", "ctrl+shift+z")
        session.wait_for(lambda: not self.driver_strip(), "the driver")
        self.wait_for_button(APPLICATION, "Apply", True)
        self.assertEqual(self.pushes(), 3)

    def test_reset_brings_record_and_controls_back_to_the_file(self):
        self.start_driver_with_log()
        self.start_at_the_module()
        self.edit(APPLICATION)
        session.wait_for(lambda: not self.find(APPLICATION, host.STRIP)["checked"], "the edit")
        self.press("Reset")
        session.wait_for(self.driver_strip, "the driver")
        session.wait_for(lambda: self.find(APPLICATION, host.STRIP)["checked"], "the check box")
        self.wait_for_button(APPLICATION, "Reset", False)
        self.assertTrue(self.file_strip())
        self.assertEqual(self.showings(), 2)

    def test_left_for_another_module_and_come_back_to(self):
        self.start_driver_with_log()
        self.start_at_the_module()
        before = self.saves()
        self.leave_for_another()
        session.wait_for(lambda: self.saves() != before, "the saving on leaving")
        after = self.saves()
        self.assertEqual(self.showings(), 1)
        self.go("stylus", lambda: self.title() == "Quorvia Tablet")
        self.find(APPLICATION, host.STRIP, "check box")
        self.assertEqual(self.showings(), 2)
        self.assertEqual(self.saves(), after, "it is left once")
        self.edit(APPLICATION)
        self.assertFalse(self.driver_strip())

    def test_discard_on_leaving_gives_the_changes_up(self):
        self.start_driver_with_log()
        self.start_at_the_module()
        self.edit(APPLICATION)
        self.go("associations", lambda: [thing for thing in self.things(APPLICATION)
                                         if thing["name"] == "Discard" and thing["showing"]])
        self.press("Discard")
        session.wait_for(self.driver_strip, "the driver")
        session.wait_for(lambda: not [thing for thing in self.things(APPLICATION)
                                      if thing["name"] == host.STRIP and thing["showing"]],
                         "the other module")
        self.assertTrue(self.file_strip())

    def test_apply_on_leaving_saves(self):
        self.start_driver_with_log()
        settings = self.start_at_the_module()
        self.edit(APPLICATION)
        self.close()
        question = self.find(APPLICATION, "Apply Settings", "dialog")
        self.click(self.find(APPLICATION, "Apply", "push button", inside=question["path"]))
        self.assertEqual(settings.wait(timeout=session.PATIENCE), 0)
        self.assertFalse(self.file_strip())
        self.assertFalse(self.driver_strip())

    def profile(self, *arguments):
        result = self.ctl("profile", *arguments)
        self.assertEqual(result.returncode, 0, result.stderr)

    def chosen_profile(self):
        """Returns what the list of profiles shows."""
        return next((thing["name"] for thing in self.things(APPLICATION)
                     if thing["showing"] and "Profile:" in thing["labels"]), None)

    def test_follows_a_profile_that_the_command_line_uses(self):
        self.start_driver_with_log()
        self.profile("save", "Strip on")
        self.assertEqual(self.ctl("set", "Key/Scrollbar0", "1").returncode, 0)
        self.profile("save", "Strip off")
        self.start_at_the_module()
        session.wait_for(lambda: self.chosen_profile() == "Strip off", "the profile")
        self.assertFalse(self.find(APPLICATION, host.STRIP, "check box")["checked"])
        before = self.pushes()
        self.profile("use", "Strip on")
        self.assertTrue(self.driver_strip())
        self.assertTrue(self.file_strip())
        session.wait_for(lambda: self.chosen_profile() == "Strip on", "the other profile")
        session.wait_for(lambda: self.find(APPLICATION, host.STRIP)["checked"], "the check box")
        self.assertEqual(self.pushes(), before + 1)
        # Nor is anything left to apply, or to undo.
        self.wait_for_button(APPLICATION, "Apply", False)
        self.xdotool("key", "ctrl+z")
        self.edit(APPLICATION)
        self.wait_for_button(APPLICATION, "Apply", True)
        self.assertFalse(self.driver_strip())
        self.assertEqual(self.pushes(), before + 2)

    def test_uses_a_profile_from_the_list(self):
        self.start_driver_with_log()
        self.profile("save", "Strip on")
        self.assertEqual(self.ctl("set", "Key/Scrollbar0", "1").returncode, 0)
        self.profile("save", "Strip off")
        self.start_at_the_module()
        box = session.wait_for(lambda: next(
            (thing for thing in self.things(APPLICATION) if "Profile:" in thing["labels"]), None),
            "the list")
        self.click(box)
        self.find(APPLICATION, "Strip on", "list item", inside=box["path"])
        self.xdotool("key", "Down", "Return")
        session.wait_for(self.driver_strip, "the driver")
        session.wait_for(lambda: self.find(APPLICATION, host.STRIP)["checked"], "the check box")
        self.assertEqual(self.chosen_profile(), "Strip on")
        self.assertTrue(self.file_strip())
        self.wait_for_button(APPLICATION, "Apply", False)

    def test_closing_system_settings_leaves_the_pane(self):
        self.start_driver_with_log()
        settings = self.start_at_the_module()
        before = self.saves()
        self.close()
        self.assertEqual(settings.wait(timeout=session.PATIENCE), 0)
        self.assertNotEqual(self.saves(), before)
        self.assertEqual(self.showings(), 1)
        self.assertEqual(self.pushes(), 0, "leaving must not push")


if __name__ == "__main__":
    unittest.main()
