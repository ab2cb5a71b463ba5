# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The process by which the driver knows the displays, on a real X server."""

import json
import queue
import subprocess
import threading
import unittest

import displays
import session


class DriverDisplays(displays.Displays):
    def setUp(self):
        super().setUp()
        lines = self.lines = queue.Queue()
        self.program = self.start([session.BIN / "tdsg-driver", "--displays"],
                                  stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        threading.Thread(target=lambda: [lines.put(line) for line in self.program.stdout],
                         daemon=True).start()
        self.expect(("DUMMY0", 0, 0, 1024, 768), covered=(0, 0, 1024, 768))

    def expect(self, *wanted, covered):
        """Waits for a line with these displays, and what a pen covers. Those before it are of a
        change under way."""
        before = []
        while True:
            try:
                line = self.lines.get(timeout=session.PATIENCE)
            except queue.Empty:
                raise AssertionError(
                    f"there was no line with {wanted} and {covered}, but {before}") from None
            report = json.loads(line)
            place = "x", "y", "width", "height"
            shown = (sorted(tuple(display[key] for key in ("name", *place))
                            for display in report["displays"]),
                     tuple(report["covered"][key] for key in place))
            if shown == (sorted(wanted), covered):
                return
            before.append(shown)

    def test_tells_of_each_change(self):
        self.plug(1, "800x600", "1024x0")
        self.expect(("DUMMY0", 0, 0, 1024, 768), ("DUMMY1", 1024, 0, 800, 600),
                    covered=(0, 0, 1824, 768))
        self.xrandr("--output", "DUMMY1", "--primary")
        self.expect(("DUMMY0", -1024, 0, 1024, 768), ("DUMMY1", 0, 0, 800, 600),
                    covered=(-1024, 0, 1824, 768))
        self.unplug(0)
        self.expect(("DUMMY1", 0, 0, 800, 600), covered=(0, 0, 800, 600))

    def test_covers_all_of_a_screen_that_is_larger_than_its_displays(self):
        self.xrandr("--fb", "3000x2000")
        self.expect(("DUMMY0", 0, 0, 1024, 768), covered=(0, 0, 3000, 2000))

    def test_ends_with_its_input(self):
        self.program.stdin.close()
        self.program.stdin = None  # nothing to be flushed at the end
        self.assertEqual(self.program.wait(timeout=session.PATIENCE), 0)

    def test_ends_without_a_display(self):
        self.env["DISPLAY"] = ":4711"
        result = self.run_program(session.BIN / "tdsg-driver", "--displays")
        self.assertEqual((result.returncode, result.stdout), (1, ""))


if __name__ == "__main__":
    unittest.main()
