// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPressCurve.h"

#include "tagQVTabletInfo.h"

#include <algorithm>
#include <cmath>

namespace {

/** The linear part vanishes 100 steps of the threshold from the middle. */
constexpr double kPressureRange = 1023;
constexpr double kScale = kPressureRange * 100;
constexpr int kStep = 5; ///< steps of the tablet's pressure per point of the view
constexpr int kHeight = 200;

/** The height of an output pressure in the view. */
int points(double pressure)
{
    return static_cast<int>(pressure) / kStep;
}

int above(int threshold, int j)
{
    const double b = (kQVStraightThreshold - threshold) / kScale;
    const double c = 1 - kPressureRange * b;
    const double t = kStep * j;
    const double g = (std::sqrt(t * (4 * b) + c * c) - c) / (b + b);
    return kHeight - std::max(kHeight - points(g), 0);
}

int below(int threshold, int j)
{
    const double a = (threshold - kQVStraightThreshold) / kScale;
    const double x = kStep * (kHeight - j);
    const double f = x * (1 - kPressureRange * a) + a * x * x;
    return kHeight - std::max(2 * kHeight - 2 * j - points(f), 0);
}

} // namespace

int QVPressHeight(int threshold, int j)
{
    return threshold < kQVStraightThreshold ? above(threshold, j) : below(threshold, j);
}

std::array<QVPoint, kQVCurvePoints> QVPressCurve(int threshold)
{
    std::array<QVPoint, kQVCurvePoints> curve{};
    for (int j = 1; j < kHeight; ++j) {
        curve[static_cast<std::size_t>(j)] = {
            static_cast<double>(j), static_cast<double>(QVPressHeight(threshold, j))};
    }
    curve.back() = {kHeight, kHeight};
    return curve;
}

double QVPressResponse(double pressure, int threshold)
{
    const double s = std::min(1.0,
        std::abs(threshold - kQVStraightThreshold) / static_cast<double>(kQVStraightThreshold));
    const double linear = 1 - s;
    if (threshold >= kQVStraightThreshold) {
        return pressure * (linear + s * pressure);
    }
    // The positive solution g of s g^2 + (1 - s) g = p, in the form without cancellation.
    const double root = std::sqrt(linear * linear + 4 * s * pressure);
    return pressure > 0 ? 2 * pressure / (linear + root) : 0;
}
