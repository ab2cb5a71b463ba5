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
 * A view that draws in points from its lower left corner, with y growing upwards.
 *
 * Drawings stay in a backing store until they are redrawn: when the view is shown, when its size,
 * the size of a point, or the screen's pixel density changes, and when setNeedsDisplay() requests
 * it. An expose only copies from the store.
 *
 * The focus frame, shown after keyboard navigation, is not part of the store.
 */
class PaneView : public QWidget, public Accessible {
public:
    explicit PaneView(QWidget* parent = nullptr, QAccessible::Role role = QAccessible::Graphic);

    /** The view's rectangle, in points; its origin is (0, 0). */
    Rect bounds() const;

    /** Redraws the whole view before the next paint, and announces its new description. */
    void setNeedsDisplay();
    /**
     * Redraws at least that part, in points. If called while drawing, redraws exactly that part,
     * clipped to the view, once more; requests during that redraw are ignored.
     */
    void setNeedsDisplayInRect(const Rect& rect);

protected:
    /**
     * Starts drawing on top of the current contents, until unlockFocus(). Pending redraws are done
     * first. The painter is in points, with y growing upwards.
     */
    QPainter& lockFocus();
    /** @param drawn the part that may have changed, in points; it is painted soon */
    void unlockFocus(const Rect& drawn);
    /** Paints immediately what was drawn. */
    void flushWindow();

    /** The size of a point in pixels. */
    double pixelsPerPoint() const;

    /** Called before a full redraw, to update what is shown. */
    virtual void sync() { }
    /**
     * Draws at least the dirty rectangle; the painter is clipped to it, and in points, with y
     * growing upwards.
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
    std::vector<Rect> mAskedAgain; ///< parts that drawing has requested to redraw once more
};

/**
 * Draws an image with its lower left corner at the rectangle's. Both rectangles are in points; a
 * point of the image depends on its resolution: at 144 pixels per inch, it has two pixels. The
 * painter's y grows upwards.
 */
void drawImage(QPainter& painter, const QImage& image, const Rect& target, const Rect& source);

/**
 * Draws a line of text with its lower left corner at a point, with the painter's pen. The painter's
 * y grows upwards.
 */
void drawText(QPainter& painter, const QString& text, double x, double y);

/** Draws the keyboard focus frame, four pixels wide, inside a rectangle. */
void drawFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette);

/** Draws a black frame, one point wide, inside the rectangle. */
void frameRect(QPainter& painter, const Rect& rect);

/** An image's size in points. */
Rect imageBounds(const QImage& image);

} // namespace platform
