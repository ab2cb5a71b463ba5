# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The tablet models, read from the panel's own table."""

import collections
import pathlib
import re

Model = collections.namedtuple(
    "Model", "product name layout picture keys strips pen_buttons width height pressure")

TABLE = pathlib.Path(__file__).resolve().parents[2] / "QVTblt/QVTabletModels.h"


def all_models():
    """Returns all models of the table, in order."""
    rows = re.findall(
        r'^ *\{(0x[0-9A-F]+), "(.+)", QVKeyLayout::(\w), (nullptr|"[\w.]+"), (.+)\},$',
        TABLE.read_text(), re.MULTILINE)
    models = [Model(int(product, 16), name, layout, picture, *map(int, numbers.split(",")))
              for product, name, layout, picture, numbers in rows]
    assert len(models) == TABLE.read_text().count("{0x"), "the table has another form"
    return models


def of_each_layout():
    """The first model of each layout of the key page and, where a layout has pens of both kinds, of
    each pen; in the table's order."""
    first = {}
    for model in all_models():
        first.setdefault((model.layout, model.pen_buttons), model)
    return list(first.values())


def product_of(layout):
    """The product ID of the first model of a layout."""
    return next(model.product for model in all_models() if model.layout == layout)
