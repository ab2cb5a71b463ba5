# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""A desktop with a pen: the X server has a pen and its eraser as separate devices with a test
driver, so that their events take the same path as a real pen's."""

import re
import socket
import struct

import displays

ENDS = ("pen", "eraser")

DEVICE = """
Section "InputDevice"
  Identifier "Quorvia {end}"
  Driver "inputtest"
  Option "SocketPath" "{folder}/{end}.socket"
  Option "DeviceType" "PointerAbsoluteProximity"
  Option "PointerHasPressure" "true"
EndSection
"""

LAYOUT = """
Section "ServerLayout"
  Identifier "layout"
  Screen "screen"
  InputDevice "Quorvia pen"
  InputDevice "Quorvia eraser"
EndSection
"""

# The test driver's messages: length and type, then the data of the type, in C's layout.
VERSION, SYNC, MOTION, PROXIMITY, BUTTON = range(5)
AXES = 64  # per message; the devices have five
ACROSS, DOWN, PRESSURE = 0, 1, 4
REACH = 0xFFFF  # range of x and y, over all displays
FULL_PRESSURE = 1000


class Pen:
    """One end of the pen. Positions are in pixels of the desktop, pressures from 0 to 1."""

    def __init__(self, path, size):
        self.width, self.height = map(int, size)
        self.connection = socket.socket(socket.AF_UNIX)
        self.connection.settimeout(20)
        self.connection.connect(str(path))
        self.send(VERSION, "HH", 1, 1)
        self.connection.recv(64)

    def close(self):
        self.connection.close()

    def send(self, kind, layout, *values):
        content = struct.pack("=" + layout, *values)
        self.connection.sendall(struct.pack("=II", 8 + len(content), kind) + content)

    def put(self, kind, layout, values, axes):
        """Sends a message that ends with axes, and waits until the server has handled it."""
        mask, numbers = 0, [0.0] * AXES
        for axis, value in axes.items():
            mask |= 1 << axis
            numbers[axis] = value
        # In C's layout, the axes are aligned to eight bytes, and so are their values.
        filler = -(8 + struct.calcsize("=" + layout)) % 8
        self.send(kind, f"{layout}{filler}xI8s4x{AXES}d{AXES}d", *values, 0,
                  mask.to_bytes(8, "little"), *numbers, *numbers)
        self.send(SYNC, "")
        self.connection.recv(64)

    def axes(self, x, y, pressure):
        return {ACROSS: x * REACH / self.width, DOWN: y * REACH / self.height,
                PRESSURE: pressure * FULL_PRESSURE}

    def move(self, x, y, pressure=0.0):
        self.put(MOTION, "I", [1], self.axes(x, y, pressure))

    def press(self, x, y, pressure):
        self.move(x, y)
        self.put(BUTTON, "iiI", [1, 1, 1], self.axes(x, y, pressure))

    def release(self, x, y):
        self.put(BUTTON, "iiI", [1, 1, 0], self.axes(x, y, 0))

    def stroke(self, points, release=True):
        """Draws through points of x, y and pressure; without release, the pen stays down."""
        self.press(*points[0])
        for point in points[1:]:
            self.move(*point)
        if release:
            self.release(*points[-1][:2])


class Pens(displays.Displays):
    def configuration(self):
        devices = "".join(DEVICE.format(end=end, folder=self.folder) for end in ENDS)
        return super().configuration() + devices + LAYOUT

    def pen(self, end="pen"):
        """Returns an end of the pen; all displays must have their positions by then."""
        size = re.search(r"current (\d+) x (\d+)", self.run_program("xrandr").stdout).groups()
        pen = Pen(self.folder / f"{end}.socket", size)
        self.addCleanup(pen.close)
        return pen
