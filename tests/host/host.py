# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The module in one of the desktop's own settings applications, with the real driver."""

import plistlib
import subprocess
import sys

import desktop
import session

PLUGINS = sys.argv.pop(1)
PLASMA = "6" if "/qt6/" in PLUGINS else "5"

STRIP = "Left scroll strip"


class Host(desktop.Desktop):
    def setUp(self):
        super().setUp()
        self.env |= {
            "KDE_FULL_SESSION": "true",
            "KDE_SESSION_VERSION": PLASMA,
            "QT_PLUGIN_PATH": PLUGINS,
            "QT_QUICK_BACKEND": "software",
            "XDG_CURRENT_DESKTOP": "KDE",
        }
        self.driver_log = self.folder / "driver.log"

    def x_server(self):
        return [*super().x_server(), "-dpi", "96"]

    def start_driver_with_log(self, *arguments):
        """Starts the driver with its output in a log file, so that a test can read it meanwhile."""
        with self.driver_log.open("w") as log:
            driver = self.start([session.BIN / "tdsg-driver", "--simulate", *arguments], stdout=log)
        session.wait_for(lambda: "ready\n" in self.driver_log.read_text(), "the driver")
        return driver

    def showings(self):
        """Returns how often the pane was shown: each time, it asks the driver."""
        return self.driver_log.read_text().count("query from")

    def start_host(self, *command):
        return self.start(command, stdout=subprocess.DEVNULL)

    def file_strip(self):
        """Returns whether the strip is on in the file."""
        return plistlib.loads(self.config().read_bytes())["Key"]["Scrollbar0"] == 0

    def driver_strip(self):
        """Returns whether it is on in the driver."""
        return int.from_bytes(self.record()[5071:5073], "little", signed=True) == 0

    def pushes(self):
        return int(self.simulator("Pushes")[1])

    def saves(self):
        """Returns a number that changes with each save."""
        return self.config().stat().st_ino, self.config().stat().st_mtime_ns

    def edit(self, application):
        """Clicks the strip's check box, and waits until the driver has it."""
        before = self.pushes()
        self.click(self.find(application, STRIP, "check box"), 8)
        session.wait_for(lambda: self.pushes() > before, "the push")

    def wait_for_button(self, application, name, enabled):
        """Waits until the host's button is enabled, or disabled, and returns it."""
        def look():
            button = self.find(application, name, "push button")
            return button if button["enabled"] == enabled else None
        return session.wait_for(
            look, f"the button '{name}' to be {'enabled' if enabled else 'disabled'}")
