// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "Geometry.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <optional>
#include <vector>

namespace platform {

/**
 * A view that draws in points from its lower left corner, y growing upwards.
 *
 * What was drawn stays in a backing store until it is drawn again: when the view is shown, when its
 * size, the size of a point, or the screen's pixel density changes, and when setNeedsDisplay() asks
 * for it. What the window system uncovers is copied from the store and not drawn again.
 *
 * A frame that is in no store shows that the keyboard has brought one here.
 */
class PaneView : public QWidget, public Accessible {
public:
    explicit PaneView(QWidget* parent = nullptr, QAccessible::Role role = QAccessible::Graphic);

    /** The view's own rectangle, in points; its origin is (0, 0). */
    Rect bounds() const;

    /** Has the whole view drawn again, before it is next painted, and tells its new words. */
    void setNeedsDisplay();
    /**
     * Has at least that part, in points, drawn again. From within drawing, has exactly that part,
     * as far as it is in the view, drawn once more: what that drawing asks for in turn is not done.
     */
    void setNeedsDisplayInRect(const Rect& rect);

protected:
    /**
     * Draws into what is shown already, until unlockFocus(): what is pending is drawn first. The
     * painter is in points, y growing upwards.
     */
    QPainter& lockFocus();
    /** @param drawn what may have been drawn on, in points; it is painted soon */
    void unlockFocus(const Rect& drawn);
    /** Has what was drawn painted now. */
    void flushWindow();

    /** A point's size. */
    double pixelsPerPoint() const;

    /** Comes before the whole view is drawn anew: brings up to date what it shows. */
    virtual void sync() { }
    /**
     * Draws at least what the rectangle covers; on what lies beside it the painter does not draw.
     * The painter is in points, y growing upwards.
     */
    virtual void drawRect(QPainter& painter, const Rect& dirty) = 0;

    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void updateStore();
    void drawAgain(const Rect& dirty);
    void beginPoints(QPainter& painter) const;
    QRect toPixels(const Rect& rect) const;

    QPixmap mStore;
    std::optional<QPainter> mFocus;
    bool mNeedsDisplay = true;
    bool mIsDrawing = false;
    bool mIsDrawingAgain = false;
    std::vector<Rect> mAskedAgain; ///< what drawing has asked to be drawn once more
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

/** Draws the frame that shows the keyboard's focus, four pixels wide, inside of a rectangle. */
void drawFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette);

/** Draws the rectangle's frame in black, a point wide, inside of it. */
void frameRect(QPainter& painter, const Rect& rect);

/** An image's size in points. */
Rect imageBounds(const QImage& image);

} // namespace platform
