// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>

/**
 * A coordinate or a control's value for a 16-bit field of the record: truncated toward zero, then
 * its low 16 bits. What is beyond 32 bits, or no number, is 0.
 */
inline std::int16_t QVTruncate(double value)
{
    const double whole = std::trunc(value);
    const bool fits = whole >= -0x1p31 && whole < 0x1p31;
    return static_cast<std::int16_t>(fits ? static_cast<std::int32_t>(whole) : 0);
}
