// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Follow.h"

#include "FrontWindow.h"
#include "Profile.h"
#include "X11Front.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

QStringList namesOf(const QStringList& names)
{
    return applicationNames(names);
}

TEST(FollowedNames, areThoseOfDesktopEntriesEachOnce)
{
    EXPECT_EQ(namesOf({QStringLiteral("/usr/share/applications/org.kde.krita.desktop"),
                  QStringLiteral(" krita "), QStringLiteral("Krita"), QString()}),
        (QStringList{QStringLiteral("org.kde.krita"), QStringLiteral("krita")}));
    EXPECT_EQ(
        namesOf({QStringLiteral("org.gimp.GIMP")}), QStringList(QStringLiteral("org.gimp.GIMP")));
}

TEST(FollowedNames, leaveOutWhatCannotBeOne)
{
    EXPECT_TRUE(namesOf({QStringLiteral(".desktop"), QStringLiteral("folder/"),
                            QStringLiteral("a\nb"), QString(256, QLatin1Char('x'))})
                    .isEmpty());
    EXPECT_EQ(namesOf({QString(255, QLatin1Char('x'))}).size(), 1);
}

TEST(FollowedNames, ofAnX11WindowAreItsClassAndThenItsName)
{
    using namespace std::string_literals;
    const auto names = [](const std::string& value) {
        return namesInClass(QByteArray::fromStdString(value));
    };
    EXPECT_EQ(
        names("name\0Class\0"s), (QStringList{QStringLiteral("Class"), QStringLiteral("name")}));
    EXPECT_EQ(names("name"s), (QStringList{QString(), QStringLiteral("name")}));
    EXPECT_EQ(names("name\0Class"s).constFirst(), QStringLiteral("Class"));
    EXPECT_EQ(applicationNames(names(""s)), QStringList());
}

TEST(FollowedArea, isReadFromItsLine)
{
    EXPECT_EQ(mappedAreaIn("-10 20 1920 1080\n"), (platform::Rect{-10, 20, 1920, 1080}));
}

TEST(FollowedArea, isNoneWhereTheLineIsAnother)
{
    for (const char* const line : {"", "\n", "1 2 3", "1 2 3 4 5", "1 2 x 4", "1 2 0 4", "1 2 3 -4",
             "1 2 40000 4", "1  2 3 4"}) {
        EXPECT_FALSE(mappedAreaIn(line)) << line;
    }
}

} // namespace
