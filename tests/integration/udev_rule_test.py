# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The udev rules, and that the vendor ID belongs to no other vendor."""

import re
import unittest

import session

RULE = session.SOURCE / "packaging/60-quorvia-tablet.rules"
ACCESS = session.SOURCE / "packaging/70-tdsg-driver-access.rules"
USB_IDS = "/usr/share/misc/usb.ids"


def vendor():
    header = (session.SOURCE / "QVTblt/QVTabletModels.h").read_text()
    return int(re.search(r"kQVVendorID = (0x[0-9A-F]+)", header)[1], 16)


class UdevRule(unittest.TestCase):
    def rule(self):
        lines = [line for line in RULE.read_text().splitlines() if not line.startswith("#")]
        self.assertEqual(len(lines), 1)
        return lines[0].split(", ")

    def test_is_about_the_makers_devices_alone(self):
        self.assertIn(f'ATTR{{idVendor}}=="{vendor():04x}"', self.rule())
        self.assertIn('SUBSYSTEM=="usb"', self.rule())
        self.assertIn('ENV{DEVTYPE}=="usb_device"', self.rule())

    def test_lets_the_seated_user_in_and_nobody_else(self):
        self.assertIn('TAG+="uaccess"', self.rule())
        self.assertIn('MODE="0660"', self.rule())
        self.assertFalse([part for part in self.rule() if part.startswith("GROUP")])

    def test_comes_before_the_rule_that_acts_on_the_tag(self):
        self.assertLess(int(RULE.name.split("-")[0]), 73)

    def test_the_vendor_id_is_unassigned(self):
        with open(USB_IDS, encoding="utf-8", errors="replace") as file:
            assigned = {int(line[:4], 16) for line in file if re.match(r"[0-9a-f]{4}  ", line)}
        self.assertGreater(len(assigned), 1000)
        self.assertNotIn(vendor(), assigned)


class AccessRules(unittest.TestCase):
    def lines(self):
        return [line for line in ACCESS.read_text().splitlines() if not line.startswith("#")]

    def test_let_the_seated_user_in_and_nobody_else(self):
        for line in self.lines():
            self.assertEqual("MODE=" in line, 'TAG+="uaccess"' in line, line)
            self.assertNotIn("GROUP", line)
            self.assertNotRegex(line, r'MODE="(?!0660")')

    def test_come_between_the_rules_that_they_need(self):
        self.assertLess(60, int(ACCESS.name.split("-")[0]))
        self.assertLess(int(ACCESS.name.split("-")[0]), 73)

    def test_are_about_pen_tablets_that_are_not_virtual(self):
        lines = self.lines()
        granted = lines.index('MODE="0660", TAG+="uaccess"')
        for condition in ('SUBSYSTEM!="input"', 'ENV{ID_INPUT_TABLET}!="1"',
                          'DEVPATH=="/devices/virtual/input/*"'):
            self.assertIn(f'{condition}, GOTO="tdsg_driver_end"', lines[:granted])

    def test_start_the_driver_that_is_packaged(self):
        self.assertIn('ENV{SYSTEMD_USER_WANTS}+="tdsg-driver.service"', ACCESS.read_text())
        self.assertTrue((session.SOURCE / "packaging/tdsg-driver.service.in").exists())


if __name__ == "__main__":
    unittest.main()
