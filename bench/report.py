#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Makes the tables of what the benchmarks have measured, each figure with its floor and its limit.

Usage: report.py RESULT ...

The results are JSON as Google Benchmark writes it. Ends with 1 where a figure is above its limit.
"""

import datetime
import json
import pathlib
import platform
import re
import sys

# What is timed, the floor that is timed in turn with it, and how often the floor's time it may take.
RATIOS = {
    "push": ("the record is pushed to the driver",
             "QtDBus sends the same message", 1.3),
    "pushAgainstPlainBytes": ("the same",
                              "QtDBus sends the bytes as one array: what the wire's form costs", None),
    "query": ("the driver is asked for its tablet",
              "QtDBus makes the same call", 1.3),
    "load": ("a full file is loaded",
             "QXmlStreamReader walks it", 1.3),
    "loadAgainstLibplist": ("the same",
                            "libplist parses it: what Qt's reader costs above a small one", None),
    "save": ("a full file is saved",
             "QXmlStreamReader walks it before and after, and it is written, flushed and renamed", 1.3),
    "showKeyPage": ("the key page's eighteen boxes are filled",
                    "eighteen bare boxes are filled with the same items", 1.5),
    "choose": ("a key's action is chosen, from the click to the bytes at the driver",
               "the push alone", 1.5),
    "controlUSBDevWithoutTablet": ("a tablet is looked for among 64 USB devices",
                                   "libusb lists them", 1.3),
    "drawSteps": ("a pen's events are drawn on the pad",
                  "QPainter strokes the same segments", 1.3),
    "redrawCurve": ("the pressure curve is computed and redrawn",
                    "QPainter paints the same path", 1.3),
    "redrawDisplays": ("the picture of four displays is redrawn",
                       "QPainter paints the same shapes and picture", 1.3),
    "takeReport": ("a pen's report is taken while the tablet is calibrated",
                   "QtDBus decodes the same message", 1.5),
    "startInHost": ("kcmshell5 starts with the panel, to the shown page",
                    "kcmshell5 starts with an empty module", 1.15),
    "startOfPlasmaModule": ("the same",
                            "kcmshell5 starts with the tablet module that Plasma brings", 1.0),
}

# What grows, and by how many KiB at most. What is lost each time is 16 bytes at least, which in
# 100,000 times are 1,562 KiB; less than a tenth of that is the allocator's own affair.
GROWTHS = {
    "memoryOfPushes": ("pushes", 128),
    "memoryOfLoads": ("loads", 128),
    "memoryOfSaves": ("saves", 128),
    "memoryInHost": ("the panel in kcmshell5, above an empty module", 12 * 1024),
}

PEN_LIMIT_MS = 16.7  # a frame of a usual display


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
        """The cell for a limit. Remembers when the value is above it."""
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
            ("half of them are on the screen within", f"{run['median_ms']:.1f} ms", ""),
            ("99 of 100 are on the screen within", f"{run['p99_ms']:.1f} ms",
             self.limit("p99", run["p99_ms"], PEN_LIMIT_MS, " ms")),
            (f"the same, for the {run['server_samples']:.0f} of them for which the X server was asked",
             f"{run['server_p99_ms']:.1f} ms", self.limit("server_p99", run["server_p99_ms"],
                                                          PEN_LIMIT_MS, " ms")),
            ("lost", f"{run['lost']:.0f}", self.limit("lost", run["lost"], 0)),
            ("memory grown", f"{run['grown_KiB']:.0f} KiB", ""),
            ("work for one of them in the second second", f"{run['second_us']:.0f} µs", ""),
            ("work for one of them in the last second", f"{run['last_us']:.0f} µs", ""),
        ]
        return [f"| {what} | {value} | {limit} |" for what, value, limit in rows]


def main():
    report = Report()
    ratios, growths, pens = [], [], []
    for name in sys.argv[1:]:
        text = pathlib.Path(name).read_text()
        for run in json.loads(text)["benchmarks"] if text else []:  # a filter may leave nothing to do
            if "ratio" in run:
                ratios.append(report.ratio(run))
            elif "p99_ms" in run:
                pens += report.pen(run)
            else:
                growths.append(report.growth(run))

    print(f"""# Performance

What `bench/run` has measured on {datetime.date.today()}: {machine()}. Times depend on the machine, so
each stands beside its floor: the least that any program would do for the same, timed in turn with it in
the same run. All are medians. The limits are ours.""")
    if ratios:
        print("\n| work | time | floor | time | ratio | limit |\n|---|---|---|---|---|---|",
              *ratios, sep="\n")
    if pens:
        print("\nA pen that sends 1000 events a second for ten seconds, under Xvfb:\n",
              "| events | | limit |\n|---|---|---|", *pens, sep="\n")
    if growths:
        print("\n| memory | times | grown | limit |\n|---|---|---|---|", *growths, sep="\n")
    if report.misses:
        print(f"Above its limit: {', '.join(report.misses)}", file=sys.stderr)
        return 1
    return 0


sys.exit(main())
