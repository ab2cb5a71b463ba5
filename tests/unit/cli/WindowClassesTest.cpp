// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "WindowClasses.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class Classes : public testing::Test {
protected:
    Classes()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(mFolder.path()));
        qputenv("XDG_DATA_DIRS", "/nowhere");
    }

    void write(const char* path, const QByteArray& text) const
    {
        QDir(mFolder.path()).mkpath(QStringLiteral("applications/vendor"));
        QFile file(mFolder.filePath(QStringLiteral("applications/") + QLatin1String(path)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir mFolder;
    WindowClasses mClasses;
};

TEST_F(Classes, belongToTheEntriesThatNameThem)
{
    write("paint.desktop", "[Desktop Entry]\nName=x\nStartupWMClass=Paint-2.10\n");
    write("vendor/draw.desktop", "# x\n[Desktop Entry]\r\nStartupWMClass = paint-2.10 \r\n");
    write("other.desktop", "[Desktop Entry]\nStartupWMClass=Other\n");
    write("text.txt", "[Desktop Entry]\nStartupWMClass=Paint-2.10\n");
    QStringList names = mClasses.entriesFor({QStringLiteral("PAINT-2.10"), QStringLiteral("x")});
    names.sort();
    EXPECT_EQ(names, (QStringList{QStringLiteral("paint"), QStringLiteral("vendor-draw")}));
    EXPECT_EQ(mClasses.entriesFor({QStringLiteral("other")}), QStringList(QStringLiteral("other")));
    EXPECT_TRUE(mClasses.entriesFor({}).isEmpty());
}

TEST(ClassInEntry, isThatOfTheEntryItselfAndNotOfAnAction)
{
    EXPECT_EQ(classInEntry("[Desktop Action new]\nStartupWMClass=a\n[Desktop Entry]\nName=b\n"),
        QString());
    EXPECT_EQ(classInEntry("StartupWMClass=a\n"), QString());
    EXPECT_EQ(classInEntry(""), QString());
    EXPECT_EQ(classInEntry("[Desktop Entry]\nStartupWMClass"), QString());
    EXPECT_EQ(classInEntry("[Desktop Entry]\nStartupWMClass=a=b"), QStringLiteral("a=b"));
}

} // namespace
