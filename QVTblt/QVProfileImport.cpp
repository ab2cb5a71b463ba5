// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfileImport.h"

#include "ActionText.h"
#include "QVConfigEntry.h"
#include "QVEntryName.h"
#include "QVMonitorGeometry.h"
#include "QVSlotPath.h"
#include "hid_usb_2_adb_keymap_char.h"

#include <algorithm>
#include <iterator>
#include <string_view>

using platform::Result;

namespace {

/** Whether a number is one that the panel itself could set, for the tablet of the record. */
bool isSensible(
    const QVEntry& entry, const tagQVTabletInfo& settings, const tagQVTabletInfo& record)
{
    const std::int64_t value = QVFieldNumber(entry, settings);
    const auto isFrom = [value](std::int64_t least, std::int64_t most) {
        return value >= least && value <= most;
    };
    const std::string_view key(entry.key);
    if (entry.slot != nullptr) {
        return key == "Valid" ? isFrom(kQVNoAction, kQVPauseTablet)
            : key == "Mouse"  ? isFrom(kQVLeftButton, kQVMiddleButton)
                              : value >> 24U <= kQVMaxKeys; // how many keys
    }
    const auto& all = record.Basic;
    switch (entry.offset) {
    case offsetof(tagQVTabletInfo, Pen.PressureThreshold):
        return isFrom(0, kQVHighestThreshold);
    case offsetof(tagQVTabletInfo, Key.Scrollbar0):
    case offsetof(tagQVTabletInfo, Key.Scrollbar1):
        return isFrom(0, 1);
    case offsetof(tagQVTabletInfo, Key.ScrollSpeed):
        return isFrom(kQVSlowestScroll, kQVFastestScroll);
    case offsetof(tagQVTabletInfo, Monitor.num):
        return isFrom(0, kQVMaxDisplays);
    case offsetof(tagQVTabletInfo, Monitor.rotationFlag):
        return isFrom(0, 0) || isFrom(kQVTurned, kQVTurned);
    case offsetof(tagQVTabletInfo, Monitor.Speed):
        return isFrom(kQVSpeedFast, kQVSpeedFast) || isFrom(kQVSpeedNormal, kQVSpeedNormal);
    case offsetof(tagQVTabletInfo, Monitor.cTabletXmin):
    case offsetof(tagQVTabletInfo, Monitor.cTabletXmax):
        return isFrom(all.TabletXmin, all.TabletXmax);
    case offsetof(tagQVTabletInfo, Monitor.cTabletYmin):
    case offsetof(tagQVTabletInfo, Monitor.cTabletYmax):
        return isFrom(all.TabletYmin, all.TabletYmax);
    default:
        return true;
    }
}

/** Whether an entry is about something that the tablet of the record has. */
bool hasPlaceFor(const QVEntry& entry, const tagQVTabletInfo& record)
{
    if (entry.slot != nullptr) {
        const std::size_t slot = QVSlotOf(entry);
        return slot >= kQVUpperPenSlot
            || static_cast<std::int64_t>(slot) < std::int64_t{record.Basic.KeyNum};
    }
    switch (entry.offset) {
    case offsetof(tagQVTabletInfo, Key.Scrollbar0):
    case offsetof(tagQVTabletInfo, Key.ScrollSpeed):
        return record.Basic.ScrollNum > 0;
    case offsetof(tagQVTabletInfo, Key.Scrollbar1):
        return record.Basic.ScrollNum > 1;
    default:
        return true;
    }
}

/** Whether an entry is about the used area, which is in the units of one model. */
bool isArea(const QVEntry& entry)
{
    return entry.section == &kQVMonitorSection
        && std::string_view(entry.key).starts_with("cTablet");
}

/** Whether all of a profile's used area is on the tablet of the record. */
bool hasArea(const QVProfile& profile, const tagQVTabletInfo& record)
{
    const auto& area = profile.settings.Monitor;
    bool isWhole = area.cTabletXmin < area.cTabletXmax && area.cTabletYmin < area.cTabletYmax;
    for (std::size_t i = 0; i < kQVEntries.size(); ++i) {
        if (isArea(kQVEntries[i])) {
            isWhole = isWhole && profile.present.test(i)
                && isSensible(kQVEntries[i], profile.settings, record);
        }
    }
    return isWhole;
}

/** A text that says what it is: without what turns its direction, or cannot be seen. */
QString plain(QString text)
{
    for (QChar& character : text) {
        constexpr QChar kNonJoiner(0x200C);
        constexpr QChar kJoiner(0x200D);
        const QChar::Category category = character.category();
        if (category == QChar::Separator_Line || category == QChar::Separator_Paragraph
            || (category == QChar::Other_Format && character != kNonJoiner
                && character != kJoiner)) {
            character = QChar::ReplacementCharacter;
        }
    }
    return text;
}

void note(QStringList& list, const QString& line)
{
    if (!list.contains(line)) {
        list.append(line);
    }
}

/** What the import sets an entry to, for the user. */
QString changeOf(const QVEntry& entry, const tagQVTabletInfo& settings)
{
    QString name = QVEntryName(entry);
    if (entry.slot == nullptr) {
        return name;
    }
    //: What an imported profile sets: %1 is a button, such as "key 3", %2 its action.
    return QCoreApplication::translate("QVProfileImport", "%1: %2")
        .arg(name, actionText(settings.Key.SubKey[QVSlotOf(entry)]));
}

} // namespace

Result<QVProfileImport> QVReadImport(const std::string& path, const tagQVTabletInfo& record)
{
    const auto list = platform::PropertyList::load(path);
    if (!list) {
        return list.error();
    }
    return QVImport(*list, record);
}

Result<QVProfileImport> QVImport(const platform::PropertyList& list, const tagQVTabletInfo& record)
{
    const Result<QVProfile> read = QVReadProfile(list);
    if (!read) {
        return read.error();
    }
    QVProfileImport import;
    import.profile = QVProfileOf(record, plain(read->name));
    for (const QString& application : read->applications) {
        import.profile.applications.append(plain(application));
    }
    tagQVTabletInfo& settings = import.profile.settings;
    const bool takesArea = read->productID == QVProductID(record) && hasArea(*read, record);

    for (std::size_t i = 0; i < kQVEntries.size(); ++i) {
        const QVEntry& entry = kQVEntries[i];
        // What the file does not have stays, and paths are taken only when they are allowed. The
        // mapped area follows from the chosen display.
        if (!read->present.test(i) || entry.type == QVFieldType::String || !QVIsChosen(entry)) {
            continue;
        }
        const bool fits = hasPlaceFor(entry, record) && (takesArea || !isArea(entry));
        if (fits && isSensible(entry, read->settings, record)) {
            QVCopyField(entry, read->settings, settings);
        } else if (QVFieldNumber(entry, read->settings) != 0) {
            note(import.leftOut, QVEntryName(entry));
        }
    }
    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        tagQVTabletInfoSubKey& button = settings.Key.SubKey[slot];
        const QVEntry& entry = QVEntriesOf(kQVKeySection, kQVSlotKeys[slot]).front();
        if (!hasPlaceFor(entry, record)
            || read->settings.Key.SubKey[slot].Valid != kQVApplication) {
            continue;
        }
        button.Valid = kQVNoAction;
        const std::string_view path = QVText(read->settings.Key.SubKey[slot].App);
        if (!path.empty()) {
            import.starts.push_back({slot, QVEntryName(entry),
                QString::fromLatin1(path.data(), static_cast<int>(path.size()))});
        }
    }
    for (const QVEntry& entry : kQVEntries) {
        if (QVIsChosen(entry) && entry.type != QVFieldType::String
            && !QVIsSameField(entry, settings, record)) {
            note(import.changes, changeOf(entry, settings));
        }
    }
    return import;
}

void QVAllowStart(QVProfileImport& import, const QVProfileImport::Start& start)
{
    tagQVTabletInfoSubKey& button = import.profile.settings.Key.SubKey[start.slot];
    button.Valid = kQVApplication;
    QVStoreSlotPath(start.path, button);
}
