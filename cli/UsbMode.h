// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

/** What became of the request for a report mode. */
struct UsbModeResult {
    bool isDone = false; ///< the tablet took it
    QString sentence; ///< in words, beginning with a small letter
};

/**
 * Tells a tablet on the USB bus its report mode; blocks like controlUSBDev().
 *
 * @param name the tablet's, for the sentence
 */
UsbModeResult setUsbMode(bool isFast, std::uint16_t productID, const QString& name);
