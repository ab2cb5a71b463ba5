# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The driver that comes with the panel, as a process on a real bus."""

import plistlib
import signal
import socket
import subprocess
import unittest

import session

QUERY = """uua(u(uv)) 0x636F7265 0x67657464 2
    0x72747970 0x74797065 ay 4 0x67 0x6e 0x6f 0x6c
    0x2D2D2D2D 0x6F626A20 a(u(uv)) 4
        0x77616E74 0x74797065 ay 4 0x70 0x6f 0x72 0x70
        0x666F726D 0x656E756D ay 4 0x70 0x6f 0x72 0x70
        0x73656C64 0x6C6F6E67 ay 8 0x47 0x46 0x43 0x51 0x67 0x53 0x64 0x54
        0x66726F6D 0x6E756C6C ay 0"""
PUSH = "uua(u(uv)) 0x54645367 0x57536E64 1 0x64617461 0x75746638 ay 5077" + " 0" * 5077

SLOTS = [f"Key{n}" for n in range(16)] + ["penKeyU", "penKeyL"]


class Driver(session.Session):
    def send(self, words):
        """Sends an event in busctl's form. Returns busctl's output."""
        result = self.run_program(
            "busctl", "--user", "call", session.DRIVER_NAME, *session.EVENTS, "Send",
            *words.split())
        return (result.stdout + result.stderr).strip()

    def test_answers_the_query_with_the_product_id(self):
        self.start_driver("20739")
        self.assertEqual(self.send(QUERY), "a(u(uv)) 1 757935405 1819242087 ay 4 3 81 0 0")

    def test_answers_0_without_a_tablet(self):
        self.start_driver("none")
        self.assertEqual(self.send(QUERY), "a(u(uv)) 1 757935405 1819242087 ay 4 0 0 0 0")

    def test_takes_the_short_form_of_the_key_data(self):
        self.start_driver()
        short = QUERY.replace("ay 8 0x47 0x46 0x43 0x51 0x67 0x53 0x64 0x54",
                              "ay 4 0x47 0x46 0x43 0x51")
        self.assertIn("ay 4 1 81 0 0", self.send(short))

    def test_refuses_every_other_form_of_the_query(self):
        driver = self.start_driver()
        variants = {
            "another requested type": QUERY.replace("0x67 0x6e 0x6f 0x6c", "0x74 0x72 0x68 0x73"),
            "requested type of another type": QUERY.replace("0x72747970 0x74797065",
                                                            "0x72747970 0x656E756D"),
            "direct object first": "uua(u(uv)) 0x636F7265 0x67657464 2 0x2D2D2D2D 0x6F626A20 ay 0"
                                   " 0x72747970 0x74797065 ay 4 0x67 0x6e 0x6f 0x6c",
            "no direct object": "uua(u(uv)) 0x636F7265 0x67657464 1 0x72747970 0x74797065 ay 4"
                                " 0x67 0x6e 0x6f 0x6c",
            "no parameters": "uua(u(uv)) 0x636F7265 0x67657464 0",
            "specifier of another type": QUERY.replace("0x6F626A20", "0x7265636F"),
            "another wanted class": QUERY.replace("0x77616E74 0x74797065 ay 4 0x70",
                                                  "0x77616E74 0x74797065 ay 4 0x71"),
            "another key form": QUERY.replace("0x656E756D ay 4 0x70", "0x656E756D ay 4 0x71"),
            "form of another type": QUERY.replace("0x666F726D 0x656E756D", "0x666F726D 0x74797065"),
            "key data of another type": QUERY.replace("0x73656C64 0x6C6F6E67",
                                                      "0x73656C64 0x74797065"),
            "another property": QUERY.replace("ay 8 0x47", "ay 8 0x48"),
            "another signature": QUERY.replace("0x53 0x64 0x54", "0x53 0x64 0x55"),
            "a container with data": QUERY.replace("0x6E756C6C ay 0", "0x6E756C6C ay 1 0"),
            "a container of another type": QUERY.replace("0x6E756C6C", "0x6F626A20"),
        }
        for what, words in variants.items():
            with self.subTest(what):
                self.assertNotEqual(words, QUERY)
                self.assertTrue(self.send(words).startswith("Call failed: "), self.send(words))
        said = self.stop_driver(driver)
        self.assertGreaterEqual(sum("rejected 'core'/'getd'" in line for line in said),
                                len(variants))

    def test_refuses_every_other_form_of_the_push(self):
        driver = self.start_driver()
        variants = {
            "a byte less": PUSH.replace("5077", "5076")[:-2],
            "a byte more": PUSH.replace("5077", "5078") + " 0",
            "another keyword": PUSH.replace("0x64617461", "0x64617462"),
            "another type": PUSH.replace("0x75746638", "0x74657874"),
            "no parameter": "uua(u(uv)) 0x54645367 0x57536E64 0",
            "a list": "uua(u(uv)) 0x54645367 0x57536E64 1 0x64617461 0x75746638 a(uv) 0",
        }
        for what, words in variants.items():
            with self.subTest(what):
                self.assertTrue(self.send(words).startswith("Call failed: "))
        self.assertEqual(self.simulator("Pushes"), ["u", "0"])
        self.assertEqual(self.send(PUSH), "a(u(uv)) 0")
        self.assertEqual(self.simulator("Pushes"), ["u", "1"])
        said = self.stop_driver(driver)
        self.assertEqual(sum("rejected 'TdSg'/'WSnd'" in line for line in said), len(variants))
        self.assertEqual(sum(line.startswith("push 1 from :") for line in said), 1)

    def test_says_what_arrived_one_line_each(self):
        driver = self.start_driver()
        self.send(QUERY)
        self.send(PUSH)
        changed = PUSH.split()
        changed[8 + 283] = "37"
        self.send(" ".join(changed))
        said = self.stop_driver(driver)
        self.assertEqual(said[0], f"installed {self.config()}")
        self.assertEqual(said[1:3], ["attached: Quorvia Draft S (product 20737)", "ready"])
        self.assertRegex(said[3], r"^query from :\d+\.\d+: 20737$")
        self.assertRegex(said[4], r"^push 1 from :\d+\.\d+: the first record$")
        self.assertRegex(said[5], r"^push 2 from :\d+\.\d+: Pen/PressureThreshold 0 -> 37$")
        self.assertEqual(said[6:], ["ended"])

    def test_installs_a_whole_configuration_file_for_every_model(self):
        self.start_driver("none")
        models = self.run_program(session.BIN / "tdsg-driver", "--list").stdout.splitlines()
        self.assertGreaterEqual(len(models), 3)
        for line in models:
            product = int(line.split()[0])
            with self.subTest(line):
                self.simulator("Attach", "q", str(product))
                config = plistlib.loads(self.config(product).read_bytes())
                self.assertEqual(sorted(config), ["Key", "Monitor", "Pen", "Tablet"])
                self.assertEqual(config["Tablet"]["ProductID"], product)
                self.assertEqual(set(SLOTS) - set(config["Key"]), set())
                self.assertEqual(self.config(product).stat().st_mode & 0o777, 0o600)
                check = self.ctl("check", self.config(product))
                self.assertEqual(check.returncode, 0, check.stdout)

    def test_never_touches_a_file_that_is_there(self):
        self.config().parent.mkdir(parents=True)
        for contents in (b"", b"not a list", b"<plist><dict></dict></plist>"):
            self.config().write_bytes(contents)
            said = self.stop_driver(self.start_driver("20737"))
            self.assertEqual(self.config().read_bytes(), contents)
            self.assertFalse(any("installed" in line for line in said))

    def test_leaves_a_broken_link_alone(self):
        self.config().parent.mkdir(parents=True)
        self.config().symlink_to(self.home / "nowhere")
        self.stop_driver(self.start_driver("20737"))
        self.assertTrue(self.config().is_symlink())
        self.assertFalse((self.home / "nowhere").exists())

    def test_says_why_it_cannot_install_the_file(self):
        (self.home / "Library").write_text("in the way")
        driver = self.run_program(session.BIN / "tdsg-driver", "--simulate", "20737")
        self.assertEqual(driver.returncode, 1)
        self.assertIn("cannot create the folder", driver.stderr)

    def test_forgets_nothing_when_it_is_told_to_end(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                driver = self.start_driver("20738")
                before = int(self.simulator("Pushes")[1])
                pushed = PUSH.split()
                pushed[8 + 319] = str(int(number))
                self.send(" ".join(pushed))
                self.assertEqual(self.stop_driver(driver, number)[-1], "ended")
                driver = self.start_driver()
                self.assertEqual(self.simulator("Attached"), ["q", "20738"])
                self.assertEqual(self.simulator("Pushes"), ["u", str(before + 1)])
                self.assertEqual(self.record()[319], int(number))
                self.stop_driver(driver)

    def test_remembers_also_that_nothing_was_attached(self):
        driver = self.start_driver()
        self.simulator("Detach")
        self.stop_driver(driver)
        self.start_driver()
        self.assertEqual(self.simulator("Attached"), ["q", "0"])

    def test_starts_afresh_with_a_state_that_it_cannot_read(self):
        state = self.home / ".local/state/tdsg-driver/state.json"
        state.parent.mkdir(parents=True)
        for contents in ("", "{", "[]", '{"attached": "x", "record": 5}', '{"attached": 70000}',
                         '{"attached": 5}'):
            state.write_text(contents)
            with self.subTest(contents):
                said = self.stop_driver(self.start_driver())
                self.assertIn(f"starting afresh: {state} is not a state of this driver", said)

    def test_attaches_only_models_that_there_are(self):
        self.start_driver()
        result = self.run_program(
            "busctl", "--user", "call", session.DRIVER_NAME, *session.SIMULATOR, "Attach",
            "q", "5")
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("no model with product 5", result.stderr)
        self.assertEqual(self.simulator("Attached"), ["q", "20737"])
        for wrong in ("5", "x", ""):
            driver = self.run_program(session.BIN / "tdsg-driver", "--simulate", wrong)
            self.assertEqual(driver.returncode, 1, wrong)

    def test_decodes_the_last_record(self):
        self.start_driver()
        self.assertEqual(self.simulator("LastRecord"), ["ay", "0"])
        self.assertEqual(self.simulator("LastRecordDecoded"), ["a{sv}", "0"])
        self.ctl("set", "Key/Key3/App", "/usr/bin/krita")
        decoded = " ".join(self.simulator("LastRecordDecoded"))
        self.assertIn('"Key/Key3/App" s "/usr/bin/krita"', decoded)
        self.assertIn('"Tablet/ProductID" x 20737', decoded)
        self.assertTrue(decoded.startswith("a{sv} 102 "))

    def test_stalls_when_told(self):
        self.start_driver()
        self.simulator("Stall", "u", "600")
        self.assertEqual(self.ctl("status").returncode, 1)
        self.simulator("Stall", "u", "0")
        self.assertEqual(self.ctl("status").returncode, 0)

    def test_signals_what_happens(self):
        self.start_driver()
        monitor = self.start(
            ["gdbus", "monitor", "--session", "--dest", session.DRIVER_NAME],
            stdout=subprocess.PIPE)
        while "is owned by" not in monitor.stdout.readline():
            pass
        self.simulator("Attach", "q", "20739")
        # After the signals of the driver's start.
        while "AttachedChanged (uint16 20739,)" not in monitor.stdout.readline():
            pass
        self.assertIn("/org/quorvia/AppleEvents: org.quorvia.AppleEvents1.Changed ()",
                      monitor.stdout.readline())
        changed = monitor.stdout.readline()
        self.assertIn("/org/quorvia/Tablet: org.freedesktop.DBus.Properties.PropertiesChanged "
                      "('org.quorvia.Tablet1', {", changed)
        self.assertIn("'Name': <'Quorvia Draft L'>", changed)
        self.assertIn("'ProductID': <uint16 20739>", changed)
        self.send(PUSH)
        self.assertIn("Pushed (uint32 1,)", monitor.stdout.readline())
        self.simulator("Press", "qb", "3", "true")
        self.assertIn("org.quorvia.Tablet1.ButtonChanged (uint16 3, true)",
                      monitor.stdout.readline())

    def property(self, name):
        """Returns a property of the tablet's object."""
        result = self.run_program("busctl", "--user", "get-property", session.DRIVER_NAME,
                                  *session.TABLET, name)
        return result.stdout.strip()

    def test_describes_its_tablet(self):
        self.start_driver("20739")
        self.assertEqual(self.property("Name"), 's "Quorvia Draft L"')
        self.assertEqual(self.property("VendorID"), "q 28477")
        self.assertEqual(self.property("ProductID"), "q 20739")
        self.assertEqual(self.property("State"), 's "attached"')
        self.simulator("Detach")
        self.assertEqual(self.property("Name"), 's ""')
        self.assertEqual(self.property("State"), 's "none"')

    def test_without_simulation_there_is_nothing_to_simulate(self):
        self.start_real_driver()
        self.assertEqual(self.property("State"), 's "none"')
        self.assertEqual(self.simulator("Attached"), ["q", "0"])
        for call in (("Attach", "q", "20737"), ("Detach",), ("Tap", "qq", "1", "1"), ("Models",)):
            result = self.run_program(
                "busctl", "--user", "call", session.DRIVER_NAME, *session.SIMULATOR, *call)
            self.assertNotEqual(result.returncode, 0, call)
        listed = self.run_program(session.BIN / "tdsg-driver", "--list-tablets")
        self.assertEqual(listed.stdout, "no tablet is plugged in\n")

    def test_tells_the_watchdog_that_it_is_well(self):
        path = self.folder / "notify"
        with socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM) as watchdog:
            watchdog.bind(str(path))
            watchdog.settimeout(session.PATIENCE)
            self.env |= {"NOTIFY_SOCKET": str(path), "WATCHDOG_USEC": "200000"}
            self.start_real_driver()
            for _ in range(3):
                self.assertEqual(watchdog.recv(100), b"WATCHDOG=1")

    def test_ends_with_its_bus(self):
        driver = self.start_driver()
        bus = session.wait_for(
            lambda: subprocess.run(["pgrep", "-f", f"config-file={self.folder}"],
                                   capture_output=True, text=True).stdout.split(), "the bus")
        subprocess.run(["kill", *bus], check=True)
        self.assertEqual(driver.wait(timeout=session.PATIENCE), 0)


if __name__ == "__main__":
    unittest.main()
