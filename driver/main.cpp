// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DBusAppleEvents.h"
#include "Driver.h"
#include "QVTabletModels.h"
#include "TabletSimulator.h"
#include "UnixSignals.h"
#include "rzkApplication.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <csignal>
#include <cstdio>

namespace {

constexpr int kFailure = 1;

int fail(const QString& why)
{
    std::fprintf(stderr, "tdsg-driver: %s\n", qUtf8Printable(why));
    return kFailure;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tdsg-driver"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QVTBLT_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Driver of the Quorvia pen tablet, with a simulated tablet for those who "
                       "have none at hand."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption attachOption(QStringLiteral("attach"),
        QStringLiteral("Attach the model with the product ID ID, or none. Without this option, the "
                       "one that was attached last."),
        QStringLiteral("ID"));
    const QCommandLineOption listOption(
        QStringLiteral("list"), QStringLiteral("List the models and end."));
    parser.addOptions({attachOption, listOption});
    parser.process(application);

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
            return fail(QStringLiteral("'%1' is no product ID").arg(wanted));
        }
    }

    platform::DBusAppleEvents events;
    QDBusConnection bus = events.connection();
    Driver driver(events, bus);
    TabletSimulator simulator(driver);
    bus.registerObject(QLatin1String(TabletSimulator::kObjectPath), &simulator,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    // Whoever does not get the name leaves the user's files alone. What arrives from here on waits
    // for the event loop.
    QString error = events.registerApplication(kQVDriverSignature);
    if (error.isEmpty()) {
        error = driver.start(productID);
    }
    if (!error.isEmpty()) {
        return fail(error);
    }
    say(QStringLiteral("ready"));

    const platform::UnixSignals signals({SIGTERM, SIGINT, SIGHUP});
    QObject::connect(&signals, &platform::UnixSignals::received, &application, [&] {
        // What has already arrived is handled before the driver goes.
        QCoreApplication::processEvents();
        QCoreApplication::quit();
    });
    // Without its bus, nobody can reach the driver any more.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), &application,
        SLOT(quit()));
    const int result = QCoreApplication::exec();
    driver.saveState();
    say(QStringLiteral("ended"));
    return result;
}
