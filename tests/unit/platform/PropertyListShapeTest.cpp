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
             "0x1ffffffffffffffff", "1<!-- -->0", "1<b/>"}) {
        EXPECT_NE(errorOfEntry(std::string("<integer>") + bad + "</integer>"), "") << bad;
    }
    EXPECT_NE(errorOfEntry("<integer/>"), "");
}

TEST(PropertyListShape, saysWhichIntegerItIs)
{
    EXPECT_EQ(errorOfEntry("<integer>99999999999999999999</integer>"),
        "integer '99999999999999999999' does not fit into 64 bits");
    EXPECT_EQ(errorOfEntry("<integer>010</integer>"), "integer '010' has a leading zero");
}

TEST(PropertyListShape, refusesRealsAndDatesThatWouldChange)
{
    for (const char* const good : {"0", "-1.5", "+2.5", "1e-300", "nan", "inf", "-infinity"}) {
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
