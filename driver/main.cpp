// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Bundle.h"
#include "DBusAppleEvents.h"
#include "Driver.h"
#include "QVDriverProtocol.h"
#include "QVTabletModels.h"
#include "TabletSimulator.h"
#include "TabletWindow.h"
#include "UnixSignals.h"
#include "rzkApplication.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QTranslator>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>

namespace {

constexpr int kFailure = 1;

int fail(const QString& why)
{
    std::fprintf(stderr, "tdsg-driver: %s\n", qUtf8Printable(why));
    return kFailure;
}

/** Whether the arguments ask for a window, and not just for printed output. */
bool wantsWindow(std::span<char*> words)
{
    bool isWanted = false;
    for (const char* const word : words) {
        const std::string_view text(word);
        if (text == "--list" || text == "--help" || text == "-h" || text == "--help-all"
            || text == "--version" || text == "-v") {
            return false;
        }
        isWanted = isWanted || text == "--window";
    }
    return isWanted;
}

/** Without a display, Qt calls abort(), which would look like a crash. */
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    static_cast<void>(context);
    if (type == QtFatalMsg) {
        fail(QStringLiteral("there is no display to open a window on"));
        std::_Exit(kFailure);
    }
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

/**
 * A QApplication only if a window is wanted, since the bus also starts the driver without a
 * display.
 */
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv, bool hasWindow)
{
    if (!hasWindow) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    const QtMessageHandler before = qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(before);
    QGuiApplication::setQuitOnLastWindowClosed(false); // the window decides what its closing ends
    QGuiApplication::setDesktopFileName(QStringLiteral("org.quorvia.tdsg-driver"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(
        QGuiApplication::desktopFileName(), QIcon::fromTheme(QStringLiteral("input-tablet"))));
    return application;
}

/** Translates the window's texts into the user's language. Printed output stays English. */
void translateWindow(QTranslator& translator)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    const platform::Bundle texts(
        QDir::cleanPath(folder.filePath(QStringLiteral(QVTBLT_TEXTS_PATH))));
    const auto translation =
        texts.pathForLocalizedResource(QStringLiteral("tdsg-driver"), QStringLiteral("qm"));
    if (translation && translator.load(*translation)) {
        QCoreApplication::installTranslator(&translator);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const bool hasWindow = wantsWindow({argv + 1, argv + std::max(argc, 1)});
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv, hasWindow);
    QCoreApplication::setApplicationName(QStringLiteral("tdsg-driver"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QVTBLT_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Driver of the Quorvia pen tablet, with a simulated tablet."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption attachOption(QStringLiteral("attach"),
        QStringLiteral("Attach the model with the product ID ID, or none. The default is the model "
                       "that was attached last."),
        QStringLiteral("ID"));
    const QCommandLineOption listOption(
        QStringLiteral("list"), QStringLiteral("List the models and exit."));
    const QCommandLineOption windowOption(QStringLiteral("window"),
        QStringLiteral("Show the simulated tablet in a window, for use with the mouse or the "
                       "keyboard. Closing the window stops the driver."));
    parser.addOptions({attachOption, listOption, windowOption});
    parser.process(*application);

    if (parser.isSet(listOption)) {
        for (const QVTabletModel& model : kQVTabletModels) {
            std::printf("%u  %s\n", unsigned{model.productID}, model.name);
        }
        return 0;
    }

    std::optional<std::uint16_t> productID;
    if (parser.isSet(attachOption)) {
        const QString wanted = parser.value(attachOption);
        bool isNumber = true;
        productID = wanted == QLatin1String("none") ? ushort{0} : wanted.toUShort(&isNumber, 0);
        if (!isNumber) {
            return fail(QStringLiteral("'%1' is not a product ID").arg(wanted));
        }
    }

    platform::DBusAppleEvents events;
    QDBusConnection bus = events.connection();
    Driver driver(events, bus);
    TabletSimulator simulator(driver);
    bus.registerObject(QLatin1String(kQVSimulatorPath), &simulator,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    // Without the name, the user's files are left alone. Events that arrive from here on wait for
    // the event loop.
    const platform::Result<> named = events.registerApplication(kQVDriverSignature);
    if (const platform::Result<> started = named ? driver.start(productID) : named; !started) {
        return fail(started.error().text);
    }
    // The bus itself announces that the driver has appeared.
    QObject::connect(&driver, &Driver::attachedChanged, application.get(),
        [&events] { events.announceChange(); });
    const platform::UnixSignals signals({SIGTERM, SIGINT, SIGHUP});
    const auto end = [] {
        // Handle what has already arrived before exiting.
        QCoreApplication::processEvents();
        QCoreApplication::quit();
    };
    QObject::connect(&signals, &platform::UnixSignals::received, application.get(), end);
    // Without its bus, the driver cannot be reached any longer.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
        application.get(), SLOT(quit()));
    QTranslator translator;
    std::unique_ptr<TabletWindow> window;
    if (hasWindow) {
        translateWindow(translator);
        window = std::make_unique<TabletWindow>(driver);
        QObject::connect(
            window.get(), &TabletWindow::closed, application.get(), end, Qt::QueuedConnection);
        window->show();
    }
    say(QStringLiteral("ready")); // also to receive signals
    const int result = hasWindow ? QApplication::exec() : QCoreApplication::exec();
    driver.saveState();
    say(QStringLiteral("ended"));
    return result;
}
