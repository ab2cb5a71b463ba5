// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PadPipeline.h"

#include <cstdlib>
#include <utility>

namespace {

/** Notches for a whole strip or turn, for each step of the speed. */
constexpr std::int64_t kNotchesPerLength = 2;

/** Between two frames, a finger moves at most this part of a ring's turn: an eighth. */
constexpr std::int64_t kLeastStepsOfTurn = 8;

/** The speed at which a wheel's notch is one. */
constexpr std::int64_t kPlainSpeed = 5;

} // namespace

void PadPipeline::next(const PadFrame& frame, const TabletSettings& settings,
    ButtonActions& buttons, Commands& commands)
{
    for (std::size_t key = 0; key < kQVUpperPenSlot; ++key) {
        buttons.set(key, (frame.keys >> key & 1U) != 0, settings, commands);
    }
    for (std::size_t strip = 0; strip < kPadStrips; ++strip) {
        const PadStrip& shape = mStrips.at(strip);
        const std::int64_t down = moved(strip, frame.strips.at(strip));
        if (!settings.areStripsOn.at(strip)) {
            mRest.at(strip) = 0;
            continue;
        }
        // The upper end of a strip is the lower one of a tablet that is turned.
        const int up = settings.isTurned && !shape.isRing ? 1 : -1;
        const bool isWheel = shape.length <= 0;
        const std::int64_t divisor = isWheel ? kPlainSpeed : shape.length;
        const std::int64_t units =
            isWheel ? frame.wheels.at(strip) : up * down * kWheelNotch * kNotchesPerLength;
        const std::int64_t sum = mRest.at(strip) + units * settings.scrollSpeed;
        mRest.at(strip) = sum % divisor;
        if (const std::int64_t scrolled = sum / divisor; scrolled != 0) {
            commands.add(Command::Kind::Scroll, static_cast<std::int32_t>(scrolled));
        }
    }
}

void PadPipeline::forget()
{
    mLast = {};
    mRest = {};
}

std::int64_t PadPipeline::moved(std::size_t strip, const std::optional<std::int32_t>& position)
{
    const PadStrip& shape = mStrips.at(strip);
    const std::optional<std::int32_t> last = std::exchange(mLast.at(strip), position);
    if (!position || !last) {
        return 0;
    }
    std::int64_t way = std::int64_t{*position} - *last;
    if (!shape.isRing) {
        return way;
    }
    if (std::abs(way) * 2 > shape.length) {
        way += way > 0 ? -shape.length : shape.length; // the shorter way around
    }
    // Some rings do not report that the finger has left, but no finger is that fast.
    return std::abs(way) * kLeastStepsOfTurn > shape.length ? 0 : way;
}
