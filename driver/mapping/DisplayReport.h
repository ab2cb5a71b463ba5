// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

/**
 * Connects to the window system, and prints the desktop in the form of Mapping.h, one line now and
 * one after each change, until standard input is closed. Runs in a process of its own, see
 * DisplayWatcher.
 *
 * @return the exit code of the process
 */
int reportDisplays(int argc, char** argv);

/**
 * Quarter turns by which the desktop has rotated a display.
 *
 * @param orientation as Qt reports it: Qt counts a portrait panel's natural position as rotated
 * @param isUpright whether the panel itself is higher than wide
 */
int turnsOf(Qt::ScreenOrientation orientation, bool isUpright);
