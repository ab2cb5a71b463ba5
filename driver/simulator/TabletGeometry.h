// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVCalibration.h"
#include "QVMonitorGeometry.h"
#include "QVTabletModels.h"
#include "tagQVTabletInfo.h"

#include <QRectF>

/**
 * @file
 * Maps a tablet's surface to a widget. The upper left corner of the surface has the lowest x and y
 * of its range; both are in tablet units, x rightwards and y downwards.
 */

/**
 * The range of a model's surface: the one in its settings, or the model's default if they have none
 * or belong to another model.
 *
 * @param settings null if there are none
 */
QVTabletArea tabletRange(const QVTabletModel& model, const tagQVTabletInfo* settings);

/** The largest centred rectangle with the range's proportions within a rectangle. */
QRectF surfaceRect(const QRectF& place, const QVTabletArea& range);

/** Converts a widget position to tablet units; outside the surface, to the nearest edge. */
QVTabletPoint toTablet(const QPointF& place, const QRectF& surface, const QVTabletArea& range);

/** Converts a point of the tablet to a widget position. */
QPointF toPlace(const QVTabletPoint& point, const QRectF& surface, const QVTabletArea& range);

/**
 * Moves a point by steps of a hundredth of the range's width, within the range.
 *
 * @param right number of steps, negative to the left
 * @param down number of steps, negative upwards
 */
QVTabletPoint moved(const QVTabletPoint& point, int right, int down, const QVTabletArea& range);

/** Converts an area of the tablet, clipped to the surface, to the widget; may be empty. */
QRectF areaRect(const QVTabletArea& area, const QRectF& surface, const QVTabletArea& range);
