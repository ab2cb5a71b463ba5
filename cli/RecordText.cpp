// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "RecordText.h"

#include "QVConfigEntry.h"
#include "QVEntryText.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonValue jsonValue(const QVEntry& entry, const tagQVTabletInfo& record)
{
    switch (entry.type) {
    case QVFieldType::String:
        return entryValue(record, entry);
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
        const QString value = entryValue(record, entry);
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
