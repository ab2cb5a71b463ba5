// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace platform {

/**
 * Replaces a leading "~" of the path by the user's home folder: HOME if it is set and not empty, or
 * else the folder in the password database. Any other path, or one whose home folder is not known,
 * is returned unchanged.
 */
std::string expandTilde(std::string_view path);

/**
 * The folders for a user's data and for a program's state, by the XDG Base Directory Specification:
 * XDG_DATA_HOME and XDG_STATE_HOME where they are absolute, or their defaults.
 */
QString userDataFolder();
QString userStateFolder();

} // namespace platform
