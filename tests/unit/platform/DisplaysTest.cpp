// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Displays.h"

#include "FakeDisplays.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

TEST(Displays, areTheScreensOfTheWindowSystem)
{
    const platform::Displays& displays = platform::displays();
    ASSERT_EQ(displays.activeDisplayCount(), 1U);
    const auto active = displays.activeDisplays();
    ASSERT_TRUE(active);
    ASSERT_EQ(active->size(), 1U);
    const QSize size = QGuiApplication::primaryScreen()->size();
    EXPECT_EQ(displays.bounds(active->front()),
        (platform::Rect{0, 0, double(size.width()), double(size.height())}));
}

TEST(Displays, haveNoBoundsWhenTheyAreGone)
{
    EXPECT_EQ(platform::displays().bounds(17), platform::Rect{});
}

TEST(Displays, canBeReplacedForAWhile)
{
    {
        const FakeDisplays fake({{0, 0, 10, 10}, {10, 0, 20, 20}});
        EXPECT_EQ(platform::displays().activeDisplayCount(), 2U);
    }
    EXPECT_EQ(platform::displays().activeDisplayCount(), 1U);
}
