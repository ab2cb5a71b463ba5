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
 * A list is loaded from its XML or binary form and written as XML. Unchanged values are written
 * exactly as they were read, and a list that XML cannot represent is not written. Errors are
 * results, never exceptions; nothing here writes to the log. A list and its handles belong to one
 * thread at a time.
 */
namespace platform {

/** Maximum size of a property list file, in bytes. A configuration has about 12,000. */
inline constexpr std::size_t kPropertyListMaxSize = std::size_t{16} << 20U;

/** Maximum nesting of containers. A configuration has three levels. */
inline constexpr int kPropertyListMaxDepth = 64;

/** A number of a property list: an integer, a real or a boolean. */
class Number {
public:
    static Number integer(std::uint64_t bits);
    static Number real(double value);

    /** The low 16 bits of the integer part. */
    std::int16_t shortValue() const { return static_cast<std::int16_t>(mWhole); }

    /**
     * The integer part: a real is truncated toward zero and saturates at 64 bits, and NaN is 0. An
     * unsigned integer above INT64_MAX keeps its bits.
     */
    std::int64_t longValue() const { return mWhole; }

    /** Whether the number is not zero. */
    bool boolValue() const { return mIsTrue; }

    /** Whether it is an integer, so that longValue() is exact. */
    bool isWhole() const { return mIsWhole; }

private:
    Number(std::int64_t whole, bool isWhole, bool isTrue)
        : mWhole(whole)
        , mIsWhole(isWhole)
        , mIsTrue(isTrue)
    {
    }

    std::int64_t mWhole;
    bool mIsWhole;
    bool mIsTrue;
};

/** The kind of value for a key. */
enum class EntryKind : std::uint8_t { Absent, Number, String, Dictionary, Array, Data, Date };

struct PropertyListNode;

/**
 * A handle to a dictionary in a PropertyList; valid as long as the list and that dictionary exist.
 * A null handle returns nothing for every lookup.
 */
class Dictionary {
public:
    Dictionary() = default;

    /** Whether there is a dictionary. */
    bool exists() const { return mNode != nullptr; }

    /** The kind of the value for the key; Absent if there is none. */
    EntryKind kind(const char* key) const;

    /** The number for the key; nothing if there is none or it is not a number. */
    std::optional<Number> number(const char* key) const;

    /** The string's bytes (UTF-8); valid until the entry changes. */
    std::optional<std::string_view> string(const char* key) const;

    /** The dictionary for the key; a null handle if there is none. */
    Dictionary dictionary(const char* key) const;

    /** The strings (UTF-8) of an array, without what else is in it; empty if there is no array. */
    std::vector<std::string> strings(const char* key) const;

    /** The keys in file order. */
    std::vector<std::string> keys() const;

private:
    friend class MutableDictionary;
    friend class PropertyList;
    explicit Dictionary(PropertyListNode* node)
        : mNode(node)
    {
    }

    PropertyListNode* mNode = nullptr;
};

/** A handle to a dictionary that can be changed. A null handle ignores every change. */
class MutableDictionary : public Dictionary {
public:
    MutableDictionary dictionary(const char* key) const;

    /** Sets or replaces an entry. */
    void setInteger(const char* key, std::int64_t value) const;
    void setBoolean(const char* key, bool value) const;
    void setString(const char* key, const std::string& value) const;

    /** Sets the key to an array of strings. */
    void setStrings(const char* key, const std::vector<std::string>& values) const;

    /** Sets the key to an empty dictionary and returns a handle to it. */
    MutableDictionary addDictionary(const char* key) const;

private:
    friend class PropertyList;
    using Dictionary::Dictionary;
};

/** The kinds of files that a list may be loaded from. */
enum class PropertyListSource : std::uint8_t {
    RegularFile, ///< never blocks: a directory, a FIFO or a device is an error
    AnyFile, ///< also a pipe or a terminal, read to its end
};

/** A property list whose root is a dictionary. */
class PropertyList {
public:
    /** Creates a list with an empty root. */
    PropertyList();

    /** Loads a file of at most kPropertyListMaxSize bytes. */
    static Result<PropertyList> load(
        const std::string& path, PropertyListSource source = PropertyListSource::RegularFile);

    /** Loads from bytes in memory. */
    static Result<PropertyList> parse(std::string_view bytes);

    PropertyList(PropertyList&&) noexcept;
    PropertyList& operator=(PropertyList&&) noexcept;
    PropertyList(const PropertyList&) = delete;
    PropertyList& operator=(const PropertyList&) = delete;
    ~PropertyList();

    Dictionary root() const { return Dictionary(mRoot.get()); }
    MutableDictionary root() { return MutableDictionary(mRoot.get()); }

    /** The list in XML. */
    std::string toXml() const;

    /**
     * Saves the list as XML: writes a temporary file in the same folder, flushes it to disk, and
     * renames it over the file, whose mode is kept. Before that, the XML is parsed again and
     * compared with the list. On failure, such as a full disk, the old file is unchanged and the
     * temporary one is removed.
     */
    Result<> save(const std::string& path) const;

    /** Like save, but fails if the file already exists. */
    Result<> saveNew(const std::string& path) const;

private:
    explicit PropertyList(PropertyListNode root);

    std::unique_ptr<PropertyListNode> mRoot;
};

} // namespace platform
