// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "LivingBus.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDeadlineTimer>
#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace platform {

namespace {

/** The addresses of the bus to try, in order. */
QByteArrayList addresses()
{
    const QByteArray given = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!given.isEmpty()) {
        return given.split(';');
    }
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QByteArrayList() : QByteArrayList{"unix:path=" + folder + "/bus"};
}

/**
 * The socket's name, with a leading NUL for an abstract one; nothing for other kinds of addresses.
 */
std::optional<QByteArray> socketName(const QByteArray& address)
{
    static constexpr char kUnix[] = "unix:"; // NOLINT(*-avoid-c-arrays): a literal
    if (!address.startsWith(kUnix)) {
        return std::nullopt;
    }
    for (const QByteArray& entry : address.mid(sizeof kUnix - 1).split(',')) {
        const QByteArray value = QByteArray::fromPercentEncoding(entry.mid(entry.indexOf('=') + 1));
        if (entry.startsWith("path=")) {
            return value;
        }
        if (entry.startsWith("abstract=")) {
            return '\0' + value;
        }
    }
    return std::nullopt;
}

bool waitForAnswer(int socket, const QDeadlineTimer& deadline)
{
    std::array wanted{pollfd{socket, POLLIN, 0}};
    int ready = 0;
    do {
        ready = ::poll(wanted.data(), wanted.size(),
            static_cast<int>(std::max<qint64>(deadline.remainingTime(), 0)));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

/** Starts the authentication, and waits for any answer. */
bool isAnswered(int socket, const QDeadlineTimer& deadline)
{
    // The bus gets the user from the socket; the ID is sent in hexadecimal.
    const QByteArray words = '\0' + QByteArrayLiteral("AUTH EXTERNAL ")
        + QByteArray::number(::getuid()).toHex() + "\r\n";
    const auto size = static_cast<std::size_t>(words.size());
    return ::send(socket, words.constData(), size, MSG_NOSIGNAL) == static_cast<ssize_t>(size)
        && waitForAnswer(socket, deadline);
}

} // namespace

bool sessionBusAnswers(std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit, Qt::PreciseTimer);
    for (const QByteArray& address : addresses()) {
        const std::optional<QByteArray> name = socketName(address);
        sockaddr_un place{};
        if (!name || static_cast<std::size_t>(name->size()) >= sizeof place.sun_path) {
            return true;
        }
        const auto length = static_cast<std::size_t>(name->size());
        place.sun_family = AF_UNIX;
        std::memcpy(place.sun_path, name->constData(), length);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        const auto closing = qScopeGuard([socket] { ::close(socket); });
        if (::connect(socket, reinterpret_cast<const sockaddr*>(&place),
                static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length))
            == 0) {
            return isAnswered(socket, deadline);
        }
        if (errno == EAGAIN) {
            return false; // its backlog is full
        }
    }
    return true;
}

QDBusMessage busCall(const char* method, const QString& name)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage call = QDBusMessage::createMethodCall(
        bus, QStringLiteral("/org/freedesktop/DBus"), bus, QLatin1String(method));
    call << name;
    return call;
}

void ifGone(const QDBusConnection& bus, const QString& name, QObject& context,
    const std::function<void()>& act)
{
    auto* const question =
        new QDBusPendingCallWatcher(bus.asyncCall(busCall("NameHasOwner", name)), &context);
    QObject::connect(question, &QDBusPendingCallWatcher::finished, &context, [question, act] {
        question->deleteLater();
        const QDBusPendingReply<bool> hasOwner = *question;
        if (hasOwner.isValid() && !hasOwner.value()) {
            act();
        }
    });
}

bool isUnanswered(const QDBusError& error)
{
    switch (error.type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return true;
    default:
        return false;
    }
}

} // namespace platform
