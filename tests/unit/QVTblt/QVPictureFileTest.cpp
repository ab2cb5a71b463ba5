// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPictureFile.h"

#include "Bundle.h"
#include "TemporaryHome.h"

#include <QFileInfo>
#include <QPalette>

#include <gtest/gtest.h>

namespace {

class PictureFile : public testing::Test {
protected:
    void add(std::initializer_list<const char*> names)
    {
        for (const char* const name : names) {
            writeFile(mFolder.filePath(QString::fromLatin1(name)), "picture");
        }
    }
    /** The name of the file that is found. */
    QString found(bool isDense, bool isDark) const
    {
        const auto path = QVPicturePath(platform::Bundle(mFolder.path()), QStringLiteral("tablet"),
            QStringLiteral("PNG"), isDense, isDark);
        return path ? QFileInfo(*path).fileName() : QString();
    }

    QTemporaryDir mFolder;
};

} // namespace

TEST_F(PictureFile, isTheFormThatIsAskedFor)
{
    add({"tablet.PNG", "tablet@2x.PNG", "tablet-dark.PNG", "tablet-dark@2x.PNG"});
    EXPECT_EQ(found(false, false), QStringLiteral("tablet.PNG"));
    EXPECT_EQ(found(true, false), QStringLiteral("tablet@2x.PNG"));
    EXPECT_EQ(found(false, true), QStringLiteral("tablet-dark.PNG"));
    EXPECT_EQ(found(true, true), QStringLiteral("tablet-dark@2x.PNG"));
}

TEST_F(PictureFile, isRatherDarkThanDense)
{
    add({"tablet.PNG", "tablet@2x.PNG", "tablet-dark.PNG"});
    EXPECT_EQ(found(true, true), QStringLiteral("tablet-dark.PNG"));
}

TEST_F(PictureFile, isRatherDenseThanPlainWhereNoneIsDark)
{
    add({"tablet.PNG", "tablet@2x.PNG"});
    EXPECT_EQ(found(true, true), QStringLiteral("tablet@2x.PNG"));
    EXPECT_EQ(found(false, true), QStringLiteral("tablet.PNG"));
}

TEST_F(PictureFile, isThePlainOneWhereThereIsNoOther)
{
    add({"tablet.PNG"});
    EXPECT_EQ(found(true, true), QStringLiteral("tablet.PNG"));
    EXPECT_EQ(found(true, false), QStringLiteral("tablet.PNG"));
}

TEST_F(PictureFile, isOfTheExactTypeAlone)
{
    add({"tablet.png", "tablet@2x.png", "tablet-dark.png", "tablet-dark@2x.png"});
    EXPECT_EQ(found(true, true), QString());
    EXPECT_EQ(found(false, false), QString());
}

TEST(DarkPalette, isOneWithDarkWindowsWhateverItsTexts)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Window, QColor(0x2A, 0x2E, 0x32));
    EXPECT_TRUE(QVIsDark(palette));
    palette.setColor(QPalette::Window, QColor(0xEF, 0xF0, 0xF1));
    EXPECT_FALSE(QVIsDark(palette));
    palette.setColor(QPalette::Window, QColor(127, 127, 127));
    EXPECT_TRUE(QVIsDark(palette));
    palette.setColor(QPalette::Window, QColor(128, 128, 128));
    EXPECT_FALSE(QVIsDark(palette));
}
