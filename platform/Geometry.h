// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

class QFont;
class QWidget;

namespace platform {

/** A rectangle; each use says in which coordinates. */
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect&) const = default;
};

/**
 * Pixels in a point that grows with the user's text size: one at the usual size and below, two with
 * text twice as large.
 */
double pixelsPerPoint(const QFont& font);

/**
 * Where a control stands in its parent, in points. The origin is the parent's lower left corner,
 * and y grows upwards to the control's lower edge: y = parent height - (top + height). A point is a
 * pixel of the parent's, in a PointCanvas what that says, which also mirrors where the language
 * asks for it.
 */
Rect frame(const QWidget& control);

/** Puts the control there. A control without a parent is left alone. */
void setFrame(QWidget& control, const Rect& frame);

/** Gives the control the size that its contents ask for; its lower left corner stays. */
void sizeToFit(QWidget& control);

} // namespace platform
