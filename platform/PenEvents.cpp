// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PenEvents.h"

#include "QtVersions.h"

#include <QWidget>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

constexpr double kFarthest = 1e6;

double mended(double coordinate)
{
    return std::isnan(coordinate) ? 0.0 : std::clamp(coordinate, -kFarthest, kFarthest);
}

float finite(double value)
{
    return std::isfinite(value) ? static_cast<float>(value) : 0.0F;
}

template <class QtEvent>
void takePlaces(Event& taken, const QtEvent& event, const QWidget& view)
{
    const QPointF place = placeOf(event);
    const QPointF corner = view.mapTo(view.window(), QPoint(0, 0));
    taken.locationInWindow = {
        mended(corner.x() + place.x()), view.window()->height() - mended(corner.y() + place.y())};
    const QPointF global = globalPlaceOf(event);
    taken.absoluteX = static_cast<std::int32_t>(std::lround(mended(global.x())));
    taken.absoluteY = static_cast<std::int32_t>(std::lround(mended(global.y())));
}

bool isOfPen(const Event& event)
{
    return event.subtype == kTabletPointSubtype || event.type == EventType::TabletProximity;
}

void takeDevice(Event& taken, const QTabletEvent& event)
{
    const qint64 uniqueID = uniqueIDOf(event);
    taken.uniqueID = uniqueID <= 0 ? 0 : static_cast<std::uint64_t>(uniqueID);
    taken.deviceID = static_cast<std::uint16_t>(taken.uniqueID);
    const PointerType type = event.pointerType();
    taken.pointingDeviceType = type == PointerType::Eraser ? PointingDeviceType::Eraser
        : type == PointerType::Pen                         ? PointingDeviceType::Pen
        : type == PointerType::Cursor                      ? PointingDeviceType::Cursor
                                                           : PointingDeviceType::Unknown;
}

} // namespace

std::optional<Event> penEvent(
    const QTabletEvent& event, const QWidget& view, std::optional<QPointF>& downAt)
{
    const bool isMove = event.type() == QEvent::TabletMove;
    if (!isMove && event.button() != Qt::LeftButton) {
        return std::nullopt;
    }
    Event taken;
    taken.subtype = kTabletPointSubtype;
    takePlaces(taken, event, view);
    takeDevice(taken, event);
    const double pressure = event.pressure();
    taken.pressure =
        std::isnan(pressure) ? 0.0F : static_cast<float>(std::clamp(pressure, 0.0, 1.0));
    taken.tilt = QPointF(finite(event.xTilt()), finite(event.yTilt()));
    taken.rotation = finite(event.rotation());

    const bool isDown =
        event.type() == QEvent::TabletPress || (isMove && event.buttons().testFlag(Qt::LeftButton));
    const std::optional<QPointF> before = downAt;
    downAt = isDown ? std::optional(taken.locationInWindow) : std::nullopt;
    if (!isMove) {
        taken.type = isDown ? EventType::LeftMouseDown : EventType::LeftMouseUp;
    } else if (isDown) {
        taken.type = before == downAt ? EventType::TabletPoint : EventType::LeftMouseDragged;
    }
    return taken;
}

Event mouseEvent(const QMouseEvent& event, const QWidget& view, EventType type)
{
    Event taken;
    taken.type = type;
    takePlaces(taken, event, view);
    const bool isDown = type == EventType::LeftMouseDown || type == EventType::LeftMouseDragged;
    taken.pressure = isDown ? 1.0F : 0.0F;
    return taken;
}

bool isSameDevice(const Event& one, const Event& other)
{
    return isOfPen(one) == isOfPen(other) && one.uniqueID == other.uniqueID
        && one.pointingDeviceType == other.pointingDeviceType;
}

Event proximityEvent(const QTabletEvent& event, bool isEntering)
{
    Event taken;
    taken.type = EventType::TabletProximity;
    taken.isEnteringProximity = isEntering;
    takeDevice(taken, event);
    return taken;
}

Event proximityEvent(const Event& event)
{
    Event taken;
    taken.type = EventType::TabletProximity;
    taken.isEnteringProximity = true;
    taken.deviceID = event.deviceID;
    taken.pointingDeviceType = event.pointingDeviceType;
    taken.uniqueID = event.uniqueID;
    return taken;
}

} // namespace platform
