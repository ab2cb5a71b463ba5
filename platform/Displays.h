// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <QObject>
#include <QRect>
#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

/**
 * @file
 * The displays of the desktop, in the order in which the desktop lists them.
 *
 * Global display coordinates have their origin at the upper left corner of the main display, with y
 * growing downwards. A point is the unit in which the window system arranges displays: on X11 a
 * pixel of the X screen, on Wayland a logical pixel of the compositor. So adjacent displays touch,
 * however each of them is scaled.
 */
class QScreen;

namespace platform {

/** Identifies an active display until the displays change. */
using DisplayID = std::uint32_t;

/** The flag of a notification that displays are about to change; all others mean that they have. */
inline constexpr std::uint32_t kDisplayBeginConfiguration = 1;
/** The flag of a notification that displays have changed. */
inline constexpr std::uint32_t kDisplaySetMode = 8;

/** The monitor behind a display. What the window system does not know is empty. */
struct Monitor {
    QString maker{};
    QString product{};
    QString serial{};
    QString connector{}; ///< such as "DP-1"

    bool operator==(const Monitor&) const = default;
};

/** Main thread only. */
class Displays : public QObject {
    Q_OBJECT

public:
    /** The number of active displays; nothing if the window system does not know. */
    virtual std::optional<std::uint32_t> activeDisplayCount() const = 0;

    /** The active displays; nothing if the window system does not know. */
    virtual std::optional<std::vector<DisplayID>> activeDisplays() const = 0;

    /** A display's rectangle in global display coordinates; empty for an unknown display. */
    virtual Rect bounds(DisplayID display) const = 0;

    /** The rectangles of the active displays; none if the window system does not know them. */
    std::vector<Rect> activeBounds() const;

    /** Whether it is the main display, whose upper left corner is the origin. */
    virtual bool isMain(DisplayID display) const = 0;

    /** A display's monitor; empty for an unknown display. */
    virtual Monitor monitor(DisplayID /*display*/) const { return {}; }

    /**
     * How many pixels a display's picture has, however it is scaled; empty if that is not known.
     * Where only the compositor knows, blocks for its answer.
     */
    virtual QSize pixels(DisplayID /*display*/) const { return {}; }

    /** The display's screen; null if it has none. */
    virtual QScreen* screen(DisplayID /*display*/) const { return nullptr; }

Q_SIGNALS:
    /**
     * Displays are connected, disconnected, moved or rotated: emitted for each display once when a
     * change begins, and once when all have settled.
     */
    void reconfigured(platform::DisplayID display, std::uint32_t flags);
};

/** Whether this program shows its windows on a Wayland desktop, and not on X11. */
bool isOnWayland();

/** A screen's rectangle in global display coordinates. */
Rect screenBounds(const QScreen& screen);

/**
 * The geometry with which a window covers a part of the desktop, scaled for the screen that
 * contains its middle.
 *
 * @param part in global display coordinates
 */
QRect windowGeometry(const Rect& part);

/** Returns the desktop's displays, or their replacement by a ServiceScope<Displays>. */
Displays& displays();

} // namespace platform
