// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

/** A point of a view. */
struct QVPoint {
    double x;
    double y;

    bool operator==(const QVPoint&) const = default;
};
