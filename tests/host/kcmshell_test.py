# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The module in the desktop's own settings application, with the real driver.

Usage: kcmshell_test.py PLUGINS [unittest's arguments], PLUGINS being the build's Qt plug-ins
"""

import plistlib
import subprocess
import sys
import unittest

import desktop
import session

PLUGINS = sys.argv.pop(1)


class KcmShell(desktop.Desktop):
    def setUp(self):
        super().setUp()
        self.env["QT_PLUGIN_PATH"] = PLUGINS

    def start_shell(self):
        return self.start(["kcmshell5", "kcm_qvtblt"], stderr=subprocess.PIPE)

    def strips(self):
        return plistlib.loads(self.config().read_bytes())["Key"]["Scrollbar0"]

    def test_shows_the_pane_edits_and_saves_on_leaving(self):
        self.start_driver()
        shell = self.start_shell()
        box = self.find("kcmshell5", "Left scroll strip", "check box")
        self.find("kcmshell5", "Quorvia Draft S", "label")
        self.click(box, 8)
        session.wait_for(lambda: self.simulator("Pushes") == ["u", "1"], "the push")
        self.assertEqual(self.record()[5071], 1)
        self.assertEqual(self.strips(), 0)
        self.click(self.find("kcmshell5", "Close", "push button"))
        self.assertEqual(shell.wait(timeout=20), 0)
        self.assertEqual(self.strips(), 1)
        self.assertEqual(self.simulator("Pushes"), ["u", "1"], "leaving must not push")

    def test_shows_the_label_without_a_tablet(self):
        self.start_driver("--attach", "none")
        self.start_shell()
        self.find("kcmshell5", "No tablet was found", "label")


if __name__ == "__main__":
    unittest.main()
