// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Whether the session may have the tablet, as a logind on a bus of its own says.

#include "SeatSession.h"

#include "Pipe.h"
#include "PrivateBus.h"
#include "Wait.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QTest>

#include <gtest/gtest.h>

#include <cerrno>
#include <optional>
#include <utility>

namespace {

const QString kName = QStringLiteral("org.freedesktop.login1");
const QString kSessionPath = QStringLiteral("/org/freedesktop/login1/session/_32");

/** Answers as logind does, for a user with a session. */
class FakeLogin final : public QDBusVirtualObject {
public:
    explicit FakeLogin(const QString& address)
        : mBus(QDBusConnection::connectToBus(address, QStringLiteral("logind")))
    {
        EXPECT_TRUE(mBus.registerService(kName));
        EXPECT_TRUE(mBus.registerVirtualObject(
            QStringLiteral("/org/freedesktop/login1"), this, QDBusConnection::SubPath));
    }
    ~FakeLogin() override { QDBusConnection::disconnectFromBus(QStringLiteral("logind")); }

    /** Changes a property of the session, and says so. */
    void set(const char* property, bool value)
    {
        session.insert(QLatin1String(property), value);
        changed(kSessionPath, "org.freedesktop.login1.Session", {{QLatin1String(property), value}});
    }

    /** The user logs out, or in again. */
    void setSession(const QString& name)
    {
        display = name;
        changed(QStringLiteral("/org/freedesktop/login1/user/_1000"), "org.freedesktop.login1.User",
            {{QStringLiteral("Display"), name}});
    }

    void prepareForSleep(bool isAboutToSleep)
    {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
        signal << isAboutToSleep;
        EXPECT_TRUE(mBus.send(signal));
    }

    /** Whether someone has the machine wait before it sleeps. */
    bool isDelayed() const
    {
        char byte = 0;
        return delay && ::read(delay->reading->get(), &byte, 1) < 0 && errno == EAGAIN;
    }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        if (call.member() == unanswered) {
            unanswered.clear();
            bus.send(call.createErrorReply(QDBusError::NoReply, QStringLiteral("restarting")));
            return true;
        }
        if (call.member() == QLatin1String("Get")) {
            QDBusArgument value;
            value.beginStructure();
            value << display
                  << QDBusObjectPath(display.isEmpty() ? QStringLiteral("/") : kSessionPath);
            value.endStructure();
            bus.send(
                call.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(value)))));
            return true;
        }
        if (call.member() == QLatin1String("Inhibit")) {
            EXPECT_EQ(call.arguments().value(0), QStringLiteral("sleep"));
            EXPECT_EQ(call.arguments().value(3), QStringLiteral("delay"));
            delay.emplace(O_NONBLOCK);
            const QDBusUnixFileDescriptor file(delay->writing->get());
            bus.send(call.createReply(QVariant::fromValue(file)));
            delay->writing.reset();
            return true;
        }
        if (call.member() == QLatin1String("GetAll") && call.path() == kSessionPath) {
            bus.send(call.createReply(QVariant(session)));
            ++answers;
            return true;
        }
        return false;
    }

    QVariantMap session{{QStringLiteral("Active"), true}, {QStringLiteral("LockedHint"), false}};
    QString display = QStringLiteral("2");
    QString unanswered; ///< the next call of this method gets no answer
    int answers = 0; ///< with the session's properties
    std::optional<Pipe> delay; ///< at its end once the last one who delays the sleep has closed it

private:
    void changed(const QString& path, const char* interface, const QVariantMap& properties)
    {
        QDBusMessage signal = QDBusMessage::createSignal(path,
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
        signal << QLatin1String(interface) << properties << QStringList();
        EXPECT_TRUE(mBus.send(signal));
    }

    QDBusConnection mBus;
};

class Seat : public testing::Test {
protected:
    ~Seat() override
    {
        // Qt 5 releases a call twice that is dropped while its connection closes.
        mSession.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("driver"));
    }

    /** The session, as a driver sees it that has just started. */
    SeatSession& start()
    {
        return mSession.emplace(
            QDBusConnection::connectToBus(mBus.address(), QStringLiteral("driver")));
    }

    bool becomes(bool isOurs)
    {
        return QTest::qWaitFor([&] { return mSession->isOurs() == isOurs; }, kPatience);
    }

    PrivateBus mBus;
    std::optional<SeatSession> mSession;
};

} // namespace

TEST_F(Seat, isOursWithoutALogind)
{
    start();
    EXPECT_TRUE(becomes(true));
}

TEST_F(Seat, isOursWithoutABus)
{
    const SeatSession session(QDBusConnection(QStringLiteral("no bus")));
    EXPECT_TRUE(session.isOurs());
}

TEST_F(Seat, isNotOursBeforeItIsKnown)
{
    const FakeLogin login(mBus.address());
    EXPECT_FALSE(start().isOurs());
    EXPECT_TRUE(becomes(true));
}

TEST_F(Seat, isNotOursWhileTheSessionIsLockedInTheBackgroundOrAsleep)
{
    FakeLogin login(mBus.address());
    start();
    EXPECT_TRUE(becomes(true));
    for (const auto& [property, value] : {std::pair("LockedHint", true), {"Active", false}}) {
        login.set(property, value);
        EXPECT_TRUE(becomes(false)) << property;
        login.set(property, !value);
        EXPECT_TRUE(becomes(true)) << property;
    }
    login.prepareForSleep(true);
    EXPECT_TRUE(becomes(false));
    login.set("LockedHint", true);
    login.prepareForSleep(false);
    QTest::qWait(100);
    EXPECT_FALSE(mSession->isOurs()) << "it has woken up with its screen locked";
    login.set("LockedHint", false);
    EXPECT_TRUE(becomes(true));
}

TEST_F(Seat, isNotOursInASessionThatIsLockedAtTheStart)
{
    FakeLogin login(mBus.address());
    login.session.insert(QStringLiteral("LockedHint"), true);
    start();
    QTest::qWait(100);
    EXPECT_FALSE(mSession->isOurs());
}

TEST_F(Seat, asksAgainWhatLogindHasNotAnswered)
{
    for (const char* const method : {"Get", "GetAll"}) {
        FakeLogin login(mBus.address());
        login.unanswered = QLatin1String(method);
        start();
        EXPECT_TRUE(becomes(true)) << method;
        EXPECT_EQ(login.unanswered, QString()) << method;
        login.set("LockedHint", true);
        EXPECT_TRUE(becomes(false)) << method;
        login.unanswered = QLatin1String(method);
        const int before = login.answers;
        login.set("Active", true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return login.answers > before; }, kPatience)) << method;
        EXPECT_EQ(login.unanswered, QString()) << method;
        EXPECT_FALSE(mSession->isOurs()) << "it is still locked; " << method;
        mSession.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("driver"));
    }
}

TEST_F(Seat, isNotOursWithoutASession)
{
    FakeLogin login(mBus.address());
    start();
    EXPECT_TRUE(becomes(true));
    login.setSession(QString());
    EXPECT_TRUE(becomes(false));
    login.setSession(QStringLiteral("2"));
    EXPECT_TRUE(becomes(true));
}

TEST_F(Seat, delaysTheSleepUntilTheTabletIsReleased)
{
    FakeLogin login(mBus.address());
    SeatSession& session = start();
    const auto delays = [&](bool isDelayed) {
        return QTest::qWaitFor([&] { return login.isDelayed() == isDelayed; }, kPatience);
    };
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(delays(true)) << "sleep number " << i;
        login.prepareForSleep(true);
        EXPECT_TRUE(becomes(false));
        EXPECT_TRUE(login.isDelayed());
        session.letSleep();
        EXPECT_TRUE(delays(false));
        login.prepareForSleep(false);
        EXPECT_TRUE(becomes(true));
    }
}

TEST_F(Seat, delaysNoSleepWhileTheSessionIsNotOurs)
{
    FakeLogin login(mBus.address());
    login.session.insert(QStringLiteral("LockedHint"), true);
    start();
    QTest::qWait(100);
    EXPECT_FALSE(login.delay) << "there is nothing to release";
}
