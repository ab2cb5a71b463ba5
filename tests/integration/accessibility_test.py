# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Every page, window and state as exposed to screen readers over the accessibility bus."""

import json
import pathlib
import re
import signal
import subprocess
import threading
import unittest

import desktop
import models
import session

DRIVER = "tdsg-driver"
# Roles of controls that can have the focus.
OPERABLE = {"check box", "combo box", "list item", "page tab", "push button", "slider", "text",
            "toggle button"}
VALUES = {"combo box", "slider", "spin button"}
PICTURES = {"canvas", "image"}
SILENT = {"filler", "panel", "unknown", "layered pane"}


def faults_of(things):
    """Returns the problems of what is shown."""
    parents = {tuple(thing["path"][:-1]) for thing in things}
    page_controls = {tuple(thing["path"][:-1]) for thing in things
                     if thing["role"] == "page tab list"}  # pass their focus on to their tabs
    faults = []
    for thing in things:
        if not thing["showing"]:
            continue
        path, role = tuple(thing["path"]), thing["role"]
        name, description = thing["name"].strip(), thing["description"].strip()
        labels = [label for label in thing["labels"] if label.strip()]

        def fault(what):
            faults.append(f"{role} '{name}' {list(path)}: {what}")
        if role in OPERABLE and not name:
            fault("a control without a name")
        if role in VALUES and not labels and (role == "combo box" or not description):
            fault("nothing says what it is for")
        if role in PICTURES and not (name and description):
            fault("a picture without a name or a description")
        if role in SILENT and path not in parents:
            fault("its role does not tell what it is")
        if thing["focusable"] and path not in page_controls and (not name or role in SILENT):
            fault("has the focus and does not say what it is")
    return faults


class Harness(unittest.TestCase):
    """Checks what the search has to find."""

    GOOD = {"name": "a", "role": "push button", "description": "", "labels": [], "path": [0, 1],
            "showing": True, "focusable": True}

    def test_finds_each_fault(self):
        self.assertEqual(faults_of([self.GOOD]), [])
        for fault in ({"name": ""}, {"role": "filler"}, {"role": "combo box"},
                      {"role": "slider"}, {"role": "image"}, {"role": "canvas", "name": " "},
                      {"role": "label", "name": ""},
                      {"role": "filler", "name": "", "focusable": False}):
            with self.subTest(fault):
                self.assertEqual(len(faults_of([{**self.GOOD, **fault}])) > 0, True)
        self.assertEqual(faults_of([{**self.GOOD, "name": "", "showing": False}]), [])
        self.assertEqual(faults_of([{**self.GOOD, "role": "slider", "labels": ["b"]}]), [])


class Tree(desktop.Desktop):
    def expect_no_faults(self, application, least, *roles):
        """Waits until there are no problems, and at least that many things with these roles."""
        faults, shown = [], []

        def is_fine():
            things = self.things(application)
            faults[:] = faults_of(things)
            shown[:] = [thing["role"] for thing in things if thing["showing"]]
            return not faults and len(shown) >= least and set(roles) <= set(shown)
        try:
            session.wait_for(is_fine, f"{application} without faults")
        except AssertionError as error:
            self.fail(f"{error}: {faults}, {len(shown)} things: {shown}")

    def start_panel(self, *arguments):
        self.driver = self.start_driver(*arguments)
        self.start([session.BIN / "qvtblt"])

    def test_the_pages(self):
        self.start_panel()
        self.find("qvtblt", "Express key 1", "combo box")
        self.expect_no_faults("qvtblt", 30, "frame", "combo box", "check box", "slider", "image")
        self.assertEqual(self.find("qvtblt", "Express key 3", "combo box")["labels"],
                         ["Express key 3"])
        self.press("qvtblt", "Pen", "page tab")
        pad = self.find("qvtblt", "Drawing pad", "canvas")
        self.expect_no_faults("qvtblt", 20, "image", "slider", "canvas")
        self.assertEqual(pad["description"], "Draw here with the pen or the mouse. Pressure 0 %")
        self.press("qvtblt", "Display", "page tab")
        self.find("qvtblt", "Picture of the displays and the tablet", "image")
        self.expect_no_faults("qvtblt", 20, "combo box", "image")
        session.wait_for(lambda: any(
            "Report speed" in thing["labels"] and thing["name"] == "Normal"
            for thing in self.things("qvtblt") if thing["role"] == "combo box"), "the speed")

    def test_every_layout_of_keys(self):
        self.start_panel()
        for model in models.of_each_layout():
            with self.subTest(model.name):
                self.simulator("Attach", "q", str(model.product))
                panel = self.start([session.BIN / "qvtblt"])
                self.find("qvtblt", "Keys", "page tab")
                self.expect_no_faults("qvtblt", 12, "combo box", "image")
                self.end(panel)

    def test_without_a_tablet(self):
        self.start_panel("none")
        hint = self.find("qvtblt", "Is the tablet connected? Is its driver running? The settings "
                         "appear here as soon as both are available.")
        self.expect_no_faults("qvtblt", 4, "frame", "label")
        self.assertTrue(hint["focusable"])

    def test_the_self_check(self):
        self.start_panel("none")
        self.press("qvtblt", "Find the Problem…", "push button")
        self.find("qvtblt", "Self-Check", "dialog")
        self.find("qvtblt", "Something is wrong. Begin with the first problem:")
        self.find("qvtblt", "What was checked", "list")
        self.expect_no_faults("qvtblt", 15, "dialog", "list", "list item", "push button")

    def test_fitting_the_pressure(self):
        self.start_panel()
        self.press("qvtblt", "Pen", "page tab")
        self.press("qvtblt", "Fit to My Hand…", "push button")
        self.find("qvtblt", "Pad to press on")
        self.find("qvtblt", "Press on the pad as lightly as you ever do, and lift the pen.")
        self.expect_no_faults("qvtblt", 20, "dialog", "push button")

    def test_choosing_an_application(self):
        self.start_panel()
        box = self.find("qvtblt", "Express key 4", "combo box")
        self.click(box)
        self.click(self.find("qvtblt", "Open an application…", "list item", inside=box["path"]))
        self.find("qvtblt", "Search for an application", "text")
        self.find("qvtblt", "Applications", "list")
        self.expect_no_faults("qvtblt", 20, "dialog", "list", "text", "push button")

    def test_the_key_dialog(self):
        self.start_panel()
        self.find("qvtblt", "Express key 3", "combo box")
        self.xdotool("search", "--sync", "--onlyvisible", "--name", "Quorvia Tablet",
                     "windowactivate", "--sync")
        self.xdotool("key", "Tab", "Tab", "Tab", "Down")  # the tabs, Edit, and the first list
        self.find("qvtblt", "Press keys…", "list item")
        self.xdotool("key", "Home", *["Down"] * 6, "Return")
        self.find("qvtblt", "Control", "push button")
        self.expect_no_faults("qvtblt", 80, "dialog", "text", "push button")

    def test_the_calibration(self):
        self.start_panel()
        self.press("qvtblt", "Display", "page tab")
        self.press("qvtblt", "Calibrate…", "push button")
        window = self.find("qvtblt", "Calibration")
        self.assertIn(window["role"], ("frame", "window"))
        session.wait_for(lambda: self.find("qvtblt", "Touch the cross with the pen. Esc cancels.",
                                           "image")["focused"], "the focus")
        self.expect_no_faults("qvtblt", 20, "image")
        session.wait_for(lambda: self.record(), "the panel's settings")
        self.ctl("sim", "tap", 1000, 2000)
        session.wait_for(lambda: self.find(
            "qvtblt", "Touch the cross with the pen. Esc cancels.")["description"]
            == "Cross 2 of 4, at the upper right.", "the second cross")

    def test_the_virtual_tablet(self):
        self.start_driver("--window")
        surface = self.find(DRIVER, "Surface", "canvas")
        self.assertRegex(surface["description"], r"The pen is up at \d+, \d+\.$")
        self.expect_no_faults(DRIVER, 20, "combo box", "push button", "canvas")
        for layout in "BAE":
            self.simulator("Attach", "q", str(models.product_of(layout)))
            session.wait_for(lambda: self.find(DRIVER, "Surface"), "the surface")
            self.expect_no_faults(DRIVER, 10, "combo box", "canvas")
        self.simulator("Detach")
        self.find(DRIVER, "No tablet is attached. Choose one above.", "label")
        self.expect_no_faults(DRIVER, 3, "combo box", "label")


class Told(desktop.Desktop):
    """Announcements to screen readers."""

    def setUp(self):
        super().setUp()
        self.driver = self.start_driver()
        self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "Keys", "page tab")
        script = pathlib.Path(desktop.__file__).with_name("accessible.py")
        listener = self.start(["/usr/bin/python3", "-B", script, "qvtblt", "--listen"],
                              stdout=subprocess.PIPE)
        self.assertEqual(session.read_line(listener.stdout, "the listener"), "listening")
        self.events = []

        def read():
            for line in listener.stdout:
                self.events.append(json.loads(line))
        thread = threading.Thread(target=read, daemon=True)
        thread.start()

    def told(self, event, role, pattern):
        """Returns whether that event of that role was announced, with the pattern in its name or
        description."""
        return any(told["event"].startswith(event) and told["role"] == role
                   and re.search(pattern, told["name"] + told["description"])
                   for told in list(self.events))

    def test_what_has_gone_wrong(self):
        self.stop_driver(self.driver, signal.SIGKILL)
        self.click(self.find("qvtblt", "Left scroll strip", "check box"), 8)
        session.wait_for(lambda: self.told("object:state-changed:showing", "notification",
                                           "has not accepted the last change"), "the notice")

    def test_the_curve_and_the_pressure_without_a_flood(self):
        self.press("qvtblt", "Pen", "page tab")
        pad = self.find("qvtblt", "Drawing pad", "canvas")
        slider = self.find("qvtblt", "Pressure, from light to heavy", "slider")
        self.click(slider)
        self.xdotool("key", "Home")
        changed = "object:property-change:accessible-description"
        session.wait_for(lambda: self.told(changed, "image", "Threshold 0 of 200"), "the curve")
        before = len(self.events)
        places = [word for step in range(150)
                  for word in ("mousemove", pad["x"] + 20 + step, pad["y"] + 40)]
        self.xdotool("mousemove", pad["x"] + 20, pad["y"] + 40, "mousedown", 1, *places)
        session.wait_for(lambda: self.told(changed, "canvas", r"Pressure [1-9]\d* %$"), "the pressure")
        self.xdotool("mouseup", 1)
        session.wait_for(lambda: self.find("qvtblt", "Drawing pad")["description"].endswith(
            "Pressure 0 %"), "the lift")
        # A few per second for a second or two, not one for each move.
        self.assertLess(len(self.events) - before, 40)


if __name__ == "__main__":
    unittest.main()
