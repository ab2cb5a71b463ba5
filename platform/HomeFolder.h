// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace platform {

/**
 * The path with a leading "~" replaced by the user's home folder: HOME where it is set and not
 * empty, else the folder of the password database. Another path, and one for whose "~" no folder is
 * known, comes back as it is.
 */
std::string expandTilde(std::string_view path);

} // namespace platform
