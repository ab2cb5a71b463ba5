# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""What the tests in the virtual machine share: buses, a driver, a tablet, and what becomes of its
events."""

import collections
import itertools
import os
import pathlib
import re
import select
import shutil
import signal
import struct
import subprocess
import sys
import time
import unittest

from gi.repository import Gio, GLib

import session
from tablet import KEYS, PRESSURE_MAX, Tablet

FOLDER = pathlib.Path("/run/test")
HERE = pathlib.Path(__file__).resolve().parent
# How long a wait lasts before it fails, in seconds: everything is slow here.
PATIENCE = 5 * session.PATIENCE
PEN, KEYBOARD, POINTER = (f"Quorvia Virtual {name}" for name in ("Pen", "Keyboard", "Pointer"))

# Names that the header gives to the first code of a range; the second name is the one to use.
RANGES = {"BTN_MISC", "BTN_MOUSE", "BTN_JOYSTICK", "BTN_GAMEPAD", "BTN_DIGI", "BTN_WHEEL"}
TYPES = {"SYN": 0, "KEY": 1, "BTN": 1, "REL": 2, "ABS": 3, "MSC": 4}


def read_codes():
    """Returns the names of the kernel's event codes."""
    header = pathlib.Path("/usr/include/linux/input-event-codes.h").read_text()
    names = {}
    for name, number in re.findall(r"^#define\s+((?:SYN|KEY|BTN|REL|ABS|MSC)_\w+)\s+(\w+)\s", header,
                                   re.MULTILINE):
        if name not in RANGES and re.fullmatch("0x[0-9a-f]+|[0-9]+", number):
            names.setdefault((TYPES[name[:3]], int(number, 0)), name)
    return names


CODES = read_codes()


def pump():
    """Handles what the buses have brought."""
    while GLib.MainContext.default().iteration(False):
        pass


def wait_for(condition, what):
    """Waits until the condition returns something true, and returns that."""
    def pumped():
        pump()
        return condition()
    return session.wait_for(pumped, what, PATIENCE)


class Node:
    """A device of the driver: reads the frames that it gets. A frame is a list of names and values; the
    state is what they add up to."""

    EVENT = struct.Struct("=qqHHi")

    def __init__(self, name):
        self.path = wait_for(lambda: self.find(name), f"the device {name}")
        self.file = os.open(self.path, os.O_RDONLY | os.O_NONBLOCK | os.O_CLOEXEC)
        self.state = collections.defaultdict(int)
        self.frames = []  # those that no test has taken yet
        self.begun = []
        self.is_gone = False

    @staticmethod
    def find(name):
        for file in pathlib.Path("/sys/class/input").glob("event*/device/name"):
            if file.read_text() == name + "\n":
                return f"/dev/input/{file.parent.parent.name}"
        return None

    def close(self):
        os.close(self.file)

    def read(self):
        """Reads what there is."""
        while not self.is_gone:
            try:
                data = os.read(self.file, 64 * self.EVENT.size)
            except BlockingIOError:
                return
            except OSError:
                self.is_gone = True
                return
            for _, _, kind, code, value in self.EVENT.iter_unpack(data):
                name = CODES[kind, code]
                if name == "SYN_REPORT":
                    self.frames.append(self.begun)
                    self.begun = []
                elif name == "SYN_DROPPED":
                    raise AssertionError(f"events of {self.path} were lost")
                else:
                    self.state[name] = value
                    self.begun.append((name, value))

    def wait(self, condition, what):
        """Waits for frames until the condition is true."""
        end = time.monotonic() + PATIENCE
        self.read()
        while not condition():
            left = end - time.monotonic()
            if left < 0:
                raise AssertionError(f"waited in vain for {what}; there were {self.frames}")
            if self.is_gone:
                raise AssertionError(f"the device was gone before {what}; there were {self.frames}")
            select.select([self.file], [], [], left)
            self.read()

    def wait_for(self, name, value):
        """Waits for a frame with this event."""
        self.wait(lambda: any((name, value) in frame for frame in self.frames), f"{name} {value}")

    def take(self):
        """Returns the frames that have arrived, without their times."""
        self.read()
        frames, self.frames = self.frames, []
        return [[event for event in frame if event[0] != "MSC_TIMESTAMP"] for frame in frames]


class Program:
    """A program, and the lines that it has printed. They go to a file, so that those that it printed
    before anything else happened are there when that is seen."""

    COUNT = itertools.count()

    def __init__(self, command, env=None, **options):
        path = FOLDER / f"output-{next(self.COUNT)}"
        with path.open("w") as output:
            self.process = subprocess.Popen([str(word) for word in command], env=env, stdout=output,
                                            stderr=subprocess.STDOUT, text=True, **options)
        self.follow(path)

    def follow(self, path):
        self.output = path.open()
        self.rest = ""
        self.known = []

    @property
    def lines(self):
        *lines, self.rest = (self.rest + self.output.read()).split("\n")
        self.known += lines
        return self.known

    def wait(self, wanted, begin=0):
        """Waits for a line that has this text; returns its number."""
        def find():
            return next((number + 1 for number, line in enumerate(self.lines[begin:], begin)
                         if wanted in line), None)
        try:
            return wait_for(find, wanted) - 1
        except AssertionError as error:
            raise AssertionError(f"{error}; there were {self.lines[begin:]}") from None

    def end(self, number=signal.SIGKILL):
        self.process.send_signal(number)
        return self.process.wait(timeout=PATIENCE)


def make_program(name, text):
    """Returns the path of a new executable file."""
    path = FOLDER / name
    path.write_text(text)
    path.chmod(0o755)
    return path


class Record:
    """The settings of docs/driver-protocol.md, for a tablet: everything is plain, but the last key is
    F12."""

    FIELDS = {
        "VendorID": (0, "H"), "ProductID": (2, "H"), "KeyNum": (8, "h"), "ScrollNum": (10, "h"),
        "PressureMax": (12, "h"), "TabletXmin": (14, "H"), "TabletXmax": (16, "H"),
        "TabletYmin": (18, "H"), "TabletYmax": (20, "H"), "PressureThreshold": (283, "h"),
        "rotationFlag": (291, "h"), "disableFlag": (293, "h"), "XOrg": (295, "h"),
        "Width": (297, "h"), "YOrg": (299, "h"), "Height": (301, "h"), "cTabletXmin": (303, "H"),
        "cTabletXmax": (305, "H"), "cTabletYmin": (307, "H"), "cTabletYmax": (309, "H"),
        "Scrollbar0": (5071, "h"), "Scrollbar1": (5073, "h"), "ScrollSpeed": (5075, "h"),
    }
    LAST = KEYS - 1
    UPPER, LOWER = 16, 17

    def __init__(self, tablet, **fields):
        self.bytes = bytearray(5077)
        self.set(VendorID=tablet.vendor, ProductID=tablet.product, KeyNum=KEYS, ScrollNum=2,
                 PressureMax=PRESSURE_MAX, TabletXmax=tablet.x_max, TabletYmax=tablet.y_max,
                 cTabletXmax=tablet.x_max, cTabletYmax=tablet.y_max, PressureThreshold=100,
                 ScrollSpeed=5)
        self.combination(self.LAST, 111)
        self.set(**fields)

    def set(self, **fields):
        for name, value in fields.items():
            offset, form = self.FIELDS[name]
            struct.pack_into("=" + form, self.bytes, offset, value)
        return self

    def slot(self, number, valid, mouse=0, key=0, app=""):
        struct.pack_into(
            "=hhI256s", self.bytes, 319 + 264 * number, valid, mouse, key, str(app).encode())
        return self

    def combination(self, number, *codes):
        padded = [*codes, 0, 0, 0][:3]
        return self.slot(number, 3, key=int.from_bytes(bytes([*padded, len(codes)]), "little"))


def connect(address):
    """Returns a new connection to a bus."""
    return Gio.DBusConnection.new_for_address_sync(
        address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
        | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None)


class Bus:
    """A private bus."""

    def __init__(self, name):
        config = FOLDER / f"{name}.conf"
        (FOLDER / name).mkdir(exist_ok=True)
        config.write_text(session.BUS_CONFIG.format(folder=FOLDER / name, services=""))
        self.daemon = Program(["dbus-daemon", "--nofork", "--nosyslog", "--print-address",
                             f"--config-file={config}"])
        self.daemon.wait("unix:")
        self.address = f"unix:path={FOLDER / name}/bus"

    def connect(self):
        return connect(self.address)


class World:
    """The machine: buses, libinput, a driver with a tablet. There is one for all tests, since starting
    programs takes long here."""

    def __init__(self):
        shutil.rmtree(FOLDER, ignore_errors=True)
        self.home = FOLDER / "home"
        (FOLDER / "runtime").mkdir(parents=True, mode=0o700)
        self.home.mkdir()
        # Its hundreds of files, which libinput reads for each tablet, take too long to read here; there
        # is nothing about these tablets in them.
        wacom = pathlib.Path("/usr/share/libwacom")
        if wacom.exists() and not os.path.ismount(wacom):
            subprocess.run(["mount", "-t", "tmpfs", "tmpfs", wacom], check=True)
        shutil.copy(session.SOURCE / "packaging/tdsg-driver.quirks", "/usr/share/libinput")
        self.libinput = Program(["stdbuf", "-oL", "libinput", "debug-events", "--show-keycodes"])
        self.system = Bus("system")
        self.session = Bus("session")
        self.env = {
            "DBUS_SESSION_BUS_ADDRESS": self.session.address,
            "DBUS_SYSTEM_BUS_ADDRESS": self.system.address,
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "PATH": f"{session.BIN}:/usr/local/bin:/usr/bin:/bin",
            "XDG_RUNTIME_DIR": str(FOLDER / "runtime"),
        }
        self.logind = Program([sys.executable, HERE / "logind.py"], self.env, stdin=subprocess.PIPE)
        self.bus = self.session.connect()
        self.driver = self.tablet = None
        self.nodes = {}
        self.logind.wait("ready")

    def make(self):
        """Starts a driver, with nothing but the tablet."""
        self.start_driver()
        self.plug(Tablet())

    def end(self):
        """Ends the driver, and unplugs the tablet."""
        if self.driver.process and self.driver.process.poll() is None:
            self.driver.end()
        self.drop_tablet()

    def drop_tablet(self):
        """Unplugs the tablet, when the driver has ended."""
        for node in self.nodes.values():
            node.close()
        self.nodes = {}
        if self.tablet:
            self.tablet.unplug()
        wait_for(lambda: not any(map(Node.find, (PEN, KEYBOARD, POINTER, "Test Tablet")))
                 and not self.known_to_libinput(), "the end of the devices")

    def start_driver(self, **env):
        self.driver = Program([session.BIN / "tdsg-driver"], self.env | env)
        self.driver.wait("ready")

    def plug(self, tablet):
        """Takes a tablet that is plugged in and that the driver uses."""
        self.tablet = tablet
        self.wait_until_used(tablet)

    def tablets(self):
        tablets, = self.call(*session.TABLET, "Tablets").unpack()
        return tablets

    def wait_until_used(self, tablet):
        # Perhaps it is used before its second interface is there, and then once more.
        wait_for(lambda: any(
            each["id"] == tablet.id and each["inUse"] and each.get("keys") == tablet.keys_count
            for each in self.tablets()), f"the use of {tablet.name}")
        begin = max(number for number, line in enumerate(self.driver.lines)
                    if line.startswith(f"attached: {tablet.name}"))
        self.driver.wait(f"{tablet.name} obeys the settings", begin)
        for node in self.nodes.values():
            node.close()
        self.nodes = {name: Node(name) for name in (PEN, KEYBOARD, POINTER)}
        # It would miss what happens before it has opened them.
        devices = {os.path.basename(node.path): name for name, node in self.nodes.items()}
        wait_for(lambda: self.known_to_libinput() == devices, "libinput to have the devices")

    def known_to_libinput(self):
        """Returns the names of the virtual devices that libinput has, by those of their nodes."""
        names = {}
        for line in self.libinput.lines:
            if found := re.match(rf"[- ](event\d+)\s+DEVICE_(\w+)\s+({PEN}|{KEYBOARD}|{POINTER})\s", line):
                node, event, name = found.groups()
                if event == "ADDED":
                    names[node] = name
                else:
                    names.pop(node, None)
        return names

    def call(self, path, interface, method, arguments=None, bus=None):
        return (bus or self.bus).call_sync(
            session.DRIVER_NAME, path, interface, method, arguments, None,
            Gio.DBusCallFlags.NO_AUTO_START, 1000 * PATIENCE)

    def push(self, record, bus=None):
        """Pushes a record; what the tablet does from here on obeys it."""
        data = GLib.Variant.new_from_bytes(GLib.VariantType("ay"), GLib.Bytes(bytes(record.bytes)), True)
        self.call(*session.EVENTS, "Send", GLib.Variant("(uua(u(uv)))", (
            0x54645367, 0x57536E64, [(0x64617461, (0x75746638, data))])), bus)

    def property(self, name):
        return self.call(session.TABLET[0], "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (session.TABLET[1], name))).unpack()[0]

    def wait_for_state(self, state):
        wait_for(lambda: self.property("State") == state, f"the state {state}")

    def tell_logind(self, line):
        begin = len(self.logind.lines)
        self.logind.process.stdin.write(line + "\n")
        self.logind.process.stdin.flush()
        self.logind.wait(line, begin)

    def run(self, *command):
        """Runs a program to its end."""
        return subprocess.run([str(word) for word in command], env=self.env, text=True,
                              capture_output=True, timeout=2 * PATIENCE, check=False)


class Service(Program):
    """A program that someone else starts, again and again."""

    def __init__(self, path):
        path.touch()
        self.process = None
        self.follow(path)


class ServiceManager:
    """A user's service manager, that the world uses with its bus until its end."""

    def __init__(self, world):
        self.world = world
        self.before = (world.env, world.bus)
        units = world.home / ".config/systemd/user"
        units.mkdir(parents=True)
        self.log = FOLDER / "service.log"
        (units / "dbus.socket").write_text("[Socket]\nListenStream=%t/bus\n")
        (units / "dbus.service").write_text(
            "[Service]\nType=notify\nExecStart=/usr/bin/dbus-daemon --session --address=systemd: "
            "--nofork --nopidfile --systemd-activation\n")
        unit = (session.SOURCE / "packaging/tdsg-driver.service.in").read_text()
        unit = unit.replace("ConditionUser=!@system\n", "")  # there is only root here
        (units / "tdsg-driver.service").write_text(
            unit.replace("@QVTBLT_DRIVER@", str(session.BIN / "tdsg-driver"))
            + f"StandardOutput=append:{self.log}\nStandardError=append:{self.log}\n")
        groups = pathlib.Path("/sys/fs/cgroup")
        if not os.path.ismount(groups):
            subprocess.run(["mount", "-t", "cgroup2", "cgroup2", groups], check=True)
        pathlib.Path("/run/systemd/system").mkdir(parents=True, exist_ok=True)  # as systemd does
        runtime = pathlib.Path(world.env["XDG_RUNTIME_DIR"])
        world.env = world.env | {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={runtime}/bus"}
        self.program = Program(["/lib/systemd/systemd", "--user", "--unit=basic.target"], world.env)
        wait_for((runtime / "systemd/private").exists, "the service manager")
        self.control("start", "dbus.service")
        world.bus = connect(world.env["DBUS_SESSION_BUS_ADDRESS"])

    def control(self, *words):
        result = self.world.run("systemctl", "--user", *words)
        if result.returncode != 0:
            raise AssertionError(f"{words}: {result.stderr} {self.program.lines}")
        return result.stdout.strip()

    def start_driver(self):
        self.world.driver = Service(self.log)
        self.control("start", "tdsg-driver.service")
        self.world.driver.wait("ready")

    def driver(self, name):
        """Returns a property of the driver's unit, in its plain form."""
        return self.control("show", "--value", f"--property={name}", "tdsg-driver.service")

    def end(self):
        self.control("stop", "tdsg-driver.service")
        self.world.drop_tablet()
        self.program.end(signal.SIGTERM)
        self.world.env, self.world.bus = self.before


class TestCase(unittest.TestCase):
    """A test with a driver and its tablet, at rest, with plain settings."""

    world = None

    def run(self, result=None):
        """Runs the test. After a failure, shows what the driver said and begins anew."""
        failures, errors = len(result.failures), len(result.errors)
        begin = time.monotonic()
        super().run(result)
        new = result.failures[failures:] + result.errors[errors:]
        if new:
            print(*(text for _, text in new), sep="\n", file=sys.stderr)
            for name, program in (("driver", self.world.driver), ("libinput", self.world.libinput)):
                print(f"The {name} said:", *program.lines[-12:], sep="\n    ", file=sys.stderr)
            self.renew()
        print(f"    {time.monotonic() - begin:.1f} s", file=sys.stderr)
        return result

    def setUp(self):
        self.record = Record(self.tablet)
        self.push()
        self.take()

    def renew(self):
        """Begins anew with a driver, for a test that has ended it."""
        self.world.end()
        for line in ("Active 1", "LockedHint 0", "PrepareForSleep 0"):
            self.world.tell_logind(line)
        self.world.make()

    @property
    def tablet(self):
        return self.world.tablet

    @property
    def pen(self):
        return self.world.nodes[PEN]

    @property
    def keyboard(self):
        return self.world.nodes[KEYBOARD]

    @property
    def pointer(self):
        return self.world.nodes[POINTER]

    def push(self, **fields):
        self.world.push(self.record.set(**fields))

    def press(self, *keys):
        """Presses keys, and leaves those up that are not named."""
        self.tablet.keys(sum(1 << key for key in keys))

    def settle(self):
        """Waits until the driver has done what the keys have done so far: the last one comes after
        it."""
        down = self.tablet.down
        self.tablet.keys(down | 1 << Record.LAST)
        self.keyboard.wait_for("KEY_F12", 1)
        self.tablet.keys(down)
        self.keyboard.wait_for("KEY_F12", 0)
        self.keyboard.frames = [frame for frame in self.keyboard.frames if frame[0][0] != "KEY_F12"]

    def take(self):
        """Returns what keyboard and pointer got, and forgets what the pen did."""
        self.settle()
        self.pen.take()
        return self.keyboard.take(), self.pointer.take()

    def click(self, *keys):
        """Presses keys together and lets go of them; returns what keyboard and pointer got."""
        self.press(*keys)
        self.press()
        return self.take()

    def stroke(self, *reports):
        """Moves the pen and takes it away; returns the state of the virtual pen after each report but
        the last, which takes it away."""
        for report in reports:
            self.tablet.pen(**report)
        self.tablet.away()
        states = []
        state = self.pen.state.copy()
        self.pen.wait(lambda: any(tool in frame for frame in self.pen.frames
                                  for tool in (("BTN_TOOL_PEN", 0), ("BTN_TOOL_RUBBER", 0))),
                      "the pen to go away")
        for frame in self.pen.take():
            state.update(frame)
            states.append(state.copy())
        return states[:-1]

    def place(self, x, y):
        """Returns where the virtual pen is while the pen is at a place."""
        state = self.stroke({"x": x, "y": y})[-1]
        return state["ABS_X"], state["ABS_Y"]

    def libinput(self, begin, end):
        """Returns what libinput says of the virtual devices up to a line with this text: the device,
        the event, and the rest."""
        last = self.world.libinput.wait(end, begin)
        lines = [re.fullmatch(r"[- ](event\d+)\s+(\w+)\s*(.*)", line)
                 for line in self.world.libinput.lines[:last + 1]]
        names = {}
        events = []
        for number, line in enumerate(lines):
            if line is None:
                continue
            node, event, rest = line.groups()
            name = re.search(r"Quorvia Virtual \w+", rest)
            if event == "DEVICE_ADDED":
                names[node] = name.group() if name else None
            if number >= begin and names.get(node):
                events.append((names[node], event, rest))
        return events
