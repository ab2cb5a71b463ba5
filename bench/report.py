#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Prints the benchmarks' results as tables, each figure with its floor and its limit.

Usage: report.py RESULT ...

The results are Google Benchmark's JSON files. Exits with 1 if a figure is above its limit.
"""

import datetime
import json
import pathlib
import platform
import re
import sys

# What is timed, the floor that is timed alternately with it, and the highest ratio allowed.
RATIOS = {
    "push": ("the record is pushed to the driver",
             "QtDBus sends the same message", 1.3),
    "pushAgainstPlainBytes": ("the same",
                              "QtDBus sends the bytes as one array: the cost of the wire format", None),
    "query": ("the driver is asked for its tablet",
              "QtDBus makes the same call", 1.3),
    "load": ("a full file is loaded",
             "libplist parses it", 1.3),
    "save": ("a full file is saved",
             "libplist serialises it, and it is written, flushed and renamed", 1.3),
    "showKeyPage": ("the key page's eighteen boxes are filled",
                    "eighteen plain boxes are filled with the same items", 1.5),
    "choose": ("a key's action is chosen, from the click to the bytes at the driver",
               "the push alone", 1.5),
    "chooser": ("the chooser is opened with 2,000 applications, until it is drawn",
                "GLib lists the same applications", 2.0),
    "searchChooser": ("a letter is typed into its search, until the list is drawn",
                      "the list is drawn", None),
    "useProfile": ("a profile is used, from the call to the bytes at the driver",
                   "the file is loaded and the record pushed", 2.0),
    "listProfiles": ("two hundred profiles are listed",
                     "libplist parses their files", 1.5),
    "controlUSBDevWithoutTablet": ("64 USB devices are searched for a tablet",
                                   "libusb lists them", 1.3),
    "drawSteps": ("pen events are drawn on the pad",
                  "QPainter strokes the same segments", 1.3),
    "redrawCurve": ("the pressure curve is computed and redrawn",
                    "QPainter paints the same path", 1.3),
    "redrawDisplays": ("the picture of four displays is redrawn",
                       "QPainter paints the same shapes and picture", 1.3),
    "takeReport": ("a pen report is handled during a calibration",
                   "QtDBus decodes the same message", 1.5),
    "startInHost": ("kcmshell5 starts with the panel, until the page is shown",
                    "kcmshell5 starts with an empty module", 1.15),
    "startOfPlasmaModule": ("the same",
                            "kcmshell5 starts with Plasma's tablet module", 1.0),
    "startInHost6": ("kcmshell6 starts with the panel, until the page is shown",
                     "kcmshell6 starts with an empty module", 1.15),
    "startOfPlasmaModule6": ("the same",
                             "kcmshell6 starts with Plasma's tablet module", 1.0),
}

# What grows, and by how many KiB at most. A leak loses at least 16 bytes each time, which is
# 1,562 KiB in 100,000 times; less than a tenth of that is the allocator's overhead.
GROWTHS = {
    "memoryOfPushes": ("pushes", 128),
    "memoryOfLoads": ("loads", 128),
    "memoryOfSaves": ("saves", 128),
    "memoryInHost": ("the panel in kcmshell5, compared with an empty module", 12 * 1024),
    "memoryInHost6": ("the panel in kcmshell6, compared with an empty module", 12 * 1024),
}

PEN_LIMIT_MS = 16.7  # a frame at 60 Hz

# What is measured of the driver's input thread.
RELAYS = {
    "relay": "a frame of the pen",
    "relayInAStorm": "the same, with ten thousand pushes at once every second",
}
RELAY_LIMIT_US = 50
RELAY_P99_LIMIT_US = 1000

PLUG_IN_LIMIT_MS = 1000


def machine():
    processor = re.search(r"^model name\s*: (.*)$", pathlib.Path("/proc/cpuinfo").read_text(), re.M)
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    cores = len(re.findall(r"^processor\s*:", pathlib.Path("/proc/cpuinfo").read_text(), re.M))
    memory = re.search(r"^MemTotal:\s*(\d+) kB$", pathlib.Path("/proc/meminfo").read_text(), re.M)
    return (f"{cores} cores of {processor[1] if processor else platform.machine()}, "
            f"{int(memory[1]) / 2 ** 20:.0f} GiB, {system}, Linux {platform.release().split('-')[0]}")


class Report:
    def __init__(self):
        self.misses = []

    def limit(self, name, value, limit, unit=""):
        """Returns the cell for a limit, and notes if the value exceeds it."""
        if limit is None:
            return ""
        if value > limit:
            self.misses.append(name)
            return f"{limit}{unit}, **missed**"
        return f"{limit}{unit}"

    def ratio(self, run):
        name = run["name"].split("/")[0]
        work, floor, limit = RATIOS[name]
        return (f"| `{name}`: {work} | {run['us']:.1f} µs | {floor} | {run['floor_us']:.1f} µs | "
                f"{run['ratio']:.2f} | {self.limit(name, run['ratio'], limit)} |")

    def growth(self, run):
        name = run["name"].split("/")[0]
        work, limit = GROWTHS[name]
        return (f"| `{name}`: {work} | {run['iterations']} | {run['grown_KiB']:.0f} KiB | "
                f"{self.limit(name, run['grown_KiB'], limit, ' KiB')} |")

    def pen(self, run):
        rows = [
            ("median time to the screen", f"{run['median_ms']:.1f} ms", ""),
            ("99th percentile", f"{run['p99_ms']:.1f} ms",
             self.limit("p99", run["p99_ms"], PEN_LIMIT_MS, " ms")),
            (f"99th percentile of the {run['server_samples']:.0f} of them that were checked in the X server",
             f"{run['server_p99_ms']:.1f} ms", self.limit("server_p99", run["server_p99_ms"],
                                                          PEN_LIMIT_MS, " ms")),
            ("lost", f"{run['lost']:.0f}", self.limit("lost", run["lost"], 0)),
            ("memory growth", f"{run['grown_KiB']:.0f} KiB", ""),
            ("CPU time for one of them in second 2", f"{run['second_us']:.0f} µs", ""),
            ("CPU time for one of them in the last second", f"{run['last_us']:.0f} µs", ""),
        ]
        return [f"| {what} | {value} | {limit} |" for what, value, limit in rows]

    def relay(self, run):
        name = run["name"].split("/")[0]
        median, rare = run["relay_us"], run["relay_p99_us"]
        return (f"| `{name}`: {RELAYS[name]} | {run['relay_frames']:.0f} | {median:.1f} µs | "
                f"{self.limit(name, median, RELAY_LIMIT_US, ' µs')} | {run['relay_floor_us']:.1f} µs | "
                f"{rare:.1f} µs | {self.limit(name + ' p99', rare, RELAY_P99_LIMIT_US, ' µs')} | "
                f"{run['relay_lost']:.0f} | {self.limit(name + ' lost', run['relay_lost'], 0)} |")

    def plug_in(self, run):
        slowest = run["slowest_plug_in_ms"]
        return (f"| {run['times']} | {slowest:.0f} ms | "
                f"{self.limit('plugIn', slowest, PLUG_IN_LIMIT_MS, ' ms')} |")


def main():
    report = Report()
    ratios, growths, pens, relays, plugs = [], [], [], [], []
    for name in sys.argv[1:]:
        text = pathlib.Path(name).read_text()
        for run in json.loads(text)["benchmarks"] if text else []:  # a filter may match nothing
            if "ratio" in run:
                ratios.append(report.ratio(run))
            elif "p99_ms" in run:
                pens += report.pen(run)
            elif "relay_us" in run:
                relays.append(report.relay(run))
            elif "slowest_plug_in_ms" in run:
                plugs.append(report.plug_in(run))
            else:
                growths.append(report.growth(run))

    print(f"""# Performance

Measured by `bench/run` on {datetime.date.today()}: {machine()}. Times depend on the machine, so
each is compared with its floor: the minimum that any program would have to do for the same result,
timed alternately with it in the same run. All times are medians. The limits are our own. kcmshell6 is
that of Debian 13, in a root of its own.""")
    if ratios:
        print("\n| work | time | floor | time | ratio | limit |\n|---|---|---|---|---|---|",
              *ratios, sep="\n")
    if pens:
        print("\nA pen with 1000 events a second for ten seconds, under Xvfb:\n",
              "| events | | limit |\n|---|---|---|", *pens, sep="\n")
    if relays:
        print("\nThe driver's input thread over pipes, with 1000 frames a second. The floor is a thread that "
              "reads the same\nbytes and writes them.\n",
              "| work | frames | median | limit | floor | 99th percentile | limit | lost | limit |",
              "|---|---|---|---|---|---|---|---|---|", *relays, sep="\n")
    if plugs:
        print("\nFrom plugging a tablet in until the driver has it to itself, in a virtual machine that "
              "emulates the\nprocessor, and so is many times slower than a real one:\n",
              "| times | slowest | limit |", "|---|---|---|", *plugs, sep="\n")
    if growths:
        print("\n| memory | times | growth | limit |\n|---|---|---|---|", *growths, sep="\n")
    if report.misses:
        print(f"Above its limit: {', '.join(report.misses)}", file=sys.stderr)
        return 1
    return 0


sys.exit(main())
