// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyList.h"
#include "QVTabletFields.h"

#include <cstddef>
#include <cstdint>
#include <string>

/**
 * @file
 * Copies one entry of the configuration file to its field in the record, and back. A string that is
 * too long for its field, such as the path of an application, is left out here.
 */

/** The result of reading an entry into the record. */
enum class QVEntryResult : std::uint8_t {
    Copied,
    Truncated, ///< the number does not fit: only the low bits of its integer part were copied
    Absent, ///< the file does not have it; the field keeps its value
    WrongType, ///< not a number, or not a string, as required; the field keeps its value
    Unfit, ///< a string that is too long or not ASCII; the field keeps its value
};

/** The entry's path: "Pen/Speed", or "Key/Key3/App" in a slot. */
std::string QVEntryPath(const QVEntry& entry);

/** The dictionary of the file that an entry belongs to; a null handle if there is none. */
template <class AnyDictionary>
AnyDictionary QVEntryDictionary(const AnyDictionary& root, const QVEntry& entry)
{
    const AnyDictionary section = root.dictionary(entry.section->key);
    return entry.slot == nullptr ? section : section.dictionary(entry.slot);
}

/**
 * Copies an entry into its field.
 *
 * Integers are truncated to their low 16 or 32 bits, reals first toward zero; booleans become 0 and
 * 1. A string must be ASCII without NUL and leave room for its terminating NUL; the rest of its
 * field becomes zero.
 *
 * @param dictionary contains the entry; a null handle has no entries
 */
[[nodiscard]] QVEntryResult QVReadEntry(
    const platform::Dictionary& dictionary, const QVEntry& entry, tagQVTabletInfo& record);

/** Why an entry is WrongType or Unfit, for messages: "an array instead of a number". */
std::string QVEntryFault(const platform::Dictionary& dictionary, const QVEntry& entry);

/**
 * Sets an entry from its field, whether or not it existed. A string that is not ASCII, or contains
 * a control character that a property list cannot, leaves the entry unchanged.
 *
 * @return false if the entry was left unchanged
 */
bool QVWriteEntry(const platform::MutableDictionary& dictionary, const QVEntry& entry,
    const tagQVTabletInfo& record);

/** The number in an entry's field; 0 when it is a string. */
std::int64_t QVFieldNumber(const QVEntry& entry, const tagQVTabletInfo& record);

/** The value in an entry's field: a string's bytes before its NUL, or a number in decimal. */
std::string QVFieldText(const QVEntry& entry, const tagQVTabletInfo& record);

/** Whether an entry's field has the same value in two records; a string counts up to its NUL. */
bool QVIsSameField(const QVEntry& entry, const tagQVTabletInfo& one, const tagQVTabletInfo& other);

/** Copies an entry's field from one record to another, with every byte of a string. */
void QVCopyField(const QVEntry& entry, const tagQVTabletInfo& from, tagQVTabletInfo& to);

/** The name of an entry's kind for messages: "a string", "an array". */
const char* QVKindName(platform::EntryKind kind);
