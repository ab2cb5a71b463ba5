// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PenEvents.h"

#include <QTimer>

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

class PenView;
class ProximityRelay;

/**
 * Queues the events of pens and mouse for a view: in order, and in well-formed strokes.
 *
 * A stroke is a press, what the same device does next, and its release; a mouse may have been
 * pressed elsewhere. Events of other devices wait for its end, so that strokes never mix. A missing
 * release is synthesised when the device leaves, presses again or moves without its button, and
 * when the view is hidden.
 *
 * Events are delivered when control returns to the event loop, so that all that have arrived are
 * available together. Main thread only.
 */
class EventQueue {
public:
    explicit EventQueue(PenView& view);
    ~EventQueue();

    /** Takes an event of the view, or a proximity event during a stroke. */
    void post(Event event);
    /** Synthesises the release of an unfinished stroke. */
    void endStroke();
    /** The last event of the unfinished stroke. */
    const std::optional<Event>& stroke() const { return mStroke; }
    /** Delivers at once what has arrived. */
    void handOver();

    /**
     * Takes the next event whose type is in the mask. Others stay in the queue; a press or a
     * release is never skipped.
     */
    [[nodiscard]] std::optional<Event> nextEventMatchingMask(std::uint32_t mask);

    /** From now on, the view is only notified that there are events, and takes them itself. */
    void beginTracking() { mIsTracking = true; }
    void endTracking() { mIsTracking = false; }

private:
    void deliver(const Event& event);

    PenView& mView;
    std::shared_ptr<ProximityRelay> mRelay;
    std::deque<Event> mQueue;
    std::vector<Event> mParked; ///< events of devices other than the stroke's
    std::optional<Event> mStroke;
    bool mIsTracking = false;
    QTimer mHandOver;
};

} // namespace platform
