// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "EventDecoder.h"

#include <algorithm>
#include <array>

namespace {

std::chrono::microseconds timeOf(const input_event& event)
{
    return std::chrono::seconds(event.input_event_sec)
        + std::chrono::microseconds(event.input_event_usec);
}

std::int32_t fromMinimum(const std::optional<Axis>& axis, std::int32_t value)
{
    return axis ? std::clamp(value, axis->minimum, axis->maximum) - axis->minimum : 0;
}

/** The centre of a tilt is 0, wherever the axis begins. */
std::int32_t fromCentre(const std::optional<Axis>& axis, std::int32_t value)
{
    if (!axis) {
        return 0;
    }
    const std::int32_t half = (axis->range() + 1) / 2;
    const std::int32_t centre = axis->minimum < 0 ? 0 : axis->minimum + half;
    return std::clamp(std::clamp(value, axis->minimum, axis->maximum) - centre, -half, half);
}

/** More than a hand turns a wheel within a frame. */
constexpr std::int32_t kMostNotches = 100;

/** The keys of a pen, in the order in which a state is read. */
constexpr auto kPenKeys = std::to_array<unsigned>({BTN_TOOL_PEN, BTN_TOOL_BRUSH, BTN_TOOL_PENCIL,
    BTN_TOOL_AIRBRUSH, BTN_TOOL_RUBBER, BTN_TOUCH, BTN_STYLUS, BTN_STYLUS2, BTN_STYLUS3});
constexpr auto kPenAxes = std::to_array<unsigned>(
    {ABS_X, ABS_Y, ABS_PRESSURE, ABS_DISTANCE, ABS_TILT_X, ABS_TILT_Y, ABS_Z});

} // namespace

std::optional<PenFrame> PenDecoder::take(const input_event& event)
{
    switch (event.type) {
    case EV_KEY:
        takeKey(event.code, event.value != 0);
        break;
    case EV_ABS:
        takeAxis(event.code, event.value);
        break;
    case EV_MSC:
        if (event.code == MSC_SERIAL) {
            mSerial = static_cast<std::uint32_t>(event.value);
        }
        break;
    case EV_SYN:
        if (event.code == SYN_REPORT) {
            mFrame.time = timeOf(event);
            return frame();
        }
        break;
    default:
        break;
    }
    return std::nullopt;
}

PenFrame PenDecoder::resync(const libevdev& node)
{
    for (const unsigned code : kPenKeys) {
        takeKey(code, libevdev_get_event_value(&node, EV_KEY, code) != 0);
    }
    for (const unsigned code : kPenAxes) {
        takeAxis(code, libevdev_get_event_value(&node, EV_ABS, code));
    }
    return frame();
}

void PenDecoder::takeKey(unsigned code, bool isDown)
{
    const auto setButton = [&](PenButton button) {
        mFrame.buttons =
            static_cast<std::uint8_t>(isDown ? mFrame.buttons | button : mFrame.buttons & ~button);
    };
    switch (code) {
    case BTN_TOOL_PEN:
    case BTN_TOOL_BRUSH:
    case BTN_TOOL_PENCIL:
    case BTN_TOOL_AIRBRUSH:
        mTips.set(code - BTN_TOOL_PEN, isDown);
        break;
    case BTN_TOOL_RUBBER:
        mHasEraser = isDown;
        break;
    case BTN_TOUCH:
        mFrame.isTouching = isDown;
        break;
    case BTN_STYLUS:
        setButton(kPenLower);
        break;
    case BTN_STYLUS2:
        setButton(kPenUpper);
        break;
    case BTN_STYLUS3:
        setButton(kPenThird);
        break;
    default:
        break;
    }
}

void PenDecoder::takeAxis(unsigned code, std::int32_t value)
{
    switch (code) {
    case ABS_X:
        mFrame.x = fromMinimum(mDescription.x, value);
        break;
    case ABS_Y:
        mFrame.y = fromMinimum(mDescription.y, value);
        break;
    case ABS_PRESSURE:
        mFrame.pressure = fromMinimum(mDescription.pressure, value);
        break;
    case ABS_DISTANCE:
        mFrame.distance = fromMinimum(mDescription.distance, value);
        break;
    case ABS_TILT_X:
        mFrame.tiltX = fromCentre(mDescription.tiltX, value);
        break;
    case ABS_TILT_Y:
        mFrame.tiltY = fromCentre(mDescription.tiltY, value);
        break;
    case ABS_Z:
        mFrame.twist = fromMinimum(mDescription.twist, value);
        break;
    default:
        break;
    }
}

bool PenDecoder::isAtRest() const
{
    return mTips.none() && !mHasEraser && !mFrame.isTouching && mFrame.buttons == 0;
}

PenFrame PenDecoder::frame()
{
    // Some kernels say both while the eraser is near.
    const bool hasTip = mTips.any() || !mDescription.hasTool;
    mFrame.tool = mHasEraser ? PenTool::Eraser : hasTip ? PenTool::Tip : PenTool::None;
    if (!mDescription.hasTouch) {
        mFrame.isTouching = mFrame.pressure > 0;
    }
    mFrame.serial = mSerial;
    return mFrame;
}

std::optional<PadFrame> PadDecoder::take(const input_event& event)
{
    if (event.type == EV_KEY) {
        takeKey(event.code, event.value != 0);
    } else if (event.type == EV_ABS && event.code == ABS_MISC) {
        mSaysTouch = true;
        mIsTouched = event.value != 0;
    } else if (event.type == EV_SYN && event.code == SYN_REPORT) {
        mFrame.time = timeOf(event);
        if (mSaysTouch && !mIsTouched) {
            mFrame.strips = {}; // also if their axes follow in the same frame
        }
        PadFrame frame = mFrame;
        mFrame.wheels = {};
        return frame;
    }
    for (std::size_t strip = 0; strip < mDescription.strips.size(); ++strip) {
        const StripDescription& its = mDescription.strips[strip];
        if (event.type != its.type || event.code != its.code) {
            continue;
        }
        if (its.type == EV_ABS) {
            takeAxis(strip, event.value);
        } else {
            const std::int32_t notches = mFrame.wheels.at(strip) / kWheelNotch
                + std::clamp(event.value, -kMostNotches, kMostNotches);
            mFrame.wheels.at(strip) =
                kWheelNotch * std::clamp(notches, -kMostNotches, kMostNotches);
        }
    }
    return std::nullopt;
}

PadFrame PadDecoder::resync(const libevdev& node)
{
    mFrame.keys = 0;
    for (const std::uint16_t code : mDescription.keys) {
        takeKey(code, libevdev_get_event_value(&node, EV_KEY, code) != 0);
    }
    // Where a finger is now says nothing about how it came there.
    mFrame.strips = {};
    mFrame.wheels = {};
    return mFrame;
}

void PadDecoder::takeKey(unsigned code, bool isDown)
{
    const auto found = std::ranges::find(mDescription.keys, code);
    if (found != mDescription.keys.end()) {
        const auto bit = static_cast<unsigned>(1U << (found - mDescription.keys.begin()));
        mFrame.keys = static_cast<std::uint16_t>(isDown ? mFrame.keys | bit : mFrame.keys & ~bit);
    }
}

void PadDecoder::takeAxis(std::size_t strip, std::int32_t value)
{
    // A strip that is left says 0, which is no place on it; a ring has one there.
    const StripDescription& its = mDescription.strips[strip];
    const std::int32_t place = fromMinimum(its.axis, value);
    if (!its.isRing && !mSaysTouch && place == 0) {
        mFrame.strips.at(strip).reset();
    } else {
        mFrame.strips.at(strip) = place;
    }
}
