// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PointCanvas.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <cmath>

using platform::PointCanvas;
using platform::Rect;

namespace {

class Canvas : public testing::Test {
protected:
    Canvas()
    {
        // Smaller text than usual, whatever this machine's fonts are.
        setTextHeight(10);
        mCanvas.setMinimumSize(400, 300);
        mChild.setGeometry(10, 20, 100, 30);
        mCanvas.takePlaces();
    }

    void setTextHeight(int pixels)
    {
        QFont font;
        font.setPixelSize(pixels);
        mCanvas.setFont(font);
    }

    PointCanvas mCanvas;
    QWidget mChild{&mCanvas};
};

} // namespace

TEST_F(Canvas, takesThePlacesOfTheInterfaceFile)
{
    EXPECT_EQ(mCanvas.scale(), 1.0);
    EXPECT_EQ(mCanvas.size(), QSize(400, 300));
    EXPECT_EQ(platform::frame(mChild), (Rect{10, 250, 100, 30}));
    EXPECT_EQ(mChild.geometry(), QRect(10, 20, 100, 30));
}

TEST_F(Canvas, movesAChildInPointsFromItsLowerLeftCorner)
{
    platform::setFrame(mChild, {15, 185, 100, 30});
    EXPECT_EQ(mChild.geometry(), QRect(15, 85, 100, 30));
    EXPECT_EQ(platform::frame(mChild), (Rect{15, 185, 100, 30}));
}

TEST_F(Canvas, isMirroredWhereTheLanguageIsWrittenFromRightToLeft)
{
    mCanvas.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(mChild.geometry(), QRect(290, 20, 100, 30));
    EXPECT_EQ(platform::frame(mChild), (Rect{10, 250, 100, 30}));
    platform::setFrame(mChild, {15, 185, 100, 30});
    EXPECT_EQ(mChild.geometry(), QRect(285, 85, 100, 30));
    setTextHeight(26);
    EXPECT_EQ(mChild.geometry(), QRect(570, 170, 200, 60));
    mCanvas.setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(mChild.geometry(), QRect(30, 170, 200, 60));
}

TEST_F(Canvas, growsWithTheTextAndKeepsTheFrames)
{
    setTextHeight(26);
    const double scale = mCanvas.scale();
    EXPECT_DOUBLE_EQ(scale, 2.0);
    EXPECT_EQ(mCanvas.width(), std::ceil(400 * scale));
    EXPECT_EQ(mChild.geometry(),
        QRect(static_cast<int>(std::lround(10 * scale)), static_cast<int>(std::lround(20 * scale)),
            static_cast<int>(std::lround(100 * scale)), static_cast<int>(std::lround(30 * scale))));
    EXPECT_EQ(platform::frame(mChild), (Rect{10, 250, 100, 30}));
    platform::setFrame(mChild, {15, 185, 100, 30});
    setTextHeight(10);
    EXPECT_EQ(mChild.geometry(), QRect(15, 85, 100, 30));
}

TEST_F(Canvas, keepsFractionsOfPoints)
{
    platform::setFrame(mChild, {10.25, 20.5, 30.125, 40.0625});
    EXPECT_EQ(platform::frame(mChild), (Rect{10.25, 20.5, 30.125, 40.0625}));
}

TEST_F(Canvas, putsEverythingBack)
{
    platform::setFrame(mChild, {15, 185, 50, 60});
    mCanvas.restorePlaces();
    EXPECT_EQ(mChild.geometry(), QRect(10, 20, 100, 30));
}
