# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The examples of the documents do what the documents say."""

import re
import subprocess
import unittest

import session


def examples(text):
    """The commands of the console blocks, each with the output that is printed below it."""
    for block in re.findall(r"^```console\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        for part in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
            lines = part.splitlines(keepends=True)
            command = lines.pop(0)
            while command.endswith("\\\n"):
                command += lines.pop(0)
            yield command, "".join(lines)


class DriverProtocol(session.Session):
    def test_examples_work_as_written(self):
        self.start_driver()
        text = (session.SOURCE / "docs/driver-protocol.md").read_text()
        count = 0
        for command, expected in examples(text):
            with self.subTest(command=command):
                result = self.run_program("bash", "-c", command)
                self.assertEqual(result.stdout + result.stderr, expected)
            count += 1
        self.assertGreaterEqual(count, 6)

    def test_minimal_driver_answers_the_panel(self):
        text = (session.SOURCE / "docs/driver-protocol.md").read_text()
        script = session.SOURCE / "docs/minimal-driver.py"
        self.assertIn(f"```python\n{script.read_text()}```", text)

        self.stop_driver(self.start_driver())  # leaves a configuration file
        driver = self.start(["/usr/bin/python3", script], stdout=subprocess.PIPE)
        session.wait_for(lambda: self.ctl("push").returncode == 0, "the script")
        self.assertEqual(driver.stdout.readline(), "settings, 5077 bytes\n")


if __name__ == "__main__":
    unittest.main()
