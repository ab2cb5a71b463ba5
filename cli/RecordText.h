// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletFields.h"
#include "Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

/** Formats the record, one line per entry: "Monitor/XOrg", spaces, the value. */
QString recordTable(const tagQVTabletInfo& record);

/**
 * Formats the record as JSON, structured like its configuration file: four objects, slots in "Key".
 */
QByteArray recordJson(const tagQVTabletInfo& record);

/** Returns the entry with a path as in the table; null if there is none. */
const QVEntry* findEntry(const QString& path);

/** Parses a number: decimal, even with leading zeros, or hexadecimal with the prefix 0x. */
std::optional<qint64> numberIn(const QString& words);

/** Sets the entry to a value given as text. */
platform::Result<> setEntry(tagQVTabletInfo& record, const QVEntry& entry, const QString& value);
