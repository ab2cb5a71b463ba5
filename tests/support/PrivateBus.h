// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

/**
 * A private session bus, a real dbus-daemon, for its lifetime. Optionally starts the driver of this
 * build on demand.
 */
class PrivateBus {
public:
    enum class Activation { Off, On };

    explicit PrivateBus(Activation activation = Activation::Off)
        : PrivateBus(
            activation == Activation::On ? QStringLiteral(QVTBLT_STAGE_SERVICES) : QString())
    {
    }
    /** @param services the folder with what it starts on demand; empty for nothing */
    explicit PrivateBus(const QString& services)
        : mBefore(qgetenv("DBUS_SESSION_BUS_ADDRESS"))
    {
        const QString folder = services.isEmpty()
            ? QString()
            : QStringLiteral("<servicedir>%1</servicedir>").arg(services);
        QFile file(mFolder.filePath(QStringLiteral("bus.conf")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            QStringLiteral("<busconfig><type>session</type><listen>unix:path=%1/bus</listen>%2"
                           "<policy context=\"default\"><allow send_destination=\"*\"/>"
                           "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy>"
                           "<limit name=\"max_replies_per_connection\">50000</limit>"
                           "</busconfig>")
                .arg(mFolder.path(), folder)
                .toUtf8());
        file.close();
        start();
        qputenv("DBUS_SESSION_BUS_ADDRESS", mAddress);
    }
    ~PrivateBus()
    {
        stop();
        qputenv("DBUS_SESSION_BUS_ADDRESS", mBefore);
    }

    /** Disconnects all clients; nobody can connect. */
    void stop()
    {
        mDaemon.terminate();
        mDaemon.waitForFinished();
    }

    /** Starts a new bus at the same address. */
    void start()
    {
        mDaemon.start(QStringLiteral("dbus-daemon"),
            {QStringLiteral("--nofork"), QStringLiteral("--nosyslog"),
                QStringLiteral("--print-address"),
                QStringLiteral("--config-file=") + mFolder.filePath(QStringLiteral("bus.conf"))});
        EXPECT_TRUE(mDaemon.waitForReadyRead());
        // Without the GUID of this daemon, the address is valid for the next one, too.
        mAddress = mDaemon.readLine().trimmed().split(',').constFirst();
        EXPECT_FALSE(mAddress.isEmpty());
    }

    QString address() const { return QString::fromUtf8(mAddress); }

    /** Process ID of the bus. */
    qint64 pid() const { return mDaemon.processId(); }

private:
    QTemporaryDir mFolder;
    QProcess mDaemon;
    QByteArray mAddress;
    QByteArray mBefore;
};

/** How many clients a bus has, this one included. */
class BusClients {
public:
    explicit BusClients(const PrivateBus& bus)
        : mBus(QDBusConnection::connectToBus(bus.address(), QString::fromLatin1(kName)))
    {
    }
    ~BusClients() { QDBusConnection::disconnectFromBus(QString::fromLatin1(kName)); }
    Q_DISABLE_COPY_MOVE(BusClients)

    qsizetype count() const
    {
        const QStringList names = mBus.interface()->registeredServiceNames();
        return std::ranges::count_if(names, [](const QString& name) { return name[0] == u':'; });
    }

private:
    static constexpr const char* kName = "clients";

    QDBusConnection mBus;
};
