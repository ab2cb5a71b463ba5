// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

/**
 * How long a test waits for an event before it fails, in milliseconds. A wait ends with its event,
 * so this costs nothing, and a machine that is busy with something else may take long.
 */
inline constexpr int kPatience = 60000;
