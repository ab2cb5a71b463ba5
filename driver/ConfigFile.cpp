// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ConfigFile.h"

#include "Driver.h"
#include "PropertyList.h"
#include "QVConfigEntry.h"
#include "QVConfigStore.h"
#include "rzkApplication.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

/** The settings of a new tablet. */
tagQVTabletInfo defaults(const QVTabletModel& model, std::uint16_t vendorID)
{
    tagQVTabletInfo record{};
    record.Basic.VendorID = static_cast<std::int16_t>(vendorID);
    record.Basic.ProductID = static_cast<std::int16_t>(model.productID);
    record.Basic.VersionNumber = 1;
    record.Basic.InputLength = 12;
    record.Basic.KeyNum = static_cast<std::int16_t>(model.keyNum);
    record.Basic.ScrollNum = static_cast<std::int16_t>(model.scrollNum);
    record.Basic.PressureMax = static_cast<std::int16_t>(model.pressureMax);
    record.Basic.TabletXmax = model.tabletXmax;
    record.Basic.TabletYmax = model.tabletYmax;
    record.Pen.PressureThreshold = kQVStraightThreshold;
    record.Pen.Speed = 10;
    record.Monitor.Speed = kQVSpeedNormal;
    record.Monitor.Width = 1920;
    record.Monitor.Height = 1080;
    record.Monitor.cTabletXmax = model.tabletXmax;
    record.Monitor.cTabletYmax = model.tabletYmax;
    record.Key.ScrollSpeed = kQVUsualScroll;
    // The pen's buttons are the right and the middle mouse button.
    record.Key.SubKey[kQVUpperPenSlot] = {kQVMouseButton, kQVRightButton, 0, {}};
    record.Key.SubKey[kQVLowerPenSlot] = {kQVMouseButton, kQVMiddleButton, 0, {}};
    return record;
}

/** The path of a number's file, which is also the file of the store from now on. */
std::string select(std::uint16_t number)
{
    std::snprintf(GetPListName(), kQVListNameSize, "%u.plist", unsigned{number});
    return QVConfigStore::configPath();
}

/** Even a broken link or a folder is left alone: it is the user's. */
bool exists(const QFileInfo& file)
{
    return file.exists() || file.isSymLink();
}

} // namespace

bool mayBeConfigFileOf(std::uint16_t number, std::uint16_t vendorID, const QString& name)
{
    const std::string path = select(number);
    if (!exists(QFileInfo(QFile::decodeName(path.c_str())))) {
        return true;
    }
    qvTabletInfo = {};
    QVConfigStore store;
    return store.loadRecord(path)
        && static_cast<std::uint16_t>(qvTabletInfo.Basic.VendorID) == vendorID
        && store.tabletName() == name;
}

platform::Result<> installConfigFile(const QVTabletModel& model, std::uint16_t vendorID)
{
    const std::string path = select(model.productID);
    const QFileInfo file(QFile::decodeName(path.c_str()));
    if (exists(file)) {
        return {};
    }
    if (!QDir().mkpath(file.path())) {
        return platform::Error{
            QStringLiteral("cannot create the folder of %1").arg(file.filePath())};
    }
    const tagQVTabletInfo record = defaults(model, vendorID);
    platform::PropertyList list;
    for (const QVSection* const section : kQVSections) {
        const platform::MutableDictionary dictionary = list.root().addDictionary(section->key);
        for (std::size_t slot = 0; section->hasSlots && slot < kQVSlotCount; ++slot) {
            dictionary.addDictionary(kQVSlotKeys[slot]);
        }
    }
    for (const QVEntry& entry : kQVEntries) {
        QVWriteEntry(QVEntryDictionary(list.root(), entry), entry, record);
    }
    if (QVFindModel(model.productID) == nullptr) {
        list.root().dictionary("Tablet").setString("Name", model.name);
    }
    platform::Result<> saved = list.saveNew(path);
    if (saved) {
        say(QStringLiteral("installed %1").arg(file.filePath()));
    }
    return saved;
}
