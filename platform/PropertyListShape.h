// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace platform {

/**
 * Checks what the parser takes on trust, so that no file can exhaust the stack or the memory or
 * change its numbers by being loaded and saved: the depth of nesting, integers that do not fit into
 * 64 bits or would be read in another base, text behind the end, and, in the binary form,
 * containers that share parts or hold themselves.
 *
 * @return why the bytes are refused; empty when the parser may have them. It may still refuse them.
 */
std::string propertyListShapeError(std::string_view bytes);

} // namespace platform
