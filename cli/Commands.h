// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/**
 * @file
 * The commands. Each writes its output to standard output and errors to standard error, and returns
 * the exit code.
 */

inline constexpr int kExitGood = 0;
inline constexpr int kExitBad = 1; ///< no driver, no tablet, or no usable file
inline constexpr int kExitUsage = 2; ///< the command line is not valid

/** Prints whether there is a driver, a tablet, and a usable file. */
int runStatus();

/** Prints the record in a file or a pipe, or, without one, the driver's last record. */
int runShow(const std::optional<QString>& file, bool asJson);

/** Checks a file or a pipe entry by entry. */
int runCheck(const QString& file);

/** Loads the tablet's file and pushes the record. */
int runPush();

/** Sets the tablet's report mode over USB. */
int runUsbMode(bool isFast);

/** Touches a point of the tablet with the simulated pen, in tablet units. */
int runSimTap(std::uint16_t x, std::uint16_t y);

/** Sets one entry of the tablet's file, pushes the record and saves the file. */
int runSet(const QString& entry, const QString& value);
