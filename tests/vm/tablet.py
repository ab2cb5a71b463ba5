# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Tablets that the kernel takes for real ones, made through /dev/uhid: a pen and, if wanted, a pad with
16 keys, a strip and a ring, as two interfaces of one device.

As a program, makes a tablet and does what standard input says, a line each, until it ends:

  pen X Y [PRESSURE [BUTTONS]]   the pen is there; buttons: 1 lower, 2 upper
  eraser X Y [PRESSURE]          its other end
  away                           the pen is out of reach
  keys BITS                      the keys that are down, bit n is key n
  strip PLACE                    1 to 100, 0 without a finger
  ring PLACE                     0 to 71
"""

import os
import struct
import sys

CREATE, INPUT = 11, 12  # UHID_CREATE2, UHID_INPUT2
BUS_USB = 3

PRESSURE_MAX = 8191
TILT_MAX = 60  # degrees
DISTANCE_MAX = 63
KEYS = 16
STRIP_MAX = 100
RING_TURN = 72

# The barrel's buttons.
LOWER, UPPER = 1, 2


def item(prefix, value):
    """An item of a report descriptor, with as many bytes of data as it needs."""
    for size, code, form in ((1, 1, "<b"), (2, 2, "<h"), (4, 3, "<i")):
        if -(1 << 8 * size - 1) <= value < 1 << 8 * size - 1:
            return bytes([prefix | code]) + struct.pack(form, value)
    raise ValueError(value)


def page(number):
    return item(0x04, number)


def usages(*numbers):
    return b"".join(item(0x08, number) for number in numbers)


def usage_range(first, last):
    return item(0x18, first) + item(0x28, last)


def collection(kind, *items):
    return item(0xA0, kind) + b"".join(items) + b"\xC0"


APPLICATION, PHYSICAL = 1, 0


def fields(count, bits, low, high, *, kind=0x02):
    """Variables with these logical ends; without any kind of 2, padding."""
    return (item(0x14, low) + item(0x24, high) + item(0x74, bits) + item(0x94, count)
            + item(0x80, kind))


def measure(low, high, unit=0, exponent=0):
    """The physical ends of the fields that follow; unit 0x11 is a centimetre, 0x14 a degree."""
    return (item(0x34, low) + item(0x44, high) + item(0x64, unit)
            + bytes([0x55, exponent & 0x0F]))


PADDING = 0x03
GENERIC, BUTTONS, DIGITIZER = 0x01, 0x09, 0x0D


def pen_descriptor(x_max, y_max, width, height):
    """A pen of a surface with this size in millimetres. It has tilt, an eraser, two buttons and a serial
    number, and what the kernel takes for its distance. HID has nothing that it takes for a twist."""
    return page(DIGITIZER) + usages(0x02) + collection(
        APPLICATION, usages(0x20), collection(
            PHYSICAL,
            # tip, lower button, upper button, inverted, eraser, in range
            usages(0x42, 0x44, 0x5A, 0x3C, 0x45, 0x32), fields(6, 1, 0, 1),
            fields(1, 2, 0, 0, kind=PADDING),
            page(GENERIC),
            measure(0, 10 * width, 0x11, -2), usages(0x30), fields(1, 32, 0, x_max),
            measure(0, 10 * height, 0x11, -2), usages(0x31), fields(1, 32, 0, y_max),
            measure(0, 0), usages(0x32), fields(1, 16, 0, DISTANCE_MAX),
            page(DIGITIZER),
            usages(0x30), fields(1, 16, 0, PRESSURE_MAX),
            measure(-TILT_MAX, TILT_MAX, 0x14),
            usages(0x3D, 0x3E), fields(2, 8, -TILT_MAX, TILT_MAX),
            measure(0, 0),
            usages(0x5B), fields(1, 32, 0, 0x7FFFFFFF)))


PEN_REPORT = struct.Struct("<BIIHHbbI")


def pad_descriptor():
    """Keys, a strip and a ring. What udev knows a pad by is a position and a pen's button that never
    change."""
    return page(GENERIC) + usages(0x07) + collection(
        APPLICATION, page(DIGITIZER), usages(0x39), collection(
            PHYSICAL,
            page(BUTTONS),
            # BTN_0 to BTN_9, and BTN_A to BTN_Z: there are no codes between them.
            usage_range(0x01, 0x0A), fields(10, 1, 0, 1),
            usage_range(0x31, 0x36), fields(6, 1, 0, 1),
            page(DIGITIZER), usages(0x44), fields(1, 1, 0, 1), fields(1, 7, 0, 0, kind=PADDING),
            page(GENERIC), usages(0x30, 0x31), fields(2, 8, 0, 1),
            usages(0x33), fields(1, 8, 0, STRIP_MAX),
            usages(0x38), fields(1, 8, 0, RING_TURN - 1)))


PAD_REPORT = struct.Struct("<HBBBBB")


class Device:
    """A HID device; it is unplugged when it is closed, or when the program ends."""

    def __init__(self, name, place, serial, vendor, product, descriptor):
        self.file = os.open("/dev/uhid", os.O_RDWR | os.O_CLOEXEC)
        os.write(self.file, struct.pack(
            "<I128s64s64sHHIIII4096s", CREATE, name.encode(), place.encode(), serial.encode(),
            len(descriptor), BUS_USB, vendor, product, 0, 0, descriptor))

    def send(self, report):
        os.write(self.file, struct.pack("<IH", INPUT, len(report)) + report)

    def close(self):
        os.close(self.file)


class Tablet:
    """A tablet. Its place, that of a port, is what its interfaces have in common."""

    def __init__(self, name="Test Tablet", vendor=0x6F3D, product=0x0042, serial="A17", *,
                 place="usb-test-1", x_max=48000, y_max=30000, width=240, height=150, has_pad=True):
        self.name, self.vendor, self.product, self.serial = name, vendor, product, serial
        self.x_max, self.y_max = x_max, y_max
        self.id = ":".join((f"{vendor:04x}", f"{product:04x}", *([serial] if serial else ())))
        self.keys_count = KEYS if has_pad else 0
        # The pad first: here, udev may take longer for it than the driver waits after the pen.
        pads = [Device(f"{name} Pad", f"{place}/input1", serial, vendor, product, pad_descriptor())
                for _ in range(has_pad)]
        self.devices = [Device(name, f"{place}/input0", serial, vendor, product,
                               pen_descriptor(x_max, y_max, width, height)), *pads]
        self.down = self.at_strip = self.at_ring = 0

    def pen(self, x, y, pressure=0, buttons=0, *, tilt=(0, 0), distance=0, serial=0, eraser=False):
        touches = pressure > 0
        flags = (touches and not eraser) | buttons << 1 | eraser << 3 | (touches and eraser) << 4 | 0x20
        self.devices[0].send(PEN_REPORT.pack(flags, x, y, distance, pressure, *tilt, serial))

    def away(self):
        self.devices[0].send(PEN_REPORT.pack(0, 0, 0, 0, 0, 0, 0, 0))

    def keys(self, bits):
        self.down = bits
        self.send_pad()

    def strip(self, place):
        self.at_strip = place
        self.send_pad()

    def ring(self, place):
        self.at_ring = place
        self.send_pad()

    def send_pad(self):
        self.devices[1].send(PAD_REPORT.pack(self.down, 0, 0, 0, self.at_strip, self.at_ring))

    def unplug(self):
        for device in self.devices:
            device.close()
        self.devices = []


def main():
    tablet = Tablet()
    for line in sys.stdin:
        word, *numbers = line.split()
        numbers = [int(number, 0) for number in numbers]
        if word == "eraser":
            tablet.pen(*numbers, eraser=True)
        else:
            getattr(tablet, word)(*numbers)


if __name__ == "__main__":
    main()
