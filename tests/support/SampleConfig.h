// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <QByteArray>

#include <cstring>

/** A property list in XML with this root. */
inline QByteArray plist(const QByteArray& root)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + root
        + "</plist>\n";
}

/**
 * A complete configuration file in which all entries differ, so that mixed-up entries are noticed.
 * Field n in file order is n + 1; slot s has Valid s + 100, Mouse s + 200, Key s + 300 and App
 * "/app/s".
 */
inline QByteArray sampleConfig()
{
    QByteArray text;
    int value = 0;
    const auto section = [&](const char* name, std::initializer_list<const char*> keys) {
        text += QByteArray("<key>") + name + "</key><dict>";
        for (const char* const key : keys) {
            text += QByteArray("<key>") + key + "</key><integer>" + QByteArray::number(++value)
                + "</integer>";
        }
    };
    text += "<dict>";
    section("Tablet",
        {"VendorID", "ProductID", "VersionNumber", "InputLength", "KeyNum", "ScrollNum",
            "PressureMax", "TabletXmin", "TabletXmax", "TabletYmin", "TabletYmax"});
    text += "<key>isUpdate</key><true/><key>UpdateFilename</key><string>update.bin</string></dict>";
    section("Pen", {"PressureThreshold", "Speed"});
    text += "</dict>";
    section("Monitor",
        {"num", "rotationFlag", "disableFlag", "Speed", "XOrg", "Width", "YOrg", "Height",
            "cTabletXmin", "cTabletXmax", "cTabletYmin", "cTabletYmax"});
    text += "</dict>";
    section("Key", {"Scrollbar0", "Scrollbar1", "ScrollSpeed"});
    for (int slot = 0; slot < static_cast<int>(kQVSlotCount); ++slot) {
        const QByteArray name = slot == int{kQVUpperPenSlot} ? "penKeyU"
            : slot == int{kQVLowerPenSlot}                   ? "penKeyL"
                                                             : "Key" + QByteArray::number(slot);
        text += "<key>" + name + "</key><dict>";
        for (const auto& [key, first] : {std::pair("Valid", 100), {"Mouse", 200}, {"Key", 300}}) {
            text += QByteArray("<key>") + key + "</key><integer>" + QByteArray::number(first + slot)
                + "</integer>";
        }
        text += "<key>App</key><string>/app/" + QByteArray::number(slot) + "</string></dict>";
    }
    return plist(text + "</dict></dict>");
}

/** The record after loading the sample, with the mapped area of the file. */
inline tagQVTabletInfo sampleRecord()
{
    tagQVTabletInfo record{};
    record.Basic = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0, 0, 1, {}};
    std::strcpy(record.Basic.UpdateFilename.data(), "update.bin");
    record.Pen = {12, 13};
    record.Monitor.num = 14;
    record.Monitor.rotationFlag = 15;
    record.Monitor.disableFlag = 16;
    record.Monitor.Speed = 17;
    record.Monitor.XOrg = 18;
    record.Monitor.Width = 19;
    record.Monitor.YOrg = 20;
    record.Monitor.Height = 21;
    record.Monitor.cTabletXmin = 22;
    record.Monitor.cTabletXmax = 23;
    record.Monitor.cTabletYmin = 24;
    record.Monitor.cTabletYmax = 25;
    record.Key.Scrollbar0 = 26;
    record.Key.Scrollbar1 = 27;
    record.Key.ScrollSpeed = 28;
    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        tagQVTabletInfoSubKey& key = record.Key.SubKey[slot];
        key.Valid = static_cast<std::int16_t>(100 + slot);
        key.Mouse = static_cast<std::int16_t>(200 + slot);
        key.Key = static_cast<std::uint32_t>(300 + slot);
        std::strcpy(key.App.data(), ("/app/" + std::to_string(slot)).c_str());
    }
    return record;
}

/** Whether two records agree byte for byte. */
inline bool sameBytes(const tagQVTabletInfo& a, const tagQVTabletInfo& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}
