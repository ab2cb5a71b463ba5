// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

/**
 * Has an application object with a connection to the window system, and prints a line of
 * Mapping.h for the displays, now and after each change, until standard input is closed. Runs in a
 * process of its own, see DisplayWatcher.
 *
 * @return the exit code of the process
 */
int reportDisplays(int argc, char** argv);
