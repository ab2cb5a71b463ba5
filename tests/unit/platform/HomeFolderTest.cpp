// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "HomeFolder.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

using platform::expandTilde;

namespace {

class HomeFolder : public testing::Test {
protected:
    void TearDown() override { qputenv("HOME", mBefore); }

private:
    QByteArray mBefore = qgetenv("HOME");
};

} // namespace

TEST_F(HomeFolder, isThatOfTheEnvironment)
{
    qputenv("HOME", "/somewhere/else");
    EXPECT_EQ(expandTilde("~/a/b"), "/somewhere/else/a/b");
    EXPECT_EQ(expandTilde("~"), "/somewhere/else");
}

TEST_F(HomeFolder, isThatOfThePasswordDatabaseWhereTheEnvironmentHasNone)
{
    const std::string home = ::getpwuid(::getuid())->pw_dir;
    qunsetenv("HOME");
    EXPECT_EQ(expandTilde("~/a"), home + "/a");
    qputenv("HOME", "");
    EXPECT_EQ(expandTilde("~/a"), home + "/a");
}

TEST_F(HomeFolder, standsOnlyForATildeAtTheStart)
{
    qputenv("HOME", "/home/x");
    EXPECT_EQ(expandTilde("/a/~/b"), "/a/~/b");
    EXPECT_EQ(expandTilde("~other/a"), "~other/a");
    EXPECT_EQ(expandTilde(""), "");
}
