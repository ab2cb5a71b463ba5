// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Geometry.h"

#include <QByteArray>

#include <optional>

/**
 * Uses the profile for the application in front, until a signal ends it.
 *
 * @return kExitBad if this desktop does not report the application, or if another process already
 * follows it
 */
int runFollow(const Arguments& arguments);

/**
 * Prints the mapped area for the display with a number, 0 for all of them: its left and upper edge,
 * width and height. For runFollow(), which does not connect to the window system itself, since the
 * loss of that connection would end it.
 */
int runMappedArea(const Arguments& arguments);

/** The area in the line that runMappedArea() prints; nothing if that cannot be one. */
std::optional<platform::Rect> mappedAreaIn(const QByteArray& line);
