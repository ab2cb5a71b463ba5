// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>

namespace platform {

/**
 * Whether the session bus responds, so that connecting will not block for long: tries the first
 * step of a connection on a separate socket.
 *
 * The time-out of the connection itself cannot be set; if the bus hangs, it takes 25 seconds and
 * blocks all connections of the process.
 *
 * @param limit the maximum time to wait for the answer
 * @return false if the bus accepts connections but does not answer; true if there is no bus, since
 *     connecting then fails at once, or if its address is not a Unix socket
 */
bool sessionBusAnswers(std::chrono::milliseconds limit);

/** Creates a call to the bus itself: a method of org.freedesktop.DBus about a name on the bus. */
QDBusMessage busCall(const char* method, const QString& name);

/**
 * Asks the bus whether somebody has the name, for a caller that may have left before it was
 * watched. If nobody has it, calls the function later.
 *
 * @param context gets the pending call as a child, and must delete it before its connection closes
 */
void ifGone(const QDBusConnection& bus, const QString& name, QObject& context,
    const std::function<void()>& act);

/** Whether the error means that the receiver has not answered: it is busy, or has left the bus. */
bool isUnanswered(const QDBusError& error);

} // namespace platform
