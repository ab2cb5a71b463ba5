#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Runs desktop_guest.py in a virtual machine with two displays, with the programs of the preset qt6 unless
the environment says otherwise, and prints how far the pen is from where the record says.

Usage: desktop_test.py [--all] [--page] [DESKTOP ...]
  DESKTOP: kwin5, kwin6 (with the files of Debian 13), sway, xorg; without, kwin5, or with --all each
  --all: all arrangements of the displays, and what takes long
  --page: writes docs/mapping.md with --all, if each desktop is as it should be
"""

import argparse
import collections
import json
import pathlib
import subprocess
import sys
import time

import vm_test
from vm_test import SOURCE

DESKTOPS = {
    "kwin5": "KWin 5, Wayland (Debian 12)",
    "kwin6": "KWin 6, Wayland (Debian 13)",
    "sway": "Sway, for compositors with wlroots (Debian 12)",
    "xorg": "Xorg with its libinput driver (Debian 12)",
}
# How far the pressure may be off, where it is more than one level.
LEVELS = {"kwin6": 2}
RESULT = "result: "
SKIPPED = 77
PAGE = SOURCE / "docs/mapping.md"
PAGE_BEGIN = "<!-- The rest is written by tests/vm/desktop_test.py --all --page DESKTOP .... -->\n"


def debian13():
    """Builds in Debian 13; returns its root, or nothing where that is not possible."""
    script = SOURCE / "tests/debian13"
    root = subprocess.run([script, "--path"], stdout=subprocess.PIPE, text=True, check=False)
    if root.returncode != 0:
        return None
    result = subprocess.run(
        [script, "bash", "-c", "cmake --preset qt6-host && "
         "cmake --build --preset qt6-host --target tdsg-driver pen-log"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if result.returncode != 0:
        sys.exit(result.stdout)
    return root.stdout.strip()


def run(desktop, everything):
    """Returns the results of a desktop, and the exit status."""
    begin = time.monotonic()
    options, where = ["--displays"], {"source": SOURCE, "preset": "qt6"}
    if desktop == "kwin6":
        root = debian13()
        if not root:
            return [], SKIPPED
        options += ["--root", root]
        where = {"source": pathlib.Path("/srv/qvtblt"), "preset": "qt6-host"}
    tests = where["source"] / "tests/vm"
    log = where["source"] / "build" / where["preset"] / "tests/vm/pen-log"
    results = []
    guest = subprocess.Popen(
        [*vm_test.command(*options, **where), tests / "desktop_guest.py", desktop, log,
         *["--all"] * everything],
        stdout=subprocess.PIPE, text=True, errors="replace")
    for line in guest.stdout:
        if line.startswith(RESULT):
            results.append(json.loads(line.removeprefix(RESULT)))
        else:
            print(line, end="", flush=True)
    status = guest.wait()
    print(f"{desktop}: {time.monotonic() - begin:.0f} s, exit status {status}", flush=True)
    return results, status


def scale_text(scale):
    return f"{abs(scale)}, upright" if scale < 0 else str(scale)


def table(results):
    """A line for each area; a cell has the distance with the tablet as it is, and turned."""
    rows = collections.defaultdict(lambda: collections.defaultdict(list))
    for result in results:
        rows[tuple(result["scales"]), result["area"]][result["part"]].append(f"{result['pixels']:.2f}")
    parts = list(dict.fromkeys(result["part"] for result in results))
    lines = ["| displays | scale | area | " + " | ".join(parts) + " |", "|---" * (3 + len(parts)) + "|"]
    for (scales, area), cells in rows.items():
        texts = list(dict.fromkeys(map(scale_text, scales)))
        lines.append(f"| {len(scales)} | {' and '.join(texts)} | {area} | "
                     + " | ".join(" / ".join(cells[part]) or "not offered" for part in parts) + " |")
    return lines


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--page", action="store_true")
    parser.add_argument("desktops", nargs="*", metavar="DESKTOP")
    arguments = parser.parse_args()
    sections = {}
    worst = 0
    for desktop in arguments.desktops or (DESKTOPS if arguments.all else ["kwin5"]):
        results, status = run(desktop, arguments.all)
        worst = max(worst, status, key=lambda number: (number != 0, number != SKIPPED))
        if not results:
            continue
        pixels, levels = (max(result[key] for result in results) for key in ("pixels", "levels"))
        if pixels > 1 or levels > LEVELS.get(desktop, 1):
            worst = 1
        sections[DESKTOPS[desktop]] = "\n".join(
            ["", f"At most {pixels:.2f} pixels and {levels:.2f} pressure levels.", "",
             *table(results), ""])
    print(*(f"\n## {title}\n{text}" for title, text in sections.items()), sep="")
    if arguments.page and worst == 0:
        # Desktops that were not measured now keep what they had.
        begin, _, rest = PAGE.read_text().partition(PAGE_BEGIN)
        before = dict(part.split("\n", 1) for part in rest.split("\n## ")[1:])
        parts = {title: sections.get(title, before.get(title)) for title in DESKTOPS.values()}
        PAGE.write_text(begin + PAGE_BEGIN + "".join(
            f"\n## {title}\n{text.rstrip()}\n" for title, text in parts.items() if text))
    return worst


if __name__ == "__main__":
    sys.exit(main())
