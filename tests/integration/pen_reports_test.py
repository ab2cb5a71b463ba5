# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The driver's pen reports, as received by a calibrating panel."""

import pathlib
import signal
import subprocess
import unittest

import session

PANEL = pathlib.Path(session.__file__).with_name("peer_panel.py")
REPORTS_OF_TAP = 6


class PenReports(session.Session):
    def start_panel(self, *words):
        """Starts a calibrating panel, and waits until it has pushed."""
        panel = self.start(["/usr/bin/python3", "-B", PANEL], stdin=subprocess.PIPE,
                           stdout=subprocess.PIPE)
        for expected in words or ("pushed", "calibrating"):
            word, _, panel.name = session.read_line(panel.stdout, expected).split()
            self.assertEqual(word, expected)
        return panel

    def tap(self, panel, count, x=1000, y=2000):
        panel.stdin.write(f"tap {x} {y} {count}\n")
        panel.stdin.flush()

    def push(self, panel, flag):
        """Makes a panel push that disableFlag, and waits until the driver has it."""
        panel.stdin.write(f"push {flag}\n")
        panel.stdin.flush()
        self.assertEqual(session.read_line(panel.stdout, "the push"),
                         f"pushed {flag} as {panel.name}")

    def assert_listens(self, panel, x):
        """Checks that pen reports reach that panel, starting with the current ones."""
        self.assertTrue(self.ctl("sim", "tap", x, x).returncode == 0)
        told = [report[:3] for report in self.reports(panel, REPORTS_OF_TAP)]
        self.assertEqual(told, [(1, x, x)] * 5 + [(0, x, x)])

    def reports(self, panel, count):
        """Returns the next reports: key, x, y, and the time of arrival in seconds."""
        for _ in range(count):
            key, x, y, arrived = session.read_line(panel.stdout, "a report").split()
            yield int(key), int(x), int(y), int(arrived) / 1e9

    def try_tap(self):
        """Returns whether the driver accepts a tap."""
        return self.ctl("sim", "tap", 5, 5).returncode == 0

    def test_a_tap_is_five_reports_and_a_lift(self):
        self.start_driver()
        panel = self.start_panel()
        self.tap(panel, 1)
        told = [report[:3] for report in self.reports(panel, REPORTS_OF_TAP)]
        self.assertEqual(told, [(1, 1000, 2000)] * 5 + [(0, 1000, 2000)])

    def test_the_report_rate_is_true_on_average(self):
        self.start_driver()
        panel = self.start_panel()
        # With intervals in whole milliseconds, these would be 1000, 333 and 142 reports a second.
        for rate, taps in ((1000, 400), (700, 280), (300, 120), (140, 56)):
            with self.subTest(rate):
                self.simulator("SetReportRate", "u", str(rate))
                self.tap(panel, taps)
                arrived = [when for *_, when in self.reports(panel, taps * REPORTS_OF_TAP)]
                # Each is sent when it is due, or late on a busy machine. Compare the most punctual
                # of the first third with that of the last.
                late = [when - number / rate for number, when in enumerate(arrived)]
                third = len(late) // 3
                drift = min(late[-third:]) - min(late[:third])
                self.assertAlmostEqual(drift / (2 * third / rate), 0, delta=0.03)

    def test_stops_when_the_panel_dies(self):
        driver = self.start_driver()
        self.simulator("SetReportRate", "u", "10")
        panel = self.start_panel()
        self.tap(panel, 20)
        list(self.reports(panel, 3))
        panel.send_signal(signal.SIGKILL)
        panel.wait()
        session.wait_for(lambda: not self.try_tap(), "the driver's notice")
        self.assertIn("no panel is calibrating", self.ctl("sim", "tap", 5, 5).stderr)
        # What was not sent to the dead panel does not go to the next one.
        panel = self.start_panel()
        self.tap(panel, 1, 7, 8)
        told = [report[:3] for report in self.reports(panel, REPORTS_OF_TAP)]
        self.assertEqual(told, [(1, 7, 8)] * 5 + [(0, 7, 8)])
        said = self.stop_driver(driver)
        self.assertEqual(sum("left the bus while calibrating" in line for line in said), 1, said)

    def test_notices_a_panel_that_died_while_its_push_was_waiting(self):
        driver = self.start_driver()
        self.simulator("Stall", "u", "1500")
        panel = self.start_panel("pushed")
        panel.send_signal(signal.SIGKILL)
        panel.wait()
        session.wait_for(lambda: self.simulator("Pushes") == ["u", "1"], "the push")
        session.wait_for(lambda: not self.try_tap(), "the driver's notice")
        self.assertIn(f"{panel.name} left the bus while calibrating", self.stop_driver(driver))

    def test_a_panel_that_only_ends_is_noticed_too(self):
        driver = self.start_driver()
        panel = self.start_panel()
        self.assertTrue(self.try_tap())
        panel.stdin.write("end\n")
        panel.stdin.flush()
        panel.wait(timeout=session.PATIENCE)
        session.wait_for(lambda: not self.try_tap(), "the driver's notice")
        self.assertIn(f"{panel.name} left the bus while calibrating", self.stop_driver(driver))

    def test_pushes_of_others_do_not_end_a_calibration(self):
        self.start_driver()
        panel = self.start_panel()
        self.assertEqual(self.ctl("set", "Pen/Speed", 5).returncode, 0)
        self.assertEqual(self.record()[293], 0)  # a push with 0, from another connection
        self.assert_listens(panel, 7)
        self.push(panel, 0)
        self.assertFalse(self.try_tap())

    def test_the_newest_panel_that_asks_has_the_pen_and_gives_it_back(self):
        driver = self.start_driver()
        first = self.start_panel()
        second = self.start_panel()
        self.assert_listens(second, 7)
        self.push(second, 0)
        self.assert_listens(first, 8)
        self.push(second, 1)
        self.assert_listens(second, 9)
        self.push(first, 1)
        self.assert_listens(first, 10)
        first.send_signal(signal.SIGKILL)
        first.wait()
        while session.read_line(driver.stdout, "its end") != f"{first.name} left the bus while calibrating":
            pass
        self.assert_listens(second, 11)
        self.push(second, 0)
        self.assertFalse(self.try_tap())

    def test_a_flag_whose_low_byte_alone_is_1_does_not_ask_for_the_pen(self):
        self.start_driver()
        panel = self.start_panel()
        self.push(panel, 0x0101)
        self.assertFalse(self.try_tap())

    def test_another_tablet_or_none_ends_every_calibration(self):
        self.start_driver()
        for act in (lambda: self.simulator("Attach", "q", "20738"),
                    lambda: self.simulator("Detach"),
                    lambda: self.simulator("Attach", "q", "20737")):
            panels = self.start_panel(), self.start_panel()
            act()
            if self.simulator("Attached") == ["q", "0"]:
                self.simulator("Attach", "q", "20739")
            self.assertIn("no panel is calibrating", self.ctl("sim", "tap", 5, 5).stderr)
            for panel in panels:  # each may calibrate again
                self.push(panel, 1)
                self.assert_listens(panel, 6)
            for panel in panels:
                self.push(panel, 0)


if __name__ == "__main__":
    unittest.main()
