# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""As much of logind as the driver asks for, and KWin, which gets its devices from it: one user with one
session, which standard input commands, a line each: "Active 0", "LockedHint 1", or "PrepareForSleep 1".
Says "ready" when it is on the bus, and repeats each line when its signal is out. Says "delayed" when a
program has the machine wait before it sleeps, and "released" when that has ended."""

import os
import pathlib
import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.login1"
MANAGER, USER, SESSION = (
    f"/org/freedesktop/login1{path}" for path in ("", "/user/self", "/session/_31"))
INTERFACES = Gio.DBusNodeInfo.new_for_xml(f"""<node>
<interface name="{NAME}.Manager"><signal name="PrepareForSleep"><arg type="b"/></signal>
<method name="Inhibit"><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="h" direction="out"/></method>
<method name="GetSession"><arg type="s" direction="in"/><arg type="o" direction="out"/></method>
</interface>
<interface name="{NAME}.User"><property name="Display" type="(so)" access="read"/></interface>
<interface name="{NAME}.Session">
<property name="Active" type="b" access="read"/><property name="LockedHint" type="b" access="read"/>
<property name="Id" type="s" access="read"/><property name="Seat" type="(so)" access="read"/>
<property name="VTNr" type="u" access="read"/>
<method name="Activate"/><method name="ReleaseControl"/>
<method name="TakeControl"><arg type="b" direction="in"/></method>
<method name="TakeDevice"><arg type="u" direction="in"/><arg type="u" direction="in"/>
<arg type="h" direction="out"/><arg type="b" direction="out"/></method>
<method name="ReleaseDevice"><arg type="u" direction="in"/><arg type="u" direction="in"/></method>
</interface></node>""").interfaces


def open_device(major, minor):
    """Opens a device for reading and writing."""
    uevent = pathlib.Path(f"/sys/dev/char/{major}:{minor}/uevent").read_text()
    name = dict(line.split("=", 1) for line in uevent.splitlines())["DEVNAME"]
    return os.open(f"/dev/{name}", os.O_RDWR | os.O_NONBLOCK | os.O_CLOEXEC)


def delay_sleep(call):
    """Answers with a file; the sleep is delayed until it is closed."""
    reading, writing = os.pipe()
    files = Gio.UnixFDList.new_from_array([writing])
    call.return_value_with_unix_fd_list(GLib.Variant("(h)", (0,)), files)
    print("delayed", flush=True)

    def closed(*_):
        os.close(reading)
        print("released", flush=True)
        return False
    GLib.io_add_watch(reading, GLib.IO_HUP, closed)


def answer(_bus, _sender, _path, _interface, method, arguments, call):
    """Answers a call of a method."""
    if method == "GetSession":
        call.return_value(GLib.Variant("(o)", (SESSION,)))
    elif method == "Inhibit":
        delay_sleep(call)
    elif method == "TakeDevice":
        try:
            files = Gio.UnixFDList.new_from_array([open_device(*arguments.unpack())])
        except OSError as error:
            call.return_dbus_error(f"{NAME}.Error", str(error))
            return
        call.return_value_with_unix_fd_list(GLib.Variant("(hb)", (0, False)), files)
    else:
        call.return_value(None)


def main():
    bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)
    state = {"Active": True, "LockedHint": False}
    values = {"Display": lambda: GLib.Variant("(so)", ("1", SESSION)),
              "Active": lambda: GLib.Variant("b", state["Active"]),
              "LockedHint": lambda: GLib.Variant("b", state["LockedHint"]),
              "Id": lambda: GLib.Variant("s", "1"),
              "Seat": lambda: GLib.Variant("(so)", ("seat0", f"/{NAME.replace('.', '/')}/seat/seat0")),
              "VTNr": lambda: GLib.Variant("u", 1)}

    def get(_bus, _sender, _path, _interface, name):
        return values[name]()

    def command(channel, _condition):
        line = channel.readline()
        if not line:
            loop.quit()
            return False
        name, number = line.split()
        value = bool(int(number))
        if name == "PrepareForSleep":
            bus.emit_signal(None, MANAGER, f"{NAME}.Manager", name, GLib.Variant("(b)", (value,)))
        else:
            state[name] = value
            bus.emit_signal(
                None, SESSION, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                GLib.Variant("(sa{sv}as)", (f"{NAME}.Session", {name: GLib.Variant("b", value)}, [])))
        bus.flush_sync()
        print(line, end="", flush=True)
        return True

    for path, interface in zip((MANAGER, USER, SESSION), INTERFACES):
        bus.register_object(path, interface, answer, get, None)
    bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                  GLib.Variant("(su)", (NAME, 0)), None, Gio.DBusCallFlags.NONE, -1)
    print("ready", flush=True)
    loop = GLib.MainLoop()
    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, command)
    loop.run()


if __name__ == "__main__":
    main()
