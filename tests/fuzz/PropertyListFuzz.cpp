// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Fuzzes the configuration file: loads it into the record and saves it again, through the store.
// Input: the bytes of the file.

#include "FakeDisplays.h"
#include "Fuzz.h"
#include "Notifications.h"
#include "PropertyList.h"
#include "QVConfigEntry.h"
#include "QVConfigStore.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <cstring>
#include <string>

using namespace platform;

namespace {

std::byte* fieldOf(const QVEntry& entry, tagQVTabletInfo& record)
{
    return reinterpret_cast<std::byte*>(&record) + entry.offset;
}

/** Fills the record with a byte, except for the ends of its strings. */
void fillRecord(int byte)
{
    std::memset(&qvTabletInfo, byte, sizeof qvTabletInfo);
    for (const QVEntry& entry : kQVEntries) {
        if (entry.type == QVFieldType::String) {
            fieldOf(entry, qvTabletInfo)[kQVStringSize - 1] = std::byte{0};
        }
    }
}

bool sameRecord(const tagQVTabletInfo& one, const tagQVTabletInfo& other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

/** Checks that the records differ only in fields that have an entry in the file. */
void requireOnlyFieldsDiffer(const tagQVTabletInfo& before, const tagQVTabletInfo& after)
{
    tagQVTabletInfo one = before;
    tagQVTabletInfo other = after;
    for (const QVEntry& entry : kQVEntries) {
        std::size_t size = 2;
        if (entry.type == QVFieldType::String) {
            size = kQVStringSize;
            require(
                QVFieldText(entry, other).size() < kQVStringSize, "a string ends within its field");
        } else if (entry.type == QVFieldType::UInt32) {
            size = 4;
        } else if (entry.type == QVFieldType::Boolean) {
            size = 1;
        }
        std::memset(fieldOf(entry, one), 0, size);
        std::memset(fieldOf(entry, other), 0, size);
    }
    require(sameRecord(one, other), "a load changes nothing but the file's fields");
}

/** Checks that the saved file has the record's values. */
void requireStored(const Dictionary& root, const tagQVTabletInfo& record)
{
    for (const QVEntry& entry : kQVEntries) {
        const Dictionary dictionary = QVEntryDictionary(root, entry);
        tagQVTabletInfo scratch{};
        const QVEntryResult result = QVReadEntry(dictionary, entry, scratch);
        if (entry.section->saved && dictionary.exists()) {
            require(result == QVEntryResult::Copied, "a saved entry is whole");
        }
        require((result != QVEntryResult::Copied && result != QVEntryResult::Truncated)
                || QVFieldText(entry, scratch) == QVFieldText(entry, record),
            "a saved field is what was loaded");
    }
}

/** Saves the record. @return why it failed; empty on success */
std::string save(QVConfigStore& store)
{
    std::string why;
    const QObject observer;
    notifications().addObserver(observer, kConfigNotSavedNotification,
        [&](const Notification& notification) { why = notification.text.toStdString(); });
    store.WriteQVConfigPlist();
    return why;
}

std::string contents(const QString& path)
{
    return readFile(path).toStdString();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    startApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryHome home;
    static const QString path = home.configFile(7);
    // Two displays, so that the file's mapped area is kept.
    static FakeDisplays displays{{{0, 0, 100, 100}, {100, 0, 100, 100}}};
    std::strcpy(GetPListName(), "7.plist");

    putFile(path, {data, size});
    fillRecord('A');
    const tagQVTabletInfo before = qvTabletInfo;
    QVConfigStore store;
    const auto list = PropertyList::load(path.toStdString());
    store.ReadQVConfigPlist();
    if (!list) {
        require(!list.error().text.isEmpty(), "a file is refused with a reason");
        require(sameRecord(qvTabletInfo, before), "a broken file leaves the record");
        require(!save(store).empty(), "a broken file cannot be saved into");
        require(contents(path) == std::string(reinterpret_cast<const char*>(data), size),
            "a broken file stays as it is");
        return 0;
    }
    const tagQVTabletInfo loaded = qvTabletInfo;
    requireOnlyFieldsDiffer(before, loaded);
    require(!store.hasUnsavedFields(), "after a load, nothing is unsaved");

    const std::string refused = save(store);
    if (!refused.empty()) {
        const std::string input(reinterpret_cast<const char*>(data), size);
        require(input.starts_with("bplist"), "a file in XML that was loaded can be saved");
        require(contents(path) == input, "what XML cannot hold stays as it is");
        return 0;
    }
    // Unknown entries are written back unchanged.
    const std::string xml = list->toXml();
    const auto again = PropertyList::parse(xml);
    // A text of the binary form that XML cannot represent may have been replaced by the record's.
    require(
        again || std::string_view(reinterpret_cast<const char*>(data), size).starts_with("bplist"),
        "what is written can be read");
    require(!again || again->toXml() == xml, "what is written is read as it was");
    require(sameRecord(qvTabletInfo, loaded), "a save leaves the record");
    const auto saved = PropertyList::load(path.toStdString());
    require(saved.has_value(), "a saved file can be loaded");
    requireStored(saved->root(), loaded);

    fillRecord('B');
    store.ReadQVConfigPlist();
    const std::string first = contents(path);
    require(save(store).empty(), "a saved file can be saved");
    require(contents(path) == first, "a second save writes the same");
    return 0;
}
