// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DBusAppleEvents.h"
#include "DriverProcess.h"
#include "PrivateBus.h"
#include "Service.h"
#include "TemporaryHome.h"

/** A bus with the real driver, and the panel's own service on it. */
struct BenchSession {
    TemporaryHome home;
    PrivateBus bus;
    DriverProcess driver;
    platform::DBusAppleEvents events;
    platform::ServiceScope<platform::AppleEvents> scope{events};
};

/** The one session of this run: D-Bus's library knows one address in a process's life. */
BenchSession& benchSession();
