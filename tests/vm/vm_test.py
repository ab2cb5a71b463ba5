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


def command(*options, source=SOURCE, preset="qt6"):
    """Returns the beginning of a command that runs a script in the virtual machine, where the source tree
    may be somewhere else."""
    stage = source / "build" / preset / "stage"
    variables = {
        "PYTHONPATH": source / "tests/support",
        "QVTBLT_STAGE": stage,
        "QVTBLT_STAGE_BIN": stage / "bin",
        "QVTBLT_STAGE_SERVICES": stage / "share/dbus-1/services",
    }
    if source == SOURCE:
        variables |= {name: os.environ[name] for name in variables if name in os.environ}
    settings = [f"{name}={value}" for name, value in variables.items()]
    return [HERE / "boot", *options, "env", *settings, sys.executable, "-B"]


def main():
    return subprocess.run([*command(), HERE / "guest_test.py", *sys.argv[1:]],
                          check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
