// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVConfigEntry.h"

#include "ErrorText.h"
#include "SampleConfig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

using platform::PropertyList;

namespace {

/** A field in a record that is filled with a pattern. */
class Field {
public:
    explicit Field(QVFieldType type)
        : mEntry{&kQVPenSection, nullptr, "k", kOffset, type}
    {
        std::memset(&mRecord, kPattern, sizeof mRecord);
    }

    QVEntryResult read(const QByteArray& value)
    {
        const auto list =
            PropertyList::parse(plist("<dict><key>k</key>" + value + "</dict>").toStdString());
        EXPECT_TRUE(list) << errorText(list);
        return list ? QVReadEntry(list->root(), mEntry, mRecord) : QVEntryResult::Absent;
    }

    std::int64_t number() const { return QVFieldNumber(mEntry, mRecord); }
    std::string string() const { return QVFieldText(mEntry, mRecord); }
    char* text() { return reinterpret_cast<char*>(&mRecord) + kOffset; }

    /** How many bytes, counted from the field's first one, have changed. */
    std::size_t changed() const
    {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(&mRecord);
        std::size_t last = 0;
        for (std::size_t i = 0; i < sizeof mRecord; ++i) {
            if (bytes[i] != kPattern) {
                EXPECT_GE(i, kOffset);
                last = i - kOffset + 1;
            }
        }
        return last;
    }

    /** Writes the field to a list that already has the entry "old", and returns the result. */
    std::string written(bool& taken) const
    {
        PropertyList list;
        list.root().setString("k", "old");
        taken = QVWriteEntry(list.root(), mEntry, mRecord);
        const auto number = list.root().number("k");
        return number ? std::to_string(number->longValue()) : std::string(*list.root().string("k"));
    }

private:
    static constexpr std::size_t kOffset = 1000;
    static constexpr unsigned char kPattern = 0xA5;

    QVEntry mEntry;
    tagQVTabletInfo mRecord{};
};

} // namespace

TEST(QVEntryPath, namesSectionSlotAndKey)
{
    std::string paths;
    for (const std::size_t entry : {0U, 13U, 18U, 21U, 86U, 89U, 90U, 101U}) {
        paths += QVEntryPath(kQVEntries[entry]) + '\n';
    }
    EXPECT_EQ(paths,
        "Tablet/VendorID\nPen/PressureThreshold\nKey/Key0/Valid\nKey/Key0/App\n"
        "Key/penKeyL/Valid\nKey/penKeyL/App\nMonitor/num\nMonitor/cTabletYmax\n");
}

TEST(QVEntryDictionary, isTheSectionsOrTheSlots)
{
    PropertyList list;
    const QVEntry& ofSection = QVEntriesOf(kQVKeySection).front();
    const QVEntry& ofSlot = QVEntriesOf(kQVKeySection, kQVSlotKeys[3]).front();
    EXPECT_FALSE(QVEntryDictionary(list.root(), ofSection).exists());
    const platform::MutableDictionary section = list.root().addDictionary("Key");
    EXPECT_FALSE(QVEntryDictionary(list.root(), ofSlot).exists());
    section.addDictionary("Key3").setInteger("Valid", 6);
    EXPECT_EQ(QVEntryDictionary(list.root(), ofSection).keys(), std::vector<std::string>{"Key3"});
    EXPECT_EQ(QVEntryDictionary(list.root(), ofSlot).keys(), std::vector<std::string>{"Valid"});
}

TEST(QVFieldText, isAStringUpToItsNulOrANumberInDecimal)
{
    tagQVTabletInfo record = sampleRecord();
    record.Basic.TabletXmax = 40000;
    record.Monitor.XOrg = -3;
    const auto text = [&record](const char* path) {
        return QVFieldText(*std::ranges::find(kQVEntries, std::string(path), QVEntryPath), record);
    };
    EXPECT_EQ(text("Tablet/UpdateFilename"), "update.bin");
    EXPECT_EQ(text("Tablet/isUpdate"), "1");
    EXPECT_EQ(text("Tablet/TabletXmax"), "40000");
    EXPECT_EQ(text("Monitor/XOrg"), "-3");
    EXPECT_EQ(text("Key/penKeyL/App"), "/app/17");
    EXPECT_EQ(text("Key/penKeyL/Key"), "317");
}

TEST(QVReadEntry, takesNumbersOfAnyKindByTheirValue)
{
    Field field(QVFieldType::Int16);
    EXPECT_EQ(field.read("<integer>-5</integer>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), -5);
    EXPECT_EQ(field.read("<true/>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 1);
    EXPECT_EQ(field.read("<real>7.0</real>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 7);
    EXPECT_EQ(field.read("<real>-7.9</real>"), QVEntryResult::Truncated);
    EXPECT_EQ(field.number(), -7);
    EXPECT_EQ(field.changed(), 2U);
}

TEST(QVReadEntry, keeps16BitsOfALargerNumber)
{
    Field field(QVFieldType::UInt16);
    EXPECT_EQ(field.read("<integer>65541</integer>"), QVEntryResult::Truncated);
    EXPECT_EQ(field.number(), 5);
    EXPECT_EQ(field.read("<integer>40000</integer>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 40000);
    EXPECT_EQ(field.read("<integer>-25536</integer>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 40000);
}

TEST(QVReadEntry, keeps32BitsOfALargerKeyCombination)
{
    Field field(QVFieldType::UInt32);
    EXPECT_EQ(field.read("<integer>4294967301</integer>"), QVEntryResult::Truncated);
    EXPECT_EQ(field.number(), 5);
    EXPECT_EQ(field.read("<integer>4294967295</integer>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 4294967295);
    EXPECT_EQ(field.read("<integer>-1</integer>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 4294967295);
    EXPECT_EQ(field.changed(), 4U);
}

TEST(QVReadEntry, takesABooleanAs0Or1)
{
    Field field(QVFieldType::Boolean);
    EXPECT_EQ(field.read("<true/>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 1);
    EXPECT_EQ(field.read("<integer>256</integer>"), QVEntryResult::Truncated);
    EXPECT_EQ(field.number(), 1);
    EXPECT_EQ(field.read("<real>0.5</real>"), QVEntryResult::Truncated);
    EXPECT_EQ(field.number(), 1);
    EXPECT_EQ(field.read("<false/>"), QVEntryResult::Copied);
    EXPECT_EQ(field.number(), 0);
    EXPECT_EQ(field.changed(), 1U);
}

TEST(QVReadEntry, skipsWhatIsNoNumber)
{
    for (const QVFieldType type :
        {QVFieldType::Int16, QVFieldType::UInt16, QVFieldType::UInt32, QVFieldType::Boolean}) {
        for (const char* const value : {"<string>5</string>", "<data>BQ==</data>",
                 "<date>2026-11-21T00:00:00Z</date>", "<array/>", "<dict/>"}) {
            Field field(type);
            EXPECT_EQ(field.read(value), QVEntryResult::WrongType) << value;
            EXPECT_EQ(field.changed(), 0U) << value;
        }
    }
}

TEST(QVReadEntry, skipsWhatIsNoString)
{
    for (const char* const value :
        {"<integer>5</integer>", "<true/>", "<real>1.5</real>", "<data>BQ==</data>", "<array/>"}) {
        Field field(QVFieldType::String);
        EXPECT_EQ(field.read(value), QVEntryResult::WrongType) << value;
        EXPECT_EQ(field.changed(), 0U) << value;
    }
}

TEST(QVReadEntry, leavesAnAbsentEntrysFieldAlone)
{
    const PropertyList list;
    for (const QVEntry& entry : kQVEntries) {
        tagQVTabletInfo record = sampleRecord();
        EXPECT_EQ(QVReadEntry(list.root(), entry, record), QVEntryResult::Absent);
        EXPECT_EQ(QVReadEntry({}, entry, record), QVEntryResult::Absent);
        EXPECT_TRUE(sameBytes(record, sampleRecord()));
    }
}

TEST(QVReadEntry, takesAStringThatLeavesRoomForItsEnd)
{
    Field field(QVFieldType::String);
    const QByteArray longest(255, 'x');
    EXPECT_EQ(field.read("<string>" + longest + "</string>"), QVEntryResult::Copied);
    EXPECT_EQ(field.string(), longest.toStdString());
    EXPECT_EQ(field.text()[255], '\0');
    EXPECT_EQ(field.changed(), kQVStringSize);
}

TEST(QVReadEntry, leavesNothingOfALongerStringBehindAShorterOne)
{
    Field field(QVFieldType::String);
    field.read("<string>" + QByteArray(255, 'x') + "</string>");
    EXPECT_EQ(field.read("<string>ab</string>"), QVEntryResult::Copied);
    EXPECT_EQ(field.string(), "ab");
    for (std::size_t i = 2; i < kQVStringSize; ++i) {
        ASSERT_EQ(field.text()[i], '\0') << i;
    }
}

TEST(QVReadEntry, skipsAStringThatDoesNotFit)
{
    for (const int length : {256, 257, 10'000}) {
        Field field(QVFieldType::String);
        EXPECT_EQ(
            field.read("<string>" + QByteArray(length, 'x') + "</string>"), QVEntryResult::Unfit)
            << length;
        EXPECT_EQ(field.changed(), 0U);
    }
}

TEST(QVReadEntry, skipsAStringThatIsNotAscii)
{
    for (const char* const value : {"caf\xC3\xA9", "\xE2\x8C\x98", "\x7F\xC2\x80"}) {
        Field field(QVFieldType::String);
        EXPECT_EQ(field.read(QByteArray("<string>") + value + "</string>"), QVEntryResult::Unfit);
        EXPECT_EQ(field.changed(), 0U);
    }
}

TEST(QVEntryFault, saysWhatStandsThereInsteadOrWhyItDoesNotFit)
{
    PropertyList list;
    const QVEntry number{&kQVPenSection, nullptr, "k", 0, QVFieldType::Int16};
    const QVEntry string{&kQVPenSection, nullptr, "k", 0, QVFieldType::String};
    list.root().setString("k", "5");
    EXPECT_EQ(QVEntryFault(list.root(), number), "a string instead of a number");
    EXPECT_EQ(QVEntryFault(list.root(), string), "longer than 255 characters, or not ASCII");
    list.root().setInteger("k", 5);
    EXPECT_EQ(QVEntryFault(list.root(), string), "a number instead of a string");
}

TEST(QVWriteEntry, writesUnsignedFieldsAsSignedNumbers)
{
    Field field(QVFieldType::UInt16);
    field.read("<integer>40000</integer>");
    bool taken = false;
    EXPECT_EQ(field.written(taken), "-25536");
    EXPECT_TRUE(taken);
}

TEST(QVWriteEntry, writesKeyCombinationsNeverNegative)
{
    Field field(QVFieldType::UInt32);
    field.read("<integer>4294967295</integer>");
    bool taken = false;
    EXPECT_EQ(field.written(taken), "4294967295");
}

TEST(QVWriteEntry, writesAStringUpToItsNul)
{
    Field field(QVFieldType::String);
    field.read("<string>/usr/bin/a b&amp;c</string>");
    bool taken = false;
    EXPECT_EQ(field.written(taken), "/usr/bin/a b&c");
    EXPECT_TRUE(taken);
}

TEST(QVWriteEntry, readsNothingBehindAFieldWithoutANul)
{
    Field field(QVFieldType::String);
    std::memset(field.text(), 'y', kQVStringSize);
    bool taken = false;
    EXPECT_EQ(field.written(taken), std::string(kQVStringSize, 'y'));
}

TEST(QVWriteEntry, keepsTheOldEntryForAStringThatCannotBeWritten)
{
    for (const char c : {'\x01', '\x1B', '\x80', '\xFF'}) {
        Field field(QVFieldType::String);
        field.read("<string>path</string>");
        field.text()[1] = c;
        bool taken = true;
        EXPECT_EQ(field.written(taken), "old") << int{c};
        EXPECT_FALSE(taken);
    }
}

TEST(QVReadEntry, tellsTheLastNumbersThatKeepAllTheirBits)
{
    struct Case {
        QVFieldType type;
        const char* least;
        const char* below;
        const char* greatest;
        const char* above;
    };
    for (const Case& c : {Case{QVFieldType::Int16, "-32768", "-32769", "65535", "65536"},
             {QVFieldType::UInt16, "-32768", "-32769", "65535", "65536"},
             {QVFieldType::UInt32, "-2147483648", "-2147483649", "4294967295", "4294967296"},
             {QVFieldType::Boolean, "0", "-1", "1", "2"}}) {
        Field field(c.type);
        const auto read = [&](const char* number) {
            return field.read(QByteArray("<integer>") + number + "</integer>");
        };
        EXPECT_EQ(read(c.least), QVEntryResult::Copied) << c.least;
        EXPECT_EQ(read(c.below), QVEntryResult::Truncated) << c.below;
        EXPECT_EQ(read(c.greatest), QVEntryResult::Copied) << c.greatest;
        EXPECT_EQ(read(c.above), QVEntryResult::Truncated) << c.above;
    }
}

TEST(QVReadEntry, takesAnyCharacterOfAscii)
{
    Field field(QVFieldType::String);
    EXPECT_EQ(field.read("<string>\t ~\x7F</string>"), QVEntryResult::Copied);
    EXPECT_EQ(field.string(), "\t ~\x7F");
}

TEST(QVWriteEntry, writesBooleansAndSignedNumbers)
{
    for (const char* const value : {"<true/>", "<false/>"}) {
        Field field(QVFieldType::Boolean);
        field.read(value);
        bool taken = false;
        EXPECT_EQ(field.written(taken), value == std::string("<true/>") ? "1" : "0");
        EXPECT_TRUE(taken);
    }
    for (const QVFieldType type : {QVFieldType::Int16, QVFieldType::UInt32}) {
        Field field(type);
        field.read("<integer>77</integer>");
        bool taken = false;
        EXPECT_EQ(field.written(taken), "77");
        EXPECT_TRUE(taken);
    }
}

TEST(QVWriteEntry, writesTheWhiteSpaceThatAFileCanHold)
{
    Field field(QVFieldType::String);
    field.read("<string>path</string>");
    for (const char c : {' ', '\t', '\n', '\r'}) {
        field.text()[1] = c;
        bool taken = false;
        EXPECT_EQ(field.written(taken), std::string("p") + c + "th") << int{c};
        EXPECT_TRUE(taken);
    }
}
