// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "MonitorMemory.h"

#include "FakeDisplays.h"
#include "NotedPane.h"
#include "TemporaryHome.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

using platform::Monitor;

namespace {

Monitor monitor(const char* product, const char* serial, const char* connector)
{
    return {QStringLiteral("Acme"), QString::fromLatin1(product), QString::fromLatin1(serial),
        QString::fromLatin1(connector)};
}

struct Case {
    const char* why;
    Monitor remembered;
    std::vector<Monitor> there;
    std::optional<int> number;
};

const Case kCases[] = {
    {"there is none", monitor("A", "1", "DP-1"), {}, {}},
    {"it is where it was", monitor("A", "1", "DP-1"),
        {monitor("A", "1", "DP-1"), monitor("B", "2", "DP-2")}, 1},
    {"it has another number", monitor("A", "1", "DP-1"),
        {monitor("B", "2", "DP-2"), monitor("A", "1", "DP-1")}, 2},
    {"it has another connector, too", monitor("A", "1", "DP-1"),
        {monitor("B", "2", "DP-1"), monitor("A", "1", "DP-2")}, 2},
    {"its twin has another serial number", monitor("A", "1", "DP-1"),
        {monitor("A", "2", "DP-1"), monitor("A", "1", "DP-2")}, 2},
    {"only its twin is there", monitor("A", "1", "DP-1"),
        {monitor("A", "2", "DP-1"), monitor("B", "1", "DP-2")}, {}},
    {"it has no serial number, and no twin", monitor("A", "", "DP-1"),
        {monitor("B", "", "DP-1"), monitor("A", "", "DP-2")}, 2},
    {"twins without serial numbers", monitor("A", "", "DP-2"),
        {monitor("A", "", "DP-1"), monitor("A", "", "DP-2")}, 2},
    {"twins with the same serial number", monitor("A", "1", "DP-2"),
        {monitor("A", "1", "DP-2"), monitor("A", "1", "DP-1")}, 1},
    {"twins, both on other connectors", monitor("A", "", "DP-3"),
        {monitor("A", "", "DP-1"), monitor("A", "", "DP-2")}, {}},
    {"monitors that say nothing of themselves", {{}, {}, {}, QStringLiteral("DP-2")},
        {{{}, {}, {}, QStringLiteral("DP-1")}, {{}, {}, {}, QStringLiteral("DP-2")}}, 2},
    {"another maker's with the same serial number",
        {QStringLiteral("Other"), QStringLiteral("A"), QStringLiteral("1"), {}},
        {monitor("A", "1", "DP-1")}, {}},
};

/** A tablet that reaches the second of two displays. */
class RememberedMonitor : public testing::Test {
protected:
    RememberedMonitor()
    {
        mDisplays.monitors = {kFirst, kSecond};
        mLife.deviceID = QStringLiteral("7");
        mLife.display = 2;
    }

    void swapMonitors() { std::swap(mDisplays.monitors[0], mDisplays.monitors[1]); }

    /** The user goes back to the second display after its monitor has become the first. */
    void chooseTheFirstSwapAndGoBack()
    {
        mLife.display = 1;
        mMemory.choose(mPane);
        swapMonitors();
        mLife.display = 2;
        EXPECT_TRUE(mMemory.note(mPane));
    }

    const Monitor kFirst = monitor("A", "1", "DP-1");
    const Monitor kSecond = monitor("B", "2", "DP-2");
    TemporaryHome mHome;
    FakeDisplays mDisplays{{{0, 0, 100, 100}, {100, 0, 100, 100}}};
    PaneLife mLife;
    NotedPane mPane{mLife};
    MonitorMemory mMemory;
};

} // namespace

TEST(MonitorMemory, findsTheMonitorByWhatItIsAndTwinsByTheirConnector)
{
    for (const Case& one : kCases) {
        EXPECT_EQ(findMonitor(one.remembered, one.there), one.number) << one.why;
    }
}

TEST_F(RememberedMonitor, isKeptWhateverItCallsItself)
{
    const Monitor odd{QStringLiteral("[x]\n7-offscreen/maker=\"y\";%"), QString(5000, u'p'),
        QStringLiteral("\u00e9\u4e2d\x01"), QStringLiteral("DP-1, DP-2")};
    mDisplays.monitors[1] = odd;
    MonitorMemory().show(mPane);
    swapMonitors();
    mMemory.show(mPane);
    EXPECT_EQ(mMemory.moved(mPane), 1);
}

TEST_F(RememberedMonitor, isKnownWithoutAFileThatCanBeWritten)
{
    writeFile(mHome.path() + QStringLiteral("/.local"), "not a folder");
    mMemory.show(mPane);
    swapMonitors();
    EXPECT_EQ(mMemory.moved(mPane), 1) << "as long as the memory lives";
}

TEST_F(RememberedMonitor, isNotOfferedWhereTheTabletCannotBeMappedToIt)
{
    const platform::Rect bounds{0, 0, 100, 100};
    FakeDisplays five{{bounds, bounds, bounds, bounds, bounds}};
    five.monitors = {kFirst, kSecond, kFirst, kFirst, kFirst};
    mMemory.show(mPane);
    five.monitors = {kFirst, kFirst, kFirst, kSecond, kFirst};
    EXPECT_EQ(mMemory.moved(mPane), 4);
    five.monitors = {kFirst, kFirst, kFirst, kFirst, kSecond};
    EXPECT_EQ(mMemory.moved(mPane), std::nullopt);
}

TEST_F(RememberedMonitor, isNotRememberedForATabletWithoutAnID)
{
    mLife.deviceID.clear();
    mMemory.show(mPane);
    mMemory.choose(mPane);
    swapMonitors();
    EXPECT_EQ(mMemory.moved(mPane), std::nullopt);
    EXPECT_FALSE(mMemory.note(mPane)) << "the number is the same";
}

TEST_F(RememberedMonitor, isThatWhichWasShownWhenTheUserGoesBackToItsNumber)
{
    mMemory.show(mPane);
    chooseTheFirstSwapAndGoBack();
    EXPECT_EQ(mMemory.moved(mPane), 1);
}

TEST_F(RememberedMonitor, isThatWhichWasChosenLastWithTheNumberThatTheUserGoesBackTo)
{
    mMemory.show(mPane);
    swapMonitors();
    mMemory.choose(mPane); // the same number, for what is there now
    chooseTheFirstSwapAndGoBack();
    EXPECT_EQ(mMemory.moved(mPane), 1);
}
