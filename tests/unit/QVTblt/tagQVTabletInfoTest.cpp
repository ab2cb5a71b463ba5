// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTabletFields.h"
#include "rzkApplication.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <set>
#include <string>

// Assertions in the header check the offsets. These tests check the rest: that the table of fields
// covers the record, and the byte order in memory.

namespace {

std::size_t widthOf(QVFieldType type)
{
    switch (type) {
    case QVFieldType::Int16:
    case QVFieldType::UInt16:
        return 2;
    case QVFieldType::UInt32:
        return 4;
    case QVFieldType::Boolean:
        return 1;
    case QVFieldType::String:
        return kQVStringSize;
    }
    return 0;
}

} // namespace

TEST(tagQVTabletInfo, is5077BytesWithTheKeysAt319AndTheScrollStripsAt5071)
{
    EXPECT_EQ(sizeof(tagQVTabletInfo), 5077U);
    EXPECT_EQ(offsetof(tagQVTabletInfo, Key), 319U);
    EXPECT_EQ(offsetof(tagQVTabletInfo, Key.Scrollbar0), 5071U);
}

TEST(tagQVTabletInfo, startsZeroFilledAndIsAlwaysTheSameOne)
{
    const auto* const bytes = reinterpret_cast<const unsigned char*>(GetqvTabletInfo());
    for (std::size_t i = 0; i < sizeof(tagQVTabletInfo); ++i) {
        ASSERT_EQ(bytes[i], 0) << "at " << i;
    }
    EXPECT_EQ(GetqvTabletInfo(), &qvTabletInfo);
    EXPECT_EQ(GetPListName(), pListname.data());
    EXPECT_STREQ(GetPListName(), "");
    EXPECT_EQ(pListname.size(), 32U);
}

TEST(tagQVTabletInfo, liesInMemoryAsItTravels)
{
    tagQVTabletInfo record{};
    record.Basic.ProductID = 0x5101;
    record.Monitor.MonitorReserved4 = 0x1234;
    record.Key.SubKey[0].Valid = 0x0201;
    record.Key.SubKey[17].Key = 0x03063836;
    record.Key.ScrollSpeed = -2;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&record);
    EXPECT_EQ(bytes[2], 0x01);
    EXPECT_EQ(bytes[3], 0x51);
    EXPECT_EQ(bytes[318], 0x12);
    EXPECT_EQ(bytes[319], 0x01);
    EXPECT_EQ(bytes[320], 0x02);
    EXPECT_EQ(bytes[319 + 264 * 17 + 4], 0x36);
    EXPECT_EQ(bytes[319 + 264 * 17 + 7], 0x03);
    EXPECT_EQ(bytes[5075], 0xFE);
    EXPECT_EQ(bytes[5076], 0xFF);
}

TEST(tagQVTabletInfo, namesTheNumbersThatFilesAndDriversHave)
{
    EXPECT_EQ((std::array<int, 7>{kQVNoAction, kQVMouseButton, kQVApplication, kQVKeyCombination,
                  kQVNextDisplay, kQVFinePositioning, kQVPauseTablet}),
        (std::array<int, 7>{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ((std::array<int, 4>{kQVLeftButton, kQVRightButton, kQVBackButton, kQVMiddleButton}),
        (std::array<int, 4>{0, 1, 2, 3}));
    EXPECT_EQ((std::array<int, 3>{kQVStraightThreshold, kQVHighestThreshold, kQVTurned}),
        (std::array<int, 3>{100, 200, 180}));
    EXPECT_EQ((std::array<int, 3>{kQVSlowestScroll, kQVUsualScroll, kQVFastestScroll}),
        (std::array<int, 3>{1, 5, 10}));
    EXPECT_EQ((std::array<int, 2>{kQVSpeedFast, kQVSpeedNormal}), (std::array<int, 2>{180, 220}));
    EXPECT_STREQ(kQVSlotKeys[kQVUpperPenSlot], "penKeyU");
    EXPECT_STREQ(kQVSlotKeys[kQVLowerPenSlot], "penKeyL");
}

TEST(tagQVTabletInfo, hasItsProductIDUnsigned)
{
    tagQVTabletInfo record{};
    record.Basic.ProductID = -2;
    EXPECT_EQ(QVProductID(record), 65534);
}

TEST(tagQVTabletInfo, endsAStringAtItsNulOrAtItsLastByte)
{
    QVString field{'a', 'b'};
    EXPECT_EQ(QVText(field), "ab");
    field.fill('c');
    EXPECT_EQ(QVText(field), std::string(kQVStringSize, 'c'));
}

TEST(QVTabletFields, coverEveryByteButTheReservedOnesOnce)
{
    std::set<std::size_t> covered;
    for (const QVEntry& entry : kQVEntries) {
        for (std::size_t i = 0; i < widthOf(entry.type); ++i) {
            EXPECT_TRUE(covered.insert(entry.offset + i).second)
                << entry.key << " overlaps another at " << entry.offset + i;
        }
    }
    std::set<std::size_t> reserved;
    for (std::size_t i = 0; i < 4; ++i) {
        reserved.insert(22 + i);
    }
    for (std::size_t i = 0; i < 8; ++i) {
        reserved.insert(311 + i);
    }
    for (std::size_t i = 0; i < sizeof(tagQVTabletInfo); ++i) {
        EXPECT_NE(covered.contains(i), reserved.contains(i)) << "at " << i;
    }
    EXPECT_EQ(*covered.rbegin(), sizeof(tagQVTabletInfo) - 1);
}

TEST(QVTabletFields, nameTheSlotsInTheOrderOfTheRecord)
{
    for (std::size_t slot = 0; slot < 16; ++slot) {
        EXPECT_EQ(kQVSlotKeys[slot], "Key" + std::to_string(slot));
    }
    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        const auto entries = QVEntriesOf(kQVKeySection, kQVSlotKeys[slot]);
        ASSERT_EQ(entries.size(), 4U);
        EXPECT_EQ(entries.front().offset, 319U + 264 * slot);
    }
}

TEST(QVTabletFields, lieWithThoseOfTheirDictionary)
{
    std::size_t count = 0;
    for (const QVSection* const section : kQVSections) {
        count += QVEntriesOf(*section).size();
        for (std::size_t slot = 0; section->hasSlots && slot < kQVSlotCount; ++slot) {
            count += QVEntriesOf(*section, kQVSlotKeys[slot]).size();
        }
    }
    EXPECT_EQ(count, kQVEntries.size());
    EXPECT_TRUE(QVEntriesOf(kQVPenSection, kQVSlotKeys[0]).empty());
}

TEST(QVTabletFields, leaveTheTabletSectionOutOfSaving)
{
    for (const QVSection* const section : kQVSections) {
        EXPECT_EQ(section->saved, std::string(section->key) != "Tablet");
        EXPECT_EQ(section->hasSlots, std::string(section->key) == "Key");
    }
}
