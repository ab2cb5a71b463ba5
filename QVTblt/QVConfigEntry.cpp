// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVConfigEntry.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>
#include <utility>

namespace {

/** The record is packed: a field's bytes may lie at any address. */
template <class Value>
Value load(const std::byte* from)
{
    Value value{};
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <class Value>
void store(std::byte* to, Value value)
{
    std::memcpy(to, &value, sizeof value);
}

bool isAscii(std::string_view text)
{
    // Unsigned, since on some machines char is and on others it is not.
    return std::ranges::all_of(text, [](unsigned char c) { return c != 0 && c < 0x80; });
}

/** XML can hold no control characters but these. */
bool isWritable(std::string_view text)
{
    return isAscii(text) && std::ranges::all_of(text, [](unsigned char c) {
        return c >= ' ' || c == '\t' || c == '\n' || c == '\r';
    });
}

/** Least and greatest whole number that keeps all its bits in a field of the type. */
std::pair<std::int64_t, std::int64_t> range(QVFieldType type)
{
    switch (type) {
    case QVFieldType::Int16:
    case QVFieldType::UInt16:
        return {
            std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::uint16_t>::max()};
    case QVFieldType::UInt32:
        return {
            std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::uint32_t>::max()};
    case QVFieldType::Boolean:
        return {0, 1};
    case QVFieldType::String:
        break;
    }
    return {0, 0};
}

QVEntryResult storeNumber(QVFieldType type, platform::Number number, std::byte* to)
{
    const std::int64_t whole = number.longValue();
    switch (type) {
    case QVFieldType::Int16:
    case QVFieldType::UInt16:
        store(to, number.shortValue());
        break;
    case QVFieldType::UInt32:
        store(to, static_cast<std::uint32_t>(whole));
        break;
    case QVFieldType::Boolean:
        store(to, static_cast<std::uint8_t>(number.boolValue() ? 1 : 0));
        break;
    case QVFieldType::String:
        break;
    }
    const auto [least, greatest] = range(type);
    return number.isWhole() && whole >= least && whole <= greatest ? QVEntryResult::Copied
                                                                   : QVEntryResult::Truncated;
}

} // namespace

QVEntryResult QVReadEntry(
    const platform::Dictionary& dictionary, const QVField& field, std::byte* base)
{
    std::byte* const to = base + field.offset;
    if (field.type == QVFieldType::String) {
        const auto text = dictionary.string(field.key);
        if (text && (text->size() >= kQVStringSize || !isAscii(*text))) {
            return QVEntryResult::Unfit;
        }
        if (text) {
            std::fill_n(
                std::copy_n(reinterpret_cast<const std::byte*>(text->data()), text->size(), to),
                kQVStringSize - text->size(), std::byte{0});
            return QVEntryResult::Copied;
        }
    } else if (const auto number = dictionary.number(field.key)) {
        return storeNumber(field.type, *number, to);
    }
    return dictionary.kind(field.key) == platform::EntryKind::Absent ? QVEntryResult::Absent
                                                                     : QVEntryResult::WrongType;
}

bool QVWriteEntry(platform::Dictionary dictionary, const QVField& field, const std::byte* base)
{
    switch (field.type) {
    case QVFieldType::String: {
        const std::string text = QVFieldString(field, base);
        if (!isWritable(text)) {
            return false;
        }
        dictionary.setString(field.key, text);
        return true;
    }
    case QVFieldType::UInt16:
        // The file has always held signed numbers here: 40000 stands as -25536.
        dictionary.setInteger(field.key, load<std::int16_t>(base + field.offset));
        return true;
    case QVFieldType::Boolean:
        dictionary.setBoolean(field.key, QVFieldNumber(field, base) != 0);
        return true;
    case QVFieldType::Int16:
    case QVFieldType::UInt32:
        dictionary.setInteger(field.key, QVFieldNumber(field, base));
        return true;
    }
    return false;
}

std::int64_t QVFieldNumber(const QVField& field, const std::byte* base)
{
    const std::byte* const from = base + field.offset;
    switch (field.type) {
    case QVFieldType::Int16:
        return load<std::int16_t>(from);
    case QVFieldType::UInt16:
        return load<std::uint16_t>(from);
    case QVFieldType::UInt32:
        return load<std::uint32_t>(from);
    case QVFieldType::Boolean:
        return load<std::uint8_t>(from);
    case QVFieldType::String:
        break;
    }
    return 0;
}

std::string QVFieldString(const QVField& field, const std::byte* base)
{
    const auto* const text = reinterpret_cast<const char*>(base + field.offset);
    return {text, ::strnlen(text, kQVStringSize)};
}

const char* QVKindName(platform::EntryKind kind)
{
    switch (kind) {
    case platform::EntryKind::Absent:
        return "nothing";
    case platform::EntryKind::Number:
        return "a number";
    case platform::EntryKind::String:
        return "a string";
    case platform::EntryKind::Dictionary:
        return "a dictionary";
    case platform::EntryKind::Array:
        return "an array";
    case platform::EntryKind::Data:
        return "data";
    case platform::EntryKind::Date:
        return "a date";
    }
    return "nothing";
}
