// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Mapping.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

constexpr QLatin1String kDisplays("displays");
constexpr QLatin1String kCovered("covered");
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

std::optional<QRectF> boundsFrom(const QJsonObject& object)
{
    const auto number = [&](QLatin1String key) {
        const double value = object.value(key).toDouble(2 * kMaxPoints);
        return std::abs(value) <= kMaxPoints ? std::optional(value) : std::nullopt;
    };
    const auto x = number(kX);
    const auto y = number(kY);
    const auto width = number(kWidth);
    const auto height = number(kHeight);
    if (!x || !y || !width || *width <= 0 || !height || *height <= 0) {
        return std::nullopt;
    }
    return QRectF(*x, *y, *width, *height);
}

QJsonObject toObject(const QRectF& bounds)
{
    return {
        {kX, bounds.x()}, {kY, bounds.y()}, {kWidth, bounds.width()}, {kHeight, bounds.height()}};
}

std::optional<DesktopDisplay> displayFrom(const QJsonObject& object)
{
    const std::optional<QRectF> bounds = boundsFrom(object);
    const int turns = object.value(kTurns).toInt(-1);
    if (!bounds || turns < 0 || turns > 3) {
        return std::nullopt;
    }
    return DesktopDisplay{object.value(kName).toString(), *bounds, turns};
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

QByteArray toLine(const DesktopReport& report)
{
    QJsonArray displays;
    for (const auto& [name, bounds, turns] : report.displays) {
        QJsonObject display = toObject(bounds);
        display.insert(kName, name);
        display.insert(kTurns, turns);
        displays.append(display);
    }
    const QJsonObject all{{kDisplays, displays}, {kCovered, toObject(report.covered)}};
    return QJsonDocument(all).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<DesktopReport> reportFrom(const QByteArray& line)
{
    const QJsonObject all = QJsonDocument::fromJson(line).object();
    const QJsonArray displays = all.value(kDisplays).toArray();
    const std::optional<QRectF> covered = boundsFrom(all.value(kCovered).toObject());
    if (displays.isEmpty() || displays.size() > kMaxDisplays || !covered) {
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
    return DesktopReport{desktop, *covered};
}

TabletRect targetOf(const QRectF& area, const DesktopReport& desktop)
{
    constexpr TabletRect kWholeRange{0, 0, 1, 1};
    const QRectF& covered = desktop.covered;
    const auto isOn = [&](const DesktopDisplay& display) {
        return display.bounds.intersects(area);
    };
    const bool isOnDisplay = !area.isEmpty() && std::ranges::any_of(desktop.displays, isOn);
    // All displays may be less than what the pen covers.
    const QRectF reached = (isOnDisplay ? area : boundsOf(desktop.displays)) & covered;
    if (reached.isEmpty() || (!isOnDisplay && reached == covered)) {
        return kWholeRange;
    }
    // KWin 5 rounds places to whole points before it looks for a window, so that the last half of
    // the last point is off the display, and a pen there is nowhere. The rest is for displays with
    // a fractional scale, whose size it rounds, too.
    constexpr double kLast = 0.9;
    const auto across = [&](double x) { return (x - covered.left()) / covered.width(); };
    const auto down = [&](double y) { return (y - covered.top()) / covered.height(); };
    const TabletRect target{across(reached.left()), down(reached.top()),
        across(reached.right() - kLast), down(reached.bottom() - kLast)};
    return target.width() > 0 && target.height() > 0 ? target : kWholeRange;
}
