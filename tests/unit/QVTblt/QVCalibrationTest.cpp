// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVCalibration.h"

#include <gtest/gtest.h>

using Points = std::array<QVTabletPoint, 4>;

TEST(TooNear, comparesSumsNotDistances)
{
    EXPECT_TRUE(QVIsTooNear(1000, 1000, 1000, 1000));
    EXPECT_TRUE(QVIsTooNear(1000, 1000, 1999, 1000));
    EXPECT_FALSE(QVIsTooNear(1000, 1000, 2000, 1000));
    EXPECT_TRUE(QVIsTooNear(1000, 1000, 1000, 1));
    EXPECT_FALSE(QVIsTooNear(1000, 1000, 1000, 0));
    EXPECT_TRUE(QVIsTooNear(10000, 10000, 15000, 5000)) << "far along the other diagonal";
}

TEST(CalibratedArea, stretchesTheMeasuredSpanToTheDisplay)
{
    // 1920 - 100 = 1820 points measure 18200 units: ten to the point, 500 beyond each cross.
    EXPECT_EQ(QVCalibratedArea(
                  Points{{{1000, 800}, {19200, 800}, {19200, 10600}, {1000, 10600}}}, 1920, 1080),
        (QVTabletArea{500, 19700, 300, 11100}));
}

TEST(CalibratedArea, takesTheMiddleOfEachEdgeCutOff)
{
    // left (1001 + 1000) / 2 = 1000, right (19201 + 19200) / 2 = 19200, and so on
    EXPECT_EQ(QVCalibratedArea(
                  Points{{{1001, 800}, {19201, 801}, {19200, 10601}, {1000, 10600}}}, 1920, 1080),
        (QVTabletArea{500, 19700, 300, 11100}));
}

TEST(CalibratedArea, lowEdgesAreAtLeastZero)
{
    const auto area =
        QVCalibratedArea(Points{{{10, 20}, {18210, 20}, {18210, 9820}, {10, 9820}}}, 1920, 1080);
    ASSERT_TRUE(area);
    EXPECT_EQ(area->xmin, 0);
    EXPECT_EQ(area->ymin, 0);
}

TEST(CalibratedArea, highEdgesKeepTheirLowBits)
{
    // right 65000, margin 5000: 70000, which is 4464 in 16 bits
    const auto area = QVCalibratedArea(
        Points{{{65000 - 40000, 100}, {65000, 100}, {65000, 900}, {65000 - 40000, 900}}}, 500, 500);
    ASSERT_TRUE(area);
    EXPECT_EQ(area->xmax, 4464);
}

TEST(CalibratedArea, pointsInAnotherOrderGiveNone)
{
    const QVTabletPoint a{1000, 800};
    const QVTabletPoint b{19200, 800};
    const QVTabletPoint c{19200, 10600};
    const QVTabletPoint d{1000, 10600};
    EXPECT_TRUE(QVCalibratedArea(Points{{a, b, c, d}}, 1920, 1080));
    for (const Points& points : {Points{{b, a, c, d}}, Points{{a, b, d, c}}, Points{{d, b, c, a}},
             Points{{a, c, b, d}}, Points{{a, a, a, a}}}) {
        EXPECT_FALSE(QVCalibratedArea(points, 1920, 1080));
    }
}

TEST(CalibratedArea, equalCoordinatesAreNoOrder)
{
    EXPECT_FALSE(QVCalibratedArea(Points{{{10, 10}, {10, 10}, {20, 20}, {5, 20}}}, 500, 500));
    EXPECT_FALSE(QVCalibratedArea(Points{{{10, 10}, {20, 10}, {20, 20}, {10, 10}}}, 500, 500));
}

TEST(CalibratedArea, aDisplayAsNarrowAsItsCrossesIsDefined)
{
    const Points points{{{1000, 800}, {19200, 800}, {19200, 10600}, {1000, 10600}}};
    for (const double size : {0.0, 99.0, 100.0, 101.0}) {
        EXPECT_TRUE(QVCalibratedArea(points, size, size)) << size;
    }
}

TEST(CalibratedArea, eachEqualPairOfCoordinatesIsNoOrder)
{
    const Points good{{{1000, 800}, {19200, 800}, {19200, 10600}, {1000, 10600}}};
    for (const auto& [index, point] :
        {std::pair{0, QVTabletPoint{19200, 800}}, std::pair{3, QVTabletPoint{19200, 10600}},
            std::pair{0, QVTabletPoint{1000, 10600}}, std::pair{1, QVTabletPoint{19200, 10600}}}) {
        Points points = good;
        points[static_cast<std::size_t>(index)] = point;
        EXPECT_FALSE(QVCalibratedArea(points, 1920, 1080)) << index;
    }
}

TEST(CalibratedArea, isOfWhatTheArithmeticGivesForATinyDisplay)
{
    const Points points{{{1000, 800}, {19200, 800}, {19200, 10600}, {1000, 10600}}};
    // Without a distance between the crosses, there is no margin, and all edges are 0.
    EXPECT_EQ(QVCalibratedArea(points, 100, 100), (QVTabletArea{0, 0, 0, 0}));
    // Both margins are negative, half of the span.
    EXPECT_EQ(QVCalibratedArea(points, 0, 0), (QVTabletArea{10100, 10100, 5700, 5700}));
    // 18200 * 50 and 9800 * 50 inwards, truncated to the low 16 bits.
    EXPECT_EQ(QVCalibratedArea(points, 99, 99), (QVTabletArea{59032, 26704, 32048, 44888}));
}
