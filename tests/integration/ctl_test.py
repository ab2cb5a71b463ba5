# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The command line, with the real driver."""

import json
import os
import plistlib
import re
import resource
import signal
import struct
import subprocess
import unittest

import displays
import session


class Ctl(session.Session):
    def assert_result(self, result, code, stdout="", stderr=""):
        self.assertEqual(result.returncode, code, result)
        self.assertIn(stdout, result.stdout)
        self.assertIn(stderr, result.stderr)

    def test_help_and_version(self):
        for option in ("--help", "-h"):
            self.assert_result(self.ctl(option), 0, "Usage: qvtbltctl COMMAND")
        self.assert_result(self.ctl("show", "--help"), 0, "Usage: qvtbltctl COMMAND")
        self.assertRegex(self.ctl("--version").stdout, r"^qvtbltctl \d+\.\d+\.\d+\n$")

    def test_help_and_manual_page_name_the_same_commands(self):
        manual = (session.SOURCE / "cli/qvtbltctl.1").read_text()
        for command in re.findall(r"^  ([\w-]+) ", self.ctl("--help").stdout, re.MULTILINE):
            self.assertIn(f"qvtbltctl {command}", manual.replace("\\-", "-"))

    def test_manual_page_is_well_formed(self):
        result = subprocess.run(
            ["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z",
             session.SOURCE / "cli/qvtbltctl.1"], capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_misuse_is_told_with_exit_code_2(self):
        for words in ([], ["what"], ["status", "x"], ["check"], ["set", "Pen/Speed"], ["--what"],
                      ["--json", "status"], ["show", "a", "b"], ["push", "now"], ["doctor", "x"], ["sim", "tap"],
                      ["usb-mode"], ["usb-mode", "slow"], ["sim", "tap", "1"],
                      ["sim", "tap", "1", "65536"]):
            with self.subTest(words):
                self.assert_result(self.ctl(*words), 2, "", "Try 'qvtbltctl --help'.")

    def test_misuse_says_what_is_missing_or_too_much(self):
        for words, why in ((["set"], "missing operand after 'set'"),
                           (["set", "Pen/Speed"], "missing operand after 'Pen/Speed'"),
                           (["set", "Pen/Speed", "1", "2"], "extra operand '2'"),
                           (["status", "x"], "extra operand 'x'"),
                           (["what", "x"], "there is no command 'what'"),
                           (["usb-mode", "slow"], "there is no report mode 'slow'"),
                           (["sim", "draw", "1", "1"], "there is no command 'sim draw'"),
                           ([], "a command is missing")):
            with self.subTest(words):
                self.assertTrue(self.ctl(*words).stderr.startswith(f"qvtbltctl: {why}\n"))

    def test_output_that_cannot_be_written_is_an_error(self):
        self.start_driver()
        for words in (["--help"], ["--version"], ["status"], ["show", self.config()],
                      ["show", "--json", self.config()], ["check", self.config()], ["push"],
                      ["set", "Pen/Speed", "5"], ["doctor"], ["doctor", "--json"]):
            with self.subTest(words), open("/dev/full", "w") as full:
                result = subprocess.run(
                    [str(session.BIN / "qvtbltctl"), *map(str, words)], env=self.env, text=True,
                    stdout=full, stderr=subprocess.PIPE, timeout=60)
                self.assertEqual(result.returncode, 1)
                self.assertTrue(result.stderr.endswith(
                    "qvtbltctl: write error: No space left on device\n"), result.stderr)

    def test_a_write_that_failed_before_the_end_is_an_error_without_a_cause(self):
        with open("/dev/full", "w") as full:
            result = subprocess.run(["stdbuf", "-o0", str(session.BIN / "qvtbltctl"), "--version"],
                                    env=self.env, text=True, stdout=full, stderr=subprocess.PIPE,
                                    timeout=60)
        self.assertEqual((result.returncode, result.stderr), (1, "qvtbltctl: write error\n"))

    def test_show_and_check_read_pipes_up_to_the_limit(self):
        self.stop_driver(self.start_driver())
        config = self.config().read_text()
        for words in (["show"], ["show", "--json"], ["check"]):
            expected = self.ctl(*words, self.config()).stdout
            for name in ("-", "/dev/stdin"):
                with self.subTest(words=words, name=name):
                    self.assert_result(
                        self.run_program(session.BIN / "qvtbltctl", *words, name, input=config), 0,
                        expected)
        self.assert_result(self.run_program(session.BIN / "qvtbltctl", "check", "-",
                                            input=" " * (16 * 1024 * 1024 + 1)), 1,
                           "larger than 16777216 bytes")

    def test_show_of_no_name_asks_no_driver(self):
        self.start_driver()
        self.ctl("push")
        self.assert_result(self.ctl("show", ""), 1, "", "No such file or directory")

    def test_usb_mode_says_that_there_is_no_such_tablet(self):
        result = self.ctl("usb-mode", "fast")
        self.assert_result(result, 1, "", "the driver does not answer, so the tablet is not known")
        self.start_driver()
        for mode in ("fast", "normal"):
            result = self.ctl("usb-mode", mode)
            self.assertEqual((result.returncode, result.stdout), (1, ""))
            # On a machine without USB, the message says so.
            self.assertRegex(
                result.stderr,
                r"there is no Quorvia Draft S \(product 20737\) on the USB bus\n$"
                r"|the USB bus cannot be searched\n$")

    def test_status_of_every_state(self):
        self.assert_result(self.ctl("status"), 1, "driver  does not answer\ntablet  unknown\n")
        driver = self.start_driver()
        self.assert_result(
            self.ctl("status"), 0,
            f"driver  running\ntablet  Quorvia Draft S (product 20737)\nfile    {self.config()}\n")
        self.config().write_text("broken")
        self.assert_result(self.ctl("status"), 1, "tablet  attached\nfile    cannot use ")
        self.config().unlink()
        self.assert_result(self.ctl("status"), 1, "No such file or directory")
        self.simulator("Detach")
        self.assert_result(self.ctl("status"), 1, "driver  running\ntablet  none attached\n")
        self.stop_driver(driver)

    def test_status_without_a_bus(self):
        self.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere"
        self.assert_result(self.ctl("status"), 1, "driver  does not answer\n")

    def test_show_prints_a_files_record(self):
        self.stop_driver(self.start_driver())
        result = self.ctl("show", self.config())
        self.assert_result(result, 0, "Tablet/TabletXmax         20320\n")
        self.assertEqual(len(result.stdout.splitlines()), 102)
        shown = json.loads(self.ctl("show", "--json", self.config()).stdout)
        self.assertEqual(shown, plistlib.loads(self.config().read_bytes()))

    def test_show_prints_what_the_driver_got_last(self):
        self.assert_result(self.ctl("show"), 1, "", "does not report its settings")
        self.start_driver()
        self.assert_result(self.ctl("show"), 1, "", "has not received any settings yet")
        self.ctl("set", "Monitor/cTabletXmax", "40000")
        self.assert_result(self.ctl("show"), 0, "Monitor/cTabletXmax       40000\n")
        self.assertEqual(json.loads(self.ctl("show", "--json").stdout)["Monitor"]["cTabletXmax"],
                         40000)

    def test_show_says_why_a_file_cannot_be_used(self):
        self.assert_result(self.ctl("show", "/nowhere.plist"), 1, "", "No such file")
        self.assert_result(self.ctl("show", "/"), 1, "", "Is a directory")

    def test_check_looks_at_every_entry(self):
        self.stop_driver(self.start_driver())
        self.assert_result(self.ctl("check", self.config()), 0, "102 of 102 entries are usable")
        config = plistlib.loads(self.config().read_bytes())
        config["Pen"]["Speed"] = "fast"
        config["Monitor"]["num"] = 70000
        config["Monitor"]["XOrg"] = 1.5
        config["Key"]["Key0"]["App"] = "/opt/caf\u00e9"
        config["Key"]["Key1"]["App"] = "x" * 256
        config["Key"]["Key2"]["Colour"] = "blue"
        del config["Key"]["penKeyL"]
        config["Future"] = {}
        self.config().write_bytes(plistlib.dumps(config))
        before = self.config().read_bytes()
        result = self.ctl("check", self.config())
        self.assertEqual(result.returncode, 1)
        for line in ("wrong     Pen/Speed: a string instead of a number",
                     "truncated Monitor/num: only 4464 of the number fits",
                     "truncated Monitor/XOrg: only 1 of the number fits",
                     "wrong     Key/Key0/App: longer than 255 characters, or not ASCII",
                     "wrong     Key/Key1/App: longer than 255 characters, or not ASCII",
                     "missing   Key/penKeyL/Valid",
                     "unknown   Future",
                     "unknown   Key/Key2/Colour",
                     "ok        Tablet/ProductID: 20737",
                     "93 of 102 entries are usable, 2 unknown ones are kept"):
            self.assertIn(line + "\n", result.stdout)
        self.assertEqual(self.config().read_bytes(), before)

    def test_check_says_when_a_file_is_no_configuration(self):
        path = self.home / "x.plist"
        path.write_text("<plist><dict>")
        self.assert_result(self.ctl("check", path), 1, "unusable  cannot use ")
        self.assert_result(self.ctl("check", self.home), 1, "Is a directory")

    def test_check_reads_a_terminal_up_to_its_end(self):
        keyboard, terminal = os.openpty()
        # Control-D on a line of its own ends the file, once.
        os.write(keyboard, b"<plist><dict/></plist>\n\x04")
        result = subprocess.run(
            [session.BIN / "qvtbltctl", "check", "-"], stdin=terminal, env=self.env,
            capture_output=True, text=True, timeout=session.PATIENCE)
        self.assertIn("0 of 102 entries are usable", result.stdout, result)
        os.close(keyboard)
        os.close(terminal)

    def doctor(self):
        """Returns the exit code, and the status of each stage."""
        result = self.ctl("doctor", "--json")
        told = json.loads(result.stdout)
        self.assertEqual(told["version"], 1)
        for stage in told["stages"]:
            self.assertEqual(set(stage), {"id", "status", "text", "remedy"})
            self.assertTrue(stage["text"])
            self.assertEqual(bool(stage["remedy"]), stage["status"] == "problem", stage)
        return result.returncode, {stage["id"]: stage["status"] for stage in told["stages"]}

    STAGES = ["bus", "driver", "answer", "tablet", "access", "holder", "file", "push", "module",
              "mapping"]

    def test_doctor_finds_nothing_wrong_with_a_simulated_tablet(self):
        self.start_driver()
        # A query has a quarter of a second, in which a busy machine may do something else.
        stages = session.wait_for(
            lambda: (found := self.doctor())[0] == 0 and found[1], "a good result")
        self.assertEqual(list(stages), self.STAGES)
        self.assertEqual(set(stages.values()), {"ok", "not checked"})
        self.assertEqual(stages["push"], "not checked")
        self.ctl("push")
        session.wait_for(lambda: self.doctor()[1]["push"] == "ok", "the push")
        self.assertIn("ok           bus      The session bus answers.\n", self.ctl("doctor").stdout)

    def test_doctor_says_what_is_wrong(self):
        code, stages = self.doctor()
        self.assertEqual((code, stages["driver"], stages["answer"]), (1, "problem", "not checked"))
        self.assert_result(self.ctl("doctor"), 1, "problem      driver   No driver is installed.\n"
                           "                      → Install the package tdsg-driver.\n")
        self.start_driver()
        self.simulator("Stall", "u", "2000")
        self.assertEqual(self.doctor()[1]["answer"], "problem")
        self.simulator("Stall", "u", "0")
        session.wait_for(lambda: self.doctor()[1]["answer"] == "ok", "the end of the stall", 20)
        self.config().write_text("broken")
        self.assertEqual(self.doctor()[1]["file"], "problem")
        self.config().unlink()
        self.assertEqual(self.doctor()[1]["file"], "problem")
        self.simulator("Detach")
        code, stages = self.doctor()
        self.assertEqual((code, stages["tablet"], stages["file"]), (1, "problem", "not checked"))

    def test_doctor_works_without_a_bus(self):
        self.env["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={self.folder}/none"
        code, stages = self.doctor()
        self.assertEqual((code, stages["bus"], stages["driver"]), (1, "problem", "not checked"))

    def test_doctor_speaks_the_users_language(self):
        self.env["LANGUAGE"] = "de"
        self.assert_result(self.ctl("doctor"), 1, "Der Sitzungsbus antwortet.")

    def test_doctors_stages_are_in_the_manual_page(self):
        manual = (session.SOURCE / "cli/qvtbltctl.1").read_text()
        for stage in self.STAGES:
            self.assertRegex(manual, rf"(?m)^\.B {stage}$")

    def test_push_sends_the_files_record(self):
        self.assert_result(self.ctl("push"), 1, "", "the driver does not answer")
        self.start_driver()
        self.assert_result(self.ctl("push"), 0, "pushed the settings of Quorvia Draft S",
                           "ConnectToDriver 0 0 0 0\nConnectToDriver ok\n")
        self.assertEqual(self.simulator("Pushes"), ["u", "1"])
        self.assertEqual(self.record()[0:4], bytes([0x3D, 0x6F, 0x01, 0x51]))
        self.simulator("Detach")
        self.assert_result(self.ctl("push"), 1, "", "no tablet is attached")

    def test_push_tells_when_the_driver_did_not_take_it(self):
        self.start_driver()
        # Far less than the time-out of a quarter of a second, which a busy machine uses up as well.
        self.simulator("Stall", "u", "20")
        self.assert_result(self.ctl("push"), 0)
        self.config().unlink()
        self.assert_result(self.ctl("push"), 1, "", "No such file")

    def test_set_reaches_the_driver_and_the_file(self):
        self.start_driver()
        before = plistlib.loads(self.config().read_bytes())
        self.assert_result(self.ctl("set", "Pen/PressureThreshold", "-5"), 0,
                           "set Pen/PressureThreshold to -5\n")
        self.assertEqual(self.record()[283:285], b"\xfb\xff")
        before["Pen"]["PressureThreshold"] = -5
        self.assertEqual(plistlib.loads(self.config().read_bytes()), before)
        self.assert_result(self.ctl("set", "Key/penKeyU/Key", "0x03063836"), 0)
        self.assertEqual(
            plistlib.loads(self.config().read_bytes())["Key"]["penKeyU"]["Key"], 0x03063836)
        self.assert_result(self.ctl("set", "Key/Key0/App", "--", "-h"), 0)
        self.assertEqual(plistlib.loads(self.config().read_bytes())["Key"]["Key0"]["App"], "-h")

    def test_set_takes_decimal_and_hexadecimal_numbers_and_no_others(self):
        self.start_driver()
        for value, number in (("010", 10), ("0x10", 16), ("-010", -10), ("-0X1f", -31), ("09", 9)):
            with self.subTest(value):
                self.assert_result(self.ctl("set", "Pen/Speed", value), 0)
                self.assertEqual(
                    plistlib.loads(self.config().read_bytes())["Pen"]["Speed"], number)

    def test_set_says_when_the_file_has_no_place_for_an_entry(self):
        self.start_driver()
        config = plistlib.loads(self.config().read_bytes())
        del config["Key"]["penKeyL"]
        del config["Pen"]
        self.config().write_bytes(plistlib.dumps(config))
        before = self.config().read_bytes()
        for entry in ("Key/penKeyL/Mouse", "Pen/Speed"):
            self.assert_result(
                self.ctl("set", entry, "1"), 1, "", f"the tablet's file has no dictionary for {entry}\n")
        self.assertEqual(self.config().read_bytes(), before)
        self.assertEqual(self.simulator("Pushes"), ["u", "0"])

    def start_with_area(self):
        """Starts the driver with a file that has a mapped area."""
        self.start_driver()
        config = plistlib.loads(self.config().read_bytes())
        config["Monitor"] |= {"XOrg": 5, "Width": 60, "YOrg": 7, "Height": 80}
        self.config().write_bytes(plistlib.dumps(config))

    def mapped_area(self):
        return struct.unpack("<hhhh", self.record()[295:303])  # XOrg, Width, YOrg, Height

    def test_the_files_area_stands_where_no_display_can_be_asked(self):
        self.start_with_area()
        for name in ("DISPLAY", "WAYLAND_DISPLAY"):
            with self.subTest(name):
                self.env[name] = ":98765" if name == "DISPLAY" else "nowhere"
                result = self.ctl("push")
                self.assert_result(result, 0)
                self.assertEqual(result.stderr, "ConnectToDriver 0 0 0 0\nConnectToDriver ok\n")
                self.assertEqual(self.mapped_area(), (5, 60, 7, 80))

    def test_set_refuses_what_is_no_setting_or_does_not_fit(self):
        self.start_driver()
        before = self.config().read_bytes()
        for entry, value, why in (
                ("Pen/Speeed", "5", "there is no entry Pen/Speeed"),
                ("Tablet/KeyNum", "5", "describes the tablet"),
                ("Pen/Speed", "fast", "'fast' is not a number"),
                ("Pen/Speed", "70000", "70000 does not fit"),
                ("Pen/Speed", "-32769", "-32769 does not fit"),
                ("Key/Key0/Key", "4294967296", "does not fit"),
                ("Key/Key0/App", "caf\u00e9", "must be ASCII"),
                ("Key/Key0/App", "x" * 256, "must be ASCII and at most 255"),
                ("Key/Key0/App", "a\x1bb", "must not contain control characters"),
                ("Pen/Speed", "", "'' is not a number"),
                ("Pen/Speed", "0b1", "'0b1' is not a number")):
            with self.subTest(entry=entry, value=value[:20]):
                self.assert_result(self.ctl("set", entry, value), 2, "", why)
        self.assertEqual(self.config().read_bytes(), before)
        self.assertEqual(self.simulator("Pushes"), ["u", "0"])

    def test_set_tells_when_the_file_cannot_be_written(self):
        self.start_driver()
        before = self.config().read_bytes()

        def forbid_long_files():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (1000, 1000))

        result = self.run_program(session.BIN / "qvtbltctl", "set", "Pen/Speed", "5",
                                  preexec_fn=forbid_long_files)
        self.assert_result(result, 1, "", f"cannot write {self.config()}: File too large")
        self.assertEqual(self.config().read_bytes(), before)
        self.assertEqual(list(self.config().parent.iterdir()), [self.config()])


class CtlOnDisplays(displays.Displays):
    start_with_area = Ctl.start_with_area
    mapped_area = Ctl.mapped_area

    def test_one_display_is_the_mapped_area_of_push_and_set_and_of_two_the_files(self):
        self.start_with_area()
        self.plug(1, "800x600", "1024x0")
        for words in (["push"], ["set", "Pen/Speed", "5"]):
            self.assertEqual(self.ctl(*words).returncode, 0)
            self.assertEqual(self.mapped_area(), (5, 60, 7, 80))
        self.xrandr("--output", "DUMMY1", "--off")
        for words in (["push"], ["set", "Pen/Speed", "6"]):
            self.assertEqual(self.ctl(*words).returncode, 0)
            self.assertEqual(self.mapped_area(), (0, 1024, 0, 768))
        monitor = plistlib.loads(self.config().read_bytes())["Monitor"]
        self.assertEqual((monitor["Width"], monitor["Height"]), (1024, 768))

    def test_the_users_choice_of_a_window_system_stands(self):
        self.start_with_area()
        for platform in ("minimal", "there-is-none"):
            with self.subTest(platform):
                self.env["QT_QPA_PLATFORM"] = platform
                self.assertEqual(self.ctl("push").returncode, 0)
                self.assertEqual(self.mapped_area(), (5, 60, 7, 80))
        self.env["QT_QPA_PLATFORM"] = "xcb"
        self.assertEqual(self.ctl("push").returncode, 0)
        self.assertEqual(self.mapped_area(), (0, 1024, 0, 768))


class CtlStartsTheDriver(session.Session):
    ACTIVATION = True

    def test_status_finds_a_driver_that_the_bus_has_to_start(self):
        session.wait_for(lambda: self.ctl("status").returncode == 0, "the driver")

    def test_lists_the_tablets_that_are_plugged_in(self):
        self.start_real_driver()
        listed = self.ctl("tablet", "list")
        self.assertEqual(listed.stdout, "no tablet is plugged in\n", listed.stderr)
        self.assertEqual(json.loads(self.ctl("tablet", "list", "--json").stdout), [])
        used = self.ctl("tablet", "use", "6f3d:5101")
        self.assertEqual(used.returncode, 1)
        self.assertIn("no tablet with the ID 6f3d:5101 is plugged in", used.stderr)

    def test_a_simulated_tablet_is_not_in_the_list(self):
        self.start_driver()
        self.assertEqual(self.ctl("tablet", "list").stdout, "no tablet is plugged in\n")
        used = self.ctl("tablet", "use", "6f3d:5101")
        self.assertEqual((used.returncode, used.stderr), (1, "qvtbltctl: the tablet is simulated\n"))

    def test_notices_are_on_until_they_are_turned_off(self):
        driver = self.start_real_driver()
        state = self.home / ".local/state/tdsg-driver/state.json"
        for word, areShown in (("off", False), ("on", True)):
            self.assertEqual(self.ctl("tablet", "notices", word).returncode, 0)
            self.assertEqual(json.loads(state.read_text())["notices"], areShown)
        self.assertEqual(self.ctl("tablet", "notices", "off").returncode, 0)
        self.stop_driver(driver)
        self.start_real_driver()
        self.assertFalse(json.loads(state.read_text())["notices"])

    def test_tablet_takes_only_its_own_operands(self):
        for words in (["tablet"], ["tablet", "use"], ["tablet", "list", "x"], ["tablet", "draw"],
                      ["tablet", "use", "x", "y"], ["tablet", "notices"],
                      ["tablet", "notices", "maybe"]):
            self.assertEqual(self.ctl(*words).returncode, 2, words)


if __name__ == "__main__":
    unittest.main()
