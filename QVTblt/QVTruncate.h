// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>

/** Truncates a number toward zero. A value beyond 32 bits or NaN becomes 0. */
inline std::int32_t QVTruncate(double value)
{
    const double whole = std::trunc(value);
    return whole >= -0x1p31 && whole < 0x1p31 ? static_cast<std::int32_t>(whole) : 0;
}
