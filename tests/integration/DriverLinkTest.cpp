// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The link to the driver over a real session bus: with the real driver, and with a peer that
// misbehaves.

#include "Client.h"
#include "DBusAppleEvents.h"
#include "DriverProcess.h"
#include "ErrorText.h"
#include "LivingBus.h"
#include "Notifications.h"
#include "Peer.h"
#include "PlainWire.h"
#include "PrivateBus.h"
#include "QVDriverProtocol.h"
#include "Service.h"
#include "TemporaryHome.h"
#include "Wait.h"
#include "rzkApplication.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <malloc.h>
#include <map>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace platform;

namespace {

// What other drivers rely on, as it is written in docs/driver-protocol.md.
const QString kDriverName = QStringLiteral("org.quorvia.AppleEvents.TdSg");
constexpr const char* kEventNotHandled = "org.quorvia.AppleEvents.Error.EventNotHandled";
constexpr const char* kCoercionFail = "org.quorvia.AppleEvents.Error.CoercionFail";

/** The beginning of a private bus's address. */
const QByteArray kUnixPath("unix:path=");

/**
 * Within this time in milliseconds, a query has timed out by itself. Its time-out is a quarter of a
 * second; without it, the bus library hangs for 25 seconds. The limit is far from both, so that a
 * busy machine causes no failure.
 */
constexpr qint64 kQueryLimit = 10000;

template <class Value>
QByteArray bytes(Value value)
{
    return {reinterpret_cast<const char*>(&value), static_cast<int>(sizeof value)};
}

/** The driver's answer with one parameter. */
Peer::Answer replyWith(uint keyword, uint type, const QVariant& data)
{
    return [=](const QDBusMessage& call) {
        return call.createReply(parameters({TestParameter{keyword, {type, QDBusVariant(data)}}}));
    };
}

Peer::Answer replyWithLong(std::int32_t number)
{
    return replyWith(keyDirectObject, typeLongInteger, bytes(number));
}

/** The size of a message part that is noticed in the memory in use. */
constexpr std::size_t kBigPart = std::size_t{1} << 20U;

std::size_t memoryInUse()
{
    const auto figures = mallinfo2();
    return figures.uordblks + figures.hblkhd;
}

/** Expects that an exchange with a part of that size keeps none of its memory. */
template <class Exchange>
void expectNoGrowth(const Exchange& exchange)
{
    constexpr int kTimes = 8;
    exchange(); // the first one may allocate permanently
    const std::size_t before = memoryInUse();
    for (int i = 0; i < kTimes; ++i) {
        exchange();
    }
    EXPECT_LT(memoryInUse(), before + kTimes / 2 * kBigPart);
}

/** Waits longer, where a busy machine must not look like a driver that does not answer. */
class PatientEvents final : public DBusAppleEvents {
public:
    OSErr send(const AppleEvent& event, AppleEvent* reply, AESendMode mode, AESendPriority priority,
        std::int32_t timeOut) override
    {
        constexpr std::int32_t kFactor = 200;
        return DBusAppleEvents::send(event, reply, mode, priority, kFactor * timeOut);
    }
};

class DriverLink : public testing::Test {
protected:
    void SetUp() override
    {
        registerPlainWire();
        pListname = {};
    }

    /** Pushes, with the diagnostics captured. @return the diagnostics */
    static std::string push()
    {
        testing::internal::CaptureStderr();
        EXPECT_TRUE(PushQVTabletInfo());
        return testing::internal::GetCapturedStderr();
    }

    /** Sends a call to a receiver of events and runs the event loop until the reply. */
    static QDBusMessage sendTo(
        DBusAppleEvents& receiver, Peer& sender, const QList<QVariant>& arguments)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(receiver.connection().baseService(),
            QLatin1String(wire::kObjectPath), QLatin1String(wire::kInterface),
            QStringLiteral("Send"));
        call.setArguments(arguments);
        const QDBusPendingCall pending = sender.connection().asyncCall(call, 5000);
        while (!pending.isFinished()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        }
        return pending.reply();
    }

    static QList<QVariant> event(uint eventClass, uint eventID, const Parameters& list)
    {
        return {eventClass, eventID, parameters(list)};
    }

    /** Counts the notifications with a name from now on. */
    int& countOf(QLatin1String name)
    {
        int& count = mCounts[QString(name)];
        notifications().addObserver(
            mObserver, QString(name), [&count](const Notification&) { ++count; });
        return count;
    }

    /** Runs the event loop until the condition holds or a time-out; returns whether it holds. */
    template <class Condition>
    static bool waitUntil(const Condition& holds)
    {
        QElapsedTimer timer;
        timer.start();
        while (!holds() && timer.elapsed() < kPatience) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        }
        return holds();
    }
    /** Waits for that many notifications; returns the number. */
    static int waitForCount(const int& counted, int count)
    {
        waitUntil([&] { return counted >= count; });
        return counted;
    }

    std::map<QString, int> mCounts;
    QObject mObserver;
    TemporaryHome mHome;
    PrivateBus mBus;
    DBusAppleEvents mEvents;
    ServiceScope<AppleEvents> mScope{mEvents};
};

} // namespace

// The query ---------------------------------------------------------------------------------------

TEST_F(DriverLink, findsNoTabletWithoutADriver)
{
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "");
    EXPECT_FALSE(GetQVTabeltDevices());
}

TEST_F(DriverLink, findsTheTabletThatTheRealDriverHas)
{
    const DriverProcess driver;
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "20737.plist");
    DriverProcess::ask<void>("Attach", ushort{0x5103});
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "20739.plist");
    DriverProcess::ask<void>("Detach");
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "0.plist");
}

TEST_F(DriverLink, asksInExactlyTheWiresForm)
{
    Peer driver(mBus, kDriverName);
    driver.answer = replyWithLong(7);
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "7.plist");

    ASSERT_EQ(driver.calls().size(), 1U);
    const QDBusMessage call = driver.calls().front();
    EXPECT_EQ(call.path(), QStringLiteral("/org/quorvia/AppleEvents"));
    EXPECT_EQ(call.interface(), QStringLiteral("org.quorvia.AppleEvents1"));
    EXPECT_EQ(call.member(), QStringLiteral("Send"));
    EXPECT_EQ(call.signature(), QStringLiteral("uua(u(uv))"));
    EXPECT_EQ(call.arguments()[0].toUInt(), 0x636F7265U); // core
    EXPECT_EQ(call.arguments()[1].toUInt(), 0x67657464U); // getd
    const auto list = qdbus_cast<Parameters>(call.arguments()[2]);
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].keyword, 0x72747970U); // rtyp
    EXPECT_EQ(list[0].desc.type, 0x74797065U); // type
    EXPECT_EQ(list[0].desc.data.variant().toByteArray(), bytes(0x6C6F6E67U)); // long
    EXPECT_EQ(list[1].keyword, 0x2D2D2D2DU); // ----
    EXPECT_EQ(list[1].desc.type, 0x6F626A20U); // obj
    const auto specifier = qdbus_cast<Parameters>(list[1].desc.data.variant());
    ASSERT_EQ(specifier.size(), 4);
    EXPECT_EQ(specifier[2].keyword, 0x73656C64U); // seld
    EXPECT_EQ(specifier[2].desc.data.variant().toByteArray(),
        bytes(0x51434647U) + bytes(0x54645367U)); // QCFG, TdSg
    EXPECT_EQ(specifier[3].desc.type, 0x6E756C6CU); // null
    EXPECT_EQ(specifier[3].desc.data.variant().toByteArray(), QByteArray());
}

TEST_F(DriverLink, takesTheAnswersAsTheyAre)
{
    struct Case {
        std::int32_t answer;
        const char* name;
        bool present;
    };
    for (const Case& c : {Case{0, "0.plist", false}, {1, "1.plist", true},
             {65535, "65535.plist", true}, {65536, "0.plist", true}, {-1, "65535.plist", true}}) {
        Peer driver(mBus, kDriverName);
        driver.answer = replyWithLong(c.answer);
        EXPECT_EQ(rzkgetQVDevice(), c.present) << c.answer;
        EXPECT_STREQ(GetPListName(), c.name) << c.answer;
    }
}

TEST_F(DriverLink, takesA64BitAnswerByItsFirstFourBytes)
{
    Peer driver(mBus, kDriverName);
    driver.answer = replyWith(keyDirectObject, typeLongInteger, bytes(std::int64_t{0x5'0000'0007}));
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "7.plist");
}

TEST_F(DriverLink, takesAnEmptyReplyOrOneOfAnotherTypeForZero)
{
    const std::vector<Peer::Answer> answers{
        [](const QDBusMessage& call) { return call.createReply(parameters({})); },
        replyWith(keyDirectObject, typeUTF8Text, QByteArray("7.plist")),
        replyWith(keyDirectObject, typeLongInteger, QVariant::fromValue(Descriptors())),
        replyWith(keyErrorString, typeLongInteger, bytes(std::int32_t{7})),
    };
    for (const Peer::Answer& answer : answers) {
        std::strcpy(GetPListName(), "former");
        Peer driver(mBus, kDriverName);
        driver.answer = answer;
        EXPECT_FALSE(rzkgetQVDevice());
        EXPECT_STREQ(GetPListName(), "0.plist");
    }
}

TEST_F(DriverLink, takesAnErrorOrAReplyOfAnotherFormForNoAnswer)
{
    const std::vector<Peer::Answer> answers{
        [](const QDBusMessage& call) {
            return call.createErrorReply(
                QString::fromLatin1(kEventNotHandled), QStringLiteral("no"));
        },
        [](const QDBusMessage& call) {
            return call.createErrorReply(QStringLiteral("org.example.Other"), QStringLiteral("no"));
        },
        [](const QDBusMessage& call) { return call.createReply(); },
        [](const QDBusMessage& call) { return call.createReply(QStringLiteral("7")); },
        [](const QDBusMessage& call) { return call.createReply(7); },
        replyWith(keyDirectObject, typeLongInteger, 7),
        replyWith(keyDirectObject, typeLongInteger, QStringList{QStringLiteral("7")}),
    };
    for (const Peer::Answer& answer : answers) {
        std::strcpy(GetPListName(), "former");
        Peer driver(mBus, kDriverName);
        driver.answer = answer;
        EXPECT_FALSE(rzkgetQVDevice());
        EXPECT_STREQ(GetPListName(), "former");
    }
}

TEST_F(DriverLink, logsAReplyOfAnotherForm)
{
    Peer driver(mBus, kDriverName);
    driver.answer = [](const QDBusMessage& call) { return call.createReply(7); };
    testing::internal::CaptureStderr();
    EXPECT_FALSE(rzkgetQVDevice());
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("org.quorvia.AppleEvents.TdSg sent a malformed reply"), std::string::npos)
        << log;
}

TEST_F(DriverLink, waitsForADriverThatTakesATenthOfASecond)
{
    PatientEvents patient;
    const ServiceScope<AppleEvents> scope(patient);
    Peer driver(mBus, kDriverName);
    driver.delay = std::chrono::milliseconds(100);
    driver.answer = replyWithLong(7);
    EXPECT_TRUE(rzkgetQVDevice());
}

TEST_F(DriverLink, givesUpOnADriverThatTakesThreeSeconds)
{
    Peer driver(mBus, kDriverName);
    driver.delay = std::chrono::seconds(3);
    driver.answer = replyWithLong(7);
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "");
}

TEST_F(DriverLink, givesUpOnADriverThatIsStopped)
{
    const DriverProcess driver;
    driver.signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_GE(timer.elapsed(), 200);
    EXPECT_LT(timer.elapsed(), kQueryLimit);
    driver.signal(SIGCONT);
    EXPECT_TRUE(rzkgetQVDevice());
}

TEST_F(DriverLink, doesNotRunTheUserInterfaceWhileItWaits)
{
    PatientEvents patient;
    const ServiceScope<AppleEvents> scope(patient);
    Peer driver(mBus, kDriverName);
    driver.delay = std::chrono::milliseconds(100);
    driver.answer = replyWithLong(7);
    bool ran = false;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [&] { ran = true; }, Qt::QueuedConnection);
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_FALSE(ran);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ran);
}

TEST_F(DriverLink, findsNoTabletWithoutABus)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_EQ(push(), "ConnectToDriver 0 0 0 0\nConnectToDriver ok\n");
}

TEST_F(DriverLink, leavesTheBusWithItsService)
{
    QString name;
    {
        DBusAppleEvents events;
        name = events.connection().baseService();
    }
    Peer peer(mBus);
    EXPECT_TRUE(
        waitUntil([&] { return !peer.connection().interface()->isServiceRegistered(name); }));
}

TEST_F(DriverLink, logsThatThereIsNoBus)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    DBusAppleEvents events;
    testing::internal::CaptureStderr();
    events.acceptEventsFrom(kQVDriverSignature);
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("no session bus: "), std::string::npos) << log;
}

// The push ----------------------------------------------------------------------------------------

TEST_F(DriverLink, pushesTheRecordByteForByte)
{
    const DriverProcess driver;
    auto* const record = reinterpret_cast<unsigned char*>(GetqvTabletInfo());
    for (int i = 0; i < kQVRecordSize; ++i) {
        record[i] = static_cast<unsigned char>(i * 31 + 7);
    }
    push();
    EXPECT_EQ(mEvents.finishSends(), noErr);
    EXPECT_EQ(DriverProcess::ask<QByteArray>("LastRecord"),
        QByteArray(reinterpret_cast<const char*>(record), kQVRecordSize));
}

TEST_F(DriverLink, pushesInExactlyTheWiresForm)
{
    Peer driver(mBus, kDriverName);
    driver.answer = [](const QDBusMessage& call) { return call.createReply(parameters({})); };
    push();
    EXPECT_EQ(mEvents.finishSends(), noErr);
    ASSERT_EQ(driver.calls().size(), 1U);
    const QDBusMessage call = driver.calls().front();
    EXPECT_EQ(call.signature(), QStringLiteral("uua(u(uv))"));
    EXPECT_EQ(call.arguments()[0].toUInt(), 0x54645367U); // TdSg
    EXPECT_EQ(call.arguments()[1].toUInt(), 0x57536E64U); // WSnd
    const auto list = qdbus_cast<Parameters>(call.arguments()[2]);
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].keyword, 0x64617461U); // data
    EXPECT_EQ(list[0].desc.type, 0x75746638U); // utf8
    EXPECT_EQ(list[0].desc.data.variant().toByteArray().size(), 5077);
}

TEST_F(DriverLink, sendsListsInExactlyTheWiresForm)
{
    Peer driver(mBus, kDriverName);
    driver.answer = [](const QDBusMessage& call) { return call.createReply(parameters({})); };
    const AEList items{{3, QByteArray("ab")}, {4, AERecord{{5, {6, QByteArray("c")}}}}};
    AppleEvent reply;
    EXPECT_EQ(mEvents.send({1, 2, {typeBusName, driver.uniqueName().toUtf8()},
                               {{10, {fourCharCode("list"), items}}, {11, {7, QByteArray("d")}}}},
                  &reply, kAEWaitReply, kAEHighPriority, 15),
        noErr);
    ASSERT_EQ(driver.calls().size(), 1U);
    const auto list = qdbus_cast<Parameters>(driver.calls().front().arguments()[2]);
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[1].keyword, 11U);
    EXPECT_EQ(list[1].desc.data.variant().toByteArray(), "d");
    const auto sent = qdbus_cast<Descriptors>(list[0].desc.data.variant());
    ASSERT_EQ(sent.size(), 2);
    EXPECT_EQ(sent[0].type, 3U);
    EXPECT_EQ(sent[0].data.variant().toByteArray(), "ab");
    EXPECT_EQ(sent[1].type, 4U);
    const auto record = qdbus_cast<Parameters>(sent[1].data.variant());
    ASSERT_EQ(record.size(), 1);
    EXPECT_EQ(record[0].keyword, 5U);
    EXPECT_EQ(record[0].desc.type, 6U);
    EXPECT_EQ(record[0].desc.data.variant().toByteArray(), "c");
}

TEST_F(DriverLink, pushesArriveInOrder)
{
    Peer driver(mBus, kDriverName);
    driver.answer = [](const QDBusMessage& call) { return call.createReply(parameters({})); };
    for (std::int16_t i = 0; i < 200; ++i) {
        qvTabletInfo.Pen.Speed = i;
        push();
    }
    EXPECT_EQ(mEvents.finishSends(), noErr);
    const std::vector<QDBusMessage> calls = driver.calls();
    ASSERT_EQ(calls.size(), 200U);
    for (std::int16_t i = 0; i < 200; ++i) {
        const auto list = qdbus_cast<Parameters>(calls[static_cast<std::size_t>(i)].arguments()[2]);
        EXPECT_EQ(list[0].desc.data.variant().toByteArray().mid(285, 2), bytes(i));
    }
}

TEST_F(DriverLink, aPushWithoutADriverSaysOkAndFails)
{
    EXPECT_EQ(push(), "ConnectToDriver 0 0 0 0\nConnectToDriver ok\n");
    EXPECT_EQ(mEvents.finishSends(), procNotFound);
    EXPECT_EQ(mEvents.finishSends(), noErr) << "an error is told once";
}

TEST_F(DriverLink, tellsWhetherAPushWasTaken)
{
    int& taken = countOf(kEventTakenNotification);
    int& notTaken = countOf(kEventNotTakenNotification);
    push();
    EXPECT_EQ(taken + notTaken, 0) << "before there is an answer";
    mEvents.finishSends();
    EXPECT_EQ(notTaken, 1);
    const DriverProcess driver;
    push();
    mEvents.finishSends();
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(notTaken, 1);
}

TEST_F(DriverLink, tellsOfAPushThatWasTakenWhileNobodyWaits)
{
    int& taken = countOf(kEventTakenNotification);
    const DriverProcess driver;
    push();
    while (taken == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    EXPECT_EQ(mEvents.finishSends(), noErr);
    EXPECT_EQ(taken, 1) << "once";
}

TEST_F(DriverLink, tellsOfAPushWithoutABus)
{
    int& notTaken = countOf(kEventNotTakenNotification);
    mBus.stop();
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_EQ(notTaken, 0) << "who waits for the reply knows";
    push();
    EXPECT_EQ(notTaken, 1);
}

TEST_F(DriverLink, tellsTheErrorsOfASendApart)
{
    struct Case {
        const char* name;
        OSErr error;
    };
    for (const Case& c : {Case{kEventNotHandled, errAEEventNotHandled},
             {kCoercionFail, errAECoercionFail}, {"org.example.Other", errAEEventNotHandled},
             {"org.freedesktop.DBus.Error.Spawn.ExecFailed", procNotFound},
             {"org.freedesktop.DBus.Error.ServiceUnknown", procNotFound},
             {"org.freedesktop.DBus.Error.NoReply", errAETimeout},
             {"org.freedesktop.DBus.Error.Timeout", errAETimeout},
             {"org.freedesktop.DBus.Error.TimedOut", errAETimeout},
             {"org.freedesktop.DBus.Error.Disconnected", connectionInvalid}}) {
        Peer driver(mBus, kDriverName);
        driver.answer = [&](const QDBusMessage& call) {
            return call.createErrorReply(QString::fromLatin1(c.name), QStringLiteral("no"));
        };
        push();
        EXPECT_EQ(mEvents.finishSends(), c.error) << c.name;
    }
}

TEST_F(DriverLink, sendsNowhereWithoutAnAddressThatItKnows)
{
    AppleEvent reply;
    for (const AEDesc& address : {AEDesc{typeApplSignature, QByteArray("TdS")},
             AEDesc{typeApplSignature, QByteArray("gSdT!")}, AEDesc{typeApplSignature, AEList{}},
             AEDesc{typeUTF8Text, QByteArray("gSdT")}}) {
        EXPECT_EQ(mEvents.send({1, 2, address, {}}, &reply, kAEWaitReply, kAEHighPriority, 15),
            connectionInvalid);
    }
}

TEST_F(DriverLink, keepsNothingOfTheAnswersToPushes)
{
    Peer driver(mBus, kDriverName);
    driver.answer =
        replyWith(keyDirectObject, typeUTF8Text, QByteArray(static_cast<int>(kBigPart), 'x'));
    expectNoGrowth([this] {
        push();
        EXPECT_EQ(mEvents.finishSends(), noErr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
}

TEST_F(DriverLink, aPushAfterTheDriverWasKilledSaysOk)
{
    DriverProcess driver;
    EXPECT_TRUE(rzkgetQVDevice());
    driver.kill();
    EXPECT_EQ(push(), "ConnectToDriver 0 0 0 0\nConnectToDriver ok\n");
    EXPECT_NE(mEvents.finishSends(), noErr);
}

TEST_F(DriverLink, aPushNeverHoldsTheCallerWhileTheDriverHangs)
{
    const DriverProcess driver;
    driver.signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    for (std::int16_t i = 1; i <= 40; ++i) {
        qvTabletInfo.Pen.Speed = i;
        push();
    }
    // Waiting for each would have taken ten seconds.
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(mEvents.finishSends(), errAETimeout);
    driver.signal(SIGCONT);
    while (DriverProcess::ask<uint>("Pushes") < 40) {
        QThread::msleep(5);
    }
    EXPECT_EQ(DriverProcess::ask<QByteArray>("LastRecord").mid(285, 2), bytes(std::int16_t{40}));
}

TEST_F(DriverLink, aPushHoldsNobodyWhileTheBusItselfHangs)
{
    const DriverProcess driver;
    EXPECT_TRUE(rzkgetQVDevice());
    ::kill(static_cast<pid_t>(mBus.pid()), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 200; ++i) {
        push(); // more than a socket takes
    }
    EXPECT_LT(timer.elapsed(), 5000);
    ::kill(static_cast<pid_t>(mBus.pid()), SIGCONT);
    mEvents.finishSends();
    while (DriverProcess::ask<uint>("Pushes") < 200) {
        QThread::msleep(5);
    }
}

TEST_F(DriverLink, goesOnAfterTheDriverWasStartedAgain)
{
    {
        DriverProcess driver;
        EXPECT_TRUE(rzkgetQVDevice());
        driver.kill();
    }
    EXPECT_FALSE(rzkgetQVDevice());
    const DriverProcess driver;
    EXPECT_TRUE(rzkgetQVDevice());
    push();
    EXPECT_EQ(mEvents.finishSends(), noErr);
}

TEST_F(DriverLink, goesOnAfterTheBusWasStartedAgain)
{
    {
        const DriverProcess driver;
        EXPECT_TRUE(rzkgetQVDevice());
        mBus.stop();
        EXPECT_FALSE(rzkgetQVDevice());
    }
    mBus.start();
    const DriverProcess driver;
    EXPECT_TRUE(rzkgetQVDevice());
}

TEST_F(DriverLink, theQuerysTimeOutBoundsTheConnectingToABusThatHangs)
{
    {
        const DriverProcess driver;
        EXPECT_TRUE(rzkgetQVDevice());
    }
    mBus.stop();
    mBus.start();
    ::kill(static_cast<pid_t>(mBus.pid()), SIGSTOP);
    DBusAppleEvents other;
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(rzkgetQVDevice()) << "a connection made again";
    EXPECT_LT(timer.restart(), kQueryLimit);
    push();
    EXPECT_LT(timer.restart(), kQueryLimit);
    other.acceptEventsFrom(kQVDriverSignature);
    EXPECT_LT(timer.restart(), kQueryLimit) << "the first connection";
    ::kill(static_cast<pid_t>(mBus.pid()), SIGCONT);
    const DriverProcess driver;
    EXPECT_TRUE(rzkgetQVDevice());
}

TEST_F(DriverLink, aBusThatHangsWithAFullQueueIsGivenUpAtOnce)
{
    ::kill(static_cast<pid_t>(mBus.pid()), SIGSTOP);
    const QByteArray path = mBus.address().toUtf8().mid(kUnixPath.size());
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof place.sun_path);
    std::memcpy(place.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    std::vector<int> waiting;
    int result = 0;
    while (result == 0) {
        waiting.push_back(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
        result = ::connect(waiting.back(), reinterpret_cast<const sockaddr*>(&place), sizeof place);
    }
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_LT(timer.elapsed(), kQueryLimit);
    for (const int number : waiting) {
        ::close(number);
    }
    ::kill(static_cast<pid_t>(mBus.pid()), SIGCONT);
}

TEST_F(DriverLink, aBusThatHangsIsFoundOutHoweverItsAddressIsGiven)
{
    const DriverProcess driver;
    const QByteArray real = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray folder =
        QFileInfo(QString::fromUtf8(real.mid(kUnixPath.size()))).path().toUtf8();
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    struct Case {
        QByteArray address;
        QByteArray runtimeFolder;
    };
    for (const Case& c : {Case{"unix:path=/nowhere;" + real, before},
             {"unix:path=" + folder + "/%62us", before}, {"", folder}}) {
        if (c.address.isEmpty()) {
            qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        } else {
            qputenv("DBUS_SESSION_BUS_ADDRESS", c.address);
        }
        qputenv("XDG_RUNTIME_DIR", c.runtimeFolder);
        DBusAppleEvents events;
        const ServiceScope<AppleEvents> scope(events);
        ::kill(static_cast<pid_t>(mBus.pid()), SIGSTOP);
        QElapsedTimer timer;
        timer.start();
        EXPECT_FALSE(rzkgetQVDevice());
        EXPECT_LT(timer.elapsed(), kQueryLimit) << c.address.constData();
        ::kill(static_cast<pid_t>(mBus.pid()), SIGCONT);
        EXPECT_TRUE(rzkgetQVDevice()) << c.address.constData();
    }
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST(DriverActivation, theBusStartsTheDriverOnDemand)
{
    const TemporaryHome home;
    const PrivateBus bus(PrivateBus::Activation::On);
    DBusAppleEvents events;
    const ServiceScope<AppleEvents> scope(events);
    // The first query may time out on a machine that starts programs slowly.
    bool found = false;
    for (int i = 0; i < 20 && !found; ++i) {
        found = rzkgetQVDevice();
    }
    EXPECT_TRUE(found);
    EXPECT_TRUE(QFile::exists(home.configFile(20737)));
}

TEST(DriverActivation, theProcessHasALinkOfItsOwn)
{
    const TemporaryHome home;
    const PrivateBus bus;
    const DriverProcess driver;
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "20737.plist");
    EXPECT_EQ(&events(), &events());
}

// What arrives ------------------------------------------------------------------------------------

namespace {

class Inbound : public DriverLink {
protected:
    void SetUp() override
    {
        DriverLink::SetUp();
        mEvents.acceptEventsFrom(kQVDriverSignature);
    }

    /** Sends a call to the panel. */
    QDBusMessage send(Peer& sender, const QList<QVariant>& arguments)
    {
        return sendTo(mEvents, sender, arguments);
    }
};

/** Nested lists of that depth; the innermost is empty. */
TestDesc nestedList(int depth)
{
    Descriptors list;
    if (depth > 1) {
        list.append(nestedList(depth - 1));
    }
    return {fourCharCode("list"), QDBusVariant(QVariant::fromValue(list))};
}

} // namespace

TEST_F(Inbound, theDriversEventReachesItsHandler)
{
    AppleEvent received;
    mEvents.installEventHandler(
        kAECoreSuite, kAEGetData, [&](const AppleEvent& event, AppleEvent& reply) {
            received = event;
            const std::int32_t answer = 42;
            return mEvents.putParamPtr(reply, keyDirectObject, typeLongInteger, bytesOf(answer));
        });
    Peer driver(mBus, kDriverName);
    const Descriptors items{{1, QDBusVariant(QByteArray("ab"))}, {2, QDBusVariant(QByteArray())},
        {3,
            QDBusVariant(
                QVariant::fromValue(Parameters{{9, {8, QDBusVariant(QByteArray("x"))}}}))}};
    const QDBusMessage reply = send(driver,
        event(kAECoreSuite, kAEGetData,
            {{keyDirectObject, {fourCharCode("list"), QDBusVariant(QVariant::fromValue(items))}}}));
    ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    const auto answer = qdbus_cast<Parameters>(reply.arguments().constFirst());
    ASSERT_EQ(answer.size(), 1);
    EXPECT_EQ(answer[0].desc.data.variant().toByteArray(), bytes(std::int32_t{42}));

    EXPECT_EQ(*received.address.bytes(), driver.uniqueName().toUtf8());
    const auto& list = std::get<AEList>(find(received.parameters, keyDirectObject)->data);
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(*list[0].bytes(), "ab");
    EXPECT_EQ(*list[1].bytes(), "");
    EXPECT_EQ(*std::get<AERecord>(list[2].data).front().desc.bytes(), "x");
}

TEST_F(Inbound, anEventThatNobodyHandlesIsAnsweredSo)
{
    Peer driver(mBus, kDriverName);
    EXPECT_EQ(send(driver, event(1, 2, {})).errorName(), QString::fromLatin1(kEventNotHandled));
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    EXPECT_EQ(send(driver, event(1, 2, {})).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(mEvents.removeEventHandler(1, 2), noErr);
    EXPECT_EQ(mEvents.removeEventHandler(1, 2), errAEHandlerNotFound);
    EXPECT_EQ(send(driver, event(1, 2, {})).errorName(), QString::fromLatin1(kEventNotHandled));
}

TEST_F(Inbound, installingAgainReplacesTheHandler)
{
    int first = 0;
    int second = 0;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent&) {
        ++first;
        return noErr;
    });
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent&) {
        ++second;
        return noErr;
    });
    Peer driver(mBus, kDriverName);
    send(driver, event(1, 2, {}));
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST_F(Inbound, aHandlersErrorAndReasonReachTheSender)
{
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent& reply) {
        reply.parameters = {{keyErrorString, {typeUTF8Text, "too blue"}}};
        return errAECoercionFail;
    });
    Peer driver(mBus, kDriverName);
    const QDBusMessage reply = send(driver, event(1, 2, {}));
    EXPECT_EQ(reply.errorName(), QString::fromLatin1(kCoercionFail));
    EXPECT_EQ(reply.errorMessage(), QStringLiteral("too blue"));
}

TEST_F(Inbound, isAnsweredWhileItsHandlerRunsTheEventLoop)
{
    Peer driver(mBus, kDriverName);
    bool wasAnswered = false;
    QEventLoop loop;
    int nested = 0;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent& reply) {
        reply.parameters = {{keyDirectObject, {typeUTF8Text, "so far"}}};
        nested = loop.exec();
        reply.parameters = {{keyErrorString, {typeUTF8Text, "too late"}}};
        return errAECoercionFail;
    });
    QDBusMessage call = QDBusMessage::createMethodCall(mEvents.connection().baseService(),
        QLatin1String(wire::kObjectPath), QLatin1String(wire::kInterface), QStringLiteral("Send"));
    call.setArguments(event(1, 2, {}));
    const QDBusPendingCall pending = driver.connection().asyncCall(call, 20000);
    QDBusPendingCallWatcher watcher(pending);
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, [&] {
        wasAnswered = loop.isRunning();
        loop.exit(7);
    });
    EXPECT_TRUE(waitUntil([&] { return pending.isFinished() && nested == 7; }));
    EXPECT_TRUE(wasAnswered);
    ASSERT_EQ(pending.reply().type(), QDBusMessage::ReplyMessage);
    const auto answer = qdbus_cast<Parameters>(pending.reply().arguments().constFirst());
    ASSERT_EQ(answer.size(), 1);
    EXPECT_EQ(answer[0].desc.data.variant().toByteArray(), "so far");
}

TEST_F(Inbound, aHandlerMayRemoveItself)
{
    int count = 0;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent&) {
        mEvents.removeEventHandler(1, 2);
        ++count;
        return noErr;
    });
    Peer driver(mBus, kDriverName);
    send(driver, event(1, 2, {}));
    send(driver, event(1, 2, {}));
    EXPECT_EQ(count, 1);
}

TEST_F(Inbound, aStrangerIsRefusedAndLogged)
{
    bool handled = false;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent&) {
        handled = true;
        return noErr;
    });
    const DriverProcess driver;
    Peer stranger(mBus);
    testing::internal::CaptureStderr();
    const QDBusMessage reply = send(stranger, event(1, 2, {}));
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_EQ(reply.errorName(), QStringLiteral("org.freedesktop.DBus.Error.AccessDenied"));
    EXPECT_FALSE(handled);
    EXPECT_NE(log.find("rejected an event that is not from the driver, sent by "
                  + stranger.uniqueName().toStdString()),
        std::string::npos)
        << log;
}

TEST_F(Inbound, everybodyIsRefusedWhileThereIsNoDriver)
{
    Peer stranger(mBus);
    EXPECT_EQ(send(stranger, event(1, 2, {})).errorName(),
        QStringLiteral("org.freedesktop.DBus.Error.AccessDenied"));
}

TEST_F(Inbound, onlyThePresentOwnerOfTheDriversNameIsTaken)
{
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    Peer first(mBus, kDriverName);
    EXPECT_EQ(send(first, event(1, 2, {})).type(), QDBusMessage::ReplyMessage);
    ASSERT_TRUE(first.connection().unregisterService(kDriverName));
    Peer second(mBus, kDriverName);
    EXPECT_EQ(send(second, event(1, 2, {})).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(send(first, event(1, 2, {})).errorName(),
        QStringLiteral("org.freedesktop.DBus.Error.AccessDenied"));
}

TEST_F(Inbound, anotherSourceTakesThePlaceOfTheFirst)
{
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    Peer driver(mBus, kDriverName);
    Peer other(mBus, QStringLiteral("org.quorvia.AppleEvents.Othr"));
    EXPECT_EQ(send(driver, event(1, 2, {})).type(), QDBusMessage::ReplyMessage);
    mEvents.acceptEventsFrom(fourCharCode("Othr"));
    EXPECT_EQ(send(other, event(1, 2, {})).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(send(driver, event(1, 2, {})).errorName(),
        QStringLiteral("org.freedesktop.DBus.Error.AccessDenied"));
}

TEST_F(Inbound, malformedEventsAreRefused)
{
    bool handled = false;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent&) {
        handled = true;
        return noErr;
    });
    Peer driver(mBus, kDriverName);
    const QList<QList<QVariant>> malformed{
        {},
        {1U, 2U},
        {1U, 2U, QStringLiteral("x")},
        {1, 2, parameters({})},
        {1U, 2U, parameters({}), 3U},
        {1U, 2U, QVariant::fromValue(Descriptors())},
        event(1, 2, {{3, {4, QDBusVariant(5)}}}),
        event(1, 2, {{3, {4, QDBusVariant(QStringLiteral("text"))}}}),
        event(1, 2, {{3, {4, QDBusVariant(QStringList())}}}),
        event(1, 2, {{3, {4, QDBusVariant(QVariant::fromValue(QList<int>{5}))}}}),
        event(1, 2, {{3, {4, QDBusVariant(QVariant::fromValue(QDBusVariant(QByteArray())))}}}),
        event(1, 2, {{3, nestedList(9)}}),
        event(1, 2, {{3, nestedList(20)}}),
    };
    for (const QList<QVariant>& arguments : malformed) {
        EXPECT_EQ(send(driver, arguments).errorName(), QString::fromLatin1(kCoercionFail));
    }
    EXPECT_FALSE(handled);
    EXPECT_EQ(send(driver, event(1, 2, {{3, nestedList(8)}})).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(handled);
}

TEST_F(Inbound, aMalformedEventIsLogged)
{
    Peer driver(mBus, kDriverName);
    testing::internal::CaptureStderr();
    send(driver, {1U, 2U});
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("rejected a malformed event, sent by " + driver.uniqueName().toStdString()),
        std::string::npos)
        << log;
}

TEST_F(Inbound, keepsNothingOfAnEventThatWasRead)
{
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    Peer driver(mBus, kDriverName);
    const TestDesc big{4, QDBusVariant(QByteArray(static_cast<int>(kBigPart), 'x'))};
    for (const TestDesc& desc :
        {big, TestDesc{4, QDBusVariant(QVariant::fromValue(Descriptors{big}))}}) {
        expectNoGrowth([&] {
            EXPECT_EQ(send(driver, event(1, 2, {{3, desc}})).type(), QDBusMessage::ReplyMessage);
        });
    }
}

TEST_F(Inbound, moreThan4096ItemsAreMalformed)
{
    std::size_t count = 0;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent& event, AppleEvent&) {
        count = std::get<AEList>(event.parameters.front().desc.data).size();
        return noErr;
    });
    Peer driver(mBus, kDriverName);
    Descriptors items;
    for (int i = 0; i < 4096; ++i) {
        items.append({1, QDBusVariant(QByteArray("123456789012"))});
    }
    const auto withItems = [&] {
        return event(1, 2, {{3, {fourCharCode("list"), QDBusVariant(QVariant::fromValue(items))}}});
    };
    EXPECT_EQ(send(driver, withItems()).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(count, 4096U);
    items.append({1, QDBusVariant(QByteArray())});
    EXPECT_EQ(send(driver, withItems()).errorName(), QString::fromLatin1(kCoercionFail));
}

TEST_F(Inbound, moreThan4096ParametersAreMalformed)
{
    std::size_t count = 0;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent& event, AppleEvent&) {
        count = event.parameters.size();
        return noErr;
    });
    Peer driver(mBus, kDriverName);
    Parameters list;
    for (uint i = 0; i < 4096; ++i) {
        list.append({i, {4, QDBusVariant(QByteArray("x"))}});
    }
    EXPECT_EQ(send(driver, event(1, 2, list)).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(count, 4096U);
    list.append({5000, {4, QDBusVariant(QByteArray())}});
    EXPECT_EQ(send(driver, event(1, 2, list)).errorName(), QString::fromLatin1(kCoercionFail));
}

TEST_F(Inbound, onePartThatIsMalformedSpoilsThoseBehindIt)
{
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    Peer driver(mBus, kDriverName);
    const TestDesc good{4, QDBusVariant(QByteArray("x"))};
    const TestDesc bad{4, QDBusVariant(5)};
    EXPECT_EQ(send(driver, event(1, 2, {{3, bad}, {3, good}})).errorName(),
        QString::fromLatin1(kCoercionFail));
    const Descriptors items{bad, good};
    EXPECT_EQ(
        send(driver, event(1, 2, {{3, {4, QDBusVariant(QVariant::fromValue(items))}}})).errorName(),
        QString::fromLatin1(kCoercionFail));
}

TEST_F(Inbound, bytesMayLieAsDeepAsListsAndNoDeeper)
{
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    Peer driver(mBus, kDriverName);
    const auto within = [](int lists, bool inRecords) {
        TestDesc desc{4, QDBusVariant(QByteArray("x"))};
        for (int i = 0; i < lists; ++i) {
            desc = {4,
                QDBusVariant(inRecords ? QVariant::fromValue(Parameters{{5, desc}})
                                       : QVariant::fromValue(Descriptors{desc}))};
        }
        return desc;
    };
    for (const bool inRecords : {false, true}) {
        EXPECT_EQ(send(driver, event(1, 2, {{3, within(7, inRecords)}})).type(),
            QDBusMessage::ReplyMessage);
        EXPECT_EQ(send(driver, event(1, 2, {{3, within(8, inRecords)}})).errorName(),
            QString::fromLatin1(kCoercionFail));
    }
}

TEST_F(Inbound, aHandlersErrorWithoutAReasonIsItsNumber)
{
    mEvents.installEventHandler(
        1, 2, [](const AppleEvent&, AppleEvent&) { return errAEDescNotFound; });
    Peer driver(mBus, kDriverName);
    const QDBusMessage reply = send(driver, event(1, 2, {}));
    EXPECT_EQ(reply.errorName(), QString::fromLatin1(kEventNotHandled));
    EXPECT_EQ(reply.errorMessage(), QString::number(errAEDescNotFound));
}

TEST_F(Inbound, anEventThatNobodyHandlesIsNamed)
{
    Peer driver(mBus, kDriverName);
    EXPECT_EQ(send(driver, event(fourCharCode("abcd"), fourCharCode("efgh"), {})).errorMessage(),
        QStringLiteral("there is no handler for the event 'abcd'/'efgh'"));
}

TEST_F(Inbound, aStrangersRefusalsAreLoggedOnceUntilTheDriverChanges)
{
    Peer stranger(mBus);
    const auto logged = [&] {
        testing::internal::CaptureStderr();
        send(stranger, event(1, 2, {}));
        return !testing::internal::GetCapturedStderr().empty();
    };
    EXPECT_TRUE(logged());
    EXPECT_FALSE(logged());
    int& changes = countOf(kSourceChangedNotification);
    const Peer driver(mBus, kDriverName);
    while (changes == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    EXPECT_TRUE(logged());
    EXPECT_FALSE(logged());
}

TEST_F(Inbound, only64StrangersAreLogged)
{
    int lines = 0;
    for (int i = 0; i < 66; ++i) {
        Peer stranger(mBus);
        testing::internal::CaptureStderr();
        send(stranger, event(1, 2, {}));
        lines += testing::internal::GetCapturedStderr().empty() ? 0 : 1;
    }
    EXPECT_EQ(lines, 64);
}

TEST_F(Inbound, theDriversComingAndItsWordAreChangesAndItsGoingIsNone)
{
    const int& changes = countOf(kSourceChangedNotification);
    Peer driver(mBus, kDriverName);
    EXPECT_EQ(waitForCount(changes, 1), 1);
    driver.connection().send(QDBusMessage::createSignal(QLatin1String(wire::kObjectPath),
        QLatin1String(wire::kInterface), QLatin1String(wire::kChangedSignal)));
    EXPECT_EQ(waitForCount(changes, 2), 2);
    ASSERT_TRUE(driver.connection().unregisterService(kDriverName));
    ASSERT_TRUE(driver.connection().registerService(kDriverName));
    EXPECT_EQ(waitForCount(changes, 3), 3);
}

TEST_F(Inbound, aSignalIsTakenFromTheDriverAlone)
{
    mEvents.acceptSignal(QLatin1String(kQVTabletPath), QLatin1String(kQVTabletInterface),
        QLatin1String(kQVButtonSignal));
    mEvents.acceptEventsFrom(kQVDriverSignature);
    const int& changes = countOf(kSourceChangedNotification);
    const int& buttons = countOf(kSourceSignalNotification);
    Peer stranger(mBus);
    Peer driver(mBus, kDriverName);
    EXPECT_EQ(waitForCount(changes, 1), 1);
    const auto press = [](Peer& peer) {
        QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(kQVTabletPath),
            QLatin1String(kQVTabletInterface), QLatin1String(kQVButtonSignal));
        signal << QVariant::fromValue(ushort{3}) << true;
        EXPECT_TRUE(peer.connection().send(signal));
    };
    press(stranger);
    press(driver);
    EXPECT_EQ(waitForCount(buttons, 1), 1);
    press(driver);
    EXPECT_EQ(waitForCount(buttons, 2), 2) << "the stranger's signal was taken";
}

TEST_F(Inbound, goesOnTakingEventsAfterTheBusWasStartedAgain)
{
    mEvents.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    int& changes = countOf(kSourceChangedNotification);
    mBus.stop();
    EXPECT_FALSE(rzkgetQVDevice());
    mBus.start();
    EXPECT_FALSE(rzkgetQVDevice());
    Peer driver(mBus, kDriverName);
    while (changes == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    EXPECT_EQ(send(driver, event(1, 2, {})).type(), QDBusMessage::ReplyMessage);
}

TEST_F(Inbound, aCallThatOutlivesItsConnectionIsRefused)
{
    bool handled = false;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent&) {
        handled = true;
        return noErr;
    });
    Peer driver(mBus, kDriverName);
    driver.answer = replyWithLong(7);
    QDBusMessage call = QDBusMessage::createMethodCall(mEvents.connection().baseService(),
        QLatin1String(wire::kObjectPath), QLatin1String(wire::kInterface), QStringLiteral("Send"));
    call.setArguments(event(1, 2, {}));
    ASSERT_TRUE(driver.connection().send(call));
    // The driver's answer follows its call on the same connection, so the call has arrived by then.
    ASSERT_TRUE(rzkgetQVDevice());
    mBus.stop();
    while (mEvents.connection().isConnected()) {
        std::this_thread::yield(); // without the event loop, which would take the call
    }
    testing::internal::CaptureStderr();
    QCoreApplication::sendPostedEvents();
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("rejected an event"), std::string::npos) << log;
    EXPECT_FALSE(handled);
}

TEST_F(Inbound, aCallThatNamesNoInterfaceIsTakenAndOneOfAnotherIsNot)
{
    int handled = 0;
    mEvents.installEventHandler(1, 2, [&](const AppleEvent&, AppleEvent&) {
        ++handled;
        return noErr;
    });
    Peer driver(mBus, kDriverName);
    for (const auto& [interface, count] :
        {std::pair{QString(), 1}, std::pair{QStringLiteral("org.example.Other"), 1}}) {
        QDBusMessage call = QDBusMessage::createMethodCall(mEvents.connection().baseService(),
            QLatin1String(wire::kObjectPath), interface, QStringLiteral("Send"));
        call.setArguments(event(1, 2, {}));
        const QDBusPendingCall pending = driver.connection().asyncCall(call, 5000);
        while (!pending.isFinished()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        }
        EXPECT_EQ(pending.isError(), !interface.isEmpty());
        EXPECT_NE(pending.error().type(), QDBusError::NoReply) << "the caller waits for nothing";
        EXPECT_EQ(handled, count);
    }
}

TEST_F(Inbound, otherInterfacesAndMethodsAreUnknown)
{
    Peer driver(mBus, kDriverName);
    QDBusMessage call = QDBusMessage::createMethodCall(mEvents.connection().baseService(),
        QLatin1String(wire::kObjectPath), QLatin1String(wire::kInterface),
        QStringLiteral("Receive"));
    const QDBusPendingCall pending = driver.connection().asyncCall(call, 5000);
    while (!pending.isFinished()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    EXPECT_EQ(pending.error().type(), QDBusError::UnknownMethod);
}

// Who is the driver -------------------------------------------------------------------------------

TEST_F(DriverLink, theDriverDoesNotStartWhenAnotherProgramHasItsName)
{
    const Peer other(mBus, kDriverName);
    QProcess driver;
    driver.start(
        QStringLiteral(QVTBLT_STAGE_BIN "/tdsg-driver"), QStringList(QStringLiteral("--simulate")));
    ASSERT_TRUE(driver.waitForFinished());
    EXPECT_EQ(driver.exitCode(), 1);
    EXPECT_EQ(driver.readAllStandardError(),
        "tdsg-driver: another program has the name org.quorvia.AppleEvents.TdSg\n");
    EXPECT_TRUE(mHome.configFolder().isEmpty()) << "it must leave the user's files alone";
}

TEST_F(DriverLink, anApplicationTakesEverybodysEvents)
{
    DBusAppleEvents application;
    application.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    EXPECT_EQ(errorText(application.registerApplication(kQVDriverSignature)), "");
    Peer anybody(mBus);
    EXPECT_EQ(sendTo(application, anybody, event(1, 2, {})).type(), QDBusMessage::ReplyMessage);
}

TEST_F(DriverLink, anApplicationWithoutItsNameTakesNobodysEvents)
{
    DBusAppleEvents application;
    application.installEventHandler(1, 2, [](const AppleEvent&, AppleEvent&) { return noErr; });
    Peer other(mBus, kDriverName);
    EXPECT_EQ(errorText(application.registerApplication(kQVDriverSignature)),
        "another program has the name org.quorvia.AppleEvents.TdSg");
    EXPECT_EQ(sendTo(application, other, event(1, 2, {})).errorName(),
        QStringLiteral("org.freedesktop.DBus.Error.AccessDenied"));
}

TEST_F(DriverLink, anApplicationsAnnouncementIsAChangeOfTheSource)
{
    mEvents.acceptEventsFrom(kQVDriverSignature);
    const int& changes = countOf(kSourceChangedNotification);
    DBusAppleEvents application;
    EXPECT_EQ(errorText(application.registerApplication(kQVDriverSignature)), "");
    EXPECT_EQ(waitForCount(changes, 1), 1);
    application.announceChange();
    EXPECT_EQ(waitForCount(changes, 2), 2);
}

TEST_F(DriverLink, nobodyTakesTheNameFromTheDriver)
{
    const DriverProcess driver;
    Peer other(mBus);
    EXPECT_FALSE(other.connection().registerService(kDriverName));
    EXPECT_TRUE(rzkgetQVDevice());
}

TEST_F(DriverLink, actsForANameThatNobodyHas)
{
    const QDBusConnection bus = mEvents.connection();
    QObject context;
    int gone = 0;
    const auto ask = [&] { ifGone(bus, kDriverName, context, [&gone] { ++gone; }); };
    const auto isAnswered = [&context] {
        return waitUntil([&context] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return context.children().isEmpty();
        });
    };
    ask();
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(gone, 1);
    {
        const Peer driver(mBus, kDriverName);
        ask();
        EXPECT_TRUE(isAnswered());
        EXPECT_EQ(gone, 1) << "it is there";
    }
    const auto daemon = static_cast<pid_t>(mBus.pid());
    ::kill(daemon, SIGSTOP);
    ask();
    ::kill(daemon, SIGKILL);
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(gone, 1) << "the bus has not said so";
}
