# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Measures the time from plugging a tablet in until the driver has it to itself. Runs in the virtual
machine, see tests/vm/boot, where everything takes many times as long as it does outside.

Prints the longest of ten times as JSON, like the other benchmarks.
"""

import json
import time

import guest
from tablet import Tablet

TIMES = 10


def plug(world, number):
    """Plugs a tablet in and out, and returns the milliseconds until it obeyed."""
    begin = len(world.driver.lines)
    start = time.monotonic()
    tablet = Tablet(serial=f"B{number}")
    world.driver.wait("obeys the settings", begin)
    milliseconds = 1000 * (time.monotonic() - start)
    tablet.unplug()
    guest.wait_for(lambda: not world.tablets(), "the end of the tablet")
    return milliseconds


def main():
    world = guest.World()
    world.start_driver()
    # The first one also waits for udev's own first steps, and for the tablet's file.
    plug(world, 0)
    slowest = max(plug(world, number) for number in range(1, TIMES + 1))
    print(json.dumps({"benchmarks": [{"name": "plugIn", "times": TIMES, "slowest_plug_in_ms": slowest}]}))


main()
