// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The XML form: what is accepted, what is rejected and why.

#include "ErrorText.h"
#include "PropertyList.h"
#include "SampleConfig.h"

#include <QString>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace platform;

namespace {

/** The error for the bytes, with any root; empty if they are a list. */
std::string errorOfBytes(const std::string& bytes)
{
    const auto list = PropertyList::parse(bytes);
    const std::string error = errorText(list);
    EXPECT_EQ(list.has_value(), error.empty());
    return error == "its root is not a dictionary" ? std::string() : error;
}

std::string errorOf(const std::string& root)
{
    return errorOfBytes("<plist version=\"1.0\">" + root + "</plist>");
}

std::string entry(const std::string& value)
{
    return "<plist><dict><key>k</key>" + value + "</dict></plist>";
}

std::string errorOfEntry(const std::string& value)
{
    return errorOfBytes(entry(value));
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

/** The string k of a list; or the error. */
std::string stringIn(const std::string& bytes)
{
    const auto list = PropertyList::parse(bytes);
    return list ? std::string(list->root().string("k").value_or("no string")) : errorText(list);
}

/** Text in UTF-16, optionally with a byte-order mark. */
std::string utf16(const QString& text, bool isBigEndian, bool hasMark)
{
    std::string bytes;
    const QString marked = hasMark ? QChar(QChar::ByteOrderMark) + text : text;
    for (const QChar c : marked) {
        const auto high = static_cast<char>(c.unicode() >> 8U);
        const auto low = static_cast<char>(c.unicode() & 0xFFU);
        bytes += isBigEndian ? high : low;
        bytes += isBigEndian ? low : high;
    }
    return bytes;
}

} // namespace

TEST(PropertyListXml, quotesWhatItRefusesInOneLineOfPlainText)
{
    // As shown in a log and on the panel, whatever the file contains.
    EXPECT_EQ(errorOf("<a\xc3\xa9>"), "unknown tag 'a?\?'");
    EXPECT_EQ(errorOfEntry("<integer>~\x7F</integer>"), "'~?' is not a 64-bit integer");
    EXPECT_EQ(errorOf("<abcdefghijklmnopqrstuvwxyz0123456789>"),
        "unknown tag 'abcdefghijklmnopqrstuvwxyz012345'");
}

TEST(PropertyListXml, passesWhatMayStandAroundAndInAList)
{
    EXPECT_EQ(errorOfBytes("\n<!-- > <dict> -->\n<plist version=\"1.0\"><dict >\n</dict ></plist>\n"
                           "<!-- the end -->\n"),
        "");
    EXPECT_EQ(
        errorOfBytes("<?xml version=\"1.0\"?>\n"
                     "<!DOCTYPE plist PUBLIC \"-//X//DTD PLIST 1.0//EN\" \"http://x/1.dtd\">\n"
                     "<plist x=\"/dict>\"><dict/></plist>"),
        "");
    EXPECT_EQ(errorOfBytes("<dict/>"), "");
    EXPECT_EQ(
        stringIn(entry("<string><![CDATA[<dict>&amp;]]><!-- x -->y</string>")), "<dict>&amp;y");
    EXPECT_EQ(stringIn(entry("<string> \t\n</string>")), " \t\n");
    EXPECT_EQ(stringIn(entry("<string/>")), "");
}

TEST(PropertyListXml, stopsAtTheDepthLimit)
{
    EXPECT_EQ(errorOf(nested(kPropertyListMaxDepth)), "");
    EXPECT_EQ(errorOf(nested(kPropertyListMaxDepth + 1)), "containers nest deeper than 64");
    EXPECT_EQ(errorOf(nested(100'000)), "containers nest deeper than 64");
}

TEST(PropertyListXml, refusesMoreValuesThanAMemoryHolds)
{
    std::string values;
    for (int i = 0; i < 1'000'000; ++i) {
        values += "<true/>";
    }
    EXPECT_EQ(errorOf("<array>" + values.substr(7) + "</array>"), "");
    EXPECT_EQ(errorOf("<array>" + values + "</array>"), "it has more than 1000000 values");
}

TEST(PropertyListXml, takesIntegersOf64BitsAndKeepsThemToTheLetter)
{
    for (const char* const good : {"0", "-0", "7", "+7", " 7 ", "007", "-08",
             "-9223372036854775808", "18446744073709551615", "0x10", "0XfF", "-0x10", "\n7\t"}) {
        const auto list =
            PropertyList::parse(entry(std::string("<integer>") + good + "</integer>"));
        ASSERT_TRUE(list) << good << ": " << errorText(list);
        EXPECT_NE(list->toXml().find(std::string(">") + good + "<"), std::string::npos) << good;
    }
    for (const char* const bad : {"", " ", "-", "0x", "abc", "1 2", "1.5", "--1", "+-1",
             "18446744073709551616", "-9223372036854775809", "99999999999999999999999",
             "0x1ffffffffffffffff", "0x1g", "1<b/>"}) {
        EXPECT_NE(errorOfEntry(std::string("<integer>") + bad + "</integer>"), "") << bad;
    }
    EXPECT_NE(errorOfEntry("<integer/>"), "");
}

TEST(PropertyListXml, blanksAroundANumberDoNotCount)
{
    for (const char* const number : {"<integer> 7\n</integer>", "<real>\t7.5 </real>"}) {
        const auto list = PropertyList::parse(entry(number));
        ASSERT_TRUE(list) << errorText(list);
        EXPECT_EQ(list->root().number("k")->longValue(), 7) << number;
    }
}

TEST(PropertyListXml, aLeadingZeroIsNoOtherBase)
{
    const auto list = PropertyList::parse(entry("<integer>-010</integer>"));
    ASSERT_TRUE(list) << errorText(list);
    EXPECT_EQ(list->root().number("k")->longValue(), -10);
}

TEST(PropertyListXml, refusesRealsAndDatesThatAreNone)
{
    for (const char* const good : {"0", "-1.5", "+2.5", "+7", "1e-300", "nan", "inf", "-infinity",
             "\t1.50\n", "1e999", "-1e999", "1e-999"}) {
        EXPECT_EQ(errorOfEntry(std::string("<real>") + good + "</real>"), "") << good;
    }
    for (const char* const bad : {"", "1.5x", "1,5", "x", "+", "+-5", "-+5", "1e999x"}) {
        EXPECT_NE(errorOfEntry(std::string("<real>") + bad + "</real>"), "") << bad;
    }
    for (const char* const bad : {"", "yesterday", "2026-11-21", "2026-11-21T02:46:00",
             "\xEF\xBB\xBF"
             "2026-11-21Z"}) {
        EXPECT_NE(errorOfEntry(std::string("<date>") + bad + "</date>"), "") << bad;
    }
}

TEST(PropertyListXml, datesHaveDigitsInTheirPlaces)
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

TEST(PropertyListXml, datesMayEndWithTheirDayHourOrMinute)
{
    const std::string date = "2026-11-21T02:46:00";
    for (std::size_t length = 0; length <= date.size(); ++length) {
        const std::string shorter = date.substr(0, length) + 'Z';
        const bool isGood = length == 10 || length == 13 || length == 16 || length == 19;
        EXPECT_EQ(errorOfEntry("<date>" + shorter + "</date>") == "", isGood) << shorter;
    }
}

TEST(PropertyListXml, refusesWhatFollowsTheList)
{
    const std::string whole = "<plist><dict></dict></plist>";
    EXPECT_EQ(errorOfBytes(whole + " \n"), "");
    EXPECT_NE(errorOfBytes(whole + "junk"), "");
    EXPECT_NE(errorOfBytes(whole + std::string(1, '\0')), "");
    EXPECT_NE(errorOfBytes(whole + whole), "");
    EXPECT_EQ(errorOf("<dict></dict><dict></dict>"), "a second list follows the first");
    EXPECT_EQ(errorOf("<dict/><plist/>"), "unknown tag 'plist'");
}

TEST(PropertyListXml, refusesDefinitionsOfEntitiesBeforeTheyGrow)
{
    std::string bomb = "<!DOCTYPE plist [<!ENTITY a0 \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\">";
    for (int i = 1; i < 30; ++i) {
        const std::string before = "&a" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY a" + std::to_string(i) + " \"" + before + before + before + "\">";
    }
    EXPECT_EQ(errorOfBytes(bomb + "]>" + entry("<string>&a29;</string>")),
        "a document type with definitions");
    EXPECT_NE(
        errorOfBytes("<!DOCTYPE p [<!ENTITY a \"&a;\"><!ATTLIST dict x CDATA \"&a;\">]><dict/>"),
        "");
    EXPECT_NE(errorOfEntry("<string>&unknown;</string>"), "");
    // The document type that is usual could define it, but is never read.
    EXPECT_EQ(errorOfBytes("<!DOCTYPE plist PUBLIC \"-//A//B//EN\" \"http://example.org/list.dtd\">"
                  + entry("<string>&unknown;</string>")),
        "an entity that is not defined");
}

TEST(PropertyListXml, refusesWhatStandsInTheWrongPlace)
{
    EXPECT_EQ(errorOf(""), "it contains no value");
    EXPECT_NE(errorOf("</dict>"), "");
    EXPECT_EQ(errorOf("<dict></dict><key>k</key>"), "a key instead of a value");
    EXPECT_EQ(errorOf("<dict><true/></dict>"), "a value without a key");
    EXPECT_EQ(errorOf("<dict><key>k</key></dict>"), "a key without a value");
    EXPECT_EQ(errorOf("<dict><key>k</key><key>l</key></dict>"), "a key instead of a value");
    EXPECT_EQ(errorOf("<array><key>k</key></array>"), "a key instead of a value");
    EXPECT_EQ(errorOf("<array>x</array>"), "text instead of a value (line 1)");
    EXPECT_EQ(errorOf("<dict><key>a<b/></key><true/></dict>"), "'a' is interrupted");
    EXPECT_EQ(errorOfEntry("<integer>5<integer/></integer>"), "'5' is interrupted");
    EXPECT_EQ(errorOfEntry("<true>x y</true>"), "'x y' in a boolean");
    EXPECT_NE(errorOfEntry("<integer>5</real>"), "");
    EXPECT_NE(errorOfEntry("<integer>5"), "");
}

TEST(PropertyListXml, ofAKeyThatStandsTwiceTheLastValueCounts)
{
    const auto list = PropertyList::parse(
        "<dict><key>a</key><integer>1</integer><key>b</key><integer>2</integer>"
        "<key>a</key><dict><key>x</key><true/></dict><key>c</key><integer>3</integer>"
        "<key>b</key><integer>4</integer><key>a</key><integer>5</integer></dict>");
    ASSERT_TRUE(list) << errorText(list);
    EXPECT_EQ(list->root().keys(), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(list->root().number("a")->longValue(), 5);
    EXPECT_EQ(list->root().number("b")->longValue(), 4);
}

TEST(PropertyListXml, isReadInTheEncodingThatItDeclares)
{
    const auto declared = [](const std::string& encoding, const std::string& text) {
        return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>"
            + entry("<string>" + text + "</string>");
    };
    EXPECT_EQ(stringIn(declared("ISO-8859-1", "caf\xE9")), "caf\xC3\xA9");
    EXPECT_EQ(stringIn(declared("iso-8859-1", "\xC3\xA9")), "\xC3\x83\xC2\xA9")
        << "also where the bytes would be UTF-8";
    EXPECT_EQ(stringIn(declared("utf-8", "caf\xC3\xA9")), "caf\xC3\xA9");
    EXPECT_EQ(stringIn(declared("US-ASCII", "cafe")), "cafe");
    EXPECT_EQ(stringIn("\xEF\xBB\xBF" + declared("UTF-8", "caf\xC3\xA9")), "caf\xC3\xA9");
    EXPECT_EQ(stringIn("\xEF\xBB\xBF" + entry("<string>x</string>")), "x");
    EXPECT_EQ(stringIn(declared("UTF-8", "caf\xE9")), "it is not valid UTF-8");
    EXPECT_EQ(stringIn(entry("<string>\xED\xA0\x80</string>")), "it is not valid UTF-8");
    EXPECT_EQ(stringIn("<?xml version=\"1.0\"?>" + entry("<string>caf\xE9</string>")),
        "it is not valid UTF-8");
    EXPECT_EQ(stringIn(declared("ISO-8859-1", "\xE9</true>")),
        stringIn(declared("ISO-8859-1", "e</true>")))
        << "its bytes are no fault";
    EXPECT_NE(errorOfBytes(declared("nothing", "x")), "");
}

TEST(PropertyListXml, isReadInUtf16OfEitherOrder)
{
    const QString text =
        QStringLiteral("<plist><dict><key>k</key><string>%1</string></dict></plist>")
            .arg(QString::fromUtf8("caf\xC3\xA9 \xF0\x9F\x96\x8A"));
    const QString declaration = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>");
    for (const bool isBigEndian : {false, true}) {
        for (const bool hasMark : {false, true}) {
            SCOPED_TRACE(isBigEndian ? "big" : "little");
            EXPECT_EQ(stringIn(utf16(text, isBigEndian, hasMark)), "caf\xC3\xA9 \xF0\x9F\x96\x8A");
            EXPECT_EQ(stringIn(utf16(declaration + text, isBigEndian, hasMark)),
                "caf\xC3\xA9 \xF0\x9F\x96\x8A");
        }
        std::string half = utf16(text, isBigEndian, true);
        half.pop_back();
        EXPECT_EQ(stringIn(half), "it is not valid UTF-16");
        const QString lone =
            QStringLiteral("<string>") + QChar(0xD800) + QStringLiteral("</string>");
        EXPECT_EQ(stringIn(utf16(lone, isBigEndian, true)), "it is not valid UTF-16");
        EXPECT_EQ(errorOfBytes(utf16(QStringLiteral("<array><dict></array>"), isBigEndian, true)),
            errorOfBytes("<array><dict></array>"));
    }
}

TEST(PropertyListXml, refusesCharactersThatAreNone)
{
    EXPECT_NE(errorOfEntry("<string>&#1;</string>"), "");
    EXPECT_NE(errorOfEntry("<string>&#0;</string>"), "");
    EXPECT_EQ(errorOfBytes(std::string("<d\0ct/>", 7)).find("UTF-16"), std::string::npos)
        << "a NUL there makes no other encoding of it";
    const std::string why = errorOfEntry("<string>\x1b</string>");
    EXPECT_NE(why, "");
    EXPECT_EQ(why.find('\x1b'), std::string::npos) << "it stands in a log";
    EXPECT_NE(errorOfEntry("<string>&#xD800;</string>"), "");
    EXPECT_EQ(stringIn(entry("<string>&#13;&#x20AC;</string>")), "\r\xE2\x82\xAC");
}
