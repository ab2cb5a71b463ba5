# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""What is installed for developers: a host built against it, and the D-Bus interfaces.

Usage: outside_test.py BUILD [unittest's arguments], BUILD being the build to install
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

import session

BUILD = sys.argv.pop(1)


def interface(xml, name):
    """Returns the members of an interface, without names of arguments and annotations."""
    found = ElementTree.fromstring(xml).find(f"interface[@name='{name}']")
    return sorted(
        (member.tag, member.get("name"),
         [(arg.get("type"), member.tag == "signal" or arg.get("direction", "in"))
          for arg in member.iter("arg")]) for member in found if member.tag != "annotation")


class Outside(session.Session):
    @classmethod
    def setUpClass(cls):
        cls.root = pathlib.Path(tempfile.mkdtemp(prefix="qvtblt-test-"))
        cls.addClassCleanup(shutil.rmtree, cls.root)
        cls.installed = cls.root / "usr"
        cls.run_tool("cmake", "--install", BUILD, "--prefix", cls.installed)

    @staticmethod
    def run_tool(*command):
        result = subprocess.run(command, text=True, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT)
        if result.returncode != 0:
            raise AssertionError(f"{command}: {result.stdout}")

    def test_a_host_shows_the_panel(self):
        source = pathlib.Path(__file__).parent
        self.run_tool("cmake", "-S", source, "-B", self.root / "build", "-G", "Ninja",
                      f"-DCMAKE_PREFIX_PATH={self.installed}", "-DCMAKE_CXX_FLAGS=-Wall -Werror")
        self.run_tool("cmake", "--build", self.root / "build")
        self.env["QT_QPA_PLATFORM"] = "offscreen"
        host = self.root / "build/outside"
        result = self.run_program(host)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("No tablet was found", result.stdout)
        self.start_driver()
        result = self.run_program(host)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("Quorvia Draft S", result.stdout)

    def test_the_interfaces_are_those_of_the_driver(self):
        self.start_driver()
        for path, name in (session.EVENTS, session.TABLET, session.SIMULATOR):
            with self.subTest(name):
                answer = self.run_program(
                    "busctl", "--user", "introspect", "--xml-interface", session.DRIVER_NAME, path)
                self.assertEqual(answer.returncode, 0, answer.stderr)
                file = self.installed / f"share/dbus-1/interfaces/{name}.xml"
                self.assertEqual(interface(file.read_text(), name), interface(answer.stdout, name))


if __name__ == "__main__":
    unittest.main()
