// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QString>

#include <string_view>

/**
 * @file
 * Files that are saved whole or not at all: written to a temporary file in the same folder, flushed
 * to disk, then put in place. If the disk is full, the process is killed or the machine loses
 * power, the old file stays as it is. Errors hold the system's text only.
 */
namespace platform {

/** Replaces a file, or creates it. The mode of an old file is kept. */
Result<> replaceFile(const QString& path, std::string_view bytes);

/** Creates a file that only its owner can access; fails if there is one at the path. */
Result<> createFile(const QString& path, std::string_view bytes);

} // namespace platform
