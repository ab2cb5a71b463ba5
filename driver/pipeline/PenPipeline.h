// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ButtonActions.h"
#include "Commands.h"
#include "PenFrame.h"
#include "QVDriverProtocol.h"
#include "TabletSettings.h"

#include <optional>

/**
 * Applies the pressure curve, the same as the panel draws. With s = |curve|, a heavy curve is the
 * parabola f(t) = (1 - s) t + s t^2, a light one its inverse. Both map 0 to 0 and 1 to 1, and are
 * monotone.
 *
 * @param pressure 0 to 1
 * @param curve -1 (light) to 1 (heavy)
 */
double curvedPressure(double pressure, double curve);

/** Turns the frames of a tablet's pen into those of the virtual pen. Pure: no clock, no file. */
class PenPipeline {
public:
    /** What a frame leads to. */
    struct Result {
        PenFrame pen; ///< of the virtual pen
        std::optional<QVPenReport> report; ///< for the panel that calibrates
        /** Comes before the pen: it leaves the surface where it is, since its place will jump. */
        std::optional<PenFrame> lift;
    };

    /**
     * @param tablet ranges of the tablet's pen
     * @param virtualPen ranges of the virtual pen
     */
    PenPipeline(const PenAxes& tablet, const PenAxes& virtualPen);

    /** @param buttons holds what the pen's buttons press; the tablet's keys share it */
    Result next(const PenFrame& frame, const TabletSettings& settings, ButtonActions& buttons,
        Commands& commands);

private:
    /** A point, both coordinates from 0 to 1. */
    struct Point {
        double x;
        double y;
    };

    Point fine(const Point& place, bool isFine);

    PenAxes mTablet;
    PenAxes mVirtual;
    PenFrame mLast{}; ///< of the virtual pen
    TabletRect mTarget; ///< of the last settings
    int mDesktopTurns = 0; ///< likewise
    bool mIsLifted = false; ///< until the tip is up, although it touches
    /** Where the pen was when fine positioning began. */
    std::optional<Point> mAnchor;
    /** The last report of the calibration, if the tip was on the surface. */
    std::optional<QVPenReport> mTouching;
};
