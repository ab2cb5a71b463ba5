// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyList.h"

#include <cstddef>
#include <list>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/**
 * One value of a property list. It keeps the exact text of the file, so that an unchanged entry is
 * written as it was read: a date of any year, a real of any form, an integer with leading zeros.
 */
struct PropertyListNode {
    enum class Kind : std::uint8_t {
        Dictionary,
        Array,
        String,
        Integer,
        Real,
        True,
        False,
        Date,
        Data
    };

    Kind kind = Kind::Dictionary;
    std::string key; ///< its key, in a dictionary
    std::string text; ///< the text between a scalar's tags, in UTF-8
    /** A container's values, in file order. A list, so that handles stay valid. */
    std::list<PropertyListNode> parts{};

    bool operator==(const PropertyListNode&) const = default;

    bool isContainer() const { return kind == Kind::Dictionary || kind == Kind::Array; }

    /** The value for the key; null if there is none. */
    PropertyListNode* find(std::string_view name);

    /** If a key occurs more than once, its last value replaces the first one. */
    void dropOlderValues();
};

/** Maximum number of values in a list: more is not a configuration, but a memory attack. */
inline constexpr std::size_t kPropertyListMaxNodes = 1'000'000;

/** The beginning of every binary list, of any version. */
inline constexpr std::string_view kBinaryPropertyList = "bplist";

/** Reads a list in XML, or in binary form. Fails if it is malformed or exceeds a limit. */
Result<PropertyListNode> readXmlPropertyList(std::string_view bytes);
Result<PropertyListNode> readBinaryPropertyList(std::string_view bytes);

/** Returns the list in XML. */
std::string writeXmlPropertyList(const PropertyListNode& root);

/** Parses the text of an Integer: decimal or 0x, with an optional sign; nothing beyond 64 bits. */
std::optional<std::uint64_t> propertyListInteger(std::string_view text);

/** Parses the text of a Real. */
std::optional<double> propertyListReal(std::string_view text);

/** Whether the bytes are valid UTF-8. */
bool isUtf8(std::string_view bytes);

/** The error for a list that is nested too deeply, or has too many values. */
std::string propertyListTooDeep();
std::string propertyListTooManyNodes();

} // namespace platform
