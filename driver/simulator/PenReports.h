// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVDriverProtocol.h"

#include <chrono>
#include <cstdint>
#include <deque>

/**
 * Queues the reports that a tablet makes of the pen's movements.
 *
 * A press and a lift are a report each. If the pen moves more often than reports are taken, only
 * its last position is reported, as by a tablet that samples the pen for each report. While the pen
 * is down, there is always another report, with its current position.
 */
class PenReports {
public:
    /** Presses the tip down at a point. */
    void press(std::uint16_t x, std::uint16_t y);
    /** Drags the pen to a point; does nothing while the tip is up. */
    void move(std::uint16_t x, std::uint16_t y);
    /** Lifts the tip; does nothing while it is up. */
    void lift();
    /** Queues a whole touch of one point: some reports with the tip down, one of its lift. */
    void tap(std::uint16_t x, std::uint16_t y);

    /** Whether the tip is down, apart from taps. */
    bool isDown() const { return mIsDown; }
    /** The report to repeat while the tip is down. */
    const QVPenReport& held() const { return mHeld; }
    /** Whether there is nothing to report. */
    bool isEmpty() const { return mReports.empty() && !mIsDown; }
    /** Removes and returns the next report; must not be empty. */
    [[nodiscard]] QVPenReport take();

    /** Discards the queued reports. A pen that is down stays down. */
    void forget() { mReports.clear(); }
    /** Discards everything; the pen is up. */
    void reset();

private:
    std::deque<QVPenReport> mReports; ///< not taken yet
    QVPenReport mHeld{}; ///< the report to repeat while the tip is down
    bool mIsDown = false;
    bool mEndsWithMove = false; ///< the last queued report is a move
};

/**
 * Computes when reports are due, so that they keep exactly to the rate in the long run. A timer
 * that fires late delays only one report.
 */
class ReportClock {
public:
    using Time = std::chrono::nanoseconds; ///< on any clock that does not jump

    static constexpr std::uint32_t kMostReports = 1000;

    /** @param perSecond 1 to 1000 */
    void setRate(std::uint32_t perSecond) { mInterval = Time(std::chrono::seconds(1)) / perSecond; }
    /** Starts after a pause, so that nothing is overdue. */
    void begin(Time now);
    /** Time until the next report; 0 if it is due. */
    Time wait(Time now) const;
    /** Notes that a report was sent. */
    void sent(Time now);

private:
    Time mInterval = std::chrono::milliseconds(10);
    Time mLast = -std::chrono::seconds(1); ///< when the last report was due
};
