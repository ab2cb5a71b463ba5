// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <cstdint>
#include <optional>

class QMouseEvent;
class QTabletEvent;
class QWidget;

/**
 * @file
 * What pen and mouse do, as one kind of value. The numbers are those of the events that the panel's
 * views were made for.
 */
namespace platform {

enum class EventType : std::int32_t {
    LeftMouseDown = 1,
    LeftMouseUp = 2,
    MouseMoved = 5, ///< no button is down, or the pen is above the tablet
    LeftMouseDragged = 6,
    TabletPoint = 23, ///< the pen presses otherwise than before, at the same place
    TabletProximity = 24, ///< pen or eraser comes into the tablet's reach, or leaves it
};

/** What a mask of event types has for this one. */
constexpr std::uint32_t eventMask(EventType type)
{
    return 1U << static_cast<std::uint32_t>(type);
}

/** Of an event of the mouse's types that the pen has made. */
inline constexpr std::int16_t kTabletPointSubtype = 1;

enum class PointingDeviceType : std::uint8_t { Unknown = 0, Pen = 1, Cursor = 2, Eraser = 3 };

/** Of a mouse, only type, places and pressure are set; of TabletProximity, only what the device is.
 */
struct Event {
    EventType type = EventType::MouseMoved;
    std::int16_t subtype = 0;
    QPointF locationInWindow; ///< in pixels from the window's lower left corner, y growing upwards
    float pressure = 0; ///< 0 to 1; of a mouse, 1 while its button is down
    QPointF tilt; ///< degrees from upright, to the right and towards the user
    float rotation = 0; ///< degrees
    std::int32_t absoluteX = 0; ///< on the desktop; the window system tells no tablet units
    std::int32_t absoluteY = 0;

    std::uint16_t deviceID = 0; ///< tells pens apart while they are in reach; 0 for a mouse
    bool isEnteringProximity = false;
    PointingDeviceType pointingDeviceType = PointingDeviceType::Unknown;
    std::uint64_t uniqueID = 0; ///< the pen's serial number; 0 where it has none
};

/**
 * What Qt tells of the pen; nothing when it is a button at the pen's side. What no pen can do is
 * mended: a pressure is brought into 0 to 1, a place that is none becomes the origin, and one a
 * million pixels away is far enough.
 *
 * @param view what the event was sent to
 * @param downAt where the pen was when it was down in the view; kept for the next event
 */
std::optional<Event> penEvent(
    const QTabletEvent& event, const QWidget& view, std::optional<QPointF>& downAt);

/** What the mouse does in the view; the type is one of the mouse's own. */
Event mouseEvent(const QMouseEvent& event, const QWidget& view, EventType type);

/** Whether it is the same end of the same pen, or the mouse. */
bool isSameDevice(const Event& one, const Event& other);

/** That a pen comes into reach or leaves it, from any event of this pen. */
Event proximityEvent(const QTabletEvent& event, bool isEntering);

/** That the pen that made the event is in range. */
Event proximityEvent(const Event& event);

} // namespace platform
