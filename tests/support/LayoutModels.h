// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletModels.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

/** The product ID of the first model with a layout and, unless it is 0, that many pen buttons. */
constexpr std::uint16_t productOf(QVKeyLayout layout, int penButtons = 0)
{
    for (const QVTabletModel& model : kQVTabletModels) {
        if (model.layout == layout && (penButtons == 0 || model.penButtons == penButtons)) {
            return model.productID;
        }
    }
    throw std::logic_error("no model has this layout");
}

/** The first model of each layout and, where a layout has pens of both kinds, of each pen. */
inline std::vector<std::uint16_t> productsOfEachLayout()
{
    std::vector<std::uint16_t> products;
    for (const QVTabletModel& model : kQVTabletModels) {
        if (model.productID == productOf(model.layout, model.penButtons)) {
            products.push_back(model.productID);
        }
    }
    return products;
}
