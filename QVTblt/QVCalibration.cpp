// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVCalibration.h"

#include "QVTruncate.h"

#include <algorithm>

namespace {

constexpr std::int32_t kNear = 999;

/** The middle between two coordinates, truncated. */
std::int32_t middle(std::uint16_t a, std::uint16_t b)
{
    return (std::int32_t{a} + std::int32_t{b}) / 2;
}

} // namespace

bool QVIsTooNear(std::int32_t lastX, std::int32_t lastY, std::uint16_t x, std::uint16_t y)
{
    const std::int32_t difference = (lastX + lastY) - (x + y);
    return -kNear <= difference && difference <= kNear;
}

std::optional<QVTabletArea> QVCalibratedArea(
    const std::array<QVTabletPoint, 4>& points, double width, double height)
{
    const auto& [upperLeft, upperRight, lowerRight, lowerLeft] = points;
    if (upperLeft.x >= upperRight.x || lowerLeft.x >= lowerRight.x || upperLeft.y >= lowerLeft.y
        || upperRight.y >= lowerRight.y) {
        return std::nullopt;
    }
    const std::int32_t left = middle(upperLeft.x, lowerLeft.x);
    const std::int32_t right = middle(upperRight.x, lowerRight.x);
    const std::int32_t top = middle(upperLeft.y, upperRight.y);
    const std::int32_t bottom = middle(lowerRight.y, lowerLeft.y);
    constexpr auto kInset = static_cast<std::int32_t>(kQVCrossInset);
    const double marginX = (right - left) * kInset / (width - 2 * kQVCrossInset);
    const double marginY = (bottom - top) * kInset / (height - 2 * kQVCrossInset);
    return QVTabletArea{
        static_cast<std::uint16_t>(std::max(QVTruncate(left - marginX), 0)),
        static_cast<std::uint16_t>(QVTruncate(right + marginX)),
        static_cast<std::uint16_t>(std::max(QVTruncate(top - marginY), 0)),
        static_cast<std::uint16_t>(QVTruncate(bottom + marginY)),
    };
}
