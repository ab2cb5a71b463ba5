// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <QHash>
#include <QWidget>

namespace platform {

/**
 * A widget whose children have fixed positions, in points. A point grows with the user's text size,
 * so that texts have room: at the usual size it is a pixel of the widget, with text twice as large
 * it is two.
 *
 * In right-to-left languages, the children are mirrored, as in Qt's layouts. Their frames stay the
 * same.
 *
 * The initial positions come from the interface file, in points at the usual size. After that,
 * setFrame() moves a child.
 */
class PointCanvas final : public QWidget {
    Q_OBJECT

public:
    explicit PointCanvas(QWidget* parent = nullptr);

    /** Pixels per point; at least 1. */
    double scale() const { return mScale; }

    /** A child's rectangle in points, as returned by platform::frame(). */
    Rect frameOf(const QWidget& child) const;
    void setFrameOf(QWidget& child, const Rect& frame);

    /** Records the positions in the interface file; must be called when it has been loaded. */
    void takePlaces();
    /** Moves all children back to their positions in the interface file. */
    void restorePlaces();

protected:
    void changeEvent(QEvent* event) override;

private:
    void rescale();
    void place(QWidget& child) const;

    QSize mSize; ///< in points
    QHash<const QWidget*, Rect> mFrames;
    QHash<const QWidget*, Rect> mFramesAtFirst; ///< as in the interface file
    double mScale = 1.0;
};

} // namespace platform
