// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PenView.h"

#include <QMouseEvent>
#include <QTabletEvent>

namespace platform {

PenView::PenView(QWidget* parent)
    : PaneView(parent, QAccessible::Canvas)
{
}

void PenView::setAcceptsMouseMovedEvents(bool accepts)
{
    setMouseTracking(accepts);
    setTabletTracking(accepts);
}

QPointF PenView::convertPointFromWindow(const QPointF& place) const
{
    const QPoint corner = mapTo(window(), QPoint(0, height())); // the lower left corner
    const double scale = pixelsPerPoint();
    return {
        (place.x() - corner.x()) / scale, (place.y() - (window()->height() - corner.y())) / scale};
}

void PenView::tabletEvent(QTabletEvent* event)
{
    event->accept(); // otherwise Qt makes a mouse event of it
    if (!isVisible()) {
        return; // the pen was already down before the view was hidden
    }
    if (const std::optional<Event> taken = penEvent(*event, *this, mPenDownAt)) {
        queue().post(*taken);
    }
}

void PenView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        queue().post(mouseEvent(*event, *this, EventType::LeftMouseDown));
    }
}

void PenView::mouseMoveEvent(QMouseEvent* event)
{
    queue().post(mouseEvent(*event, *this,
        event->buttons().testFlag(Qt::LeftButton) ? EventType::LeftMouseDragged
                                                  : EventType::MouseMoved));
}

void PenView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        queue().post(mouseEvent(*event, *this, EventType::LeftMouseUp));
    }
}

void PenView::hideEvent(QHideEvent* event)
{
    queue().endStroke();
    PaneView::hideEvent(event);
}

} // namespace platform
