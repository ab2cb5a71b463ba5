// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Displays.h"

#include "Service.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

namespace platform {

namespace {

/**
 * Watches Qt's screens for as long as somebody wants to know. Qt tells of each change by itself,
 * and of a new screen before its neighbours have moved to their new places; so the end of a change
 * is when nothing more has been told for a while.
 */
class ScreenWatcher final : public QObject {
public:
    using Callback = std::pair<DisplayReconfigurationCallback, void*>;

    ScreenWatcher()
    {
        constexpr int kRest = 200; // milliseconds
        mRest.setSingleShot(true);
        mRest.setInterval(kRest);
        connect(&mRest, &QTimer::timeout, this, [this] { tell(kDisplaySetMode); });
        connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
            watch(screen);
            noteChange();
        });
        connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ScreenWatcher::noteChange);
        connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenWatcher::noteChange);
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* const screen : screens) {
            watch(screen);
        }
    }

    /** Whether callbacks are being told, so that the watcher has to live on for a while. */
    bool isTelling() const { return mIsTelling; }

    std::vector<Callback> callbacks;

private:
    void watch(QScreen* screen) const
    {
        connect(screen, &QScreen::geometryChanged, this, &ScreenWatcher::noteChange);
    }
    void noteChange()
    {
        if (!mRest.isActive()) {
            tell(kDisplayBeginConfiguration);
        }
        mRest.start();
    }
    void tell(std::uint32_t flags)
    {
        const QScopedValueRollback telling(mIsTelling, true);
        const auto count = static_cast<DisplayID>(QGuiApplication::screens().size());
        // One that is told may end itself and others, and those are told no more.
        const std::vector<Callback> present = callbacks;
        for (const Callback& callback : present) {
            for (DisplayID display = 0; display < count; ++display) {
                if (std::ranges::find(callbacks, callback) != callbacks.end()) {
                    callback.first(display, flags, callback.second);
                }
            }
        }
    }

    QTimer mRest;
    bool mIsTelling = false;
};

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

    bool isMain(DisplayID display) const override
    {
        const QList<QScreen*> screens = QGuiApplication::screens();
        const auto index = static_cast<qsizetype>(display);
        return index < screens.size()
            && screens[static_cast<int>(index)] == QGuiApplication::primaryScreen();
    }

    bool registerReconfigurationCallback(
        DisplayReconfigurationCallback callback, void* userInfo) override
    {
        if (!hasWindowSystem()) {
            return false;
        }
        if (!mWatcher) {
            mWatcher = std::make_unique<ScreenWatcher>();
        }
        mWatcher->callbacks.emplace_back(callback, userInfo);
        return true;
    }

    void removeReconfigurationCallback(
        DisplayReconfigurationCallback callback, void* userInfo) override
    {
        if (!mWatcher) {
            return;
        }
        std::erase(mWatcher->callbacks, ScreenWatcher::Callback(callback, userInfo));
        if (!mWatcher->callbacks.empty()) {
            return;
        }
        if (mWatcher->isTelling()) {
            mWatcher.release()->deleteLater();
        } else {
            mWatcher.reset();
        }
    }

private:
    /** A command without windows has no application object that knows screens. */
    static bool hasWindowSystem()
    {
        return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    }

    std::unique_ptr<ScreenWatcher> mWatcher; ///< only while somebody is registered
};

} // namespace

Displays& displays()
{
    static ScreenDisplays screens;
    Displays* const replaced = ServiceScope<Displays>::current();
    return replaced == nullptr ? screens : *replaced;
}

} // namespace platform
