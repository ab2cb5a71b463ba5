// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Displays.h"

#include "FakeDisplays.h"
#include "Wait.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace {

/** Records the notifications of changes. */
struct Listener {
    Listener() { EXPECT_TRUE(platform::displays().registerReconfigurationCallback(&note, this)); }
    ~Listener() { stop(); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    void stop() { platform::displays().removeReconfigurationCallback(&note, this); }
    static void note(platform::DisplayID display, std::uint32_t flags, void* userInfo)
    {
        auto& self = *static_cast<Listener*>(userInfo);
        EXPECT_EQ(display, 0U);
        self.told.push_back(flags);
        if (self.whenTold) {
            self.whenTold(flags);
        }
    }

    std::vector<std::uint32_t> told;
    std::function<void(std::uint32_t flags)> whenTold;
};

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

TEST(Displays, tellOnceOfTheBeginningAndOnceWhenAllHaveComeToRest)
{
    const Listener listener;
    changeScreen();
    QTest::qWait(100);
    changeScreen();
    EXPECT_EQ(listener.told, std::vector{kBegin});
    QTest::qWait(100);
    changeScreen();
    EXPECT_EQ(listener.told, std::vector{kBegin});
    EXPECT_TRUE(QTest::qWaitFor([&] { return listener.told.size() > 1; }, kPatience));
    EXPECT_EQ(listener.told, (std::vector{kBegin, kEnd}));
    QTest::qWait(300);
    EXPECT_EQ(listener.told.size(), 2U);
}

TEST(Displays, aListenerMayStopItselfWhileItIsTold)
{
    Listener stopping;
    stopping.whenTold = [&](std::uint32_t) { stopping.stop(); };
    Listener staying;
    changeScreen();
    EXPECT_TRUE(QTest::qWaitFor([&] { return staying.told.size() == 2; }, kPatience));
    EXPECT_EQ(stopping.told, std::vector{kBegin});
}

TEST(Displays, aListenerThatAnotherStopsIsToldNoMore)
{
    Listener stopping;
    Listener stopped;
    stopping.whenTold = [&](std::uint32_t) { stopped.stop(); };
    changeScreen();
    EXPECT_TRUE(QTest::qWaitFor([&] { return stopping.told.size() == 2; }, kPatience));
    EXPECT_EQ(stopped.told, std::vector<std::uint32_t>());
}

TEST(Displays, theLastListenerMayStopAtTheEndAndAnotherMayBegin)
{
    std::unique_ptr<Listener> next;
    Listener last;
    last.whenTold = [&](std::uint32_t flags) {
        if (flags == kEnd) {
            last.stop();
            next = std::make_unique<Listener>();
        }
    };
    changeScreen();
    EXPECT_TRUE(QTest::qWaitFor([&] { return next != nullptr; }, kPatience));
    EXPECT_EQ(next->told, std::vector<std::uint32_t>()) << "that change was before its time";
    changeScreen();
    EXPECT_TRUE(QTest::qWaitFor([&] { return next->told.size() == 2; }, kPatience));
    EXPECT_EQ(next->told, (std::vector{kBegin, kEnd}));
    EXPECT_EQ(last.told.size(), 2U);
}
