// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVConfigStore.h"

#include "ErrorText.h"
#include "FakeDisplays.h"
#include "FakeEvents.h"
#include "FileSizeLimit.h"
#include "Notifications.h"
#include "QVConfigEntry.h"
#include "QVEntryText.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/** Two displays, so that the file's mapped area is kept. */
const std::vector<platform::Rect> kTwoDisplays{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};

class QVConfigStoreFile : public testing::Test {
protected:
    void SetUp() override
    {
        std::strcpy(GetPListName(), "7.plist");
        writeFile(mPath, sampleConfig());
    }

    /** Loads the file. @return the log */
    std::string read()
    {
        testing::internal::CaptureStderr();
        mStore.ReadQVConfigPlist();
        return testing::internal::GetCapturedStderr();
    }

    std::string write()
    {
        testing::internal::CaptureStderr();
        mStore.WriteQVConfigPlist();
        return testing::internal::GetCapturedStderr();
    }

    std::int64_t numberInFile(const char* section, const char* key)
    {
        const auto list = platform::PropertyList::load(mPath.toStdString());
        EXPECT_TRUE(list) << errorText(list);
        const auto number = list->root().dictionary(section).number(key);
        EXPECT_TRUE(number) << section << '/' << key;
        return number ? number->longValue() : 0;
    }

    TemporaryHome mHome;
    QString mPath = mHome.configFile(7);
    FakeDisplays mDisplays{kTwoDisplays};
    QVConfigStore mStore;
};

int countOf(const std::string& text, const std::string& part)
{
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

} // namespace

TEST_F(QVConfigStoreFile, liesInTheUsersLibrary)
{
    EXPECT_EQ(QVConfigStore::configPath(),
        mHome.path().toStdString() + "/Library/Preferences/QuorviaTablet/config/7.plist");
}

TEST_F(QVConfigStoreFile, isTheFolderItselfWhileThereIsNoName)
{
    *GetPListName() = '\0';
    EXPECT_EQ(QVConfigStore::configPath(),
        mHome.path().toStdString() + "/Library/Preferences/QuorviaTablet/config/");
    EXPECT_EQ(read(), "") << "it is a missing file, and those are not logged";
    EXPECT_EQ(write(), "");
    EXPECT_TRUE(sameBytes(qvTabletInfo, {}));
    EXPECT_EQ(readFile(mPath), sampleConfig());
}

TEST_F(QVConfigStoreFile, loadsEveryEntryIntoItsField)
{
    EXPECT_EQ(read(), "");
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
}

TEST_F(QVConfigStoreFile, keepsTheFilesMappedAreaWithTwoDisplays)
{
    writeFile(mPath,
        plist("<dict><key>Monitor</key><dict><key>XOrg</key><integer>100</integer>"
              "<key>Width</key><integer>200</integer></dict></dict>"));
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 100);
    EXPECT_EQ(+qvTabletInfo.Monitor.Width, 200);
}

TEST_F(QVConfigStoreFile, mapsTheOneDisplayWhateverTheFileSays)
{
    const FakeDisplays one({{-1.9, 2.9, 1366.9, 768.2}});
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, -1);
    EXPECT_EQ(+qvTabletInfo.Monitor.Width, 1366);
    EXPECT_EQ(+qvTabletInfo.Monitor.YOrg, 2);
    EXPECT_EQ(+qvTabletInfo.Monitor.Height, 768);
    EXPECT_EQ(+qvTabletInfo.Monitor.cTabletXmin, 22);
}

TEST_F(QVConfigStoreFile, countsOneDisplayWhenTheWindowSystemDoesNotTell)
{
    FakeDisplays displays({{5, 6, 70, 80}, {0, 0, 1, 1}});
    displays.failCount = true;
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 5);
    EXPECT_EQ(+qvTabletInfo.Monitor.Height, 80);
}

TEST_F(QVConfigStoreFile, keepsTheFilesMappedAreaWhenTheDisplayCannotBeFetched)
{
    FakeDisplays displays({{5, 6, 70, 80}});
    displays.failList = true;
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 18);
    const FakeDisplays none({});
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 18);
}

TEST_F(QVConfigStoreFile, leavesTheMappedAreaAloneWithoutAMonitorSection)
{
    const FakeDisplays one({{5, 6, 70, 80}});
    qvTabletInfo.Monitor.XOrg = 1234;
    writeFile(mPath, plist("<dict><key>Pen</key><dict/></dict>"));
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 1234);
    writeFile(mPath, plist("<dict><key>Monitor</key><string>x</string></dict>"));
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 1234);
}

TEST_F(QVConfigStoreFile, leavesTheFieldsOfAMissingTabletSection)
{
    writeFile(mPath,
        plist("<dict><key>Pen</key><dict><key>Speed</key><integer>9</integer></dict>"
              "</dict>"));
    read();
    const tagQVTabletInfoBasic zero{};
    EXPECT_EQ(std::memcmp(&qvTabletInfo.Basic, &zero, sizeof zero), 0);
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 9);

    writeFile(mPath, sampleConfig());
    read();
    writeFile(mPath, plist("<dict/>"));
    read();
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
}

TEST_F(QVConfigStoreFile, keepsSlot17WhenTheFileLacksPenKeyL)
{
    QByteArray config = sampleConfig();
    const auto from = config.indexOf("<key>penKeyL</key>");
    const auto to = config.indexOf("</dict>", from) + 7;
    config.remove(from, to - from);
    writeFile(mPath, config);
    qvTabletInfo.Key.SubKey[17].Valid = 77;
    read();
    EXPECT_EQ(+qvTabletInfo.Key.SubKey[17].Valid, 77);
    EXPECT_EQ(+qvTabletInfo.Key.SubKey[16].Valid, 116);
    write();
    EXPECT_FALSE(readFile(mPath).contains("penKeyL"));
}

TEST_F(QVConfigStoreFile, storesACTabletXmaxOf40000AsMinus25536AndReadsItBack)
{
    read();
    qvTabletInfo.Monitor.cTabletXmax = 40000;
    write();
    EXPECT_EQ(numberInFile("Monitor", "cTabletXmax"), -25536);
    qvTabletInfo.Monitor.cTabletXmax = 0;
    read();
    EXPECT_EQ(+qvTabletInfo.Monitor.cTabletXmax, 40000);
}

TEST_F(QVConfigStoreFile, loadsAKeyBeyond32BitsByItsLowBitsAndSavesThose)
{
    writeFile(mPath,
        plist("<dict><key>Key</key><dict><key>Key3</key><dict><key>Key</key>"
              "<integer>4294967301</integer></dict></dict></dict>"));
    read();
    EXPECT_EQ(+qvTabletInfo.Key.SubKey[3].Key, 5U);
    write();
    EXPECT_TRUE(readFile(mPath).contains("<integer>5</integer>"));
    EXPECT_FALSE(readFile(mPath).contains("4294967301"));
}

TEST_F(QVConfigStoreFile, savesEveryFieldOfTheThreeSectionsAndNothingOfTheTablet)
{
    const tagQVTabletInfo sample = sampleRecord();
    qvTabletInfo = sample;
    // Every field that has an entry gets a unique value that is not in the file.
    int number = -10'000;
    for (const QVEntry& entry : kQVEntries) {
        std::byte* const to = reinterpret_cast<std::byte*>(&qvTabletInfo) + entry.offset;
        const auto value = static_cast<std::int16_t>(++number);
        if (entry.type == QVFieldType::String) {
            std::strcpy(reinterpret_cast<char*>(to), ("/opt/" + std::to_string(number)).c_str());
        } else if (entry.type == QVFieldType::UInt32) {
            const std::uint32_t wide = 0xFFFF0000U | static_cast<std::uint16_t>(value);
            std::memcpy(to, &wide, sizeof wide);
        } else if (entry.type == QVFieldType::Boolean) {
            *to = std::byte{0};
        } else {
            std::memcpy(to, &value, sizeof value);
        }
    }
    EXPECT_EQ(write(), "");

    const auto list = platform::PropertyList::load(mPath.toStdString());
    ASSERT_TRUE(list) << errorText(list);
    int saved = 0;
    for (const QVEntry& entry : kQVEntries) {
        const std::string path = QVEntryPath(entry);
        const platform::Dictionary dictionary = QVEntryDictionary(list->root(), entry);
        const bool isTablet = entry.section == &kQVTabletSection;
        saved += isTablet ? 0 : 1;
        const tagQVTabletInfo& record = isTablet ? sample : qvTabletInfo;
        if (entry.type == QVFieldType::String) {
            EXPECT_EQ(dictionary.string(entry.key), QVFieldText(entry, record)) << path;
        } else if (entry.type == QVFieldType::UInt16 && !isTablet) {
            EXPECT_EQ(dictionary.number(entry.key)->longValue(),
                static_cast<std::int16_t>(QVFieldNumber(entry, record)))
                << path;
        } else {
            EXPECT_EQ(dictionary.number(entry.key)->longValue(), QVFieldNumber(entry, record))
                << path;
        }
    }
    EXPECT_EQ(saved, 89);
}

TEST_F(QVConfigStoreFile, aPartialTabletSectionStaysPartial)
{
    QByteArray config = sampleConfig();
    const auto from = config.indexOf("<key>Tablet</key>");
    const auto to = config.indexOf("</dict>", from) + 7;
    config.replace(
        from, to - from, "<key>Tablet</key><dict><key>KeyNum</key><integer>0x8</integer></dict>");
    writeFile(mPath, config);
    read();
    qvTabletInfo.Basic.KeyNum = 3;
    write();
    const QByteArray saved = readFile(mPath);
    EXPECT_TRUE(saved.contains("<key>KeyNum</key>\n\t\t<integer>0x8</integer>\n\t</dict>"))
        << saved.toStdString();
    for (const char* const absent : {">VendorID", ">ProductID", ">TabletXmax", ">UpdateFilename"}) {
        EXPECT_FALSE(saved.contains(absent)) << absent;
    }
}

TEST_F(QVConfigStoreFile, writingNeverAddsSectionsOrSlots)
{
    writeFile(mPath, plist("<dict><key>Pen</key><dict/></dict>"));
    write();
    const QByteArray saved = readFile(mPath);
    for (const char* const absent : {"Tablet", "Monitor", "<key>Key", "Key0"}) {
        EXPECT_FALSE(saved.contains(absent)) << absent;
    }
    EXPECT_TRUE(saved.contains("<key>PressureThreshold</key>"));
    EXPECT_TRUE(saved.contains("<key>Speed</key>"));
}

TEST_F(QVConfigStoreFile, whatThePanelDoesNotKnowSurvivesASave)
{
    QByteArray config = sampleConfig();
    config.replace("<key>Pen</key><dict>",
        "<key>Future</key><dict><key>a</key><real>0.1</real></dict>"
        "<key>Pen</key><dict><key>Tilt</key><array><integer>1</integer></array>");
    config.replace(
        "<key>Key4</key><dict>", "<key>Key4</key><dict><key>Colour</key><data>AQI=</data>");
    writeFile(mPath, config);
    read();
    write();
    const auto list = platform::PropertyList::load(mPath.toStdString());
    ASSERT_TRUE(list);
    const platform::Dictionary root = list->root();
    EXPECT_TRUE(root.dictionary("Future").number("a"));
    EXPECT_EQ(root.dictionary("Pen").kind("Tilt"), platform::EntryKind::Array);
    EXPECT_EQ(root.dictionary("Key").dictionary("Key4").kind("Colour"), platform::EntryKind::Data);
}

TEST_F(QVConfigStoreFile, isNeverCreated)
{
    ASSERT_TRUE(QFile::remove(mPath));
    EXPECT_EQ(read(), "");
    EXPECT_EQ(write(), "");
    EXPECT_FALSE(QFile::exists(mPath));
    EXPECT_TRUE(mHome.configFolder().isEmpty());
}

TEST_F(QVConfigStoreFile, isLeftAloneWithTheRecordWhenItIsUnusable)
{
    read();
    std::string deep = "<plist><dict><key>Pen</key>";
    for (int i = 0; i < 100'000; ++i) {
        deep += "<array>";
    }
    const QByteArray truncated = sampleConfig().left(2000);
    for (const QByteArray& bytes : {QByteArray(), QByteArray("no list"), truncated,
             QByteArray::fromStdString(deep), plist("<array/>"),
             plist("<dict><key>Pen</key><dict><key>Speed</key>"
                   "<integer>99999999999999999999</integer></dict></dict>")}) {
        writeFile(mPath, bytes);
        EXPECT_NE(read().find("7.plist"), std::string::npos) << "the log must name the file";
        EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
        EXPECT_NE(write(), "");
        EXPECT_EQ(readFile(mPath), bytes);
    }
    EXPECT_EQ(mHome.configFolder().entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(QVConfigStoreFile, ofAHundredMegabytesIsLeftAlone)
{
    ASSERT_EQ(::truncate(mPath.toStdString().c_str(), 100'000'000), 0);
    EXPECT_NE(read().find("larger than"), std::string::npos);
    write();
    EXPECT_EQ(QFileInfo(mPath).size(), 100'000'000);
    EXPECT_TRUE(sameBytes(qvTabletInfo, {}));
}

TEST_F(QVConfigStoreFile, replacedByAFolderOrAFifoIsLeftAlone)
{
    ASSERT_TRUE(QFile::remove(mPath));
    ASSERT_EQ(::mkfifo(mPath.toStdString().c_str(), S_IRUSR | S_IWUSR), 0);
    read();
    write();
    struct stat status { };
    ASSERT_EQ(::stat(mPath.toStdString().c_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
    ASSERT_TRUE(QFile::remove(mPath));
    ASSERT_TRUE(QDir().mkdir(mPath));
    EXPECT_NE(read(), "");
    write();
    EXPECT_TRUE(QFileInfo(mPath).isDir());
    EXPECT_TRUE(sameBytes(qvTabletInfo, {}));
}

TEST_F(QVConfigStoreFile, skipsAndLogsOnceEachEntryOfTheWrongType)
{
    for (const char* const wrong :
        {"<array/>", "<data>AQI=</data>", "<dict/>", "<date>2026-11-21T00:00:00Z</date>"}) {
        qvTabletInfo = {};
        QByteArray config = sampleConfig();
        // Change every number and every string of the sample.
        for (const char* const tag : {"integer", "string"}) {
            const QByteArray begin = QByteArray("<") + tag + ">";
            const QByteArray end = QByteArray("</") + tag + ">";
            for (auto at = config.indexOf(begin); at >= 0; at = config.indexOf(begin, at)) {
                const auto to = config.indexOf(end, at) + end.size();
                config.replace(at, to - at, wrong);
            }
        }
        config.replace("<true/>", wrong);
        writeFile(mPath, config);
        const std::string log = read();
        EXPECT_TRUE(sameBytes(qvTabletInfo, {})) << wrong;
        EXPECT_EQ(countOf(log, "skipped "), 13 + 2 + 12 + 3 + 18 * 4) << wrong;
        EXPECT_EQ(countOf(log, "skipped XOrg of Monitor:"), 1) << log;
        EXPECT_EQ(countOf(log, "skipped App of penKeyU:"), 1) << log;
    }
}

TEST_F(QVConfigStoreFile, skipsStringsWhereNumbersBelongAndNumbersWhereStringsBelong)
{
    writeFile(mPath,
        plist("<dict><key>Tablet</key><dict><key>VendorID</key><string>5</string>"
              "<key>UpdateFilename</key><integer>5</integer></dict>"
              "<key>Key</key><dict><key>Key0</key><string>x</string></dict>"
              "<key>Pen</key><array/></dict>"));
    const std::string log = read();
    EXPECT_TRUE(sameBytes(qvTabletInfo, {}));
    EXPECT_NE(
        log.find("skipped VendorID of Tablet: a string instead of a number"), std::string::npos)
        << log;
    EXPECT_NE(log.find("skipped UpdateFilename of Tablet: a number instead of a string"),
        std::string::npos)
        << log;
    EXPECT_EQ(countOf(log, "skipped Key0: a string instead of a dictionary"), 1);
    EXPECT_EQ(countOf(log, "skipped Pen: an array instead of a dictionary"), 1);
}

TEST_F(QVConfigStoreFile, takesRealsAndBooleansByTheirValue)
{
    writeFile(mPath,
        plist("<dict><key>Pen</key><dict><key>PressureThreshold</key><real>37.9</real>"
              "<key>Speed</key><true/></dict></dict>"));
    EXPECT_EQ(read(), "");
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 37);
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 1);
}

TEST_F(QVConfigStoreFile, leavesAnUpdateFilenameThatDoesNotFitAsItWas)
{
    read();
    for (const QByteArray& name :
        {QByteArray(256, 'x'), QByteArray(10'000, 'x'), QByteArray("caf\xC3\xA9")}) {
        writeFile(mPath,
            plist("<dict><key>Tablet</key><dict><key>UpdateFilename</key><string>" + name
                + "</string></dict></dict>"));
        EXPECT_EQ(countOf(read(),
                      "skipped UpdateFilename of Tablet: longer than 255 characters, or not ASCII"),
            1);
        EXPECT_STREQ(qvTabletInfo.Basic.UpdateFilename.data(), "update.bin");
    }
}

TEST_F(QVConfigStoreFile, keepsAnAppThatCannotBeWritten)
{
    read();
    qvTabletInfo.Key.SubKey[2].App[0] = '\xE9';
    const std::string log = write();
    EXPECT_EQ(countOf(log, "kept the old App of Key2"), 1) << log;
    EXPECT_TRUE(readFile(mPath).contains("<string>/app/2</string>"));
}

TEST_F(QVConfigStoreFile, copiesASingleSlotEitherWay)
{
    platform::PropertyList list;
    const platform::MutableDictionary object = list.root().addDictionary("slot");
    object.setInteger("Valid", 2);
    object.setString("App", "/bin/true");
    mStore.GetSubKeyInfo(16, object);
    EXPECT_EQ(+qvTabletInfo.Key.SubKey[16].Valid, 2);
    EXPECT_STREQ(qvTabletInfo.Key.SubKey[16].App.data(), "/bin/true");

    qvTabletInfo.Key.SubKey[16].Key = 0x03063836;
    qvTabletInfo.Key.SubKey[16].Mouse = -2;
    mStore.SetSubKeyInfo(16, object);
    EXPECT_EQ(object.number("Key")->longValue(), 0x03063836);
    EXPECT_EQ(object.number("Mouse")->longValue(), -2);
    EXPECT_EQ(object.keys().size(), 4U);
}

TEST_F(QVConfigStoreFile, hasNoSlotsBut0To17)
{
    read();
    platform::PropertyList list;
    const platform::MutableDictionary object = list.root().addDictionary("slot");
    object.setInteger("Valid", 2);
    for (const std::int32_t i : {-1, 18, 1'000'000, std::numeric_limits<std::int32_t>::min()}) {
        testing::internal::CaptureStderr();
        mStore.GetSubKeyInfo(i, object);
        mStore.SetSubKeyInfo(i, object);
        EXPECT_EQ(countOf(testing::internal::GetCapturedStderr(),
                      "there is no key slot " + std::to_string(i)),
            2);
    }
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
    EXPECT_EQ(object.keys(), std::vector<std::string>{"Valid"});
}

TEST_F(QVConfigStoreFile, isFoundByANameOfAnyLengthInItsBuffer)
{
    std::memset(GetPListName(), 'n', kQVListNameSize - 1);
    EXPECT_EQ(QVConfigStore::configPath(),
        mHome.configFolder().path().toStdString() + '/' + std::string(kQVListNameSize - 1, 'n'));
}

TEST_F(QVConfigStoreFile, tellsWhoeverListensWhatBecameOfEachLoadAndSave)
{
    std::vector<std::string> told;
    const QObject observer;
    for (const QLatin1String name : {kConfigLoadedNotification, kConfigNotLoadedNotification,
             kConfigSavedNotification, kConfigNotSavedNotification}) {
        platform::notifications().addObserver(
            observer, name, [&told](const platform::Notification& notification) {
                told.push_back(
                    notification.name.toStdString() + ": " + notification.text.toStdString());
            });
    }
    const auto loadAndSave = [&] {
        told.clear();
        read();
        write();
        return told;
    };
    using Told = std::vector<std::string>;
    const std::string path = mPath.toStdString();
    const std::string notLoaded = "kConfigNotLoadedNotification: ";
    const std::string notSaved = "kConfigNotSavedNotification: ";
    EXPECT_EQ(loadAndSave(), (Told{"kConfigLoadedNotification: ", "kConfigSavedNotification: "}));

    writeFile(mPath, "hello");
    const std::string broken = "cannot use " + path + ": ";
    EXPECT_TRUE(loadAndSave().at(0).starts_with(notLoaded + broken)) << told.at(0);
    EXPECT_TRUE(told.at(1).starts_with(notSaved + broken)) << told.at(1);
    EXPECT_EQ(told.size(), 2U);

    ASSERT_TRUE(QFile::remove(mPath));
    const std::string missing = "cannot read " + path + ": " + std::strerror(ENOENT);
    EXPECT_EQ(loadAndSave(), (Told{notLoaded + missing, notSaved + missing}));

    *GetPListName() = '\0';
    const std::string nameless = "the driver has not given the name of a configuration file";
    EXPECT_EQ(loadAndSave(), (Told{notLoaded + nameless, notSaved + nameless}));
}

TEST_F(QVConfigStoreFile, holdsNothingUnsavedWhenItIsLoadedOrSaved)
{
    read();
    EXPECT_FALSE(mStore.hasUnsavedFields());
    qvTabletInfo.Pen.PressureThreshold = 5;
    EXPECT_TRUE(mStore.hasUnsavedFields());
    write();
    EXPECT_FALSE(mStore.hasUnsavedFields());
    qvTabletInfo.Pen.PressureThreshold = 6;
    EXPECT_TRUE(mStore.hasUnsavedFields());
    read();
    EXPECT_FALSE(mStore.hasUnsavedFields());
}

TEST_F(QVConfigStoreFile, tellsOfEachFieldThatTheUserChoosesAndOfNoOther)
{
    read();
    int chosen = 0;
    const std::set<std::string> notChosen{
        "Monitor/disableFlag", "Monitor/XOrg", "Monitor/YOrg", "Monitor/Width", "Monitor/Height"};
    for (const QVEntry& entry : kQVEntries) {
        const std::string path = QVEntryPath(entry);
        const bool isChosen = !path.starts_with("Tablet/") && !notChosen.contains(path);
        chosen += isChosen ? 1 : 0;
        char* const byte = reinterpret_cast<char*>(&qvTabletInfo) + entry.offset;
        const char before = *byte;
        *byte = static_cast<char>(before ^ 1);
        EXPECT_EQ(mStore.hasUnsavedFields(), isChosen) << path;
        *byte = before;
        EXPECT_FALSE(mStore.hasUnsavedFields());
    }
    EXPECT_EQ(chosen, 2 + 7 + 3 + 18 * 4);
}

TEST_F(QVConfigStoreFile, savesASingleEntryAndNothingElse)
{
    read();
    const std::int64_t threshold = numberInFile("Pen", "PressureThreshold");
    qvTabletInfo.Pen.PressureThreshold = static_cast<std::int16_t>(threshold + 1);
    qvTabletInfo.Pen.Speed = 77;
    EXPECT_TRUE(mStore.saveEntry(**findSetting(QStringLiteral("Pen/Speed"))));
    EXPECT_EQ(numberInFile("Pen", "Speed"), 77);
    EXPECT_EQ(numberInFile("Pen", "PressureThreshold"), threshold);
    EXPECT_TRUE(mStore.hasUnsavedFields()) << "the threshold";
}

TEST_F(QVConfigStoreFile, savesNoEntryWithoutItsDictionaryOrAFile)
{
    read();
    const QVEntry& entry = **findSetting(QStringLiteral("Pen/Speed"));
    QByteArray withoutPen = sampleConfig();
    withoutPen.replace("<key>Pen</key>", "<key>Pencil</key>");
    writeFile(mPath, withoutPen);
    EXPECT_EQ(
        errorText(mStore.saveEntry(entry)), "the tablet's file has no dictionary for Pen/Speed");
    EXPECT_EQ(readFile(mPath), withoutPen);
    EXPECT_TRUE(QFile::remove(mPath));
    EXPECT_FALSE(mStore.saveEntry(entry));
    EXPECT_FALSE(QFile::exists(mPath));
}

TEST_F(QVConfigStoreFile, holdsUnsavedFieldsAsLongAsTheFileCannotBeSaved)
{
    read();
    qvTabletInfo.Pen.PressureThreshold = 5;
    ASSERT_EQ(::unlink(mPath.toUtf8().constData()), 0);
    write();
    EXPECT_TRUE(mStore.hasUnsavedFields());
    read();
    EXPECT_TRUE(mStore.hasUnsavedFields()) << "what is not there cannot be gone back to";
}

TEST_F(QVConfigStoreFile, holdsNothingUnsavedOnceItsOnlyEditWasSavedAlone)
{
    read();
    qvTabletInfo.Pen.Speed = 77;
    const QVEntry& entry = **findSetting(QStringLiteral("Pen/Speed"));
    {
        const FileSizeLimit limit(1);
        EXPECT_FALSE(mStore.saveEntry(entry));
    }
    EXPECT_TRUE(mStore.hasUnsavedFields());
    EXPECT_TRUE(mStore.saveEntry(entry));
    EXPECT_FALSE(mStore.hasUnsavedFields());
}

TEST_F(QVConfigStoreFile, comparesWithWhatAnotherHasSavedAndKeepsItsOwnEdits)
{
    read();
    qvTabletInfo.Pen.PressureThreshold = 5;
    QVConfigStore other;
    other.WriteQVConfigPlist();
    EXPECT_TRUE(mStore.hasUnsavedFields());
    mStore.noteSaved();
    EXPECT_FALSE(mStore.hasUnsavedFields());
    qvTabletInfo.Pen.PressureThreshold = 6;
    mStore.noteSaved();
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 6);
    EXPECT_TRUE(mStore.hasUnsavedFields());
    ASSERT_TRUE(QFile::remove(mPath));
    qvTabletInfo.Pen.PressureThreshold = 5;
    mStore.noteSaved();
    EXPECT_FALSE(mStore.hasUnsavedFields()) << "as in the file that there was";
}

TEST_F(QVConfigStoreFile, isThatOfTheTabletThatTheDriverNames)
{
    FakeEvents driver;
    driver.sendResult = platform::errAETimeout;
    *GetPListName() = '\0';
    EXPECT_EQ(errorText(mStore.loadAttachedTablet()), "the driver does not answer");
    driver.sendResult = platform::noErr;
    driver.answer(0);
    EXPECT_EQ(errorText(mStore.loadAttachedTablet()), "no tablet is attached");
    driver.answer(8);
    QByteArray config = sampleConfig();
    config.replace(
        "<key>VendorID</key>", "<key>Name</key><string>Pen \xC3\x89</string><key>VendorID</key>");
    writeFile(mHome.configFile(8), config);
    EXPECT_EQ(errorText(mStore.loadAttachedTablet()), "");
    EXPECT_EQ(mStore.tabletName(), QString::fromUtf8("Pen \xC3\x89"));
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
    driver.answer(7);
    EXPECT_EQ(errorText(mStore.loadAttachedTablet()), "");
    EXPECT_EQ(mStore.tabletName(), QString()) << "a file without a name";
}
