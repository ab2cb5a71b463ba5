// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Watchdog.h"

#include "Descriptor.h"

#include <QCoreApplication>

#include <chrono>
#include <cstddef>
#include <cstring>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>

Watchdog::Watchdog()
    : mSocket(qgetenv("NOTIFY_SOCKET"))
{
    const std::chrono::microseconds limit(qgetenv("WATCHDOG_USEC").toLongLong());
    const QByteArray process = qgetenv("WATCHDOG_PID");
    const bool isOurs =
        process.isEmpty() || process.toLongLong() == QCoreApplication::applicationPid();
    if (mSocket.isEmpty() || limit.count() <= 0 || !isOurs) {
        return;
    }
    connect(&mTimer, &QTimer::timeout, this, &Watchdog::due);
    mTimer.start(
        std::chrono::duration_cast<std::chrono::milliseconds>(limit / 4)); // an answer may get lost
}

void Watchdog::feed() const
{
    constexpr std::string_view kAlive = "WATCHDOG=1";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto length = static_cast<std::size_t>(mSocket.size());
    if (mSocket.isEmpty() || length >= sizeof address.sun_path) {
        return;
    }
    std::memcpy(address.sun_path, mSocket.constData(), length);
    if (address.sun_path[0] == '@') {
        address.sun_path[0] = '\0'; // the kernel's notation for a name without a file
    }
    const Descriptor socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    // A message that is lost is followed by another one in time.
    [[maybe_unused]] const ssize_t sent = ::sendto(socket.get(), kAlive.data(), kAlive.size(),
        MSG_NOSIGNAL, reinterpret_cast<const sockaddr*>(&address),
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length));
}
