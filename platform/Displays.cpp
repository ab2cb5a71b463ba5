// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Displays.h"

#include "Service.h"
#include "WaylandOutputs.h"

#include <QGuiApplication>
#include <QMetaMethod>
#include <QScreen>
#include <QTimer>

#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

namespace platform {

namespace {

/** The factor of an entry "name=2" or "2" in a list, for a screen with that name and index. */
std::optional<double> listedFactor(const QString& list, const QString& name, qsizetype place)
{
    const QStringList entries = list.split(u';');
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QString& entry = entries[static_cast<int>(i)];
        const auto equals = entry.lastIndexOf(u'=');
        bool isNumber = false;
        const double factor = entry.mid(equals + 1).toDouble(&isNumber);
        const bool isIts = equals < 0 ? i == place : entry.left(equals) == name;
        if (isIts && isNumber && factor > 0) {
            return factor;
        }
    }
    return std::nullopt;
}

/**
 * The window system's units per unit of Qt on a screen. If Qt is configured to scale, it divides
 * the screen's size, but leaves the origin in the window system's units.
 */
double unitsPerPoint(const QScreen& screen)
{
    if (!isOnWayland()) {
        return screen.devicePixelRatio();
    }
    // On Wayland, this includes the compositor's scaling, which its units already contain. Any
    // other scaling by Qt comes from the environment.
    bool isNumber = false;
    const double all = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isNumber);
    const double one = listedFactor(qEnvironmentVariable("QT_SCREEN_SCALE_FACTORS"), screen.name(),
        QGuiApplication::screens().indexOf(const_cast<QScreen*>(&screen))) // NOLINT(*-const-cast)
                           .value_or(1.0);
    return (isNumber && all > 0 ? all : 1.0) * one;
}

/**
 * The length in the window system's units that Qt has divided by the factor and rounded. Of the
 * possible ones, the one most often divisible by two, as the sizes of displays are.
 */
double unitsIn(int points, double factor)
{
    const double around = points * factor;
    const auto last = static_cast<std::int64_t>(std::floor(around + factor / 2));
    std::int64_t best = std::llround(around);
    const auto lowestBit = [](std::int64_t length) { return length & -length; };
    for (auto length = static_cast<std::int64_t>(std::ceil(around - factor / 2)); length <= last;
         ++length) {
        if (lowestBit(length) > lowestBit(best)) {
            best = length;
        }
    }
    return static_cast<double>(best);
}

/**
 * A display's ID is its index in Qt's list of screens. Qt reports each change separately, and a new
 * screen before its neighbours have moved; so a change has ended when there are no more reports for
 * a while.
 */
class ScreenDisplays final : public Displays {
public:
    ScreenDisplays()
    {
        constexpr int kRest = 200; // milliseconds
        mRest.setSingleShot(true);
        mRest.setInterval(kRest);
        connect(&mRest, &QTimer::timeout, this, [this] {
            mIsAnnounced = false;
            tell(kDisplaySetMode);
        });
    }

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
        const QScreen* const found = screen(display);
        return found == nullptr ? Rect() : screenBounds(*found);
    }

    bool isMain(DisplayID display) const override
    {
        const QScreen* const found = screen(display);
        return found != nullptr && found == QGuiApplication::primaryScreen();
    }

    Monitor monitor(DisplayID display) const override
    {
        const QScreen* const found = screen(display);
        if (found == nullptr) {
            return {};
        }
        return {found->manufacturer(), found->model(), found->serialNumber(), found->name()};
    }

    QSize pixels(DisplayID display) const override
    {
        const QScreen* const found = screen(display);
        if (found == nullptr) {
            return {};
        }
        // A compositor that scales by a fraction reports the next whole number to Qt.
        if (std::abs(found->devicePixelRatio() / unitsPerPoint(*found) - 1) < 0.01) {
            const Rect place = screenBounds(*found);
            return QSizeF(place.width, place.height).toSize();
        }
        return waylandOutputPixels(found->name());
    }

    QScreen* screen(DisplayID display) const override
    {
        const QList<QScreen*> screens = QGuiApplication::screens();
        const auto index = static_cast<qsizetype>(display);
        return index < screens.size() ? screens[static_cast<int>(index)] : nullptr;
    }

protected:
    /** Announces a change that has begun to those who connect during it, too. */
    void connectNotify(const QMetaMethod& signal) override
    {
        Displays::connectNotify(signal);
        mIsAnnounced = false;
        if (!mIsWatching && hasWindowSystem()) {
            mIsWatching = true;
            watchScreens();
        }
    }

private:
    /** A command without windows has no application object with screens. */
    static bool hasWindowSystem()
    {
        return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    }

    void watchScreens()
    {
        connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
            watch(screen);
            noteChange();
        });
        connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ScreenDisplays::noteChange);
        connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenDisplays::noteChange);
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* const screen : screens) {
            watch(screen);
        }
    }
    void watch(QScreen* screen) const
    {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        // Without it, Qt 5 reports no change, and keeps the first orientation.
        screen->setOrientationUpdateMask(Qt::LandscapeOrientation | Qt::PortraitOrientation
            | Qt::InvertedLandscapeOrientation | Qt::InvertedPortraitOrientation);
#endif
        connect(screen, &QScreen::geometryChanged, this, &ScreenDisplays::noteChange);
        // A display that is turned upside down keeps its geometry.
        connect(screen, &QScreen::orientationChanged, this, &ScreenDisplays::noteChange);
    }
    void noteChange()
    {
        if (!std::exchange(mIsAnnounced, true)) {
            tell(kDisplayBeginConfiguration);
        }
        mRest.start();
    }
    void tell(std::uint32_t flags)
    {
        const auto count = static_cast<DisplayID>(QGuiApplication::screens().size());
        for (DisplayID display = 0; display < count; ++display) {
            Q_EMIT reconfigured(display, flags);
        }
    }

    QTimer mRest{this};
    bool mIsAnnounced = false; ///< every listener knows that the displays are changing
    bool mIsWatching = false;
};

} // namespace

bool isOnWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

Rect screenBounds(const QScreen& screen)
{
    const QRect place = screen.geometry();
    const QPoint origin = QGuiApplication::primaryScreen()->geometry().topLeft();
    const double factor = unitsPerPoint(screen);
    return {static_cast<double>(place.x() - origin.x()),
        static_cast<double>(place.y() - origin.y()), unitsIn(place.width(), factor),
        unitsIn(place.height(), factor)};
}

QRect windowGeometry(const Rect& part)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return {};
    }
    const QPointF middle(part.x + part.width / 2, part.y + part.height / 2);
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* const other : screens) {
        const Rect bounds = screenBounds(*other);
        if (bounds == part) {
            return other->geometry();
        }
        if (QRectF(bounds.x, bounds.y, bounds.width, bounds.height).contains(middle)) {
            screen = other;
        }
    }
    // Relative to the screen's corner, which is the same in both.
    const Rect bounds = screenBounds(*screen);
    const double factor = unitsPerPoint(*screen);
    const auto scaled = [factor](double length) {
        return static_cast<int>(std::lround(length / factor));
    };
    const QPoint corner = screen->geometry().topLeft();
    return {corner.x() + scaled(part.x - bounds.x), corner.y() + scaled(part.y - bounds.y),
        scaled(part.width), scaled(part.height)};
}

std::vector<Rect> Displays::activeBounds() const
{
    std::vector<Rect> all;
    for (const DisplayID display : activeDisplays().value_or(std::vector<DisplayID>())) {
        all.push_back(bounds(display));
    }
    return all;
}

Displays& displays()
{
    return currentService<Displays, ScreenDisplays>();
}

} // namespace platform
