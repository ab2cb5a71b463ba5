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

TEST(QVTruncate, keepsTheLow16Bits)
{
    EXPECT_EQ(QVTruncate(32767), 32767);
    EXPECT_EQ(QVTruncate(32768), -32768);
    EXPECT_EQ(QVTruncate(65537.5), 1);
    EXPECT_EQ(QVTruncate(-32769), 32767);
}

TEST(QVTruncate, givesZeroForWhatIsBeyond32BitsOrNoNumber)
{
    EXPECT_EQ(QVTruncate(2147483647.9), -1);
    EXPECT_EQ(QVTruncate(2147483648.0), 0);
    EXPECT_EQ(QVTruncate(-2147483648.0), 0);
    EXPECT_EQ(QVTruncate(1e300), 0);
    EXPECT_EQ(QVTruncate(std::nan("")), 0);
    EXPECT_EQ(QVTruncate(-std::numeric_limits<double>::infinity()), 0);
}
