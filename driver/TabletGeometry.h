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
 * Where a tablet's surface lies in a widget. The upper left corner of the surface is the lowest x
 * and the lowest y of its range; both count in tablet units, rightwards and downwards.
 */

/**
 * The range of a model's surface: what its settings say, and what the model has by itself where
 * they say nothing, or are those of another model.
 *
 * @param settings null when there are none
 */
QVTabletArea tabletRange(const QVTabletModel& model, const tagQVTabletInfo* settings);

/** The largest rectangle with the range's proportions within a place, in its middle. */
QRectF surfaceRect(const QRectF& place, const QVTabletArea& range);

/** The point of the tablet that is shown at a place; beside the surface, the nearest of its edge.
 */
QVTabletPoint toTablet(const QPointF& place, const QRectF& surface, const QVTabletArea& range);

/** The place that shows a point of the tablet. */
QPointF toPlace(const QVTabletPoint& point, const QRectF& surface, const QVTabletArea& range);

/**
 * Moves a point by steps of a hundredth of the range's width, within the range.
 *
 * @param right steps, negative ones to the left
 * @param down steps, negative ones up
 */
QVTabletPoint moved(const QVTabletPoint& point, int right, int down, const QVTabletArea& range);

/** The place that shows an area of the tablet, as far as it lies on the surface; maybe nothing. */
QRectF areaRect(const QVTabletArea& area, const QRectF& surface, const QVTabletArea& range);
