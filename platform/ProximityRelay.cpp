// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ProximityRelay.h"

#include "EventQueue.h"
#include "Service.h"

#include <QCoreApplication>
#include <QTabletEvent>
#include <QWidget>

#include <algorithm>

namespace platform {

ProximityResponder::ProximityResponder(const QWidget& widget)
    : mWidget(widget)
    , mRelay(sharedInstance<ProximityRelay>())
{
    mRelay->mResponders.push_back(this);
}

ProximityResponder::~ProximityResponder()
{
    std::erase(mRelay->mResponders, this);
}

ProximityRelay::ProximityRelay()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ProximityRelay::eventFilter(QObject* watched, QEvent* event)
{
    const auto guard = sharedInstance<ProximityRelay>(); // the last view may be deleted
    const auto proximity = [event](bool isEntering) {
        // NOLINTNEXTLINE(*-downcast): its type says so
        return proximityEvent(*static_cast<QTabletEvent*>(event), isEntering);
    };
    switch (event->type()) {
    case QEvent::TabletEnterProximity:
        note(proximity(true));
        break;
    case QEvent::TabletLeaveProximity:
        note(proximity(false));
        break;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        // Not every tablet's driver announces a pen. During a stroke, the queue does that in time.
        if (const Event entering = proximity(true);
            !isKnown(entering) && busyQueue(entering) == nullptr) {
            note(entering, true);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/**
 * Returns the queue with a stroke of the event's device, or else with any; null if there is none.
 */
EventQueue* ProximityRelay::busyQueue(const Event& event) const
{
    EventQueue* busy = nullptr;
    for (EventQueue* const queue : mQueues) {
        if (queue->stroke() && (busy == nullptr || isSameDevice(*queue->stroke(), event))) {
            busy = queue;
        }
    }
    return busy;
}

void ProximityRelay::note(const Event& event, bool isGuess)
{
    if (EventQueue* const busy = busyQueue(event)) {
        busy->post(event);
        return;
    }
    for (EventQueue* const queue : std::vector(mQueues)) {
        if (std::ranges::find(mQueues, queue)
            != mQueues.end()) { // a view's events may delete views
            queue->handOver();
        }
    }
    if (!isGuess || !isKnown(event)) {
        tell(event);
    }
}

bool ProximityRelay::isKnown(const Event& event) const
{
    return mInRange && isSameDevice(*mInRange, event);
}

void ProximityRelay::tell(const Event& event)
{
    const auto responder = std::find_if(mResponders.rbegin(), mResponders.rend(),
        [](const ProximityResponder* candidate) { return candidate->mWidget.isVisible(); });
    if (responder == mResponders.rend()) {
        return;
    }
    if (event.isEnteringProximity) {
        mInRange = event;
    } else if (isKnown(event)) {
        mInRange.reset();
    }
    (*responder)->tabletProximity(std::make_shared<const Event>(event));
}

} // namespace platform
