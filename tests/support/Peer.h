// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEventWire.h"
#include "PrivateBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/**
 * Another program on the bus, with its own connection and thread: answers the panel's events and
 * sends messages as the test wants. It shares no code with the driver.
 */
class Peer final : public QDBusVirtualObject {
public:
    /** Creates the answer to a call. */
    using Answer = std::function<QDBusMessage(const QDBusMessage& call)>;

    /** @param name the well-known name to own; none if empty */
    explicit Peer(const PrivateBus& bus, const QString& name = {})
        : mConnection(QDBusConnection::connectToBus(
            bus.address(), QStringLiteral("peer-%1").arg(reinterpret_cast<quintptr>(this))))
    {
        EXPECT_TRUE(mConnection.isConnected());
        moveToThread(&mThread);
        mThread.start();
        EXPECT_TRUE(
            mConnection.registerVirtualObject(QLatin1String(platform::wire::kObjectPath), this));
        if (!name.isEmpty()) {
            EXPECT_TRUE(mConnection.registerService(name));
        }
    }
    ~Peer() override
    {
        mThread.quit();
        mThread.wait();
        const QString name = mConnection.name();
        mConnection = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
    }

    /** Must be set before the first call arrives. */
    Answer answer;
    std::chrono::milliseconds delay{0};

    QDBusConnection& connection() { return mConnection; }
    QString uniqueName() const { return mConnection.baseService(); }

    /** The calls so far. */
    std::vector<QDBusMessage> calls()
    {
        const std::scoped_lock lock(mMutex);
        return mCalls;
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        {
            const std::scoped_lock lock(mMutex);
            mCalls.push_back(call);
        }
        std::this_thread::sleep_for(delay);
        if (answer) {
            bus.send(answer(call));
        }
        return true;
    }

private:
    QThread mThread;
    std::mutex mMutex;
    std::vector<QDBusMessage> mCalls;
    QDBusConnection mConnection;
};
