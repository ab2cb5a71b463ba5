#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Runs guest_test.py in a virtual machine, whose kernel takes made tablets for real ones, with the
programs of the preset qt6 unless the environment says otherwise. Arguments are names of its tests."""

import os
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parent.parent
STAGE = SOURCE / "build/qt6/stage"
VARIABLES = {
    "PYTHONPATH": SOURCE / "tests/support",
    "QVTBLT_STAGE": STAGE,
    "QVTBLT_STAGE_BIN": STAGE / "bin",
    "QVTBLT_STAGE_SERVICES": STAGE / "share/dbus-1/services",
}


def command(*options):
    """Returns the beginning of a command that runs a script in the virtual machine."""
    settings = [f"{name}={os.environ.get(name, value)}" for name, value in VARIABLES.items()]
    return [HERE / "boot", *options, "env", *settings, sys.executable, "-B"]


def main():
    return subprocess.run([*command(), HERE / "guest_test.py", *sys.argv[1:]],
                          check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
