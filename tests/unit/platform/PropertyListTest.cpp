// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyList.h"

#include "ErrorText.h"
#include "FileSizeLimit.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"
#include "Wait.h"

#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <locale>
#include <malloc.h>
#include <memory>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace platform;

namespace {

PropertyList parsed(const QByteArray& entries)
{
    auto list = PropertyList::parse(plist("<dict>" + entries + "</dict>").toStdString());
    EXPECT_TRUE(list) << errorText(list);
    return list ? std::move(*list) : PropertyList();
}

/** Saves a file where there is none, and then does not replace it. */
void expectOneNewFile(const QString& folder)
{
    const QString path = folder + QStringLiteral("/new.plist");
    PropertyList list;
    list.root().addDictionary("Pen").setInteger("Speed", -7);
    ASSERT_EQ(errorText(list.saveNew(path.toStdString())), "");
    const QByteArray bytes = readFile(path);
    EXPECT_TRUE(bytes.contains("<integer>-7</integer>"));
    list.root().setString("other", "text");
    EXPECT_FALSE(list.saveNew(path.toStdString()));
    EXPECT_EQ(readFile(path), bytes);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

constexpr sock_filter take(std::size_t place)
{
    return {BPF_LD | BPF_W | BPF_ABS, 0, 0, static_cast<std::uint32_t>(place)};
}

constexpr sock_filter end(std::uint32_t how)
{
    return {BPF_RET | BPF_K, 0, 0, how};
}

/** Has this decide on all further system calls of this process. */
bool filterCalls(std::vector<sock_filter> filter)
{
    const sock_fprog program{static_cast<std::uint16_t>(filter.size()), filter.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program) == 0;
}

/** The error for a file with these bytes. */
std::string loadError(const QByteArray& bytes)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, bytes);
    const auto list = PropertyList::load(path.toStdString());
    EXPECT_FALSE(list || list.error().isMissingFile);
    EXPECT_EQ(readFile(path), bytes);
    return errorText(list);
}

std::int16_t shortOf(const QByteArray& value)
{
    const auto number = parsed("<key>n</key>" + value).root().number("n");
    EXPECT_TRUE(number) << value.constData();
    return number ? number->shortValue() : std::int16_t{0};
}

/** The binary form of a list in XML. */
std::string toBinary(const QByteArray& xml)
{
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(node, &bytes, &length);
    std::string binary(bytes, length);
    std::free(bytes); // NOLINT(*-no-malloc): libplist hands out malloc's memory
    plist_free(node);
    return binary;
}

/** The error for a process's cmdline: a regular file of size 0 whose text ends with a NUL. */
std::string errorOfName(const QString& name)
{
    QProcess process;
    process.start(QStringLiteral("/bin/bash"),
        {QStringLiteral("-c"), QStringLiteral("exec -a \"$0\" cat"), name});
    process.write("it has its name\n");
    EXPECT_TRUE(process.waitForReadyRead());
    const auto list =
        PropertyList::load("/proc/" + std::to_string(process.processId()) + "/cmdline");
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
    return errorText(list);
}

} // namespace

TEST(PropertyList, findsEntriesByKindAndKey)
{
    const PropertyList list = parsed("<key>i</key><integer>5</integer><key>b</key><true/>"
                                     "<key>r</key><real>2.5</real><key>s</key><string>x</string>"
                                     "<key>d</key><dict/><key>a</key><array/>"
                                     "<key>t</key><date>2026-11-21T00:00:00Z</date>"
                                     "<key>y</key><data>AAEC</data>");
    const Dictionary root = list.root();
    EXPECT_EQ(root.kind("i"), EntryKind::Number);
    EXPECT_EQ(root.kind("b"), EntryKind::Number);
    EXPECT_EQ(root.kind("r"), EntryKind::Number);
    EXPECT_EQ(root.kind("s"), EntryKind::String);
    EXPECT_EQ(root.kind("d"), EntryKind::Dictionary);
    EXPECT_EQ(root.kind("a"), EntryKind::Array);
    EXPECT_EQ(root.kind("t"), EntryKind::Date);
    EXPECT_EQ(root.kind("y"), EntryKind::Data);
    EXPECT_EQ(root.kind("none"), EntryKind::Absent);
    EXPECT_EQ(root.string("s"), "x");
    EXPECT_TRUE(root.dictionary("d").exists());
    EXPECT_FALSE(root.string("i"));
    EXPECT_FALSE(root.number("s"));
    EXPECT_FALSE(root.dictionary("a").exists());
    EXPECT_EQ(root.keys(), (std::vector<std::string>{"i", "b", "r", "s", "d", "a", "t", "y"}));
}

TEST(PropertyList, anAbsentDictionaryAnswersEverythingWithNothing)
{
    PropertyList list = parsed("");
    const MutableDictionary none = list.root().dictionary("none");
    EXPECT_FALSE(none.exists());
    EXPECT_EQ(none.kind("x"), EntryKind::Absent);
    EXPECT_FALSE(none.number("x"));
    EXPECT_FALSE(none.string("x"));
    EXPECT_FALSE(none.dictionary("x").exists());
    EXPECT_TRUE(none.keys().empty());
    none.setInteger("x", 1);
    none.setString("x", "1");
    none.setBoolean("x", true);
    EXPECT_FALSE(none.addDictionary("x").exists());
    EXPECT_TRUE(list.root().keys().empty());
}

TEST(PropertyList, integersKeepTheirLow16Bits)
{
    EXPECT_EQ(shortOf("<integer>-25536</integer>"), -25536);
    EXPECT_EQ(shortOf("<integer>40000</integer>"), -25536);
    EXPECT_EQ(shortOf("<integer>65541</integer>"), 5);
    EXPECT_EQ(shortOf("<integer>0x10</integer>"), 16);
    EXPECT_EQ(shortOf("<integer>18446744073709551615</integer>"), -1);
    EXPECT_EQ(shortOf("<integer>-9223372036854775808</integer>"), 0);
}

TEST(PropertyList, realsAreTruncatedTowardZeroAndBooleansAre0And1)
{
    EXPECT_EQ(shortOf("<real>2.9</real>"), 2);
    EXPECT_EQ(shortOf("<real>-2.9</real>"), -2);
    EXPECT_EQ(shortOf("<real>40000.5</real>"), -25536);
    EXPECT_EQ(shortOf("<real>1e300</real>"), -1);
    EXPECT_EQ(shortOf("<real>-1e300</real>"), 0);
    EXPECT_EQ(shortOf("<real>1e999</real>"), shortOf("<real>inf</real>"));
    EXPECT_EQ(shortOf("<real>-1e999</real>"), shortOf("<real>-inf</real>"));
    EXPECT_EQ(shortOf("<real>1e-999</real>"), 0);
    EXPECT_EQ(shortOf("<real>nan</real>"), 0);
    EXPECT_EQ(shortOf("<true/>"), 1);
    EXPECT_EQ(shortOf("<false/>"), 0);
}

TEST(PropertyList, onlyZeroIsFalse)
{
    EXPECT_FALSE(Number::integer(0).boolValue());
    EXPECT_TRUE(Number::integer(256 * 256).boolValue());
    EXPECT_TRUE(Number::real(0.25).boolValue());
    EXPECT_FALSE(Number::real(-0.0).boolValue());
}

TEST(PropertyList, knowsWhichNumbersAreWhole)
{
    EXPECT_TRUE(Number::integer(7).isWhole());
    EXPECT_TRUE(Number::real(7.0).isWhole());
    EXPECT_FALSE(Number::real(7.5).isWhole());
    EXPECT_FALSE(Number::real(std::nan("")).isWhole());
    EXPECT_FALSE(Number::real(1e300).isWhole());
}

TEST(PropertyList, whatWasNotChangedComesBackAsItWas)
{
    const QByteArray entries =
        "<key>text</key><string>a &amp; b &lt; \xC3\xA9 \xE2\x8C\x98\n\t \"'</string>"
        "<key>empty</key><string></string><key>real</key><real>0.1</real>"
        "<key>small</key><real>5e-324</real><key>big</key><integer>18446744073709551615</integer>"
        "<key>least</key><integer>-9223372036854775808</integer>"
        "<key>old</key><date>1999-12-31T23:59:59Z</date>"
        "<key>late</key><date>2150-01-01T00:00:00Z</date>"
        "<key>bytes</key><data>AAECAwQFBgcICQ==</data><key>yes</key><true/><key>no</key><false/>"
        "<key>nested</key><dict><key>list</key><array><integer>1</integer><string>two</string>"
        "<array/><dict/></array></dict>";
    const PropertyList list = parsed(entries);
    const auto again = PropertyList::parse(list.toXml());
    ASSERT_TRUE(again) << errorText(again);
    EXPECT_EQ(again->toXml(), list.toXml());
    EXPECT_EQ(again->root().string("text"), "a & b < \xC3\xA9 \xE2\x8C\x98\n\t \"'");
    EXPECT_EQ(again->root().keys(), list.root().keys());
    for (const char* const part : {"<real>0.1", "18446744073709551615", "-9223372036854775808",
             "1999-12-31T23:59:59Z", "2150-01-01T00:00:00Z", "AAECAwQFBgcICQ=="}) {
        EXPECT_NE(list.toXml().find(part), std::string::npos) << part;
    }
}

TEST(PropertyList, realsSurviveALocaleWithADecimalComma)
{
    struct Locale {
        std::string before = std::setlocale(LC_ALL, nullptr);
        ~Locale() { std::setlocale(LC_ALL, before.c_str()); }
    } const locale;
    // Without this locale, the test would pass even if the program were wrong.
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
        << "the locale de_DE.UTF-8 is missing on this machine";
    const PropertyList list = parsed("<key>r</key><real>2.75</real>");
    EXPECT_NE(list.toXml().find("<real>2.75</real>"), std::string::npos) << list.toXml();
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "de_DE.UTF-8");
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%.2f", 2.75);
    EXPECT_STREQ(text.data(), "2,75") << "the host goes on in its own locale";
}

TEST(PropertyList, realsBeyondAllRangesSurviveTheHostsLocaleOfStreams)
{
    struct Comma final : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
    };
    struct Locale {
        std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
        ~Locale() { std::locale::global(before); }
    } const locale;
    const PropertyList list =
        parsed("<key>big</key><real>-1.5e999</real><key>small</key><real>1.5e-999</real>");
    EXPECT_EQ(list.root().number("big")->longValue(), std::numeric_limits<std::int64_t>::min());
    EXPECT_FALSE(list.root().number("small")->boolValue());
}

TEST(PropertyList, theBinaryFormIsLoadedAndWrittenAsXml)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, QByteArray::fromStdString(toBinary(sampleConfig())));
    const auto list = PropertyList::load(path.toStdString());
    ASSERT_TRUE(list) << errorText(list);
    ASSERT_EQ(errorText(list->save(path.toStdString())), "");
    EXPECT_TRUE(readFile(path).startsWith("<?xml"));
    const auto again = PropertyList::load(path.toStdString());
    ASSERT_TRUE(again) << errorText(again);
    EXPECT_EQ(again->toXml(), list->toXml());
}

TEST(PropertyList, aMissingFileIsToldFromABrokenOne)
{
    const TemporaryHome home;
    const auto list = PropertyList::load((home.path() + QStringLiteral("/none")).toStdString());
    ASSERT_FALSE(list);
    EXPECT_TRUE(list.error().isMissingFile);
    EXPECT_FALSE(errorText(list).empty());
}

TEST(PropertyList, anEmptyFileIsNone)
{
    EXPECT_NE(loadError(""), "");
}

TEST(PropertyList, otherTextsAreNone)
{
    EXPECT_NE(loadError("hello"), "");
    EXPECT_NE(loadError("{ a = 1; }"), "");
    EXPECT_NE(loadError("<html><body></body></html>"), "");
    EXPECT_NE(loadError(QByteArray(5000, '\0')), "");
}

TEST(PropertyList, aRootThatIsNoDictionaryIsRefused)
{
    EXPECT_NE(loadError(plist("<array/>")).find("not a dictionary"), std::string::npos);
    EXPECT_NE(loadError(plist("<integer>5</integer>")), "");
}

TEST(PropertyList, aFileCutOffAnywhereIsRefused)
{
    const QByteArray whole = sampleConfig();
    const auto end = whole.lastIndexOf("</plist>") + 8;
    for (int length = 0; length < whole.size(); ++length) {
        const auto list = PropertyList::parse(whole.left(length).toStdString());
        EXPECT_EQ(list.has_value(), length >= end) << "cut after " << length;
    }
}

TEST(PropertyList, aBinaryFileCutOffAnywhereIsRefused)
{
    const std::string whole = toBinary(sampleConfig());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(PropertyList::parse(whole.substr(0, length))) << length;
    }
}

TEST(PropertyList, aBinaryFileWithAnyByteChangedDoesNoHarm)
{
    const std::string whole = toBinary(sampleConfig());
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const int change : {0x01, 0x10, 0x80, 0xFF}) {
            std::string bytes = whole;
            bytes[at] = static_cast<char>(bytes[at] ^ change);
            const auto list = PropertyList::parse(bytes);
            if (list) {
                list->toXml();
            }
        }
    }
}

TEST(PropertyList, aBinaryFileWithAKeyTwiceIsReadAsItIsWritten)
{
    std::string bytes = toBinary(plist("<dict><key>one</key><integer>1</integer>"
                                       "<key>two</key><integer>2</integer></dict>"));
    bytes.replace(bytes.find("two"), 3, "one");
    const auto list = PropertyList::parse(bytes);
    ASSERT_TRUE(list) << errorText(list);
    EXPECT_EQ(list->root().keys(), std::vector<std::string>{"one"});
    EXPECT_EQ(list->root().number("one")->longValue(), 2);
    const auto written = PropertyList::parse(list->toXml());
    ASSERT_TRUE(written) << errorText(written);
    EXPECT_EQ(written->root().number("one")->longValue(), 2);
}

TEST(PropertyList, aFileThatIsTooBigIsRefusedUnread)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/big.plist");
    writeFile(path, sampleConfig());
    ASSERT_EQ(::truncate(path.toStdString().c_str(), 100'000'000), 0);
    const auto list = PropertyList::load(path.toStdString());
    EXPECT_NE(errorText(list).find("larger than 16777216 bytes"), std::string::npos);
}

TEST(PropertyList, aFolderAFifoOrADeviceInItsPlaceIsRefusedWithoutWaiting)
{
    const TemporaryHome home;
    const std::string folder = home.path().toStdString();
    const std::string fifo = folder + "/fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), S_IRUSR | S_IWUSR), 0);
    for (const std::string& path : {folder, fifo, std::string("/dev/zero")}) {
        const auto list = PropertyList::load(path);
        ASSERT_FALSE(list) << path;
        EXPECT_NE(errorText(list).find("not a regular file"), std::string::npos) << errorText(list);
        EXPECT_FALSE(list.error().isMissingFile);
    }
}

TEST(PropertyList, savingKeepsTheFilesMode)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/list.plist";
    writeFile(QString::fromStdString(path), sampleConfig());
    for (const mode_t mode : {0600U, 0644U, 0664U}) {
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        const auto list = PropertyList::load(path);
        ASSERT_TRUE(list) << errorText(list);
        ASSERT_EQ(errorText(list->save(path)), "");
        struct stat status { };
        ASSERT_EQ(::stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, mode);
    }
}

TEST(PropertyList, savingThroughALinkChangesWhatItLeadsTo)
{
    const TemporaryHome home;
    const std::string real = home.path().toStdString() + "/real.plist";
    const std::string link = home.path().toStdString() + "/link.plist";
    writeFile(QString::fromStdString(real), sampleConfig());
    ASSERT_EQ(::symlink(real.c_str(), link.c_str()), 0);
    auto list = PropertyList::load(link);
    ASSERT_TRUE(list);
    list->root().setString("new", "entry");
    ASSERT_EQ(errorText(list->save(link)), "");
    EXPECT_TRUE(QFileInfo(QString::fromStdString(link)).isSymLink());
    EXPECT_TRUE(readFile(QString::fromStdString(real)).contains("<key>new</key>"));
}

namespace {

/** Loads a file, adds an entry, and saves it. */
class Saved {
public:
    explicit Saved(const QByteArray& bytes)
    {
        writeFile(mPath, bytes);
        auto list = PropertyList::load(mPath.toStdString());
        EXPECT_TRUE(list) << errorText(list);
        if (list) {
            list->root().setInteger("ours", 1);
            const Result<> saved = list->save(mPath.toStdString());
            mIsSaved = saved.has_value();
            mWhy = errorText(saved);
        }
        mIsAsBefore = readFile(mPath) == bytes;
    }

    bool isSaved() const { return mIsSaved; }
    bool isAsBefore() const { return mIsAsBefore; }
    const std::string& why() const { return mWhy; }

    /** Another program's output for the file, or its error. */
    std::string printedBy(const QString& program, const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments + QStringList{mPath});
        EXPECT_TRUE(process.waitForFinished(-1)) << process.errorString().toStdString();
        return process.readAll().trimmed().toStdString();
    }

    /** Evaluates an expression on the list p, as read by Python's plistlib. */
    std::string inPython(const char* expression) const
    {
        const QString program = QStringLiteral("import plistlib, sys\n"
                                               "p = plistlib.load(open(sys.argv[1], 'rb'))\n"
                                               "print(ascii(%1))")
                                    .arg(QLatin1String(expression));
        return printedBy(QStringLiteral("python3"), {QStringLiteral("-c"), program});
    }

    std::string complaintsOfXmllint() const
    {
        return printedBy(QStringLiteral("xmllint"), {QStringLiteral("--noout")});
    }

private:
    TemporaryHome mHome;
    QString mPath = mHome.path() + QStringLiteral("/list.plist");
    bool mIsSaved = false;
    bool mIsAsBefore = false;
    std::string mWhy;
};

/** A binary list of the string k. */
QByteArray binaryWithString(const QByteArray& text)
{
    const QByteArray place(text.size(), 'x');
    const std::string bytes =
        toBinary(plist("<dict><key>k</key><string>" + place + "</string></dict>"));
    return QByteArray::fromStdString(bytes).replace(place, text);
}

} // namespace

TEST(PropertyList, whatItDoesNotKnowIsSavedToTheLetter)
{
    const Saved saved(plist("<dict><key>first</key><date>0001-01-01T00:00:00Z</date>"
                            "<key>zeros</key><integer>007</integer>"
                            "<key>hex</key><integer>0x1F</integer>"
                            "<key>real</key><real>1.50</real><key>data</key><data>AA\n EC</data>"
                            "<key>return</key><string>a&#13;b&#13;&#10;c</string></dict>"));
    ASSERT_TRUE(saved.isSaved()) << saved.why();
    EXPECT_EQ(saved.complaintsOfXmllint(), "");
    EXPECT_EQ(saved.inPython("p['first']"), "datetime.datetime(1, 1, 1, 0, 0)");
    EXPECT_EQ(saved.inPython("p['return']"), R"('a\rb\r\nc')");
    EXPECT_EQ(saved.inPython("list(p.values())[1:5]"), R"([7, 31, 1.5, b'\x00\x01\x02'])");
    EXPECT_EQ(saved.inPython("p['ours']"), "1");
}

TEST(PropertyList, isSavedInUtf8WhateverEncodingItHad)
{
    const QByteArray list = plist("<dict><key>k</key><string>caf\xC3\xA9</string></dict>");
    QByteArray latin = list;
    latin.replace("UTF-8", "ISO-8859-1").replace("\xC3\xA9", "\xE9");
    QByteArray wide = "\xFE\xFF";
    const QString text =
        QString::fromUtf8(list).replace(QStringLiteral("UTF-8"), QStringLiteral("UTF-16"));
    for (const QChar c : text) {
        wide += static_cast<char>(c.unicode() >> 8U);
        wide += static_cast<char>(c.unicode() & 0xFFU);
    }
    for (const QByteArray& bytes : {list, "\xEF\xBB\xBF" + list, latin, wide}) {
        const Saved saved(bytes);
        EXPECT_TRUE(saved.isSaved()) << saved.why();
        EXPECT_EQ(saved.complaintsOfXmllint(), "");
        EXPECT_EQ(saved.inPython("p"), R"({'k': 'caf\xe9', 'ours': 1})");
    }
}

TEST(PropertyList, aStringOfTheBinaryFormThatXmlCannotHoldIsReadButNotSaved)
{
    for (const QByteArray& text :
        {QByteArray("a\0b", 3), QByteArray("a\1b"), QByteArray("\x1b[m")}) {
        const QByteArray bytes = binaryWithString(text);
        const Saved saved(bytes);
        EXPECT_FALSE(saved.isSaved());
        EXPECT_TRUE(saved.isAsBefore());
        EXPECT_NE(
            saved.why().find("it contains text that XML cannot represent: "), std::string::npos)
            << saved.why();
        const auto list = PropertyList::parse(bytes.toStdString());
        ASSERT_TRUE(list) << errorText(list);
        EXPECT_EQ(list->root().string("k"), text.toStdString()) << "it is not cut off";
    }
    const Saved saved(binaryWithString("a\rb\tc"));
    EXPECT_TRUE(saved.isSaved()) << saved.why();
    EXPECT_EQ(saved.inPython("p['k']"), R"('a\rb\tc')");
}

TEST(PropertyList, aFractionOfASecondInTheBinaryFormIsReadButNotSaved)
{
    const std::string bytes =
        toBinary(plist("<dict><key>k</key><date>2026-11-22T02:46:00Z</date></dict>"));
    const std::string whole("\x33\x41\xC8\x59\x47\x74\0\0\0", 9); // a date in seconds, as a double
    ASSERT_NE(bytes.find(whole), std::string::npos);
    QByteArray fraction = QByteArray::fromStdString(bytes);
    fraction[static_cast<int>(bytes.find(whole)) + 6] = '\1';
    const Saved saved(fraction);
    EXPECT_FALSE(saved.isSaved());
    EXPECT_TRUE(saved.isAsBefore());
    EXPECT_NE(saved.why().find("it contains text that XML cannot represent: '2026-11-22T02:46:00."),
        std::string::npos)
        << saved.why();
    EXPECT_TRUE(saved.why().ends_with("' is not a date in whole seconds")) << saved.why();
}

TEST(PropertyList, aDateDownToTheDayAndARealBeyondAllRangesAreSavedToTheLetter)
{
    const Saved saved(plist("<dict><key>day</key><date>2026-11-21Z</date>"
                            "<key>real</key><real>-1e999</real></dict>"));
    ASSERT_TRUE(saved.isSaved()) << saved.why();
    EXPECT_EQ(saved.inPython("p['day']"), "datetime.datetime(2026, 11, 21, 0, 0)");
    EXPECT_EQ(saved.inPython("p['real']"), "-inf");
    EXPECT_EQ(saved.inPython("p['ours']"), "1");
}

TEST(PropertyList, whatWouldGrowPastTheLimitIsNotSaved)
{
    // Each of these characters takes four bytes in the new file.
    const Saved saved(
        plist("<dict><key>k</key><string>" + QByteArray(5'000'000, '>') + "</string></dict>"));
    EXPECT_FALSE(saved.isSaved());
    EXPECT_TRUE(saved.isAsBefore());
    EXPECT_NE(saved.why().find("in XML, it is larger than 16777216 bytes"), std::string::npos)
        << saved.why();
}

TEST(PropertyList, whatIsNoTextIsNotSaved)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, sampleConfig());
    for (const char* const text : {"\x01", "caf\xE9", "\xED\xA0\x80"}) {
        auto list = PropertyList::load(path.toStdString());
        ASSERT_TRUE(list);
        list->root().setString("k", text);
        EXPECT_FALSE(list->save(path.toStdString()));
        EXPECT_FALSE(list->saveNew(path.toStdString() + ".new"));
        EXPECT_EQ(readFile(path), sampleConfig());
    }
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST(PropertyList, aPipeIsReadWhereThatIsAskedFor)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const QByteArray config = sampleConfig(); // fits into a pipe's buffer
    ASSERT_EQ(::write(pipe[1], config.constData(), static_cast<std::size_t>(config.size())),
        config.size());
    ::close(pipe[1]);
    const std::string path = "/dev/fd/" + std::to_string(pipe[0]);
    EXPECT_FALSE(PropertyList::load(path));
    const auto list = PropertyList::load(path, PropertyListSource::AnyFile);
    ::close(pipe[0]);
    ASSERT_TRUE(list) << errorText(list);
    EXPECT_EQ(list->root().dictionary("Tablet").number("VendorID")->longValue(), 1);
    const std::string endless =
        errorText(PropertyList::load("/dev/zero", PropertyListSource::AnyFile));
    EXPECT_NE(endless.find("larger than 16777216 bytes"), std::string::npos) << endless;
    const std::string folder = errorText(PropertyList::load("/", PropertyListSource::AnyFile));
    EXPECT_NE(folder.find(std::system_category().message(EISDIR)), std::string::npos) << folder;
}

TEST(PropertyList, aNewFileIsWrittenOnlyWhereThereIsNone)
{
    const TemporaryHome home;
    expectOneNewFile(home.path());
}

TEST(PropertyList, setsReplacesAndAddsEntries)
{
    PropertyList list = parsed("<key>a</key><string>x</string><key>b</key><true/>");
    const MutableDictionary root = list.root();
    root.setInteger("a", -3);
    root.setInteger("c", std::numeric_limits<std::uint32_t>::max());
    root.setString("d", "<&>");
    EXPECT_EQ(root.number("a")->longValue(), -3);
    EXPECT_EQ(root.number("c")->longValue(), 4294967295);
    const std::string xml = list.toXml();
    EXPECT_NE(xml.find("<integer>-3</integer>"), std::string::npos);
    EXPECT_NE(xml.find("<integer>4294967295</integer>"), std::string::npos);
    EXPECT_NE(xml.find("<string>&lt;&amp;&gt;</string>"), std::string::npos);
    EXPECT_EQ(root.keys().front(), "a");
}

TEST(PropertyList, realsBeyond64BitsAreTheNearestInteger)
{
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(Number::real(0x1p62).longValue(), kMost / 2 + 1);
    EXPECT_EQ(Number::real(0x1p63).longValue(), kMost);
    EXPECT_EQ(Number::real(1e19).longValue(), kMost);
    EXPECT_EQ(Number::real(-0x1p62).longValue(), kLeast / 2);
    EXPECT_EQ(Number::real(-0x1p63).longValue(), kLeast);
    EXPECT_EQ(Number::real(-1e300).longValue(), kLeast);
    EXPECT_EQ(Number::real(std::nan("")).longValue(), 0);
}

TEST(PropertyList, aListOfTheGreatestSizeIsTakenAndNoLargerOne)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    QByteArray bytes = sampleConfig();
    bytes.append(static_cast<int>(kPropertyListMaxSize) - bytes.size(), ' ');
    writeFile(path, bytes);
    EXPECT_EQ(errorText(PropertyList::load(path.toStdString())), "");
    bytes.append(' ');
    EXPECT_NE(loadError(bytes).find("larger than 16777216 bytes"), std::string::npos);
    EXPECT_EQ(
        errorText(PropertyList::parse(bytes.toStdString())), "it is larger than 16777216 bytes");
}

TEST(PropertyList, aFileThatIsLongerThanItSaysIsReadWhole)
{
    // Only reading to the end finds the NUL after the last line.
    const std::string error = errorOfName(QString::fromUtf8(sampleConfig()));
    EXPECT_NE(error.find("(line 3)"), std::string::npos) << error;
}

TEST(PropertyList, leavesNoFileOpen)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, sampleConfig());
    const auto open = [] {
        return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries).size();
    };
    const auto before = open();
    EXPECT_TRUE(PropertyList::load(path.toStdString()));
    EXPECT_FALSE(PropertyList::load(home.path().toStdString()));
    EXPECT_EQ(open(), before);
}

TEST(PropertyList, readsAndClosesAFileThatIsItsFirstDescriptor)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, sampleConfig());
    const int input = ::dup(STDIN_FILENO);
    ::close(STDIN_FILENO); // the next file takes its number, 0
    EXPECT_EQ(errorText(PropertyList::load(path.toStdString())), "");
    EXPECT_EQ(::fcntl(STDIN_FILENO, F_GETFD), -1) << "it is closed";
    if (input >= 0) {
        ::dup2(input, STDIN_FILENO);
        ::close(input);
    }
}

TEST(PropertyList, saysWhyAFileThatOpensCannotBeRead)
{
    // A regular file according to stat(), but its beginning cannot be read.
    const std::string path = "/proc/self/mem";
    const auto list = PropertyList::load(path);
    ASSERT_FALSE(list);
    EXPECT_EQ(errorText(list), "cannot read " + path + ": " + std::system_category().message(EIO));
    EXPECT_FALSE(list.error().isMissingFile);
}

TEST(PropertyList, keepsNoMemoryOfAListThatHasGone)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, sampleConfig());
    const auto readOne = [name = path.toStdString()] {
        const auto list = PropertyList::load(name);
        return list ? list->root().keys().size() + list->toXml().size() : 0;
    };
    constexpr std::size_t kTimes = 100;
    for (std::size_t i = 0; i < kTimes; ++i) {
        EXPECT_GT(readOne(), 0U); // the first ones may leave caches in the heap
    }
    const std::size_t before = mallinfo2().uordblks;
    for (std::size_t i = 0; i < kTimes; ++i) {
        readOne();
    }
    EXPECT_LT(mallinfo2().uordblks, before + kTimes * sizeof(void*)) << "less than a pointer each";
}

TEST(PropertyList, anInterruptionOfSomethingBeforeIsNone)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, sampleConfig());
    const std::string name = path.toStdString();
    errno = EINTR; // must stay after a success
    EXPECT_EQ(errorText(PropertyList::load(name)), "");
}

TEST(PropertyList, saysWhyNoMoreThanAByteCanBeWritten)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/list.plist";
    const Result<> saved = [&path] {
        const FileSizeLimit limit(1);
        return PropertyList().save(path);
    }();
    EXPECT_EQ(
        errorText(saved), "cannot write " + path + ": " + std::system_category().message(EFBIG));
}

TEST(PropertyList, aNewFileIsItsOwnersAlone)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/new.plist";
    ASSERT_EQ(errorText(PropertyList().saveNew(path)), "");
    struct stat status { };
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST(PropertyList, aNewFileNeedsNoLinks)
{
    // As on a memory card with FAT.
    const TemporaryHome home;
#ifdef SYS_link
    constexpr unsigned kLink = SYS_link;
#else
    constexpr unsigned kLink = SYS_linkat;
#endif
    ASSERT_TRUE(filterCalls({
        take(offsetof(seccomp_data, nr)),
        {BPF_JMP | BPF_JEQ | BPF_K, 6, 0, kLink},
        {BPF_JMP | BPF_JEQ | BPF_K, 5, 0, SYS_linkat},
        {BPF_JMP | BPF_JEQ | BPF_K, 0, 2, SYS_openat},
        take(offsetof(seccomp_data, args) + 2 * sizeof(std::uint64_t)), // the flags
        {BPF_JMP | BPF_JSET | BPF_K, 1, 0, O_TMPFILE & ~O_DIRECTORY},
        end(SECCOMP_RET_ALLOW),
        end(SECCOMP_RET_ERRNO | EOPNOTSUPP),
        end(SECCOMP_RET_ERRNO | EPERM),
    }));
    expectOneNewFile(home.path());
}

TEST(PropertyList, aNewFileNeedsOnlyLinks)
{
    // As over NFS.
    const TemporaryHome home;
    ASSERT_TRUE(filterCalls({
        take(offsetof(seccomp_data, nr)),
        {BPF_JMP | BPF_JEQ | BPF_K, 1, 0, SYS_renameat2},
        end(SECCOMP_RET_ALLOW),
        end(SECCOMP_RET_ERRNO | EINVAL),
    }));
    expectOneNewFile(home.path());
}

TEST(PropertyList, saysWhyANewFileCannotBeMade)
{
    const TemporaryHome home;
    const std::string folder = home.path().toStdString();
    const std::string error = errorText(PropertyList().saveNew(folder + "/none/new.plist"));
    const std::string before = "cannot create " + folder + "/none/new.plist: ";
    EXPECT_TRUE(error.starts_with(before)) << error;
    EXPECT_GT(error.size(), before.size());
    ASSERT_TRUE(PropertyList().saveNew(folder + "/new.plist"));
    EXPECT_EQ(errorText(PropertyList().saveNew(folder + "/new.plist")),
        "cannot create " + folder + "/new.plist: " + std::system_category().message(EEXIST));
}

TEST(PropertyList, setsBooleansAsBooleans)
{
    PropertyList list;
    list.root().setBoolean("yes", true);
    list.root().setBoolean("no", false);
    const std::string xml = list.toXml();
    EXPECT_NE(xml.find("<key>yes</key>\n\t<true/>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<key>no</key>\n\t<false/>"), std::string::npos) << xml;
}

TEST(PropertyList, blanksInABooleanAreNoTextToKeep)
{
    const Saved saved(
        plist("<dict><key>yes</key><true>\n</true><key>no</key><false> </false></dict>"));
    ASSERT_TRUE(saved.isSaved()) << saved.why();
    EXPECT_EQ(saved.inPython("p"), "{'yes': True, 'no': False, 'ours': 1}");
}

TEST(PropertyList, findsTheStringsOfAnArray)
{
    const PropertyList list =
        parsed("<key>a</key><array><string>x</string><integer>1</integer><string>y</string><dict/>"
               "</array><key>d</key><dict><key>k</key><string>z</string></dict>");
    EXPECT_EQ(list.root().strings("a"), (std::vector<std::string>{"x", "y"}));
    EXPECT_TRUE(list.root().strings("d").empty()) << "a dictionary has keys";
    EXPECT_TRUE(list.root().strings("none").empty());
    EXPECT_TRUE(list.root().dictionary("none").strings("a").empty());
}

TEST(PropertyList, whatReplacesAContainerKeepsNothingOfIt)
{
    const TemporaryHome home;
    PropertyList list = parsed("<key>a</key><array><string>x</string></array>"
                               "<key>d</key><dict><key>k</key><true/></dict>"
                               "<key>e</key><dict><key>k</key><true/></dict>");
    list.root().setStrings("a", {"y", "z"});
    EXPECT_EQ(list.root().strings("a"), (std::vector<std::string>{"y", "z"}));
    EXPECT_TRUE(list.root().addDictionary("d").keys().empty());
    list.root().setInteger("e", 7);
    EXPECT_EQ(
        errorText(list.save((home.path() + QStringLiteral("/list.plist")).toStdString())), "");
}

TEST(PropertyList, isSavedUpToTheGreatestSize)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/list.plist";
    PropertyList list;
    list.root().setString("k", "");
    const std::size_t rest = kPropertyListMaxSize - list.toXml().size();
    list.root().setString("k", std::string(rest, 'x'));
    EXPECT_EQ(errorText(list.save(path)), "");
    EXPECT_EQ(errorText(PropertyList::load(path)), "");
    list.root().setString("k", std::string(rest + 1, 'x'));
    EXPECT_EQ(errorText(list.save(path)),
        "cannot write " + path + ": in XML, it is larger than 16777216 bytes");
}

TEST(PropertyList, aFileThatIsBeingReadIsNotPassedToAProgramThatStarts)
{
    const TemporaryHome home;
    const std::string fifo = home.path().toStdString() + "/fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), S_IRUSR | S_IWUSR), 0);
    std::string error = "not read";
    std::thread reading([&fifo, &error] {
        error = errorText(PropertyList::load(fifo, PropertyListSource::AnyFile));
    });
    const int writer = ::open(fifo.c_str(), O_WRONLY | O_CLOEXEC);
    // More than a FIFO holds, so that some of it has been read when all of it is written.
    const QByteArray config = sampleConfig() + QByteArray(1 << 20, ' ');
    EXPECT_EQ(::write(writer, config.constData(), static_cast<std::size_t>(config.size())),
        config.size());
    QProcess program;
    program.start(QStringLiteral("ls"), {QStringLiteral("-l"), QStringLiteral("/proc/self/fd")});
    EXPECT_TRUE(program.waitForFinished(kPatience));
    const QByteArray files = program.readAll();
    ::close(writer);
    reading.join();
    EXPECT_EQ(error, "");
    EXPECT_TRUE(files.contains("pipe:")) << files.constData();
    EXPECT_FALSE(files.contains("/fifo")) << files.constData();
}

TEST(PropertyList, aTerminalInItsPlaceDoesNotBecomeThatOfTheProcess)
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (master < 0) {
        GTEST_SKIP() << "there are no terminals here: " << std::system_category().message(errno);
    }
    ASSERT_EQ(::grantpt(master), 0);
    ASSERT_EQ(::unlockpt(master), 0);
    const std::string terminal = ::ptsname(master);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::setsid(); // its first terminal would be that of the new session
        const bool isRefused = !PropertyList::load(terminal);
        ::_exit(isRefused && ::open("/dev/tty", O_RDONLY | O_CLOEXEC) < 0 ? 0 : 1);
    }
    int status = 1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    ::close(master);
}
