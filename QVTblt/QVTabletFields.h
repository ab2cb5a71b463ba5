// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/**
 * @file
 * The table of the configuration file's entries, which maps each to bytes of the record. Loading,
 * saving, checking and printing iterate over it. A field without an entry here is never loaded or
 * saved and stays zero.
 */

/** The type of a field, which determines the conversion of its entry. */
enum class QVFieldType : std::uint8_t {
    Int16, ///< number; its low 16 bits, read as signed
    UInt16, ///< number; its low 16 bits, read as unsigned, written to the file as signed
    UInt32, ///< number; its low 32 bits, read as unsigned
    Boolean, ///< number or boolean; one byte, 0 or 1
    String, ///< ASCII string; NUL-terminated, kQVStringSize bytes
};

/** One of the dictionaries at the root of the file. */
struct QVSection {
    const char* key;
    bool saved; ///< whether the panel writes it back
    bool hasSlots; ///< whether it also contains the slots' dictionaries, with the keys kQVSlotKeys
};

inline constexpr QVSection kQVTabletSection{"Tablet", false, false};
inline constexpr QVSection kQVPenSection{"Pen", true, false};
inline constexpr QVSection kQVKeySection{"Key", true, true};
inline constexpr QVSection kQVMonitorSection{"Monitor", true, false};

/** The sections, in the order of loading. */
inline constexpr std::array<const QVSection*, 4> kQVSections{
    &kQVTabletSection, &kQVPenSection, &kQVKeySection, &kQVMonitorSection};

/** Keys of the slots' dictionaries, in slot order. */
inline constexpr std::array<const char*, kQVSlotCount> kQVSlotKeys{"Key0", "Key1", "Key2", "Key3",
    "Key4", "Key5", "Key6", "Key7", "Key8", "Key9", "Key10", "Key11", "Key12", "Key13", "Key14",
    "Key15", "penKeyU", "penKeyL"};

/** An entry of the file and its field in the record. */
struct QVEntry {
    const QVSection* section;
    const char* slot; ///< the key of the slot's dictionary; null for an entry of the section itself
    const char* key; ///< the entry's key in its dictionary
    std::size_t offset; ///< bytes from the start of the record
    QVFieldType type;
};

/** The number of entries. */
inline constexpr std::size_t kQVEntryCount = 102;

/** All entries, in the order of loading; those of a dictionary are consecutive. */
inline constexpr std::array<QVEntry, kQVEntryCount> kQVEntries = [] {
    using enum QVFieldType;
    using Record = tagQVTabletInfo;
    using Slot = tagQVTabletInfoSubKey;
    std::array<QVEntry, kQVEntryCount> entries{};
    std::size_t count = 0;
    const auto add = [&](const QVSection& section, const char* key, std::size_t offset,
                         QVFieldType type, const char* slot = nullptr) {
        entries.at(count++) = {&section, slot, key, offset, type};
    };
    add(kQVTabletSection, "VendorID", offsetof(Record, Basic.VendorID), Int16);
    add(kQVTabletSection, "ProductID", offsetof(Record, Basic.ProductID), Int16);
    add(kQVTabletSection, "VersionNumber", offsetof(Record, Basic.VersionNumber), Int16);
    add(kQVTabletSection, "InputLength", offsetof(Record, Basic.InputLength), Int16);
    add(kQVTabletSection, "KeyNum", offsetof(Record, Basic.KeyNum), Int16);
    add(kQVTabletSection, "ScrollNum", offsetof(Record, Basic.ScrollNum), Int16);
    add(kQVTabletSection, "PressureMax", offsetof(Record, Basic.PressureMax), Int16);
    add(kQVTabletSection, "TabletXmin", offsetof(Record, Basic.TabletXmin), UInt16);
    add(kQVTabletSection, "TabletXmax", offsetof(Record, Basic.TabletXmax), UInt16);
    add(kQVTabletSection, "TabletYmin", offsetof(Record, Basic.TabletYmin), UInt16);
    add(kQVTabletSection, "TabletYmax", offsetof(Record, Basic.TabletYmax), UInt16);
    add(kQVTabletSection, "isUpdate", offsetof(Record, Basic.isUpdate), Boolean);
    add(kQVTabletSection, "UpdateFilename", offsetof(Record, Basic.UpdateFilename), String);
    add(kQVPenSection, "PressureThreshold", offsetof(Record, Pen.PressureThreshold), Int16);
    add(kQVPenSection, "Speed", offsetof(Record, Pen.Speed), Int16);
    add(kQVKeySection, "Scrollbar0", offsetof(Record, Key.Scrollbar0), Int16);
    add(kQVKeySection, "Scrollbar1", offsetof(Record, Key.Scrollbar1), Int16);
    add(kQVKeySection, "ScrollSpeed", offsetof(Record, Key.ScrollSpeed), Int16);
    for (std::size_t i = 0; i < kQVSlotCount; ++i) {
        const char* const slot = kQVSlotKeys[i];
        const std::size_t start = offsetof(Record, Key.SubKey) + i * sizeof(Slot);
        add(kQVKeySection, "Valid", start + offsetof(Slot, Valid), Int16, slot);
        add(kQVKeySection, "Mouse", start + offsetof(Slot, Mouse), Int16, slot);
        add(kQVKeySection, "Key", start + offsetof(Slot, Key), UInt32, slot);
        add(kQVKeySection, "App", start + offsetof(Slot, App), String, slot);
    }
    add(kQVMonitorSection, "num", offsetof(Record, Monitor.num), Int16);
    add(kQVMonitorSection, "rotationFlag", offsetof(Record, Monitor.rotationFlag), Int16);
    add(kQVMonitorSection, "disableFlag", offsetof(Record, Monitor.disableFlag), Int16);
    add(kQVMonitorSection, "Speed", offsetof(Record, Monitor.Speed), Int16);
    add(kQVMonitorSection, "XOrg", offsetof(Record, Monitor.XOrg), Int16);
    add(kQVMonitorSection, "Width", offsetof(Record, Monitor.Width), Int16);
    add(kQVMonitorSection, "YOrg", offsetof(Record, Monitor.YOrg), Int16);
    add(kQVMonitorSection, "Height", offsetof(Record, Monitor.Height), Int16);
    add(kQVMonitorSection, "cTabletXmin", offsetof(Record, Monitor.cTabletXmin), UInt16);
    add(kQVMonitorSection, "cTabletXmax", offsetof(Record, Monitor.cTabletXmax), UInt16);
    add(kQVMonitorSection, "cTabletYmin", offsetof(Record, Monitor.cTabletYmin), UInt16);
    add(kQVMonitorSection, "cTabletYmax", offsetof(Record, Monitor.cTabletYmax), UInt16);
    return entries;
}();
static_assert(kQVEntries.back().key != nullptr, "the array is completely filled");

/**
 * Whether the user chooses an entry. Of those that the panel saves, the others are transient, or
 * follow from num.
 */
constexpr bool QVIsChosen(const QVEntry& entry)
{
    constexpr std::array kNotChosen{offsetof(tagQVTabletInfo, Monitor.disableFlag),
        offsetof(tagQVTabletInfo, Monitor.XOrg), offsetof(tagQVTabletInfo, Monitor.Width),
        offsetof(tagQVTabletInfo, Monitor.YOrg), offsetof(tagQVTabletInfo, Monitor.Height)};
    return entry.section->saved && std::ranges::find(kNotChosen, entry.offset) == kNotChosen.end();
}

/** The slot that an entry with a slot's key belongs to. */
constexpr std::size_t QVSlotOf(const QVEntry& entry)
{
    return static_cast<std::size_t>(
        std::ranges::find(kQVSlotKeys, std::string_view(entry.slot)) - kQVSlotKeys.begin());
}

/** The entries of a section's own dictionary or, with a slot's key, of that slot's. */
constexpr std::span<const QVEntry> QVEntriesOf(const QVSection& section, const char* slot = nullptr)
{
    // By their texts: the same literal may have another address in another source.
    const auto text = [](const char* key) { return std::string_view(key == nullptr ? "" : key); };
    const auto isOfIt = [&](const QVEntry& entry) {
        return entry.section == &section && text(entry.slot) == text(slot);
    };
    const auto* const first = std::ranges::find_if(kQVEntries, isOfIt);
    return {first, std::ranges::find_if_not(first, kQVEntries.end(), isOfIt)};
}
