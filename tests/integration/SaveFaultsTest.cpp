// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Saving while the process is killed, the disk is full, or the folder is not writable: with real
// file systems and signals.

#include "ErrorText.h"
#include "FakeDisplays.h"
#include "QVConfigStore.h"
#include "SampleConfig.h"
#include "SeparateMounts.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <random>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;

class SaveFaults : public testing::Test {
protected:
    ~SaveFaults() override
    {
        ::umount2(mHome.configFolder().path().toStdString().c_str(), MNT_DETACH);
    }

    void SetUp() override
    {
        std::strcpy(GetPListName(), "7.plist");
        writeFile(mPath, sampleConfig());
        mStore.ReadQVConfigPlist();
    }

    std::string save()
    {
        testing::internal::CaptureStderr();
        mStore.WriteQVConfigPlist();
        return testing::internal::GetCapturedStderr();
    }

    QStringList files() const
    {
        return mHome.configFolder().entryList(
            QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    TemporaryHome mHome;
    QString mPath = mHome.configFile(7);
    FakeDisplays mDisplays{{{0, 0, 10, 10}, {10, 0, 10, 10}}};
    QVConfigStore mStore;
};

/** Sets fields from the beginning to the end of the file to a value. */
void setGeneration(std::int16_t generation)
{
    qvTabletInfo.Pen.PressureThreshold = generation;
    qvTabletInfo.Monitor.num = generation;
    qvTabletInfo.Monitor.Height = generation;
    qvTabletInfo.Key.ScrollSpeed = generation;
    for (tagQVTabletInfoSubKey& key : qvTabletInfo.Key.SubKey) {
        key.Valid = generation;
    }
}

/** Returns the value if it is the same in all of them; -1 if two saves are mixed. */
std::int16_t generation()
{
    const std::int16_t value = qvTabletInfo.Pen.PressureThreshold;
    bool same = qvTabletInfo.Monitor.num == value && qvTabletInfo.Monitor.Height == value
        && qvTabletInfo.Key.ScrollSpeed == value;
    for (const tagQVTabletInfoSubKey& key : qvTabletInfo.Key.SubKey) {
        same = same && key.Valid == value;
    }
    return same ? value : std::int16_t{-1};
}

} // namespace

TEST_F(SaveFaults, aKillAtAnyMomentLeavesTheOldOrTheNewFileWhole)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    setGeneration(0);
    save();
    // The kills come at any moment of the first few saves, however long a save takes.
    QElapsedTimer oneSave;
    oneSave.start();
    save();
    std::uniform_int_distribution<unsigned> microseconds(
        0, static_cast<unsigned>(4 * oneSave.nsecsElapsed() / 1000));
    int advanced = 0;
    std::int16_t last = 0;
    // At least this many rounds, and more if the machine is so slow that few saves are completed.
    for (int round = 0; round < 400 || (advanced < 50 && round < 4000); ++round) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (std::int16_t next = static_cast<std::int16_t>(last + 1);; ++next) {
                setGeneration(next);
                mStore.WriteQVConfigPlist();
            }
        }
        ::usleep(microseconds(random));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);

        setGeneration(-2);
        ASSERT_EQ(errorText(mStore.loadRecord(mPath.toStdString())), "");
        const std::int16_t found = generation();
        ASSERT_GE(found, last) << "a mix of two saves, or one that was lost";
        advanced += found > last ? 1 : 0;
        last = found;
    }
    // Otherwise all kills came before the first save, and the test would prove nothing.
    EXPECT_GE(advanced, 50);
}

TEST_F(SaveFaults, aFullDiskLeavesTheOldFileAndNothingElse)
{
    if (!separateMounts()) {
        GTEST_SKIP() << "mounting is not permitted here: " << std::strerror(errno);
    }
    const QByteArray config = readFile(mPath);
    // Room for the file and one page more, but not for two files.
    ASSERT_EQ(
        ::mount("tmpfs", mHome.configFolder().path().toStdString().c_str(), "tmpfs", 0, "size=12k"),
        0)
        << std::strerror(errno);
    writeFile(mPath, config);
    setGeneration(99);
    const std::string log = save();
    EXPECT_NE(log.find("cannot write"), std::string::npos) << log;
    EXPECT_NE(log.find("No space left"), std::string::npos) << log;
    EXPECT_EQ(readFile(mPath), config);
    EXPECT_EQ(files(), QStringList{QStringLiteral("7.plist")});
}

TEST_F(SaveFaults, aReadOnlyFileSystemLeavesTheOldFile)
{
    if (!separateMounts()) {
        GTEST_SKIP() << "mounting is not permitted here: " << std::strerror(errno);
    }
    const std::string folder = mHome.configFolder().path().toStdString();
    ASSERT_EQ(::mount("tmpfs", folder.c_str(), "tmpfs", 0, nullptr), 0);
    writeFile(mPath, sampleConfig());
    ASSERT_EQ(::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    setGeneration(99);
    EXPECT_NE(save().find("cannot write"), std::string::npos);
    EXPECT_EQ(readFile(mPath), sampleConfig());
    EXPECT_EQ(files(), QStringList{QStringLiteral("7.plist")});
}

TEST_F(SaveFaults, aFileThatCannotBeReplacedStaysAndTheLogSaysSo)
{
    if (!separateMounts()) {
        GTEST_SKIP() << "mounting is not permitted here: " << std::strerror(errno);
    }
    const std::string path = mPath.toStdString();
    const QByteArray config = readFile(mPath);
    ASSERT_EQ(::mount(path.c_str(), path.c_str(), nullptr, MS_BIND, nullptr), 0)
        << std::strerror(errno);
    setGeneration(99);
    const std::string log = save();
    EXPECT_NE(log.find("cannot write"), std::string::npos) << log;
    EXPECT_NE(log.find(std::strerror(EBUSY)), std::string::npos) << log;
    EXPECT_EQ(readFile(mPath), config);
    EXPECT_EQ(files(), QStringList{QStringLiteral("7.plist")});
    EXPECT_EQ(::umount2(path.c_str(), MNT_DETACH), 0);
}

namespace {

/** Runs as a user to whom file modes apply, unlike root. */
class SaveFaultsAsUser : public SaveFaults {
protected:
    void SetUp() override
    {
        SaveFaults::SetUp();
        if (::geteuid() != 0) {
            return;
        }
        for (QDir folder = mHome.configFolder();; folder.cdUp()) {
            ASSERT_EQ(::chown(folder.path().toStdString().c_str(), kNobody, kNobody), 0);
            if (folder == QDir(mHome.path())) {
                break;
            }
        }
        ASSERT_EQ(::chown(mPath.toStdString().c_str(), kNobody, kNobody), 0);
        ASSERT_EQ(::seteuid(kNobody), 0);
    }
    void TearDown() override
    {
        ASSERT_EQ(::chmod(mHome.configFolder().path().toStdString().c_str(), 0700), 0);
        EXPECT_EQ(::seteuid(::getuid()), 0);
    }
};

} // namespace

TEST_F(SaveFaultsAsUser, aReadOnlyFolderLeavesTheOldFileAndNothingElse)
{
    ASSERT_EQ(::chmod(mHome.configFolder().path().toStdString().c_str(), 0500), 0);
    setGeneration(99);
    EXPECT_NE(save().find("Permission denied"), std::string::npos);
    EXPECT_EQ(readFile(mPath), sampleConfig());
    EXPECT_EQ(files(), QStringList{QStringLiteral("7.plist")});
}

TEST_F(SaveFaultsAsUser, anUnreadableFileIsLeftAloneWithTheRecord)
{
    ASSERT_EQ(::chmod(mPath.toStdString().c_str(), 0), 0);
    setGeneration(99);
    const tagQVTabletInfo record = qvTabletInfo;
    testing::internal::CaptureStderr();
    mStore.ReadQVConfigPlist();
    EXPECT_NE(testing::internal::GetCapturedStderr().find("Permission denied"), std::string::npos);
    EXPECT_TRUE(sameBytes(qvTabletInfo, record));
    save();
    struct stat status { };
    ASSERT_EQ(::stat(mPath.toStdString().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0U);
    ASSERT_EQ(::chmod(mPath.toStdString().c_str(), 0600), 0);
    EXPECT_EQ(readFile(mPath), sampleConfig());
}
