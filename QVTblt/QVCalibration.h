// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVMonitorGeometry.h"

#include <array>
#include <cstdint>
#include <optional>

/**
 * @file
 * The arithmetic of a calibration, as pure functions.
 */

/** A point on the tablet, in tablet units, y growing downwards. */
struct QVTabletPoint {
    std::uint16_t x;
    std::uint16_t y;
};

/** Distance from a cross's centre to the two nearest edges of the display, in points. */
inline constexpr double kQVCrossInset = 50.0;

/**
 * Whether a lift is too close to the last accepted one: the sums of their coordinates differ by
 * less than a thousand. So two points on a diagonal are close, however far apart.
 */
bool QVIsTooNear(std::int32_t lastX, std::int32_t lastY, std::uint16_t x, std::uint16_t y);

/**
 * The part of the tablet that covers a display, from the points where its crosses were touched.
 *
 * The crosses are kQVCrossInset points from the edges, so the measured span covers the display's
 * size less twice that, and is extended to the whole. The low edges are at least 0; the high ones
 * are truncated to 16 bits.
 *
 * @param points of the crosses at the upper left, upper right, lower right and lower left
 * @param width of the display, in points
 * @return nothing if the points are not arranged like their crosses
 */
std::optional<QVTabletArea> QVCalibratedArea(
    const std::array<QVTabletPoint, 4>& points, double width, double height);
