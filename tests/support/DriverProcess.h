// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEventWire.h"
#include "QVDriverProtocol.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QProcess>

#include <gtest/gtest.h>

#include <csignal>
#include <type_traits>

/** The driver of this build with a simulated tablet, as a process on the session bus. */
class DriverProcess {
public:
    explicit DriverProcess(const QStringList& arguments = {})
    {
        // Its output is not read, and a full pipe would block it.
        mProcess.setStandardOutputFile(QProcess::nullDevice());
        mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        mProcess.start(QStringLiteral(QVTBLT_STAGE_BIN "/tdsg-driver"),
            QStringList{QStringLiteral("--simulate")} + arguments);
        EXPECT_TRUE(mProcess.waitForStarted());
        while (
            !bus().interface()->isServiceRegistered(platform::wire::busName(kQVDriverSignature))) {
            if (mProcess.waitForFinished(5)) {
                ADD_FAILURE() << "the driver ended";
                break;
            }
        }
    }
    ~DriverProcess()
    {
        signal(SIGCONT);
        mProcess.kill();
        mProcess.waitForFinished();
    }

    void signal(int number) const
    {
        // After its end the ID is 0, which would signal the whole process group, with other tests.
        if (mProcess.processId() > 0) {
            ::kill(static_cast<pid_t>(mProcess.processId()), number);
        }
    }

    /** Kills it and waits for its end. */
    void kill()
    {
        mProcess.kill();
        mProcess.waitForFinished();
    }

    /** Calls a method of the simulator. */
    template <class Value, class... Arguments>
    static Value ask(const char* method, const Arguments&... arguments)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            platform::wire::busName(kQVDriverSignature), QLatin1String(kQVSimulatorPath),
            QLatin1String(kQVSimulatorInterface), QString::fromLatin1(method));
        call.setArguments({QVariant::fromValue(arguments)...});
        const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        const QDBusMessage reply = QDBusConnection::connectToBus(
            QDBusConnection::SessionBus, QStringLiteral("test-") + QString::fromUtf8(address))
                                       .call(call);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
        if constexpr (!std::is_void_v<Value>) {
            return QDBusReply<Value>(reply).value();
        }
    }

private:
    /** The test's own connection to the current bus. */
    static QDBusConnection bus()
    {
        const QString address = QString::fromUtf8(qgetenv("DBUS_SESSION_BUS_ADDRESS"));
        QDBusConnection connection = QDBusConnection::connectToBus(address, address);
        if (!connection.isConnected()) { // its bus has ended
            QDBusConnection::disconnectFromBus(address);
            connection = QDBusConnection::connectToBus(address, address);
        }
        return connection;
    }

    QProcess mProcess;
};
