// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// tdsg-driver: its options, and what is started for them.

#include "AppleEventWire.h"
#include "Bundle.h"
#include "DBusAppleEvents.h"
#include "DisplayReport.h"
#include "Driver.h"
#include "QVDriverProtocol.h"
#include "QVTabletList.h"
#include "QVTabletModels.h"
#include "TabletController.h"
#include "TabletMonitor.h"
#include "TabletNodes.h"
#include "TabletObject.h"
#include "TabletSimulator.h"
#include "TabletWindow.h"
#include "UnixSignals.h"
#include "Watchdog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDBusMessage>
#include <QDBusReply>
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
        if (text == "--list" || text == "--list-tablets" || text == "--help" || text == "-h"
            || text == "--help-all" || text == "--version" || text == "-v") {
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

/** Translates what is seen on the screen into the user's language. Printed output stays English. */
void translateTexts(QTranslator& translator)
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

/** What the object on the bus says of a simulated tablet. */
TabletFacts simulatedFacts(const Driver& driver)
{
    TabletFacts facts;
    if (const QVTabletModel* const model = QVFindModel(driver.attached())) {
        facts.name = QString::fromUtf8(model->name);
        facts.vendorID = kQVVendorID;
        facts.productID = model->productID;
        facts.state =
            driver.isCalibrating() ? QStringLiteral("calibrating") : QStringLiteral("attached");
    }
    return facts;
}

/** Prints the tablets that are plugged in: as the running driver sees them, if there is one. */
int listTablets()
{
    QVRegisterTabletList();
    QDBusMessage call = QDBusMessage::createMethodCall(platform::wire::busName(kQVDriverSignature),
        QLatin1String(kQVTabletPath), QLatin1String(kQVTabletInterface), QStringLiteral("Tablets"));
    call.setAutoStartService(false);
    const QDBusReply<QVTabletList> reply = QDBusConnection::sessionBus().call(call);
    QVTabletList list = reply.value();
    if (!reply.isValid()) {
        const TabletMonitor monitor;
        for (const Tablet& tablet : monitor.tablets()) {
            list.append(describeTablet(tablet));
        }
    }
    std::fputs(qUtf8Printable(QVTabletListText(list)), stdout);
    return 0;
}

/** The product ID to simulate: nothing without a word; an error if the word is none. */
platform::Result<std::optional<std::uint16_t>> modelOf(const QStringList& words)
{
    if (words.isEmpty()) {
        return std::optional<std::uint16_t>();
    }
    const QString& wanted = words.constFirst();
    bool isNumber = true;
    const std::uint16_t productID =
        wanted == QLatin1String("none") ? ushort{0} : wanted.toUShort(&isNumber, 0);
    if (!isNumber) {
        return platform::Error{QStringLiteral("'%1' is not a product ID").arg(wanted)};
    }
    return std::optional(productID);
}

} // namespace

int main(int argc, char* argv[])
{
    // The driver starts itself so, to watch the displays from a process of its own.
    if (argc == 2 && std::string_view(argv[1]) == "--displays") {
        return reportDisplays(argc, argv);
    }
    const bool hasWindow = wantsWindow({argv + 1, argv + std::max(argc, 1)});
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv, hasWindow);
    QCoreApplication::setApplicationName(QStringLiteral("tdsg-driver"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QVTBLT_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Driver for Quorvia and other pen tablets, or for a simulated one."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption listTabletsOption(
        QStringLiteral("list-tablets"), QStringLiteral("List the tablets plugged in and exit."));
    const QCommandLineOption simulateOption(QStringLiteral("simulate"),
        QStringLiteral("Simulate a tablet instead of driving a real one: the model with the "
                       "product ID ID, or none. The default is the model that was attached last."));
    const QCommandLineOption listOption(
        QStringLiteral("list"), QStringLiteral("List the models that can be simulated and exit."));
    const QCommandLineOption windowOption(QStringLiteral("window"),
        QStringLiteral("Show the simulated tablet in a window, for use with the mouse or the "
                       "keyboard. Closing the window stops the driver."));
    parser.addOptions({listTabletsOption, simulateOption, listOption, windowOption});
    parser.addPositionalArgument(QStringLiteral("ID"),
        QStringLiteral("Product ID of the model to simulate, or none."), QStringLiteral("[ID]"));
    parser.process(*application);

    if (parser.isSet(listOption)) {
        for (const QVTabletModel& model : kQVTabletModels) {
            std::printf("%u  %s\n", unsigned{model.productID}, model.name);
        }
        return 0;
    }
    if (parser.isSet(listTabletsOption)) {
        return listTablets();
    }

    const bool isSimulation = parser.isSet(simulateOption) || parser.isSet(windowOption);
    const QStringList words = parser.positionalArguments();
    if (words.size() > (isSimulation ? 1 : 0)) {
        return fail(QStringLiteral("extra operand '%1'").arg(words.constLast()));
    }
    const platform::Result<std::optional<std::uint16_t>> productID = modelOf(words);
    if (!productID) {
        return fail(productID.error().text);
    }

    platform::DBusAppleEvents events;
    QDBusConnection bus = events.connection();
    Driver driver(events, bus);
    TabletSimulator simulator(driver);
    bus.registerObject(QLatin1String(kQVSimulatorPath), &simulator,
        isSimulation
            ? QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
            : QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals);
    std::unique_ptr<TabletController> controller;
    TabletObject tablet(
        bus, [&] { return controller ? controller->list() : QVTabletList(); },
        [&](const QString& id) {
            return controller ? controller->use(id)
                              : platform::Error{QStringLiteral("the tablet is simulated")};
        },
        [&](bool areShown) { driver.setShowsNotices(areShown); });
    // Without the name, the user's files and devices are left alone. Events that arrive from here
    // on wait for the event loop.
    platform::Result<> started = events.registerApplication(kQVDriverSignature);
    if (started && isSimulation) {
        started = driver.startSimulation(*productID);
    }
    if (!started) {
        return fail(started.error().text);
    }
    // The bus itself announces that the driver has appeared.
    QObject::connect(&driver, &Driver::attachedChanged, application.get(),
        [&events] { events.announceChange(); });
    Watchdog watchdog;
    if (isSimulation) {
        const auto showFacts = [&] { tablet.show(simulatedFacts(driver)); };
        QObject::connect(&driver, &Driver::attachedChanged, &tablet, showFacts);
        QObject::connect(&driver, &Driver::calibratingChanged, &tablet, showFacts);
        QObject::connect(&driver, &Driver::buttonChanged, &tablet, &TabletObject::ButtonChanged);
        QObject::connect(&watchdog, &Watchdog::due, &watchdog, &Watchdog::feed);
        showFacts();
    } else {
        driver.start();
        controller = std::make_unique<TabletController>(driver, bus, QDBusConnection::systemBus());
        const auto showFacts = [&] { tablet.show(controller->facts()); };
        QObject::connect(controller.get(), &TabletController::changed, &tablet, showFacts);
        QObject::connect(controller.get(), &TabletController::buttonChanged, &tablet,
            &TabletObject::ButtonChanged);
        QObject::connect(&watchdog, &Watchdog::due, controller.get(), &TabletController::ask);
        QObject::connect(controller.get(), &TabletController::alive, &watchdog, &Watchdog::feed);
        showFacts();
    }
    const platform::UnixSignals signals({SIGTERM, SIGINT, SIGHUP});
    const auto end = [&] {
        controller.reset(); // first of all, let the tablet go
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
    translateTexts(translator);
    std::unique_ptr<TabletWindow> window;
    if (hasWindow) {
        window = std::make_unique<TabletWindow>(driver);
        QObject::connect(
            window.get(), &TabletWindow::closed, application.get(), end, Qt::QueuedConnection);
        window->show();
    }
    say(QStringLiteral("ready")); // also to receive signals
    const int result = hasWindow ? QApplication::exec() : QCoreApplication::exec();
    controller.reset();
    driver.saveState();
    say(QStringLiteral("ended"));
    return result;
}
