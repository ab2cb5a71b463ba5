// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QString>

#include <cstdint>

/**
 * Sets a tablet's report mode over USB; blocks like controlUSBDev().
 *
 * @param name the tablet's, for the message
 */
platform::Result<QString> setUsbMode(bool isFast, std::uint16_t productID, const QString& name);
