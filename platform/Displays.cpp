// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Displays.h"

#include "Service.h"

#include <QGuiApplication>
#include <QScreen>

#include <numeric>

namespace platform {

namespace {

/** A display's ID is its place in Qt's list of screens. */
class ScreenDisplays final : public Displays {
public:
    std::optional<std::uint32_t> activeDisplayCount() const override
    {
        if (!hasWindowSystem()) {
            return std::nullopt;
        }
        return static_cast<std::uint32_t>(QGuiApplication::screens().size());
    }

    std::optional<std::vector<DisplayID>> activeDisplays() const override
    {
        const std::optional<std::uint32_t> count = activeDisplayCount();
        if (!count) {
            return std::nullopt;
        }
        std::vector<DisplayID> displays(*count);
        std::iota(displays.begin(), displays.end(), DisplayID{0});
        return displays;
    }

    Rect bounds(DisplayID display) const override
    {
        const QList<QScreen*> screens = QGuiApplication::screens();
        const auto index = static_cast<qsizetype>(display);
        if (index >= screens.size()) {
            return {};
        }
        const QRect place = screens[static_cast<int>(index)]->geometry();
        const QPoint origin = QGuiApplication::primaryScreen()->geometry().topLeft();
        return {static_cast<double>(place.x() - origin.x()),
            static_cast<double>(place.y() - origin.y()), static_cast<double>(place.width()),
            static_cast<double>(place.height())};
    }

private:
    /** A command without windows has no application object that knows screens. */
    static bool hasWindowSystem()
    {
        return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    }
};

} // namespace

Displays& displays()
{
    static ScreenDisplays screens;
    Displays* const replaced = ServiceScope<Displays>::current();
    return replaced == nullptr ? screens : *replaced;
}

} // namespace platform
