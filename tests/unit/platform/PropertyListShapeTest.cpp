// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyListShape.h"

#include "PropertyList.h"
#include "SampleConfig.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace platform;

namespace {

std::string errorOf(const std::string& root)
{
    return propertyListShapeError("<plist version=\"1.0\">" + root + "</plist>");
}

std::string errorOfEntry(const std::string& value)
{
    return errorOf("<dict><key>k</key>" + value + "</dict>");
}

std::string nested(int depth)
{
    std::string text;
    for (int i = 0; i < depth; ++i) {
        text += "<array>";
    }
    for (int i = 0; i < depth; ++i) {
        text += "</array>";
    }
    return text;
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

/** A binary list of one object, which stands behind the table: its end is that of all objects. */
std::string lastObject(const std::string& bytes)
{
    return "bplist00\x09" + bytes + std::string(6, '\0') + "\x01\x01" + Binary::number(1, 8)
        + Binary::number(0, 8) + Binary::number(8, 8);
}

/** A list with an empty dictionary, whose offset and reference have these many bytes. */
std::string withWidths(int offset, int reference)
{
    const auto leading = static_cast<std::size_t>(std::max(offset - 8, 0));
    return "bplist00\xD0" + std::string(leading, '\0') + Binary::number(8, std::min(offset, 8))
        + std::string(6, '\0') + static_cast<char>(offset) + static_cast<char>(reference)
        + Binary::number(1, 8) + Binary::number(0, 8) + Binary::number(9, 8);
}

} // namespace

TEST(PropertyListShape, quotesWhatItRefusesInOneLineOfPlainText)
{
    // As it stands in a log and on the panel, whatever the file may hold.
    EXPECT_EQ(errorOf("<a\x1b[1m\x7f\xff\xc3\xa4>"), "unknown tag 'a?[1m?\?\?\?'");
    EXPECT_EQ(errorOf("<\x01\nS)>"), "unknown tag '?\?S)'");
}

TEST(PropertyListShape, passesAConfigurationFile)
{
    EXPECT_EQ(propertyListShapeError(sampleConfig().toStdString()), "");
}

TEST(PropertyListShape, passesWhatMayStandAroundAList)
{
    EXPECT_EQ(propertyListShapeError("\n<?xml version=\"1.0\"?>\n<!-- > <dict> -->\n"
                                     "<!DOCTYPE plist PUBLIC \"-//X//\" \"http://x\">\n"
                                     "<plist version=\"1.0\"><dict >\n</dict ></plist>\n"
                                     "<!-- the end -->\n"),
        "");
    EXPECT_EQ(errorOfEntry("<string><![CDATA[<dict><array>]]></string>"), "");
    EXPECT_EQ(errorOfEntry("<dict/>"), "");
}

TEST(PropertyListShape, stopsAtTheDepthLimit)
{
    EXPECT_EQ(errorOf(nested(kPropertyListMaxDepth)), "");
    EXPECT_EQ(errorOf(nested(kPropertyListMaxDepth + 1)), "containers nest deeper than 64");
    EXPECT_EQ(errorOf(nested(100'000)), "containers nest deeper than 64");
}

TEST(PropertyListShape, isNotMisledAboutTheDepth)
{
    // Each of these shows a closing tag where the parser sees none; repeated, the parser would nest
    // deeper than the count.
    const std::vector<std::string> tricks{
        "<array x=\"</array>\">",
        "<array><!--></array>-->",
        "<array><?x \"?></array>\"?>",
        "<array><plist x=\"></array>\">",
        "<array><!DOCTYPE \"></array>\">",
        "<array><![CDATA[]]></array>",
        "<array></dict x=\"</array>\">",
        "<array></ array>",
        "<array><!></array>",
    };
    for (const std::string& trick : tricks) {
        std::string text = "<plist><dict><key>k</key>";
        for (int i = 0; i < 2000; ++i) {
            text += trick;
        }
        PropertyListError error;
        EXPECT_FALSE(PropertyList::parse(text, error)) << trick;
        EXPECT_FALSE(PropertyList::parse(text + nested(3) + "</dict></plist>", error)) << trick;
    }
}

TEST(PropertyListShape, refusesIntegersThatWouldChange)
{
    for (const char* const good : {"0", "-0", "7", "+7", " 7 ", "-9223372036854775808",
             "18446744073709551615", "0x10", "0XfF", "-0x10"}) {
        EXPECT_EQ(errorOfEntry(std::string("<integer>") + good + "</integer>"), "") << good;
    }
    for (const char* const bad : {"", " ", "-", "0x", "abc", "1 2", "1.5", "010", "-08",
             "18446744073709551616", "-9223372036854775809", "99999999999999999999999",
             "0x1ffffffffffffffff", "0x1g", "1<!-- -->0", "1<b/>"}) {
        EXPECT_NE(errorOfEntry(std::string("<integer>") + bad + "</integer>"), "") << bad;
    }
    EXPECT_NE(errorOfEntry("<integer/>"), "");
}

TEST(PropertyListShape, saysWhichIntegerItIs)
{
    EXPECT_EQ(errorOfEntry("<integer>99999999999999999999</integer>"),
        "integer '99999999999999999999' does not fit into 64 bits");
    EXPECT_EQ(errorOfEntry("<integer>010</integer>"), "integer '010' has a leading zero");
    EXPECT_EQ(errorOfEntry("<integer>~\x7F</integer>"), "'~?' is no integer");
}

TEST(PropertyListShape, refusesRealsAndDatesThatWouldChange)
{
    for (const char* const good :
        {"0", "-1.5", "+2.5", "+7", "1e-300", "nan", "inf", "-infinity"}) {
        EXPECT_EQ(errorOfEntry(std::string("<real>") + good + "</real>"), "") << good;
    }
    for (const char* const bad : {"", "1.5x", "1,5", "x", "1e999"}) {
        EXPECT_NE(errorOfEntry(std::string("<real>") + bad + "</real>"), "") << bad;
    }
    EXPECT_EQ(errorOfEntry("<date>2026-11-21T02:46:00Z</date>"), "");
    for (const char* const bad : {"", "yesterday", "2026-11-21", "2026-11-21T02:46:00"}) {
        EXPECT_NE(errorOfEntry(std::string("<date>") + bad + "</date>"), "") << bad;
    }
}

TEST(PropertyListShape, refusesWhatFollowsTheList)
{
    const std::string whole = "<plist><dict></dict></plist>";
    EXPECT_EQ(propertyListShapeError(whole + " \n"), "");
    EXPECT_NE(propertyListShapeError(whole + "junk"), "");
    EXPECT_NE(propertyListShapeError(whole + std::string(1, '\0')), "");
    EXPECT_NE(propertyListShapeError(whole + whole), "");
    EXPECT_NE(propertyListShapeError("<plist><dict></dict><dict></dict></plist>"), "");
}

TEST(PropertyListShape, refusesDefinitionsOfEntities)
{
    EXPECT_NE(
        propertyListShapeError("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict></dict></plist>"),
        "");
}

TEST(PropertyListShape, passesABinaryListThatSharesALittle)
{
    Binary list;
    const std::size_t value = list.add(kTrue);
    EXPECT_EQ(propertyListShapeError(list.finish(list.addArray({value, value}))), "");
}

TEST(PropertyListShape, refusesABinaryListThatWouldFillTheMemory)
{
    Binary list;
    std::size_t part = list.add(kTrue);
    for (int i = 0; i < 40; ++i) {
        part = list.addArray({part, part});
    }
    EXPECT_EQ(
        propertyListShapeError(list.finish(part)), "the list expands to more than 100000 objects");
}

TEST(PropertyListShape, refusesABinaryListThatHoldsItself)
{
    Binary list;
    EXPECT_EQ(propertyListShapeError(list.finish(list.addArray({0}))), "a container holds itself");
}

TEST(PropertyListShape, countsTheDepthOfABinaryListAlsoThroughSharedParts)
{
    // A chain as deep as allowed, then one more container around it that is met after the chain.
    Binary list;
    std::size_t chain = list.add(kTrue);
    for (int i = 0; i < kPropertyListMaxDepth - 1; ++i) {
        chain = list.addArray({chain});
    }
    const std::size_t wrapped = list.addArray({chain});
    EXPECT_EQ(propertyListShapeError(list.finish(wrapped)), "");
    EXPECT_EQ(propertyListShapeError(list.finish(list.addArray({wrapped}))),
        "containers nest deeper than 64");
    const std::size_t again = list.addArray({chain, wrapped});
    EXPECT_EQ(propertyListShapeError(list.finish(again)), "containers nest deeper than 64");
}

TEST(PropertyListShape, refusesABinaryIntegerBeyond64Bits)
{
    Binary good;
    EXPECT_EQ(propertyListShapeError(good.finish(good.addArray(
                  {good.add("\x14" + std::string(8, '\0') + std::string(8, '\xFF'))}))),
        "");
    Binary bad;
    EXPECT_EQ(propertyListShapeError(
                  bad.finish(bad.addArray({bad.add("\x14" + std::string(16, '\x01'))}))),
        "an integer does not fit into 64 bits");
}

TEST(PropertyListShape, refusesABinaryListThatContradictsItself)
{
    Binary list;
    list.addArray({list.add(kTrue)});
    const std::string good = list.finish(1);
    ASSERT_EQ(propertyListShapeError(good), "");
    for (std::size_t at = good.size() - 26; at < good.size(); ++at) {
        std::string bad = good;
        bad[at] = '\xFF';
        EXPECT_NE(propertyListShapeError(bad), "") << "trailer byte " << at;
    }
    Binary reference;
    EXPECT_EQ(propertyListShapeError(reference.finish(reference.addArray({77}))),
        "a container refers to an object that is not there");
    Binary count;
    EXPECT_EQ(propertyListShapeError(count.finish(count.add("\xAF\x13" + std::string(8, '\x7F')))),
        "a container is longer than the list");
}

TEST(PropertyListShape, quotesTheBeginningOfWhatItRefuses)
{
    const std::string name = "abcdefghijklmnopqrstuvwxyz0123456789";
    EXPECT_EQ(errorOf("<" + name + ">"), "unknown tag 'abcdefghijklmnopqrstuvwxyz012345'");
    EXPECT_EQ(errorOf("<plausible tag>"), "unknown tag '<plausible t'");
    EXPECT_EQ(errorOfEntry("<>"), "unknown tag ''");
    EXPECT_EQ(propertyListShapeError("<!"), "'>' is missing");
    EXPECT_EQ(propertyListShapeError("<p"), "unknown tag '<p'");
    EXPECT_EQ(propertyListShapeError("<"), "'>' is missing");
    EXPECT_EQ(propertyListShapeError("<?xml"), "'?>' is missing");
}

TEST(PropertyListShape, refusesEndsInTheWrongPlace)
{
    EXPECT_EQ(errorOf(""), "the list ends too early");
    EXPECT_EQ(errorOf("</dict>"), "a container ends that did not begin");
    EXPECT_EQ(errorOf("<dict></dict></dict>"), "a second list follows the first");
    EXPECT_EQ(errorOf("<dict></dict><key>k</key>"), "a second list follows the first");
    EXPECT_EQ(errorOfEntry("<integer>5</real>"), "'5' is interrupted");
    EXPECT_EQ(errorOfEntry("<integer>5<integer>"), "'5' is interrupted");
    EXPECT_EQ(errorOfEntry("<integer>5"), "'5' is interrupted");
}

TEST(PropertyListShape, refusesAPrologWithinOrBehindTheList)
{
    EXPECT_EQ(errorOfEntry("<?x?>"), "'<' within the list");
    EXPECT_EQ(errorOf("<dict/><?x?>"), "'<' within the list");
    EXPECT_EQ(errorOf("<dict/><!DOCTYPE plist>"), "'<!' within the list");
    EXPECT_EQ(
        propertyListShapeError("<!DOCTYPE \"> <plist><dict/></plist>"), "an end within quotes");
    EXPECT_EQ(propertyListShapeError("<plist x=\"\"><dict/></plist>"), "");
}

TEST(PropertyListShape, countsAnEmptyContainerAsOneThatNests)
{
    const auto around = [](int depth) {
        std::string text = nested(depth);
        return errorOf(
            text.insert(text.size() / 2 - static_cast<std::size_t>(depth) / 2, "<dict/>"));
    };
    EXPECT_EQ(around(kPropertyListMaxDepth - 1), "");
    EXPECT_EQ(around(kPropertyListMaxDepth), "containers nest deeper than 64");
}

TEST(PropertyListShape, passesAllWhiteSpaceAroundNumbersAndInTags)
{
    EXPECT_EQ(errorOfEntry("<integer>\t\r\n 7 \t\r\n</integer>"), "");
    EXPECT_EQ(errorOfEntry("<real \t\r\n>1.5</real \t\r\n>"), "");
    EXPECT_EQ(errorOf("<dict/> \t\r\n"), "");
    EXPECT_EQ(errorOfEntry("<integer>\v7</integer>"), "'?7' is no integer");
}

TEST(PropertyListShape, datesHaveDigitsInTheirPlaces)
{
    const std::string date = "1909-09-29T19:59:09Z";
    EXPECT_EQ(errorOfEntry("<date>" + date + "</date>"), "");
    for (std::size_t at = 0; at < date.size(); ++at) {
        for (const char wrong : {'/', ':', 'x'}) {
            std::string other = date;
            other[at] = wrong;
            EXPECT_EQ(errorOfEntry("<date>" + other + "</date>") == "", other == date) << other;
        }
    }
}

TEST(PropertyListShape, takesEveryBeginningOfABinaryListForOne)
{
    EXPECT_EQ(propertyListShapeError("bplist"), "the binary list is too short");
    EXPECT_EQ(propertyListShapeError("bplist99"), "the binary list is too short");
    EXPECT_EQ(
        propertyListShapeError("bplist00" + std::string(31, '\0')), "the binary list is too short");
    EXPECT_EQ(propertyListShapeError("bplist00" + std::string(32, '\0')),
        "the binary list's trailer contradicts its size");
    EXPECT_EQ(propertyListShapeError("bplis"), "the list does not end");
}

TEST(PropertyListShape, binaryIntegersHaveOneToEightBytes)
{
    for (const int width : {1, 3, 8}) {
        EXPECT_EQ(propertyListShapeError(withWidths(width, 1)), "") << width;
        EXPECT_EQ(propertyListShapeError(withWidths(1, width)), "") << width;
    }
    for (const int width : {0, 9}) {
        EXPECT_NE(propertyListShapeError(withWidths(1, width)), "") << width;
    }
    EXPECT_NE(propertyListShapeError(withWidths(0, 1)), "");
    EXPECT_EQ(
        propertyListShapeError(withWidths(9, 1)), "the binary list's trailer contradicts its size");
}

TEST(PropertyListShape, aTableOfOffsetsHasToFit)
{
    std::string list = lastObject("\xA0");
    ASSERT_EQ(propertyListShapeError(list), "");
    const std::size_t trailer = list.size() - 32;
    const auto with = [&](std::size_t at, std::size_t value) {
        std::string changed = list;
        changed.replace(trailer + at, 8, Binary::number(value, 8));
        return propertyListShapeError(changed);
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

TEST(PropertyListShape, aTableOfWideOffsetsHasToFit)
{
    Binary list;
    std::string bytes = list.finish(list.addArray({}));
    ASSERT_EQ(propertyListShapeError(bytes), "");
    bytes.replace(bytes.size() - 24, 8, Binary::number(2, 8));
    EXPECT_EQ(propertyListShapeError(bytes), "the binary list's trailer contradicts its size");
}

TEST(PropertyListShape, refusesContainersInEachOtherBeforeTheStackIsFull)
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
    EXPECT_EQ(propertyListShapeError(list), "containers nest deeper than 64");
}

TEST(PropertyListShape, binaryObjectsLieBetweenMagicAndTrailer)
{
    const std::string outside = "an object lies outside of the list";
    std::string list = lastObject("\xA0");
    EXPECT_EQ(propertyListShapeError(list), "");
    list[8] = 8; // the offset itself, as an object
    EXPECT_EQ(propertyListShapeError(list), "");
    list[8] = 7;
    EXPECT_EQ(propertyListShapeError(list), outside);
    list[8] = 10;
    EXPECT_EQ(propertyListShapeError(list), outside);
    list[8] = 11;
    EXPECT_EQ(propertyListShapeError(list), outside);
}

TEST(PropertyListShape, followsTheReferencesOfContainersAlone)
{
    for (const unsigned type : {0xAU, 0xBU, 0xCU}) {
        const std::string marker(1, static_cast<char>(type << 4U | 1U));
        EXPECT_EQ(propertyListShapeError(lastObject(marker + '\0')), "a container holds itself");
        EXPECT_EQ(propertyListShapeError(lastObject(marker + '\1')),
            "a container refers to an object that is not there");
        EXPECT_EQ(
            propertyListShapeError(lastObject(marker)), "a container is longer than the list");
    }
    EXPECT_EQ(
        propertyListShapeError(lastObject(std::string("\xD1\0\0", 3))), "a container holds itself");
    EXPECT_EQ(propertyListShapeError(lastObject(std::string("\xD1\0", 2))),
        "a container is longer than the list");
    for (const unsigned type : {0x5U, 0x8U, 0x9U, 0xEU, 0xFU}) {
        const std::string marker(1, static_cast<char>(type << 4U | 1U));
        EXPECT_EQ(propertyListShapeError(lastObject(marker + '\0')), "") << type;
    }
}

TEST(PropertyListShape, longContainersCountWithAnIntegerObject)
{
    const std::string tooLong = "a container is longer than the list";
    const auto array = [](const std::string& count) {
        return propertyListShapeError(lastObject("\xAF" + count));
    };
    for (int power = 0; power <= 3; ++power) {
        const std::string marker(1, static_cast<char>(0x10 + power));
        EXPECT_EQ(array(marker + std::string(std::size_t{1} << power, '\0')), "") << power;
        EXPECT_EQ(array(marker + std::string((std::size_t{1} << power) - 1, '\0')), tooLong);
        EXPECT_EQ(array(marker + std::string((std::size_t{1} << power) - 1, '\0') + '\1'), tooLong);
    }
    EXPECT_EQ(array(""), tooLong);
    std::string inTheTrailer = lastObject("\xAF");
    inTheTrailer[inTheTrailer.size() - 32] = '\x10'; // its unused bytes may hold anything
    EXPECT_EQ(propertyListShapeError(inTheTrailer), tooLong);
    EXPECT_EQ(array("\x14" + std::string(16, '\0')), tooLong) << "no count has 16 bytes";
    EXPECT_EQ(array(std::string("\x20\0", 2)), tooLong) << "a real is no count";
    EXPECT_EQ(array(std::string("\x30\0", 2)), tooLong);
    EXPECT_EQ(array(std::string("\x00\0", 2)), tooLong);
    EXPECT_EQ(array('\x20' + std::string(40, '\0')), tooLong) << "also where there is room";
    EXPECT_EQ(
        array(std::string("\x10\1\1", 3)), "a container refers to an object that is not there");
}

TEST(PropertyListShape, aContainersReferencesOfTwoBytesHaveToFit)
{
    // Two parts of an array, a key and a value of a dictionary; both end at the trailer.
    for (const char marker : {'\xA2', '\xD1'}) {
        const auto errorOf = [marker](std::size_t bytes) {
            return propertyListShapeError("bplist00\x09" + (marker + std::string(bytes, '\0'))
                + std::string(6, '\0') + "\x01\x02" + Binary::number(1, 8) + Binary::number(0, 8)
                + Binary::number(8, 8));
        };
        EXPECT_EQ(errorOf(4), "a container holds itself");
        EXPECT_EQ(errorOf(3), "a container is longer than the list");
    }
}

TEST(PropertyListShape, a128BitIntegerHasToBeWhole)
{
    const std::string low = "\x14" + std::string(8, '\0') + std::string(8, '\xFF');
    EXPECT_EQ(propertyListShapeError(lastObject(low)), "");
    EXPECT_EQ(propertyListShapeError(lastObject(low.substr(0, 16))),
        "an integer does not fit into 64 bits");
    for (std::size_t at = 1; at <= 8; ++at) {
        std::string high = low;
        high[at] = '\1';
        EXPECT_EQ(propertyListShapeError(lastObject(high)), "an integer does not fit into 64 bits");
    }
}

TEST(PropertyListShape, aBinaryListMayExpandTo100000Objects)
{
    const auto expanded = [](std::size_t more) {
        Binary list;
        const std::size_t leaf = list.add(kTrue);
        const std::size_t thousand = list.addArray(std::vector<std::size_t>(999, leaf));
        std::vector<std::size_t> parts(99, thousand);
        parts.resize(99 + 999 + more, leaf);
        return propertyListShapeError(list.finish(list.addArray(parts)));
    };
    EXPECT_EQ(expanded(0), "");
    EXPECT_EQ(expanded(1), "the list expands to more than 100000 objects");
}
