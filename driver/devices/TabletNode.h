// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PadPipeline.h"
#include "PenFrame.h"

#include <cstdint>
#include <libevdev/libevdev.h>
#include <memory>
#include <optional>
#include <vector>

/**
 * @file
 * What an event node of a tablet offers, as the kernel describes it.
 */

/** A node with its present state, as libevdev reads it; null if that fails. */
using NodeState = std::unique_ptr<libevdev, decltype(&libevdev_free)>;

/** Reads the description and the present state of an open node, without taking events from it. */
NodeState readNode(int fd);

/** The range and the resolution of an axis, as the kernel reports them. */
struct Axis {
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;
    std::int32_t resolution = 0; ///< units per millimetre, or per radian; 0 if unknown

    std::int32_t range() const { return maximum - minimum; }
};

/** What a pen's node offers. */
struct PenDescription {
    Axis x;
    Axis y;
    std::optional<Axis> pressure;
    std::optional<Axis> distance;
    std::optional<Axis> tiltX; ///< if there is one, there is the other
    std::optional<Axis> tiltY;
    std::optional<Axis> twist;
    bool hasTouch = true; ///< the pen says when it touches
    bool hasTool = false; ///< the pen says when it comes into reach
    bool hasEraser = false;
    bool hasSerial = false;

    /** The ranges for the pipeline. */
    PenAxes axes() const;
};

/** Describes a pen. @return nothing if the node has no position */
std::optional<PenDescription> describePen(const libevdev& node);

/** A strip or ring: an absolute axis, or a wheel that only counts notches. */
struct StripDescription {
    unsigned type = 0; ///< EV_ABS or EV_REL
    unsigned code = 0;
    Axis axis; ///< of an absolute one
    bool isRing = false;
};

/** What the node of a tablet's keys and strips offers. */
struct PadDescription {
    std::vector<std::uint16_t> keys; ///< ascending key codes, one for each slot of an express key
    std::vector<StripDescription> strips; ///< at most kPadStrips

    /** The ranges for the pipeline. */
    PadStrips ranges() const;
};

/** Describes the keys and strips; both may be missing. */
PadDescription describePad(const libevdev& node);
