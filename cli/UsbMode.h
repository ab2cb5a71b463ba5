// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QString>

#include <cstdint>

/**
 * Tells a tablet on the USB bus its report mode; blocks like controlUSBDev().
 *
 * @param name the tablet's, for the sentence
 */
platform::Result<QString> setUsbMode(bool isFast, std::uint16_t productID, const QString& name);
