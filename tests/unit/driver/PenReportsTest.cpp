// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PenReports.h"

#include <gtest/gtest.h>

#include <vector>

using namespace std::chrono_literals;

namespace {

/** Takes all reports, up to a maximum. */
std::vector<QVPenReport> take(PenReports& reports, std::size_t most = 100)
{
    std::vector<QVPenReport> taken;
    while (!reports.isEmpty() && taken.size() < most) {
        taken.push_back(reports.take());
    }
    return taken;
}

constexpr QVPenReport down(std::uint16_t x, std::uint16_t y)
{
    return {1, x, y, 300};
}

constexpr QVPenReport up(std::uint16_t x, std::uint16_t y)
{
    return {0, x, y, 0};
}

/** How many reports are sent within a time by a timer that fires on time or late. */
int countSent(std::uint32_t rate, ReportClock::Time time, ReportClock::Time late)
{
    ReportClock clock;
    clock.setRate(rate);
    ReportClock::Time now = 5h;
    const ReportClock::Time end = now + time;
    clock.begin(now);
    int count = 0;
    while (now < end) {
        for (; clock.wait(now) == 0ns; ++count) {
            clock.sent(now);
        }
        now += std::chrono::ceil<std::chrono::milliseconds>(clock.wait(now)) + late;
    }
    return count;
}

} // namespace

TEST(PenReports, ofAPressAndALiftAreOneEach)
{
    PenReports reports;
    EXPECT_TRUE(reports.isEmpty());
    reports.press(5, 6);
    reports.lift();
    EXPECT_EQ(take(reports), (std::vector{down(5, 6), up(5, 6)}));
}

TEST(PenReports, goOnWhileThePenIsHeld)
{
    PenReports reports;
    reports.press(5, 6);
    EXPECT_EQ(take(reports, 3), (std::vector{down(5, 6), down(5, 6), down(5, 6)}));
    reports.move(7, 8);
    EXPECT_EQ(take(reports, 2), (std::vector{down(7, 8), down(7, 8)}));
    reports.lift();
    EXPECT_EQ(take(reports), (std::vector{up(7, 8)}));
}

TEST(PenReports, tellTheLastOfManyMovesAndNeverSkipAPress)
{
    PenReports reports;
    reports.press(1, 1);
    for (std::uint16_t x = 2; x < 500; ++x) {
        reports.move(x, 1);
    }
    reports.lift();
    reports.press(9, 9);
    reports.move(10, 9);
    reports.lift();
    EXPECT_EQ(take(reports),
        (std::vector{down(1, 1), down(499, 1), up(499, 1), down(9, 9), down(10, 9), up(10, 9)}));
}

TEST(PenReports, knowNoMoveAndNoLiftWhileTheTipIsUp)
{
    PenReports reports;
    reports.move(1, 1);
    reports.lift();
    EXPECT_TRUE(reports.isEmpty());
}

TEST(PenReports, ofATapAreFiveAndALift)
{
    PenReports reports;
    reports.tap(3, 4);
    EXPECT_FALSE(reports.isDown());
    EXPECT_EQ(take(reports),
        (std::vector{down(3, 4), down(3, 4), down(3, 4), down(3, 4), down(3, 4), up(3, 4)}));
}

TEST(PenReports, aMoveDoesNotChangeATapBeforeIt)
{
    PenReports reports;
    reports.press(1, 1);
    reports.move(2, 2);
    reports.tap(3, 4);
    reports.move(5, 5);
    const std::vector<QVPenReport> taken = take(reports, 9);
    EXPECT_EQ(taken[1], down(2, 2));
    EXPECT_EQ(taken[7], up(3, 4));
    EXPECT_EQ(taken[8], down(5, 5));
}

TEST(PenReports, thatAreForgottenLeaveThePenDown)
{
    PenReports reports;
    reports.press(5, 6);
    reports.tap(3, 4);
    reports.forget();
    EXPECT_EQ(take(reports, 2), (std::vector{down(5, 6), down(5, 6)}));
    reports.move(6, 6);
    reports.forget();
    reports.move(7, 7);
    EXPECT_EQ(take(reports, 1), (std::vector{down(7, 7)}));
    reports.reset();
    EXPECT_FALSE(reports.isDown());
    EXPECT_TRUE(reports.isEmpty());
}

TEST(ReportClock, keepsEveryRate)
{
    for (std::uint32_t rate = 1; rate <= ReportClock::kMostReports; ++rate) {
        EXPECT_NEAR(countSent(rate, 10s, 0ns), rate * 10.0, 1.0) << rate;
    }
}

TEST(ReportClock, keepsTheRateWhereTheTimerIsLate)
{
    for (const std::uint32_t rate : {1U, 60U, 133U, 999U, 1000U}) {
        // The last timer event may have been so late that its reports are missing.
        EXPECT_NEAR(countSent(rate, 100s, 7ms), rate * 100.0, 1.0 + rate * 0.009) << rate;
    }
}

TEST(ReportClock, doesNotMakeUpForALongSleep)
{
    ReportClock clock;
    clock.begin(0s);
    clock.sent(0s);
    int count = 0;
    for (; clock.wait(1h) == 0ns; ++count) {
        clock.sent(1h);
    }
    EXPECT_LE(count, 101);
}

TEST(ReportClock, doesNotMakeUpForTheTimeWithoutReports)
{
    ReportClock clock;
    clock.begin(0s);
    clock.sent(0s);
    EXPECT_EQ(clock.wait(0s), 10ms);
    clock.begin(500ms);
    EXPECT_EQ(clock.wait(500ms), 0ns);
    clock.sent(500ms);
    EXPECT_EQ(clock.wait(500ms), 10ms);
    // Nor may a short pause bring a report forward.
    clock.begin(504ms);
    EXPECT_EQ(clock.wait(504ms), 6ms);
}

TEST(ReportClock, takesANewRateAtOnce)
{
    ReportClock clock;
    clock.setRate(1);
    clock.begin(0s);
    clock.sent(0s);
    EXPECT_EQ(clock.wait(0s), 1s);
    clock.setRate(1000);
    EXPECT_EQ(clock.wait(0s), 1ms);
}
