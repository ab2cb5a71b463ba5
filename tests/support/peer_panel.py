# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""A panel that does nothing but request pen reports: pushes a record with disableFlag 1, then
prints
a line for each report, "key x y nanoseconds". Commands on its standard input: "tap X Y COUNT" taps
the pen COUNT times, "push FLAG" pushes a record with that disableFlag, "end" ends it.

It is a separate process, so that a test can kill it.
"""

import struct
import sys
import time

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

DRIVER = "org.quorvia.AppleEvents.TdSg"


class Panel(dbus.service.Object):
    @dbus.service.method("org.quorvia.AppleEvents1", in_signature="uua(u(uv))",
                         out_signature="a(u(uv))")
    def Send(self, event_class, event_id, parameters):
        arrived = time.monotonic_ns()
        (_, (_, items)), = parameters
        key, x, y, _ = struct.unpack("=IHHI", bytes(items[0][1]))
        print(key, x, y, arrived, flush=True)
        return []


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    panel = Panel(bus, "/org/quorvia/AppleEvents")
    driver = dbus.Interface(bus.get_object(DRIVER, "/org/quorvia/AppleEvents", introspect=False),
                            "org.quorvia.AppleEvents1")
    name = bus.get_unique_name()

    def push(flag, done):
        record = bytearray(5077)
        struct.pack_into("=h", record, 293, flag)
        desc = dbus.Struct((dbus.UInt32(0x75746638),
                            dbus.ByteArray(bytes(record), variant_level=1)), signature="uv")
        driver.Send(dbus.UInt32(0x54645367), dbus.UInt32(0x57536E64),
                    dbus.Array([(dbus.UInt32(0x64617461), desc)], signature="(u(uv))"),
                    reply_handler=lambda _: print(done, name, flush=True),
                    error_handler=lambda error: print("failed:", error, flush=True))

    push(1, "calibrating as")
    bus.flush()
    print("pushed as", name, flush=True)
    simulator = dbus.Interface(bus.get_object(DRIVER, "/org/quorvia/TabletSimulator"),
                               "org.quorvia.TabletSimulator1")

    def command(channel, _condition):
        line = channel.readline()
        if line in ("", "end\n"):
            loop.quit()
            return False
        word, *numbers = line.split()
        if word == "push":
            push(int(numbers[0]), f"pushed {numbers[0]} as")
            return True
        x, y, count = numbers
        for _ in range(int(count)):
            simulator.Tap(dbus.UInt16(x), dbus.UInt16(y), reply_handler=lambda: None,
                          error_handler=lambda error: None)
        return True

    loop = GLib.MainLoop()
    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, command)
    loop.run()
    panel.remove_from_connection()


if __name__ == "__main__":
    main()
