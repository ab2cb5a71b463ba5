// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DBusAppleEvents.h"

#include "AppleEventWire.h"
#include "LivingBus.h"
#include "Notifications.h"

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSet>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <deque>
#include <map>
#include <optional>
#include <utility>

namespace platform {

namespace {

Q_LOGGING_CATEGORY(lcEvents, "org.quorvia.tablet.events", QtInfoMsg)

/** The bus name of an address; empty for an unknown kind of address. */
QString destination(const AEDesc& address)
{
    const QByteArray* const bytes = address.bytes();
    if (bytes == nullptr) {
        return {};
    }
    if (address.type == typeBusName) {
        return QString::fromUtf8(*bytes);
    }
    FourCharCode signature = 0;
    if (address.type != typeApplSignature || bytes->size() != sizeof signature) {
        return {};
    }
    std::memcpy(&signature, bytes->constData(), sizeof signature);
    return wire::busName(signature);
}

OSErr errorCode(const QDBusMessage& error)
{
    const QString name = error.errorName();
    if (name == QLatin1String(wire::kCoercionFail)) {
        return errAECoercionFail;
    }
    if (name.startsWith(QLatin1String("org.freedesktop.DBus.Error.Spawn."))) {
        return procNotFound; // the bus has tried to start it
    }
    if (isUnanswered(QDBusError(error))) {
        return errAETimeout;
    }
    switch (QDBusError(error).type()) {
    case QDBusError::ServiceUnknown:
        return procNotFound;
    case QDBusError::Disconnected:
        return connectionInvalid;
    default:
        return errAEEventNotHandled;
    }
}

QDBusMessage errorReply(const QDBusMessage& call, OSErr error, const QString& why)
{
    const auto* const name =
        error == errAECoercionFail ? wire::kCoercionFail : wire::kEventNotHandled;
    return call.createErrorReply(QLatin1String(name), why);
}

/** How long installing a handler waits for a bus that hangs. */
constexpr std::chrono::milliseconds kListenLimit{250};

} // namespace

/** The object on the bus, and everything with the lifetime of a connection. */
class DBusAppleEvents::Private final : public QDBusVirtualObject {
    Q_OBJECT

public:
    Private()
        : mName(QStringLiteral("org.quorvia.AppleEvents-%1").arg(reinterpret_cast<quintptr>(this)))
    {
    }
    ~Private() override
    {
        // Before the connection: Qt 5 may free a call twice that is dropped while its connection
        // closes in another thread.
        qDeleteAll(mPending);
        disconnect();
    }

    bool isConnected() const { return mConnection && mConnection->isConnected(); }

    /** The connection; opens a new one if there is none, without a time limit. */
    QDBusConnection& connection()
    {
        if (!isConnected()) {
            connectAgain();
        }
        return *mConnection;
    }

    /** The connection; null if there is none, or the bus does not answer within the limit. */
    QDBusConnection* connectionWithin(std::chrono::milliseconds limit)
    {
        if (!isConnected() && !sessionBusAnswers(limit)) {
            return nullptr;
        }
        QDBusConnection& bus = connection();
        return bus.isConnected() ? &bus : nullptr;
    }

    /** Why there is no connection. */
    QString lastError() const
    {
        return mConnection ? mConnection->lastError().message()
                           : QStringLiteral("it does not answer");
    }

    QString introspect(const QString& /*path*/) const override
    {
        return QStringLiteral("<interface name=\"%1\">"
                              "<method name=\"%2\">"
                              "<arg name=\"eventClass\" type=\"u\" direction=\"in\"/>"
                              "<arg name=\"eventID\" type=\"u\" direction=\"in\"/>"
                              "<arg name=\"parameters\" type=\"a(u(uv))\" direction=\"in\"/>"
                              "<arg name=\"reply\" type=\"a(u(uv))\" direction=\"out\"/>"
                              "</method><signal name=\"%3\"/></interface>")
            .arg(QLatin1String(wire::kInterface), QLatin1String(wire::kSendMethod),
                QLatin1String(wire::kChangedSignal));
    }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        // The interface is optional in a call.
        if (!call.interface().isEmpty() && call.interface() != QLatin1String(wire::kInterface)) {
            return false;
        }
        if (call.member() == QLatin1String(wire::kSendMethod)) {
            dispatch(call, bus);
        } else {
            answer(call, bus,
                call.createErrorReply(QDBusError::UnknownMethod,
                    QStringLiteral("there is no method %1").arg(call.member())));
        }
        return true;
    }

    std::map<std::pair<AEEventClass, AEEventID>, Handler> mHandlers;
    std::deque<QDBusPendingCallWatcher*> mPending;
    OSErr mLastError = noErr;
    std::optional<FourCharCode> mSource; ///< the only sender that is accepted
    bool mIsApplication = false; ///< all senders are accepted
    /** A signal's object, interface and name; empty for none. */
    std::array<QString, 3> mSignal;

    void watchSource()
    {
        mOwner.reset();
        mWatcher.reset();
        if (!mSource || !isConnected()) {
            return;
        }
        mWatcher = std::make_unique<QDBusServiceWatcher>(
            wire::busName(*mSource), *mConnection, QDBusServiceWatcher::WatchForOwnerChange);
        QObject::connect(mWatcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                mOwner = owner;
                mRefused.clear();
                if (!owner.isEmpty()) {
                    noteChange();
                }
            });
        hear(&QDBusConnection::connect);
    }

    using Change = bool (QDBusConnection::*)(const QString& service, const QString& path,
        const QString& interface, const QString& name, QObject* receiver, const char* slot);

    /** Begins or ends to receive the source's signals. */
    void hear(Change change)
    {
        const QString service = wire::busName(*mSource);
        (*mConnection.*change)(service, QLatin1String(wire::kObjectPath),
            QLatin1String(wire::kInterface), QLatin1String(wire::kChangedSignal), this,
            SLOT(noteChange()));
        if (const auto& [object, interface, name] = mSignal; !name.isEmpty()) {
            (*mConnection.*change)(
                service, object, interface, name, this, SLOT(noteSignal(QDBusMessage)));
        }
    }

    void noteAnswer(QDBusPendingCallWatcher* watcher)
    {
        if (std::erase(mPending, watcher) == 0) {
            return;
        }
        notifications().post(
            {watcher->isError() ? kEventNotTakenNotification : kEventTakenNotification, nullptr,
                {}});
        if (watcher->isError()) {
            mLastError = errorCode(watcher->reply());
            // The sender has long continued and does not care, so this is only logged for
            // debugging.
            qCDebug(lcEvents, "an event was not accepted: %s",
                qUtf8Printable(watcher->error().message()));
        }
        watcher->deleteLater();
    }

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): moc reads it
    void noteChange() { notifications().post({kSourceChangedNotification, nullptr, {}}); }
    void noteSignal(const QDBusMessage& signal)
    {
        notifications().post({kSourceSignalNotification, nullptr, {}, {}, signal.arguments()});
    }

private:
    void connectAgain()
    {
        disconnect();
        mConnection = QDBusConnection::connectToBus(QDBusConnection::SessionBus, mName);
        if (mConnection->isConnected()) {
            mConnection->registerVirtualObject(QLatin1String(wire::kObjectPath), this);
            watchSource();
        }
    }

    void disconnect()
    {
        mWatcher.reset();
        if (mConnection) {
            // It closes in another thread, which must not find this object while that ends.
            if (mSource) {
                hear(&QDBusConnection::disconnect);
            }
            mConnection->unregisterObject(QLatin1String(wire::kObjectPath));
            mConnection.reset();
            QDBusConnection::disconnectFromBus(mName);
        }
    }

    static void answer(
        const QDBusMessage& call, const QDBusConnection& bus, const QDBusMessage& reply)
    {
        if (call.isReplyRequired()) {
            bus.send(reply);
        }
    }

    void dispatch(const QDBusMessage& call, const QDBusConnection& bus)
    {
        const QString sender = call.service();
        if (!mayDeliver(sender)) {
            logRefusal(sender, "an event that is not from the driver");
            answer(call, bus,
                call.createErrorReply(QDBusError::AccessDenied,
                    QStringLiteral("only the tablet's driver may send events here")));
            return;
        }
        const QList<QVariant> arguments = call.arguments();
        std::optional<AERecord> parameters;
        if (call.signature() == QLatin1String(wire::kSendSignature)) {
            parameters = wire::decode(arguments[2]);
        }
        if (!parameters) {
            logRefusal(sender, "a malformed event");
            answer(call, bus,
                errorReply(call, errAECoercionFail, QStringLiteral("the event is malformed")));
            return;
        }
        handle({arguments[0].toUInt(), arguments[1].toUInt(), {typeBusName, sender.toUtf8()},
                   std::move(*parameters)},
            call, bus);
    }

    void handle(const AppleEvent& event, const QDBusMessage& call, const QDBusConnection& bus)
    {
        const auto found = mHandlers.find({event.eventClass, event.eventID});
        if (found == mHandlers.end()) {
            answer(call, bus,
                errorReply(call, errAEEventNotHandled,
                    QStringLiteral("there is no handler for the event %1/%2")
                        .arg(QLatin1String(quoted(event.eventClass)),
                            QLatin1String(quoted(event.eventID)))));
            return;
        }
        AppleEvent reply;
        // A handler that asks the user something may run the event loop for minutes. Then the event
        // is answered from there.
        bool isAnswered = false;
        QObject whileItAsks;
        QMetaObject::invokeMethod(
            &whileItAsks,
            [&isAnswered, &reply, call, bus] {
                isAnswered = true;
                answer(call, bus, call.createReply(wire::encode(reply.parameters)));
            },
            Qt::QueuedConnection);
        // A copy, since a handler may remove itself.
        const Handler handler = found->second;
        const OSErr error = handler(event, reply);
        if (isAnswered) {
            return;
        }
        const AEDesc* const text = find(reply.parameters, keyErrorString);
        const QByteArray* const why = text == nullptr ? nullptr : text->bytes();
        answer(call, bus,
            error == noErr ? call.createReply(wire::encode(reply.parameters))
                           : errorReply(call, error,
                               why == nullptr ? QString::number(error) : QString::fromUtf8(*why)));
    }

    /** Logs only the first rejection of each sender, so that nobody can flood the log. */
    void logRefusal(const QString& sender, const char* what)
    {
        if (!mRefused.contains(sender) && mRefused.size() < kMaxRefused) {
            mRefused.insert(sender);
            qCWarning(lcEvents, "rejected %s, sent by %s", what, qUtf8Printable(sender));
        }
    }

    bool mayDeliver(const QString& sender)
    {
        if (mIsApplication) {
            return true;
        }
        if (!mSource) {
            return false;
        }
        if (!mOwner) {
            // A call may have arrived before the connection was lost.
            if (!mConnection) {
                return false;
            }
            const QDBusReply<QString> owner =
                mConnection->call(busCall("GetNameOwner", wire::busName(*mSource)));
            mOwner = owner.value();
        }
        return !sender.isEmpty() && sender == *mOwner;
    }

    static constexpr int kMaxRefused = 64; ///< maximum of log lines about strangers

    QString mName;
    std::optional<QDBusConnection> mConnection;
    std::unique_ptr<QDBusServiceWatcher> mWatcher;
    std::optional<QString> mOwner; ///< the owner of the source's name; nothing until it is needed
    QSet<QString> mRefused;
};

DBusAppleEvents::DBusAppleEvents()
    : d(std::make_unique<Private>())
{
}

DBusAppleEvents::~DBusAppleEvents() = default;

OSErr DBusAppleEvents::send(const AppleEvent& event, AppleEvent* reply, AESendMode mode,
    AESendPriority priority, std::int32_t timeOut)
{
    // The bus has no priorities, and every event expects a reply.
    static_cast<void>(mode);
    static_cast<void>(priority);

    QElapsedTimer sinceStart;
    sinceStart.start();
    const std::chrono::milliseconds limit(std::int64_t{timeOut} * 1000 / kTicksPerSecond);
    QDBusConnection* const bus = d->connectionWithin(limit);
    const QString receiver = destination(event.address);
    if (bus == nullptr || receiver.isEmpty()) {
        if (reply == nullptr) {
            notifications().post({kEventNotTakenNotification, nullptr, {}});
        }
        return connectionInvalid;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(receiver, QLatin1String(wire::kObjectPath),
        QLatin1String(wire::kInterface), QLatin1String(wire::kSendMethod));
    call << event.eventClass << event.eventID << wire::encode(event.parameters);
    if (reply == nullptr) {
        auto* const watcher = new QDBusPendingCallWatcher(
            bus->asyncCall(call, static_cast<int>(limit.count())), d.get());
        d->mPending.push_back(watcher);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, d.get(),
            [this](QDBusPendingCallWatcher* answered) { d->noteAnswer(answered); });
        return noErr;
    }
    const qint64 rest = std::max<qint64>(limit.count() - sinceStart.elapsed(), 1);
    const QDBusMessage answer = bus->call(call, QDBus::Block, static_cast<int>(rest));
    if (answer.type() != QDBusMessage::ReplyMessage) {
        qCDebug(lcEvents, "%s did not answer: %s", qUtf8Printable(receiver),
            qUtf8Printable(answer.errorMessage()));
        return errorCode(answer);
    }
    std::optional<AERecord> parameters;
    if (answer.arguments().size() == 1) {
        parameters = wire::decode(answer.arguments().constFirst());
    }
    if (!parameters) {
        qCWarning(lcEvents, "%s sent a malformed reply", qUtf8Printable(receiver));
        return errAECoercionFail;
    }
    reply->parameters = std::move(*parameters);
    return noErr;
}

OSErr DBusAppleEvents::finishSends()
{
    while (!d->mPending.empty()) {
        QDBusPendingCallWatcher* const watcher = d->mPending.front();
        watcher->waitForFinished();
        d->noteAnswer(watcher);
    }
    return std::exchange(d->mLastError, noErr);
}

OSErr DBusAppleEvents::installEventHandler(
    AEEventClass eventClass, AEEventID eventID, Handler handler)
{
    d->mHandlers.insert_or_assign({eventClass, eventID}, std::move(handler));
    return noErr;
}

OSErr DBusAppleEvents::removeEventHandler(AEEventClass eventClass, AEEventID eventID)
{
    return d->mHandlers.erase({eventClass, eventID}) == 1 ? noErr : errAEHandlerNotFound;
}

void DBusAppleEvents::acceptEventsFrom(FourCharCode signature)
{
    d->mSource = signature;
    const bool wasConnected = d->isConnected();
    if (d->connectionWithin(kListenLimit) != nullptr) {
        if (wasConnected) {
            d->watchSource(); // a new connection does so itself
        }
    } else {
        qCWarning(lcEvents, "no session bus: %s", qUtf8Printable(d->lastError()));
    }
}

void DBusAppleEvents::acceptSignal(
    const QString& object, const QString& interface, const QString& name)
{
    d->mSignal = {object, interface, name};
}

Result<> DBusAppleEvents::registerApplication(FourCharCode signature)
{
    QDBusConnection& bus = d->connection();
    if (!bus.isConnected()) {
        return Error{bus.lastError().message()};
    }
    const QString name = wire::busName(signature);
    d->mIsApplication = true;
    const auto request = bus.interface()->registerService(name,
        QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    if (request.value() == QDBusConnectionInterface::ServiceRegistered) {
        return {};
    }
    d->mIsApplication = false;
    return Error{QStringLiteral("another program has the name %1").arg(name)};
}

void DBusAppleEvents::announceChange()
{
    d->connection().send(QDBusMessage::createSignal(QLatin1String(wire::kObjectPath),
        QLatin1String(wire::kInterface), QLatin1String(wire::kChangedSignal)));
}

QDBusConnection DBusAppleEvents::connection()
{
    return d->connection();
}

} // namespace platform

#include "DBusAppleEvents.moc"
