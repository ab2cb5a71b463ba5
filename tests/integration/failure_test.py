# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""What a failure of a test of whole programs leaves behind: a picture, logs, and how to repeat it."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

SCRIPT = """
import unittest
import desktop
import session

class Vain(desktop.Desktop):
    def test_waits(self):
        self.start(["sh", "-c", "echo the log >&2"]).wait()
        session.wait_for(lambda: False, "nothing", 0)

    def test_is_fine(self):
        pass

unittest.main()
"""


class Failure(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="qvtblt-test-")
        self.addCleanup(folder.cleanup)
        self.script = pathlib.Path(folder.name) / "vain.py"
        self.script.write_text(SCRIPT)
        # What is kept lies beside the stage.
        self.env = {**os.environ, "QVTBLT_STAGE": f"{folder.name}/stage"}

    def test_keeps_what_there_was_and_tells_how_to_repeat_it(self):
        run = subprocess.run([sys.executable, "-B", self.script], env=self.env, text=True,
                             capture_output=True, timeout=120)
        self.assertIn("Ran 2 tests", run.stderr)
        self.assertIn("waited in vain for nothing", run.stderr)
        folder = pathlib.Path(re.search("^What was there instead is in (.*)$", run.stderr,
                                        re.MULTILINE)[1])
        self.assertEqual(folder, self.script.parent / "failures/Vain.test_waits")
        self.assertEqual((folder / "screen.png").read_bytes()[:4], b"\x89PNG")
        self.assertIn("the log", (folder / "programs.log").read_text())
        command = re.search("^To repeat it: (.*)$", run.stderr, re.MULTILINE)[1]
        again = subprocess.run(["env", "-i", "sh", "-c", command], text=True, capture_output=True,
                               timeout=120)
        self.assertIn("Ran 1 test", again.stderr)
        self.assertIn("waited in vain for nothing", again.stderr)


if __name__ == "__main__":
    unittest.main()
