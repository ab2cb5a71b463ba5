# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The panel's pages as the user guide shows them: how to come to each, and what is on it. The script
that takes the guide's pictures writes down what is on them, and a test compares."""

import json
import re

import session

# Something on each tab's page, by which one knows that it is shown.
CONTROLS = {"Keys": "Picture of the tablet", "Pen": "Drawing pad",
            "Display": "Picture of the displays and the tablet"}
STRUCTURE = session.SOURCE / "docs/images/pages.json"


def layouts():
    """The first model of each layout of the key page: the layout's letter and the product ID."""
    table = (session.SOURCE / "QVTblt/QVTabletModels.h").read_text()
    found = {}
    for number, letter in re.findall(r"\{0x(\w{4}), .*?QVKeyLayout::(\w),", table):
        found.setdefault(letter, int(number, 16))
    return found


def pages():
    """Each page: its picture's name, the product whose settings it shows, and its tab."""
    for letter, product in sorted(layouts().items()):
        yield f"keyPage-{letter}", product, "Keys"
    yield "penPage", layouts()["G"], "Pen"
    yield "displayPage", layouts()["G"], "Display"


def structure(things):
    """What a person sees of a page, without what differs from desktop to desktop: tabs, controls with
    whether they can be used, and texts. A list stands under what it is for, not under what is chosen."""
    seen = []
    for thing in things:
        if not thing["showing"]:
            continue
        name = thing["name"]
        if thing["role"] == "combo box":
            name = next((label for label in thing["labels"] if label.strip()),
                        thing["description"])
        name = re.sub(r"\d+(?:[.,]\d+)?", "#", name).strip()
        if name:
            seen.append(f"{thing['role']}: {name}" + ("" if thing["enabled"] else " (disabled)"))
    return sorted(seen)


def written():
    """The structure of each picture, as it was taken."""
    return json.loads(STRUCTURE.read_text()) if STRUCTURE.exists() else {}


def write(name, things):
    """Writes down what is on a picture."""
    all_pages = written() | {name: structure(things)}
    STRUCTURE.write_text(json.dumps(all_pages, indent=1, sort_keys=True) + "\n")
