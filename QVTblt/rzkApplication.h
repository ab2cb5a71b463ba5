// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <array>
#include <cstddef>
#include <cstdint>

/**
 * @file
 * The single settings record, the name of its configuration file, and the query to the driver for
 * that name.
 *
 * Main thread only; nothing is copied or locked.
 */

/** Size of the configuration file's name, including its terminating NUL. */
inline constexpr std::size_t kQVListNameSize = 32;

/**
 * All settings of the attached tablet. Zero when the module is loaded, and never cleared: fields
 * that are missing in a file keep their value.
 */
extern tagQVTabletInfo qvTabletInfo;

/** Name of the configuration file, NUL-terminated; empty until the driver has answered. */
extern std::array<char, kQVListNameSize> pListname;

/** The record; never null. */
tagQVTabletInfo* GetqvTabletInfo();

/** The file's name; never null. */
char* GetPListName();

/**
 * Asks the driver for the attached tablet's configuration file. Blocks for up to kQVDriverTimeOut.
 *
 * @param name takes "<number>.plist", at most 12 bytes with the NUL; the number is the low 16 bits
 *     of the driver's answer. Not changed if the driver does not answer.
 * @return whether a tablet is attached: the answer is not 0
 */
bool GetQVConfigFileName(char* name);

/** The same, with pListname as the name. */
bool rzkgetQVDevice();

/**
 * The key data of the query. The driver expects the platform's long: the property's code and, if a
 * long has room for both, the driver's signature after it.
 */
std::array<std::byte, sizeof(long)> QVConfigKeyData();

/** Whether a tablet is attached, without storing its file name. The spelling is intended. */
bool GetQVTabeltDevices();
