// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "KeyCodes.h"

#include <algorithm>
#include <array>
#include <linux/input-event-codes.h>

namespace {

struct KeyCode {
    std::uint8_t code;
    std::uint16_t linuxCode;
};

// In the order of hid_usb_2_adb_keymap_char.
constexpr auto kKeyCodes = std::to_array<KeyCode>({
    // clang-format off
    {0, KEY_A}, {11, KEY_B}, {8, KEY_C}, {2, KEY_D}, {14, KEY_E}, {3, KEY_F}, {5, KEY_G},
    {4, KEY_H}, {34, KEY_I}, {38, KEY_J}, {40, KEY_K}, {37, KEY_L}, {46, KEY_M}, {45, KEY_N},
    {31, KEY_O}, {35, KEY_P}, {12, KEY_Q}, {15, KEY_R}, {1, KEY_S}, {17, KEY_T}, {32, KEY_U},
    {9, KEY_V}, {13, KEY_W}, {7, KEY_X}, {16, KEY_Y}, {6, KEY_Z},
    {18, KEY_1}, {19, KEY_2}, {20, KEY_3}, {21, KEY_4}, {23, KEY_5}, {22, KEY_6}, {26, KEY_7},
    {28, KEY_8}, {25, KEY_9}, {29, KEY_0},
    {53, KEY_ESC}, {51, KEY_BACKSPACE}, {48, KEY_TAB}, {49, KEY_SPACE}, {36, KEY_ENTER},
    {114, KEY_INSERT}, {116, KEY_PAGEUP}, {121, KEY_PAGEDOWN}, {115, KEY_HOME}, {119, KEY_END},
    {27, KEY_MINUS}, {24, KEY_EQUAL},
    {122, KEY_F1}, {120, KEY_F2}, {99, KEY_F3}, {118, KEY_F4}, {96, KEY_F5}, {97, KEY_F6},
    {98, KEY_F7}, {100, KEY_F8}, {101, KEY_F9}, {109, KEY_F10}, {103, KEY_F11}, {111, KEY_F12},
    {124, KEY_RIGHT}, {123, KEY_LEFT}, {125, KEY_DOWN}, {126, KEY_UP},
    {54, KEY_LEFTCTRL}, {56, KEY_LEFTSHIFT}, {58, KEY_LEFTALT}, {55, KEY_LEFTMETA},
    // clang-format on
});

} // namespace

std::uint16_t linuxKeyCode(std::uint8_t virtualKeyCode)
{
    const auto* const found = std::ranges::find(kKeyCodes, virtualKeyCode, &KeyCode::code);
    return found == kKeyCodes.end() ? std::uint16_t{KEY_RESERVED} : found->linuxCode;
}
