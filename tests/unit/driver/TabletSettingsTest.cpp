// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletSettings.h"

#include "KeyCodes.h"
#include "hid_usb_2_adb_keymap_char.h"

#include <gtest/gtest.h>

#include <cstring>
#include <linux/input-event-codes.h>
#include <map>
#include <random>
#include <set>

namespace {

constexpr TabletRect kWhole{0, 0, 1, 1};

/** A record as the configuration of a new tablet has it. */
tagQVTabletInfo record()
{
    tagQVTabletInfo info{};
    info.Basic.TabletXmin = 10;
    info.Basic.TabletXmax = 50010;
    info.Basic.TabletYmin = 20;
    info.Basic.TabletYmax = 40020;
    info.Pen.PressureThreshold = 100;
    info.Monitor.cTabletXmin = 100;
    info.Monitor.cTabletXmax = 50000;
    info.Monitor.cTabletYmin = 200;
    info.Monitor.cTabletYmax = 40000;
    info.Key.ScrollSpeed = 5;
    return info;
}

TEST(TabletSettings, areTheRecordsValues)
{
    tagQVTabletInfo info = record();
    info.Monitor.rotationFlag = 180;
    info.Pen.PressureThreshold = 150;
    info.Key.Scrollbar1 = 1;
    info.Key.ScrollSpeed = 9;
    const TabletRect target{0.25, 0, 0.5, 1};
    const TabletSettings settings = decodeSettings(info, target, true);
    EXPECT_EQ(settings.range, (TabletRect{10, 20, 50010, 40020}));
    EXPECT_EQ(settings.area, (TabletRect{100, 200, 50000, 40000}));
    EXPECT_EQ(settings.target, target);
    EXPECT_TRUE(settings.isTurned);
    EXPECT_TRUE(settings.isCalibrating);
    EXPECT_EQ(settings.threshold, 150);
    EXPECT_EQ(settings.areStripsOn, (std::array{true, false}));
    EXPECT_EQ(settings.scrollSpeed, 9);
}

TEST(TabletSettings, ofAnEmptyAreaAreTheWholeTablet)
{
    tagQVTabletInfo info = record();
    info.Monitor.cTabletXmax = info.Monitor.cTabletXmin;
    EXPECT_EQ(decodeSettings(info, kWhole, false).area, (TabletRect{10, 20, 50010, 40020}));
    info.Basic.TabletYmax = 0;
    EXPECT_EQ(decodeSettings(info, kWhole, false).range, (TabletRect{0, 0, 65535, 65535}));
    EXPECT_EQ(decodeSettings(info, kWhole, false).area, (TabletRect{0, 0, 65535, 65535}));
}

TEST(TabletSettings, outsideTheirRangesAreTheNearestOnes)
{
    tagQVTabletInfo info = record();
    info.Key.ScrollSpeed = -3;
    EXPECT_EQ(decodeSettings(info, kWhole, false).scrollSpeed, 1);
    info.Key.ScrollSpeed = 11;
    EXPECT_EQ(decodeSettings(info, kWhole, false).scrollSpeed, 10);
}

TEST(TabletSettings, turnOnlyByOneHundredAndEighty)
{
    tagQVTabletInfo info = record();
    for (const std::int16_t angle : std::to_array<std::int16_t>({0, 90, 179, 181, -180})) {
        info.Monitor.rotationFlag = angle;
        EXPECT_FALSE(decodeSettings(info, kWhole, false).isTurned) << angle;
    }
}

TEST(TabletSettings, haveTheButtonsActions)
{
    tagQVTabletInfo info = record();
    for (std::int16_t valid = -2; valid < 10; ++valid) {
        info.Key.SubKey[0].Valid = valid;
        const QVAction expected = valid < 0 || valid > 6 ? kQVNoAction : QVAction(valid);
        EXPECT_EQ(decodeSettings(info, kWhole, false).buttons[0].action, expected) << valid;
    }
    info.Key.SubKey[0].Valid = kQVMouseButton;
    info.Key.SubKey[0].Mouse = kQVMiddleButton;
    EXPECT_EQ(decodeSettings(info, kWhole, false).buttons[0].mouse, kQVMiddleButton);
    for (const std::int16_t mouse : std::to_array<std::int16_t>({-1, 4})) {
        info.Key.SubKey[0].Mouse = mouse;
        EXPECT_EQ(decodeSettings(info, kWhole, false).buttons[0].action, kQVNoAction) << mouse;
    }
}

TEST(TabletSettings, haveTheKeysOfACombinationOnceEach)
{
    tagQVTabletInfo info = record();
    tagQVTabletInfoSubKey& slot = info.Key.SubKey[kQVLowerPenSlot];
    slot.Valid = kQVKeyCombination;
    const auto keys = [&](std::uint32_t key) {
        slot.Key = key;
        const TabletSettings settings = decodeSettings(info, kWhole, false);
        const auto span = settings.buttons[kQVLowerPenSlot].keys();
        return std::vector<int>(span.begin(), span.end());
    };
    EXPECT_EQ(keys(0x03063836), (std::vector<int>{KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_Z}));
    EXPECT_EQ(keys(0x01000000), (std::vector<int>{KEY_A}));
    EXPECT_EQ(keys(0), (std::vector<int>{}));
    EXPECT_EQ(keys(0x03000B0B), (std::vector<int>{KEY_B, KEY_A}));
    EXPECT_EQ(keys(0x02000BFF), (std::vector<int>{KEY_B})) << "an unknown code is no key";
}

TEST(TabletSettings, ofARecordOfNoiseAreInTheirRanges)
{
    std::mt19937 random(99); // NOLINT(cert-msc51-cpp): the same records each time
    for (int i = 0; i < 2000; ++i) {
        std::array<unsigned char, sizeof(tagQVTabletInfo)> bytes{};
        for (unsigned char& byte : bytes) {
            byte = static_cast<unsigned char>(random());
        }
        tagQVTabletInfo info{};
        std::memcpy(&info, bytes.data(), bytes.size());
        const TabletSettings settings = decodeSettings(info, kWhole, false);
        ASSERT_GT(settings.range.width(), 0);
        ASSERT_GT(settings.range.height(), 0);
        ASSERT_GT(settings.area.width(), 0);
        ASSERT_GT(settings.area.height(), 0);
        for (const ButtonAssignment& button : settings.buttons) {
            ASSERT_LE(button.keyCount, button.keyCodes.size());
        }
    }
}

TEST(KeyCodes, everyKeyOfTheTableHasItsOwn)
{
    std::set<std::uint16_t> codes;
    for (const QVKeyName& key : hid_usb_2_adb_keymap_char) {
        if (!key.name.empty()) { // not the end
            const std::uint16_t code = linuxKeyCode(key.code);
            EXPECT_NE(code, 0) << int{key.code};
            EXPECT_TRUE(codes.insert(code).second) << int{key.code};
        }
    }
    EXPECT_EQ(codes.size(), 68U);
}

TEST(KeyCodes, areTheKeysOfTheirNames)
{
    const std::map<std::u16string_view, int> some{{u"A", KEY_A}, {u"Z", KEY_Z}, {u"0", KEY_0},
        {u"1", KEY_1}, {u"Esc", KEY_ESC}, {u"Bksp", KEY_BACKSPACE}, {u"Enter", KEY_ENTER},
        {u"PgUp", KEY_PAGEUP}, {u"-", KEY_MINUS}, {u"+", KEY_EQUAL}, {u"F1", KEY_F1},
        {u"F10", KEY_F10}, {u"F12", KEY_F12}, {u"Left", KEY_LEFT}, {u"Ctrl", KEY_LEFTCTRL},
        {u"Alt", KEY_LEFTALT}, {u"\u2318", KEY_LEFTMETA}};
    std::size_t found = 0;
    for (const QVKeyName& key : hid_usb_2_adb_keymap_char) {
        if (const auto known = some.find(key.name); known != some.end()) {
            EXPECT_EQ(linuxKeyCode(key.code), known->second) << int{key.code};
            ++found;
        }
    }
    EXPECT_EQ(found, some.size());
    EXPECT_EQ(linuxKeyCode(10), 0);
    EXPECT_EQ(linuxKeyCode(255), 0);
}

} // namespace
