// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTruncate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(QVTruncate, cutsTowardZero)
{
    EXPECT_EQ(QVTruncate(37.9), 37);
    EXPECT_EQ(QVTruncate(-37.9), -37);
    EXPECT_EQ(QVTruncate(-0.5), 0);
}

TEST(QVTruncate, givesZeroForWhatIsBeyond32BitsOrNoNumber)
{
    EXPECT_EQ(QVTruncate(2147483647.9), 2147483647);
    EXPECT_EQ(QVTruncate(2147483648.0), 0);
    EXPECT_EQ(QVTruncate(-2147483648.9), -2147483647 - 1);
    EXPECT_EQ(QVTruncate(-2147483649.0), 0);
    EXPECT_EQ(QVTruncate(1e300), 0);
    EXPECT_EQ(QVTruncate(std::nan("")), 0);
    EXPECT_EQ(QVTruncate(-std::numeric_limits<double>::infinity()), 0);
}
