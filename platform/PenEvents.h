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
 * Pen and mouse events as one type of value. The numbers are those that the panel's views were
 * written for.
 */
namespace platform {

/** The type of an event. */
enum class EventType : std::int32_t {
    LeftMouseDown = 1,
    LeftMouseUp = 2,
    MouseMoved = 5, ///< no button is down, or the pen hovers
    LeftMouseDragged = 6,
    TabletPoint = 23, ///< the pen's pressure has changed at the same position
    TabletProximity = 24, ///< pen or eraser enters or leaves the range of the tablet
};

/** The bit of an event type in a mask. */
constexpr std::uint32_t eventMask(EventType type)
{
    return 1U << static_cast<std::uint32_t>(type);
}

/** The subtype of a mouse event that comes from the pen. */
inline constexpr std::int16_t kTabletPointSubtype = 1;

/** The end of the device that caused an event. */
enum class PointingDeviceType : std::uint8_t { Unknown = 0, Pen = 1, Cursor = 2, Eraser = 3 };

/** For a mouse, only type, positions and pressure are set; for TabletProximity, only the device. */
struct Event {
    EventType type = EventType::MouseMoved;
    std::int16_t subtype = 0;
    QPointF locationInWindow; ///< in pixels from the window's lower left corner, y growing upwards
    float pressure = 0; ///< 0 to 1; for a mouse, 1 while its button is down
    QPointF tilt; ///< degrees from upright, to the right and towards the user
    float rotation = 0; ///< degrees
    std::int32_t absoluteX = 0; ///< on the desktop; there are no tablet units here
    std::int32_t absoluteY = 0;

    std::uint16_t deviceID = 0; ///< distinguishes pens while they are in range; 0 for a mouse
    bool isEnteringProximity = false;
    PointingDeviceType pointingDeviceType = PointingDeviceType::Unknown;
    std::uint64_t uniqueID = 0; ///< the pen's serial number; 0 if it has none
};

/**
 * Converts Qt's pen event; nothing for a button on the pen. Impossible values are corrected: the
 * pressure is clamped to 0 to 1, an invalid position becomes the origin, and a position is clamped
 * to a million pixels.
 *
 * @param view the receiver of the event
 * @param downAt the last position of the pen while it was down in the view; updated for the next
 *     event
 */
std::optional<Event> penEvent(
    const QTabletEvent& event, const QWidget& view, std::optional<QPointF>& downAt);

/** Converts a mouse event in the view, of one of the mouse's types. */
Event mouseEvent(const QMouseEvent& event, const QWidget& view, EventType type);

/** Whether it is the same end of the same pen, or the mouse. */
bool isSameDevice(const Event& one, const Event& other);

/** Makes a proximity event from any event of the pen. */
Event proximityEvent(const QTabletEvent& event, bool isEntering);

/** Makes the event that this pen has come into range. */
Event proximityEvent(const Event& event);

} // namespace platform
