// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVEntryText.h"

#include "QVConfigEntry.h"

#include <algorithm>

using platform::Error;

platform::Result<const QVEntry*> findSetting(const QString& path)
{
    const auto* const found = std::ranges::find(kQVEntries, path.toStdString(), QVEntryPath);
    if (found == kQVEntries.end()) {
        return Error{QStringLiteral("there is no entry %1").arg(path)};
    }
    if (!found->section->saved) {
        return Error{QStringLiteral("%1 describes the tablet and cannot be set").arg(path)};
    }
    return found;
}

std::optional<qint64> numberIn(const QString& words)
{
    bool isNumber = false;
    const bool isHex = words.contains(QLatin1String("0x"), Qt::CaseInsensitive);
    const qint64 number = words.toLongLong(&isNumber, isHex ? 16 : 10);
    return isNumber ? std::optional(number) : std::nullopt;
}

platform::Result<> setEntry(tagQVTabletInfo& record, const QVEntry& entry, const QString& value)
{
    // A value from the command line is converted like an entry of a file.
    platform::PropertyList list;
    if (entry.type == QVFieldType::String) {
        list.root().setString(entry.key, value.toStdString());
    } else {
        const std::optional<qint64> number = numberIn(value);
        if (!number) {
            return Error{QStringLiteral("'%1' is not a number").arg(value)};
        }
        list.root().setInteger(entry.key, *number);
    }
    switch (QVReadEntry(list.root(), entry, record)) {
    case QVEntryResult::Copied:
        if (!QVWriteEntry(list.root(), entry, record)) {
            return Error{QStringLiteral("the text must not contain control characters")};
        }
        return {};
    case QVEntryResult::Truncated:
        return Error{QStringLiteral("%1 does not fit").arg(value)};
    default:
        return Error{QStringLiteral("the text must be ASCII and at most %1 characters long")
                         .arg(kQVStringSize - 1)};
    }
}

QString entryValue(const tagQVTabletInfo& record, const QVEntry& entry)
{
    return QString::fromLatin1(QVFieldText(entry, record).c_str());
}
