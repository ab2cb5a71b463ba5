// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Displays.h"

#include "FakeDisplays.h"
#include "Wait.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr std::uint32_t kBegin = platform::kDisplayBeginConfiguration;
constexpr std::uint32_t kEnd = platform::kDisplaySetMode;

/** Makes Qt report a change, as it does for the window system. */
void changeScreen()
{
    QScreen* const screen = QGuiApplication::primaryScreen();
    Q_EMIT screen->geometryChanged(screen->geometry());
}

} // namespace

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

TEST(Displays, tellOfAChangeAgainForWhoBeganToListenDuringIt)
{
    std::vector<std::uint32_t> told;
    const QObject listener;
    const auto listen = [&] {
        QObject::connect(&platform::displays(), &platform::Displays::reconfigured, &listener,
            [&told](platform::DisplayID, std::uint32_t flags) { told.push_back(flags); });
    };
    listen();
    changeScreen();
    listen();
    changeScreen();
    EXPECT_EQ(told, (std::vector{kBegin, kBegin, kBegin}));
}

TEST(Displays, tellOfOneThatIsTurnedUpsideDown)
{
    std::vector<std::uint32_t> told;
    const QObject listener;
    QObject::connect(&platform::displays(), &platform::Displays::reconfigured, &listener,
        [&told](platform::DisplayID, std::uint32_t flags) { told.push_back(flags); });
    Q_EMIT QGuiApplication::primaryScreen()->orientationChanged(Qt::InvertedLandscapeOrientation);
    EXPECT_EQ(told, std::vector{kBegin});
}

TEST(Displays, tellOnceOfTheBeginningAndOnceWhenAllHaveComeToRest)
{
    std::vector<std::uint32_t> told;
    const QObject listener;
    QObject::connect(&platform::displays(), &platform::Displays::reconfigured, &listener,
        [&told](platform::DisplayID display, std::uint32_t flags) {
            EXPECT_EQ(display, 0U);
            told.push_back(flags);
        });
    auto& rest = *platform::displays().findChild<QTimer*>();
    EXPECT_EQ(rest.interval(), 200);
    rest.setTimerType(Qt::PreciseTimer);
    rest.setInterval(kPatience); // so that a busy machine does not end it between the changes
    changeScreen();
    QTest::qWait(500);
    const int left = rest.remainingTime();
    changeScreen();
    EXPECT_GT(rest.remainingTime(), left) << "each change prolongs it";
    EXPECT_EQ(told, std::vector{kBegin});
    rest.setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() > 1; }, kPatience));
    EXPECT_EQ(told, (std::vector{kBegin, kEnd}));
    QTest::qWait(300);
    EXPECT_EQ(told.size(), 2U);
}
