// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ButtonActions.h"
#include "Commands.h"
#include "PenFrame.h"
#include "QVDriverProtocol.h"
#include "TabletSettings.h"

#include <optional>

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
