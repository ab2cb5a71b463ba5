// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/**
 * @file
 * Property lists: trees of dictionaries, numbers and strings in files.
 *
 * A list is loaded from its XML or its binary form and written as XML. What was not changed comes
 * back to the letter, and a list that XML cannot hold is not written. Errors are results, never
 * exceptions; nothing here writes to the log. A list and its handles belong to one thread at a
 * time.
 */
namespace platform {

/** Longest file that is taken for a property list, in bytes. A configuration has about 12,000. */
inline constexpr std::size_t kPropertyListMaxSize = std::size_t{16} << 20U;

/** Deepest nesting of containers that is loaded. A configuration nests three deep. */
inline constexpr int kPropertyListMaxDepth = 64;

/** A number of a property list: an integer, a real or a boolean. */
class Number {
public:
    static constexpr Number integer(std::uint64_t bits) { return Number(bits, 0.0, false); }
    static constexpr Number real(double value) { return Number(0, value, true); }

    /** The low 16 bits of the whole part. */
    std::int16_t shortValue() const;

    /**
     * The whole part: a real is truncated toward zero and saturates at the ends of 64 bits, no
     * number (NaN) is 0. An unsigned integer above INT64_MAX keeps its bits.
     */
    std::int64_t longValue() const;

    /** Whether the number is not zero. */
    bool boolValue() const;

    /** Whether it is a whole number, so that longValue() is all of it. */
    bool isWhole() const;

private:
    constexpr Number(std::uint64_t bits, double value, bool isReal)
        : mBits(bits)
        , mReal(value)
        , mIsReal(isReal)
    {
    }

    std::uint64_t mBits;
    double mReal;
    bool mIsReal;
};

/** What stands under a key. */
enum class EntryKind : std::uint8_t { Absent, Number, String, Dictionary, Array, Data, Date };

struct PropertyListNode;

/**
 * A handle on a dictionary inside a PropertyList; valid as long as the list and that dictionary.
 * A handle on no dictionary answers every look-up with nothing and ignores every change.
 */
class Dictionary {
public:
    Dictionary() = default;

    /** Whether there is a dictionary. */
    bool exists() const { return mNode != nullptr; }

    EntryKind kind(const char* key) const;

    /** The number under the key; nothing where there is none or it is no number. */
    std::optional<Number> number(const char* key) const;

    /** The string's bytes (UTF-8); valid until the entry changes. */
    std::optional<std::string_view> string(const char* key) const;

    /** The dictionary under the key; a handle on none where there is none. */
    Dictionary dictionary(const char* key) const;

    /** The keys in the file's order. */
    std::vector<std::string> keys() const;

    /** Sets or replaces an entry. */
    void setInteger(const char* key, std::int64_t value);
    void setBoolean(const char* key, bool value);
    void setString(const char* key, const std::string& value);

    /** Puts an empty dictionary under the key and gives a handle on it. */
    Dictionary addDictionary(const char* key);

private:
    friend class PropertyList;
    explicit Dictionary(PropertyListNode* node)
        : mNode(node)
    {
    }

    PropertyListNode* put(const char* key) const;

    PropertyListNode* mNode = nullptr;
};

/** What a list may be loaded from. */
enum class PropertyListSource : std::uint8_t {
    RegularFile, ///< never waits: a directory, a FIFO or a device is an error
    AnyFile, ///< also a pipe or a terminal, up to its end
};

/** A property list whose root is a dictionary. */
class PropertyList {
public:
    /** A new list with an empty root. */
    PropertyList();

    /** Loads a file of at most kPropertyListMaxSize bytes. */
    static Result<PropertyList> load(
        const std::string& path, PropertyListSource source = PropertyListSource::RegularFile);

    /** The same from bytes in memory. */
    static Result<PropertyList> parse(std::string_view bytes);

    PropertyList(PropertyList&&) noexcept;
    PropertyList& operator=(PropertyList&&) noexcept;
    PropertyList(const PropertyList&) = delete;
    PropertyList& operator=(const PropertyList&) = delete;
    ~PropertyList();

    Dictionary root() const { return Dictionary(mRoot.get()); }

    /** The list in XML. */
    std::string toXml() const;

    /**
     * Writes the list as XML: to a temporary file in the same folder, flushed to disk, then renamed
     * over the file. The file's mode stays. What is written has been parsed again and found to be
     * this list. On failure the old file stands and the temporary one is gone.
     */
    Result<> save(const std::string& path) const;

    /** Like save, but fails where a file already stands at the path. */
    Result<> saveNew(const std::string& path) const;

private:
    explicit PropertyList(PropertyListNode root);

    std::unique_ptr<PropertyListNode> mRoot;
};

} // namespace platform
