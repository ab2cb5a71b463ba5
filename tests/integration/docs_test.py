# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The documents are true: their examples do what they say, their links lead somewhere, and what the
user guide says is on screen is a text of the programs."""

import re
import subprocess
import unittest
from xml.etree import ElementTree

import session

DOCUMENTS = [session.SOURCE / "README.md", session.SOURCE / "CONTRIBUTING.md",
             *sorted((session.SOURCE / "docs").glob("*.md"))]
FOLDERS = "bench|cli|docs|driver|hosts|packaging|platform|QVTblt|resources|scripts|tests"


def examples(text):
    """The commands of the console blocks, each with the output that is printed below it."""
    for block in re.findall(r"^```console\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        for part in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
            lines = part.splitlines(keepends=True)
            command = lines.pop(0)
            while command.endswith("\\\n"):
                command += lines.pop(0)
            yield command, "".join(lines)


def prose(document):
    """A document's text without its blocks of code."""
    return re.sub(r"^ *```.*?^ *```$", "", document.read_text(), flags=re.MULTILINE | re.DOTALL)


def anchors(document):
    """What links can name in a document, made of its headings as code hosts make them."""
    headings = re.findall(r"^#+ (.+)$", prose(document), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def links(document):
    """Each link's and picture's text and target; with "!" in front of a picture's."""
    # A picture may be the text of a link: the inner one is found first.
    return [(bool(mark), text, target) for mark, text, target in
            re.findall(r"(!?)\[([^\[\]]*)\]\(([^()\s]+)\)", prose(document))]


class Links(unittest.TestCase):
    def test_lead_to_files_and_headings_that_are_there(self):
        count = 0
        for document in DOCUMENTS:
            for _, _, target in links(document):
                if re.match(r"[a-z]+:", target):
                    continue
                with self.subTest(document=document.name, target=target):
                    path, _, anchor = target.partition("#")
                    file = (document.parent / path).resolve() if path else document
                    self.assertTrue(file.exists())
                    if anchor:
                        self.assertIn(anchor, anchors(file))
                count += 1
        self.assertGreater(count, 40)

    def test_every_picture_is_described_and_every_picture_is_used(self):
        used = set()
        for document in DOCUMENTS:
            for is_picture, text, target in links(document):
                if target.endswith(".png"):
                    used.add((document.parent / target).resolve())
                if is_picture:
                    with self.subTest(document=document.name, target=target):
                        self.assertGreater(len(text), 20)
        self.assertEqual(used, set((session.SOURCE / "docs/images").glob("*")))

    def test_files_that_are_named_are_there(self):
        count = 0
        for document in DOCUMENTS:
            for path in re.findall(rf"`((?:{FOLDERS})/[\w./-]*)`", prose(document)):
                with self.subTest(document=document.name, path=path):
                    self.assertTrue((session.SOURCE / path).exists())
                count += 1
        self.assertGreater(count, 20)


def texts_on_screen():
    """All texts of the programs that a person sees, without the marks of underlined letters."""
    resources = session.SOURCE / "resources"
    texts = {element.text for file in resources.glob("de.lproj/*.ts")
             for element in ElementTree.parse(file).iter("source")}
    for interface in resources.glob("*.ui"):
        texts |= {element.text for element in ElementTree.parse(interface).iter("string")}
    table = list(ElementTree.parse(resources / "en.lproj/InfoPlist.strings").find("dict"))
    table = {key.text: string.text for key, string in zip(table[::2], table[1::2])}
    strings = set(table.values()) | {f"{table['Monitor']} #%1"}  # displays are numbered
    texts = {text.replace("&", "") for text in texts | strings if text}
    return {text for text in texts if re.sub(r"%\d|\W", "", text)}


class UserGuide(unittest.TestCase):
    def test_what_is_bold_is_on_screen(self):
        # A %1 stands for a word that the program puts there.
        forms = [re.compile(re.sub(r"%\d", r"\\S+", re.escape(text))) for text in texts_on_screen()]
        bold = re.findall(r"\*\*(.+?)\*\*", re.sub(
            r"\s+", " ", prose(session.SOURCE / "docs/guide.md")))
        self.assertGreater(len(set(bold)), 40)
        for text in sorted(set(bold)):
            with self.subTest(text):
                self.assertTrue(any(form.fullmatch(text) for form in forms))


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
