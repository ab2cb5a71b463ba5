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

QVKeyCombination::QVKeyCombination(std::uint32_t field)
{
    std::uint32_t remaining = field >> 24U;
    for (unsigned shift = 0; mCount < mCodes.size(); shift += 8, --remaining) {
        const auto code = static_cast<std::uint8_t>(field >> shift);
        if (code == 0 && remaining == 0) {
            break;
        }
        mCodes.at(mCount++) = code;
    }
}

std::u16string QVKeyCombinationText(std::uint32_t combination)
{
    const QVKeyCombination keys(combination);
    std::u16string text;
    for (std::size_t position = 0; position < keys.codes().size(); ++position) {
        const std::u16string_view name = nameOf(keys.codes()[position]);
        if (!name.empty()) {
            text += position > 0 ? kQVKeySeparator : std::u16string_view();
            text += name;
        }
    }
    return text;
}
