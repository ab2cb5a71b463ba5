// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "FollowService.h"

#include "FakeSystemd.h"
#include "PrivateBus.h"
#include "Wait.h"

#include <QDBusPendingCallWatcher>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <optional>

namespace {

class Follow : public testing::Test {
protected:
    Follow()
    {
        QObject::connect(&mService, &FollowService::changed, [this] { ++mChanges; });
        QObject::connect(
            &mService, &FollowService::failed, [this](const QString& text) { mFailure = text; });
    }

    FakeSystemd& startSystemd() { return mSystemd.emplace(mBus.address()); }

    /** Does something, and waits until the service says that it may have changed. */
    template <class Act>
    void andWait(const Act& act)
    {
        const int before = mChanges;
        act();
        EXPECT_TRUE(QTest::qWaitFor([&] { return mChanges > before; }, kPatience));
    }
    void refresh()
    {
        andWait([this] { mService.refresh(); });
    }
    /** Has another service ask, and waits for its answer. */
    static void refresh(FollowService& other)
    {
        QSignalSpy changes(&other, &FollowService::changed);
        other.refresh();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !changes.isEmpty(); }, kPatience));
    }
    void set(bool isOn)
    {
        andWait([&] { mService.set(isOn); });
    }

    PrivateBus mBus;
    std::optional<FakeSystemd> mSystemd;
    FollowService mService;
    int mChanges = 0;
    QString mFailure;
};

const QString kSubscribed = QStringLiteral("Subscribe ");
const QString kAsked = QStringLiteral("GetUnitFileState s qvtblt-follow.service");
const QString kStarted = QStringLiteral("StartUnit");
const QString kListed = QStringLiteral("ListUnitsByNames as qvtblt-follow.service");

} // namespace

TEST_F(Follow, knowsNothingUntilItIsAsked)
{
    const FakeSystemd& systemd = startSystemd();
    EXPECT_EQ(mService.isOn(), std::nullopt);
    EXPECT_EQ(mService.fault(), QString());
    EXPECT_EQ(systemd.calls, QStringList());
}

TEST_F(Follow, saysWhetherTheServiceIsStartedWithTheSession)
{
    FakeSystemd& systemd = startSystemd();
    refresh();
    EXPECT_EQ(mService.isOn(), false);
    systemd.state = QStringLiteral("enabled");
    refresh();
    EXPECT_EQ(mService.isOn(), true);
    EXPECT_EQ(mService.fault(), QString());
    EXPECT_EQ(systemd.calls, (QStringList{kAsked, kAsked, kListed}));
}

TEST_F(Follow, asksOnceWhileItWaitsForAnAnswer)
{
    const FakeSystemd& systemd = startSystemd();
    andWait([this] {
        mService.refresh();
        mService.refresh();
    });
    FollowService other; // whose answer comes after all others
    refresh(other);
    EXPECT_EQ(systemd.calls, (QStringList{kAsked, kAsked}));
    EXPECT_EQ(mChanges, 1);
}

TEST_F(Follow, changesNothingElseWhileAChangeIsUnderWay)
{
    FakeSystemd& systemd = startSystemd();
    set(true);
    const QStringList once = systemd.calls;
    systemd.calls.clear();
    andWait([this] {
        mService.set(true);
        mService.set(false);
        mService.refresh();
    });
    EXPECT_EQ(systemd.calls, once);
    // Nor while it asks for the state.
    systemd.calls.clear();
    const int changes = mChanges;
    andWait([this] {
        mService.refresh();
        mService.set(false);
    });
    EXPECT_EQ(systemd.calls, (QStringList{kAsked, kListed}));
    EXPECT_EQ(mChanges, changes + 1);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return mService.findChildren<QDBusPendingCallWatcher*>().isEmpty(); }, kPatience))
        << "answers are kept";
}

TEST_F(Follow, changesNothingWhileItAsksWhetherTheServiceRuns)
{
    FakeSystemd& systemd = startSystemd();
    systemd.state = QStringLiteral("enabled");
    systemd.heard = [this](const QString& method) {
        if (method == QLatin1String("ListUnitsByNames")) {
            mService.set(false);
        }
    };
    refresh();
    systemd.heard = {};
    refresh();
    EXPECT_EQ(systemd.calls, (QStringList{kAsked, kListed, kAsked, kListed}));
}

TEST_F(Follow, asksForNothingBeforeTheServiceHasStarted)
{
    FakeSystemd& systemd = startSystemd();
    systemd.endsJobs = false;
    mService.set(true);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return systemd.calls.join(u' ').contains(kStarted); }, kPatience));
    systemd.calls.clear();
    for (int i = 0; i < 3; ++i) {
        FollowService other; // whose answer comes after all others
        refresh(other);
    }
    EXPECT_EQ(systemd.calls.count(kAsked), 3) << "only the others ask";
}

TEST_F(Follow, leavesTheBusWhenItEnds)
{
    const BusClients clients(mBus);
    auto other = std::make_unique<FollowService>();
    refresh(*other);
    EXPECT_EQ(clients.count(), 2);
    other.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return clients.count() == 1; }, kPatience));
}

TEST_F(Follow, takesOnlyTheEndOfItsOwnJobForThat)
{
    FakeSystemd& systemd = startSystemd();
    set(true);
    systemd.calls.clear();
    QDBusMessage ended = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/systemd1"),
        QStringLiteral("org.freedesktop.systemd1.Manager"), QStringLiteral("JobRemoved"));
    ended << 2U << QVariant::fromValue(QDBusObjectPath(QStringLiteral("/job/2")))
          << QStringLiteral("qvtblt-follow.service") << QStringLiteral("done");
    EXPECT_TRUE(QDBusConnection(QStringLiteral("systemd")).send(ended));
    refresh();
    EXPECT_EQ(systemd.calls, (QStringList{kAsked, kListed})) << "only what was asked for here";
}

TEST_F(Follow, turnsTheServiceOnForAllSessionsAndStartsIt)
{
    const FakeSystemd& systemd = startSystemd();
    set(true);
    EXPECT_EQ(mService.isOn(), true);
    EXPECT_EQ(systemd.calls,
        (QStringList{kSubscribed,
            QStringLiteral("EnableUnitFiles asbb qvtblt-follow.service false false"),
            QStringLiteral("Reload "), QStringLiteral("StartUnit ss qvtblt-follow.service replace"),
            kAsked, kListed}));
    EXPECT_EQ(mService.fault(), QString());
    EXPECT_EQ(mFailure, QString());
}

TEST_F(Follow, saysThatTheServiceHasEnded)
{
    const QString fault = QStringLiteral(
        "Profiles do not follow applications now: the service does not run. What “systemctl --user "
        "status qvtblt-follow” prints may say why.");
    FakeSystemd& systemd = startSystemd();
    systemd.activeState = QStringLiteral("failed");
    set(true);
    EXPECT_EQ(mService.isOn(), true) << "another desktop may tell what this one does not";
    EXPECT_EQ(mService.fault(), fault);
    EXPECT_EQ(mFailure, fault);
    mFailure.clear();
    systemd.activeState = QStringLiteral("inactive");
    refresh();
    EXPECT_EQ(mService.fault(), fault);
    EXPECT_EQ(mFailure, QString()) << "the user has just opened a menu";
    systemd.activeState = QStringLiteral("activating");
    refresh();
    EXPECT_EQ(mService.fault(), QString());
}

TEST_F(Follow, turnsTheServiceOffForAllSessionsAndStopsIt)
{
    FakeSystemd& systemd = startSystemd();
    systemd.state = QStringLiteral("enabled");
    set(false);
    EXPECT_EQ(mService.isOn(), false);
    EXPECT_EQ(systemd.calls,
        (QStringList{kSubscribed,
            QStringLiteral("DisableUnitFiles asb qvtblt-follow.service false"),
            QStringLiteral("Reload "), QStringLiteral("StopUnit ss qvtblt-follow.service replace"),
            kAsked}));
}

TEST_F(Follow, needsNoServiceThatRunsToTurnItOff)
{
    FakeSystemd& systemd = startSystemd();
    systemd.state = QStringLiteral("enabled");
    systemd.failing = QStringLiteral("StopUnit");
    systemd.errorName = QStringLiteral("org.freedesktop.systemd1.NoSuchUnit");
    set(false);
    EXPECT_EQ(mService.isOn(), false);
    EXPECT_EQ(mFailure, QString());
}

TEST_F(Follow, saysWhyTheServiceWasNotTurnedOnAndWhatItIsThen)
{
    FakeSystemd& systemd = startSystemd();
    for (const char* const method : {"EnableUnitFiles", "Reload", "StartUnit"}) {
        SCOPED_TRACE(method);
        systemd.state = QStringLiteral("disabled");
        systemd.failing = QString::fromLatin1(method);
        mFailure.clear();
        set(true);
        EXPECT_EQ(
            mFailure, QStringLiteral("“Follow Applications” was not changed: It does not work."));
        EXPECT_EQ(mService.isOn(), systemd.state == QStringLiteral("enabled"));
    }
    systemd.errorName = QStringLiteral("org.freedesktop.systemd1.NoSuchUnit");
    mFailure.clear();
    set(true);
    EXPECT_NE(mFailure, QString()) << "what does not exist cannot be started";
}

TEST_F(Follow, saysWhyTheServiceWasNotTurnedOff)
{
    FakeSystemd& systemd = startSystemd();
    systemd.state = QStringLiteral("enabled");
    systemd.failing = QStringLiteral("StopUnit");
    set(false);
    EXPECT_EQ(mFailure, QStringLiteral("“Follow Applications” was not changed: It does not work."));
}

TEST_F(Follow, saysThatThereIsNoServiceManager)
{
    refresh();
    EXPECT_EQ(mService.isOn(), std::nullopt);
    EXPECT_EQ(mService.fault(),
        QStringLiteral("Your session has no systemd user manager, which would start the service."));
    startSystemd();
    refresh();
    EXPECT_EQ(mService.isOn(), false) << "it has come meanwhile";
    EXPECT_EQ(mService.fault(), QString());
}

TEST_F(Follow, takesAServiceManagerThatDoesNotAnswerForNone)
{
    FakeSystemd& systemd = startSystemd();
    systemd.failing = QStringLiteral("GetUnitFileState");
    for (const char* const error :
        {"ServiceUnknown", "NoServer", "NoReply", "TimedOut", "Timeout", "Disconnected"}) {
        systemd.errorName = QStringLiteral("org.freedesktop.DBus.Error.") + QLatin1String(error);
        refresh();
        EXPECT_EQ(mService.isOn(), std::nullopt);
        EXPECT_EQ(mService.fault(),
            QStringLiteral(
                "Your session has no systemd user manager, which would start the service."))
            << error;
    }
}

TEST_F(Follow, saysThatTheServiceIsNotInstalled)
{
    FakeSystemd& systemd = startSystemd();
    systemd.failing = QStringLiteral("GetUnitFileState");
    refresh();
    EXPECT_EQ(mService.isOn(), std::nullopt);
    EXPECT_EQ(
        mService.fault(), QStringLiteral("The service qvtblt-follow.service is not installed."));
}

TEST_F(Follow, saysThatTheServiceCannotBeTurnedOn)
{
    FakeSystemd& systemd = startSystemd();
    systemd.state = QStringLiteral("masked");
    refresh();
    EXPECT_EQ(mService.isOn(), std::nullopt);
    EXPECT_EQ(mService.fault(),
        QStringLiteral("The service qvtblt-follow.service cannot be turned on: it is masked."));
}

TEST_F(Follow, findsABusThatHasComeBack)
{
    startSystemd();
    refresh();
    mSystemd.reset();
    mBus.stop();
    // The connection may take notice a little later.
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
            refresh();
            return mService.fault() == QStringLiteral("Your session has no bus that answers.");
        },
        kPatience));
    EXPECT_EQ(mService.isOn(), std::nullopt);
    mBus.start();
    startSystemd();
    refresh();
    EXPECT_EQ(mService.isOn(), false);
}

TEST_F(Follow, saysThatNoBusAnswers)
{
    const QString fault = QStringLiteral("Your session has no bus that answers.");
    ::kill(static_cast<pid_t>(mBus.pid()), SIGSTOP);
    mService.refresh();
    EXPECT_EQ(mService.fault(), fault) << "it hangs";
    ::kill(static_cast<pid_t>(mBus.pid()), SIGCONT);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            refresh();
            return mService.fault() != fault;
        },
        kPatience))
        << "it goes on";
    mBus.stop();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            mService.set(true);
            return mService.fault() == fault;
        },
        kPatience))
        << qPrintable(mService.fault());
}

TEST_F(Follow, neverHasTheBusStartAServiceManager)
{
    // What a bus would start runs long enough to be seen.
    QTemporaryDir folder;
    const QString mark = folder.filePath(QStringLiteral("started"));
    QFile file(folder.filePath(QStringLiteral("org.freedesktop.systemd1.service")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("[D-BUS Service]\nName=org.freedesktop.systemd1\n"
                              "Exec=/usr/bin/touch %1\n")
                   .arg(mark)
                   .toUtf8());
    file.close();
    const PrivateBus bus(folder.path());
    FollowService service;
    bool isAnswered = false;
    QObject::connect(&service, &FollowService::changed, [&] { isAnswered = true; });
    service.refresh();
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAnswered; }, kPatience));
    EXPECT_EQ(service.isOn(), std::nullopt);
    EXPECT_FALSE(QFile::exists(mark));
}

TEST_F(Follow, mayEndBeforeTheAnswer)
{
    const FakeSystemd& systemd = startSystemd();
    {
        FollowService service;
        service.set(true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !systemd.calls.isEmpty(); }, kPatience));
    }
    refresh();
    EXPECT_EQ(mService.isOn(), true) << "what was asked for has been done";
}
