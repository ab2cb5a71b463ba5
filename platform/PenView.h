// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "EventQueue.h"
#include "PaneView.h"
#include "PenEvents.h"

#include <QPointF>

#include <optional>

namespace platform {

/**
 * A view for pen and mouse input. Events come through an event queue, so that it can take the
 * events of a stroke itself, and many at once.
 */
class PenView : public PaneView {
public:
    explicit PenView(QWidget* parent = nullptr);

    // Called by the queue, for one event each.
    virtual void mouseDown(const Event& event) = 0;
    virtual void mouseUp(const Event& event) = 0;
    virtual void mouseMoved(const Event& event) = 0;
    virtual void mouseDragged(const Event& event) = 0;
    virtual void tabletPoint(const Event& event) = 0;
    /** Called when there are events and the view tracks a stroke: it takes the events it wants. */
    virtual void trackEvents() = 0;

    EventQueue& queue() { return mQueue; }

protected:
    /** Whether the view gets moves without a button, and of a hovering pen. */
    void setAcceptsMouseMovedEvents(bool accepts);

    /** Converts an event's position to the view's points. */
    QPointF convertPointFromWindow(const QPointF& place) const;

    void tabletEvent(QTabletEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    EventQueue mQueue{*this};
    std::optional<QPointF> mPenDownAt; ///< for penEvent()
};

} // namespace platform
