// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVPoint.h"

#include <array>
#include <cstddef>

/** Number of points of the curve, one for each point of the view's width. */
inline constexpr std::size_t kQVCurvePoints = 200;

/**
 * The curve's height over a point of the view's width, both 0 to 200 for the tablet's 1023 steps of
 * pressure, in steps of 5.
 *
 * For thresholds below 100, above the straight line, it is the inverse of a parabola, the positive
 * g with b g^2 + (1 - 1023 b) g = t and b = (100 - threshold) / 102300. Otherwise it is a parabola
 * f(x) = (1 - 1023 a) x + a x^2 with a = (threshold - 100) / 102300, of the mirrored input. Both
 * map 0 to 0 and 1023 to 1023, and their linear parts vanish at the thresholds 0 and 200. Values
 * are truncated toward zero.
 *
 * @param threshold usually 0 to 200; others use the same formulas, with heights outside 0 to 200
 * @param j 1 to 199
 */
int QVPressHeight(int threshold, int j);

/** The curve's points: index and height, except (0, 0) as the first and (200, 200) as the last. */
std::array<QVPoint, kQVCurvePoints> QVPressCurve(int threshold);

/**
 * What programs receive for a pressure, both 0 to 1: the curve without the view's steps, as the
 * driver applies it. With s = |threshold - 100| / 100, at most 1, it is p (1 - s + s p) above 100,
 * and below it the inverse of that. It maps 0 to 0 and 1 to 1, and is monotone. The response to
 * the threshold 200 - t is the inverse of that to t.
 */
double QVPressResponse(double pressure, int threshold);
