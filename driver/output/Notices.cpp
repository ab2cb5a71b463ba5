// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Notices.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace {

constexpr QLatin1String kNotifications("org.freedesktop.Notifications");
constexpr QLatin1String kNotificationsPath("/org/freedesktop/Notifications");

constexpr int kShownTime = 2000; ///< milliseconds
constexpr int kNoticeAnswerTime = 5000; ///< milliseconds

} // namespace

Notices::Notices(QDBusConnection session, QObject* parent)
    : QObject(parent)
    , mBus(std::move(session))
{
}

void Notices::show(const QString& text)
{
    if (!mBus.isConnected()) {
        return;
    }
    if (std::exchange(mIsAsking, true)) {
        mNext = text; // the number of the one that it replaces is not known yet
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        kNotifications, kNotificationsPath, kNotifications, QStringLiteral("Notify"));
    call << QStringLiteral("tdsg-driver") << mLast << QStringLiteral("org.quorvia.tdsg-driver")
         << text << QString() << QStringList() << QVariantMap{{QStringLiteral("transient"), true}}
         << kShownTime;
    auto* const answer = new QDBusPendingCallWatcher(mBus.asyncCall(call, kNoticeAnswerTime), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<uint> reply = *answer;
        mLast = reply.isValid() ? reply.value() : 0;
        mIsAsking = false;
        if (const QString next = std::exchange(mNext, {}); !next.isEmpty()) {
            show(next);
        }
    });
}
