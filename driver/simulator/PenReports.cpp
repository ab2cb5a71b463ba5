// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PenReports.h"

#include <algorithm>

namespace {

constexpr std::uint32_t kPressure = 300;
constexpr int kReportsOfTap = 5; ///< with the tip down

/** Reports that are overdue by more, such as after a suspend, are not caught up on. */
constexpr ReportClock::Time kMostLate = std::chrono::seconds(1);

} // namespace

void PenReports::press(std::uint16_t x, std::uint16_t y)
{
    mHeld = {1, x, y, kPressure};
    mIsDown = true;
    mReports.push_back(mHeld);
    mEndsWithMove = false;
}

void PenReports::move(std::uint16_t x, std::uint16_t y)
{
    if (!mIsDown) {
        return;
    }
    mHeld.x = x;
    mHeld.y = y;
    if (mEndsWithMove && !mReports.empty()) {
        mReports.back() = mHeld;
    } else {
        mReports.push_back(mHeld);
        mEndsWithMove = true;
    }
}

void PenReports::lift()
{
    if (mIsDown) {
        mReports.push_back({0, mHeld.x, mHeld.y, 0});
        mIsDown = false;
        mEndsWithMove = false;
    }
}

void PenReports::tap(std::uint16_t x, std::uint16_t y)
{
    for (int i = 0; i < kReportsOfTap; ++i) {
        mReports.push_back({1, x, y, kPressure});
    }
    mReports.push_back({0, x, y, 0});
    mEndsWithMove = false;
}

QVPenReport PenReports::take()
{
    if (mReports.empty()) {
        return mHeld;
    }
    const QVPenReport report = mReports.front();
    mReports.pop_front();
    return report;
}

void PenReports::reset()
{
    mReports.clear();
    mIsDown = false;
}

void ReportClock::begin(Time now)
{
    mLast = std::max(mLast, now - mInterval);
}

ReportClock::Time ReportClock::wait(Time now) const
{
    return std::max(mLast + mInterval - now, Time::zero());
}

void ReportClock::sent(Time now)
{
    mLast = std::max(mLast + mInterval, now - kMostLate);
}
