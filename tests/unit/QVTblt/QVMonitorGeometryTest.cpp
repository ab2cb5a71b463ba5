// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVMonitorGeometry.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <span>

using platform::Rect;

TEST(BoundingRect, ofOneIsItself)
{
    const std::array one{Rect{-3.3, 4.4, 5.5, 6.6}};
    EXPECT_EQ(QVBoundingRect(one), one[0]) << "not rounded to single precision";
}

TEST(BoundingRect, ofTwoSideBySideSpansBoth)
{
    EXPECT_EQ(QVBoundingRect(std::array{Rect{0, 0, 1920, 1080}, Rect{1920, 0, 1280, 1024}}),
        (Rect{0, 0, 3200, 1080}));
}

TEST(BoundingRect, takesEachAxisByItself)
{
    EXPECT_EQ(QVBoundingRect(
                  std::array{Rect{0, 0, 100, 100}, Rect{-50, 20, 20, 300}, Rect{10, -70, 500, 10}}),
        (Rect{-50, -70, 560, 390}));
}

TEST(BoundingRect, isFoundInSinglePrecision)
{
    // 16777217 is the first integer that single precision cannot represent.
    EXPECT_EQ(
        QVBoundingRect(std::array{Rect{0, 0, 16777217, 1}, Rect{0, 0, 1, 1}}).width, 16777216);
}

TEST(Miniature, isAFifteenthAtItsPlace)
{
    EXPECT_EQ(QVMiniature({0, 0, 1920, 1080}, {0, 0, 600, 400}), (Rect{230, 118, 128, 72}));
}

TEST(Miniature, movesDownWhenTheDisplayDoes)
{
    EXPECT_EQ(QVMiniature({-150, 1080, 150, 150}, {0, 0, 600, 400}), (Rect{220, 108, 10, 10}));
}

TEST(PictureCorner, ofTheWholeAreaIsItsCorner)
{
    const QVTabletArea whole{0, 10000, 0, 6250};
    EXPECT_EQ(QVPictureCorner(whole, whole), (QVPoint{361, 33}));
}

TEST(PictureCorner, cutsQuotientsOff)
{
    // 9999 * 86 / 10000 = 85.99…, 6249 * 47 / 6250 = 46.99…
    EXPECT_EQ(QVPictureCorner({0, 9999, 0, 6249}, {0, 10000, 0, 6250}), (QVPoint{360, 34}));
}

TEST(PictureCorner, ofAFittedAreaIsWhereItEnds)
{
    // 80 - 5625 * 47 / 6250 = 80 - 42
    EXPECT_EQ(QVPictureCorner({0, 10000, 0, 5625}, {0, 10000, 0, 6250}), (QVPoint{361, 38}));
}

TEST(PictureCorner, takesAreasThatAreTurnedAround)
{
    EXPECT_EQ(QVPictureCorner({10000, 0, 6250, 0}, {0, 10000, 0, 6250}), (QVPoint{189, 127}));
}

TEST(PictureCorner, ofATabletWithoutWidthOrHeightLiesOnThePicturesEdge)
{
    EXPECT_EQ(QVPictureCorner({0, 5, 0, 5}, {7, 7, 0, 10}), (QVPoint{361, 80 - 23}));
    EXPECT_EQ(QVPictureCorner({0, 5, 0, 5}, {0, 10, 7, 7}), (QVPoint{275 + 43, 33}));
}

TEST(AspectFit, cutsTheHeightForAWiderDisplay)
{
    EXPECT_EQ(QVAspectFit({0, 10000, 0, 6250}, 1920, 1080), (QVTabletArea{0, 10000, 0, 5625}));
}

TEST(AspectFit, cutsTheWidthForATallerDisplay)
{
    EXPECT_EQ(QVAspectFit({100, 10100, 50, 6300}, 1080, 1920), (QVTabletArea{100, 3615, 50, 6300}));
}

TEST(AspectFit, keepsTheWholeTabletForItsOwnShape)
{
    EXPECT_EQ(QVAspectFit({0, 16000, 0, 9000}, 1600, 900), (QVTabletArea{0, 16000, 0, 9000}));
}

TEST(AspectFit, divisionsAreCutOff)
{
    EXPECT_EQ(QVAspectFit({0, 100, 0, 100}, 3, 2), (QVTabletArea{0, 100, 0, 66}));
}

TEST(AspectFit, isNoneOnlyWhereItWouldDivideByZero)
{
    // The tablet counts as the wider one, and the height is the divisor.
    EXPECT_EQ(QVAspectFit({0, 100, 0, 100}, 0, 0), std::nullopt);
    EXPECT_EQ(QVAspectFit({0, 100, 0, 100}, -10, 0), std::nullopt);
    EXPECT_EQ(QVAspectFit({0, 100, 5, 5}, 10, 0), std::nullopt);
    // The tablet counts as the narrower one, and the width is the divisor.
    EXPECT_EQ(QVAspectFit({0, 100, 0, 100}, 0, -10), std::nullopt);
    EXPECT_EQ(QVAspectFit({100, 0, 0, 100}, 0, 10), std::nullopt);
}

TEST(AspectFit, takesZerosThatAreNoDivisors)
{
    EXPECT_EQ(QVAspectFit({0, 100, 0, 100}, 10, 0), (QVTabletArea{0, 100, 0, 0}));
    EXPECT_EQ(QVAspectFit({0, 100, 0, 100}, 0, 10), (QVTabletArea{0, 0, 0, 100}));
    EXPECT_EQ(QVAspectFit({5, 5, 0, 100}, 10, 10), (QVTabletArea{5, 5, 0, 0}));
    EXPECT_EQ(QVAspectFit({0, 100, 5, 5}, 10, 10), (QVTabletArea{0, 0, 5, 5}));
    EXPECT_EQ(QVAspectFit({5, 5, 7, 7}, 10, 10), (QVTabletArea{5, 5, 7, 7}));
}

TEST(AspectFit, survivesEveryExtreme)
{
    for (const int width : {-32768, -1, 0, 1, 32767}) {
        for (const int height : {-32768, -1, 0, 1, 32767}) {
            for (const QVTabletArea& whole : {QVTabletArea{0, 65535, 0, 65535},
                     QVTabletArea{65535, 0, 65535, 0}, QVTabletArea{0, 65535, 65535, 0}}) {
                QVAspectFit(
                    whole, static_cast<std::int16_t>(width), static_cast<std::int16_t>(height));
            }
        }
    }
}

TEST(BoundingRect, ofOneAroundAnotherIsTheOuter)
{
    const Rect outer{10, 20, 500, 400};
    EXPECT_EQ(QVBoundingRect(std::array{outer, Rect{30, 40, 5, 5}}), outer);
    EXPECT_EQ(QVBoundingRect(std::array{Rect{30, 40, 5, 5}, outer}), outer);
}

TEST(Miniature, isMeasuredFromTheDisplaysOrigin)
{
    // 150 / 15 + 300 / 3 + 30 and 480 - (30 / 15 + 45 / 15 + 200 - 110)
    EXPECT_EQ(QVMiniature({150, 45, 60, 30}, {0, 0, 300, 200}), (Rect{140, 385, 4, 2}));
}

TEST(PictureCorner, goesByTheSpansNotByWhereTheyBegin)
{
    EXPECT_EQ(QVPictureCorner({600, 5600, 300, 3425}, {1000, 11000, 2000, 8250}),
        QVPictureCorner({0, 5000, 0, 3125}, {0, 10000, 0, 6250}));
}

TEST(AspectFit, beginsWhereTheTabletDoes)
{
    EXPECT_EQ(
        QVAspectFit({100, 10100, 50, 6300}, 1920, 1080), (QVTabletArea{100, 10100, 50, 5675}));
}

TEST(MappedArea, isStoredInWholePointsByTheirLow16Bits)
{
    tagQVTabletInfo record{};
    QVSetMappedArea(record, {-1280.9, 37.9, 32768, 65537.5});
    EXPECT_EQ(+record.Monitor.XOrg, -1280);
    EXPECT_EQ(+record.Monitor.YOrg, 37);
    EXPECT_EQ(+record.Monitor.Width, -32768);
    EXPECT_EQ(+record.Monitor.Height, 1);
}

TEST(MappedArea, isThatOfTheChosenDisplayOrOfAll)
{
    const std::array displays{Rect{0, 0, 100, 50}, Rect{100, 0, 80, 60}, Rect{180, 0, 20, 20},
        Rect{200, 0, 30, 30}, Rect{230, 0, 40, 40}};
    tagQVTabletInfo record{};
    const auto map = [&](int number, std::size_t count) -> std::optional<Rect> {
        record = {};
        record.Monitor.num = static_cast<std::int16_t>(number);
        if (!QVMapChosenDisplay(record, std::span(displays).first(count))) {
            EXPECT_EQ(+record.Monitor.Width, 0) << "changed all the same";
            return std::nullopt;
        }
        const auto& area = record.Monitor;
        return Rect{double(area.XOrg), double(area.YOrg), double(area.Width), double(area.Height)};
    };
    EXPECT_EQ(map(0, 2), (Rect{0, 0, 180, 60}));
    EXPECT_EQ(map(1, 2), displays[0]);
    EXPECT_EQ(map(2, 2), displays[1]);
    EXPECT_EQ(map(3, 2), std::nullopt);
    EXPECT_EQ(map(-1, 2), std::nullopt);
    EXPECT_EQ(map(7, 1), displays[0]) << "the only one, whatever is chosen";
    EXPECT_EQ(map(0, 0), std::nullopt) << "without displays";
    EXPECT_EQ(map(0, 5), (Rect{0, 0, 230, 60})) << "the panel supports four";
    EXPECT_EQ(map(4, 5), displays[3]);
    EXPECT_EQ(map(5, 5), std::nullopt);
}
