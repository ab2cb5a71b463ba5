#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Runs desktop_guest.py in a virtual machine with two displays, with the programs of the preset qt6 unless
the environment says otherwise.

Usage: desktop_test.py DESKTOP PEN-LOG, see desktop_guest.py; build/qt6/tests/vm/pen-log
"""

import subprocess
import sys

import vm_test


def main():
    return subprocess.run([*vm_test.command("--displays"), vm_test.HERE / "desktop_guest.py",
                           *sys.argv[1:]], check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
