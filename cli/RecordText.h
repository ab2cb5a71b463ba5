// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletFields.h"
#include "Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

/** The record's entries, one line each: "Monitor/XOrg", spaces, the value. */
QString recordTable(const tagQVTabletInfo& record);

/** The record in JSON, shaped as its configuration file: four objects, slots within "Key". */
QByteArray recordJson(const tagQVTabletInfo& record);

/** The entry with a path as in the table; null where there is none. */
const QVEntry* findEntry(const QString& path);

/** A number in words: decimal, also with leading zeros, or hexadecimal with 0x before it. */
std::optional<qint64> numberIn(const QString& words);

/** Puts a value in words into the entry. */
platform::Result<> setEntry(tagQVTabletInfo& record, const QVEntry& entry, const QString& value);
