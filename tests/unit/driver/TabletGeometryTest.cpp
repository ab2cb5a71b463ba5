// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletGeometry.h"

#include <gtest/gtest.h>

namespace {

constexpr QVTabletArea kRange{1000, 21000, 500, 10500};
const QRectF kSurface(10, 20, 200, 100);

QVTabletArea at(const QVTabletPoint& point)
{
    return {point.x, point.x, point.y, point.y};
}

QVTabletArea at(std::uint16_t x, std::uint16_t y)
{
    return at(QVTabletPoint{x, y});
}

tagQVTabletInfo settingsOf(const QVTabletModel& model, const QVTabletArea& range)
{
    tagQVTabletInfo settings{};
    settings.Basic.ProductID = static_cast<std::int16_t>(model.productID);
    settings.Basic.TabletXmin = range.xmin;
    settings.Basic.TabletXmax = range.xmax;
    settings.Basic.TabletYmin = range.ymin;
    settings.Basic.TabletYmax = range.ymax;
    return settings;
}

} // namespace

TEST(TabletGeometry, takesTheRangeFromTheSettingsOfTheModelAlone)
{
    const QVTabletModel& model = kQVTabletModels[0];
    const QVTabletArea own{0, model.tabletXmax, 0, model.tabletYmax};
    EXPECT_EQ(tabletRange(model, nullptr), own);
    const tagQVTabletInfo settings = settingsOf(model, kRange);
    EXPECT_EQ(tabletRange(model, &settings), kRange);
    const tagQVTabletInfo others = settingsOf(kQVTabletModels[1], kRange);
    EXPECT_EQ(tabletRange(model, &others), own);
    for (const QVTabletArea& empty :
        {QVTabletArea{}, QVTabletArea{5, 5, 0, 9}, QVTabletArea{0, 9, 7, 6}}) {
        const tagQVTabletInfo useless = settingsOf(model, empty);
        EXPECT_EQ(tabletRange(model, &useless), own);
    }
}

TEST(TabletGeometry, keepsTheProportionsInAPlaceOfAnyShape)
{
    EXPECT_EQ(surfaceRect({0, 0, 200, 300}, kRange), QRectF(0, 100, 200, 100));
    EXPECT_EQ(surfaceRect({10, 20, 300, 50}, kRange), QRectF(110, 20, 100, 50));
    EXPECT_TRUE(surfaceRect({0, 0, 0, 50}, kRange).isEmpty());
    EXPECT_TRUE(surfaceRect({0, 0, 50, 50}, {5, 5, 0, 9}).isEmpty());
}

TEST(TabletGeometry, theUpperLeftCornerIsTheLowestXAndY)
{
    EXPECT_EQ(at(toTablet({10, 20}, kSurface, kRange)), at(1000, 500));
    EXPECT_EQ(at(toTablet({210, 120}, kSurface, kRange)), at(21000, 10500));
    EXPECT_EQ(at(toTablet({60, 45}, kSurface, kRange)), at(6000, 3000));
    EXPECT_EQ(at(toTablet({60.5, 45}, kSurface, kRange)), at(6050, 3000));
}

TEST(TabletGeometry, beyondTheEdgeIsAtTheEdge)
{
    EXPECT_EQ(at(toTablet({-500, 5000}, kSurface, kRange)), at(1000, 10500));
    EXPECT_EQ(at(toTablet({500, -5000}, kSurface, kRange)), at(21000, 500));
    EXPECT_EQ(at(toTablet({5, 5}, QRectF(), kRange)), at(1000, 500));
}

TEST(TabletGeometry, reachesTheLargestNumbers)
{
    constexpr QVTabletArea kAll{0, 65535, 0, 65535};
    EXPECT_EQ(at(toTablet({210, 120}, kSurface, kAll)), at(65535, 65535));
    EXPECT_EQ(at(moved({65000, 65000}, 10, 10, kAll)), at(65535, 65535));
    EXPECT_EQ(at(moved({500, 500}, -10, -10, kAll)), at(0, 0));
}

TEST(TabletGeometry, aPlaceLeadsBackToItself)
{
    for (double x = kSurface.left(); x <= kSurface.right(); x += 12.5) {
        const QVTabletPoint point = toTablet({x, 50}, kSurface, kRange);
        EXPECT_NEAR(toPlace(point, kSurface, kRange).x(), x, 0.01);
    }
    EXPECT_EQ(toPlace({7, 7}, kSurface, {5, 5, 0, 9}), kSurface.topLeft());
}

TEST(TabletGeometry, aStepIsAHundredthOfTheWidthInBothDirections)
{
    EXPECT_EQ(at(moved({5000, 5000}, 1, -2, kRange)), at(5200, 4600));
    EXPECT_EQ(at(moved({5, 5}, 1, 1, {0, 50, 0, 50})), at(6, 6));
}

TEST(TabletGeometry, anAreaIsShownAsFarAsItLiesOnTheSurface)
{
    EXPECT_EQ(areaRect({6000, 11000, 3000, 5500}, kSurface, kRange), QRectF(60, 45, 50, 25));
    EXPECT_EQ(areaRect({0, 65535, 0, 65535}, kSurface, kRange), kSurface);
    EXPECT_TRUE(areaRect({30000, 40000, 3000, 5500}, kSurface, kRange).isEmpty());
    // Truncated high edges may be less than the low ones.
    EXPECT_TRUE(areaRect({11000, 6000, 5500, 3000}, kSurface, kRange).isEmpty());
}
