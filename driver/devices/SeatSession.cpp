// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "SeatSession.h"

#include "BusNames.h"
#include "LivingBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>

#include <utility>

namespace {

constexpr QLatin1String kLogin("org.freedesktop.login1");
constexpr QLatin1String kLoginPath("/org/freedesktop/login1");
constexpr QLatin1String kLoginManager("org.freedesktop.login1.Manager");
constexpr QLatin1String kSession("org.freedesktop.login1.Session");
constexpr QLatin1String kUser("org.freedesktop.login1.User");

} // namespace

SeatSession::SeatSession(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , mBus(std::move(bus))
{
    mBus.connect(kLogin, kLoginPath, kLoginManager, QStringLiteral("PrepareForSleep"), this,
        SLOT(prepareForSleep(bool)));
    // Of every session: the user's graphical one may begin after this program.
    mBus.connect(kLogin, QString(), platform::kBusProperties, QStringLiteral("PropertiesChanged"),
        this, SLOT(takeProperties(QDBusMessage)));
    ask();
}

void SeatSession::announce(bool wasOurs)
{
    if (wasOurs == isOurs()) {
        return;
    }
    if (isOurs() && mBus.isConnected()) {
        delaySleep();
    }
    Q_EMIT changed();
}

void SeatSession::delaySleep()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        kLogin, kLoginPath, kLoginManager, QStringLiteral("Inhibit"));
    call << QStringLiteral("sleep") << QStringLiteral("Tablet driver")
         << QStringLiteral("Releases what the tablet has pressed") << QStringLiteral("delay");
    auto* const answer = new QDBusPendingCallWatcher(mBus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *answer;
        if (reply.isValid() && isOurs()) {
            mSleepDelay = reply.value();
        }
    });
}

void SeatSession::ask()
{
    if (!mBus.isConnected()) {
        take({}); // there is no logind; a call would never be answered
        return;
    }
    // A service of the user belongs to no session, so it is the user's graphical one that counts.
    QDBusMessage call =
        QDBusMessage::createMethodCall(kLogin, QStringLiteral("/org/freedesktop/login1/user/self"),
            platform::kBusProperties, QStringLiteral("Get"));
    call << QString(kUser) << QStringLiteral("Display");
    auto* const answer = new QDBusPendingCallWatcher(mBus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (platform::isUnanswered(reply.error())) {
            ask();
            return;
        }
        if (!reply.isValid()) {
            take({}); // there is no logind, or it does not know this user
            return;
        }
        QString name;
        QDBusObjectPath path;
        const auto session = reply.value().variant().value<QDBusArgument>();
        session.beginStructure();
        session >> name >> path;
        session.endStructure();
        if (name.isEmpty()) {
            take({{QStringLiteral("Active"), false}}); // the user has logged out
            return;
        }
        QDBusMessage properties = QDBusMessage::createMethodCall(
            kLogin, path.path(), platform::kBusProperties, QStringLiteral("GetAll"));
        properties << QString(kSession);
        auto* const all = new QDBusPendingCallWatcher(mBus.asyncCall(properties), this);
        connect(all, &QDBusPendingCallWatcher::finished, this, [this, all] {
            all->deleteLater();
            const QDBusPendingReply<QVariantMap> values = *all;
            if (platform::isUnanswered(values.error())) {
                ask();
                return;
            }
            // A session that has just ended is followed by another one, or by none.
            take(
                values.isValid() ? values.value() : QVariantMap{{QStringLiteral("Active"), false}});
        });
    });
}

void SeatSession::takeProperties(const QDBusMessage& signal)
{
    const QString interface = signal.arguments().value(0).toString();
    const auto changed = qdbus_cast<QVariantMap>(signal.arguments().value(1));
    if (interface == kUser) {
        ask(); // another session may be the graphical one now
    } else if (interface == kSession) {
        // Which of the sessions this is does not reach a slot.
        if (changed.contains(QStringLiteral("Active"))
            || changed.contains(QStringLiteral("LockedHint"))) {
            ask();
        }
    }
}

void SeatSession::take(const QVariantMap& properties)
{
    const bool wasOurs = isOurs();
    mIsKnown = true;
    mIsAsleep = mIsAsleep && !std::exchange(mIsWaking, false);
    mIsActive = properties.value(QStringLiteral("Active"), true).toBool();
    mIsLocked = properties.value(QStringLiteral("LockedHint"), false).toBool();
    announce(wasOurs);
}

void SeatSession::prepareForSleep(bool isAboutToSleep)
{
    const bool wasOurs = isOurs();
    mIsAsleep = true;
    mIsWaking = !isAboutToSleep;
    announce(wasOurs);
    if (mIsWaking) {
        ask();
    }
}
