// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

/** A systemd that has one unit. */
class FakeSystemd final : public QDBusVirtualObject {
public:
    explicit FakeSystemd(const QString& address)
        : mBus(QDBusConnection::connectToBus(address, QStringLiteral("systemd")))
    {
        EXPECT_TRUE(mBus.registerVirtualObject(QStringLiteral("/org/freedesktop/systemd1"), this));
        EXPECT_TRUE(mBus.registerService(QStringLiteral("org.freedesktop.systemd1")));
    }
    ~FakeSystemd() override { QDBusConnection::disconnectFromBus(QStringLiteral("systemd")); }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        EXPECT_EQ(call.interface(), QStringLiteral("org.freedesktop.systemd1.Manager"));
        QStringList words{call.member(), call.signature()};
        const QVariantList arguments = call.arguments();
        for (const QVariant& argument : arguments) {
            words.append(argument.userType() == QMetaType::QStringList
                    ? argument.toStringList().join(u',')
                    : argument.toString());
        }
        calls.append(words.join(u' '));
        if (call.member() == failing) {
            bus.send(call.createErrorReply(errorName, QStringLiteral("It does not work.")));
            return true;
        }
        QVariantList results;
        if (call.member() == QLatin1String("GetUnitFileState")) {
            results.append(state);
        } else if (call.member() == QLatin1String("EnableUnitFiles")) {
            state = QStringLiteral("enabled");
            results.append(true);
        } else if (call.member() == QLatin1String("DisableUnitFiles")) {
            state = QStringLiteral("disabled");
        }
        bus.send(call.createReply(results));
        return true;
    }

    QString state = QStringLiteral("disabled"); ///< of the unit's file
    QString failing; ///< the method that fails
    QString errorName = QStringLiteral("org.freedesktop.DBus.Error.FileNotFound");
    QStringList calls; ///< with their signatures and arguments

private:
    QDBusConnection mBus;
};
