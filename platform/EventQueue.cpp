// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "EventQueue.h"

#include "PenView.h"
#include "ProximityRelay.h"
#include "Service.h"

#include <QPointer>

#include <utility>

namespace platform {

namespace {

bool isButtonEvent(EventType type)
{
    return type == EventType::LeftMouseDown || type == EventType::LeftMouseUp;
}

} // namespace

EventQueue::EventQueue(PenView& view)
    : mView(view)
    , mRelay(sharedInstance<ProximityRelay>())
{
    mRelay->mQueues.push_back(this);
    mHandOver.setSingleShot(true);
    mHandOver.setInterval(0);
    mHandOver.callOnTimeout([this] { handOver(); });
}

EventQueue::~EventQueue()
{
    std::erase(mRelay->mQueues, this);
    for (const Event& event : mParked) {
        mQueue.push_back(event);
    }
    for (const Event& event : mQueue) {
        if (event.type == EventType::TabletProximity) { // not the view's own
            QTimer::singleShot(0, mRelay.get(), [&relay = *mRelay, event] { relay.tell(event); });
        }
    }
}

void EventQueue::post(Event event)
{
    if (mStroke && !isSameDevice(*mStroke, event)) {
        mParked.push_back(event);
        return;
    }
    const bool isLeaving = event.type == EventType::TabletProximity && !event.isEnteringProximity;
    const bool isWithoutButton =
        event.type == EventType::LeftMouseDown || event.type == EventType::MouseMoved;
    if (mStroke && (isLeaving || isWithoutButton)) {
        endStroke();
        post(event); // events that waited for the end of the stroke come first
        return;
    }
    const bool isDrawing =
        event.type == EventType::LeftMouseDragged || event.type == EventType::TabletPoint;
    if (!mStroke && isDrawing && event.subtype == kTabletPointSubtype) {
        event.type = EventType::LeftMouseDown; // it was pressed before it left, or elsewhere
    }
    mQueue.push_back(event);
    // A drag that was pressed elsewhere also counts, since its end may be awaited.
    if (event.type == EventType::LeftMouseDown || event.type == EventType::LeftMouseDragged
        || (mStroke && event.type != EventType::TabletProximity)) {
        mStroke = event;
    }
    if (!mHandOver.isActive()) {
        mHandOver.start();
    }
    if (event.type == EventType::LeftMouseUp) {
        mStroke.reset();
        for (const Event& parked : std::exchange(mParked, {})) {
            post(parked);
        }
    }
}

void EventQueue::endStroke()
{
    if (mStroke) {
        Event up = *mStroke;
        up.type = EventType::LeftMouseUp;
        up.pressure = 0;
        post(up);
    }
}

std::optional<Event> EventQueue::nextEventMatchingMask(std::uint32_t mask)
{
    for (auto waiting = mQueue.begin(); waiting != mQueue.end(); ++waiting) {
        const EventType type = waiting->type;
        if ((eventMask(type) & mask) != 0) {
            const Event event = *waiting;
            mQueue.erase(waiting);
            return event;
        }
        if (isButtonEvent(type)) {
            break;
        }
    }
    return std::nullopt;
}

void EventQueue::handOver()
{
    const QPointer<QWidget> guard(&mView); // its events may delete it
    while (!guard.isNull() && !mQueue.empty()) {
        if (!mIsTracking) {
            const Event event = mQueue.front();
            mQueue.pop_front();
            deliver(event);
            continue;
        }
        mView.trackEvents();
        if (guard.isNull() || mIsTracking) {
            return;
        }
    }
}

void EventQueue::deliver(const Event& event)
{
    if (event.subtype == kTabletPointSubtype && !mRelay->isKnown(event)) {
        const QPointer<QWidget> guard(&mView);
        const std::shared_ptr<ProximityRelay> relay = mRelay;
        relay->tell(proximityEvent(event)); // another pen may have been announced since
        if (guard.isNull()) {
            return;
        }
    }
    switch (event.type) {
    case EventType::LeftMouseDown:
        mView.mouseDown(event);
        break;
    case EventType::LeftMouseUp:
        mView.mouseUp(event);
        break;
    case EventType::MouseMoved:
        mView.mouseMoved(event);
        break;
    case EventType::LeftMouseDragged:
        mView.mouseDragged(event);
        break;
    case EventType::TabletPoint:
        mView.tabletPoint(event);
        break;
    case EventType::TabletProximity:
        mRelay->tell(event);
        break;
    }
}

} // namespace platform
