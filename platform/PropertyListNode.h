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
 * One value of a property list. It holds what its file says to the letter, so that an entry which
 * nobody changes is written as it was read: a date of any year, a real of any form, an integer with
 * its zeros.
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
    std::string key; ///< under which it stands, in a dictionary
    std::string text; ///< what stands between a scalar's tags, in UTF-8
    /** A container's values, in the file's order. A list, so that a handle on one stays valid. */
    std::list<PropertyListNode> parts{};

    bool operator==(const PropertyListNode&) const = default;

    bool isContainer() const { return kind == Kind::Dictionary || kind == Kind::Array; }

    /** The value under the key; null where there is none. */
    PropertyListNode* find(std::string_view name);

    /** Where a key stands more than once, its last value takes the first one's place. */
    void dropOlderValues();
};

/** Most values that a list may have: more is not a configuration, but an attack on the memory. */
inline constexpr std::size_t kPropertyListMaxNodes = 1'000'000;

/** How every binary list begins, whatever its version. */
inline constexpr std::string_view kBinaryPropertyList = "bplist";

Result<PropertyListNode> readXmlPropertyList(std::string_view bytes);
Result<PropertyListNode> readBinaryPropertyList(std::string_view bytes);

/** The list in XML. */
std::string writeXmlPropertyList(const PropertyListNode& root);

/** The number in the text of an Integer: decimal or 0x, with a sign; nothing beyond 64 bits. */
std::optional<std::uint64_t> propertyListInteger(std::string_view text);

/** The number in the text of a Real. */
std::optional<double> propertyListReal(std::string_view text);

/** Whether the bytes are UTF-8. */
bool isUtf8(std::string_view bytes);

/** Why a list is refused whose containers nest too deep, or that has too many values. */
std::string propertyListTooDeep();
std::string propertyListTooManyNodes();

} // namespace platform
