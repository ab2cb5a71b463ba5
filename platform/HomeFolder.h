// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace platform {

/**
 * Replaces a leading "~" of the path by the user's home folder: HOME if it is set and not empty, or
 * else the folder in the password database. Any other path, or one whose home folder is not known,
 * is returned unchanged.
 */
std::string expandTilde(std::string_view path);

} // namespace platform
