// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/**
 * @file
 * What the command line does. Each command writes its answer to standard output and its complaints
 * to standard error, and returns the exit code.
 */

inline constexpr int kExitGood = 0;
inline constexpr int kExitBad = 1; ///< there is no driver, no tablet, no usable file
inline constexpr int kExitUsage = 2; ///< the command line itself is wrong

/** Says whether there is a driver, a tablet, and a usable file. */
int runStatus();

/** Prints the record of a file or a pipe, or, without one, what the driver got last. */
int runShow(const std::optional<QString>& file, bool asJson);

/** Checks a file or a pipe entry by entry. */
int runCheck(const QString& file);

/** Loads the tablet's file and pushes the record. */
int runPush();

/** Tells the tablet on the USB bus its report mode: "fast" or "normal". */
int runUsbMode(bool isFast);

/** Has the simulated pen touch a point of the tablet, in tablet units. */
int runSimTap(std::uint16_t x, std::uint16_t y);

/** Sets one entry of the tablet's file, pushes the record and saves the file. */
int runSet(const QString& entry, const QString& value);
