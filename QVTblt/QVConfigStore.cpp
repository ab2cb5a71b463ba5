// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVConfigStore.h"

#include "Displays.h"
#include "HomeFolder.h"
#include "Notifications.h"
#include "QVConfigEntry.h"
#include "QVMonitorGeometry.h"
#include "rzkApplication.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace {

Q_LOGGING_CATEGORY(lcStore, "org.quorvia.tablet.store", QtInfoMsg)

constexpr const char* kConfigFolder = "~/Library/Preferences/QuorviaTablet/config/";

constexpr auto kSlots = static_cast<std::int32_t>(kQVSlotCount);

/** The key of a slot; null, with a message in the log, if there is no such slot. */
const char* slotKey(std::int32_t i)
{
    if (i >= 0 && i < kSlots) {
        return kQVSlotKeys[static_cast<std::size_t>(i)];
    }
    qCWarning(lcStore, "there is no key slot %d", i);
    return nullptr;
}

/** Copies the entries of one dictionary; logs those that exist but do not fit. */
void readEntries(
    const platform::Dictionary& dictionary, const char* name, std::span<const QVEntry> entries)
{
    for (const QVEntry& entry : entries) {
        const QVEntryResult result = QVReadEntry(dictionary, entry, qvTabletInfo);
        if (result == QVEntryResult::WrongType || result == QVEntryResult::Unfit) {
            qCWarning(lcStore, "skipped %s of %s: %s", entry.key, name,
                QVEntryFault(dictionary, entry).c_str());
        }
    }
}

void writeEntries(const platform::MutableDictionary& dictionary, const char* name,
    std::span<const QVEntry> entries)
{
    for (const QVEntry& entry : entries) {
        if (!QVWriteEntry(dictionary, entry, qvTabletInfo)) {
            qCWarning(
                lcStore, "kept the old %s of %s: the new one cannot be written", entry.key, name);
        }
    }
}

/** The dictionary for a key; logs a value of any other type. */
platform::Dictionary dictionaryIn(const platform::Dictionary& parent, const char* key)
{
    const platform::Dictionary dictionary = parent.dictionary(key);
    if (!dictionary.exists() && parent.kind(key) != platform::EntryKind::Absent) {
        qCWarning(
            lcStore, "skipped %s: %s instead of a dictionary", key, QVKindName(parent.kind(key)));
    }
    return dictionary;
}

/**
 * With a single display, there is no choice: it is the mapped area, whatever the file says. With
 * several, the file's choice is kept.
 */
void mapSingleDisplay()
{
    const platform::Displays& displays = platform::displays();
    if (displays.activeDisplayCount().value_or(1) != 1) {
        return;
    }
    const std::optional<std::vector<platform::DisplayID>> active = displays.activeDisplays();
    if (active && !active->empty()) {
        QVSetMappedArea(qvTabletInfo, displays.bounds(active->front()));
    }
}

/** Whether the driver has given a file name. Without one, the path is just the folder. */
platform::Result<> checkName()
{
    if (*GetPListName() != '\0') {
        return {};
    }
    return platform::Error{
        QStringLiteral("the driver has not given the name of a configuration file"), true};
}

/** Logs and posts why a file could not be used; a missing file is only posted. */
void tellFailure(QLatin1String name, const platform::Error& error)
{
    if (!error.isMissingFile) {
        qCWarning(lcStore, "%s", qUtf8Printable(error.text));
    }
    platform::notifications().post({name, nullptr, {}, error.text});
}

} // namespace

std::string QVConfigStore::configPath()
{
    return configFolder() + GetPListName();
}

std::string QVConfigStore::configFolder()
{
    return platform::expandTilde(kConfigFolder);
}

void QVConfigStore::ReadQVConfigPlist()
{
    if (const auto list = loadTabletsRecord(); !list) {
        tellFailure(kConfigNotLoadedNotification, list.error());
        return;
    }
    platform::notifications().post({kConfigLoadedNotification, nullptr, {}});
}

platform::Result<platform::PropertyList> QVConfigStore::loadTabletsRecord()
{
    if (const platform::Result<> named = checkName(); !named) {
        return named.error();
    }
    platform::Result<platform::PropertyList> list = loadRecord(configPath());
    if (list) {
        if (list->root().dictionary(kQVMonitorSection.key).exists()) {
            mapSingleDisplay();
        }
        mInFile = qvTabletInfo;
    }
    return list;
}

platform::Result<platform::PropertyList> QVConfigStore::loadAttachedTablet()
{
    if (!rzkgetQVDevice()) {
        return platform::Error{*GetPListName() == '\0'
                ? QStringLiteral("the driver does not answer")
                : QStringLiteral("no tablet is attached")};
    }
    return loadTabletsRecord();
}

void QVConfigStore::WriteQVConfigPlist()
{
    const platform::Result<> named = checkName();
    if (const platform::Result<> saved = named ? saveRecord(configPath()) : named; !saved) {
        tellFailure(kConfigNotSavedNotification, saved.error());
        return;
    }
    mInFile = qvTabletInfo;
    platform::notifications().post({kConfigSavedNotification, nullptr, {}});
}

bool QVConfigStore::hasUnsavedFields() const
{
    return std::ranges::any_of(kQVEntries, [this](const QVEntry& entry) {
        return QVIsChosen(entry) && !QVIsSameField(entry, qvTabletInfo, mInFile);
    });
}

void QVConfigStore::noteSaved()
{
    const tagQVTabletInfo record = qvTabletInfo;
    if (loadRecord(configPath())) {
        mInFile = qvTabletInfo;
    }
    qvTabletInfo = record;
}

platform::Result<platform::PropertyList> QVConfigStore::loadRecord(
    const std::string& path, platform::PropertyListSource source)
{
    platform::Result<platform::PropertyList> list = platform::PropertyList::load(path, source);
    if (list) {
        const std::string_view name =
            list->root().dictionary(kQVTabletSection.key).string("Name").value_or("");
        mTabletName = QString::fromUtf8(name.data(), static_cast<int>(name.size()));
        for (const QVSection* const section : kQVSections) {
            const platform::Dictionary dictionary = dictionaryIn(list->root(), section->key);
            readEntries(dictionary, section->key, QVEntriesOf(*section));
            for (std::int32_t slot = 0; section->hasSlots && slot < kSlots; ++slot) {
                GetSubKeyInfo(slot, dictionaryIn(dictionary, slotKey(slot)));
            }
        }
    }
    return list;
}

platform::Result<> QVConfigStore::saveRecord(const std::string& path)
{
    platform::Result<platform::PropertyList> list = platform::PropertyList::load(path);
    if (!list) {
        return list.error();
    }
    for (const QVSection* const section : kQVSections) {
        const platform::MutableDictionary dictionary = list->root().dictionary(section->key);
        if (!section->saved || !dictionary.exists()) {
            continue;
        }
        writeEntries(dictionary, section->key, QVEntriesOf(*section));
        for (std::int32_t slot = 0; section->hasSlots && slot < kSlots; ++slot) {
            const platform::MutableDictionary object = dictionary.dictionary(slotKey(slot));
            if (object.exists()) {
                SetSubKeyInfo(slot, object);
            }
        }
    }
    return list->save(path);
}

platform::Result<> QVConfigStore::saveEntry(const QVEntry& entry)
{
    platform::Result<platform::PropertyList> list = platform::PropertyList::load(configPath());
    if (!list) {
        return list.error();
    }
    // The panel does not add dictionaries.
    const platform::MutableDictionary dictionary = QVEntryDictionary(list->root(), entry);
    if (!dictionary.exists()) {
        return platform::Error{QStringLiteral("the tablet's file has no dictionary for %1")
                                   .arg(QString::fromStdString(QVEntryPath(entry)))};
    }
    QVWriteEntry(dictionary, entry, qvTabletInfo);
    platform::Result<> saved = list->save(configPath());
    if (saved) {
        QVCopyField(entry, qvTabletInfo, mInFile);
    }
    return saved;
}

void QVConfigStore::GetSubKeyInfo(std::int32_t i, const platform::Dictionary& object)
{
    if (const char* const slot = slotKey(i)) {
        readEntries(object, slot, QVEntriesOf(kQVKeySection, slot));
    }
}

void QVConfigStore::SetSubKeyInfo(std::int32_t i, const platform::MutableDictionary& object)
{
    if (const char* const slot = slotKey(i)) {
        writeEntries(object, slot, QVEntriesOf(kQVKeySection, slot));
    }
}
