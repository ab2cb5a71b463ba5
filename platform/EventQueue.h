// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PenEvents.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

class QTabletEvent;
class QWidget;

namespace platform {

class PenView;

/**
 * Takes the pen's coming and going, which the desktop tells to the application. Of all responders,
 * the one that was made last and is visible is told.
 */
class ProximityResponder {
public:
    /** @param widget whose visibility counts; it is the responder, or lives as long */
    explicit ProximityResponder(const QWidget& widget);
    virtual ~ProximityResponder();
    ProximityResponder(const ProximityResponder&) = delete;
    ProximityResponder& operator=(const ProximityResponder&) = delete;

    virtual void tabletProximity(const std::shared_ptr<const Event>& event) = 0;

private:
    friend class EventQueue;

    const QWidget& mWidget;
    std::shared_ptr<class EventQueue> mQueue;
};

/**
 * The events of pens and mouse on their way to the views: in their order, and in well-formed
 * strokes.
 *
 * A stroke is a press, what the same device does then, and its release; a mouse may have pressed
 * elsewhere. What other devices do
 * meanwhile waits for its end, so that strokes never mix. A release that never came is made up when
 * the device leaves, presses again or moves without its button, and when the view is hidden or
 * gone.
 *
 * Events are handed over when the event loop runs on, so that all that has arrived is there
 * together. Main thread only. Lives as long as a view or a responder does.
 */
class EventQueue final : public QObject {
    Q_OBJECT

public:
    static std::shared_ptr<EventQueue> shared();

    void post(PenView& view, const Event& event);
    /** Ends a stroke that is going on in the view. */
    void endStroke(const PenView& view);
    /** The view goes: its events are nobody's. */
    void forget(const PenView& view);

    /**
     * The next event of the types in the mask; what is of no such type stays, and is not passed by
     * when it is a press or a release.
     */
    std::optional<Event> nextEventMatchingMask(std::uint32_t mask);

    /** From now on the view is told of nothing but that there are events, which it takes itself. */
    void beginTracking(PenView& view);
    void endTracking();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class ProximityResponder;

    struct Waiting {
        PenView* view; ///< null for TabletProximity
        Event event;
        bool isGuess = false; ///< a coming that no driver has told, but that follows from the rest
    };

    EventQueue();

    void enqueue(Waiting waiting);
    void release();
    void dispatch();
    void deliver(const Waiting& waiting);
    void deliverProximity(const Event& event);
    void noteProximity(const QTabletEvent& tablet, bool isEntering);
    void noteAnyPen(const QTabletEvent& tablet);

    std::deque<Waiting> mQueue;
    std::deque<Waiting> mParked; ///< of other devices than the stroke's
    std::optional<Waiting> mStroke; ///< the last event of a stroke that has no release yet
    std::optional<Event> mInReach; ///< the pen of which a responder was told last
    std::optional<Event>
        mLastInQueue; ///< the pen that is in reach when all in mQueue is handed over
    PenView* mTracking = nullptr;
    std::vector<ProximityResponder*> mResponders;
    QTimer mHandOver;
};

} // namespace platform
