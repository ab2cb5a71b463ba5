// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PenEvents.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace platform {

class EventQueue;
class ProximityRelay;

/**
 * Is notified when a pen enters or leaves the tablet's range. Only the newest visible responder is.
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
    friend class ProximityRelay;

    const QWidget& mWidget;
    std::shared_ptr<ProximityRelay> mRelay;
};

/**
 * Passes the application's proximity events to the responder: after the views have handled all
 * earlier events, and never during a stroke.
 *
 * Main thread only. Its sharedInstance() exists while there is a responder or a queue.
 */
class ProximityRelay final : public QObject {
    Q_OBJECT

public:
    ProximityRelay();

    /** Notifies the responder at once. */
    void tell(const Event& event);
    /** Whether a responder knows that the event's pen is in range. */
    bool isKnown(const Event& event) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class ProximityResponder;
    friend class EventQueue;

    EventQueue* busyQueue(const Event& event) const;
    /** @param isGuess whether no driver has announced it, but it follows from the pen's events */
    void note(const Event& event, bool isGuess = false);

    std::optional<Event> mInRange; ///< the pen that was last reported to a responder
    std::vector<ProximityResponder*> mResponders;
    std::vector<EventQueue*> mQueues; ///< of all views
};

} // namespace platform
