// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "hid_usb_2_adb_keymap_char.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

/** The names in a text; an empty one where two separators meet. */
std::vector<std::u16string> namesIn(const std::u16string& text)
{
    std::vector<std::u16string> names;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = text.find(kQVKeySeparator, start);
        names.push_back(text.substr(start, end - start));
        if (end == std::u16string::npos) {
            return names;
        }
        start = end + kQVKeySeparator.size();
    }
}

} // namespace

TEST(KeyTable, holdsEveryKeyOnceAndItsEnd)
{
    std::set<int> codes;
    std::set<std::u16string_view> names;
    for (std::size_t i = 0; i + 1 < hid_usb_2_adb_keymap_char.size(); ++i) {
        const QVKeyName& key = hid_usb_2_adb_keymap_char[i];
        EXPECT_FALSE(key.name.empty());
        EXPECT_TRUE(codes.insert(key.code).second) << int{key.code};
        EXPECT_TRUE(names.insert(key.name).second) << int{key.code};
    }
    EXPECT_EQ(codes.size(), 68U);
    EXPECT_EQ(hid_usb_2_adb_keymap_char.back().code, 0);
    EXPECT_TRUE(hid_usb_2_adb_keymap_char.back().name.empty());
}

TEST(KeyTable, hasItsCodesInTheirOrder)
{
    constexpr std::array<int, 69> kCodes{0, 11, 8, 2, 14, 3, 5, 4, 34, 38, 40, 37, 46, 45, 31, 35,
        12, 15, 1, 17, 32, 9, 13, 7, 16, 6, 18, 19, 20, 21, 23, 22, 26, 28, 25, 29, 53, 51, 48, 49,
        36, 114, 116, 121, 115, 119, 27, 24, 122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111,
        124, 123, 125, 126, 54, 56, 58, 55, 0};
    for (std::size_t i = 0; i < kCodes.size(); ++i) {
        EXPECT_EQ(hid_usb_2_adb_keymap_char[i].code, kCodes[i]) << i;
    }
}

TEST(KeyTable, hasItsNamesInTheirOrder)
{
    std::u16string names;
    for (const QVKeyName& key : hid_usb_2_adb_keymap_char) {
        names += key.name;
        names += u' ';
    }
    EXPECT_EQ(names,
        u"A B C D E F G H I J K L M N O P Q R S T U V W X Y Z 1 2 3 4 5 6 7 8 9 0 Esc Bksp Tab "
        u"Space Enter Insert PgUp PgDn Home End - + F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 Right "
        u"Left Down Up Ctrl Shift Alt \u2318  ");
}

TEST(KeyText, noCombinationIsEmpty)
{
    EXPECT_EQ(QVKeyCombinationText(0), u"");
}

TEST(KeyText, aCountOfOneTellsTheKeyAFromNone)
{
    EXPECT_EQ(QVKeyCombinationText(0x01000000), u"A");
}

TEST(KeyText, threeKeysStandInTheirOrder)
{
    EXPECT_EQ(QVKeyCombinationText(0x03063836), u"Ctrl  Shift  Z");
}

TEST(KeyText, aZeroByteWithinTheCountIsA)
{
    EXPECT_EQ(QVKeyCombinationText(0x0200000B), u"B  A");
}

TEST(KeyText, aCountOfZeroWrapsAndShowsEveryLaterByte)
{
    EXPECT_EQ(QVKeyCombinationText(0x0000000B), u"B  A  A");
}

TEST(KeyText, aCountAboveTheCodesShowsAThird)
{
    EXPECT_EQ(QVKeyCombinationText(0x03000B0B), u"B  B  A");
}

TEST(KeyText, anUnknownFirstCodeLeavesTheSeparatorLeading)
{
    EXPECT_EQ(QVKeyCombinationText(0x02000BFF), u"  B");
}

TEST(KeyText, anUnknownLaterCodeLeavesNoSeparator)
{
    EXPECT_EQ(QVKeyCombinationText(0x0300FF0B), u"B  A");
    EXPECT_EQ(QVKeyCombinationText(0x0306FF0B), u"B  Z");
}

TEST(KeyText, theCommandKeyIsItsSign)
{
    EXPECT_EQ(QVKeyCombinationText(0x01000037), u"\u2318");
}

TEST(KeyText, theFourthByteIsNeverACode)
{
    EXPECT_EQ(QVKeyCombinationText(0x0B060606), u"Z  Z  Z");
}

TEST(KeyText, aCountBelowTheCodesStillShowsThem)
{
    // The count matters only for a zero byte.
    EXPECT_EQ(QVKeyCombinationText(0x01060606), u"Z  Z  Z");
}

TEST(KeyText, everyValueEndsWithAtMostThreeNamesOfTheTable)
{
    std::set<std::u16string> known{u""};
    for (const QVKeyName& key : hid_usb_2_adb_keymap_char) {
        known.emplace(key.name);
    }
    const auto check = [&known](std::uint32_t value) {
        const std::vector<std::u16string> names = namesIn(QVKeyCombinationText(value));
        ASSERT_LE(names.size(), 3U) << std::hex << value;
        for (const std::u16string& name : names) {
            ASSERT_EQ(known.count(name), 1U) << std::hex << value;
        }
    };
    // Every count with every kind of byte: zero, known, unknown, highest.
    constexpr std::array<std::uint32_t, 7> kKinds{0, 1, 11, 54, 126, 127, 255};
    for (std::uint32_t count = 0; count < 256; ++count) {
        for (const std::uint32_t third : kKinds) {
            for (const std::uint32_t second : kKinds) {
                for (const std::uint32_t first : kKinds) {
                    check(count << 24U | third << 16U | second << 8U | first);
                }
            }
        }
    }
    std::mt19937 random(20740); // NOLINT(cert-msc51-cpp): the same values in every run
    for (int i = 0; i < 200000; ++i) {
        check(static_cast<std::uint32_t>(random()));
    }
}
