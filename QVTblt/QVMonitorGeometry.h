// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"
#include "QVPoint.h"
#include "tagQVTabletInfo.h"

#include <cstdint>
#include <optional>
#include <span>

/**
 * @file
 * The arithmetic of the display page, as pure functions. Display rectangles are in global display
 * points, with y growing downwards; the view's are in its own points, with y growing upwards.
 */

/** Maximum number of displays that the panel supports. */
inline constexpr std::uint32_t kQVMaxDisplays = 4;

/** The tablet's whole active area in the page's picture, in the view's points. */
inline constexpr platform::Rect kQVPictureArea{275, 33, 86, 47};

/**
 * The bounding rectangle; of a single rectangle, that itself. Its edges are computed in single
 * precision.
 *
 * @param rects at least one
 */
platform::Rect QVBoundingRect(std::span<const platform::Rect> rects);

/**
 * A display's miniature in the view, at a fifteenth of its size. The main display's upper left
 * corner is at a third of the view's width plus 30, and at 590 minus the view's height.
 */
platform::Rect QVMiniature(const platform::Rect& display, const platform::Rect& bounds);

/** A range of the tablet, in tablet units. */
struct QVTabletArea {
    std::uint16_t xmin;
    std::uint16_t xmax;
    std::uint16_t ymin;
    std::uint16_t ymax;

    bool operator==(const QVTabletArea&) const = default;
};

/** Stores the screen area that the tablet is mapped to: of each whole number, the low 16 bits. */
void QVSetMappedArea(tagQVTabletInfo& info, const platform::Rect& area);

/**
 * Stores the mapped area: the chosen display or all of them; with a single display, that one,
 * whatever is chosen.
 *
 * @param displays their rectangles, in order; only as many count as the panel supports
 * @return false, with the area unchanged, if there is no display with that number, or none at all
 */
bool QVMapChosenDisplay(tagQVTabletInfo& info, std::span<const platform::Rect> displays);

/** The whole tablet, as the driver has it. */
QVTabletArea QVWholeArea(const tagQVTabletInfo& info);

/** The part of the tablet that maps onto the displays. */
QVTabletArea QVUsedArea(const tagQVTabletInfo& info);

/** Stores the used part of the tablet. */
void QVSetUsedArea(tagQVTabletInfo& info, const QVTabletArea& area);

/**
 * The lower right corner in the picture of a used area, whose upper left corner is drawn at that of
 * the whole area. In whole points: quotients are truncated. If the whole area has no width or no
 * height, the picture's own edge.
 */
QVPoint QVPictureCorner(const QVTabletArea& used, const QVTabletArea& whole);

/**
 * The largest part of the tablet, from its upper left corner, with the proportions of a display, so
 * that circles stay round.
 *
 * @param width of the mapped area, in display points
 * @param height of the mapped area, in display points
 * @return nothing if the divisor would be zero: the height if the tablet is at least as wide as the
 *     display, relative to the height; otherwise the width
 */
std::optional<QVTabletArea> QVAspectFit(
    const QVTabletArea& whole, std::int16_t width, std::int16_t height);
