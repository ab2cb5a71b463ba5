// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The binary form: what is accepted, what is rejected and why.

#include "ErrorText.h"
#include "PropertyList.h"
#include "TemporaryHome.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using namespace platform;

namespace {

/** The error for the bytes, with any root; empty if they are a list. */
std::string errorOfBinary(const std::string& bytes)
{
    const auto list = PropertyList::parse(bytes);
    const std::string error = errorText(list);
    EXPECT_EQ(list.has_value(), error.empty());
    return error == "its root is not a dictionary" ? std::string() : error;
}

/** Builds the binary form object by object; offsets and references have two bytes. */
class Binary {
public:
    /** Adds an object's bytes. @return its index */
    std::size_t add(const std::string& bytes)
    {
        mOffsets.push_back(mBytes.size());
        mBytes += bytes;
        return mOffsets.size() - 1;
    }
    std::size_t addArray(const std::vector<std::size_t>& parts)
    {
        std::string bytes(1, static_cast<char>(0xA0 + std::min<std::size_t>(parts.size(), 15)));
        if (parts.size() >= 15) {
            bytes += '\x11' + number(parts.size(), 2);
        }
        for (const std::size_t part : parts) {
            bytes += number(part, 2);
        }
        return add(bytes);
    }
    std::string finish(std::size_t top) const
    {
        std::string bytes = mBytes;
        for (const std::size_t offset : mOffsets) {
            bytes += number(offset, 2);
        }
        return bytes + std::string(6, '\0') + "\x02\x02" + number(mOffsets.size(), 8)
            + number(top, 8) + number(mBytes.size(), 8);
    }
    static std::string number(std::size_t value, int width)
    {
        std::string bytes;
        for (int i = width - 1; i >= 0; --i) {
            bytes += static_cast<char>(value >> static_cast<unsigned>(8 * i));
        }
        return bytes;
    }

private:
    std::string mBytes = "bplist00";
    std::vector<std::size_t> mOffsets;
};

const std::string kTrue = "\x09";

/** A binary list of one object after the offset table: its end is that of all objects. */
std::string lastObject(const std::string& bytes)
{
    return "bplist00\x09" + bytes + std::string(6, '\0') + "\x01\x01" + Binary::number(1, 8)
        + Binary::number(0, 8) + Binary::number(8, 8);
}

/** A list with an empty dictionary, with an offset and a reference of these sizes. */
std::string withWidths(int offset, int reference)
{
    const auto leading = static_cast<std::size_t>(std::max(offset - 8, 0));
    return "bplist00\xD0" + std::string(leading, '\0') + Binary::number(8, std::min(offset, 8))
        + std::string(6, '\0') + static_cast<char>(offset) + static_cast<char>(reference)
        + Binary::number(1, 8) + Binary::number(0, 8) + Binary::number(9, 8);
}

} // namespace

TEST(PropertyListBinary, passesABinaryListThatSharesALittle)
{
    Binary list;
    const std::size_t value = list.add(kTrue);
    EXPECT_EQ(errorOfBinary(list.finish(list.addArray({value, value}))), "");
}

TEST(PropertyListBinary, refusesABinaryListThatWouldFillTheMemory)
{
    Binary list;
    std::size_t part = list.add(kTrue);
    for (int i = 0; i < 40; ++i) {
        part = list.addArray({part, part});
    }
    EXPECT_EQ(errorOfBinary(list.finish(part)), "it has more than 1000000 values");
}

TEST(PropertyListBinary, refusesABinaryListThatHoldsItself)
{
    Binary list;
    EXPECT_EQ(errorOfBinary(list.finish(list.addArray({0}))), "containers nest deeper than 64");
}

TEST(PropertyListBinary, countsTheDepthOfABinaryListAlsoThroughSharedParts)
{
    // A chain of the maximum depth, then one more container around it, read after the chain.
    Binary list;
    std::size_t chain = list.add(kTrue);
    for (int i = 0; i < kPropertyListMaxDepth - 1; ++i) {
        chain = list.addArray({chain});
    }
    const std::size_t wrapped = list.addArray({chain});
    EXPECT_EQ(errorOfBinary(list.finish(wrapped)), "");
    EXPECT_EQ(
        errorOfBinary(list.finish(list.addArray({wrapped}))), "containers nest deeper than 64");
    const std::size_t again = list.addArray({chain, wrapped});
    EXPECT_EQ(errorOfBinary(list.finish(again)), "containers nest deeper than 64");
}

TEST(PropertyListBinary, refusesABinaryIntegerBeyond64Bits)
{
    Binary good;
    EXPECT_EQ(errorOfBinary(good.finish(good.addArray(
                  {good.add("\x14" + std::string(8, '\0') + std::string(8, '\xFF'))}))),
        "");
    Binary bad;
    EXPECT_EQ(errorOfBinary(bad.finish(bad.addArray({bad.add("\x14" + std::string(16, '\x01'))}))),
        "an integer does not fit into 64 bits");
}

TEST(PropertyListBinary, refusesABinaryListThatContradictsItself)
{
    Binary list;
    list.addArray({list.add(kTrue)});
    const std::string good = list.finish(1);
    ASSERT_EQ(errorOfBinary(good), "");
    for (std::size_t at = good.size() - 26; at < good.size(); ++at) {
        std::string bad = good;
        bad[at] = '\xFF';
        EXPECT_NE(errorOfBinary(bad), "") << "trailer byte " << at;
    }
    Binary reference;
    EXPECT_EQ(errorOfBinary(reference.finish(reference.addArray({77}))),
        "a container refers to an object that does not exist");
    Binary count;
    EXPECT_EQ(errorOfBinary(count.finish(count.add("\xAF\x13" + std::string(8, '\x7F')))),
        "a container is longer than the list");
}

TEST(PropertyListBinary, takesEveryBeginningOfABinaryListForOne)
{
    EXPECT_EQ(errorOfBinary("bplist"), "the binary list is too short");
    EXPECT_EQ(errorOfBinary("bplist99"), "the binary list is too short");
    EXPECT_EQ(errorOfBinary("bplist00" + std::string(31, '\0')), "the binary list is too short");
    EXPECT_EQ(errorOfBinary("bplist00" + std::string(32, '\0')),
        "the binary list's trailer contradicts its size");
    EXPECT_NE(errorOfBinary("bplis"), "");
}

TEST(PropertyListBinary, binaryIntegersHaveOneToEightBytes)
{
    for (const int width : {1, 3, 8}) {
        EXPECT_EQ(errorOfBinary(withWidths(width, 1)), "") << width;
        EXPECT_EQ(errorOfBinary(withWidths(1, width)), "") << width;
    }
    for (const int width : {0, 9}) {
        EXPECT_NE(errorOfBinary(withWidths(1, width)), "") << width;
    }
    EXPECT_NE(errorOfBinary(withWidths(0, 1)), "");
    EXPECT_EQ(errorOfBinary(withWidths(9, 1)), "the binary list's trailer contradicts its size");
}

TEST(PropertyListBinary, aTableOfOffsetsHasToFit)
{
    std::string list = lastObject("\xA0");
    ASSERT_EQ(errorOfBinary(list), "");
    const std::size_t trailer = list.size() - 32;
    const auto with = [&](std::size_t at, std::size_t value) {
        std::string changed = list;
        changed.replace(trailer + at, 8, Binary::number(value, 8));
        return errorOfBinary(changed);
    };
    const std::string contradicts = "the binary list's trailer contradicts its size";
    EXPECT_EQ(with(8, 0), contradicts) << "no object";
    EXPECT_EQ(with(8, 2), "") << "the table ends where the trailer begins";
    EXPECT_EQ(with(8, 3), contradicts);
    EXPECT_EQ(with(16, 1), contradicts) << "the top object is behind the last";
    EXPECT_EQ(with(24, trailer), contradicts) << "no room for one offset";
    EXPECT_EQ(with(24, trailer + 1), contradicts);
    EXPECT_EQ(with(24, list.size()), contradicts);
}

TEST(PropertyListBinary, aTableOfWideOffsetsHasToFit)
{
    Binary list;
    std::string bytes = list.finish(list.addArray({}));
    ASSERT_EQ(errorOfBinary(bytes), "");
    bytes.replace(bytes.size() - 24, 8, Binary::number(2, 8));
    EXPECT_EQ(errorOfBinary(bytes), "the binary list's trailer contradicts its size");
}

TEST(PropertyListBinary, refusesContainersInEachOtherBeforeTheStackIsFull)
{
    constexpr std::size_t kCount = 200'000;
    std::string list = "bplist00";
    std::string offsets;
    for (std::size_t i = 0; i < kCount; ++i) {
        offsets += Binary::number(list.size(), 4);
        list += i + 1 < kCount ? "\xA1" + Binary::number(i + 1, 4) : "\xA0";
    }
    const std::size_t table = list.size();
    list += offsets + std::string(6, '\0') + "\x04\x04" + Binary::number(kCount, 8)
        + Binary::number(0, 8) + Binary::number(table, 8);
    EXPECT_EQ(errorOfBinary(list), "containers nest deeper than 64");
}

TEST(PropertyListBinary, binaryObjectsLieBetweenMagicAndTrailer)
{
    const std::string outside = "an object is outside the list";
    std::string list = lastObject("\xA0");
    EXPECT_EQ(errorOfBinary(list), "");
    list[8] = 8; // the offset itself, as an object
    EXPECT_EQ(errorOfBinary(list), "");
    list[8] = 7;
    EXPECT_EQ(errorOfBinary(list), outside);
    list[8] = 10;
    EXPECT_EQ(errorOfBinary(list), outside);
    list[8] = 11;
    EXPECT_EQ(errorOfBinary(list), outside);
}

TEST(PropertyListBinary, followsTheReferencesOfContainers)
{
    EXPECT_EQ(
        errorOfBinary(lastObject(std::string("\xA1\0", 2))), "containers nest deeper than 64");
    EXPECT_EQ(
        errorOfBinary(lastObject("\xA1\1")), "a container refers to an object that does not exist");
    for (const std::string& entry : {std::string("\xD1\0\1", 3), std::string("\xD1\1\0", 3)}) {
        EXPECT_EQ(errorOfBinary(lastObject(entry)),
            "a container refers to an object that does not exist");
    }
    EXPECT_EQ(errorOfBinary(lastObject("\xA1")), "a container is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject(std::string("\xD1\0\0", 3))), "a key is not a string");
    EXPECT_EQ(
        errorOfBinary(lastObject(std::string("\xD1\0", 2))), "a container is longer than the list");
}

TEST(PropertyListBinary, refusesObjectsThatNoXmlCouldHold)
{
    for (const unsigned marker : {0x00U, 0x01U, 0x0FU, 0x70U, 0x90U, 0xB0U, 0xC0U, 0xE0U, 0xF0U}) {
        EXPECT_EQ(errorOfBinary(lastObject(std::string(1, static_cast<char>(marker)))),
            "an object of an unknown type")
            << marker;
    }
}

TEST(PropertyListBinary, longContainersCountWithAnIntegerObject)
{
    const std::string tooLong = "a container is longer than the list";
    const std::string noCount = "a count is not an integer";
    const auto array = [](const std::string& count) {
        return errorOfBinary(lastObject("\xAF" + count));
    };
    for (int power = 0; power <= 3; ++power) {
        const std::string marker(1, static_cast<char>(0x10 + power));
        const std::string zeros((std::size_t{1} << power) - 1, '\0');
        EXPECT_EQ(array(marker + zeros + '\0'), "") << power;
        EXPECT_EQ(array(marker + zeros), noCount);
        EXPECT_EQ(array(marker + zeros + '\1'), tooLong);
    }
    EXPECT_EQ(array(""), noCount);
    std::string inTheTrailer = lastObject("\xAF");
    inTheTrailer[inTheTrailer.size() - 32] = '\x10'; // its unused bytes may hold anything
    EXPECT_EQ(errorOfBinary(inTheTrailer), noCount);
    EXPECT_EQ(array("\x14" + std::string(16, '\0')), noCount) << "no count has 16 bytes";
    EXPECT_EQ(array(std::string("\x20\0", 2)), noCount) << "a real is no count";
    EXPECT_EQ(array(std::string("\x30\0", 2)), noCount);
    EXPECT_EQ(array(std::string("\x00\0", 2)), noCount);
    EXPECT_EQ(array('\x20' + std::string(40, '\0')), noCount) << "also where there is room";
    EXPECT_EQ(
        array(std::string("\x10\1\1", 3)), "a container refers to an object that does not exist");
}

TEST(PropertyListBinary, aContainersReferencesOfTwoBytesHaveToFit)
{
    // Two items of an array, or a key and a value; both end at the trailer.
    const auto error = [](char marker, std::size_t bytes) {
        return errorOfBinary("bplist00\x09" + (marker + std::string(bytes, '\0'))
            + std::string(6, '\0') + "\x01\x02" + Binary::number(1, 8) + Binary::number(0, 8)
            + Binary::number(8, 8));
    };
    EXPECT_EQ(error('\xA2', 4), "containers nest deeper than 64");
    EXPECT_EQ(error('\xD1', 4), "a key is not a string");
    EXPECT_EQ(error('\xA2', 3), "a container is longer than the list");
    EXPECT_EQ(error('\xD1', 3), "a container is longer than the list");
}

TEST(PropertyListBinary, a128BitIntegerHasToBeWhole)
{
    const std::string low = "\x14" + std::string(8, '\0') + std::string(8, '\xFF');
    EXPECT_EQ(errorOfBinary(lastObject(low)), "");
    EXPECT_EQ(errorOfBinary(lastObject(low.substr(0, 16))), "an integer is longer than the list");
    for (std::size_t at = 1; at <= 8; ++at) {
        std::string high = low;
        high[at] = '\1';
        EXPECT_EQ(errorOfBinary(lastObject(high)), "an integer does not fit into 64 bits");
    }
    EXPECT_EQ(errorOfBinary(lastObject('\x14' + std::string(8, '\xFF') + std::string(8, '\x7F'))),
        "an integer does not fit into 64 bits")
        << "less than the least";
}

TEST(PropertyListBinary, aBinaryListMayExpandToAMillionValues)
{
    const auto expanded = [](std::size_t more) {
        Binary list;
        const std::size_t leaf = list.add(kTrue);
        const std::size_t thousand = list.addArray(std::vector<std::size_t>(999, leaf));
        std::vector<std::size_t> parts(999, thousand);
        parts.resize(999 + 999 + more, leaf);
        return errorOfBinary(list.finish(list.addArray(parts)));
    };
    EXPECT_EQ(expanded(0), "");
    EXPECT_EQ(expanded(1), "it has more than 1000000 values");
}

TEST(PropertyListBinary, aTextThatIsSharedCountsForEachThatSharesIt)
{
    constexpr std::size_t kSize = std::size_t{1} << 14U;
    const auto shared = [](const std::string& marker, std::size_t count, std::size_t times) {
        Binary list;
        const std::size_t text =
            list.add(marker + '\x11' + Binary::number(count, 2) + std::string(kSize, 'x'));
        return errorOfBinary(list.finish(list.addArray(std::vector<std::size_t>(times, text))));
    };
    constexpr std::size_t kMost = kPropertyListMaxSize / kSize;
    EXPECT_EQ(shared("\x5F", kSize, kMost), "");
    EXPECT_EQ(shared("\x5F", kSize, kMost + 1), "its texts are longer than 16777216 bytes");
    EXPECT_EQ(shared("\x6F", kSize / 2, kMost), "");
    EXPECT_EQ(shared("\x6F", kSize / 2, kMost + 1), "its texts are longer than 16777216 bytes")
        << "with two bytes for each character";
}

namespace {

/** A binary list of one entry. */
std::string listOf(const std::string& key, const std::string& value)
{
    Binary list;
    const std::size_t name = list.add(key);
    const std::size_t object = list.add(value);
    return list.finish(list.add('\xD1' + Binary::number(name, 2) + Binary::number(object, 2)));
}

/** The XML of a list's only entry, k; or the error. */
std::string xmlOf(const std::string& object)
{
    const auto parsed = PropertyList::parse(listOf("\x51k", object));
    if (!parsed) {
        return errorText(parsed);
    }
    const std::string xml = parsed->toXml();
    const std::size_t begin = xml.find("</key>\n\t") + 8;
    return xml.substr(begin, xml.find("\n</dict>\n</plist>") - begin);
}

std::string bits(double value)
{
    return Binary::number(std::bit_cast<std::uint64_t>(value), 8);
}

} // namespace

TEST(PropertyListBinary, isWrittenInXmlWithAllItsValues)
{
    EXPECT_EQ(xmlOf("\x08"), "<false/>");
    EXPECT_EQ(xmlOf("\x09"), "<true/>");
    EXPECT_EQ(xmlOf("\x10\xFF"), "<integer>255</integer>");
    EXPECT_EQ(xmlOf("\x11\xFF\xFE"), "<integer>65534</integer>");
    EXPECT_EQ(xmlOf("\x12\xFF\xFF\xFF\xFF"), "<integer>4294967295</integer>");
    EXPECT_EQ(xmlOf("\x13" + std::string(8, '\xFF')), "<integer>-1</integer>");
    EXPECT_EQ(xmlOf("\x13\x7F" + std::string(7, '\xFF')), "<integer>9223372036854775807</integer>");
    EXPECT_EQ(xmlOf("\x13\x80" + std::string(7, '\0')), "<integer>-9223372036854775808</integer>");
    EXPECT_EQ(xmlOf("\x14" + std::string(15, '\0') + '\5'), "<integer>5</integer>");
    EXPECT_EQ(xmlOf("\x14" + std::string(8, '\0') + std::string(8, '\xFF')),
        "<integer>18446744073709551615</integer>");
    EXPECT_EQ(xmlOf("\x14" + std::string(15, '\xFF') + '\xFE'), "<integer>-2</integer>");
    EXPECT_EQ(xmlOf("\x23" + bits(0.1)), "<real>0.1</real>");
    EXPECT_EQ(xmlOf("\x23" + bits(5e-324)), "<real>5e-324</real>");
    EXPECT_EQ(xmlOf("\x22\x3F\x80" + std::string(2, '\0')), "<real>1</real>");
    EXPECT_EQ(xmlOf("\x43\x01\x02\x03"), "<data>AQID</data>");
    EXPECT_EQ(
        xmlOf("\x4F\x10\x10" + std::string(16, '\0')), "<data>AAAAAAAAAAAAAAAAAAAAAA==</data>");
    EXPECT_EQ(xmlOf("\x53x&y"), "<string>x&amp;y</string>");
    EXPECT_EQ(xmlOf("\x53x\ry"), "<string>x&#13;y</string>");
    EXPECT_EQ(xmlOf(std::string("\x62\0\xE9\x20\xAC", 5)), "<string>\xC3\xA9\xE2\x82\xAC</string>");
    EXPECT_EQ(xmlOf("\x62\xD8\x3D\xDD\x8A"), "<string>\xF0\x9F\x96\x8A</string>");
    EXPECT_EQ(
        xmlOf("\x80\x07"), "<dict>\n\t\t<key>CF$UID</key>\n\t\t<integer>7</integer>\n\t</dict>");
}

TEST(PropertyListBinary, datesAreThoseOfTheYears1To9999)
{
    const auto date = [](double seconds) { return xmlOf("\x33" + bits(seconds)); };
    const std::string outside = "a date is outside the years 1 to 9999";
    EXPECT_EQ(date(0), "<date>2001-01-01T00:00:00Z</date>");
    EXPECT_EQ(date(-1), "<date>2000-12-31T23:59:59Z</date>");
    EXPECT_EQ(date(817'008'360), "<date>2026-11-22T02:46:00Z</date>");
    EXPECT_EQ(date(-63'113'904'000.0), "<date>0001-01-01T00:00:00Z</date>");
    EXPECT_EQ(date(-63'113'904'001.0), outside);
    EXPECT_EQ(date(252'423'993'599.0), "<date>9999-12-31T23:59:59Z</date>");
    EXPECT_EQ(date(252'423'993'600.0), outside);
    EXPECT_EQ(date(1e300), outside);
    EXPECT_EQ(date(std::numeric_limits<double>::quiet_NaN()), outside);
}

TEST(PropertyListBinary, datesShowTheirFractionsOfASecond)
{
    const auto date = [](double seconds) { return xmlOf("\x33" + bits(seconds)); };
    EXPECT_EQ(date(-0.25), "<date>2000-12-31T23:59:59.750Z</date>");
    EXPECT_EQ(date(817'008'360.75), "<date>2026-11-22T02:46:00.750Z</date>");
    EXPECT_EQ(date(0.9995), "<date>2001-01-01T00:00:00.999Z</date>") << "never a later second";
    EXPECT_EQ(date(5e-324), "<date>2001-01-01T00:00:00.000Z</date>");
    EXPECT_EQ(date(-5e-324), "<date>2001-01-01T00:00:00.000Z</date>");
}

TEST(PropertyListBinary, aValueMayEndWhereTheListEnds)
{
    const std::string zeros(8, '\0');
    for (const std::string& value : {'\x13' + zeros, '\x14' + zeros + zeros,
             '\x22' + zeros.substr(4), '\x23' + zeros, '\x33' + zeros, std::string("\x42xy"),
             std::string("\x52xy"), std::string("\x62\0x\0y", 5), '\x87' + zeros}) {
        EXPECT_EQ(errorOfBinary(lastObject(value)), "") << testing::PrintToString(value);
    }
}

TEST(PropertyListBinary, refusesValuesThatAreCutOff)
{
    const std::string zeros(7, '\0');
    EXPECT_EQ(errorOfBinary(lastObject("\x11\x01")), "an integer is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x15" + std::string(40, '\0'))),
        "an integer is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x23" + zeros)), "a real is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x21" + zeros)), "a real is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x33" + zeros)), "a date is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x32" + zeros + '\0')), "a date is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x42x")), "a text is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x52x")), "a text is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x62xyz")), "a text is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x5F\x13" + std::string(8, '\xFF'))),
        "a text is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x81\x01")), "a reference is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x88" + std::string(9, '\0'))),
        "a reference is longer than the list")
        << "none has nine bytes";
    EXPECT_EQ(errorOfBinary(lastObject("\x8F" + std::string(16, '\0'))),
        "a reference is longer than the list");
    EXPECT_EQ(errorOfBinary(lastObject("\x51\xE9")), "a string is not valid text");
}

TEST(PropertyListBinary, aKeyIsATextOfEitherKind)
{
    const auto keyOf = [](const std::string& key) {
        const auto parsed = PropertyList::parse(listOf(key, kTrue));
        return parsed ? parsed->root().keys().front() : errorText(parsed);
    };
    EXPECT_EQ(keyOf("\x52xy"), "xy");
    EXPECT_EQ(keyOf(std::string("\x61\0\xE9", 3)), "\xC3\xA9");
    EXPECT_EQ(keyOf("\x51\xE9"), "a string is not valid text");
    std::string outside = listOf("\x51k", kTrue);
    outside[outside.size() - 32 - 5] = '\7'; // of its offset, the lower byte
    EXPECT_EQ(errorOfBinary(outside), "an object is outside the list");
}

TEST(PropertyListBinary, halfASurrogatePairIsReadButNotSaved)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/new.plist";
    const auto saved = [&path](const std::string& text) {
        const auto parsed = PropertyList::parse(listOf("\x51k", text));
        return parsed ? errorText(parsed->saveNew(path)) : errorText(parsed);
    };
    for (const std::string& half : {std::string("\x61\xD8\x3D"), std::string("\x61\xDD\x8A")}) {
        EXPECT_EQ(saved(half),
            "cannot create " + path
                + ": it contains text that XML cannot represent: it is not valid UTF-8");
    }
    EXPECT_EQ(saved("\x62\xD8\x3D\xDD\x8A"), "");
}
