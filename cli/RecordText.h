// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletFields.h"

#include <QByteArray>
#include <QString>

#include <optional>

/** The record's entries, one line each: "Monitor/XOrg", spaces, the value. */
QString recordTable(const tagQVTabletInfo& record);

/** The record in JSON, shaped as its configuration file: four objects, slots within "Key". */
QByteArray recordJson(const tagQVTabletInfo& record);

/** An entry's path: "Pen/Speed", or "Key/Key3/App" within a slot. */
QString entryPath(const QVSection& section, const char* slot, const QVField& field);

/** What an entry's path leads to. */
struct RecordEntry {
    QVField field;
    std::size_t base; ///< bytes from the start of the record to what the offset counts from
    bool saved; ///< whether the panel may change it
};

/** The entry with that path; nothing where there is none. */
std::optional<RecordEntry> findEntry(const QString& path);

/** A number in words: decimal, also with leading zeros, or hexadecimal with 0x before it. */
std::optional<qint64> numberIn(const QString& words);

/** Puts a value in words into the entry. @return why it does not fit; empty on success */
QString setEntry(tagQVTabletInfo& record, const RecordEntry& entry, const QString& value);
