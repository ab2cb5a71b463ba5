// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/**
 * Pushes the settings to the driver, so that a change works at once. Never waits for the driver.
 *
 * Writes two lines to standard error: the four bytes at offsets 318 to 321 of the record, and how
 * far it came.
 *
 * @param record at least 322 bytes, normally the whole record
 * @param length bytes to push, normally kQVRecordSize
 * @return whether the event was made and handed over; not whether the driver took it
 */
bool ConnectToDriver(const void* record, std::int32_t length);
