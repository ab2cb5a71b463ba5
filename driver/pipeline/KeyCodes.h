// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/**
 * The Linux key code (KEY_A, ...) of a key that a button can press; 0 for a code that is not in
 * hid_usb_2_adb_keymap_char. Linux names keys by their place on a US keyboard, so that the
 * desktop's layout decides about the character.
 */
std::uint16_t linuxKeyCode(std::uint8_t virtualKeyCode);
