// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

/**
 * @file
 * Names on the buses that are defined elsewhere and used by several sources.
 */

namespace platform {

/** The interface of an object's properties, of D-Bus itself. */
inline constexpr QLatin1String kBusProperties("org.freedesktop.DBus.Properties");

/** The user's service manager: its name, its object and the interface of that. */
inline constexpr QLatin1String kSystemd("org.freedesktop.systemd1");
inline constexpr QLatin1String kSystemdPath("/org/freedesktop/systemd1");
inline constexpr QLatin1String kSystemdManager("org.freedesktop.systemd1.Manager");

} // namespace platform
