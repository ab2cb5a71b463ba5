// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVPoint.h"

#include <array>
#include <cstddef>

/** Points of the curve, one for each point of the view's width. */
inline constexpr std::size_t kQVCurvePoints = 200;

/**
 * The curve's height over a point of the view's width, both 0 to 200 for the tablet's 1023 steps of
 * pressure, in steps of 5.
 *
 * Above the straight line, below a threshold of 100, it is the inverse of a parabola
 * b g^2 + (1 - 1023 b) g = t with b = (100 - threshold) / 102300: of t, the positive g. Below the
 * line it is a parabola f(x) = (1 - 1023 a) x + a x^2 with a = (threshold - 100) / 102300, of the
 * mirrored input. Both keep 0 and 1023, and at the ends, 0 and 200, their linear parts vanish.
 * Values are cut off toward zero.
 *
 * @param threshold usually 0 to 200; others follow the same formulas, and their heights leave 0 to
 * 200
 * @param j 1 to 199
 */
int QVPressHeight(int threshold, int j);

/** The curve's points: their index and the height over it, but (0, 0) first and (200, 200) last. */
std::array<QVPoint, kQVCurvePoints> QVPressCurve(int threshold);
