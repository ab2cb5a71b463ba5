// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Mapping.h"

#include "Displays.h"

#include <QGuiApplication>

#include <algorithm>
#include <vector>

QRectF WholeDesktop::covered() const
{
    QRectF all;
    // A driver that runs without a desktop knows no displays.
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
        return all;
    }
    const platform::Displays& displays = platform::displays();
    for (const platform::DisplayID display :
        displays.activeDisplays().value_or(std::vector<platform::DisplayID>())) {
        const platform::Rect bounds = displays.bounds(display);
        all |= QRectF(bounds.x, bounds.y, bounds.width, bounds.height);
    }
    return all;
}

TabletRect targetOf(const QRectF& area, const QRectF& covered)
{
    if (area.isEmpty() || covered.isEmpty()) {
        return {0, 0, 1, 1};
    }
    const auto across = [&](double x) {
        return std::clamp((x - covered.left()) / covered.width(), 0.0, 1.0);
    };
    const auto down = [&](double y) {
        return std::clamp((y - covered.top()) / covered.height(), 0.0, 1.0);
    };
    const TabletRect target{
        across(area.left()), down(area.top()), across(area.right()), down(area.bottom())};
    // An area on a display that is gone.
    return target.width() > 0 && target.height() > 0 ? target : TabletRect{0, 0, 1, 1};
}
