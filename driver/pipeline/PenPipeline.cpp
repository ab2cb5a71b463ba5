// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PenPipeline.h"

#include "QVPressCurve.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double kFineScale = 0.25; ///< of the pen's movement, while it positions finely

std::int32_t rounded(double value)
{
    return static_cast<std::int32_t>(std::lround(value));
}

/** The part of a range at a value, 0 to 1; outside, that of the nearer end. */
double partOf(double value, double from, double to)
{
    return std::clamp((value - from) / (to - from), 0.0, 1.0);
}

double between(double from, double to, double part)
{
    return from + (to - from) * part;
}

/**
 * The unit of an axis that lies at a part of it, between two others. A desktop spreads max + 1
 * units evenly over its pixels; the pen must not appear beyond an edge, where another display may
 * be.
 */
std::int32_t unitAt(double part, double from, double to, std::int32_t max)
{
    const double count = max + 1.0;
    const double first = std::ceil(from * count);
    const double last = std::max(first, std::ceil(to * count) - 1);
    return static_cast<std::int32_t>(std::clamp(std::floor(part * count), first, last));
}

/** The buttons of the virtual pen that toolkits take for those of a mouse. */
std::uint8_t buttonsOf(const ButtonActions& held)
{
    return static_cast<std::uint8_t>((held.penHolds(kQVMiddleButton) ? kPenLower : 0)
        | (held.penHolds(kQVRightButton) ? kPenUpper : 0)
        | (held.penHolds(kQVBackButton) ? kPenThird : 0));
}

} // namespace

PenPipeline::PenPipeline(const PenAxes& tablet, const PenAxes& virtualPen)
    : mTablet(tablet)
    , mVirtual(virtualPen)
{
}

PenPipeline::Result PenPipeline::next(const PenFrame& frame, const TabletSettings& settings,
    ButtonActions& buttons, Commands& commands)
{
    buttons.endLostPause(settings, commands);
    const bool isNear = frame.tool != PenTool::None;
    const auto setButton = [&](std::size_t slot, PenButton bit) {
        // While the pen is ignored, a button of it can still end that.
        const bool isIgnored = settings.isCalibrating || buttons.isPaused();
        const bool mayAct = !isIgnored || settings.buttons.at(slot).action == kQVPauseTablet;
        buttons.set(slot, isNear && mayAct && (frame.buttons & bit) != 0, settings, commands);
    };
    setButton(kQVLowerPenSlot, kPenLower);
    setButton(kQVUpperPenSlot, kPenUpper);

    PenFrame gone;
    gone.time = frame.time;
    gone.x = mLast.x;
    gone.y = mLast.y;
    gone.serial = mLast.serial;

    // A tablet that is turned has its origin in the user's upper left corner, too.
    Point place{partOf(frame.x, 0, mTablet.xMax), partOf(frame.y, 0, mTablet.yMax)};
    if (settings.isTurned) {
        place = {1 - place.x, 1 - place.y};
    }
    const TabletRect& range = settings.range;
    const Point units{
        between(range.left, range.right, place.x), between(range.top, range.bottom, place.y)};
    if (!isNear || settings.isCalibrating || buttons.isPaused()) {
        mAnchor.reset();
        mIsLifted = false;
        mLast = gone;
        std::optional<QVPenReport> report;
        if (settings.isCalibrating && isNear) {
            report = QVPenReport{frame.isTouching ? 1U : 0U,
                static_cast<std::uint16_t>(rounded(units.x)),
                static_cast<std::uint16_t>(rounded(units.y)),
                static_cast<std::uint32_t>(std::max(frame.pressure, 0))};
        } else if (settings.isCalibrating && mTouching) {
            // It was lifted and left in one frame, which reports no position.
            report = QVPenReport{0, mTouching->x, mTouching->y, 0};
        }
        mTouching = report && report->key != 0 ? report : std::nullopt;
        return {gone, report, std::nullopt};
    }
    mTouching.reset();

    // A stroke must not run across the desktop when a part of it takes the place of another.
    std::optional<PenFrame> lift;
    const bool hasMoved = settings.target != mTarget || settings.desktopTurns != mDesktopTurns;
    if (hasMoved && mLast.isTouching) {
        lift = mLast;
        lift->time = frame.time;
        lift->isTouching = false;
        lift->pressure = 0;
        mIsLifted = true;
    }
    mTarget = settings.target;
    mDesktopTurns = settings.desktopTurns;

    // A stroke that began finely ends finely, or it would jump when the button is let go.
    const bool isFine =
        buttons.isFine() || (mAnchor.has_value() && mLast.isTouching && frame.isTouching);
    const TabletRect& area = settings.area;
    const Point target = fine(
        {partOf(units.x, area.left, area.right), partOf(units.y, area.top, area.bottom)}, isFine);
    PenFrame pen = frame;
    const TabletRect& goal = settings.target;
    double x = between(goal.left, goal.right, target.x);
    double y = between(goal.top, goal.bottom, target.y);
    TabletRect edges = goal;
    for (int turn = 0; turn < settings.desktopTurns; ++turn) {
        x = std::exchange(y, 1 - x); // a quarter turn back
        edges = {edges.top, 1 - edges.right, edges.bottom, 1 - edges.left};
    }
    pen.x = unitAt(x, edges.left, edges.right, mVirtual.xMax);
    pen.y = unitAt(y, edges.top, edges.bottom, mVirtual.yMax);
    pen.buttons = buttonsOf(buttons);
    // Some pens report a little pressure before they touch, which would draw.
    if (mTablet.pressureMax > 0 && frame.isTouching && frame.pressure > 0) {
        const double pressure = QVPressResponse(
            std::min(1.0, static_cast<double>(frame.pressure) / mTablet.pressureMax),
            settings.threshold);
        // The lightest stroke stays one.
        pen.pressure = std::max(1, rounded(pressure * mVirtual.pressureMax));
    } else {
        pen.pressure = 0;
    }
    if (buttons.penHolds(kQVLeftButton) && !pen.isTouching) {
        // The tip is the left button. A mouse draws with all its pressure.
        pen.isTouching = true;
        pen.pressure = mVirtual.pressureMax;
    }
    mIsLifted = mIsLifted && pen.isTouching;
    if (mIsLifted) {
        pen.isTouching = false;
        pen.pressure = 0;
    }
    if (settings.isTurned) {
        pen.tiltX = -frame.tiltX;
        pen.tiltY = -frame.tiltY;
        if (mTablet.twistTurn > 0) {
            pen.twist = (frame.twist + mTablet.twistTurn / 2) % mTablet.twistTurn;
        }
    }
    mLast = pen;
    return {pen, std::nullopt, lift};
}

PenPipeline::Point PenPipeline::fine(const Point& place, bool isFine)
{
    if (!isFine) {
        mAnchor.reset();
        return place;
    }
    if (!mAnchor) {
        mAnchor = place;
    }
    return {between(mAnchor->x, place.x, kFineScale), between(mAnchor->y, place.y, kFineScale)};
}
