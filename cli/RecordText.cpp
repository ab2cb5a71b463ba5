// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "RecordText.h"

#include "QVConfigEntry.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

const std::byte* bytesAt(const tagQVTabletInfo& record, std::size_t base)
{
    return reinterpret_cast<const std::byte*>(&record) + base;
}

QString stringValue(const QVField& field, const std::byte* bytes)
{
    return QString::fromLatin1(QVFieldString(field, bytes).c_str());
}

} // namespace

QString entryPath(const QVSection& section, const char* slot, const QVField& field)
{
    QString path = QString::fromLatin1(section.key) + QLatin1Char('/');
    if (slot != nullptr) {
        path += QString::fromLatin1(slot) + QLatin1Char('/');
    }
    return path + QString::fromLatin1(field.key);
}

QString recordTable(const tagQVTabletInfo& record)
{
    constexpr int kColumn = 26;
    QString table;
    QVForEachField(
        [&](const QVSection& section, const char* slot, const QVField& field, std::size_t base) {
            const std::byte* const bytes = bytesAt(record, base);
            const QString value = field.type == QVFieldType::String
                ? stringValue(field, bytes)
                : QString::number(QVFieldNumber(field, bytes));
            QString line = entryPath(section, slot, field);
            if (!value.isEmpty()) {
                line = line.leftJustified(kColumn) + value;
            }
            table += line + QLatin1Char('\n');
        });
    return table;
}

QByteArray recordJson(const tagQVTabletInfo& record)
{
    QJsonObject sections;
    QVForEachField(
        [&](const QVSection& section, const char* slot, const QVField& field, std::size_t base) {
            const std::byte* const bytes = bytesAt(record, base);
            QJsonValue value;
            if (field.type == QVFieldType::String) {
                value = stringValue(field, bytes);
            } else if (field.type == QVFieldType::Boolean) {
                value = QVFieldNumber(field, bytes) != 0;
            } else {
                value = static_cast<qint64>(QVFieldNumber(field, bytes));
            }
            const QString sectionKey = QString::fromLatin1(section.key);
            const QString key = QString::fromLatin1(field.key);
            QJsonObject entries = sections.value(sectionKey).toObject();
            if (slot == nullptr) {
                entries.insert(key, value);
            } else {
                const QString slotKey = QString::fromLatin1(slot);
                QJsonObject slotEntries = entries.value(slotKey).toObject();
                slotEntries.insert(key, value);
                entries.insert(slotKey, slotEntries);
            }
            sections.insert(sectionKey, entries);
        });
    return QJsonDocument(sections).toJson();
}

std::optional<RecordEntry> findEntry(const QString& path)
{
    std::optional<RecordEntry> found;
    QVForEachField(
        [&](const QVSection& section, const char* slot, const QVField& field, std::size_t base) {
            if (entryPath(section, slot, field) == path) {
                found = RecordEntry{field, base, section.saved};
            }
        });
    return found;
}

std::optional<qint64> numberIn(const QString& words)
{
    bool isNumber = false;
    const bool isHex = words.contains(QLatin1String("0x"), Qt::CaseInsensitive);
    const qint64 number = words.toLongLong(&isNumber, isHex ? 16 : 10);
    return isNumber ? std::optional(number) : std::nullopt;
}

QString setEntry(tagQVTabletInfo& record, const RecordEntry& entry, const QString& value)
{
    // The way of an entry out of a file is also the way of a value from the command line.
    const platform::PropertyList list;
    if (entry.field.type == QVFieldType::String) {
        list.root().setString(entry.field.key, value.toStdString());
    } else {
        const std::optional<qint64> number = numberIn(value);
        if (!number) {
            return QStringLiteral("'%1' is no number").arg(value);
        }
        list.root().setInteger(entry.field.key, *number);
    }
    auto* const base = reinterpret_cast<std::byte*>(&record) + entry.base;
    switch (QVReadEntry(list.root(), entry.field, base)) {
    case QVEntryResult::Copied:
        return QVWriteEntry(list.root(), entry.field, base)
            ? QString()
            : QStringLiteral("the text must not have control characters: no file could hold them");
    case QVEntryResult::Truncated:
        return QStringLiteral("%1 does not fit").arg(value);
    default:
        return QStringLiteral("the text must be ASCII and at most %1 characters long")
            .arg(kQVStringSize - 1);
    }
}
