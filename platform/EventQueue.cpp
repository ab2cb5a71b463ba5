// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "EventQueue.h"

#include "PenView.h"

#include <QCoreApplication>
#include <QTabletEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

bool isPen(const Event& event)
{
    return event.subtype == kTabletPointSubtype || event.type == EventType::TabletProximity;
}

bool isSameDevice(const Event& one, const Event& other)
{
    return isPen(one) == isPen(other) && one.uniqueID == other.uniqueID
        && one.pointingDeviceType == other.pointingDeviceType;
}

bool isButtonEvent(EventType type)
{
    return type == EventType::LeftMouseDown || type == EventType::LeftMouseUp;
}

} // namespace

ProximityResponder::ProximityResponder(const QWidget& widget)
    : mWidget(widget)
    , mQueue(EventQueue::shared())
{
    mQueue->mResponders.push_back(this);
}

ProximityResponder::~ProximityResponder()
{
    std::erase(mQueue->mResponders, this);
}

std::shared_ptr<EventQueue> EventQueue::shared()
{
    static std::weak_ptr<EventQueue> present;
    std::shared_ptr<EventQueue> queue = present.lock();
    if (!queue) {
        queue.reset(new EventQueue); // NOLINT(*-owning-memory): its constructor is private
        present = queue;
    }
    return queue;
}

EventQueue::EventQueue()
{
    QCoreApplication::instance()->installEventFilter(this);
    mHandOver.setSingleShot(true);
    mHandOver.setInterval(0);
    connect(&mHandOver, &QTimer::timeout, this, &EventQueue::dispatch);
}

bool EventQueue::eventFilter(QObject* watched, QEvent* event)
{
    const auto tablet = [event]() -> const QTabletEvent& {
        return *static_cast<QTabletEvent*>(event); // NOLINT(*-downcast): its type says so
    };
    switch (event->type()) {
    case QEvent::TabletEnterProximity:
        noteProximity(tablet(), true);
        break;
    case QEvent::TabletLeaveProximity:
        noteProximity(tablet(), false);
        break;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        // Not every tablet's driver tells of a pen before the pen does something.
        noteAnyPen(tablet());
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void EventQueue::noteProximity(const QTabletEvent& tablet, bool isEntering)
{
    enqueue({nullptr, proximityEvent(tablet, isEntering)});
}

void EventQueue::noteAnyPen(const QTabletEvent& tablet)
{
    const Event event = proximityEvent(tablet, true);
    const bool isIdle = mQueue.empty() && mParked.empty();
    const std::optional<Event>& last = isIdle ? mInReach : mLastInQueue;
    if (!last || !isSameDevice(*last, event)) {
        enqueue({nullptr, event, true});
    }
}

void EventQueue::post(PenView& view, const Event& event)
{
    enqueue({&view, event});
}

void EventQueue::endStroke(const PenView& view)
{
    if (mStroke && mStroke->view == &view) {
        release();
    }
}

void EventQueue::forget(const PenView& view)
{
    endStroke(view);
    const auto isForView = [&view](const Waiting& waiting) { return waiting.view == &view; };
    std::erase_if(mQueue, isForView);
    std::erase_if(mParked, isForView);
    if (mTracking == &view) {
        endTracking();
    }
}

void EventQueue::release()
{
    Waiting up = *mStroke;
    up.event.type = EventType::LeftMouseUp;
    up.event.pressure = 0;
    enqueue(up);
}

void EventQueue::enqueue(Waiting waiting)
{
    Event& event = waiting.event;
    if (mStroke && !isSameDevice(mStroke->event, event)) {
        mParked.push_back(waiting);
        return;
    }
    const bool isLeaving = event.type == EventType::TabletProximity && !event.isEnteringProximity;
    const bool isWithoutButton =
        event.type == EventType::LeftMouseDown || event.type == EventType::MouseMoved;
    if (mStroke && (isLeaving || isWithoutButton)) {
        release();
        enqueue(waiting); // what has waited for the stroke's end comes first
        return;
    }
    const bool isDrawing =
        event.type == EventType::LeftMouseDragged || event.type == EventType::TabletPoint;
    if (!mStroke && isDrawing && isPen(event)) {
        event.type = EventType::LeftMouseDown; // it has pressed before it left, or elsewhere
    }
    mQueue.push_back(waiting);
    if (event.type == EventType::TabletProximity) {
        mLastInQueue = event.isEnteringProximity ? std::optional(event) : std::nullopt;
    }
    // A drag whose press was elsewhere is one too, of which somebody may await the end.
    if (event.type == EventType::LeftMouseDown || event.type == EventType::LeftMouseDragged
        || (mStroke && event.type != EventType::TabletProximity)) {
        mStroke = waiting;
    }
    if (!mHandOver.isActive()) {
        mHandOver.start();
    }
    if (event.type == EventType::LeftMouseUp) {
        mStroke.reset();
        for (const Waiting& parked : std::exchange(mParked, {})) {
            enqueue(parked);
        }
    }
}

std::optional<Event> EventQueue::nextEventMatchingMask(std::uint32_t mask)
{
    for (auto waiting = mQueue.begin(); waiting != mQueue.end(); ++waiting) {
        const EventType type = waiting->event.type;
        if ((eventMask(type) & mask) != 0) {
            const Event event = waiting->event;
            mQueue.erase(waiting);
            return event;
        }
        if (isButtonEvent(type)) {
            break;
        }
    }
    return std::nullopt;
}

void EventQueue::beginTracking(PenView& view)
{
    mTracking = &view;
}

void EventQueue::endTracking()
{
    mTracking = nullptr;
}

void EventQueue::dispatch()
{
    const std::shared_ptr<EventQueue> guard = shared(); // the last view may end
    while (!mQueue.empty()) {
        if (mTracking != nullptr) {
            mTracking->trackEvents();
            if (mTracking != nullptr) {
                return;
            }
            continue;
        }
        const Waiting waiting = mQueue.front();
        mQueue.pop_front();
        deliver(waiting);
    }
}

void EventQueue::deliver(const Waiting& waiting)
{
    if (waiting.event.type == EventType::TabletProximity) {
        const bool isNews = !mInReach || !isSameDevice(*mInReach, waiting.event);
        if (isNews || !waiting.isGuess) {
            deliverProximity(waiting.event);
        }
        return;
    }
    switch (waiting.event.type) {
    case EventType::LeftMouseDown:
        waiting.view->mouseDown(waiting.event);
        break;
    case EventType::LeftMouseUp:
        waiting.view->mouseUp(waiting.event);
        break;
    case EventType::MouseMoved:
        waiting.view->mouseMoved(waiting.event);
        break;
    case EventType::LeftMouseDragged:
        waiting.view->mouseDragged(waiting.event);
        break;
    case EventType::TabletPoint:
        waiting.view->tabletPoint(waiting.event);
        break;
    case EventType::TabletProximity:
        break;
    }
}

void EventQueue::deliverProximity(const Event& event)
{
    const auto responder = std::find_if(mResponders.rbegin(), mResponders.rend(),
        [](const ProximityResponder* candidate) { return candidate->mWidget.isVisible(); });
    if (responder != mResponders.rend()) {
        if (event.isEnteringProximity) {
            mInReach = event;
        } else if (mInReach && isSameDevice(*mInReach, event)) {
            mInReach.reset();
        }
        (*responder)->tabletProximity(std::make_shared<const Event>(event));
    }
}

} // namespace platform
