# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The panel's window as seen by a screen reader, and the resources of its process.

Unlike accessible.py, it stays connected, and each of its calls has a time limit: a panel that does
not answer is a failure.
"""

import collections
import os
import pathlib
import re
import subprocess
import threading
import time

import models
import session
from gi.repository import Gio, GLib

ATSPI = "org.a11y.atspi."
ROOT = "/org/a11y/atspi/accessible/root"
STATES = {"checked": 4, "enabled": 8, "pressed": 20, "showing": 25}
FLAGS = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT \
    | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION

MODEL_NAMES = {model.name for model in models.all_models()}

# What the panel may print. Anything else, such as a warning from Qt or a sanitizer, is a failure.
KNOWN_LINES = re.compile(
    r"ConnectToDriver (ok|[0-9a-f]+ \d+ \d+ \d+)$|Unable to find first matching USB device$"
    r"|org\.quorvia\.tablet\.(store|monitor): ")


class Bus:
    """A connection to a bus. Calls wait for their answers, up to a time limit."""

    BOUND = 30

    def __init__(self, address):
        self.connection = Gio.DBusConnection.new_for_address_sync(address, FLAGS, None, None)
        self.slowest = 0

    def call(self, name, path, interface, method, signature="()", *arguments):
        start = time.monotonic()
        answer = self.connection.call_sync(
            name, path, interface, method, GLib.Variant(signature, arguments), None,
            Gio.DBusCallFlags.NONE, self.BOUND * 1000, None)
        self.slowest = max(self.slowest, time.monotonic() - start)
        values = answer.unpack()
        return values[0] if len(values) == 1 else values

    def ask(self, method, signature="()", *arguments):
        """Calls the bus itself."""
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         method, signature, *arguments)

    def names_of(self, pid):
        """Returns the connections of a process."""
        found = []
        for name in self.ask("ListNames"):
            try:
                if name.startswith(":") and pid == self.ask(
                        "GetConnectionUnixProcessID", "(s)", name):
                    found.append(name)
            except GLib.Error:
                pass  # it has left meanwhile
        return found

    def matches_of(self, name):
        """Returns the number of a connection's match rules."""
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                         "org.freedesktop.DBus.Debug.Stats", "GetConnectionStats", "(s)",
                         name)["MatchRules"]

    def objects_of(self, name, path="/"):
        """Returns the paths of all objects of a connection."""
        try:
            xml = self.call(name, path, "org.freedesktop.DBus.Introspectable", "Introspect")
        except GLib.Error as error:
            if "UnknownObject" in str(error):
                return []
            raise
        paths = [path]
        for node in Gio.DBusNodeInfo.new_for_xml(xml).nodes:
            paths += self.objects_of(name, f"{path.rstrip('/')}/{node.path}")
        return paths


class Panel:
    """A panel process. The test has to end it."""

    def __init__(self, test):
        self.test = test
        self.process = test.start([session.BIN / "qvtblt"], stderr=subprocess.PIPE,
                                  stdout=subprocess.DEVNULL)
        self.lines = []
        self.places = {}
        self.name = None
        self.held = None
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()

        def registered():
            assert self.process.poll() is None, f"the panel ended: {self.lines}"
            names = set(test.a11y.names_of(self.process.pid))
            return [name for name, _ in test.a11y.call(
                ATSPI + "Registry", ROOT, ATSPI + "Accessible", "GetChildren") if name in names]
        self.name = session.wait_for(registered, "the panel on the accessibility bus", 60)[0]
        session.wait_for(lambda: self.find("Keys", "page tab") or self.find(
            "No tablet was found", "label"), "the window", 60)

    def read(self):
        for line in self.process.stderr:
            self.lines.append(line.rstrip("\n"))

    def pushes(self):
        """Returns how many times the panel has pushed its record, accepted or not."""
        return self.lines.count("ConnectToDriver ok")

    # What is on the screen --------------------------------------------------------------------

    def ask(self, path, interface, method, signature="()", *arguments):
        return self.test.a11y.call(self.name, path, interface, method, signature, *arguments)

    def property(self, path, interface, name):
        return self.ask(path, "org.freedesktop.DBus.Properties", "Get", "(ss)", ATSPI + interface,
                        name)

    def texts(self, path):
        return self.property(path, "Accessible", "Name"), \
            self.property(path, "Accessible", "Description")

    def state(self, path, name):
        words = self.ask(path, ATSPI + "Accessible", "GetState")
        return bool(words[0] >> STATES[name] & 1)

    def children(self, path):
        return [child for _, child in self.ask(path, ATSPI + "Accessible", "GetChildren")]

    def walk(self, path=ROOT):
        """Yields all things; of combo boxes only the closed box, since they have many items."""
        yield path, self.ask(path, ATSPI + "Accessible", "GetRoleName")
        if path == ROOT or self.ask(path, ATSPI + "Accessible", "GetRoleName") != "combo box":
            for child in self.children(path):
                yield from self.walk(child)

    def find(self, text, role, hidden=False):
        """Returns the path of the thing with that name or description that is showing, or also of a
        hidden one; None if there is none."""
        def is_it(path):
            return text in self.texts(path) and (hidden or self.state(path, "showing"))

        try:
            known = self.places.get((text, role))
            if known and is_it(known):
                return known
        except GLib.Error:
            pass # it has disappeared
        for path, found_role in self.walk_whole():
            if found_role == role and is_it(path):
                self.places[text, role] = path
                return path
        return None

    def walk_whole(self):
        """Returns all things as a list, since some may disappear while they are read."""
        for _ in range(20):
            try:
                return list(self.walk())
            except GLib.Error as error:
                if "NoReply" in str(error) or "Timeout" in str(error):
                    raise
        raise AssertionError("the panel's window never comes to rest")

    def wait_for(self, text, role):
        return session.wait_for(lambda: self.find(text, role), f"{role} '{text}'", 60)

    def usable(self, text, role):
        """Returns the thing if this tablet has it and it is enabled."""
        path = self.find(text, role)
        return path if path and self.state(path, "enabled") else None

    def press(self, path):
        """Does what a click does."""
        interface = ATSPI + "Action"
        names = [name for name, *_ in self.ask(path, interface, "GetActions")]
        wanted = next(name for name in ("Press", "Toggle") if name in names)
        self.ask(path, interface, "DoAction", "(i)", names.index(wanted))

    def value(self, path):
        return round(self.property(path, "Value", "CurrentValue"))

    def set_value(self, path, value):
        self.ask(path, "org.freedesktop.DBus.Properties", "Set", "(ssv)", ATSPI + "Value",
                 "CurrentValue", GLib.Variant("d", value))

    def content(self, path):
        """Returns the text in a field."""
        return self.ask(path, ATSPI + "Text", "GetText", "(ii)", 0, -1)

    def extents(self, path):
        return self.ask(path, ATSPI + "Component", "GetExtents", "(u)", 0)

    def notice(self):
        """Returns the line about a problem; None if there is none."""
        for path, role in self.walk_whole():
            if role == "notification":
                text = self.texts(path)[0]
                if re.search("not accepted|not saved|cannot be loaded", text) \
                        and self.state(path, "showing"):
                    return text
        return None

    def model(self):
        """Returns the name of the tablet above the pages; None without a tablet."""
        for path, role in self.walk_whole():
            if role == "label" and self.state(path, "showing"):
                text = self.texts(path)[0]
                if text in MODEL_NAMES or text.startswith("Unknown tablet"):
                    return text
        return None

    def has_pages(self):
        return self.find("Keys", "page tab") is not None

    def look(self):
        """Returns the tablet's name and the problem with its file, which contains the file's name;
        None without pages."""
        if not self.has_pages():
            return None
        notice = self.notice() or ""
        return self.model(), "" if "not accepted" in notice else notice

    def displays(self):
        """Returns widths, heights and positions of the displays, from the picture's description."""
        for path, role in self.walk_whole():
            found = re.findall(r"#\d+: (\d+) by (\d+) points, its upper left corner at "
                               r"(-?\d+), (-?\d+)\.", " ".join(self.texts(path)))
            if found:
                return [tuple(map(int, numbers)) for numbers in found]
        return []

    # What the process holds -------------------------------------------------------------------

    def check_lines(self):
        for line in list(self.lines):
            assert KNOWN_LINES.match(line), f"the panel says: {line}"

    def holdings(self):
        """Returns what must not grow while the panel is idle with just its window open."""
        proc = pathlib.Path("/proc", str(self.process.pid))
        held = collections.Counter()
        for link in (proc / "fd").iterdir():
            try:
                target = os.readlink(link)
            except FileNotFoundError:
                continue  # closed meanwhile
            held[re.sub(r"\d+", "N", target)] += 1
        for name in self.test.bus.names_of(self.process.pid):
            held["connections"] += 1
            held["match rules"] += self.test.bus.matches_of(name)
            held["objects"] += len(self.test.bus.objects_of(name))
        for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
            try:
                state, parent = stat.read_text().rpartition(")")[2].split()[:2]
            except (FileNotFoundError, ProcessLookupError):
                continue  # ended meanwhile
            held["children"] += int(parent) == self.process.pid
        memory = re.search(r"VmRSS:\s+(\d+)", (proc / "status").read_text())
        return held, int(memory[1])

    def check_holdings(self):
        """Compares with the values of the first call."""
        held, memory = self.holdings()
        if self.held is None:
            self.held = held, memory
        before, memory_before = self.held
        more = {what: (before[what], count) for what, count in held.items()
                if count > before[what]}
        assert not more, f"the panel holds more than before: {more}"
        assert memory < memory_before + 200_000, f"{memory_before} kB have become {memory} kB"
