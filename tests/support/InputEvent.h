// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <linux/input.h>

/** An event as an event node gives it, without its time. */
inline input_event event(unsigned type, unsigned code, std::int32_t value)
{
    input_event made{};
    made.type = static_cast<std::uint16_t>(type);
    made.code = static_cast<std::uint16_t>(code);
    made.value = value;
    return made;
}
