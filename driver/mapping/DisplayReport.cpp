// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DisplayReport.h"

#include "Displays.h"
#include "Mapping.h"
#include "X11Screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>

namespace {

/** While displays change, so that the pen follows before all have settled. */
constexpr std::chrono::milliseconds kInterval{50};

/** Whether the panel itself is higher than wide, however the desktop has rotated it. */
bool isUpright(const QScreen& screen)
{
    // On X11, the physical size is rotated, too, and the orientation is the rotation.
    if (!platform::isOnWayland()) {
        return false;
    }
    // For a panel that does not report its size, Qt makes one up from the rotated picture.
    constexpr double kMadeUp = 25.4 / 100; // millimetres per point
    const QSizeF panel = screen.physicalSize();
    return panel.height() > panel.width() && panel != kMadeUp * QSizeF(screen.geometry().size());
}

Desktop displaysNow()
{
    Desktop desktop;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* const screen : screens) {
        const platform::Rect bounds = platform::screenBounds(*screen);
        // With all displays off, Qt makes up one without a size.
        if (bounds.width > 0 && bounds.height > 0) {
            desktop.push_back({screen->name(), {bounds.x, bounds.y, bounds.width, bounds.height},
                turnsOf(screen->orientation(), isUpright(*screen))});
        }
    }
    return desktop;
}

/** Prints the desktop if it has changed. */
class Reporter {
public:
    explicit Reporter(const X11Screen* x11)
        : mX11(x11)
    {
    }

    void report()
    {
        DesktopReport desktop{displaysNow(), {}};
        if (desktop.displays.empty()) {
            return;
        }
        desktop.covered = covered(desktop.displays);
        if (desktop != mLast) {
            mLast = desktop;
            std::fputs(toLine(desktop).constData(), stdout);
            std::fflush(stdout);
        }
    }

private:
    /** What the whole range of a pen covers. */
    QRectF covered(const Desktop& displays) const
    {
        if (mX11 == nullptr || mX11->size().isEmpty()) {
            return boundsOf(displays);
        }
        // Displays, too, are placed in pixels, from the main one. While they change, they may lag
        // behind the size, and so lie outside of it.
        return {-QPointF(QGuiApplication::primaryScreen()->geometry().topLeft()), mX11->size()};
    }

    const X11Screen* mX11;
    DesktopReport mLast;
};

/** Without a display, Qt calls abort(), which would look like a crash. */
void endQuietly(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    static_cast<void>(context);
    static_cast<void>(message);
    if (type == QtFatalMsg) {
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace

int turnsOf(Qt::ScreenOrientation orientation, bool isUpright)
{
    constexpr std::array kTurned{Qt::LandscapeOrientation, Qt::PortraitOrientation,
        Qt::InvertedLandscapeOrientation, Qt::InvertedPortraitOrientation};
    const auto* const turned = std::ranges::find(kTurned, orientation);
    if (turned == kTurned.end()) {
        return 0;
    }
    return static_cast<int>(turned - kTurned.begin() + (isUpright ? 3 : 0)) % 4;
}

int reportDisplays(int argc, char** argv)
{
    qInstallMessageHandler(endQuietly);
    QGuiApplication::setAttribute(Qt::AA_DisableSessionManager); // nothing to be restored
    const QGuiApplication application(argc, argv);
    // With Xwayland, the pen covers what the Wayland desktop says, whatever the X screen is.
    const bool isOnX11 = QGuiApplication::platformName() == QLatin1String("xcb")
        && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const auto x11 = isOnX11 ? std::make_unique<X11Screen>() : nullptr;
    Reporter reporter(x11.get());
    if (x11) {
        QObject::connect(x11.get(), &X11Screen::changed, [&] { reporter.report(); });
    }
    QTimer soon;
    soon.setInterval(kInterval);
    QObject::connect(&soon, &QTimer::timeout, [&] { reporter.report(); });
    QObject::connect(&platform::displays(), &platform::Displays::reconfigured, &soon,
        [&](platform::DisplayID /*display*/, std::uint32_t flags) {
            if (flags == platform::kDisplayBeginConfiguration) {
                soon.start();
            } else {
                soon.stop();
                reporter.report();
            }
        });
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [] {
        std::array<char, 64> ignored{};
        if (::read(STDIN_FILENO, ignored.data(), ignored.size()) <= 0) {
            QCoreApplication::quit();
        }
    });
    reporter.report();
    return QGuiApplication::exec();
}
