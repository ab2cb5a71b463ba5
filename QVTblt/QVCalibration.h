// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVMonitorGeometry.h"

#include <array>
#include <cstdint>
#include <optional>

/**
 * @file
 * The arithmetic of a calibration, in values alone.
 */

/** A point on the tablet, in tablet units, y growing downwards. */
struct QVTabletPoint {
    std::uint16_t x;
    std::uint16_t y;
};

/** From a cross's centre to the two nearest edges of the display, in points. */
inline constexpr double kQVCrossInset = 50.0;

/**
 * Whether a lift lies too near the last accepted one: the sums of their coordinates differ by less
 * than a thousand. So two points on one diagonal are near however far apart.
 */
bool QVIsTooNear(std::int32_t lastX, std::int32_t lastY, std::uint16_t x, std::uint16_t y);

/**
 * The part of the tablet that covers a display, from the points where its crosses were touched.
 *
 * The crosses stand kQVCrossInset points in from the edges, so the measured span, less twice that,
 * is stretched to the display's size. The low edges are at least 0; of the high ones only the low
 * 16 bits are kept.
 *
 * @param points of the crosses at the upper left, upper right, lower right and lower left
 * @param width of the display, in points
 * @return nothing when the points do not lie as their crosses do
 */
std::optional<QVTabletArea> QVCalibratedArea(
    const std::array<QVTabletPoint, 4>& points, double width, double height);
