// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVConfigEntry.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

namespace {

/** The record is packed: a field may be at any address. */
template <class Value>
Value load(const QVEntry& entry, const tagQVTabletInfo& record)
{
    Value value{};
    std::memcpy(&value, reinterpret_cast<const std::byte*>(&record) + entry.offset, sizeof value);
    return value;
}

template <class Value>
void store(Value value, const QVEntry& entry, tagQVTabletInfo& record)
{
    std::memcpy(reinterpret_cast<std::byte*>(&record) + entry.offset, &value, sizeof value);
}

/** The size of a field, in bytes. */
std::size_t sizeOf(QVFieldType type)
{
    switch (type) {
    case QVFieldType::Boolean:
        return sizeof(std::uint8_t);
    case QVFieldType::Int16:
    case QVFieldType::UInt16:
        return sizeof(std::int16_t);
    case QVFieldType::UInt32:
        return sizeof(std::uint32_t);
    case QVFieldType::String:
        break;
    }
    return kQVStringSize;
}

bool isAscii(std::string_view text)
{
    // Unsigned, since char is signed only on some machines.
    return std::ranges::all_of(text, [](unsigned char c) { return c != 0 && c < 0x80; });
}

/** XML allows only these control characters. */
bool isWritable(std::string_view text)
{
    return isAscii(text) && std::ranges::all_of(text, [](unsigned char c) {
        return c >= ' ' || c == '\t' || c == '\n' || c == '\r';
    });
}

QVEntryResult storeNumber(platform::Number number, const QVEntry& entry, tagQVTabletInfo& record)
{
    const std::int64_t whole = number.longValue();
    bool fits = number.isWhole();
    switch (entry.type) {
    case QVFieldType::Int16:
    case QVFieldType::UInt16:
        store(number.shortValue(), entry, record);
        fits = fits && (std::in_range<std::int16_t>(whole) || std::in_range<std::uint16_t>(whole));
        break;
    case QVFieldType::UInt32:
        store(static_cast<std::uint32_t>(whole), entry, record);
        fits = fits && (std::in_range<std::int32_t>(whole) || std::in_range<std::uint32_t>(whole));
        break;
    case QVFieldType::Boolean:
        store(std::uint8_t{number.boolValue()}, entry, record);
        fits = fits && (whole == 0 || whole == 1);
        break;
    case QVFieldType::String:
        break;
    }
    return fits ? QVEntryResult::Copied : QVEntryResult::Truncated;
}

QVEntryResult storeString(std::string_view text, const QVEntry& entry, tagQVTabletInfo& record)
{
    QVString field{};
    if (text.size() >= field.size() || !isAscii(text)) {
        return QVEntryResult::Unfit;
    }
    std::ranges::copy(text, field.begin());
    store(field, entry, record);
    return QVEntryResult::Copied;
}

} // namespace

std::string QVEntryPath(const QVEntry& entry)
{
    std::string path = std::string(entry.section->key) + '/';
    if (entry.slot != nullptr) {
        path += std::string(entry.slot) + '/';
    }
    return path + entry.key;
}

QVEntryResult QVReadEntry(
    const platform::Dictionary& dictionary, const QVEntry& entry, tagQVTabletInfo& record)
{
    if (entry.type == QVFieldType::String) {
        if (const auto text = dictionary.string(entry.key)) {
            return storeString(*text, entry, record);
        }
    } else if (const auto number = dictionary.number(entry.key)) {
        return storeNumber(*number, entry, record);
    }
    return dictionary.kind(entry.key) == platform::EntryKind::Absent ? QVEntryResult::Absent
                                                                     : QVEntryResult::WrongType;
}

std::string QVEntryFault(const platform::Dictionary& dictionary, const QVEntry& entry)
{
    const platform::EntryKind kind = dictionary.kind(entry.key);
    const bool isString = entry.type == QVFieldType::String;
    if (isString && kind == platform::EntryKind::String) {
        return "longer than " + std::to_string(kQVStringSize - 1) + " characters, or not ASCII";
    }
    return std::string(QVKindName(kind)) + " instead of " + (isString ? "a string" : "a number");
}

bool QVWriteEntry(const platform::MutableDictionary& dictionary, const QVEntry& entry,
    const tagQVTabletInfo& record)
{
    switch (entry.type) {
    case QVFieldType::String: {
        const std::string text = QVFieldText(entry, record);
        if (!isWritable(text)) {
            return false;
        }
        dictionary.setString(entry.key, text);
        break;
    }
    case QVFieldType::UInt16:
        // The file has always had signed numbers here: 40000 is stored as -25536.
        dictionary.setInteger(entry.key, load<std::int16_t>(entry, record));
        break;
    case QVFieldType::Boolean:
        dictionary.setBoolean(entry.key, QVFieldNumber(entry, record) != 0);
        break;
    case QVFieldType::Int16:
    case QVFieldType::UInt32:
        dictionary.setInteger(entry.key, QVFieldNumber(entry, record));
        break;
    }
    return true;
}

std::int64_t QVFieldNumber(const QVEntry& entry, const tagQVTabletInfo& record)
{
    switch (entry.type) {
    case QVFieldType::Int16:
        return load<std::int16_t>(entry, record);
    case QVFieldType::UInt16:
        return load<std::uint16_t>(entry, record);
    case QVFieldType::UInt32:
        return load<std::uint32_t>(entry, record);
    case QVFieldType::Boolean:
        return load<std::uint8_t>(entry, record);
    case QVFieldType::String:
        break;
    }
    return 0;
}

std::string QVFieldText(const QVEntry& entry, const tagQVTabletInfo& record)
{
    if (entry.type != QVFieldType::String) {
        return std::to_string(QVFieldNumber(entry, record));
    }
    return std::string(QVText(load<QVString>(entry, record)));
}

bool QVIsSameField(const QVEntry& entry, const tagQVTabletInfo& one, const tagQVTabletInfo& other)
{
    return entry.type == QVFieldType::String
        ? QVFieldText(entry, one) == QVFieldText(entry, other)
        : QVFieldNumber(entry, one) == QVFieldNumber(entry, other);
}

void QVCopyField(const QVEntry& entry, const tagQVTabletInfo& from, tagQVTabletInfo& to)
{
    std::memcpy(reinterpret_cast<std::byte*>(&to) + entry.offset,
        reinterpret_cast<const std::byte*>(&from) + entry.offset, sizeOf(entry.type));
}

const char* QVKindName(platform::EntryKind kind)
{
    constexpr std::array kNames{
        "nothing", "a number", "a string", "a dictionary", "an array", "data", "a date"};
    return kNames.at(static_cast<std::size_t>(kind));
}
