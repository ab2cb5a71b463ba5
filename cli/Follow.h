// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Geometry.h"

#include <QByteArray>

#include <optional>

/**
 * Uses the profile for the application in front, until a signal ends it. @return kExitBad if that
 * cannot be known here, or if another process does so already
 */
int runFollow(const Arguments& arguments);

/**
 * Prints the mapped area for the display with a number, 0 for all of them: its left and upper edge,
 * width and height. For runFollow(), which has no connection to the window system itself, since it
 * would end with it.
 */
int runMappedArea(const Arguments& arguments);

/** The area in the line that runMappedArea() prints; nothing if that cannot be one. */
std::optional<platform::Rect> mappedAreaIn(const QByteArray& line);
