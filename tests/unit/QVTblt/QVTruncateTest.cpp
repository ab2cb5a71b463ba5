// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTruncate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace {

/**
 * Truncates a number that is unknown when this is compiled: the compiler may take the undefined
 * result of a conversion for 0.
 */
std::int32_t truncated(double value)
{
    const volatile double unknown = value;
    return QVTruncate(unknown);
}

} // namespace

TEST(QVTruncate, cutsTowardZero)
{
    EXPECT_EQ(truncated(37.9), 37);
    EXPECT_EQ(truncated(-37.9), -37);
    EXPECT_EQ(truncated(-0.5), 0);
}

TEST(QVTruncate, givesZeroForWhatIsBeyond32BitsOrNoNumber)
{
    EXPECT_EQ(truncated(2147483647.9), 2147483647);
    EXPECT_EQ(truncated(2147483648.0), 0);
    EXPECT_EQ(truncated(-2147483648.9), -2147483647 - 1);
    EXPECT_EQ(truncated(-2147483649.0), 0);
    EXPECT_EQ(truncated(1e300), 0);
    EXPECT_EQ(truncated(std::nan("")), 0);
    EXPECT_EQ(truncated(-std::numeric_limits<double>::infinity()), 0);
}
