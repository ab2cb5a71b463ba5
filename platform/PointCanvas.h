// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <QHash>
#include <QWidget>

namespace platform {

/**
 * A widget whose children stand at fixed places, in points. A point grows with the user's text
 * size, so that texts keep their room: at the usual size it is a pixel of the widget's, with text
 * twice as large it is two.
 *
 * Where the language is written from right to left, the children stand mirrored, as they do in Qt's
 * layouts. Their frames are the same.
 *
 * The places come from the interface file, which has them in points at the usual size. After that,
 * setFrame() moves a child.
 */
class PointCanvas final : public QWidget {
    Q_OBJECT

public:
    explicit PointCanvas(QWidget* parent = nullptr);

    /** Pixels in one point; at least 1. */
    double scale() const { return mScale; }

    /** Where a child stands, in points, measured as by platform::frame(). */
    Rect frameOf(const QWidget& child) const;
    void setFrameOf(QWidget& child, const Rect& frame);

    /** Takes the interface file's places; to be called when the interface file has been loaded. */
    void takePlaces();
    /** Puts all children back to the interface file's places. */
    void restorePlaces();

protected:
    void changeEvent(QEvent* event) override;

private:
    void rescale();
    void place(QWidget& child) const;

    QSize mSize; ///< in points
    QHash<const QWidget*, Rect> mFrames;
    QHash<const QWidget*, Rect> mFramesAtFirst; ///< the interface file's
    double mScale = 1.0;
};

} // namespace platform
