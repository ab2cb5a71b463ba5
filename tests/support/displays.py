# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""A desktop whose displays are connected and disconnected: a real X server with a dummy driver."""

import desktop

XORG_CONFIG = """
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoEnableDevices" "false"
EndSection
Section "Device"
  Identifier "dummy"
  Driver "dummy"
  VideoRam 256000
EndSection
Section "Screen"
  Identifier "screen"
  Device "dummy"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Virtual 8192 4096
  EndSubSection
EndSection
"""


class Displays(desktop.Desktop):
    """Starts with the display DUMMY0 of 1024 by 768 points."""

    def configuration(self):
        """Returns the X server's configuration."""
        return XORG_CONFIG

    def x_server(self):
        config = self.folder / "xorg.conf"
        config.write_text(self.configuration())
        return ["/usr/lib/xorg/Xorg", "-config", config, "-logfile", self.folder / "xorg.log",
                "-novtswitch", "-sharevts"]

    def xrandr(self, *words):
        result = self.run_program("xrandr", *words)
        self.assertEqual(result.returncode, 0, result.stderr)
        # The dummy driver cannot report a change by itself. The server announces a display only
        # after it has probed the outputs, which a query makes it do.
        self.run_program("xrandr", "--query")

    def plug(self, number, mode, position):
        """Connects or changes a display, with a mode such as 1024x768 and a position such as
        1024x0."""
        output = f"DUMMY{number}"
        self.run_program("xrandr", "--addmode", output, mode)  # fails if the output has it already
        self.xrandr("--output", output, "--mode", mode, "--pos", position)

    def unplug(self, number):
        self.xrandr("--output", f"DUMMY{number}", "--off")
