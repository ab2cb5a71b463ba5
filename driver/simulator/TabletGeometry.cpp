// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kStepsAcross = 100;

bool isEmpty(const QVTabletArea& range)
{
    return range.xmin >= range.xmax || range.ymin >= range.ymax;
}

/** Interpolates between two numbers, without going beyond them. */
std::uint16_t between(std::uint16_t low, std::uint16_t high, double fraction)
{
    return static_cast<std::uint16_t>(
        std::lround(low + std::clamp(fraction, 0.0, 1.0) * (high - low)));
}

std::uint16_t clamped(int value, std::uint16_t low, std::uint16_t high)
{
    return static_cast<std::uint16_t>(std::clamp<int>(value, low, high));
}

} // namespace

QVTabletArea tabletRange(const QVTabletModel& model, const tagQVTabletInfo* settings)
{
    if (settings != nullptr && QVProductID(*settings) == model.productID) {
        const QVTabletArea range = QVWholeArea(*settings);
        if (!isEmpty(range)) {
            return range;
        }
    }
    return {0, model.tabletXmax, 0, model.tabletYmax};
}

QRectF surfaceRect(const QRectF& place, const QVTabletArea& range)
{
    if (isEmpty(range) || place.isEmpty()) {
        return {place.center(), QSizeF(0, 0)};
    }
    QSizeF size(range.xmax - range.xmin, range.ymax - range.ymin);
    size.scale(place.size(), Qt::KeepAspectRatio);
    QRectF surface(QPointF(), size);
    surface.moveCenter(place.center());
    return surface;
}

QVTabletPoint toTablet(const QPointF& place, const QRectF& surface, const QVTabletArea& range)
{
    if (surface.isEmpty()) {
        return {range.xmin, range.ymin};
    }
    const QPointF inside = place - surface.topLeft();
    return {between(range.xmin, range.xmax, inside.x() / surface.width()),
        between(range.ymin, range.ymax, inside.y() / surface.height())};
}

QPointF toPlace(const QVTabletPoint& point, const QRectF& surface, const QVTabletArea& range)
{
    if (isEmpty(range)) {
        return surface.topLeft();
    }
    return surface.topLeft()
        + QPointF((point.x - range.xmin) * surface.width() / (range.xmax - range.xmin),
            (point.y - range.ymin) * surface.height() / (range.ymax - range.ymin));
}

QVTabletPoint moved(const QVTabletPoint& point, int right, int down, const QVTabletArea& range)
{
    const int step = std::max((range.xmax - range.xmin) / kStepsAcross, 1);
    return {clamped(point.x + right * step, range.xmin, range.xmax),
        clamped(point.y + down * step, range.ymin, range.ymax)};
}

QRectF areaRect(const QVTabletArea& area, const QRectF& surface, const QVTabletArea& range)
{
    if (isEmpty(area)) {
        return {};
    }
    return QRectF(toPlace({area.xmin, area.ymin}, surface, range),
        toPlace({area.xmax, area.ymax}, surface, range))
        .intersected(surface);
}
