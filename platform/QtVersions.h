// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLibraryInfo>
#include <QMouseEvent>
#include <QTabletEvent>

/**
 * @file
 * The differences between Qt 5 and Qt 6. The functions here work with both.
 */
namespace platform {

#if QT_VERSION_MAJOR >= 6

using TabletDeviceType = QInputDevice::DeviceType;
using PointerType = QPointingDevice::PointerType;

/** The event's position in its widget. */
inline QPointF placeOf(const QSinglePointEvent& event)
{
    return event.position();
}

/** The event's position on the desktop. */
inline QPointF globalPlaceOf(const QSinglePointEvent& event)
{
    return event.globalPosition();
}

/** The pen's serial number; 0 or less if it has none. */
inline qint64 uniqueIDOf(const QTabletEvent& event)
{
    return event.pointingDevice()->uniqueId().numericId();
}

/** The folder of Qt's own translations. */
inline QString translationsFolder()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

#else

using TabletDeviceType = QTabletEvent::TabletDevice;
using PointerType = QTabletEvent::PointerType;

inline QPointF placeOf(const QTabletEvent& event)
{
    return event.posF();
}

inline QPointF placeOf(const QMouseEvent& event)
{
    return event.localPos();
}

inline QPointF globalPlaceOf(const QTabletEvent& event)
{
    return event.globalPosF();
}

inline QPointF globalPlaceOf(const QMouseEvent& event)
{
    return event.screenPos();
}

inline qint64 uniqueIDOf(const QTabletEvent& event)
{
    return event.uniqueId();
}

inline QString translationsFolder()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}

#endif

} // namespace platform
