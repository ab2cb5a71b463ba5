#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Measures the time from launching kcmshell with a module until its page is shown, and its memory:
kcmshell6 where the plug-ins are Qt 6's, otherwise kcmshell5.

Three modules start in turn: the panel's, with a tablet; an empty one; and Plasma's tablet module as
packaged in Debian, without a tablet. Writes the figures as JSON, like the other benchmarks. A page is
shown when its window has a colour: Qt paints a window completely before it shows it.
"""

import argparse
import json
import operator
import os
import pathlib
import re
import signal
import statistics
import subprocess
import tempfile
import time

from Xlib import X, display

PANEL = "kcm_qvtblt"
EMPTY = "kcm_empty"
PLASMA = "kcm_wacomtablet"

MODULES = [PANEL, EMPTY, PLASMA]

SECONDS, RESIDENT = 0, 1  # the figures of a start

BLACK = bytes(3)  # the colour of a window before it is painted


class Screen:
    """The windows, as seen by a window manager."""

    def __init__(self, name):
        self.display = display.Display(name)
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self.pid = self.display.intern_atom("_NET_WM_PID")
        self.display.sync()

    def is_of(self, window, pid):
        found = window.get_full_property(self.pid, X.AnyPropertyType)
        return found is not None and found.value[0] == pid

    def wait_for_page(self, pid):
        """Waits until a window of the process is mapped and painted."""
        while True:
            seen = self.display.next_event()
            if seen.type == X.MapNotify and not seen.override and self.is_of(seen.window, pid):
                break
        window = seen.window
        size = window.get_geometry()
        while self.corner(window, size) == BLACK:
            time.sleep(0.001)

    @staticmethod
    def corner(window, size):
        return window.get_image(size.width - 2, size.height - 2, 1, 1, X.ZPixmap, 0xffffff).data[:3]


def memory(pid):
    """Returns the process's resident memory, in KiB."""
    found = re.search(r"^VmRSS:\s*(\d+) kB$", pathlib.Path(f"/proc/{pid}/status").read_text(), re.M)
    return int(found[1])


def end(program):
    os.killpg(program.pid, signal.SIGKILL)
    program.wait()


def measure(screen, module, environment, rest):
    """Returns the seconds until the page is shown, and the memory after that many seconds of
    rest."""
    shell = "kcmshell" + environment["KDE_SESSION_VERSION"]
    start = time.monotonic()
    host = subprocess.Popen([shell, module], env=environment, start_new_session=True,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        screen.wait_for_page(host.pid)
        seconds = time.monotonic() - start
        time.sleep(rest)
        return seconds, memory(host.pid)
    finally:
        end(host)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("plugins")
    parser.add_argument("driver")
    parser.add_argument("output", type=pathlib.Path)
    parser.add_argument("--plasma-module", type=pathlib.Path, default=pathlib.Path("/"),
                        help="its package, unpacked, if it is not installed")
    parser.add_argument("--runs", type=int, default=100)
    options = parser.parse_args()

    plasma = "6" if "/qt6/" in options.plugins else "5"
    with tempfile.TemporaryDirectory() as folder:
        environment = {
            "DBUS_SESSION_BUS_ADDRESS": os.environ["DBUS_SESSION_BUS_ADDRESS"],
            "DISPLAY": os.environ["DISPLAY"],
            "HOME": folder,
            "KDE_FULL_SESSION": "true",
            "KDE_SESSION_VERSION": plasma,
            "LANG": "C.UTF-8",
            "PATH": "/usr/bin:/bin",
            "QT_PLUGIN_PATH": ":".join(map(str, [
                options.plugins, *options.plasma_module.glob(f"usr/lib/*/qt{plasma}/plugins")])),
            "QT_QUICK_BACKEND": "software",
            "XAUTHORITY": os.environ.get("XAUTHORITY", ""),
            "XDG_CURRENT_DESKTOP": "KDE",
            "XDG_DATA_DIRS": f"{options.plasma_module}/usr/share:/usr/local/share:/usr/share",
            "XDG_RUNTIME_DIR": folder,
        }
        with subprocess.Popen([options.driver, "--simulate"], env=environment, text=True,
                              stdout=subprocess.PIPE) as driver:
            while driver.stdout.readline() != "ready\n":
                pass
            screen = Screen(environment["DISPLAY"])
            for module in MODULES:
                measure(screen, module, environment, 0)  # the first start fills the host's caches
            # A page's work after it is shown takes memory, too.
            rested = [[measure(screen, module, environment, 1) for module in MODULES]
                      for _ in range(5)]
            found = [[measure(screen, module, environment, 0) for module in MODULES]
                     for _ in range(options.runs)]
            driver.terminate()

    def figures(runs, module, figure):
        return [run[MODULES.index(module)][figure] for run in runs]

    def median(runs, module, figure):
        return statistics.median(figures(runs, module, figure))

    def ratio(floor):
        """Returns the ratio within each run, since a shared machine varies between runs."""
        return statistics.median(map(operator.truediv, figures(found, PANEL, SECONDS),
                                     figures(found, floor, SECONDS)))

    suffix = "6" if plasma == "6" else ""
    results = [{
        "name": name + suffix,
        "us": median(found, PANEL, SECONDS) * 1e6,
        "floor_us": median(found, floor, SECONDS) * 1e6,
        "ratio": ratio(floor),
    } for name, floor in (("startInHost", EMPTY), ("startOfPlasmaModule", PLASMA))]
    results.append({
        "name": "memoryInHost" + suffix,
        "iterations": 1,
        "grown_KiB": median(rested, PANEL, RESIDENT) - median(rested, EMPTY, RESIDENT),
    })
    options.output.write_text(json.dumps({"benchmarks": results}))


main()
