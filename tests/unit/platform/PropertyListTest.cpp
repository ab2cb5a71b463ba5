// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyList.h"

#include "SampleConfig.h"
#include "TemporaryHome.h"

#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <clocale>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <limits>
#include <malloc.h>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

using namespace platform;

namespace {

PropertyList parsed(const QByteArray& entries)
{
    PropertyListError error;
    auto list = PropertyList::parse(plist("<dict>" + entries + "</dict>").toStdString(), error);
    EXPECT_TRUE(list) << error.message;
    return list ? std::move(*list) : PropertyList();
}

/** Why a file with these bytes cannot be loaded. */
std::string loadError(const QByteArray& bytes)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, bytes);
    PropertyListError error;
    EXPECT_FALSE(PropertyList::load(path.toStdString(), error));
    EXPECT_FALSE(error.missing);
    EXPECT_EQ(readFile(path), bytes);
    return error.message;
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
    plist_to_bin_free(bytes);
    plist_free(node);
    return binary;
}

/** Why a program's arguments are no list: they are a regular file of no size. */
std::string errorOfArguments(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral("/bin/sh"),
        QStringList{QStringLiteral("-c"), QStringLiteral("echo; read line")} + arguments);
    EXPECT_TRUE(process.waitForReadyRead());
    PropertyListError error;
    EXPECT_FALSE(
        PropertyList::load("/proc/" + std::to_string(process.processId()) + "/cmdline", error));
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
    return error.message;
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
    const PropertyList list = parsed("");
    Dictionary none = list.root().dictionary("none");
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
    PropertyListError error;
    const auto again = PropertyList::parse(list.toXml(), error);
    ASSERT_TRUE(again) << error.message;
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
    // The test would pass with a wrong program where no such locale is there.
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
        << "the locale de_DE.UTF-8 is missing on this machine";
    const PropertyList list = parsed("<key>r</key><real>2.75</real>");
    EXPECT_NE(list.toXml().find("<real>2.75</real>"), std::string::npos) << list.toXml();
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "de_DE.UTF-8");
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%.2f", 2.75);
    EXPECT_STREQ(text.data(), "2,75") << "the host goes on in its own locale";
}

TEST(PropertyList, theBinaryFormIsLoadedAndWrittenAsXml)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, QByteArray::fromStdString(toBinary(sampleConfig())));
    PropertyListError error;
    const auto list = PropertyList::load(path.toStdString(), error);
    ASSERT_TRUE(list) << error.message;
    ASSERT_TRUE(list->save(path.toStdString(), error)) << error.message;
    EXPECT_TRUE(readFile(path).startsWith("<?xml"));
    const auto again = PropertyList::load(path.toStdString(), error);
    ASSERT_TRUE(again) << error.message;
    EXPECT_EQ(again->toXml(), list->toXml());
}

TEST(PropertyList, aMissingFileIsToldFromABrokenOne)
{
    const TemporaryHome home;
    PropertyListError error;
    EXPECT_FALSE(PropertyList::load((home.path() + QStringLiteral("/none")).toStdString(), error));
    EXPECT_TRUE(error.missing);
    EXPECT_FALSE(error.message.empty());
}

TEST(PropertyList, anEmptyFileIsNone)
{
    EXPECT_NE(loadError("").find("does not end"), std::string::npos);
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
    EXPECT_NE(loadError(plist("<array/>")).find("no dictionary"), std::string::npos);
    EXPECT_NE(loadError(plist("<integer>5</integer>")), "");
}

TEST(PropertyList, aFileCutOffAnywhereIsRefusedUnlessNothingButItsFrameIsGone)
{
    const QByteArray whole = sampleConfig();
    const auto root = whole.lastIndexOf("</dict>") + 7;
    const auto frame = root + 8; // </plist>
    for (int length = 0; length < whole.size(); ++length) {
        PropertyListError error;
        const auto list = PropertyList::parse(whole.left(length).toStdString(), error);
        EXPECT_EQ(list.has_value(), length == root || length >= frame) << "cut after " << length;
    }
}

TEST(PropertyList, aBinaryFileCutOffAnywhereIsRefused)
{
    const std::string whole = toBinary(sampleConfig());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        PropertyListError error;
        EXPECT_FALSE(PropertyList::parse(whole.substr(0, length), error)) << length;
    }
}

TEST(PropertyList, aBinaryFileWithAnyByteChangedDoesNoHarm)
{
    const std::string whole = toBinary(sampleConfig());
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const int change : {0x01, 0x10, 0x80, 0xFF}) {
            std::string bytes = whole;
            bytes[at] = static_cast<char>(bytes[at] ^ change);
            PropertyListError error;
            const auto list = PropertyList::parse(bytes, error);
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
    PropertyListError error;
    const auto list = PropertyList::parse(bytes, error);
    ASSERT_TRUE(list) << error.message;
    EXPECT_EQ(list->root().keys(), std::vector<std::string>{"one"});
    EXPECT_EQ(list->root().number("one")->longValue(), 2);
    const auto written = PropertyList::parse(list->toXml(), error);
    ASSERT_TRUE(written) << error.message;
    EXPECT_EQ(written->root().number("one")->longValue(), 2);
}

TEST(PropertyList, aBinaryFileThatIsTooBigInXmlIsRefused)
{
    const std::string bytes = toBinary(plist(
        "<dict><key>data</key><data>" + QByteArray(800'000, 'x').toBase64() + "</data></dict>"));
    ASSERT_LT(bytes.size(), kPropertyListMaxSize);
    PropertyListError error;
    EXPECT_FALSE(PropertyList::parse(bytes, error));
    EXPECT_EQ(error.message, "it is larger than 1048576 bytes");
}

TEST(PropertyList, aFileThatIsTooBigIsRefusedUnread)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/big.plist");
    writeFile(path, sampleConfig());
    ASSERT_EQ(::truncate(path.toStdString().c_str(), 100'000'000), 0);
    PropertyListError error;
    EXPECT_FALSE(PropertyList::load(path.toStdString(), error));
    EXPECT_NE(error.message.find("larger than 1048576 bytes"), std::string::npos);
}

TEST(PropertyList, aFolderAFifoOrADeviceInItsPlaceIsRefusedWithoutWaiting)
{
    const TemporaryHome home;
    const std::string folder = home.path().toStdString();
    const std::string fifo = folder + "/fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), S_IRUSR | S_IWUSR), 0);
    for (const std::string& path : {folder, fifo, std::string("/dev/zero")}) {
        PropertyListError error;
        EXPECT_FALSE(PropertyList::load(path, error)) << path;
        EXPECT_NE(error.message.find("no regular file"), std::string::npos) << error.message;
        EXPECT_FALSE(error.missing);
    }
}

TEST(PropertyList, savingKeepsTheFilesMode)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/list.plist";
    writeFile(QString::fromStdString(path), sampleConfig());
    for (const mode_t mode : {0600U, 0644U, 0664U}) {
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        PropertyListError error;
        const auto list = PropertyList::load(path, error);
        ASSERT_TRUE(list && list->save(path, error)) << error.message;
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
    PropertyListError error;
    const auto list = PropertyList::load(link, error);
    ASSERT_TRUE(list);
    list->root().setString("new", "entry");
    ASSERT_TRUE(list->save(link, error)) << error.message;
    EXPECT_TRUE(QFileInfo(QString::fromStdString(link)).isSymLink());
    EXPECT_TRUE(readFile(QString::fromStdString(real)).contains("<key>new</key>"));
}

TEST(PropertyList, aNewFileIsWrittenOnlyWhereThereIsNone)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/new.plist");
    PropertyList list;
    list.root().addDictionary("Pen").setInteger("Speed", -7);
    PropertyListError error;
    ASSERT_TRUE(list.saveNew(path.toStdString(), error)) << error.message;
    const QByteArray bytes = readFile(path);
    EXPECT_TRUE(bytes.contains("<integer>-7</integer>"));
    list.root().setString("other", "text");
    EXPECT_FALSE(list.saveNew(path.toStdString(), error));
    EXPECT_EQ(readFile(path), bytes);
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST(PropertyList, setsReplacesAndAddsEntries)
{
    const PropertyList list = parsed("<key>a</key><string>x</string><key>b</key><true/>");
    Dictionary root = list.root();
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
    PropertyListError error;
    EXPECT_TRUE(PropertyList::load(path.toStdString(), error)) << error.message;
    bytes.append(' ');
    EXPECT_NE(loadError(bytes).find("larger than 1048576 bytes"), std::string::npos);
    EXPECT_FALSE(PropertyList::parse(bytes.toStdString(), error));
    EXPECT_EQ(error.message, "it is larger than 1048576 bytes");
}

TEST(PropertyList, aFileThatIsLongerThanItSaysIsReadWhole)
{
    // Arguments end with a NUL, of which only somebody knows who has read them whole.
    const std::string error = errorOfArguments({QString::fromUtf8(sampleConfig())});
    EXPECT_NE(error.find("text after the end of the list"), std::string::npos) << error;
}

TEST(PropertyList, aFileThatIsLongerThanItSaysIsRefusedFromTheLimitOn)
{
    QStringList arguments;
    for (int i = 0; i < 11; ++i) {
        arguments += QString(100'000, u'x'); // the longest has 128 KiB
    }
    const std::string error = errorOfArguments(arguments);
    EXPECT_NE(error.find("it is larger than 1048576 bytes"), std::string::npos) << error;
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
    PropertyListError error;
    EXPECT_TRUE(PropertyList::load(path.toStdString(), error));
    EXPECT_FALSE(PropertyList::load(home.path().toStdString(), error));
    EXPECT_EQ(open(), before);
}

TEST(PropertyList, readsAndClosesAFileThatIsItsFirstDescriptor)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, sampleConfig());
    const int input = ::dup(STDIN_FILENO);
    ::close(STDIN_FILENO); // the next file takes its number, 0
    PropertyListError error;
    EXPECT_TRUE(PropertyList::load(path.toStdString(), error)) << error.message;
    EXPECT_EQ(::fcntl(STDIN_FILENO, F_GETFD), -1) << "it is closed";
    if (input >= 0) {
        ::dup2(input, STDIN_FILENO);
        ::close(input);
    }
}

TEST(PropertyList, saysWhyAFileThatOpensCannotBeRead)
{
    // A regular file, by what the system says of it; at its beginning no memory lies.
    const std::string path = "/proc/self/mem";
    PropertyListError error;
    EXPECT_FALSE(PropertyList::load(path, error));
    EXPECT_EQ(error.message, "cannot read " + path + ": " + std::system_category().message(EIO));
    EXPECT_FALSE(error.missing);
}

TEST(PropertyList, keepsNoMemoryOfAListThatHasGone)
{
    const TemporaryHome home;
    const QString path = home.path() + QStringLiteral("/list.plist");
    writeFile(path, sampleConfig());
    const auto readOne = [name = path.toStdString()] {
        PropertyListError error;
        const auto list = PropertyList::load(name, error);
        return list ? list->root().keys().size() + list->toXml().size() : 0;
    };
    EXPECT_GT(readOne(), 0U); // what the first one has made may stay
    constexpr std::size_t kTimes = 100;
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
    PropertyListError error;
    errno = EINTR; // what succeeds leaves it so
    EXPECT_TRUE(PropertyList::load(name, error)) << error.message;
}

TEST(PropertyList, saysWhyNoMoreThanAByteCanBeWritten)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/list.plist";
    auto* const handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit before { };
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit one = before;
    one.rlim_cur = 1;
    PropertyListError error;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &one), 0);
    const bool isSaved = PropertyList().save(path, error);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handlerBefore);
    EXPECT_FALSE(isSaved);
    EXPECT_EQ(error.message, "cannot write " + path + ": " + std::system_category().message(EFBIG));
}

TEST(PropertyList, aNewFileIsItsOwnersAlone)
{
    const TemporaryHome home;
    const std::string path = home.path().toStdString() + "/new.plist";
    PropertyListError error;
    ASSERT_TRUE(PropertyList().saveNew(path, error)) << error.message;
    struct stat status { };
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST(PropertyList, saysWhyANewFileCannotBeMade)
{
    const TemporaryHome home;
    const std::string folder = home.path().toStdString();
    PropertyListError error;
    EXPECT_FALSE(PropertyList().saveNew(folder + "/none/new.plist", error));
    const std::string before = "cannot create " + folder + "/none/new.plist: ";
    EXPECT_TRUE(error.message.starts_with(before)) << error.message;
    EXPECT_GT(error.message.size(), before.size());
    ASSERT_TRUE(PropertyList().saveNew(folder + "/new.plist", error));
    EXPECT_FALSE(PropertyList().saveNew(folder + "/new.plist", error));
    EXPECT_EQ(error.message,
        "cannot create " + folder + "/new.plist: " + std::system_category().message(EEXIST));
}

TEST(PropertyList, setsBooleansAsBooleans)
{
    const PropertyList list;
    list.root().setBoolean("yes", true);
    list.root().setBoolean("no", false);
    const std::string xml = list.toXml();
    EXPECT_NE(xml.find("<key>yes</key>\n\t<true/>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<key>no</key>\n\t<false/>"), std::string::npos) << xml;
}
