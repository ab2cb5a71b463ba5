// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TabletSettings.h"

#include <QByteArray>
#include <QRectF>
#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

/**
 * @file
 * Where the virtual pen points. Its whole range covers all displays together, because the desktop
 * does so by itself or is told to; on X11, it covers the whole X screen, which may be larger. Which
 * part of that the tablet reaches is computed here and nowhere else, so that nothing is scaled
 * twice. All rectangles are in points from the upper left corner of the main display.
 */

/** A display, as the panel sees it. */
struct DesktopDisplay {
    QString name; ///< of its connector, such as "DP-1"
    QRectF bounds;
    int turns = 0; ///< quarter turns by which the desktop has rotated it

    bool operator==(const DesktopDisplay&) const = default;
};

/** All displays, in the order in which the panel lists them; none if they are not known. */
using Desktop = std::vector<DesktopDisplay>;

/** The rectangle around all displays; empty without any. */
QRectF boundsOf(const Desktop& desktop);

/** The display that an area covers, of whole points or not; nothing if it is not one display's. */
std::optional<std::size_t> displayAt(const Desktop& desktop, const QRectF& area);

/**
 * The display after the one that an area covers, and after the last one the first; also the first
 * for an area that is not one display's. Nothing without displays.
 */
std::optional<std::size_t> displayAfter(const Desktop& desktop, const QRectF& area);

/** What the process that watches the desktop reports; see DisplayReport.h. */
struct DesktopReport {
    Desktop displays;
    QRectF covered; ///< by the virtual pen's whole range

    bool operator==(const DesktopReport&) const = default;
};

/** A line with the report, with its end. */
QByteArray toLine(const DesktopReport& report);

/** Reads such a line; nothing if it is no report of at least one display. */
std::optional<DesktopReport> reportFrom(const QByteArray& line);

/**
 * The part of the virtual pen's range that points at an area of the desktop, up to the beginning of
 * its last points, each side from 0 to 1. For an area on no display, such as that of a display that
 * is gone, the part that points at all displays. The whole range if the desktop is not known, or if
 * the pen covers nothing of the area, as may be while displays change.
 */
TabletRect targetOf(const QRectF& area, const DesktopReport& desktop);
