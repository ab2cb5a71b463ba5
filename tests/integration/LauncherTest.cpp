// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// How applications are started, with a service manager on a bus of its own.

#include "Launcher.h"

#include "PrivateBus.h"
#include "Wait.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace {

const QString kName = QStringLiteral("org.freedesktop.systemd1");
const QString kPath = QStringLiteral("/org/freedesktop/systemd1");
const QString kManager = QStringLiteral("org.freedesktop.systemd1.Manager");

/** Takes what is to be started, as the user's service manager does, and tells how it went. */
class FakeManager final : public QDBusVirtualObject {
public:
    explicit FakeManager(const QString& address)
        : mBus(QDBusConnection::connectToBus(address, QStringLiteral("systemd")))
    {
        EXPECT_TRUE(mBus.registerService(kName));
        EXPECT_TRUE(mBus.registerVirtualObject(kPath, this));
    }
    ~FakeManager() override { QDBusConnection::disconnectFromBus(QStringLiteral("systemd")); }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        if (call.member() == QLatin1String("Subscribe")) {
            isSubscribed = true;
            bus.send(call.createReply());
            return true;
        }
        if (call.member() != QLatin1String("StartTransientUnit")) {
            return false;
        }
        EXPECT_EQ(call.signature(), QStringLiteral("ssa(sv)a(sa(sv))"));
        EXPECT_TRUE(isSubscribed) << "it would not be told of the job's end";
        units.append(call.arguments().constFirst().toString());
        const QDBusObjectPath job(kPath + QStringLiteral("/job/7"));
        if (!refusal.isEmpty()) {
            bus.send(call.createErrorReply(
                QStringLiteral("org.freedesktop.systemd1.LoadFailed"), refusal));
            return true;
        }
        bus.send(call.createReply(QVariant::fromValue(job)));
        QDBusMessage signal =
            QDBusMessage::createSignal(kPath, kManager, QStringLiteral("JobRemoved"));
        signal << 7U << QVariant::fromValue(job) << units.constLast() << result;
        bus.send(signal);
        return true;
    }

    QString refusal;
    QString result = QStringLiteral("done");
    QStringList units;
    bool isSubscribed = false;

private:
    QDBusConnection mBus;
};

class LauncherTest : public testing::Test {
protected:
    LauncherTest()
    {
        QFile program(path());
        EXPECT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\necho started >\"$0.started\"\n");
        EXPECT_TRUE(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    ~LauncherTest() override
    {
        // Qt 5 releases a call twice that is dropped while its connection closes.
        mLauncher.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("driver"));
    }

    QString path() const { return mFolder.filePath(QStringLiteral("program")); }

    void launch(int slot, const QString& path)
    {
        if (!mLauncher) {
            mLauncher.emplace(
                QDBusConnection::connectToBus(mBus.address(), QStringLiteral("driver")));
        }
        mLauncher->launch(slot, path, [this](const QString& why) { mProblem = why; });
    }

    bool hasProblem(const QString& problem)
    {
        return QTest::qWaitFor([&] { return mProblem == problem; }, kPatience);
    }

    PrivateBus mBus;
    QTemporaryDir mFolder;
    std::optional<Launcher> mLauncher;
    QString mProblem;
};

TEST_F(LauncherTest, hasTheServiceManagerStartAnApplicationOnceASecond)
{
    FakeManager manager(mBus.address());
    launch(0, path());
    launch(0, path());
    launch(1, path());
    EXPECT_TRUE(QTest::qWaitFor([&] { return manager.units.size() == 2; }, kPatience));
    EXPECT_NE(manager.units[0], manager.units[1]);
    launch(2, QStringLiteral("/nowhere/program"));
    EXPECT_EQ(mProblem, QStringLiteral("/nowhere/program does not exist"));
    EXPECT_EQ(manager.units.size(), 2);
}

TEST_F(LauncherTest, tellsOfAnApplicationThatEndsAtItsStart)
{
    FakeManager manager(mBus.address());
    manager.result = QStringLiteral("failed");
    launch(0, path());
    EXPECT_TRUE(hasProblem(
        path() + QStringLiteral(" could not be started; the user's journal has the reason")))
        << qPrintable(mProblem);
}

TEST_F(LauncherTest, tellsOfAnApplicationThatTheServiceManagerRefuses)
{
    FakeManager manager(mBus.address());
    manager.refusal = QStringLiteral("no more units");
    launch(0, path());
    EXPECT_TRUE(hasProblem(path() + QStringLiteral(" could not be started: no more units")))
        << qPrintable(mProblem);
}

TEST_F(LauncherTest, startsAnApplicationByItselfWithoutAServiceManager)
{
    launch(0, path());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return QFile::exists(path() + QStringLiteral(".started")); }, kPatience));
    EXPECT_EQ(mProblem, QString());
}

TEST_F(LauncherTest, tellsOfADesktopEntryThatCannotBeStartedWithoutAServiceManager)
{
    const QString entry = mFolder.filePath(QStringLiteral("broken.desktop"));
    QFile file(entry);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Desktop Entry]\nType=Application\nName=Broken\nExec=/nowhere/program\n");
    file.close();
    launch(0, entry);
    EXPECT_TRUE(hasProblem(QStringLiteral("%1 could not be started: %2 has failed")
                               .arg(entry, QStandardPaths::findExecutable(QStringLiteral("gio")))));
}

} // namespace
