// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/**
 * Checks a configuration file and prints a line for each entry: the verdict, its path, and the
 * problem.
 *
 * @return whether the panel can use every entry: none is missing, of a wrong type or too big
 */
bool checkFile(const QString& path);
