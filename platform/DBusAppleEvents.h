// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "Result.h"

#include <QDBusConnection>
#include <QString>

#include <memory>

namespace platform {

/**
 * Events over the D-Bus session bus, on a connection of its own that is opened when it is first
 * needed and reopened when it is lost.
 *
 * A send's time-out includes the time to connect: a bus that hangs is detected first. Only a bus
 * that stops between its first answer and the last step of the connection blocks the caller for
 * longer: for the 25 seconds of the bus library.
 */
class DBusAppleEvents : public AppleEvents {
public:
    DBusAppleEvents();
    ~DBusAppleEvents() override;

    OSErr send(const AppleEvent& event, AppleEvent* reply, AESendMode mode, AESendPriority priority,
        std::int32_t timeOut) override;
    OSErr finishSends() override;
    OSErr installEventHandler(AEEventClass eventClass, AEEventID eventID, Handler handler) override;
    OSErr removeEventHandler(AEEventClass eventClass, AEEventID eventID) override;
    void acceptEventsFrom(FourCharCode signature) override;
    void acceptSignal(
        const QString& object, const QString& interface, const QString& name) override;

    /**
     * Registers this process as the application with that signature, to which all programs on the
     * bus may send events. Fails without a bus, or if another program has the name.
     */
    Result<> registerApplication(FourCharCode signature);

    /**
     * Announces to programs that accept this application's events that its answers have changed.
     */
    void announceChange();

    /** The connection to the session bus; disconnected if there is no bus. */
    QDBusConnection connection();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
