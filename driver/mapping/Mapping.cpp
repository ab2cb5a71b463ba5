// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Mapping.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

constexpr QLatin1String kName("name");
constexpr QLatin1String kX("x");
constexpr QLatin1String kY("y");
constexpr QLatin1String kWidth("width");
constexpr QLatin1String kHeight("height");
constexpr QLatin1String kTurns("turns");

/** Far more than a desktop has. */
constexpr int kMaxDisplays = 64;
constexpr double kMaxPoints = 1'000'000;

/** The record has whole points. */
bool isAbout(const QRectF& area, const QRectF& bounds)
{
    const auto isNear = [](double a, double b) { return std::abs(a - b) <= 1; };
    return isNear(area.left(), bounds.left()) && isNear(area.top(), bounds.top())
        && isNear(area.width(), bounds.width()) && isNear(area.height(), bounds.height());
}

std::optional<DesktopDisplay> displayFrom(const QJsonObject& object)
{
    const auto number = [&](QLatin1String key) {
        const double value = object.value(key).toDouble(2 * kMaxPoints);
        return std::abs(value) <= kMaxPoints ? std::optional(value) : std::nullopt;
    };
    const auto x = number(kX);
    const auto y = number(kY);
    const auto width = number(kWidth);
    const auto height = number(kHeight);
    const int turns = object.value(kTurns).toInt(-1);
    if (!x || !y || !width || *width <= 0 || !height || *height <= 0 || turns < 0 || turns > 3) {
        return std::nullopt;
    }
    return DesktopDisplay{object.value(kName).toString(), {*x, *y, *width, *height}, turns};
}

} // namespace

QRectF boundsOf(const Desktop& desktop)
{
    QRectF all;
    for (const DesktopDisplay& display : desktop) {
        all |= display.bounds;
    }
    return all;
}

std::optional<std::size_t> displayAt(const Desktop& desktop, const QRectF& area)
{
    const auto covered = std::ranges::find_if(
        desktop, [&](const DesktopDisplay& display) { return isAbout(area, display.bounds); });
    return covered == desktop.end()
        ? std::nullopt
        : std::optional(static_cast<std::size_t>(covered - desktop.begin()));
}

std::optional<std::size_t> displayAfter(const Desktop& desktop, const QRectF& area)
{
    if (desktop.empty()) {
        return std::nullopt;
    }
    const std::optional<std::size_t> covered = displayAt(desktop, area);
    if (!covered) {
        return 0;
    }
    // One that shows the same as another, at the same place, is no other place for the pen.
    std::size_t next = (*covered + 1) % desktop.size();
    while (next != *covered && desktop[next].bounds == desktop[*covered].bounds) {
        next = (next + 1) % desktop.size();
    }
    return next;
}

QByteArray toLine(const Desktop& desktop)
{
    QJsonArray displays;
    for (const auto& [name, bounds, turns] : desktop) {
        displays.append(QJsonObject{{kName, name}, {kX, bounds.x()}, {kY, bounds.y()},
            {kWidth, bounds.width()}, {kHeight, bounds.height()}, {kTurns, turns}});
    }
    return QJsonDocument(displays).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<Desktop> desktopFrom(const QByteArray& line)
{
    const QJsonArray displays = QJsonDocument::fromJson(line).array();
    if (displays.isEmpty() || displays.size() > kMaxDisplays) {
        return std::nullopt;
    }
    Desktop desktop;
    for (const auto& display : displays) {
        const std::optional<DesktopDisplay> read = displayFrom(display.toObject());
        if (!read) {
            return std::nullopt;
        }
        desktop.push_back(*read);
    }
    return desktop;
}

TabletRect targetOf(const QRectF& area, const Desktop& desktop)
{
    constexpr TabletRect kWholeDesktop{0, 0, 1, 1};
    const auto isOn = [&](const DesktopDisplay& display) {
        return display.bounds.intersects(area);
    };
    if (area.isEmpty() || std::ranges::none_of(desktop, isOn)) {
        return kWholeDesktop;
    }
    const QRectF covered = boundsOf(desktop);
    // KWin 5 rounds places to whole points before it looks for a window, so that the last half of
    // the last point is off the display, and a pen there is nowhere. The rest is for displays with
    // a fractional scale, whose size it rounds, too.
    constexpr double kLast = 0.9;
    const auto across = [&](double x) { return (x - covered.left()) / covered.width(); };
    const auto down = [&](double y) { return (y - covered.top()) / covered.height(); };
    const QRectF reached = area & covered;
    const TabletRect target{across(reached.left()), down(reached.top()),
        across(reached.right() - kLast), down(reached.bottom() - kLast)};
    return target.width() > 0 && target.height() > 0 ? target : kWholeDesktop;
}
