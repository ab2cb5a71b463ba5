// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "MonitorMemory.h"

#include "FakeDisplays.h"
#include "NotedPane.h"
#include "TemporaryHome.h"

#include <gtest/gtest.h>

#include <optional>

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

} // namespace

TEST(MonitorMemory, findsTheMonitorByWhatItIsAndTwinsByTheirConnector)
{
    for (const Case& one : kCases) {
        EXPECT_EQ(findMonitor(one.remembered, one.there), one.number) << one.why;
    }
}

TEST(MonitorMemory, keepsWhateverAMonitorCallsItself)
{
    const TemporaryHome home;
    FakeDisplays displays{{{0, 0, 100, 100}, {100, 0, 100, 100}}};
    const Monitor odd{QStringLiteral("[x]\n7-offscreen/maker=\"y\";%"), QString(5000, u'p'),
        QStringLiteral("\u00e9\u4e2d\x01"), QStringLiteral("DP-1, DP-2")};
    displays.monitors = {monitor("A", "1", "DP-1"), odd};
    PaneLife life;
    life.deviceID = QStringLiteral("7");
    life.display = 2;
    const NotedPane pane(life);
    MonitorMemory().show(pane);
    displays.monitors = {odd, monitor("A", "1", "DP-1")};
    MonitorMemory memory;
    memory.show(pane);
    EXPECT_EQ(memory.moved(pane), 1);
}

TEST(MonitorMemory, worksWithoutAFileThatItCanWrite)
{
    const TemporaryHome home;
    writeFile(home.path() + QStringLiteral("/.local"), "not a folder");
    FakeDisplays displays{{{0, 0, 100, 100}, {100, 0, 100, 100}}};
    displays.monitors = {monitor("A", "1", "DP-1"), monitor("B", "2", "DP-2")};
    PaneLife life;
    life.deviceID = QStringLiteral("7");
    life.display = 2;
    const NotedPane pane(life);
    MonitorMemory memory;
    memory.show(pane);
    displays.monitors = {displays.monitors[1], displays.monitors[0]};
    EXPECT_EQ(memory.moved(pane), 1) << "as long as it lives";
}

TEST(MonitorMemory, offersNoDisplayThatTheTabletCannotBeMappedTo)
{
    const TemporaryHome home;
    const platform::Rect bounds{0, 0, 100, 100};
    FakeDisplays displays{{bounds, bounds, bounds, bounds, bounds}};
    const Monitor chosen = monitor("A", "1", "DP-1");
    const Monitor other = monitor("B", "2", "DP-2");
    displays.monitors = {chosen, other, other, other, other};
    PaneLife life;
    life.deviceID = QStringLiteral("7");
    life.display = 1;
    const NotedPane pane(life);
    MonitorMemory memory;
    memory.show(pane);
    displays.monitors = {other, other, other, chosen, other};
    EXPECT_EQ(memory.moved(pane), 4);
    displays.monitors = {other, other, other, other, chosen};
    EXPECT_EQ(memory.moved(pane), std::nullopt);
}

TEST(MonitorMemory, remembersNothingForATabletWithoutAnID)
{
    const TemporaryHome home;
    FakeDisplays displays{{{0, 0, 100, 100}, {100, 0, 100, 100}}};
    displays.monitors = {monitor("A", "1", "DP-1"), monitor("B", "2", "DP-2")};
    PaneLife life;
    life.display = 2;
    const NotedPane pane(life);
    MonitorMemory memory;
    memory.show(pane);
    memory.choose(pane);
    displays.monitors = {displays.monitors[1], displays.monitors[0]};
    EXPECT_EQ(memory.moved(pane), std::nullopt);
    EXPECT_FALSE(memory.note(pane)) << "the number is the same";
}
