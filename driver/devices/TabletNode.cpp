// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletNode.h"

#include "tagQVTabletInfo.h"

#include <array>

namespace {

/** Far more than a tablet has. A device may claim anything, but nothing must overflow. */
constexpr std::int32_t kMostUnits = 1 << 24;
constexpr std::int32_t kMostResolution = 1 << 20;

std::optional<Axis> axisOf(const libevdev& node, unsigned code)
{
    const input_absinfo* const info = libevdev_get_abs_info(&node, code);
    if (info == nullptr || info->maximum <= info->minimum
        || std::int64_t{info->maximum} - info->minimum > kMostUnits) {
        return std::nullopt;
    }
    const bool isKnown = info->resolution > 0 && info->resolution <= kMostResolution;
    return Axis{info->minimum, info->maximum, isKnown ? info->resolution : 0};
}

bool hasKey(const libevdev& node, unsigned code)
{
    return libevdev_has_event_code(&node, EV_KEY, code) != 0;
}

} // namespace

NodeState readNode(int fd)
{
    libevdev* node = nullptr;
    if (libevdev_new_from_fd(fd, &node) < 0) {
        node = nullptr;
    }
    return {node, &libevdev_free};
}

PenAxes PenDescription::axes() const
{
    return {x.range(), y.range(), pressure ? pressure->range() : 0, twist ? twist->range() + 1 : 0};
}

std::optional<PenDescription> describePen(const libevdev& node)
{
    const std::optional<Axis> x = axisOf(node, ABS_X);
    const std::optional<Axis> y = axisOf(node, ABS_Y);
    if (!x || !y) {
        return std::nullopt;
    }
    PenDescription pen;
    pen.x = *x;
    pen.y = *y;
    pen.pressure = axisOf(node, ABS_PRESSURE);
    pen.distance = axisOf(node, ABS_DISTANCE);
    pen.tiltX = axisOf(node, ABS_TILT_X);
    pen.tiltY = axisOf(node, ABS_TILT_Y);
    if (!pen.tiltX || !pen.tiltY) {
        pen.tiltX.reset();
        pen.tiltY.reset();
    }
    pen.twist = axisOf(node, ABS_Z);
    pen.hasTouch = hasKey(node, BTN_TOUCH);
    pen.hasTool = hasKey(node, BTN_TOOL_PEN);
    pen.hasEraser = hasKey(node, BTN_TOOL_RUBBER);
    pen.hasSerial = libevdev_has_event_code(&node, EV_MSC, MSC_SERIAL) != 0;
    return pen;
}

PadStrips PadDescription::ranges() const
{
    PadStrips ranges{};
    for (std::size_t i = 0; i < strips.size(); ++i) {
        const StripDescription& strip = strips[i];
        if (strip.type == EV_ABS) {
            // A ring has a position more than it has steps between its ends.
            ranges.at(i) = {strip.axis.range() + (strip.isRing ? 1 : 0), strip.isRing};
        }
    }
    return ranges;
}

PadDescription describePad(const libevdev& node)
{
    PadDescription pad;
    // Where tablets have their keys: of general use, of mice, and of games. A generic one may have
    // more than ten of general use, beyond those with names. Keys of a keyboard are no express
    // keys.
    const auto addKeys = [&](unsigned first, unsigned last) {
        for (unsigned code = first; code <= last && pad.keys.size() < kQVUpperPenSlot; ++code) {
            if (hasKey(node, code)) {
                pad.keys.push_back(static_cast<std::uint16_t>(code));
            }
        }
    };
    addKeys(BTN_MISC, BTN_TASK);
    addKeys(BTN_JOYSTICK, BTN_THUMBR);
    for (const unsigned code : std::to_array<unsigned>({ABS_RX, ABS_RY, ABS_WHEEL, ABS_THROTTLE})) {
        const std::optional<Axis> axis = axisOf(node, code);
        if (axis && pad.strips.size() < kPadStrips) {
            pad.strips.push_back({EV_ABS, code, *axis, code == ABS_WHEEL || code == ABS_THROTTLE});
        }
    }
    for (const unsigned code : std::to_array<unsigned>({REL_WHEEL, REL_HWHEEL, REL_DIAL})) {
        if (libevdev_has_event_code(&node, EV_REL, code) != 0 && pad.strips.size() < kPadStrips) {
            pad.strips.push_back({EV_REL, code, {}, false});
        }
    }
    return pad;
}
