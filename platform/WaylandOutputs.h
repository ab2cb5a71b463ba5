// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

namespace platform {

/**
 * How many pixels a display has on Wayland, however it is scaled, with its width and height as it
 * is turned. Asks the compositor over a connection of its own, since Qt keeps only a size that has
 * been scaled by a whole number. Blocks for the compositor's answer.
 *
 * @param name of the output, such as "DP-1"
 * @return empty without Wayland, or if the compositor does not name its outputs
 */
QSize waylandOutputPixels(const QString& name);

} // namespace platform
