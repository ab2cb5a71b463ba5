// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "RecordText.h"

#include "QVConfigEntry.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using platform::Error;

namespace {

QJsonValue jsonValue(const QVEntry& entry, const tagQVTabletInfo& record)
{
    switch (entry.type) {
    case QVFieldType::String:
        return QString::fromLatin1(QVFieldText(entry, record).c_str());
    case QVFieldType::Boolean:
        return QVFieldNumber(entry, record) != 0;
    default:
        return static_cast<qint64>(QVFieldNumber(entry, record));
    }
}

} // namespace

QString recordTable(const tagQVTabletInfo& record)
{
    constexpr int kColumn = 26;
    QString table;
    for (const QVEntry& entry : kQVEntries) {
        const QString path = QString::fromStdString(QVEntryPath(entry));
        const QString value = QString::fromLatin1(QVFieldText(entry, record).c_str());
        table += (value.isEmpty() ? path : path.leftJustified(kColumn) + value) + QLatin1Char('\n');
    }
    return table;
}

QByteArray recordJson(const tagQVTabletInfo& record)
{
    QJsonObject root;
    for (const QVSection* const section : kQVSections) {
        const auto object = [&](const char* slot) {
            QJsonObject entries;
            for (const QVEntry& entry : QVEntriesOf(*section, slot)) {
                entries.insert(QLatin1String(entry.key), jsonValue(entry, record));
            }
            return entries;
        };
        QJsonObject entries = object(nullptr);
        for (std::size_t slot = 0; section->hasSlots && slot < kQVSlotCount; ++slot) {
            entries.insert(QLatin1String(kQVSlotKeys[slot]), object(kQVSlotKeys[slot]));
        }
        root.insert(QLatin1String(section->key), entries);
    }
    return QJsonDocument(root).toJson();
}

const QVEntry* findEntry(const QString& path)
{
    const auto* const found = std::ranges::find(kQVEntries, path.toStdString(), QVEntryPath);
    return found == kQVEntries.end() ? nullptr : found;
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
