// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

class QFont;
class QWidget;

namespace platform {

/** A rectangle; the coordinate system depends on its use. */
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect&) const = default;
};

/**
 * Pixels per point, which grows with the user's text size: 1 at the usual size and below, 2 with
 * text twice as large.
 */
double pixelsPerPoint(const QFont& font);

/**
 * A control's rectangle in its parent, in points. The origin is the parent's lower left corner, and
 * y grows upwards to the control's lower edge: y = parent height - (top + height). A point is a
 * pixel of the parent; in a PointCanvas, it is the canvas's own point, mirrored in right-to-left
 * languages.
 */
Rect frame(const QWidget& control);

/** Moves the control to the rectangle. A control without a parent is not changed. */
void setFrame(QWidget& control, const Rect& frame);

/** Resizes the control to fit its contents; its lower left corner stays. */
void sizeToFit(QWidget& control);

} // namespace platform
