// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "hid_usb_2_adb_keymap_char.h"

#include <algorithm>

namespace {

/** The name of the first entry with that code, so "A" for 0; empty if there is none. */
std::u16string_view nameOf(std::uint8_t code)
{
    const auto* const key = std::ranges::find(hid_usb_2_adb_keymap_char, code, &QVKeyName::code);
    return key == hid_usb_2_adb_keymap_char.end() ? std::u16string_view() : key->name;
}

} // namespace

std::u16string QVKeyCombinationText(std::uint32_t combination)
{
    const auto codeAt = [&](int position) {
        return static_cast<std::uint8_t>(combination >> static_cast<unsigned>(8 * position));
    };
    std::uint32_t remaining = codeAt(3);
    std::uint8_t code = codeAt(0);
    std::u16string text;
    if (code == 0 && remaining == 0) {
        return text;
    }
    for (int position = 0;;) {
        const std::u16string_view name = nameOf(code);
        if (!name.empty()) {
            text += position > 0 ? kQVKeySeparator : std::u16string_view();
            text += name;
        }
        if (++position == kQVMaxKeys) {
            return text;
        }
        --remaining; // wraps around: from 0 on, every later byte is a key
        code = codeAt(position);
        if (code == 0 && remaining == 0) {
            return text;
        }
    }
}
