// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <functional>

/** A unit in the answer of ListUnitsByNames. */
struct FakeUnit {
    QString state; ///< such as "active"
};
Q_DECLARE_METATYPE(FakeUnit)

inline QDBusArgument& operator<<(QDBusArgument& argument, const FakeUnit& unit)
{
    const QDBusObjectPath path(QStringLiteral("/"));
    argument.beginStructure();
    argument << QString() << QString() << QStringLiteral("loaded") << unit.state << QString()
             << QString() << path << 0U << QString() << path;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, FakeUnit& /*unit*/)
{
    return argument; // never read, but needed to register the type
}

/** A systemd that has one unit. */
class FakeSystemd final : public QDBusVirtualObject {
public:
    explicit FakeSystemd(const QString& address)
        : mBus(QDBusConnection::connectToBus(address, QStringLiteral("systemd")))
    {
        qDBusRegisterMetaType<FakeUnit>();
        qDBusRegisterMetaType<QList<FakeUnit>>();
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
        if (heard) {
            heard(call.member());
        }
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
        } else if (call.member() == QLatin1String("ListUnitsByNames")) {
            results.append(QVariant::fromValue(QList<FakeUnit>{{activeState}}));
        }
        bus.send(call.createReply(results));
        if (endsJobs
            && (call.member() == QLatin1String("StartUnit")
                || call.member() == QLatin1String("StopUnit"))) {
            QDBusMessage ended = QDBusMessage::createSignal(
                call.path(), call.interface(), QStringLiteral("JobRemoved"));
            ended << 1U << QVariant::fromValue(QDBusObjectPath(QStringLiteral("/job/1")))
                  << arguments.front() << QStringLiteral("done");
            bus.send(ended);
        }
        return true;
    }

    QString state = QStringLiteral("disabled"); ///< of the unit's file
    QString activeState = QStringLiteral("active"); ///< of the unit, once it has been started
    QString failing; ///< the method that fails
    QString errorName = QStringLiteral("org.freedesktop.DBus.Error.FileNotFound");
    QStringList calls; ///< with their signatures and arguments
    bool endsJobs = true; ///< at once
    std::function<void(const QString& method)> heard; ///< is called before each answer

private:
    QDBusConnection mBus;
};
