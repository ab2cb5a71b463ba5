# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The module in a dialog of its own.

Usage: kcmshell_test.py PLUGINS [unittest's arguments], PLUGINS being the build's Qt plug-ins
"""

import pathlib
import shutil
import unittest

import host
import session

APPLICATION = "kcmshell" + host.PLASMA


class KcmShell(host.Host):
    def start_shell(self, *modules):
        shell = self.start_host(APPLICATION, *(modules or ["kcm_qvtblt"]))
        self.find(APPLICATION, host.STRIP, "check box")
        return shell

    def press(self, name):
        self.click(self.wait_for_button(APPLICATION, name, True))

    def test_shows_the_pane_with_the_dialogs_buttons(self):
        self.start_driver_with_log()
        self.start_shell()
        self.find(APPLICATION, "Quorvia Draft S", "label")
        self.wait_for_button(APPLICATION, "Apply", False)
        self.wait_for_button(APPLICATION, "Reset", False)
        showing = {thing["name"] for thing in self.things(APPLICATION)
                   if thing["role"] == "push button" and thing["showing"]}
        self.assertGreaterEqual(showing, {"OK", "Apply", "Reset", "Cancel"})
        self.assertTrue(showing.isdisjoint({"Save", "Defaults"}), showing)
        self.assertEqual(self.pushes(), 0)
        self.assertEqual(self.showings(), 1)

    def test_ok_saves(self):
        self.start_driver_with_log()
        shell = self.start_shell()
        self.edit(APPLICATION)
        self.assertFalse(self.driver_strip())
        self.assertTrue(self.file_strip())
        self.press("OK")
        self.assertEqual(shell.wait(timeout=session.PATIENCE), 0)
        self.assertFalse(self.file_strip())
        self.assertFalse(self.driver_strip())

    def test_cancel_gives_the_changes_up_at_the_driver_and_in_the_file(self):
        self.start_driver_with_log()
        shell = self.start_shell()
        self.edit(APPLICATION)
        self.press("Cancel")
        self.assertEqual(shell.wait(timeout=session.PATIENCE), 0)
        session.wait_for(self.driver_strip, "the driver")
        self.assertTrue(self.file_strip())

    def test_leaving_saves_also_where_there_is_nothing_to_apply(self):
        self.start_driver_with_log()
        shell = self.start_shell()
        before = self.saves()
        self.press("Cancel")
        self.assertEqual(shell.wait(timeout=session.PATIENCE), 0)
        self.assertNotEqual(self.saves(), before)
        self.assertEqual(self.pushes(), 0, "leaving must not push")

    def test_shows_the_label_without_a_tablet(self):
        self.start_driver_with_log("none")
        self.start_host(APPLICATION, "kcm_qvtblt")
        self.find(APPLICATION, "No tablet was found", "label")
        self.wait_for_button(APPLICATION, "Apply", False)

    def test_says_in_the_users_language_that_there_is_no_panel(self):
        # A copy of the installation, without the panel itself.
        plugins = pathlib.Path(host.PLUGINS).relative_to(session.STAGE)
        shutil.copytree(session.STAGE / plugins, self.folder / "usr" / plugins)
        shutil.copytree(session.STAGE / "share/qvtblt", self.folder / "usr/share/qvtblt")
        self.env["QT_PLUGIN_PATH"] = str(self.folder / "usr" / plugins)
        for language, text in (
                ("pt:fr:en", "Les réglages de la tablette ne peuvent pas être affichés."),
                ("pt", "The tablet's settings cannot be shown.")):
            with self.subTest(language):
                self.env["LANGUAGE"] = language
                shell = self.start_host(APPLICATION, "kcm_qvtblt")
                session.wait_for(lambda: any(thing["name"].startswith(text + "\n")
                                             for thing in self.things(APPLICATION)), text)
                shell.kill()
                shell.wait(timeout=session.PATIENCE)


if __name__ == "__main__":
    unittest.main()
