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
 * Events over the D-Bus session bus, on a connection of its own, made when it is first needed and
 * made again after it was lost.
 *
 * A send's time-out bounds the connecting, too: a bus that hangs is found out before. Only one that
 * stops just between its first answer and the connection's last step holds the caller for longer,
 * for the 25 seconds of the bus library.
 */
class DBusAppleEvents final : public AppleEvents {
public:
    DBusAppleEvents();
    ~DBusAppleEvents() override;

    OSErr send(const AppleEvent& event, AppleEvent* reply, AESendMode mode, AESendPriority priority,
        std::int32_t timeOut) override;
    OSErr finishSends() override;
    OSErr installEventHandler(AEEventClass eventClass, AEEventID eventID, Handler handler) override;
    OSErr removeEventHandler(AEEventClass eventClass, AEEventID eventID) override;
    void acceptEventsFrom(FourCharCode signature) override;

    /**
     * Becomes the application with that signature, to which everybody on the bus may send events.
     * Fails without a bus, or if another program has the name.
     */
    Result<> registerApplication(FourCharCode signature);

    /** Tells who accepts this application's events that it would now answer otherwise than before.
     */
    void announceChange();

    /** The connection to the session bus; not connected when there is none. */
    QDBusConnection connection();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
