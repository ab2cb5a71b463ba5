// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "FollowService.h"

#include "BusNames.h"
#include "LivingBus.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QStringList>

#include <chrono>
#include <utility>

using platform::kSystemd;
using platform::kSystemdManager;
using platform::kSystemdPath;

namespace {

constexpr QLatin1String kFollowUnit("qvtblt-follow.service");
constexpr int kSystemdAnswerTime = 10000; ///< milliseconds
constexpr std::chrono::milliseconds kBusTime(100);

/** Whether the call has reached nobody. */
bool isUnheard(const QDBusMessage& reply)
{
    const QDBusError error(reply);
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::NoServer:
    case QDBusError::Disconnected:
        return true;
    default:
        // The last is sent where the service must not be started; it has no type of its own.
        return platform::isUnanswered(error)
            || reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
    }
}

} // namespace

FollowService::FollowService(QObject* parent)
    : QObject(parent)
    , mConnection(QStringLiteral("qvtblt-follow-%1").arg(reinterpret_cast<quintptr>(this)))
    , mBus(mConnection) // not connected yet: that takes time, and most users never need it
{
    mJob.setSingleShot(true);
    mJob.setInterval(kSystemdAnswerTime);
    connect(&mJob, &QTimer::timeout, this, &FollowService::finish);
}

FollowService::~FollowService()
{
    // The connection closes in another thread, which must not find these while they end.
    qDeleteAll(findChildren<QDBusPendingCallWatcher*>(QString(), Qt::FindDirectChildrenOnly));
    hearOfJobs(&QDBusConnection::disconnect);
    QDBusConnection::disconnectFromBus(mConnection);
}

bool FollowService::connectToBus()
{
    if (mBus.isConnected()) {
        return true;
    }
    // Connecting to a bus that hangs would take half a minute.
    if (!platform::sessionBusAnswers(kBusTime)) {
        return false;
    }
    QDBusConnection::disconnectFromBus(mConnection); // it may have been lost
    mBus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, mConnection);
    hearOfJobs(&QDBusConnection::connect);
    return mBus.isConnected();
}

void FollowService::hearOfJobs(Change change)
{
    (mBus.*change)(kSystemd, kSystemdPath, kSystemdManager, QStringLiteral("JobRemoved"), this,
        SLOT(noteJob(QDBusMessage)));
}

void FollowService::call(const char* method, const QVariantList& arguments, Next next)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        kSystemd, kSystemdPath, kSystemdManager, QLatin1String(method));
    message.setArguments(arguments);
    message.setAutoStartService(false);
    auto* const watcher =
        new QDBusPendingCallWatcher(mBus.asyncCall(message, kSystemdAnswerTime), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [watcher, next = std::move(next)](QDBusPendingCallWatcher* /*answered*/) {
            watcher->deleteLater();
            next(watcher->reply());
        });
}

void FollowService::refresh()
{
    if (mIsBusy) {
        return; // the state is asked for at the end
    }
    if (!connectToBus()) {
        become(std::nullopt, tr("Your session has no bus that answers."));
        return;
    }
    mIsBusy = true;
    call("GetUnitFileState", {QString(kFollowUnit)},
        [this](const QDBusMessage& reply) { takeState(reply); });
}

void FollowService::takeState(const QDBusMessage& reply)
{
    mIsBusy = false;
    const bool isStarting = std::exchange(mIsStarting, false);
    const QString state = reply.arguments().value(0).toString();
    if (isUnheard(reply)) {
        become(std::nullopt,
            tr("Your session has no systemd user manager, which would start the service."));
    } else if (reply.type() == QDBusMessage::ErrorMessage) {
        //: %1 is the name of a service of systemd.
        become(std::nullopt, tr("The service %1 is not installed.").arg(kFollowUnit));
    } else if (state.startsWith(QLatin1String("enabled"))) {
        askWhetherItRuns(isStarting);
    } else if (state == QLatin1String("disabled")) {
        become(false, {});
    } else {
        //: %1 is the name of a service of systemd, %2 one of systemd's words, such as "masked".
        become(std::nullopt,
            tr("The service %1 cannot be turned on: it is %2.").arg(kFollowUnit, state));
    }
}

void FollowService::askWhetherItRuns(bool isStarting)
{
    mIsBusy = true;
    call("ListUnitsByNames", {QStringList{kFollowUnit}},
        [this, isStarting](const QDBusMessage& reply) {
            mIsBusy = false;
            // The unit's state is the fourth of its ten values: "inactive" and "failed" have ended.
            QString state;
            if (const auto units = reply.arguments().value(0).value<QDBusArgument>();
                units.currentType() == QDBusArgument::ArrayType) {
                QString name;
                QString description;
                QString loaded;
                units.beginArray();
                if (!units.atEnd()) {
                    units.beginStructure();
                    units >> name >> description >> loaded >> state;
                    units.endStructure();
                }
                units.endArray(); // otherwise, Qt keeps what has begun
            }
            const bool hasEnded =
                state == QLatin1String("inactive") || state == QLatin1String("failed");
            //: The words in quotation marks are a command.
            const QString fault =
                tr("Profiles do not follow applications now: the service does not "
                   "run. What “systemctl --user status qvtblt-follow” prints may "
                   "say why.");
            become(true, hasEnded ? fault : QString());
            if (hasEnded && isStarting) {
                Q_EMIT failed(fault);
            }
        });
}

void FollowService::noteJob(const QDBusMessage& removed)
{
    // The job's number and path, its unit, and the result.
    if (mJob.isActive() && removed.arguments().value(2) == QString(kFollowUnit)) {
        mJob.stop();
        finish();
    }
}

void FollowService::set(bool isOn)
{
    if (mIsBusy || !connectToBus()) {
        refresh();
        return;
    }
    mIsBusy = true;
    const QStringList units{kFollowUnit};
    const auto reload = [this, isOn](const QDBusMessage& reply) {
        if (!goesOn(reply)) {
            return;
        }
        call("Reload", {}, [this, isOn](const QDBusMessage& reloaded) {
            if (!goesOn(reloaded)) {
                return;
            }
            const QVariantList job{QString(kFollowUnit), QStringLiteral("replace")};
            call(isOn ? "StartUnit" : "StopUnit", job, [this, isOn](const QDBusMessage& done) {
                // What does not run need not be stopped.
                if (!isOn
                    && done.errorName() == QLatin1String("org.freedesktop.systemd1.NoSuchUnit")) {
                    finish();
                } else if (goesOn(done)) {
                    mIsStarting = isOn;
                    mJob.start(); // until it has started or stopped
                }
            });
        });
    };
    // So that it sends signals.
    call("Subscribe", {}, [](const QDBusMessage& /*answer*/) {});
    // For all sessions, not only until the next start of the computer, and nothing by force.
    if (isOn) {
        call("EnableUnitFiles", {units, false, false}, reload);
    } else {
        call("DisableUnitFiles", {units, false}, reload);
    }
}

bool FollowService::goesOn(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ErrorMessage) {
        return true;
    }
    finish();
    //: %1 is the reason, in English.
    Q_EMIT failed(tr("“Follow Applications” was not changed: %1").arg(reply.errorMessage()));
    return false;
}

void FollowService::finish()
{
    mIsBusy = false;
    refresh();
}

void FollowService::become(std::optional<bool> isOn, const QString& fault)
{
    mIsOn = isOn;
    mFault = fault;
    Q_EMIT changed();
}
