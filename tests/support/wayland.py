# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""A Wayland desktop with two displays side by side and no hardware: KWin, rendering into memory."""

import os
import shutil
import subprocess

import dbus

import desktop
import session


class Wayland(desktop.Desktop):
    """Its displays are Virtual-0 and, to the right of it, Virtual-1, of 1280 by 720 points each."""

    def start_display(self):
        # The installed file has a capability that a container may not grant.
        kwin = shutil.copy("/usr/bin/kwin_wayland", self.folder)
        self.env.update({
            "KWIN_COMPOSE": "O2",  # otherwise screenshots do not work
            "KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1",
            "LIBGL_ALWAYS_SOFTWARE": "1",
            "QT_QPA_PLATFORM": "wayland",
            "WAYLAND_DISPLAY": "qvtblt-test",
        })
        self.start([kwin, "--virtual", "--output-count", "2", "--width", "1280", "--height", "720",
                    "--no-lockscreen", "--no-global-shortcuts",
                    "--socket", self.env["WAYLAND_DISPLAY"]],
                   stdout=subprocess.DEVNULL)
        session.wait_for(lambda: self.has_name("org.kde.KWin"), "KWin")
        bus = dbus.bus.BusConnection(self.env["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(bus.close)
        self.kwin = session.wait_for(lambda: self.screenshots(bus), "KWin's pictures")

    @staticmethod
    def screenshots(bus):
        path = "/org/kde/KWin/ScreenShot2"
        try:
            bus.call_blocking("org.kde.KWin", path, "org.freedesktop.DBus.Peer", "Ping", "", ())
            return dbus.Interface(bus.get_object("org.kde.KWin", path, introspect=False),
                                  "org.kde.KWin.ScreenShot2")
        except dbus.DBusException:
            return None  # it is still starting

    def take_picture(self, folder):
        for display in ("Virtual-0", "Virtual-1"):
            data, stride = self.capture(display)
            rows = [data[y * stride:y * stride + 4 * 1280] for y in range(720)]
            picture = bytearray(3 * 1280 * 720)
            for channel in range(3):
                picture[channel::3] = b"".join(row[2 - channel::4] for row in rows)
            (folder / f"{display}.ppm").write_bytes(b"P6 1280 720 255\n" + picture)

    def pixels(self, display):
        """Returns a display's contents: a function that returns (red, green, blue) at a
        position."""
        data, stride = self.capture(display)
        return lambda x, y: tuple(data[y * stride + 4 * x:][2::-1])

    def capture(self, display):
        """Returns a display's contents, four bytes (blue, green, red and any) for each pixel, and
        the bytes of a row."""
        read, write = os.pipe()
        with os.fdopen(read, "rb") as pipe:
            descriptor = dbus.types.UnixFd(write)  # a duplicate
            os.close(write)
            picture = self.kwin.CaptureScreen(display, dbus.Dictionary(signature="sv"), descriptor)
            del descriptor
            data = pipe.read()
        stride = int(picture["stride"])
        self.assertEqual((int(picture["width"]), int(picture["height"]), len(data)),
                         (1280, 720, 720 * stride))
        return data, stride
