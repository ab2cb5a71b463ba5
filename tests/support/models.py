# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The tablet models, read from the panel's own table."""

import collections
import re

import session

Model = collections.namedtuple(
    "Model", "product name layout picture keys strips pen_buttons width height pressure")

TABLE = session.SOURCE / "QVTblt/QVTabletModels.h"


def all_models():
    """Returns all models of the table, in order."""
    rows = re.findall(r'^ *\{(0x[0-9A-F]+), "(.+)", QVKeyLayout::(\w), QVPicture::(\w+), (.+)\},$',
                      TABLE.read_text(), re.MULTILINE)
    models = [Model(int(product, 16), name, layout, picture, *map(int, numbers.split(",")))
              for product, name, layout, picture, numbers in rows]
    assert len(models) == TABLE.read_text().count("{0x"), "the table has another form"
    return models


def of_each_layout():
    """Returns the first model with each layout of the key page, in the table's order."""
    first = {}
    for model in all_models():
        first.setdefault(model.layout, model)
    return list(first.values())
