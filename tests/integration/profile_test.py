# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Profiles on the command line, with the real driver and the real panel."""

import json
import os
import plistlib
import random
import signal
import struct
import subprocess
import threading
import time
import unittest

import desktop
import session

PANEL_NAME = "org.quorvia.TabletPanel"
TITLE = "Quorvia Tablet"
# The used part of the tablet: its right edge, and that of the whole.
PART, WHOLE = 10000, 20320


def profiles_folder(test, number=20737):
    return test.home / ".local/share/qvtblt/profiles" / str(number)


class Profiles(session.Session):
    def assert_result(self, result, code, stdout="", stderr=""):
        self.assertEqual(result.returncode, code, result)
        self.assertIn(stdout, result.stdout)
        self.assertIn(stderr, result.stderr)

    def profile(self, *words):
        """Runs a command that has to succeed, and returns what it prints."""
        result = self.patient_ctl("profile", *words)
        self.assertEqual(result.returncode, 0, result)
        return result.stdout

    def set(self, entry, value):
        self.assert_result(self.patient_ctl("set", entry, value), 0)

    def settings(self):
        return plistlib.loads(self.config().read_bytes())

    def make_two(self):
        """Makes the profiles Light and Heavy, which is the current one."""
        self.set("Pen/PressureThreshold", "20")
        self.profile("save", "Light")
        self.set("Pen/PressureThreshold", "180")
        self.profile("save", "Heavy")

    def pressure(self):
        """Returns the pressure curve in the driver and in the file."""
        return (struct.unpack_from("<h", self.record(), 283)[0],
                self.settings()["Pen"]["PressureThreshold"])

    def test_misuse_is_told_with_exit_code_2(self):
        for words, why in ((["profile"], "missing operand after 'profile'"),
                           (["profile", "draw"], "there is no command 'profile draw'"),
                           (["profile", "use"], "missing operand after 'use'"),
                           (["profile", "rename", "a"], "missing operand after 'a'"),
                           (["profile", "list", "x"], "extra operand 'x'"),
                           (["profile", "next", "x"], "extra operand 'x'"),
                           (["profile", "export", "a", "b", "c"], "extra operand 'c'"),
                           (["profile", "use", "a", "--json"],
                            "--json can only be used with profile list"),
                           (["follow", "x"], "extra operand 'x'"),
                           (["mapped-area", "x"], "'x' is not a number")):
            with self.subTest(words):
                self.assert_result(self.ctl(*words), 2, "", f"qvtbltctl: {why}\n")
        self.start_driver()
        for name in ("", " ", "x" * 65, "a\nb", "a\x1bb"):
            with self.subTest(name):
                for words in (["save", name], ["rename", "Light", name]):
                    self.assertEqual(self.ctl("profile", *words).returncode, 2)
        self.assertEqual(self.profile("list"), "")

    def test_without_a_driver_or_a_tablet_each_command_says_so(self):
        commands = (["list"], ["use", "a"], ["next"], ["save", "a"], ["delete", "a"],
                    ["rename", "a", "b"], ["import", "/nowhere"], ["export", "a", "b"])
        for words in commands:
            with self.subTest(words):
                self.assert_result(
                    self.ctl("profile", *words), 1, "", "the driver does not answer\n")
        self.start_driver("none")
        for words in commands:
            with self.subTest(words):
                self.assert_result(self.ctl("profile", *words), 1, "", "no tablet is attached\n")

    def test_a_profile_that_is_not_there_changes_nothing(self):
        self.start_driver()
        self.make_two()
        before = self.config().read_bytes()
        pushes = self.simulator("Pushes")
        for words in (["use", "None"], ["delete", "None"], ["rename", "None", "Other"],
                      ["rename", "Light", "Heavy"], ["export", "None", self.folder / "x"],
                      ["import", "/nowhere"]):
            with self.subTest(words):
                result = self.patient_ctl("profile", *words)
                self.assertEqual((result.returncode, result.stdout), (1, ""))
                self.assertTrue(result.stderr)
        self.assertEqual(self.config().read_bytes(), before)
        self.assertEqual(self.simulator("Pushes"), pushes)
        self.assertEqual(self.profile("list"), "* Heavy\n  Light\n")
        self.assertFalse((self.folder / "x").exists())

    def test_next_without_profiles_says_so(self):
        self.start_driver()
        self.assertEqual(self.patient_ctl("profile", "next").returncode, 1)

    def test_saves_uses_and_lists_them(self):
        self.start_driver()
        self.make_two()
        self.assertEqual(self.profile("list"), "* Heavy\n  Light\n")
        pushes = int(self.simulator("Pushes")[1])
        self.assertEqual(self.profile("use", "Light"), "using Light\n")
        self.assertEqual(int(self.simulator("Pushes")[1]), pushes + 1)
        self.assertEqual(self.pressure(), (20, 20))
        self.assertEqual(self.profile("list"), "  Heavy\n* Light\n")
        for name, pressure in (("Heavy", 180), ("Light", 20)):
            self.assertEqual(self.profile("next"), f"using {name}\n")
            self.assertEqual(self.pressure(), (pressure, pressure))
        for file in profiles_folder(self).iterdir():
            self.assertEqual(file.stat().st_mode & 0o777, 0o600)

    def test_lists_them_in_json_with_their_applications(self):
        self.start_driver()
        self.make_two()
        file, = profiles_folder(self).glob("light*")
        profile = plistlib.loads(file.read_bytes())
        profile["Applications"] = ["org.kde.krita", "gimp"]
        file.write_bytes(plistlib.dumps(profile))
        self.assertEqual(json.loads(self.profile("list", "--json")), {
            "version": 1, "profiles": [
                {"name": "Heavy", "current": True, "applications": []},
                {"name": "Light", "current": False, "applications": ["org.kde.krita", "gimp"]}]})
        self.assertEqual(self.profile("list"), "* Heavy\n  Light\torg.kde.krita, gimp\n")

    def test_renames_and_deletes_them(self):
        self.start_driver()
        self.make_two()
        self.profile("rename", "Heavy", "Zeichnen: „schwer“ $HOME `x`")
        self.assertEqual(self.profile("list"), "  Light\n* Zeichnen: „schwer“ $HOME `x`\n")
        self.profile("use", "Light")
        self.profile("use", "Zeichnen: „schwer“ $HOME `x`")
        self.assertEqual(self.pressure(), (180, 180))
        self.profile("delete", "Zeichnen: „schwer“ $HOME `x`")
        self.assertEqual(self.profile("list"), "  Light\n")
        self.assertEqual(self.pressure(), (180, 180))
        self.profile("delete", "--", "Light")
        self.assertEqual(self.profile("list"), "")
        self.assertEqual(list(profiles_folder(self).iterdir()), [])

    def test_edits_are_kept_before_a_profile_is_used(self):
        self.start_driver()
        self.make_two()
        self.set("Pen/PressureThreshold", "77")
        self.profile("use", "Light")
        self.assertEqual(self.profile("list"), "  Before Light\n  Heavy\n* Light\n")
        self.profile("use", "Before Light")
        self.assertEqual(self.pressure(), (77, 77))

    def test_a_file_for_others_comes_back_as_it_was_and_overwrites_none(self):
        self.start_driver()
        self.make_two()
        file = self.folder / "light for others.plist"
        self.assertEqual(self.profile("export", "Light", file), "exported Light\n")
        whole = file.read_bytes()
        self.assert_result(self.patient_ctl("profile", "export", "Heavy", file), 1, "", "File exists")
        self.assertEqual(file.read_bytes(), whole)
        said = self.profile("import", file)
        self.assertTrue(said.startswith("imported Light 2\n"), said)
        self.assertIn("It would change:\n", said)
        self.assertEqual(self.pressure(), (180, 180))
        self.profile("use", "Light 2")
        self.assertEqual(self.pressure(), (20, 20))
        self.profile("delete", "Light")
        self.assertTrue(self.profile("import", file).startswith("imported Light\n"))

    def test_a_file_from_somebody_else_starts_nothing_and_says_what_it_would(self):
        self.start_driver()
        self.make_two()
        file = self.folder / "hostile.plist"
        self.profile("export", "Light", file)
        profile = plistlib.loads(file.read_bytes())
        profile["Key"]["Key2"] |= {"Valid": 2, "App": "/usr/bin/evil"}
        profile["Name"] = "Nice \u202elacissalc"
        profile["Applications"] = ["org.kde.krita"]
        profile["Pen"]["PressureThreshold"] = 30000
        file.write_bytes(plistlib.dumps(profile))
        said = self.profile("import", file)
        self.assertNotIn("\u202e", said)
        self.assertIn("do nothing now. The panel asks for each", said)
        self.assertRegex(said, r"(?m)^  .*: /usr/bin/evil$")
        self.assertRegex(said, r"Left out, since it does not fit this tablet:\n  \S")
        self.assertIn("It is used for:\n  org.kde.krita\n", said)
        self.profile("use", "Nice \ufffdlacissalc")
        settings = self.settings()
        self.assertNotEqual(settings["Key"]["Key2"]["Valid"], 2)
        self.assertNotIn("evil", self.config().read_text())
        self.assertEqual(settings["Pen"]["PressureThreshold"], 180)

    def test_what_is_no_profile_is_not_imported(self):
        self.start_driver()
        self.make_two()
        file = self.folder / "file"
        for contents in (b"", b"nonsense", plistlib.dumps({}), self.config().read_bytes(),
                         plistlib.dumps({"FormatVersion": 2, "Name": "x", "ProductID": 20737})):
            file.write_bytes(contents)
            result = self.patient_ctl("profile", "import", file)
            self.assertEqual((result.returncode, result.stdout), (1, ""), contents)
            self.assertTrue(result.stderr)
        self.assertEqual(self.profile("list"), "* Heavy\n  Light\n")

    def test_a_shell_completes_names_with_spaces_and_quotes(self):
        self.start_driver()
        for name in ("Fine lines", "Fine \"dots\"", "3D"):
            self.profile("save", name)
        script = """
            . "$0"
            compopt() { :; }
            COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
            _qvtbltctl qvtbltctl
            for word in "${COMPREPLY[@]}"; do eval "printf '%s\\n' $word"; done """
        raw = script.replace("eval \"printf '%s\\n' $word\"", "printf '%s\\n' \"$word\"")
        for typed, how, expected in (
                ("", script, {"3D", "Fine lines", 'Fine "dots"'}),
                ("Fine\\ l", script, {"Fine lines"}), ("'Fine l", raw, {"Fine lines"}),
                ('"Fine', raw, {"Fine lines", 'Fine "dots"'}), ("x", script, set())):
            with self.subTest(typed):
                said = self.run_program(
                    "bash", "-c", how, session.SOURCE / "packaging/completions/qvtbltctl",
                    "qvtbltctl", "profile", "use", typed)
                self.assertEqual(set(said.stdout.splitlines()), expected, said.stderr)

    def test_the_file_is_whole_whenever_the_command_is_killed(self):
        driver = self.start_driver()
        # It tells of each push, more than a pipe holds.
        threading.Thread(target=driver.stdout.read, daemon=True).start()
        self.set("Pen/PressureThreshold", "20")
        for key in range(8):
            self.set(f"Key/Key{key}/App", f"/usr/bin/a{key}" * 10)
        self.profile("save", "A")
        self.set("Pen/PressureThreshold", "180")
        for key in range(8):
            self.set(f"Key/Key{key}/App", f"/usr/bin/b{key}")
        self.profile("save", "B")
        whole = {}
        times = []
        for name in "ABABABAB":
            begin = time.monotonic()
            self.profile("use", name)
            times.append(time.monotonic() - begin)
            whole[name] = self.config().read_bytes()
        usual = sorted(times)[len(times) // 2]
        self.assertNotEqual(whole["A"], whole["B"])
        seed = int(os.environ.get("QVTBLT_SEED", time.time_ns() % 1000000))
        chance = random.Random(seed)
        seen = {"A": 0, "B": 0}
        ended = 0
        for count in range(300):
            with self.subTest(seed=seed, count=count):
                ctl = subprocess.Popen(
                    [session.BIN / "qvtbltctl", "profile", "use", "AB"[count % 2]], env=self.env,
                    stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                try:
                    ctl.wait(timeout=chance.uniform(0, 1.2 * usual))
                    ended += 1
                except subprocess.TimeoutExpired:
                    ctl.send_signal(signal.SIGKILL)
                    ctl.wait()
                now = self.config().read_bytes()
                self.assertIn(now, whole.values())
                seen["A" if now == whole["A"] else "B"] += 1
        # Else, it was always killed before or after what matters.
        self.assertGreater(min(seen.values()), 20, seen)
        self.assertLess(ended, 280)
        for name in ("A", "B"):
            self.profile("use", name)
            self.assertEqual(self.config().read_bytes(), whole[name])


class BesidePanels(desktop.Desktop):
    """What the command line and panels do beside each other."""

    def start_panel(self):
        """Starts a panel and returns its process, which knows its place among those that screen
        readers see."""
        before = self.places()
        panel = self.start([session.BIN / "qvtblt"])
        panel.place = session.wait_for(lambda: self.places() - before, "the panel").pop()
        session.wait_for(
            lambda: str(panel.pid) in self.pids_of_panels(), "the panel's object on the bus")
        return panel

    def places(self):
        return {thing["path"][0] for thing in self.things("qvtblt")
                if thing["name"] == "Left scroll strip"}

    def pids_of_panels(self):
        """Returns the processes that have or want the panel's name, the owner's first."""
        queue = self.bus("ListQueuedOwners", PANEL_NAME)
        return [self.bus("GetConnectionUnixProcessID", name.strip('"')).split()[1]
                for name in queue.split()[2:]]

    def bus(self, method, name):
        return self.run_program(
            "busctl", "--user", "call", "org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus", method, "s", name).stdout

    def press_in(self, panel, name, role):
        session.wait_for(
            lambda: self.things("qvtblt", "--find", name, role, "--inside",
                                json.dumps([panel.place]), "--press"), f"{role} '{name}'")

    def is_strip_on(self, panel):
        return self.find("qvtblt", "Left scroll strip", "check box", inside=[panel.place])["checked"]

    def turn_strip(self, panel):
        self.press_in(panel, "Keys", "page tab")
        self.press_in(panel, "Left scroll strip", "check box")

    def use_whole_tablet(self, panel):
        self.press_in(panel, "Display", "page tab")
        self.press_in(panel, "Use the whole tablet", "push button")

    def close(self, panel):
        window = session.wait_for(
            lambda: self.run_program("xdotool", "search", "--onlyvisible", "--pid", panel.pid,
                                     "--name", TITLE).stdout.split(), "its window")[0]
        self.ask_to_close(window)
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)

    # The state of the strip, 0 for on, and the right edge.

    def in_file(self):
        settings = plistlib.loads(self.config().read_bytes())
        return settings["Key"]["Scrollbar0"], settings["Monitor"]["cTabletXmax"]

    @staticmethod
    def state(record):
        return struct.unpack_from("<h", record, 5071)[0], struct.unpack_from("<H", record, 305)[0]

    def in_driver(self):
        return self.state(self.record())

    def in_owner(self):
        words = self.run_program("busctl", "--user", "call", PANEL_NAME, "/org/quorvia/TabletPanel",
                                 "org.quorvia.TabletPanel1", "Settings").stdout.split()
        return self.state(bytes(int(byte) for byte in words[2:])) if words else None

    def wait_for(self, where, state):
        session.wait_for(lambda: where() == state, f"{state} {where.__name__}")

    def assert_saved(self, state):
        self.wait_for(self.in_file, state)
        self.wait_for(self.in_driver, state)

    def prepare(self):
        self.start_driver()
        self.assertEqual(self.patient_ctl("set", "Monitor/cTabletXmax", PART).returncode, 0)
        self.assertEqual(self.in_file(), (0, PART))

    def test_what_is_set_is_in_the_panel_and_not_lost_at_its_next_edit(self):
        self.prepare()
        panel = self.start_panel()
        result = self.patient_ctl("set", "Monitor/cTabletXmax", "15000")
        self.assertEqual((result.returncode, result.stdout), (0, "set Monitor/cTabletXmax to 15000\n"))
        self.assert_saved((0, 15000))
        self.turn_strip(panel)
        self.wait_for(self.in_driver, (1, 15000))
        # What is saved is what was set; the panel's edit is still the user's to save.
        self.assertEqual(self.patient_ctl("set", "Monitor/cTabletXmax", "14000").returncode, 0)
        self.wait_for(self.in_driver, (1, 14000))
        self.assertEqual(self.in_file(), (0, 14000))
        self.press_in(panel, "Save", "push button")
        self.assert_saved((1, 14000))
        for entry, value, code in (("Pen/Speed", "fast", 2), ("Pen/Speeed", "1", 2)):
            self.assertEqual(self.patient_ctl("set", entry, value).returncode, code)

    def test_profiles_go_through_the_panel(self):
        self.prepare()
        self.patient_ctl("profile", "save", "On")
        self.patient_ctl("set", "Key/Scrollbar0", "1")
        self.patient_ctl("profile", "save", "Off")
        panel = self.start_panel()
        self.assertFalse(self.is_strip_on(panel))
        self.assertEqual(self.patient_ctl("profile", "use", "On").stdout, "using On\n")
        self.assert_saved((0, PART))
        session.wait_for(lambda: self.is_strip_on(panel), "the box")
        self.assertEqual(self.patient_ctl("profile", "next").stdout, "using Off\n")
        self.assert_saved((1, PART))
        session.wait_for(lambda: not self.is_strip_on(panel), "the box")
        result = self.patient_ctl("profile", "use", "None")
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertIn("None", result.stderr)
        # What is not saved, either, is in the profile.
        self.use_whole_tablet(panel)
        self.wait_for(self.in_driver, (1, WHOLE))
        self.assertEqual(self.patient_ctl("profile", "save", "All of it").returncode, 0)
        file, = profiles_folder(self).glob("all-of-it*")
        self.assertEqual(plistlib.loads(file.read_bytes())["Monitor"]["cTabletXmax"], WHOLE)

    def test_edits_in_two_panels_are_both_saved(self):
        self.prepare()
        first = self.start_panel()
        second = self.start_panel()
        self.assertEqual(self.pids_of_panels(), [str(first.pid), str(second.pid)])
        self.turn_strip(first)
        session.wait_for(lambda: not self.is_strip_on(second), "the first's edit")
        self.use_whole_tablet(second)
        self.wait_for(self.in_owner, (1, WHOLE))
        self.assertEqual(self.in_file(), (0, PART))
        self.press_in(second, "Save", "push button")
        self.assert_saved((1, WHOLE))

    def test_the_first_saves_what_the_second_has_edited(self):
        self.prepare()
        first = self.start_panel()
        second = self.start_panel()
        self.use_whole_tablet(second)
        self.wait_for(self.in_owner, (0, WHOLE))
        self.turn_strip(first)
        self.press_in(first, "Save", "push button")
        self.assert_saved((1, WHOLE))

    def test_neither_undoes_the_other_when_it_is_cancelled_or_closed(self):
        self.prepare()
        first = self.start_panel()
        second = self.start_panel()
        self.turn_strip(first)
        session.wait_for(lambda: not self.is_strip_on(second), "the first's edit")
        self.press_in(first, "Save", "push button")
        self.assert_saved((1, PART))
        self.use_whole_tablet(second)
        self.wait_for(self.in_owner, (1, WHOLE))
        self.press_in(second, "Cancel", "push button")
        self.wait_for(self.in_owner, (1, PART))
        self.wait_for(self.in_driver, (1, PART))
        self.close(first)
        self.assert_saved((1, PART))
        # The second one has the settings now.
        session.wait_for(lambda: self.pids_of_panels() == [str(second.pid)], "the name")
        self.assertEqual(self.patient_ctl("set", "Monitor/cTabletXmax", "15000").returncode, 0)
        self.wait_for(self.in_owner, (1, 15000))
        self.close(second)
        self.assert_saved((1, 15000))


if __name__ == "__main__":
    unittest.main()
