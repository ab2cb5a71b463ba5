// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <array>
#include <cstddef>
#include <cstdint>

/**
 * @file
 * The one settings record, the name of its file, and the question to the driver that finds both.
 *
 * Everything runs on the main thread; nothing is copied or locked.
 */

/** How long a request waits for the driver, in ticks: a quarter of a second. */
inline constexpr std::int32_t kQVDriverTimeOut = 15;

/** Bytes of the configuration file's name, its terminating NUL included. */
inline constexpr std::size_t kQVListNameSize = 32;

/**
 * All settings of the attached tablet. Zero when the module is loaded, alive as long as it is, and
 * never cleared: what a file lacks keeps its value.
 */
extern tagQVTabletInfo qvTabletInfo;

/** Name of the configuration file, NUL-terminated; empty until the driver has answered. */
extern std::array<char, kQVListNameSize> pListname;

/** The record; never null. */
tagQVTabletInfo* GetqvTabletInfo();

/** The file's name; never null. */
char* GetPListName();

/**
 * Asks the driver for the attached tablet's configuration file. Blocks for at most
 * kQVDriverTimeOut.
 *
 * @param name takes "<number>.plist", at most 12 bytes with the NUL; the number is the low 16 bits
 *     of the driver's answer. Left alone when the driver does not answer.
 * @return whether a tablet is there: the answer is not 0
 */
bool GetQVConfigFileName(char* name);

/** The same into pListname. */
bool rzkgetQVDevice();

/** Whether a tablet is there, without noting its file. The spelling is the function's name. */
bool GetQVTabeltDevices();
