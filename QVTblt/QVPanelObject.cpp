// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPanelObject.h"

#include "LivingBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QThread>

#include <utility>

using platform::Error;
using platform::Result;

namespace {

constexpr QLatin1String kBusService("org.freedesktop.DBus");
constexpr QLatin1String kBusPath("/org/freedesktop/DBus");

constexpr QLatin1String kFailed("org.quorvia.TabletPanel1.Error.Failed");

/** Flags of a request for a name, and an answer; D-Bus Specification, "RequestName". */
constexpr std::uint32_t kAllowReplacement = 1;
constexpr std::uint32_t kReplaceExisting = 2;
constexpr std::uint32_t kInQueue = 2;

constexpr int kReleaseTime = 250; ///< milliseconds
constexpr int kReleasePause = 5; ///< milliseconds
/** Changing the tablet's report speed may take four seconds. */
constexpr int kAnswerTime = 10000; ///< milliseconds

bool isWithoutObject(const QDBusMessage& reply)
{
    return QDBusError(reply).type() == QDBusError::UnknownObject;
}

} // namespace

QVPanelObject::QVPanelObject(QVProfileSwitch& own, Kind kind, QDBusConnection bus)
    : mOwn(own)
    , mKind(kind)
    , mBus(std::move(bus))
{
    qDBusRegisterMetaType<QVStringMap>();
    mBus.registerObject(
        kQVPanelPath, this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    mBus.connect(kBusService, kBusPath, kBusService, QStringLiteral("NameAcquired"), this,
        SLOT(noteAcquired(QString)));
    mBus.connect(kBusService, kBusPath, kBusService, QStringLiteral("NameLost"), this,
        SLOT(noteLost(QString)));
    const auto hear = [this](const char* signal, const char* slot) {
        mBus.connect(
            kQVPanelService, kQVPanelPath, kQVPanelInterface, QLatin1String(signal), this, slot);
    };
    hear("SettingsChanged", SLOT(takeSettings(QByteArray)));
    hear("Saved", SLOT(takeSaved()));
    mCalibrating.setConnection(mBus);
    connect(&mCalibrating, &QDBusServiceWatcher::serviceUnregistered, this,
        &QVPanelObject::endCalibration);
    auto* const owners = new QDBusServiceWatcher(
        kQVPanelService, mBus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owners, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString& /*name*/, const QString& /*before*/, const QString& owner) {
            noteOwner(owner);
        });
    requestName();
}

void QVPanelObject::requestName()
{
    delete mRequest;
    QDBusMessage request = platform::busCall("RequestName", kQVPanelService);
    request << (mKind == Kind::Panel ? kReplaceExisting : kAllowReplacement);
    mRequest = new QDBusPendingCallWatcher(mBus.asyncCall(request), this);
    connect(mRequest, &QDBusPendingCallWatcher::finished, this, [this] {
        const QDBusPendingReply<std::uint32_t> reply = *mRequest;
        if (reply.isValid() && reply.value() == kInQueue) { // an owner hears NameAcquired
            // It may have been second before, to another owner.
            mRole = Role::Second;
            if (mRoleHandler) {
                mRoleHandler();
            }
        }
    });
}

QVPanelObject::~QVPanelObject()
{
    // Before the connection, in which no pending call must be left.
    qDeleteAll(findChildren<QDBusPendingCallWatcher*>());
    mBus.unregisterObject(kQVPanelPath);
    // Waits, so that what was sent before has arrived when another one gets the name.
    mBus.call(platform::busCall("ReleaseName", kQVPanelService), QDBus::Block, kReleaseTime);
}

void QVPanelObject::setRole(Role role)
{
    if (std::exchange(mRole, role) != role && mRoleHandler) {
        mRoleHandler();
    }
}

/** The name has another owner: perhaps a follower that was in the queue before this panel. */
void QVPanelObject::noteOwner(const QString& owner)
{
    if (mRole != Role::Second || owner.isEmpty() || owner == mBus.baseService()) {
        return;
    }
    requestName();
}

void QVPanelObject::noteAcquired(const QString& name)
{
    if (name == kQVPanelService) {
        setRole(Role::Owner);
    }
}

void QVPanelObject::noteLost(const QString& name)
{
    if (name == kQVPanelService) {
        setRole(Role::Second);
    }
}

void QVPanelObject::takeSettings(const QByteArray& record)
{
    if (isSecond() && mSettingsHandler) {
        mSettingsHandler(record);
    }
}

void QVPanelObject::takeSaved()
{
    if (isSecond() && mSavedHandler) {
        mSavedHandler();
    }
}

void QVPanelObject::tellChanged()
{
    if (!isOwner()) {
        return;
    }
    const Result<QByteArray> record = mOwn.record();
    if (record && mHasSeconds && *record != mLastTold) {
        mLastTold = *record;
        send("SettingsChanged", {*record});
    }
    send("Changed");
}

void QVPanelObject::tellAnew()
{
    mLastTold.clear();
    tellChanged();
}

void QVPanelObject::tellSaved()
{
    if (isOwner()) {
        send("Saved");
    }
}

/** Sends a signal. One that is emitted is handed to another thread, and might come too late. */
void QVPanelObject::send(const char* signal, const QVariantList& arguments)
{
    QDBusMessage message =
        QDBusMessage::createSignal(kQVPanelPath, kQVPanelInterface, QLatin1String(signal));
    message.setArguments(arguments);
    mBus.send(message);
}

void QVPanelObject::answer(const Result<>& result)
{
    if (!result && calledFromDBus()) {
        sendErrorReply(kFailed, result.error().text);
    }
}

QStringList QVPanelObject::Profiles()
{
    const Result<QStringList> names = mOwn.names();
    answer(names ? Result<>() : names.error());
    return names.value_or(QStringList());
}

QString QVPanelObject::Current()
{
    const Result<QString> name = mOwn.current();
    answer(name ? Result<>() : name.error());
    return name.value_or(QString());
}

void QVPanelObject::Use(const QString& name)
{
    answer(mOwn.use(name));
}

QString QVPanelObject::UseNext()
{
    const Result<QString> name = mOwn.useNext();
    answer(name ? Result<>() : name.error());
    return name.value_or(QString());
}

void QVPanelObject::Set(const QString& entry, const QString& value)
{
    answer(mOwn.set(entry, value));
}

void QVPanelObject::Edit(const QMap<QString, QString>& values)
{
    answer(mOwn.edit(values));
}

void QVPanelObject::Follow(const QStringList& names)
{
    answer(mOwn.useFor(names));
}

void QVPanelObject::Save(const QString& name)
{
    answer(mOwn.save(name));
}

QByteArray QVPanelObject::Settings()
{
    mHasSeconds = true;
    const Result<QByteArray> record = mOwn.record();
    answer(record ? Result<>() : record.error());
    return record.value_or(QByteArray());
}

void QVPanelObject::NoteCalibration(bool isOn)
{
    const QString caller = message().service();
    if (!isOn) {
        endCalibration(caller);
    } else if (caller != mBus.baseService()) { // which may have become the owner meanwhile
        mCalibrating.addWatchedService(caller);
        platform::ifGone(mBus, caller, *this, [this, caller] { endCalibration(caller); });
    }
}

void QVPanelObject::endCalibration(const QString& caller)
{
    mCalibrating.removeWatchedService(caller);
    if (!isCalibratedByOther()) {
        tellAnew();
    }
}

void QVPanelObject::NoteSaved()
{
    if (mSavedHandler) {
        mSavedHandler();
    }
    tellSaved();
}

QDBusMessage QVPanelCall(const char* method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        kQVPanelService, kQVPanelPath, kQVPanelInterface, QLatin1String(method));
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return call;
}

std::optional<Result<>> QVAskPanel(
    const QDBusConnection& bus, const char* method, const QVariantList& arguments)
{
    const QDBusMessage call = QVPanelCall(method, arguments);
    QDBusMessage reply = bus.call(call, QDBus::Block, kAnswerTime);
    // A panel that is left gives up its object before its name.
    for (int time = 0; time < kReleaseTime && isWithoutObject(reply); time += kReleasePause) {
        QThread::msleep(kReleasePause);
        reply = bus.call(call, QDBus::Block, kAnswerTime);
    }
    if (reply.type() != QDBusMessage::ErrorMessage) {
        return Result<>();
    }
    // The bus calls it so where it must not start the owner.
    constexpr QLatin1String kNoOwner("org.freedesktop.DBus.Error.NameHasNoOwner");
    const QDBusError::ErrorType error = QDBusError(reply).type();
    if (reply.errorName() == kNoOwner || error == QDBusError::ServiceUnknown
        || error == QDBusError::Disconnected || isWithoutObject(reply)) {
        return std::nullopt;
    }
    return Error{reply.errorMessage()};
}
