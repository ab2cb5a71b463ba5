// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TabletSettings.h"

#include <QRectF>

/** Says which part of the desktop the whole range of the virtual pen covers. */
class Mapping {
public:
    virtual ~Mapping() = default;

    /**
     * The rectangle that it covers, in points from the upper left corner of the main display; empty
     * if that is not known.
     */
    virtual QRectF covered() const = 0;
};

/** As desktops do that are told nothing: the virtual pen covers all displays together. */
class WholeDesktop final : public Mapping {
public:
    QRectF covered() const override;
};

/**
 * The part of the virtual pen's range that points at an area of the desktop, each side from 0 to 1.
 * Without a known desktop, all of it.
 *
 * @param area in points from the upper left corner of the main display
 * @param covered what the whole range covers
 */
TabletRect targetOf(const QRectF& area, const QRectF& covered);
