# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""A session for tests of whole programs: a private bus, a new home folder, the programs of the
build."""

import os
import pathlib
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

STAGE = pathlib.Path(os.environ["QVTBLT_STAGE"])
BIN = pathlib.Path(os.environ["QVTBLT_STAGE_BIN"])
SERVICES = pathlib.Path(os.environ["QVTBLT_STAGE_SERVICES"])
SOURCE = pathlib.Path(__file__).resolve().parent.parent.parent

# How long a wait lasts before it fails, in seconds. It ends with its event, so this costs nothing, and
# a machine that is busy with something else may take long.
PATIENCE = 60

DRIVER_NAME = "org.quorvia.AppleEvents.TdSg"
# Objects of the driver with their interfaces.
EVENTS = ("/org/quorvia/AppleEvents", "org.quorvia.AppleEvents1")
TABLET = ("/org/quorvia/Tablet", "org.quorvia.Tablet1")
SIMULATOR = ("/org/quorvia/TabletSimulator", "org.quorvia.TabletSimulator1")

BUS_CONFIG = """<busconfig><type>session</type><listen>unix:path={folder}/bus</listen>{services}
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/>
</policy><limit name="max_replies_per_connection">50000</limit></busconfig>"""


def wait_for(condition, what, seconds=PATIENCE):
    """Waits until the condition returns something true, and returns that. For events of other
    processes that send no word."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


def read_line(pipe, what, seconds=PATIENCE):
    """Waits for the next line of a program, and returns it without its end."""
    def give_up(*_):
        raise AssertionError(f"waited in vain for {what}")

    before = signal.signal(signal.SIGALRM, give_up)
    signal.alarm(seconds)
    try:
        line = pipe.readline()
    finally:
        signal.alarm(0)
        signal.signal(signal.SIGALRM, before)
    if not line:
        raise AssertionError(f"the program ended before {what}")
    return line.rstrip("\n")


class Session(unittest.TestCase):
    """Each test has its own bus, home folder and environment."""

    ACTIVATION = False

    def run(self, result=None):
        """Runs the test. After a failure, keeps a screenshot and the programs' standard error, and
        prints the command that repeats this test alone."""
        self.errors = []
        self.result = result
        self.failures_before = len(result.failures) + len(result.errors)
        super().run(result)
        if self.has_failed():
            logs = self.failure_folder() / "programs.log"
            logs.parent.mkdir(parents=True, exist_ok=True)
            logs.write_text("\n".join(self.errors))
            print(*self.errors, f"What was there instead is in {logs.parent}",
                  f"To repeat it: {self.command()}", sep="\n", file=sys.stderr)
        return result

    def has_failed(self):
        return len(self.result.failures) + len(self.result.errors) > self.failures_before

    def failure_folder(self):
        """Returns the folder of the build that keeps what this test leaves when it fails."""
        return STAGE.parent / "failures" / self.id().removeprefix("__main__.")

    def command(self):
        """Returns the command that runs this test alone."""
        settings = [f"{name}={shlex.quote(os.environ[name])}" for name in (
            "PYTHONPATH", "QVTBLT_STAGE", "QVTBLT_STAGE_BIN", "QVTBLT_STAGE_SERVICES",
            "ASAN_OPTIONS") if name in os.environ]
        name = self.id().removeprefix("__main__.")
        arguments = [word for word in sys.orig_argv if word != name]
        return " ".join([*settings, shlex.join([*arguments, name])])

    def doCleanups(self):
        """After a failure, takes a screenshot while everything is still there."""
        if self.has_failed():
            folder = self.failure_folder()
            shutil.rmtree(folder, ignore_errors=True)
            folder.mkdir(parents=True)
            try:
                self.take_picture(folder)
            except Exception as error:  # the failure may be that there is nothing to see
                self.errors.append(f"There is no picture: {error}")
        return super().doCleanups()

    def take_picture(self, folder):
        """Saves screenshots in the folder; without a screen there are none."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="qvtblt-test-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.home = self.folder / "home"
        runtime = self.folder / "runtime"
        self.home.mkdir()
        runtime.mkdir(mode=0o700)
        services = f"<servicedir>{SERVICES}</servicedir>" if self.ACTIVATION else ""
        config = self.folder / "bus.conf"
        config.write_text(BUS_CONFIG.format(folder=self.folder, services=services))
        self.env = {
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.folder}/bus",
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "PATH": f"{BIN}:/usr/local/bin:/usr/bin:/bin",
            "XDG_RUNTIME_DIR": str(runtime),
        }
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                self.env[name] = os.environ[name]
        # At the end of a program with running threads, the leak checker itself fails once in a few
        # hundred times. The C++ tests check the same code for leaks.
        self.env["ASAN_OPTIONS"] = self.env.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
        bus = self.start(
            ["dbus-daemon", "--nofork", "--nosyslog", "--print-address", f"--config-file={config}"],
            stdout=subprocess.PIPE)
        self.assertTrue(bus.stdout.readline())

    def start(self, command, **options):
        """Starts a program, which is ended with its children at the end of the test. If the test
        fails, its standard error is shown, as far as the test has not read it."""
        options.setdefault("text", True)
        log = tempfile.TemporaryFile("w+", errors="replace")
        options.setdefault("stderr", log)
        program = subprocess.Popen([str(word) for word in command], env=self.env,
                                   start_new_session=True, **options)
        self.addCleanup(self.read_log, program, log)
        self.addCleanup(self.end, program, log)
        return program

    @staticmethod
    def end(program, log=None):
        try:
            os.killpg(program.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass  # all of them have ended
        _, unread = program.communicate()
        if log is not None:
            log.write(unread or "")

    def read_log(self, program, log):
        with log:
            log.seek(0)
            text = log.read()
        self.errors.append(f"{program.args[0]} ended with {program.returncode}: {text}")
        # A sanitizer aborts a program, which not every test would notice.
        self.assertIsNone(re.search("Sanitizer|runtime error:", text), text)

    def start_driver(self, *arguments):
        """Starts the driver with a simulated tablet and returns the process; its stdout has its
        messages."""
        return self.start_and_await_driver("--simulate", *arguments)

    def start_real_driver(self, *arguments):
        """Starts the driver for real tablets, on a machine without any."""
        (self.folder / "devices").mkdir(exist_ok=True)
        self.env |= {"LD_PRELOAD": "libumockdev-preload.so.0",
                     "UMOCKDEV_DIR": str(self.folder / "devices")}
        return self.start_and_await_driver(*arguments)

    def start_and_await_driver(self, *arguments):
        driver = self.start([BIN / "tdsg-driver", *arguments], stdout=subprocess.PIPE)
        driver.said = []
        while not driver.said or driver.said[-1] != "ready":
            line = driver.stdout.readline()
            self.assertTrue(line, f"the driver ended: {driver.said}")
            driver.said.append(line.rstrip("\n"))
        return driver

    def stop_driver(self, driver, number=signal.SIGTERM):
        """Ends the driver with a signal and returns all its output."""
        driver.send_signal(number)
        rest, _ = driver.communicate(timeout=PATIENCE)
        driver.said += rest.splitlines()
        return driver.said

    def run_program(self, *command, **options):
        """Runs a program to its end."""
        return subprocess.run([str(word) for word in command], env=self.env, text=True,
                              capture_output=True, timeout=2 * PATIENCE, **options)

    def ctl(self, *arguments):
        return self.run_program(BIN / "qvtbltctl", *arguments)

    def patient_ctl(self, *arguments):
        """Runs qvtbltctl, and again where the driver was too slow for it: it waits for a quarter of a
        second, which may pass on a busy machine."""
        def attempt():
            result = self.ctl(*arguments)
            is_late = re.search(r"the driver does not answer|\(error -1712\)", result.stderr)
            return None if is_late else result
        return wait_for(attempt, "a driver that answers qvtbltctl in time")

    def simulator(self, method, *arguments):
        """Calls the simulator with arguments in busctl's form, and returns the words of the
        reply."""
        result = self.run_program(
            "busctl", "--user", "call", DRIVER_NAME, *SIMULATOR, method, *arguments)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout.split()

    def record(self):
        """Returns the bytes of the driver's last record."""
        return bytes(int(byte) for byte in self.simulator("LastRecord")[2:])

    def config(self, number=20737):
        """Returns the path of a configuration file."""
        return self.home / "Library/Preferences/QuorviaTablet/config" / f"{number}.plist"
