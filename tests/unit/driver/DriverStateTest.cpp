// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DriverState.h"

#include "ErrorText.h"
#include "TemporaryHome.h"
#include "tagQVTabletInfo.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

class DriverStateFile : public testing::Test {
protected:
    void SetUp() override
    {
        qunsetenv("XDG_STATE_HOME");
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path()).path()));
    }

    QString path() const
    {
        return mHome.path() + QStringLiteral("/.local/state/tdsg-driver/state.json");
    }

    /** Loads a file with these three values. */
    platform::Result<DriverState> load(
        const QByteArray& attached, const QByteArray& record, const QByteArray& pushes) const
    {
        writeFile(path(),
            "{\"attached\": " + attached + ", \"record\": " + record + ", \"pushes\": " + pushes
                + "}");
        return DriverState::load();
    }

    TemporaryHome mHome;
};

QByteArray quotedRecord(int size)
{
    return '"' + QByteArray(size, 'x').toBase64() + '"';
}

} // namespace

TEST_F(DriverStateFile, comesBackAsItWasSaved)
{
    const DriverState saved{65535, QByteArray(kQVRecordSize, '\xE9'), 4294967295U,
        QStringLiteral("056a:0357:A17"), {{QStringLiteral("056a:0357"), 0x8000}}, false};
    EXPECT_EQ(errorText(saved.save()), "");
    const auto loaded = DriverState::load();
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->attached, 65535);
    EXPECT_EQ(loaded->record, saved.record);
    EXPECT_EQ(loaded->pushes, 4294967295U);
    EXPECT_EQ(loaded->chosen, saved.chosen);
    EXPECT_FALSE(loaded->showsNotices);
    EXPECT_EQ(loaded->numbers, saved.numbers);
}

TEST_F(DriverStateFile, isNoneWithANumberOutOfItsRange)
{
    EXPECT_TRUE(load("0", "\"\"", "0"));
    EXPECT_TRUE(load("65535", "\"\"", "4294967295"));
    for (const char* const wrong : {"-1", "65536", "86273", "4294987033", "0.5", "1e300", "-1e300",
             "1e400", "\"20737\"", "null", "true", "[20737]", "{}"}) {
        EXPECT_FALSE(load(wrong, "\"\"", "0")) << wrong;
    }
    for (const char* const wrong :
        {"-1", "4294967296", "0.5", "1e300", "-1e300", "1e400", "\"1\"", "null", "false"}) {
        EXPECT_FALSE(load("20737", "\"\"", wrong)) << wrong;
    }
}

TEST_F(DriverStateFile, isNoneWithARecordThatIsNotWhole)
{
    EXPECT_TRUE(load("0", quotedRecord(kQVRecordSize), "0"));
    EXPECT_FALSE(load("0", quotedRecord(kQVRecordSize - 1), "0"));
    EXPECT_FALSE(load("0", quotedRecord(kQVRecordSize + 1), "0"));
    EXPECT_FALSE(load("0", quotedRecord(1), "0"));
    EXPECT_FALSE(load("0", "5", "0"));
    EXPECT_FALSE(load("0", "null", "0"));
    // One of the 6772 digits is invalid.
    QByteArray spoiled = quotedRecord(kQVRecordSize);
    spoiled[100] = '!';
    EXPECT_FALSE(load("0", spoiled, "0"));
}

TEST_F(DriverStateFile, isNoneWithoutAllThreeValues)
{
    writeFile(path(), R"({"attached": 20737, "record": ""})");
    EXPECT_FALSE(DriverState::load());
    writeFile(path(), R"({"attached": 20737, "pushes": 0})");
    EXPECT_FALSE(DriverState::load());
    writeFile(path(), R"({"record": "", "pushes": 0})");
    EXPECT_FALSE(DriverState::load());
}

TEST_F(DriverStateFile, saysWhyItCannotBeUsed)
{
    EXPECT_TRUE(DriverState::load().error().isMissingFile);
    writeFile(path(), "{");
    const auto broken = DriverState::load();
    EXPECT_EQ(errorText(broken), path().toStdString() + " is not a state of this driver");
    EXPECT_FALSE(broken.error().isMissingFile);
    EXPECT_TRUE(QFile::remove(path()) && QDir().mkdir(path()));
    const auto folder = DriverState::load();
    EXPECT_EQ(errorText(folder), path().toStdString() + " is not a regular file");
    EXPECT_FALSE(folder.error().isMissingFile);
}
