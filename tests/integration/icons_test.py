# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The programs' windows have the icons that are installed with them."""

import re
import subprocess
import unittest

import desktop
import session

SIZE = 64


class Icons(desktop.Desktop):
    def setUp(self):
        super().setUp()
        # Use the system's theme index and the build's icons.
        self.env["XDG_DATA_DIRS"] = f"{session.STAGE}/share:/usr/share"

    def window_icon(self, title):
        """Returns the pixels of the window's icon, each as alpha, red, green and blue."""
        window = session.wait_for(
            lambda: self.run_program("xdotool", "search", "--onlyvisible", "--name",
                                     title).stdout.split(), f"the window '{title}'")[0]
        text = self.run_program("xprop", "-id", window, "-notype", "-f", "_NET_WM_ICON",
                                "32c", "_NET_WM_ICON").stdout
        numbers = [int(number) for number in re.findall(r"\d+", text.partition("=")[2])]
        while numbers:
            width, height = numbers[:2]
            if (width, height) == (SIZE, SIZE):
                return [number.to_bytes(4, "big") for number in numbers[2:2 + SIZE * SIZE]]
            del numbers[:2 + width * height]
        return None

    def assert_window_has_icon(self, title, name):
        picture = session.SOURCE / f"packaging/icons/{SIZE}/{name}.png"
        data = subprocess.run(["convert", picture, "-depth", "8", "RGBA:-"], check=True,
                              capture_output=True).stdout
        pixels = [data[i + 3:i + 4] + data[i:i + 3] for i in range(0, len(data), 4)]
        seen = self.window_icon(title)
        self.assertIsNotNone(seen, "the window has no icon of that size")
        # Translucent pixels may be rounded in between.
        opaque = [(one, other) for one, other in zip(pixels, seen) if one[0] == 255]
        self.assertGreater(len(opaque), SIZE * SIZE / 4)
        self.assertEqual([one for one, _ in opaque], [other for _, other in opaque])

    def test_of_the_panel(self):
        self.start_driver()
        self.start([session.BIN / "qvtblt"])
        self.assert_window_has_icon("^Quorvia Tablet$", "org.quorvia.qvtblt")

    def test_of_the_simulated_tablet(self):
        self.start_driver("--window")
        self.assert_window_has_icon("Virtual tablet", "org.quorvia.tdsg-driver")


if __name__ == "__main__":
    unittest.main()
