// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "UnixSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace platform {

namespace {

/** The handler may only write; the event loop reads from the other end. */
std::array<int, 2> sockets{-1, -1};

void handle(int number)
{
    const int before = errno;
    const auto byte = static_cast<unsigned char>(number);
    // If the socket is full, enough signals are pending already.
    static_cast<void>(::send(sockets[0], &byte, sizeof byte, MSG_DONTWAIT | MSG_NOSIGNAL));
    errno = before;
}

} // namespace

UnixSignals::UnixSignals(std::initializer_list<int> numbers)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(sockets[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        unsigned char byte = 0;
        if (::recv(sockets[1], &byte, sizeof byte, MSG_DONTWAIT) == sizeof byte) {
            Q_EMIT received(byte);
        }
    });
    struct sigaction action { };
    action.sa_handler = handle; // NOLINT(cppcoreguidelines-pro-type-union-access): the C interface
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : numbers) {
        ::sigaction(number, &action, nullptr);
    }
}

} // namespace platform
