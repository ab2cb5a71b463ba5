// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The command "check".

#include "Commands.h"
#include "PropertyList.h"
#include "QVConfigEntry.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

struct Tally {
    int good = 0;
    int bad = 0;
    int unknown = 0;
};

void printLine(const char* verdict, const QString& path, const QString& remark = {})
{
    const QString tail = remark.isEmpty() ? QString() : QStringLiteral(": ") + remark;
    std::printf("%-9s %s%s\n", verdict, qUtf8Printable(path), qUtf8Printable(tail));
}

void checkEntry(const platform::Dictionary& root, const QVEntry& entry, Tally& tally)
{
    tagQVTabletInfo record{};
    const platform::Dictionary dictionary = QVEntryDictionary(root, entry);
    const QVEntryResult result = QVReadEntry(dictionary, entry, record);
    const QString path = QString::fromStdString(QVEntryPath(entry));
    const QString value = QString::fromStdString(QVFieldText(entry, record));
    ++(result == QVEntryResult::Copied ? tally.good : tally.bad);
    switch (result) {
    case QVEntryResult::Copied:
        printLine("ok", path, value);
        break;
    case QVEntryResult::Truncated:
        printLine("truncated", path, QStringLiteral("only %1 of the number fits").arg(value));
        break;
    case QVEntryResult::Absent:
        printLine("missing", path);
        break;
    case QVEntryResult::WrongType:
    case QVEntryResult::Unfit:
        printLine("wrong", path, QString::fromStdString(QVEntryFault(dictionary, entry)));
        break;
    }
}

/** Lists entries that the panel does not know, and keeps. */
template <class IsKnown>
void listUnknown(
    const platform::Dictionary& dictionary, const QString& prefix, IsKnown isKnown, Tally& tally)
{
    for (const std::string& key : dictionary.keys()) {
        if (!isKnown(key)) {
            ++tally.unknown;
            printLine("unknown", prefix + QString::fromStdString(key));
        }
    }
}

void listAllUnknown(const platform::Dictionary& root, Tally& tally)
{
    const auto isEntry = [](const QVSection& section, const char* slot) {
        return [entries = QVEntriesOf(section, slot)](const std::string& key) {
            return std::ranges::find(entries, key, &QVEntry::key) != entries.end();
        };
    };
    listUnknown(
        root, {},
        [](const std::string& key) {
            return std::ranges::find(kQVSections, key, &QVSection::key) != kQVSections.end();
        },
        tally);
    for (const QVSection* const section : kQVSections) {
        const platform::Dictionary dictionary = root.dictionary(section->key);
        const QString prefix = QString::fromLatin1(section->key) + QLatin1Char('/');
        listUnknown(
            dictionary, prefix,
            [section, isOfSection = isEntry(*section, nullptr)](const std::string& key) {
                return isOfSection(key)
                    || (section->hasSlots
                        && std::ranges::find(kQVSlotKeys, key) != kQVSlotKeys.end());
            },
            tally);
        for (std::size_t slot = 0; section->hasSlots && slot < kQVSlotCount; ++slot) {
            listUnknown(dictionary.dictionary(kQVSlotKeys[slot]),
                prefix + QString::fromLatin1(kQVSlotKeys[slot]) + QLatin1Char('/'),
                isEntry(*section, kQVSlotKeys[slot]), tally);
        }
    }
}

} // namespace

int checkFile(const QString& path)
{
    const auto list = platform::PropertyList::load(
        QFile::encodeName(path).toStdString(), platform::PropertyListSource::AnyFile);
    if (!list) {
        std::printf("unusable  %s\n", qUtf8Printable(list.error().text));
        return kExitBad;
    }
    Tally tally;
    for (const QVEntry& entry : kQVEntries) {
        checkEntry(list->root(), entry, tally);
    }
    listAllUnknown(list->root(), tally);
    std::printf("%d of %d entries are usable, %d unknown ones are kept\n", tally.good,
        tally.good + tally.bad, tally.unknown);
    return tally.bad == 0 ? kExitGood : kExitBad;
}
