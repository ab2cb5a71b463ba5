// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ButtonActions.h"
#include "Commands.h"
#include "TabletSettings.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>

/** Number of scroll strips or rings that a record has settings for. */
inline constexpr std::size_t kPadStrips = 2;

/** The state of a tablet's keys and strips after a frame of events. */
struct PadFrame {
    std::chrono::microseconds time{}; ///< on the monotonic clock
    std::uint16_t keys = 0; ///< bit n is express key n, in the order of the kernel's key codes
    /** Where the finger is on each strip or ring, in its units; nothing while it is off. */
    std::array<std::optional<std::int32_t>, kPadStrips> strips{};
    /** Notches that a wheel was turned away from the user, in 120ths. */
    std::array<std::int32_t, kPadStrips> wheels{};
};

/** What a tablet has for scrolling. */
struct PadStrip {
    std::int32_t length = 0; ///< units from one end to the other, or of a whole turn; 0 for none
    bool isRing = false; ///< its ends meet
};

using PadStrips = std::array<PadStrip, kPadStrips>;

/** Turns the frames of a tablet's keys and strips into commands. Pure: no clock, no file. */
class PadPipeline {
public:
    explicit PadPipeline(const PadStrips& strips)
        : mStrips(strips)
    {
    }

    /** @param buttons holds what the keys press; the pen's buttons share it */
    void next(const PadFrame& frame, const TabletSettings& settings, ButtonActions& buttons,
        Commands& commands);

    /** Forgets where the fingers were: the tablet was not ours meanwhile. */
    void forget();

private:
    /** The units by which the finger moved downwards, or clockwise. */
    std::int64_t moved(std::size_t strip, const std::optional<std::int32_t>& position);

    PadStrips mStrips;
    std::array<std::optional<std::int32_t>, kPadStrips> mLast{}; ///< where the fingers were
    std::array<std::int64_t, kPadStrips> mRest{}; ///< not scrolled yet, since it is too little
};
