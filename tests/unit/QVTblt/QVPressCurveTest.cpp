// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPressCurve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>

TEST(PressCurve, hasTheKnownHeights)
{
    struct Row {
        int threshold;
        std::array<int, 7> heights; ///< at 1, 2, 50, 100, 150, 198 and 199
    };
    for (const Row& row :
        {Row{0, {14, 20, 101, 143, 175, 200, 200}}, Row{50, {1, 3, 73, 124, 165, 200, 200}},
            Row{99, {1, 2, 50, 100, 150, 198, 199}}, Row{100, {1, 2, 50, 100, 150, 198, 199}},
            Row{150, {-2, -2, 29, 74, 131, 197, 198}}, Row{200, {-5, -5, 9, 48, 112, 196, 198}}}) {
        std::array<int, 7> heights{};
        std::ranges::transform(std::array{1, 2, 50, 100, 150, 198, 199}, heights.begin(),
            [&row](int j) { return QVPressHeight(row.threshold, j); });
        EXPECT_EQ(heights, row.heights) << row.threshold;
    }
}

TEST(PressCurve, hasTheHeightsOfExactArithmetic)
{
    std::ifstream results(QVTBLT_TEST_SOURCE "/QVTblt/pressure_curve.txt");
    for (int threshold = 0; threshold <= 200; ++threshold) {
        const auto curve = QVPressCurve(threshold);
        for (std::size_t j = 1; j < 200; ++j) {
            double exact = std::nan("");
            results >> exact;
            ASSERT_EQ(QVPressHeight(threshold, static_cast<int>(j)), exact)
                << threshold << ' ' << j;
            if (j < 199) {
                ASSERT_EQ(curve[j], (QVPoint{static_cast<double>(j), exact}));
            }
        }
    }
    int more = 0;
    EXPECT_FALSE(results >> more);
}

TEST(PressCurve, beginsAndEndsInTheCorners)
{
    for (const int threshold : {-32768, 0, 100, 200, 32767}) {
        const auto curve = QVPressCurve(threshold);
        EXPECT_EQ(curve.front(), (QVPoint{0, 0}));
        EXPECT_EQ(curve.back(), (QVPoint{200, 200}));
    }
}

TEST(PressCurve, ofEveryStoredThresholdIsFinite)
{
    for (int threshold = std::numeric_limits<std::int16_t>::min();
         threshold <= std::numeric_limits<std::int16_t>::max(); ++threshold) {
        const auto curve = QVPressCurve(threshold);
        ASSERT_TRUE(std::ranges::all_of(curve, [](const QVPoint& point) {
            return std::abs(point.y) < 1e6;
        })) << threshold;
    }
}

TEST(PressResponse, isTheCurveThatThePanelDraws)
{
    for (int threshold = 0; threshold <= 200; threshold += 10) {
        for (int j = 1; j < 199; ++j) {
            // The drawn curve is in steps of 5 of 1023, truncated.
            EXPECT_NEAR(200 * QVPressResponse(j * 5 / 1023.0, threshold) * 1023 / 1000,
                QVPressHeight(threshold, j), threshold < 100 ? 1.5 : 6)
                << threshold << ' ' << j;
        }
    }
}

TEST(PressResponse, isUndoneByTheMirroredThreshold)
{
    for (const int threshold : {-300, 0, 37, 100, 150, 200, 32767}) {
        for (double pressure = 0; pressure <= 1; pressure += 0.125) {
            EXPECT_NEAR(QVPressResponse(QVPressResponse(pressure, threshold), 200 - threshold),
                pressure, 1e-9)
                << threshold;
        }
    }
}
