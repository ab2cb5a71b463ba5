// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeBus.h"
#include "Fuzz.h"

/**
 * @file
 * Turns a fuzzer's input into D-Bus messages: always well-formed, with valid and some invalid parts
 * of an event.
 *
 * A code is a byte: the number of one that the wire knows, or a larger one and four bytes. A
 * parameter list is a byte, the number of its entries, and each entry a keyword's code and a
 * descriptor: a type's code, then a byte for its data:
 *
 * - 0: bytes; a byte for their number, then they
 * - 1: a list; a byte for the number of its descriptors, then they
 * - 2: a record; as a parameter list
 * - 3: the bytes of a settings record; a word for the number of those that follow, the rest is 0
 * - 4: a pen report; a byte for its key, words for its place
 * - 5: a list of empty items; a byte for their number
 * - anything else: something of a type that no descriptor has
 *
 * Words are little-endian, and behind the end of the input everything is 0.
 */

/** A code as above. */
std::uint32_t takeCode(Input& input);

/** Adds a parameter list to a message. */
void appendParameters(DBusMessage* message, Input& input);

/** A call of the program's Send: the codes of class and ID, and a parameter list. */
Message takeEvent(Input& input);

/** An answer: a byte, 0 for a parameter list and anything else for an error, then that. */
Message takeAnswer(Input& input);

/**
 * A message in wire format, from the whole input; null if the input is not a message. No other
 * input begins with 'l' or 'B', the byte order of a message.
 */
Message takeWireMessage(std::span<const std::uint8_t> bytes);
