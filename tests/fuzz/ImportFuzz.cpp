// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Fuzzes the import of a profile from a stranger. Input: the bytes of its file.

#include "Fuzz.h"
#include "QVConfigEntry.h"
#include "QVProfileImport.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

/** The record of a tablet with some keys. */
tagQVTabletInfo ownRecord()
{
    tagQVTabletInfo record{};
    record.Basic.ProductID = 0x5101;
    record.Basic.KeyNum = 8;
    record.Basic.ScrollNum = 1;
    record.Basic.TabletXmax = 20320;
    record.Basic.TabletYmax = 12700;
    record.Pen.PressureThreshold = 100;
    record.Monitor.Speed = kQVSpeedFast;
    record.Monitor.cTabletXmax = 20320;
    record.Monitor.cTabletYmax = 12700;
    record.Key.ScrollSpeed = 5;
    return record;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto list = platform::PropertyList::parse({reinterpret_cast<const char*>(data), size});
    if (!list) {
        return 0;
    }
    const tagQVTabletInfo own = ownRecord();
    auto import = QVImport(*list, own);
    if (!import) {
        return 0;
    }
    require(import->profile.productID == QVProductID(own), "it is for the tablet");
    require(QVProfileNameFault(import->profile.name).isEmpty(), "its name can be shown");
    tagQVTabletInfo record = own;
    QVApplyProfile(import->profile, record);
    require(std::memcmp(&record.Basic, &own.Basic, sizeof own.Basic) == 0, "the tablet stays");
    require(record.Monitor.disableFlag == 0, "no calibration begins");
    for (const tagQVTabletInfoSubKey& key : record.Key.SubKey) {
        require(key.Valid != kQVApplication, "no key starts an application");
        require(QVText(key.App).empty(), "no path of a stranger is kept");
    }
    for (std::size_t slot = 8; slot < kQVUpperPenSlot; ++slot) {
        require(record.Key.SubKey[slot].Valid == kQVNoAction, "keys that are not there do nothing");
    }
    require(record.Monitor.cTabletXmax <= 20320 && record.Monitor.cTabletYmax <= 12700,
        "the area is on the tablet");
    require(record.Monitor.cTabletXmin < record.Monitor.cTabletXmax
            && record.Monitor.cTabletYmin < record.Monitor.cTabletYmax,
        "the area has a size");

    // What is kept is read again as it was.
    for (const QVProfileImport::Start& start : import->starts) {
        QVAllowStart(*import, start);
    }
    const auto again = QVReadProfile(QVWriteProfile(import->profile));
    require(again && again->name == import->profile.name
            && again->applications == import->profile.applications,
        "the file is a profile");
    return 0;
}
