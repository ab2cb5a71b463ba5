# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The panel's pages in the user guide: how to open each, and what it contains. The script that
takes the guide's pictures records their contents, and a test compares them with the panel."""

import json
import re

import models
import session

# A control on each tab's page that shows that the page is open.
CONTROLS = {"Keys": "Picture of the tablet", "Pen": "Drawing pad",
            "Display": "Picture of the displays and the tablet"}
STRUCTURE = session.SOURCE / "docs/images/pages.json"


def pages():
    """Yields each page: its picture's name, the product whose settings it shows, and its tab."""
    for layout in sorted({model.layout for model in models.all_models()}):
        yield f"keyPage-{layout}", models.product_of(layout), "Keys"
    yield "penPage", models.product_of("G"), "Pen"
    yield "displayPage", models.product_of("G"), "Display"


def structure(things):
    """Returns a page's contents without what varies between desktops: tabs, controls and whether
    they are enabled, and texts. A list has the name of its purpose, not of its choice."""
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
    """Returns the recorded structure of each picture."""
    return json.loads(STRUCTURE.read_text()) if STRUCTURE.exists() else {}


def write(name, things):
    """Records the structure of a picture."""
    all_pages = written() | {name: structure(things)}
    STRUCTURE.write_text(json.dumps(all_pages, indent=1, sort_keys=True) + "\n")
