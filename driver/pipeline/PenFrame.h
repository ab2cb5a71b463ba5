// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

/** The end of the pen that is in reach of the tablet. */
enum class PenTool : std::uint8_t { None, Tip, Eraser };

/**
 * The buttons of a pen, as bits. A pen tablet names the one nearer to the tip the lower one. A
 * virtual pen presses them as BTN_STYLUS, BTN_STYLUS2 and BTN_STYLUS3.
 */
enum PenButton : std::uint8_t { kPenLower = 1, kPenUpper = 2, kPenThird = 4 };

/**
 * The state of a pen after a frame of events. What comes from a tablet is in the units of its own
 * axes, counted from their minimum; what goes to the virtual pen is in that pen's units. Both have
 * their origin in the upper left corner, with y growing downwards.
 */
struct PenFrame {
    std::chrono::microseconds time{}; ///< on the monotonic clock
    PenTool tool = PenTool::None;
    bool isTouching = false; ///< the tip or the eraser is on the surface
    std::uint8_t buttons = 0; ///< of PenButton
    std::uint32_t serial = 0; ///< of the pen; 0 if the tablet does not tell pens apart
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t pressure = 0;
    std::int32_t distance = 0;
    std::int32_t tiltX = 0; ///< positive to the right, whatever unit the tablet has
    std::int32_t tiltY = 0; ///< positive towards the user
    std::int32_t twist = 0; ///< from 0 to below PenAxes::twistTurn

    bool operator==(const PenFrame&) const = default;
};

/** The ranges of a tablet's pen, or of a virtual one. All of them begin at 0. */
struct PenAxes {
    std::int32_t xMax = 1;
    std::int32_t yMax = 1;
    std::int32_t pressureMax = 0; ///< 0 without pressure
    std::int32_t twistTurn = 0; ///< units in a full turn; 0 without twist
};
