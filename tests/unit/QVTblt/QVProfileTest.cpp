// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfile.h"

#include "QVProfileFolder.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

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

class Profiles : public testing::Test {
protected:
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

TEST(Profile, hasNoMoreApplicationsThanAreSensible)
{
    platform::PropertyList list = QVWriteProfile(sample(QStringLiteral("A")));
    std::vector<std::string> names{"", std::string(256, 'a'), "two\nlines", "b", "b"};
    for (int i = 0; i < 200; ++i) {
        names.push_back("app" + std::to_string(i));
    }
    list.root().setStrings("Applications", names);
    const auto read = QVReadProfile(list);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->applications.constFirst(), QStringLiteral("b"));
    EXPECT_LE(read->applications.size(), 100);
    list.root().setString("Applications", "app");
    EXPECT_TRUE(QVReadProfile(list)->applications.isEmpty());
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
    EXPECT_EQ(namesIn(mFolder).size(), 2);
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
    EXPECT_EQ(mFolder.freeName(QStringLiteral("B")), QStringLiteral("B 2"));
    EXPECT_EQ(mFolder.freeName(QStringLiteral("D")), QStringLiteral("D"));
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
}
