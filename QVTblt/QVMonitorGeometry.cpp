// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVMonitorGeometry.h"

#include "QVTruncate.h"

#include <algorithm>

using platform::Rect;

namespace {

constexpr double kMiniature = 15.0; ///< display points per point of the view

} // namespace

Rect QVBoundingRect(std::span<const Rect> rects)
{
    if (rects.size() < 2) {
        return rects.front();
    }
    const Rect& first = rects.front();
    auto left = static_cast<float>(first.x);
    auto top = static_cast<float>(first.y);
    auto right = static_cast<float>(first.x + first.width);
    auto bottom = static_cast<float>(first.y + first.height);
    for (const Rect& rect : rects.subspan(1)) {
        left = std::min(left, static_cast<float>(rect.x));
        top = std::min(top, static_cast<float>(rect.y));
        right = std::max(right, static_cast<float>(rect.x + rect.width));
        bottom = std::max(bottom, static_cast<float>(rect.y + rect.height));
    }
    return {left, top, static_cast<double>(right - left), static_cast<double>(bottom - top)};
}

Rect QVMiniature(const Rect& display, const Rect& bounds)
{
    const double width = display.width / kMiniature;
    const double height = display.height / kMiniature;
    return {display.x / kMiniature + (bounds.width / 3.0 + 30.0),
        480.0 - (height + (display.y / kMiniature + (bounds.height - 110.0))), width, height};
}

void QVSetMappedArea(tagQVTabletInfo& info, const Rect& area)
{
    const auto field = [](double value) { return static_cast<std::int16_t>(QVTruncate(value)); };
    info.Monitor.XOrg = field(area.x);
    info.Monitor.Width = field(area.width);
    info.Monitor.YOrg = field(area.y);
    info.Monitor.Height = field(area.height);
}

bool QVMapChosenDisplay(tagQVTabletInfo& info, std::span<const Rect> displays)
{
    if (displays.empty()) {
        return false;
    }
    displays = displays.first(std::min<std::size_t>(displays.size(), kQVMaxDisplays));
    const std::int16_t num = displays.size() == 1 ? std::int16_t{0} : info.Monitor.num;
    if (num == 0) {
        QVSetMappedArea(info, QVBoundingRect(displays));
        return true;
    }
    const auto chosen = static_cast<std::size_t>(num) - 1; // of a negative one, too large
    if (chosen >= displays.size()) {
        return false;
    }
    QVSetMappedArea(info, displays[chosen]);
    return true;
}

QVTabletArea QVWholeArea(const tagQVTabletInfo& info)
{
    return {
        info.Basic.TabletXmin, info.Basic.TabletXmax, info.Basic.TabletYmin, info.Basic.TabletYmax};
}

QVTabletArea QVUsedArea(const tagQVTabletInfo& info)
{
    return {info.Monitor.cTabletXmin, info.Monitor.cTabletXmax, info.Monitor.cTabletYmin,
        info.Monitor.cTabletYmax};
}

void QVSetUsedArea(tagQVTabletInfo& info, const QVTabletArea& area)
{
    info.Monitor.cTabletXmin = area.xmin;
    info.Monitor.cTabletXmax = area.xmax;
    info.Monitor.cTabletYmin = area.ymin;
    info.Monitor.cTabletYmax = area.ymax;
}

QVPoint QVPictureCorner(const QVTabletArea& used, const QVTabletArea& whole)
{
    // All of it if the tablet has no extent.
    const auto part = [](std::int32_t length, std::int32_t of, std::int32_t picture) {
        return of == 0 ? picture : length * picture / of;
    };
    const std::int32_t right = part(used.xmax - used.xmin, whole.xmax - whole.xmin,
        static_cast<std::int32_t>(kQVPictureArea.width));
    const std::int32_t down = part(used.ymax - used.ymin, whole.ymax - whole.ymin,
        static_cast<std::int32_t>(kQVPictureArea.height));
    return {kQVPictureArea.x + right, kQVPictureArea.y + kQVPictureArea.height - down};
}

std::optional<QVTabletArea> QVAspectFit(
    const QVTabletArea& whole, std::int16_t width, std::int16_t height)
{
    // The product of a span of the tablet and a side of the display fits 32 bits.
    const std::int32_t tabletWidth = whole.xmax - whole.xmin;
    const std::int32_t tabletHeight = whole.ymax - whole.ymin;
    const bool isTabletWider = tabletHeight * width <= tabletWidth * height;
    if ((isTabletWider ? height : width) == 0) {
        return std::nullopt;
    }
    QVTabletArea fitted = whole;
    // The low 16 bits of a sum are those of the sum of the low 16 bits.
    const auto edge = [](std::uint16_t start, std::int32_t length) {
        return static_cast<std::uint16_t>(start + static_cast<std::uint16_t>(length));
    };
    if (isTabletWider) {
        fitted.xmax = edge(whole.xmin, tabletHeight * width / height);
    } else {
        fitted.ymax = edge(whole.ymin, tabletWidth * height / width);
    }
    return fitted;
}
