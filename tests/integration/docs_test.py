# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Checks the documents: their examples work, their links are valid, and texts that the user guide
quotes are in the programs."""

import os
import pathlib
import re
import signal
import subprocess
import unittest
from xml.etree import ElementTree

import desktop
import pages
import session

DOCUMENTS = [session.SOURCE / "README.md", session.SOURCE / "CONTRIBUTING.md",
             *sorted((session.SOURCE / "docs").glob("*.md"))]
FOLDERS = "bench|cli|docs|driver|hosts|packaging|platform|QVTblt|resources|scripts|tests"


def examples(text):
    """Yields the commands of the console blocks, each with the output printed below it."""
    for block in re.findall(r"^```console\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        for part in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
            lines = part.splitlines(keepends=True)
            command = lines.pop(0)
            while command.endswith("\\\n"):
                command += lines.pop(0)
            yield command, "".join(lines)


def prose(document):
    """Returns a document's text without its code blocks."""
    return re.sub(r"^ *```.*?^ *```$", "", document.read_text(), flags=re.MULTILINE | re.DOTALL)


def anchors(document):
    """Returns the anchors of a document, made from its headings as code hosts do."""
    headings = re.findall(r"^#+ (.+)$", prose(document), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def links(document):
    """Returns whether it is a picture, the text and the target of each link and picture."""
    # A picture may be the text of a link: the pattern finds the inner one.
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
        self.assertEqual(used, set((session.SOURCE / "docs/images").glob("*.png")))

    def test_files_that_are_named_are_there(self):
        count = 0
        for document in DOCUMENTS:
            for path in re.findall(rf"`((?:{FOLDERS})/[\w./-]*)`", prose(document)):
                with self.subTest(document=document.name, path=path):
                    self.assertTrue((session.SOURCE / path).exists())
                count += 1
        self.assertGreater(count, 20)


def texts_on_screen():
    """Returns all visible texts of the programs, without mnemonic marks."""
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
        # %1 stands for a word that the program inserts.
        forms = [re.compile(re.sub(r"%\d", r"\\S+", re.escape(text))) for text in texts_on_screen()]
        bold = re.findall(r"\*\*(.+?)\*\*", re.sub(
            r"\s+", " ", prose(session.SOURCE / "docs/guide.md")))
        self.assertGreater(len(set(bold)), 40)
        for text in sorted(set(bold)):
            with self.subTest(text):
                self.assertTrue(any(form.fullmatch(text) for form in forms))


class Pictures(desktop.Desktop):
    """Checks that the guide's pictures show the current panel."""

    RETAKE = "run docs/make-screenshots, and look at what it has made"

    def look(self, name, tab=None):
        panel = self.start([session.BIN / "qvtblt"])
        if tab is None:
            self.find("qvtblt", "No tablet was found", "label")
        else:
            self.press("qvtblt", tab, "page tab")
            self.find("qvtblt", pages.CONTROLS[tab])
        seen = pages.structure(self.things("qvtblt"))
        self.assertEqual(seen, pages.written()[name], self.RETAKE)
        panel.terminate()
        panel.wait(timeout=session.PATIENCE)

    def test_each_page_is_as_on_its_picture(self):
        for name, product, tab in pages.pages():
            with self.subTest(name):
                driver = self.start_driver(str(product))
                self.look(name, tab)
                self.stop_driver(driver)

    def test_the_panel_without_a_tablet_is_as_on_its_picture(self):
        self.start_driver("none")
        self.look("noTablet")

    def test_no_picture_is_of_a_page_that_is_gone(self):
        self.assertEqual(set(pages.written()),
                         {name for name, _, _ in pages.pages()} | {"noTablet"})


PROTOCOL = session.SOURCE / "docs/driver-protocol.md"
MINIMAL_DRIVER = session.SOURCE / "docs/minimal-driver.py"
PANEL = pathlib.Path(session.__file__).with_name("peer_panel.py")


class DriverProtocol(session.Session):
    def panel_name(self, driver):
        """Opens a panel without a screen, and returns its connection, from the driver's output."""
        self.env["QT_QPA_PLATFORM"] = "offscreen"
        self.start([session.BIN / "qvtblt"])
        line = ""
        while not line.startswith("query from "):
            line = session.read_line(driver.stdout, "the panel's query")
        return line.split()[2].rstrip(":")

    def test_examples_work_as_written(self):
        self.env["PANEL"] = self.panel_name(self.start_driver())
        count = 0
        for command, expected in examples(PROTOCOL.read_text()):
            with self.subTest(command=command):
                result = self.run_program("bash", "-c", command)
                self.assertEqual(result.stdout + result.stderr, expected)
            count += 1
        self.assertGreaterEqual(count, 9)

    def test_minimal_driver_answers_the_panel(self):
        self.assertIn(f"```python\n{MINIMAL_DRIVER.read_text()}```", PROTOCOL.read_text())
        self.stop_driver(self.start_driver())  # leaves a configuration file
        driver = self.start(["/usr/bin/python3", MINIMAL_DRIVER], stdout=subprocess.PIPE)
        session.wait_for(lambda: self.ctl("push").returncode == 0, "the script")
        self.assertEqual(driver.stdout.readline(), "settings, 5077 bytes\n")

    def test_minimal_driver_handles_no_other_event(self):
        self.stop_driver(self.start_driver())  # leaves a configuration file
        self.start(["/usr/bin/python3", MINIMAL_DRIVER], stdout=subprocess.PIPE)
        session.wait_for(lambda: self.ctl("status").returncode == 0, "the script")
        # Combine a code of each of the two events with a wrong one.
        for codes in ("0x54645367 0x67657464", "0x636F7265 0x57536E64", "1 2"):
            result = self.run_program(
                "busctl", "--user", "call", session.DRIVER_NAME, *session.EVENTS, "Send",
                "uua(u(uv))", *codes.split(), "0")
            self.assertEqual(result.stderr, "Call failed: there is no handler for this event\n")

    def test_minimal_driver_knows_which_panel_calibrates(self):
        self.stop_driver(self.start_driver())  # leaves a configuration file
        self.start(["/usr/bin/python3", MINIMAL_DRIVER], stdout=subprocess.DEVNULL)
        session.wait_for(lambda: self.ctl("status").returncode == 0, "the script")

        def start_panel():
            """Returns a calibrating panel, after the touches of the four crosses."""
            panel = self.start(["/usr/bin/python3", "-B", PANEL], stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE)
            words = [session.read_line(panel.stdout, "a touch").split()[0] for _ in range(10)]
            self.assertEqual(words, ["pushed", *["1", "0"] * 4, "calibrating"])
            return panel

        def push(panel, flag):
            panel.stdin.write(f"push {flag}\n")
            panel.stdin.flush()
            return session.read_line(panel.stdout, "the push").split()[:2]

        panel, other = start_panel(), start_panel()
        self.assertEqual(push(other, 0), ["pushed", "0"])
        self.assertEqual(push(panel, 1), ["pushed", "1"])  # it is still calibrating: no restart
        self.assertEqual(push(other, 1)[0], "1")  # a touch

    def test_minimal_driver_does_not_queue_for_the_name(self):
        self.start_driver()
        result = self.run_program("/usr/bin/python3", MINIMAL_DRIVER)
        self.assertEqual(result.returncode, 1)
        self.assertIn("NameExistsException", result.stderr)

    def test_the_bus_starts_your_driver_in_place_of_ours(self):
        self.stop_driver(self.start_driver())  # leaves a configuration file
        command = next(command for command, _ in examples(PROTOCOL.read_text())
                       if "dbus-1/services" in command)
        # A bus with the standard service folders of a session.
        address = f"unix:path={self.folder}/standard-bus"
        config = self.folder / "standard-bus.conf"
        config.write_text(session.BUS_CONFIG.format(
            folder=self.folder, services="<standard_session_servicedirs/>").replace(
                f"unix:path={self.folder}/bus", address))
        self.env["XDG_DATA_DIRS"] = str(session.SERVICES.parent.parent)
        self.env["XDG_DATA_HOME"] = str(self.home / ".local/share")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = address
        bus = self.start(["dbus-daemon", "--nofork", "--nosyslog", "--print-address",
                          f"--config-file={config}"], stdout=subprocess.PIPE)
        self.assertTrue(bus.stdout.readline())

        def owner():
            """Returns the process ID and the program that the bus starts as the driver."""
            session.wait_for(lambda: self.ctl("status").returncode == 0, "a driver")
            found = self.run_program("busctl", "--user", "call", "org.freedesktop.DBus", "/",
                                     "org.freedesktop.DBus", "GetConnectionUnixProcessID", "s",
                                     session.DRIVER_NAME).stdout.split()[1]
            return int(found), pathlib.Path(f"/proc/{found}/cmdline").read_text().split("\0")[0]

        number, program = owner()
        self.assertEqual(program, str(session.BIN / "tdsg-driver"))
        os.kill(number, signal.SIGTERM)
        session.wait_for(lambda: not pathlib.Path(f"/proc/{number}").exists(), "its end")
        self.run_program("bash", "-c", command.replace(
            "/usr/local/lib/minimal-driver.py", str(MINIMAL_DRIVER)))
        self.run_program("busctl", "--user", "call", "org.freedesktop.DBus",
                         "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig")
        self.assertEqual(owner()[1], "/usr/bin/python3")


class MinimalDriver(desktop.Desktop):
    def test_calibrates(self):
        self.stop_driver(self.start_driver())  # leaves a configuration file
        driver = self.start(["/usr/bin/python3", MINIMAL_DRIVER], stdout=subprocess.PIPE)
        session.wait_for(lambda: self.ctl("status").returncode == 0, "the script")
        self.start([session.BIN / "qvtblt"])
        self.press("qvtblt", "Display", "page tab")
        self.press("qvtblt", "Calibrate…", "push button")
        def wait_for_pushes(count):
            for _ in range(count):
                self.assertEqual(session.read_line(driver.stdout, "a push"),
                                 "settings, 5077 bytes")

        wait_for_pushes(3)  # the beginning, the end, the area
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        self.xdotool("key", "Escape")
        wait_for_pushes(4)  # the former area, and once more
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        self.xdotool("key", "Return")
        session.wait_for(lambda: not any(thing["name"] == "Calibration"
                                         for thing in self.things("qvtblt")), "the end")


if __name__ == "__main__":
    unittest.main()
