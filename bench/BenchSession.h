// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DBusAppleEvents.h"
#include "DriverProcess.h"
#include "PrivateBus.h"
#include "Service.h"
#include "TemporaryHome.h"

/** A bus with the real driver, and the panel's own event service on it. */
struct BenchSession {
    TemporaryHome home;
    PrivateBus bus;
    DriverProcess driver;
    platform::DBusAppleEvents events;
    platform::ServiceScope<platform::AppleEvents> scope{events};
};

/** Returns the only session of this run: libdbus uses one bus address per process. */
BenchSession& benchSession();
