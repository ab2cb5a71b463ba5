// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletFields.h"
#include "Result.h"

#include <QString>

#include <optional>

/**
 * @file
 * Entries and their values as text, as on the command line and on the bus.
 */

/**
 * Finds the entry with a path such as "Monitor/XOrg". Fails if there is none, or if it describes
 * the tablet and cannot be set.
 */
platform::Result<const QVEntry*> findSetting(const QString& path);

/** Parses a number: decimal, even with leading zeros, or hexadecimal with the prefix 0x. */
std::optional<qint64> numberIn(const QString& words);

/** Sets the entry to a value given as text. */
platform::Result<> setEntry(tagQVTabletInfo& record, const QVEntry& entry, const QString& value);

/** The value of an entry's field, in a form that setEntry() takes. */
QString entryValue(const tagQVTabletInfo& record, const QVEntry& entry);
