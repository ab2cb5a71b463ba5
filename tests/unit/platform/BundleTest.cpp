// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Bundle.h"

#include "SampleConfig.h"
#include "TemporaryHome.h"

#include <QFile>
#include <QLocale>

#include <gtest/gtest.h>

#include <cstdlib>

using platform::Bundle;

namespace {

class BundleFolder : public testing::Test {
protected:
    void SetUp() override
    {
        add("en", "<key>Hello</key><string>Hello</string><key>Only</key><string>English</string>");
        add("de", "<key>Hello</key><string>Gr\xC3\xBC\xC3\x9F Gott</string>");
        add("fr", "no list at all");
    }
    void TearDown() override { QLocale::setDefault(QLocale::system()); }

    void add(const char* language, const QByteArray& strings)
    {
        const QDir folder(mHome.path());
        const QString name = QString::fromLatin1(language) + QStringLiteral(".lproj");
        ASSERT_TRUE(folder.mkpath(name));
        writeFile(folder.filePath(name + QStringLiteral("/Table.strings")),
            plist("<dict>" + strings + "</dict>"));
    }

    QString lookUp(const char* language, const char* key, const char* value = "") const
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(language)));
        return inTable(key, value);
    }

    QString preferred(const char* language) const
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(language)));
        return mBundle.preferredLocalization();
    }

    QString inTable(const char* key, const char* value = "") const
    {
        return mBundle.localizedString(
            QString::fromLatin1(key), QString::fromLatin1(value), QStringLiteral("Table"));
    }

    TemporaryHome mHome;
    Bundle mBundle{mHome.path()};
};

} // namespace

TEST_F(BundleFolder, takesTheStringInTheUsersBestLanguage)
{
    EXPECT_EQ(lookUp("de", "Hello"), QString::fromUtf8("Gr\xC3\xBC\xC3\x9F Gott"));
    EXPECT_EQ(lookUp("en", "Hello"), QStringLiteral("Hello"));
    EXPECT_EQ(lookUp("de_AT", "Hello"), QString::fromUtf8("Gr\xC3\xBC\xC3\x9F Gott"));
}

TEST_F(BundleFolder, followsTheOrderOfTheUsersPreferences)
{
    // Qt reads the preferences once per process, so this needs a new one.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    qputenv("LC_ALL", "");
    qputenv("LANG", "en_US.UTF-8");
    qputenv("LANGUAGE", "es:de:en");
    EXPECT_EXIT(std::_Exit(inTable("Hello").startsWith(QStringLiteral("Gr")) ? 0 : 1),
        testing::ExitedWithCode(0), "");
}

TEST_F(BundleFolder, takesResourcesOfTheSameLanguageAsStrings)
{
    const QString file = QStringLiteral("/de.lproj/Texts.qm");
    writeFile(mHome.path() + file, "x");
    const auto path = [this] {
        return mBundle.pathForLocalizedResource(QStringLiteral("Texts"), QStringLiteral("qm"));
    };
    EXPECT_EQ(preferred("de_AT"), QStringLiteral("de"));
    EXPECT_EQ(path(), mHome.path() + file);
    EXPECT_EQ(preferred("fr"), QStringLiteral("fr"));
    EXPECT_FALSE(path()) << "not in the folder of that language";
    EXPECT_EQ(preferred("es"), QStringLiteral("en"));
    EXPECT_FALSE(path());
}

TEST_F(BundleFolder, needsNoFolderForEnglish)
{
    ASSERT_TRUE(QDir(mHome.path() + QStringLiteral("/en.lproj")).removeRecursively());
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    qputenv("LC_ALL", "");
    qputenv("LANG", "en_US.UTF-8");
    qputenv("LANGUAGE", "en_GB:de");
    EXPECT_EXIT(std::_Exit(mBundle.preferredLocalization() == QLatin1String("en") ? 0 : 1),
        testing::ExitedWithCode(0), "");
}

TEST_F(BundleFolder, tellsTheWaysOfWritingALanguageApart)
{
    add("zh-Hans", "<key>Hello</key><string>Simplified</string>");
    for (const char* const place : {"zh_CN", "zh_SG", "zh_Hans_HK"}) {
        EXPECT_EQ(lookUp(place, "Hello"), QStringLiteral("Simplified")) << place;
        EXPECT_EQ(preferred(place), QStringLiteral("zh-Hans")) << place;
    }
    for (const char* const place : {"zh_TW", "zh_HK", "zh_Hant"}) {
        EXPECT_EQ(lookUp(place, "Hello"), QStringLiteral("Hello")) << place;
        EXPECT_EQ(preferred(place), QStringLiteral("en")) << place;
    }
}

TEST_F(BundleFolder, fallsBackToEnglishForALanguageOrAKeyThatIsNotThere)
{
    EXPECT_EQ(lookUp("es", "Hello"), QStringLiteral("Hello"));
    EXPECT_EQ(lookUp("de", "Only"), QStringLiteral("English"));
}

TEST_F(BundleFolder, readsATableOnceForAllItsCopies)
{
    const Bundle copy = mBundle;
    EXPECT_EQ(lookUp("de", "Only"), QStringLiteral("English"));
    for (const char* const language : {"de", "en"}) {
        ASSERT_TRUE(QFile::remove(mHome.path() + u'/' + QString::fromLatin1(language)
            + QStringLiteral(".lproj/Table.strings")));
    }
    EXPECT_EQ(lookUp("de", "Hello"), QString::fromUtf8("Gr\xC3\xBC\xC3\x9F Gott"));
    EXPECT_EQ(lookUp("en", "Hello"), QStringLiteral("Hello")) << "another language, too";
    EXPECT_EQ(copy.localizedString(QStringLiteral("Only"), QString(), QStringLiteral("Table")),
        QStringLiteral("English"));
}

TEST_F(BundleFolder, saysOnceThatATableIsBroken)
{
    testing::internal::CaptureStderr();
    lookUp("fr", "Hello");
    lookUp("fr", "Only");
    const std::string log = testing::internal::GetCapturedStderr();
    const auto first = log.find("fr.lproj/Table.strings");
    EXPECT_NE(first, std::string::npos) << log;
    EXPECT_EQ(log.find("fr.lproj/Table.strings", first + 1), std::string::npos) << log;
}

TEST_F(BundleFolder, passesOverATableThatIsBroken)
{
    EXPECT_EQ(lookUp("fr", "Hello"), QStringLiteral("Hello"));
}

TEST_F(BundleFolder, givesTheValueAndElseTheKeyWhereNoTableHasIt)
{
    EXPECT_EQ(lookUp("de", "None", "a value"), QStringLiteral("a value"));
    EXPECT_EQ(lookUp("de", "None"), QStringLiteral("None"));
    EXPECT_EQ(Bundle().localizedString(QStringLiteral("Key"), QString(), QStringLiteral("Table")),
        QStringLiteral("Key"));
}

TEST_F(BundleFolder, takesNoTextOfAKeyThatOnlyLooksTheSame)
{
    add("de",
        "<key>Hello</key><string>Servus</string>"
        "<key>\xEF\xBB\xBFHello</key><string>with a byte-order mark</string>");
    EXPECT_EQ(lookUp("de", "Hello"), QStringLiteral("Servus"));
}

TEST_F(BundleFolder, findsResourcesByNameAndExactType)
{
    writeFile(mHome.path() + QStringLiteral("/picture.PNG"), "x");
    EXPECT_EQ(mBundle.pathForResource(QStringLiteral("picture"), QStringLiteral("PNG")),
        mHome.path() + QStringLiteral("/picture.PNG"));
    EXPECT_FALSE(mBundle.pathForResource(QStringLiteral("picture"), QStringLiteral("png")));
    EXPECT_FALSE(mBundle.pathForResource(QStringLiteral("other"), QStringLiteral("PNG")));
    EXPECT_FALSE(Bundle().pathForResource(QStringLiteral("picture"), QStringLiteral("PNG")));
}
