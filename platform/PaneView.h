// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <QPixmap>
#include <QWidget>

class QPainter;

namespace platform {

/**
 * A view that draws in points from its lower left corner, y growing upwards.
 *
 * What was drawn stays in a backing store until it is drawn again: when the view is shown, when its
 * size, the size of a point, or the screen's pixel density changes, and when setNeedsDisplay() asks
 * for it. What the window system uncovers is copied from the store and not drawn again.
 */
class PaneView : public QWidget {
public:
    explicit PaneView(QWidget* parent = nullptr);

    /** The view's own rectangle, in points; its origin is (0, 0). */
    Rect bounds() const;

    /** Has the whole view drawn again, before it is next painted. */
    void setNeedsDisplay();
    /**
     * Has at least that part, in points, drawn again. From within drawing, only has what is drawn
     * painted.
     */
    void setNeedsDisplayInRect(const Rect& rect);

protected:
    /** Draws at least what the rectangle covers. The painter is in points, y growing upwards. */
    virtual void drawRect(QPainter& painter, const Rect& dirty) = 0;

    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    double pixelsPerPoint() const;

    QPixmap mStore;
    bool mNeedsDisplay = true;
    bool mIsDrawing = false;
};

/**
 * Draws an image with its lower left corner at the rectangle's; both rectangles are in points, the
 * source in the image's own, whose size follows from its resolution: at 144 pixels to the inch, a
 * point has two. The painter's y grows upwards.
 */
void drawImage(QPainter& painter, const QImage& image, const Rect& target, const Rect& source);

/**
 * Draws text in one line with its lower left corner at a point, in the painter's pen. The painter's
 * y grows upwards.
 */
void drawText(QPainter& painter, const QString& text, double x, double y);

/** An image's size in points. */
Rect imageBounds(const QImage& image);

} // namespace platform
