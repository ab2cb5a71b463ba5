// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QProcess>

#include <gtest/gtest.h>

#include <csignal>
#include <type_traits>

/** The driver of this build, as a process on the session bus. */
class DriverProcess {
public:
    explicit DriverProcess(const QStringList& arguments = {})
    {
        mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        mProcess.start(QStringLiteral(QVTBLT_STAGE_BIN "/tdsg-driver"), arguments);
        while (!mOutput.contains("ready\n")) {
            if (!mProcess.waitForReadyRead(10'000)) {
                ADD_FAILURE() << "the driver does not get ready: " << mOutput.constData();
                break;
            }
            mOutput += mProcess.readAllStandardOutput();
        }
    }
    ~DriverProcess()
    {
        signal(SIGCONT);
        mProcess.kill();
        mProcess.waitForFinished();
    }
    DriverProcess(const DriverProcess&) = delete;
    DriverProcess& operator=(const DriverProcess&) = delete;
    DriverProcess(DriverProcess&&) = delete;
    DriverProcess& operator=(DriverProcess&&) = delete;

    void signal(int number) const { ::kill(static_cast<pid_t>(mProcess.processId()), number); }

    /** Kills it and waits until it is gone. */
    void kill()
    {
        mProcess.kill();
        mProcess.waitForFinished();
    }

    /** Calls a method of the simulator. */
    template <class Value, class... Arguments>
    static Value ask(const char* method, const Arguments&... arguments)
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(QStringLiteral("org.quorvia.AppleEvents.TdSg"),
                QStringLiteral("/org/quorvia/TabletSimulator"),
                QStringLiteral("org.quorvia.TabletSimulator1"), QString::fromLatin1(method));
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
    QProcess mProcess;
    QByteArray mOutput;
};
