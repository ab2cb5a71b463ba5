// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyList.h"
#include "QVTabletFields.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/**
 * @file
 * One entry of the configuration file, one field of the record, and the way between them.
 */

/** What became of an entry on its way into the record. */
enum class QVEntryResult : std::uint8_t {
    Copied,
    Truncated, ///< the number does not fit: only its whole part's low bits were copied
    Absent, ///< the file does not have it; the field keeps its value
    WrongType, ///< no number, or no string, where one belongs; the field keeps its value
    Unfit, ///< a string that is too long or not ASCII; the field keeps its value
};

/** The entry's path: "Pen/Speed", or "Key/Key3/App" in a slot. */
std::string QVEntryPath(const QVEntry& entry);

/** The dictionary of the file that an entry belongs to; a handle on none where there is none. */
platform::Dictionary QVEntryDictionary(const platform::Dictionary& root, const QVEntry& entry);

/**
 * Copies an entry into its field.
 *
 * Integers keep their low 16 or 32 bits, reals are truncated toward zero first, booleans are 0 and
 * 1. A string must be ASCII without NUL and leave room for its terminating NUL; the rest of its
 * field becomes zero.
 *
 * @param dictionary where the entry stands; one that does not exist has no entries
 */
QVEntryResult QVReadEntry(
    const platform::Dictionary& dictionary, const QVEntry& entry, tagQVTabletInfo& record);

/** Why an entry is WrongType or Unfit, for messages: "an array where a number belongs". */
std::string QVEntryFault(const platform::Dictionary& dictionary, const QVEntry& entry);

/**
 * Sets an entry from its field, whether or not it was there. A string that is not ASCII, or holds a
 * control character that a property list cannot, leaves the entry as it is.
 *
 * @return false when the entry was left
 */
bool QVWriteEntry(
    platform::Dictionary dictionary, const QVEntry& entry, const tagQVTabletInfo& record);

/** The number in an entry's field; 0 when it is a string. */
std::int64_t QVFieldNumber(const QVEntry& entry, const tagQVTabletInfo& record);

/** The value in an entry's field: a string's bytes before its NUL, or a number in decimal. */
std::string QVFieldText(const QVEntry& entry, const tagQVTabletInfo& record);

/** What an entry's kind is called in messages: "a string", "an array". */
const char* QVKindName(platform::EntryKind kind);
