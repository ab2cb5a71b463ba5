// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/**
 * @file
 * The one table of the record's fields: which entry of the configuration file belongs to which
 * bytes of the record. Loading, saving, checking and printing all walk it. A field that has no row
 * here is never loaded or saved and stays zero.
 */

/** How an entry of the file becomes bytes of the record. */
enum class QVFieldType : std::uint8_t {
    Int16, ///< number; its low 16 bits, read as signed
    UInt16, ///< number; its low 16 bits, read as unsigned, written to the file as signed
    UInt32, ///< number; its low 32 bits, read as unsigned
    Boolean, ///< number or boolean; one byte, 0 or 1
    String, ///< ASCII string; NUL-terminated, kQVStringSize bytes
};

/** One row: an entry of a dictionary and its place in that dictionary's part of the record. */
struct QVField {
    const char* key; ///< the entry's key in its dictionary
    std::size_t offset; ///< bytes from the start of the record, or of the slot
    QVFieldType type;
};

/** One of the file's four dictionaries. */
struct QVSection {
    const char* key; ///< the dictionary's key in the file
    std::span<const QVField> fields;
    bool saved; ///< whether the panel writes it back
    bool hasSlots; ///< whether it also holds the slots' dictionaries, under kQVSlotKeys
};

inline constexpr std::array<QVField, 13> kQVTabletFields{{
    {"VendorID", offsetof(tagQVTabletInfo, Basic.VendorID), QVFieldType::Int16},
    {"ProductID", offsetof(tagQVTabletInfo, Basic.ProductID), QVFieldType::Int16},
    {"VersionNumber", offsetof(tagQVTabletInfo, Basic.VersionNumber), QVFieldType::Int16},
    {"InputLength", offsetof(tagQVTabletInfo, Basic.InputLength), QVFieldType::Int16},
    {"KeyNum", offsetof(tagQVTabletInfo, Basic.KeyNum), QVFieldType::Int16},
    {"ScrollNum", offsetof(tagQVTabletInfo, Basic.ScrollNum), QVFieldType::Int16},
    {"PressureMax", offsetof(tagQVTabletInfo, Basic.PressureMax), QVFieldType::Int16},
    {"TabletXmin", offsetof(tagQVTabletInfo, Basic.TabletXmin), QVFieldType::UInt16},
    {"TabletXmax", offsetof(tagQVTabletInfo, Basic.TabletXmax), QVFieldType::UInt16},
    {"TabletYmin", offsetof(tagQVTabletInfo, Basic.TabletYmin), QVFieldType::UInt16},
    {"TabletYmax", offsetof(tagQVTabletInfo, Basic.TabletYmax), QVFieldType::UInt16},
    {"isUpdate", offsetof(tagQVTabletInfo, Basic.isUpdate), QVFieldType::Boolean},
    {"UpdateFilename", offsetof(tagQVTabletInfo, Basic.UpdateFilename), QVFieldType::String},
}};

inline constexpr std::array<QVField, 2> kQVPenFields{{
    {"PressureThreshold", offsetof(tagQVTabletInfo, Pen.PressureThreshold), QVFieldType::Int16},
    {"Speed", offsetof(tagQVTabletInfo, Pen.Speed), QVFieldType::Int16},
}};

inline constexpr std::array<QVField, 12> kQVMonitorFields{{
    {"num", offsetof(tagQVTabletInfo, Monitor.num), QVFieldType::Int16},
    {"rotationFlag", offsetof(tagQVTabletInfo, Monitor.rotationFlag), QVFieldType::Int16},
    {"disableFlag", offsetof(tagQVTabletInfo, Monitor.disableFlag), QVFieldType::Int16},
    {"Speed", offsetof(tagQVTabletInfo, Monitor.Speed), QVFieldType::Int16},
    {"XOrg", offsetof(tagQVTabletInfo, Monitor.XOrg), QVFieldType::Int16},
    {"Width", offsetof(tagQVTabletInfo, Monitor.Width), QVFieldType::Int16},
    {"YOrg", offsetof(tagQVTabletInfo, Monitor.YOrg), QVFieldType::Int16},
    {"Height", offsetof(tagQVTabletInfo, Monitor.Height), QVFieldType::Int16},
    {"cTabletXmin", offsetof(tagQVTabletInfo, Monitor.cTabletXmin), QVFieldType::UInt16},
    {"cTabletXmax", offsetof(tagQVTabletInfo, Monitor.cTabletXmax), QVFieldType::UInt16},
    {"cTabletYmin", offsetof(tagQVTabletInfo, Monitor.cTabletYmin), QVFieldType::UInt16},
    {"cTabletYmax", offsetof(tagQVTabletInfo, Monitor.cTabletYmax), QVFieldType::UInt16},
}};

inline constexpr std::array<QVField, 3> kQVKeyFields{{
    {"Scrollbar0", offsetof(tagQVTabletInfo, Key.Scrollbar0), QVFieldType::Int16},
    {"Scrollbar1", offsetof(tagQVTabletInfo, Key.Scrollbar1), QVFieldType::Int16},
    {"ScrollSpeed", offsetof(tagQVTabletInfo, Key.ScrollSpeed), QVFieldType::Int16},
}};

/** The entries of a key slot's dictionary; offsets count from the start of the slot. */
inline constexpr std::array<QVField, 4> kQVSlotFields{{
    {"Valid", offsetof(tagQVTabletInfoSubKey, Valid), QVFieldType::Int16},
    {"Mouse", offsetof(tagQVTabletInfoSubKey, Mouse), QVFieldType::Int16},
    {"Key", offsetof(tagQVTabletInfoSubKey, Key), QVFieldType::UInt32},
    {"App", offsetof(tagQVTabletInfoSubKey, App), QVFieldType::String},
}};

inline constexpr QVSection kQVTabletSection{"Tablet", kQVTabletFields, false, false};
inline constexpr QVSection kQVPenSection{"Pen", kQVPenFields, true, false};
inline constexpr QVSection kQVMonitorSection{"Monitor", kQVMonitorFields, true, false};
inline constexpr QVSection kQVKeySection{"Key", kQVKeyFields, true, true};

/** The dictionaries in the order in which they are loaded. */
inline constexpr std::array<QVSection, 4> kQVSections{
    kQVTabletSection, kQVPenSection, kQVKeySection, kQVMonitorSection};

/** Keys of the slots' dictionaries, in slot order. */
inline constexpr std::array<const char*, kQVSlotCount> kQVSlotKeys{"Key0", "Key1", "Key2", "Key3",
    "Key4", "Key5", "Key6", "Key7", "Key8", "Key9", "Key10", "Key11", "Key12", "Key13", "Key14",
    "Key15", "penKeyU", "penKeyL"};

/** Bytes from the start of the record to a slot; slot from 0 to kQVSlotCount - 1. */
constexpr std::size_t QVSlotOffset(std::size_t slot)
{
    return offsetof(tagQVTabletInfo, Key.SubKey) + slot * sizeof(tagQVTabletInfoSubKey);
}

/**
 * Visits every field of the record that has an entry in the file, in the order of loading.
 *
 * @param visit called with the section, the slot's key (null for a field outside of the slots), the
 *     field, and the bytes from the start of the record to what the field's offset counts from
 */
template <class Visit>
void QVForEachField(const Visit& visit)
{
    for (const QVSection& section : kQVSections) {
        for (const QVField& field : section.fields) {
            visit(section, static_cast<const char*>(nullptr), field, std::size_t{0});
        }
        for (std::size_t slot = 0; section.hasSlots && slot < kQVSlotCount; ++slot) {
            for (const QVField& field : kQVSlotFields) {
                visit(section, kQVSlotKeys[slot], field, QVSlotOffset(slot));
            }
        }
    }
}
