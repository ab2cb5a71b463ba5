// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>

/** One report of the pen, as the panel takes it. */
struct PenReport {
    std::uint32_t key; ///< 1 while the tip is down, 0 when it is up
    std::uint16_t x; ///< in tablet units
    std::uint16_t y;
    std::uint32_t pressure; ///< which the panel does not read

    bool operator==(const PenReport&) const = default;
};
static_assert(sizeof(PenReport) == 12);

/**
 * What the pen does, as the reports that a tablet makes of it, in their order.
 *
 * A press and a lift are a report each. Where the pen moves more often than reports are taken, only
 * its last place is reported, as by a tablet that looks at the pen for each report. While the pen
 * is held, every report that is taken tells its place, so there is always one more.
 */
class PenReports {
public:
    /** The tip goes down at a point. */
    void press(std::uint16_t x, std::uint16_t y);
    /** The pen is dragged to a point; nothing while the tip is up. */
    void move(std::uint16_t x, std::uint16_t y);
    /** The tip is lifted where it is; nothing while it is up. */
    void lift();
    /** A whole touch of one point: some reports of the tip down, one of its lift. */
    void tap(std::uint16_t x, std::uint16_t y);

    /** Whether the tip is down, other than in a tap. */
    bool isDown() const { return mIsDown; }
    /** While the tip is down, what is reported of it. */
    const PenReport& held() const { return mHeld; }
    /** Whether there is nothing to report. */
    bool isEmpty() const { return mReports.empty() && !mIsDown; }
    /** Takes the next report; there must be one. */
    PenReport take();

    /** Forgets what was not taken. A pen that is down stays down. */
    void forget() { mReports.clear(); }
    /** Forgets all; the pen is up. */
    void reset();

private:
    std::deque<PenReport> mReports; ///< not taken yet
    PenReport mHeld{}; ///< while the tip is down, what to report
    bool mIsDown = false;
    bool mEndsWithMove = false; ///< the last report is a move that was not taken yet
};

/**
 * When reports are due, so that in the long run they come at exactly the rate. A timer that fires
 * late makes one report late, and none of the others.
 */
class ReportClock {
public:
    using Time = std::chrono::nanoseconds; ///< on any clock that does not jump

    static constexpr std::uint32_t kMostReports = 1000;

    /** @param perSecond 1 to 1000 */
    void setRate(std::uint32_t perSecond) { mInterval = Time(std::chrono::seconds(1)) / perSecond; }
    /** There was nothing to report until now, so nothing is overdue. */
    void begin(Time now);
    /** How long from now until the next report; 0 when it is due. */
    Time wait(Time now) const;
    /** A report was sent. */
    void sent(Time now);

private:
    Time mInterval = std::chrono::milliseconds(10);
    Time mLast = -std::chrono::seconds(1); ///< when the last report was due
};
