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
 * The arithmetic of the display page. Display rectangles are in global display points, y growing
 * downwards; the view's are in its own points, y growing upwards.
 */

/** Most displays that the panel knows. */
inline constexpr std::uint32_t kQVMaxDisplays = 4;

/** The tablet's whole active area in the page's picture, in the view's points. */
inline constexpr platform::Rect kQVPictureArea{275, 33, 86, 47};

/**
 * The smallest rectangle around all of them; of fewer than two, the first itself. Its edges are
 * found in single precision.
 *
 * @param rects at least one
 */
platform::Rect QVBoundingRect(std::span<const platform::Rect> rects);

/**
 * A display's miniature in the view, at a fifteenth of its size. The main display's upper left
 * corner lies at a third of the view's width plus 30, and at 590 minus the view's height.
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

/** Stores the part of the tablet that is used. */
void QVSetUsedArea(tagQVTabletInfo& info, const QVTabletArea& area);

/**
 * The lower right corner in the picture of an area in use, whose upper left corner is drawn at that
 * of the whole area. Whole points: quotients are cut off. Where the whole area has no width or no
 * height, the picture's own edge.
 */
QVPoint QVPictureCorner(const QVTabletArea& used, const QVTabletArea& whole);

/**
 * The largest part of the tablet, from its upper left corner, that has the shape of a display, so
 * that circles stay round.
 *
 * @param width of the mapped area, in display points
 * @param height of the mapped area, in display points
 * @return nothing when that would be divided by a side that is zero: by the height where the tablet
 * is as wide as the display or wider, compared with its height; else by the width
 */
std::optional<QVTabletArea> QVAspectFit(
    const QVTabletArea& whole, std::int16_t width, std::int16_t height);
