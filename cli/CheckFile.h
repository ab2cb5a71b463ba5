// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/**
 * Looks at a configuration file entry by entry and prints a line for each: its verdict, its path,
 * what is wrong with it.
 *
 * @return whether the panel can use every entry: none is missing, of the wrong type or too big
 */
bool checkFile(const QString& path);
