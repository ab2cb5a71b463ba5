# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The hook that checks commit messages."""

import pathlib
import subprocess
import tempfile
import unittest

HOOK = pathlib.Path(__file__).resolve().parent.parent.parent / ".githooks/commit-msg"
BODY = "\n\nThe old one could be a pipe.\n"


class CommitMessage(unittest.TestCase):
    def faults(self, message):
        """Returns the lines that the hook prints about a message."""
        with tempfile.NamedTemporaryFile("w", suffix="-message") as file:
            file.write(message)
            file.flush()
            run = subprocess.run([HOOK, file.name], capture_output=True, text=True)
        lines = run.stderr.splitlines()[1:]
        self.assertEqual(run.returncode, 1 if lines else 0)
        return lines

    def expect(self, message, *faults):
        with self.subTest(message):
            found = self.faults(message)
            self.assertEqual(len(found), len(faults), found)
            for fault, line in zip(faults, found):
                self.assertIn(fault, line)

    def test_takes_an_imperative_with_a_reason(self):
        self.expect("store: refuse a folder" + BODY)
        self.expect("tests, bench: read the seed" + BODY)
        for verb in ("need", "bring", "embed"):
            self.expect(f"store: {verb} a folder" + BODY)
        self.expect("# a comment\nstore: refuse a folder\n# another" + BODY)

    def test_leaves_alone_what_git_words_itself(self):
        for subject in ("Merge branch 'x'", "fixup! store: refuse a folder", 'Revert "x: y"'):
            self.expect(subject)

    def test_refuses_a_long_subject(self):
        self.expect("store: " + 65 * "x" + BODY)
        self.expect("store: " + 66 * "x" + BODY, "73 columns")
        self.expect("store: " + 65 * "é" + BODY)

    def test_refuses_a_subject_of_another_form(self):
        self.expect("Refuse a folder" + BODY, "area: what it does")
        self.expect("store: refuse a folder." + BODY, "full stop")

    def test_refuses_what_is_not_an_imperative(self):
        for word in ("refused", "refusing", "fixes", "adds"):
            self.expect(f"store: {word} a folder" + BODY, f"'{word}' is not an imperative")

    def test_refuses_a_missing_or_joined_body(self):
        self.expect("store: refuse a folder", "no body")
        self.expect("store: refuse a folder\n\n# only a comment\n", "no body")
        self.expect("store: refuse a folder\nIt could be a pipe.", "second line is not empty")
        scissors = "# ------------------------ >8 ------------------------\ndiff --git a b\n"
        self.expect("store: refuse a folder\n\n" + scissors, "no body")


if __name__ == "__main__":
    unittest.main()
