// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfile.h"

#include "QVProfileFolder.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

/** A profile of the sample's tablet, product 2. */
QVProfile sample(const QString& name)
{
    return QVProfileOf(sampleRecord(), name);
}

QStringList namesIn(const QVProfileFolder& folder)
{
    QStringList names;
    const auto items = folder.list();
    for (const QVProfileFolder::Item& item : items) {
        names.append(item.name);
    }
    return names;
}

/** The language of the user, for its lifetime. */
class UserLanguage {
public:
    explicit UserLanguage(QLocale::Language language) { QLocale::setDefault(QLocale(language)); }
    ~UserLanguage() { QLocale::setDefault(mBefore); }

private:
    QLocale mBefore;
};

/** Notes which files of a folder are opened, from its construction on. */
class OpenedFiles {
public:
    explicit OpenedFiles(const QString& folder)
        : mNotices(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(::inotify_add_watch(mNotices, qPrintable(folder), IN_OPEN), 0);
    }
    ~OpenedFiles() { ::close(mNotices); }

    /** Their names, without the folder itself. */
    QStringList names()
    {
        QStringList names;
        std::array<char, 4096> bytes{};
        for (ssize_t size = 0; (size = ::read(mNotices, bytes.data(), bytes.size())) > 0;) {
            for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
                inotify_event notice{};
                std::memcpy(&notice, &bytes.at(at), sizeof notice);
                at += sizeof notice;
                if (notice.len > 0) {
                    names.append(QString::fromUtf8(&bytes.at(at))); // with NULs up to its length
                }
                at += notice.len;
            }
        }
        names.removeDuplicates();
        return names;
    }

private:
    int mNotices;
};

class Profiles : public testing::Test {
protected:
    /** Writes a file into the folder, as if it were copied there. */
    void copy(const QString& file, const QString& name, std::int16_t speed)
    {
        QVProfile profile = sample(name);
        profile.settings.Pen.Speed = speed;
        QDir().mkpath(mFolder.path());
        const QString path = QDir(mFolder.path()).filePath(file);
        ASSERT_TRUE(QVWriteProfile(profile).saveNew(path.toStdString()));
    }

    QString entryOf(const QString& slug) const
    {
        return mHome.path()
            + QStringLiteral("/.local/share/applications/org.quorvia.profile-2-%1.desktop")
                  .arg(slug);
    }

    TemporaryHome mHome;
    QVProfileFolder mFolder{2};
};

} // namespace

TEST(Profile, hasAllThatThePanelSavesButTheCalibrationFlag)
{
    QVProfile profile = sample(QStringLiteral("Painting"));
    EXPECT_EQ(profile.productID, 2);
    tagQVTabletInfo record{};
    record.Monitor.disableFlag = 1;
    QVApplyProfile(profile, record);
    tagQVTabletInfo expected = sampleRecord();
    expected.Basic = {};
    expected.Monitor.disableFlag = 1;
    EXPECT_TRUE(sameBytes(record, expected));
}

TEST(Profile, isTheSameAfterItsFile)
{
    QVProfile profile = sample(QStringLiteral("Painting & \"3D\" <ö>"));
    profile.applications = QStringList{QStringLiteral("org.example.Paint"), QStringLiteral("ö")};
    const auto read = QVReadProfile(QVWriteProfile(profile));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->name, profile.name);
    EXPECT_EQ(read->productID, profile.productID);
    EXPECT_EQ(read->applications, profile.applications);
    EXPECT_EQ(read->present, profile.present);
    EXPECT_TRUE(sameBytes(read->settings, profile.settings));
    EXPECT_EQ(QVWriteProfile(profile).root().dictionary("Monitor").kind("disableFlag"),
        platform::EntryKind::Absent);
    EXPECT_EQ(QVWriteProfile(profile).root().dictionary("Tablet").exists(), false);
}

TEST(Profile, keepsTheValuesOfEntriesThatItsFileLacks)
{
    platform::PropertyList list = QVWriteProfile(sample(QStringLiteral("A")));
    list.root().addDictionary("Pen").setString("Speed", "fast");
    const auto read = QVReadProfile(list);
    ASSERT_TRUE(read);
    tagQVTabletInfo record{};
    record.Pen = {150, 3};
    QVApplyProfile(*read, record);
    EXPECT_EQ(+record.Pen.PressureThreshold, 150);
    EXPECT_EQ(+record.Pen.Speed, 3);
    EXPECT_EQ(+record.Monitor.num, 14);
}

TEST(Profile, isNotReadFromAnythingElse)
{
    const auto why = [](const auto& change) {
        platform::PropertyList list = QVWriteProfile(sample(QStringLiteral("A")));
        change(list.root());
        const auto read = QVReadProfile(list);
        return read ? std::string() : read.error().text.toStdString();
    };
    EXPECT_EQ(why([](const auto&) {}), "");
    EXPECT_EQ(why([](const auto& root) { root.setInteger("FormatVersion", 2); }),
        "The file is a profile of an unsupported version.");
    EXPECT_EQ(why([](const auto& root) { root.setString("FormatVersion", "1"); }),
        "The file is not a profile.");
    EXPECT_EQ(why([](const auto& root) { root.setString("ProductID", "1"); }),
        "The file is not a profile.");
    EXPECT_EQ(
        why([](const auto& root) { root.setString("Name", " "); }), "A profile needs a name.");
    EXPECT_EQ(why([](const auto& root) { root.setInteger("Name", 5); }), "A profile needs a name.");
    EXPECT_FALSE(QVReadProfile(platform::PropertyList()));
}

TEST(Profile, hasANameOfUpTo64Characters)
{
    EXPECT_TRUE(QVProfileNameFault(QString(64, u'ö')).isEmpty());
    EXPECT_FALSE(QVProfileNameFault(QString(65, u'a')).isEmpty());
    QString pens;
    for (int i = 0; i < 64; ++i) {
        pens += QStringLiteral("🖊");
    }
    EXPECT_TRUE(QVProfileNameFault(pens).isEmpty());
    EXPECT_FALSE(QVProfileNameFault(pens + u'a').isEmpty());
    EXPECT_FALSE(QVProfileNameFault(QString()).isEmpty());
    EXPECT_FALSE(QVProfileNameFault(QStringLiteral("two\nlines")).isEmpty());
    EXPECT_FALSE(QVProfileNameFault(QString(QChar(0xD800))).isEmpty());
}

TEST(Profile, takesWhatDoesNotFitAsAConfigurationFileDoes)
{
    platform::PropertyList list = QVWriteProfile(sample(QStringLiteral("A")));
    list.root().dictionary("Pen").setInteger("Speed", 0x10007);
    const auto read = QVReadProfile(list);
    ASSERT_TRUE(read);
    tagQVTabletInfo record{};
    QVApplyProfile(*read, record);
    EXPECT_EQ(+record.Pen.Speed, 7);
}

TEST(Profile, hasOnlyApplicationsThatThereCanBe)
{
    platform::PropertyList list = QVWriteProfile(sample(QStringLiteral("A")));
    const std::string longest(255, 'a');
    list.root().setStrings("Applications", {"", longest + 'a', "two\nlines", longest, "b", "b"});
    EXPECT_EQ(QVReadProfile(list)->applications,
        (QStringList{QString::fromStdString(longest), QStringLiteral("b")}));
    list.root().setString("Applications", "app");
    EXPECT_TRUE(QVReadProfile(list)->applications.isEmpty());
}

TEST(Profile, hasUpTo100Applications)
{
    std::vector<std::string> names;
    for (int i = 0; i < 101; ++i) {
        names.push_back("app" + std::to_string(i));
    }
    platform::PropertyList list = QVWriteProfile(sample(QStringLiteral("A")));
    list.root().setStrings("Applications", names);
    const QStringList read = QVReadProfile(list)->applications;
    EXPECT_EQ(read.size(), 100);
    EXPECT_EQ(read.constLast(), QStringLiteral("app99"));
}

TEST_F(Profiles, areListedByName)
{
    EXPECT_EQ(namesIn(mFolder), QStringList());
    for (const char* const name : {"beta", "Alpha", "Ünder", "../../x", "..."}) {
        ASSERT_TRUE(mFolder.save(sample(QString::fromUtf8(name)))) << name;
    }
    QStringList names = namesIn(mFolder);
    names.sort();
    QStringList expected{QStringLiteral("../../x"), QStringLiteral("..."), QStringLiteral("Alpha"),
        QStringLiteral("beta"), QString::fromUtf8("Ünder")};
    expected.sort();
    EXPECT_EQ(names, expected);
    // All files are in the folder, with names of their own.
    QStringList files = QDir(mFolder.path()).entryList(QDir::Files);
    files.sort();
    EXPECT_EQ(files.join(u' '),
        QStringLiteral("alpha.plist beta.plist profile.plist under.plist x.plist"));
    EXPECT_EQ(QVProfileFolder(3).list().size(), 0U) << "another tablet's";
}

TEST_F(Profiles, areInTheOrderOfTheUsersLanguage)
{
    const UserLanguage german(QLocale::German);
    const QStringList expected{QStringLiteral("alpha"), QString::fromUtf8("Ämter"),
        QStringLiteral("Beta"), QStringLiteral("zeta")};
    for (const QString& name : expected) {
        ASSERT_TRUE(mFolder.save(sample(name)));
    }
    EXPECT_EQ(namesIn(mFolder), expected);
}

TEST_F(Profiles, haveShortFileNamesOfPlainLetters)
{
    const std::array<std::pair<QString, QString>, 4> names{{
        {QStringLiteral("AB yz, 0189!"), QStringLiteral("ab-yz-0189")},
        {QString::fromUtf8("«Été» – 3D"), QStringLiteral("ete-3d")},
        {QString(39, u'x') + QStringLiteral(" y"), QString(39, u'x')},
        // Without a limit, its file name would be too long for a disk.
        {QString(64, QChar(0x3389)), QStringLiteral("kcal").repeated(10)},
    }};
    QStringList files;
    for (const auto& [name, file] : names) {
        ASSERT_TRUE(mFolder.save(sample(name)));
        files.append(file + QStringLiteral(".plist"));
    }
    files.sort();
    EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files, QDir::Name), files);
}

TEST_F(Profiles, haveFilesThatOnlyTheirUserCanRead)
{
    ASSERT_TRUE(mFolder.save(sample(QStringLiteral("A"))));
    for (int time = 0; time < 2; ++time) {
        struct stat status { };
        ASSERT_EQ(::stat(qPrintable(mFolder.path() + QStringLiteral("/a.plist")), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0600U);
        ASSERT_TRUE(mFolder.save(sample(QStringLiteral("A"))));
    }
}

TEST_F(Profiles, whoseFileNamesAgreeAreKeptApart)
{
    ASSERT_TRUE(mFolder.save(sample(QStringLiteral("A!"))));
    QVProfile other = sample(QStringLiteral("a?"));
    other.settings.Pen.Speed = 77;
    ASSERT_TRUE(mFolder.save(other));
    EXPECT_EQ(+mFolder.load(QStringLiteral("A!"))->settings.Pen.Speed, 13);
    EXPECT_EQ(+mFolder.load(QStringLiteral("a?"))->settings.Pen.Speed, 77);
    other.settings.Pen.Speed = 78;
    ASSERT_TRUE(mFolder.save(other));
    EXPECT_EQ(+mFolder.load(QStringLiteral("a?"))->settings.Pen.Speed, 78);
    ASSERT_TRUE(mFolder.save(sample(QStringLiteral("a."))));
    EXPECT_EQ(namesIn(mFolder).size(), 3);
    EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files, QDir::Name).join(u' '),
        QStringLiteral("a-2.plist a-3.plist a.plist"));
}

TEST_F(Profiles, whoseFilesWereCopiedCountOncePerName)
{
    // For this order, the names are the same: a soft hyphen has no weight.
    const UserLanguage german(QLocale::German);
    const QString name = QStringLiteral("ab");
    const QString hyphenated = QString::fromUtf8("a\u00ADb");
    copy(QStringLiteral("1.plist"), name, 1);
    copy(QStringLiteral("2.plist"), hyphenated, 2);
    copy(QStringLiteral("3.plist"), name, 3);
    copy(QStringLiteral("4.plist"), hyphenated, 4);
    EXPECT_EQ(namesIn(mFolder), (QStringList{name, hyphenated}));
    EXPECT_EQ(+mFolder.load(name)->settings.Pen.Speed, 1);
    EXPECT_EQ(+mFolder.load(hyphenated)->settings.Pen.Speed, 2);
}

TEST_F(Profiles, areReadAloneWhenTheirFileHasTheirName)
{
    ASSERT_TRUE(mFolder.save(sample(QStringLiteral("A"))));
    ASSERT_TRUE(mFolder.save(sample(QStringLiteral("B"))));
    OpenedFiles opened(mFolder.path());
    EXPECT_TRUE(mFolder.load(QStringLiteral("B")));
    EXPECT_EQ(opened.names(), QStringList{QStringLiteral("b.plist")});
    EXPECT_FALSE(mFolder.load(QStringLiteral("b")));
    EXPECT_TRUE(opened.names().contains(QStringLiteral("a.plist"))) << "it might be in any file";
}

TEST_F(Profiles, areNeitherMadeTwiceNorRenamedToOneThatIsThere)
{
    ASSERT_TRUE(mFolder.saveNew(sample(QStringLiteral("A"))));
    const auto again = mFolder.saveNew(sample(QStringLiteral("A")));
    ASSERT_FALSE(again);
    EXPECT_EQ(again.error().text, QString::fromUtf8("There is already a profile “A”."));
    ASSERT_TRUE(mFolder.saveNew(sample(QStringLiteral("B"))));
    EXPECT_FALSE(mFolder.rename(QStringLiteral("A"), QStringLiteral("B")));
    EXPECT_TRUE(mFolder.rename(QStringLiteral("A"), QStringLiteral("A")));
    EXPECT_TRUE(mFolder.rename(QStringLiteral("A"), QStringLiteral("C")));
    EXPECT_EQ(namesIn(mFolder), (QStringList{QStringLiteral("B"), QStringLiteral("C")}));
    EXPECT_FALSE(mFolder.rename(QStringLiteral("A"), QStringLiteral("D")));
    EXPECT_FALSE(mFolder.rename(QStringLiteral("B"), QStringLiteral(" ")));
    EXPECT_TRUE(mFolder.remove(QStringLiteral("C")));
    EXPECT_FALSE(mFolder.remove(QStringLiteral("C")));
    EXPECT_EQ(mFolder.load(QStringLiteral("C")).error().text,
        QString::fromUtf8("There is no profile “C”."));
}

TEST_F(Profiles, areNumberedWhereANameIsTaken)
{
    const QString name = QStringLiteral("B");
    for (const char* const expected : {"B", "B 2", "B 3"}) {
        EXPECT_EQ(mFolder.freeName(name), QLatin1String(expected));
        ASSERT_TRUE(mFolder.save(sample(QLatin1String(expected))));
    }
    const QString pen = QStringLiteral("🖊");
    for (const QString& character : {QStringLiteral("a"), pen}) {
        // The number takes as little room of the 64 characters as it can.
        ASSERT_TRUE(mFolder.save(sample(character.repeated(63))));
        EXPECT_EQ(mFolder.freeName(character.repeated(63)),
            character.repeated(62) + QStringLiteral(" 2"));
    }
}

TEST_F(Profiles, passOverFilesThatAreNone)
{
    ASSERT_TRUE(mFolder.save(sample(QStringLiteral("A"))));
    writeFile(mFolder.path() + QStringLiteral("/b.plist"), "rubbish");
    writeFile(mFolder.path() + QStringLiteral("/c.plist"), plist("<dict/>"));
    QDir(mFolder.path()).mkdir(QStringLiteral("d.plist"));
    EXPECT_EQ(namesIn(mFolder), QStringList{QStringLiteral("A")});
    EXPECT_FALSE(mFolder.load(QStringLiteral("b")));
    ASSERT_TRUE(mFolder.save(sample(QStringLiteral("B"))));
    EXPECT_EQ(readFile(mFolder.path() + QStringLiteral("/b.plist")), QByteArray("rubbish"));
}

TEST_F(Profiles, canBeStartedAsDesktopEntries)
{
    const QString name = QStringLiteral("50% \"a\" $b `c` d\\e");
    ASSERT_TRUE(mFolder.save(sample(name)));
    const QString slug = QFileInfo(mFolder.list().front().path).completeBaseName();
    const QByteArray entry = readFile(entryOf(slug));
    EXPECT_TRUE(entry.contains("\nName=Profile: 50% \"a\" $b `c` d\\\\e\n")) << entry.toStdString();
    EXPECT_TRUE(entry.contains("\nName[de]=Profil: 50% ")) << entry.toStdString();
    EXPECT_TRUE(entry.contains("\nExec=qvtbltctl profile use -- "
                               "\"50%% \\\\\"a\\\\\" \\\\$b \\\\`c\\\\` d\\\\\\\\e\"\n"))
        << entry.toStdString();
    ASSERT_TRUE(mFolder.rename(name, QStringLiteral("New")));
    EXPECT_TRUE(readFile(entryOf(slug)).contains("\nName=Profile: New\n"));
    ASSERT_TRUE(mFolder.remove(QStringLiteral("New")));
    EXPECT_FALSE(QFile::exists(entryOf(slug)));
}

TEST_F(Profiles, rememberTheChoiceForEachTablet)
{
    EXPECT_EQ(QVProfileChoice::load(2).current, QString());
    QVProfileChoice{QString::fromUtf8("ö, \"b\""), QStringLiteral("c")}.save(2);
    EXPECT_EQ(QVProfileChoice::load(2).current, QString::fromUtf8("ö, \"b\""));
    EXPECT_EQ(QVProfileChoice::load(2).chosen, QStringLiteral("c"));
    EXPECT_EQ(QVProfileChoice::load(3).chosen, QString());
    QVProfileChoice{QStringLiteral("d"), QStringLiteral("e")}.save(3);
    EXPECT_EQ(QVProfileChoice::load(2).chosen, QStringLiteral("c"));
    EXPECT_EQ(QVProfileChoice::load(3).chosen, QStringLiteral("e"));
}
