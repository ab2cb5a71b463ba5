// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// What the self-check finds: with a real bus, and devices as the kernel describes them.

#include "AppleEventWire.h"
#include "EmulatedTablets.h"
#include "Peer.h"
#include "PrivateBus.h"
#include "QVSelfCheck.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"
#include "Wait.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <memory>
#include <thread>

using Facts = QVSelfCheckFacts;

namespace {

EmulatedNode pen(int number)
{
    EmulatedNode node;
    node.number = number;
    node.codes = {{EV_KEY, {BTN_TOOL_PEN, BTN_TOUCH}}};
    node.axes = {{ABS_X, {0, 0, 24000, 0, 0, 100}}, {ABS_Y, {0, 0, 15000, 0, 0, 100}}};
    return node;
}

class SelfCheckFacts : public testing::Test {
protected:
    static Facts gather() { return QVGatherFacts(QVSelfCheckInput()); }

    TemporaryHome mHome;
    PrivateBus mBus;
    EmulatedTablets mTablets;
};

} // namespace

TEST_F(SelfCheckFacts, findNoDriverWhereNoneIsInstalled)
{
    const Facts facts = gather();
    EXPECT_EQ(facts.bus, Facts::Bus::Answers);
    EXPECT_EQ(facts.driver, Facts::Driver::NotInstalled);
    EXPECT_FALSE(facts.answer);
    EXPECT_TRUE(facts.tablets.empty());
}

TEST_F(SelfCheckFacts, sayThatThereIsNoBus)
{
    mBus.stop();
    EXPECT_EQ(gather().bus, Facts::Bus::None);
}

TEST_F(SelfCheckFacts, giveABusUpThatHangs)
{
    ::kill(static_cast<pid_t>(mBus.pid()), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const Facts facts = gather();
    const qint64 time = timer.elapsed();
    ::kill(static_cast<pid_t>(mBus.pid()), SIGCONT);
    EXPECT_EQ(facts.bus, Facts::Bus::Hangs);
    EXPECT_LT(time, 20000) << "the bus library would wait for 25 seconds";
}

TEST_F(SelfCheckFacts, listPensButNoOtherInputs)
{
    mTablets.plug(pen(1));
    EmulatedNode keyboard;
    keyboard.number = 2;
    keyboard.codes = {{EV_KEY, {KEY_A, KEY_B}}};
    mTablets.plug(keyboard);
    EmulatedNode touchpad = pen(3);
    touchpad.codes = {{EV_KEY, {BTN_TOOL_FINGER, BTN_TOUCH}}};
    mTablets.plug(touchpad);
    EmulatedNode made = pen(4);
    made.device = "/devices/virtual";
    mTablets.plug(made);
    const Facts facts = gather();
    ASSERT_EQ(facts.tablets.size(), 1U);
    const QVConnectedTablet& tablet = facts.tablets[0];
    EXPECT_EQ(tablet.id(), QStringLiteral("1234:0042"));
    EXPECT_EQ(tablet.node, QStringLiteral("/dev/input/event1"));
    EXPECT_TRUE(tablet.isPen);
    EXPECT_TRUE(tablet.mayBeOpened);
    EXPECT_TRUE(facts.holders.isEmpty());
}

TEST_F(SelfCheckFacts, sayThatATabletMayNotBeOpened)
{
    mTablets.plug(pen(1));
    mTablets.removeFile(1);
    ASSERT_EQ(gather().tablets.size(), 1U);
    EXPECT_FALSE(gather().tablets[0].mayBeOpened);
}

TEST_F(SelfCheckFacts, listTheMakersDevicesOnUsbAndWhoHasThem)
{
    const auto device = [](const char* name, const char* vendor, const char* driver) {
        const std::string path = std::string("/devices/pci0000:00/usb1/") + name;
        return "P: " + path + "\nN: bus/usb/001/00" + name[2]
            + "\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_device\nA: idVendor=" + vendor
            + "\\n\nA: idProduct=5101\\n\nA: busnum=1\\n\nA: devnum=" + name[2]
            + "\\n\n\nP: " + path + '/' + name
            + ":1.0\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_interface\nL: driver=../../drivers/" + driver
            + "\n\n";
    };
    for (const auto& description : {device("1-2", "6f3d", "usbhid"), device("1-3", "6f3d", "usbfs"),
             device("1-4", "1d6b", "usbhid")}) {
        const auto middle = description.find("\n\nP: ") + 2;
        mTablets.add(description.substr(0, middle));
        mTablets.add(description.substr(middle));
    }
    Facts facts = gather();
    ASSERT_EQ(facts.tablets.size(), 2U);
    std::ranges::sort(facts.tablets, {}, &QVConnectedTablet::node);
    EXPECT_EQ(facts.tablets[0].id(), QStringLiteral("6f3d:5101"));
    EXPECT_EQ(facts.tablets[0].node, QStringLiteral("/dev/bus/usb/001/002"));
    EXPECT_FALSE(facts.tablets[0].isPen);
    EXPECT_FALSE(facts.tablets[0].isClaimed);
    EXPECT_TRUE(facts.tablets[1].isClaimed);
}

TEST_F(SelfCheckFacts, nameAProgramThatHasTheTabletOpenButNoDesktop)
{
    // Plain files: an emulated node would be open as a terminal.
    const auto add = [this](const std::string& number, const char* vendor, const char* keys) {
        const std::string input = "/devices/pci0000:00/input/input" + number;
        mTablets.add("P: " + input + "\nE: SUBSYSTEM=input\nA: id/vendor=" + vendor
            + "\\n\nA: id/product=0042\\n\nA: capabilities/key=" + keys
            + "\\n\nA: capabilities/abs=3\\n\n\n");
        mTablets.add("P: " + input + "/event" + number + "\nN: input/event" + number
            + "=00\nE: SUBSYSTEM=input\n\n");
    };
    add("1", "1234", "1 0 0 0 0 0");
    add("2", "5678", "40000000");
    add("3", "1234", "100 0 0 0 0"); // the tablet's own keys
    ASSERT_EQ(gather().tablets.size(), 1U);
    // A shell, which waits for its input, with a name of which the kernel keeps 15 bytes.
    const auto start = [](QProcess& process, const char* name, const char* files) {
        process.start(QStringLiteral("sh"),
            {QStringLiteral("-c"),
                QStringLiteral("exec %2 && printf '%1' > /proc/$$/comm && read line")
                    .arg(QLatin1String(name), QLatin1String(files))});
        EXPECT_TRUE(process.waitForStarted());
    };
    QProcess desktop;
    start(desktop, "desktop", "3</dev/input/event1 4</dev/input/event2");
    QProcess holder;
    start(holder, "gr\\303\\266\\303\\237er-\\360\\237\\226\\212-\\303\\266",
        "3</dev/input/event1 4</dev/input/event3");
    const QStringList names{QStringLiteral("gr\u00f6\u00dfer-\U0001F58A-\ufffd")};
    EXPECT_TRUE(QTest::qWaitFor([&] { return gather().holders == names; }, 10000))
        << qPrintable(gather().holders.join(u' '));
    holder.kill();
    holder.waitForFinished();
    EXPECT_TRUE(QTest::qWaitFor([] { return gather().holders.isEmpty(); }, 10000));
    desktop.kill();
    desktop.waitForFinished();
}

TEST(SelfCheckOfTheDriver, startsItAndLooksAtItsFile)
{
    const TemporaryHome home;
    const PrivateBus bus(PrivateBus::Activation::On);
    const EmulatedTablets tablets;
    Facts facts = QVGatherFacts(QVSelfCheckInput());
    EXPECT_EQ(facts.driver, Facts::Driver::Started);
    facts = QVGatherFacts(QVSelfCheckInput());
    EXPECT_EQ(facts.driver, Facts::Driver::Running);
    EXPECT_EQ(facts.answer, 20737);
    EXPECT_EQ(facts.file, Facts::File::Good);
    EXPECT_FALSE(facts.isLastPushTaken);
    const QString file = home.configFile(20737);
    const QByteArray whole = readFile(file);
    for (const char* const contents : {"", "nonsense", "<plist><dict/></plist>"}) {
        writeFile(file, contents);
        EXPECT_EQ(QVGatherFacts(QVSelfCheckInput()).file, Facts::File::Unusable) << contents;
    }
    writeFile(file, whole);
    EXPECT_EQ(QVGatherFacts(QVSelfCheckInput()).file, Facts::File::Good);
    EXPECT_TRUE(QFile::remove(file));
    EXPECT_EQ(QVGatherFacts(QVSelfCheckInput()).file, Facts::File::Missing);
}

TEST(SelfCheckOfTheDriver, givesOneThatItHasStartedTimeToBeReady)
{
    const TemporaryHome home;
    EmulatedTablets tablets;
    tablets.plug(pen(1));
    writeFile(home.path() + QStringLiteral("/driver.service"),
        "[D-BUS Service]\nName=org.quorvia.AppleEvents.TdSg\nExec=/bin/sleep 10\n");
    const PrivateBus bus(home.path());
    Peer driver(bus);
    driver.answer = [&driver](const QDBusMessage& call) {
        const std::size_t calls = driver.calls().size();
        if (calls < 4) {
            return call.createErrorReply(QDBusError::UnknownObject, QStringLiteral("not yet"));
        }
        const std::int32_t number = calls < 7 ? 0 : 20737;
        const QByteArray bytes(reinterpret_cast<const char*>(&number), sizeof number);
        return call.createReply(platform::wire::encode(
            {{platform::keyDirectObject, {platform::typeLongInteger, bytes}}}));
    };
    // It has its name before it answers, and answers before it has the tablet.
    QDBusConnection connection = driver.connection();
    std::thread owner([&connection] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        connection.registerService(QStringLiteral("org.quorvia.AppleEvents.TdSg"));
    });
    const Facts facts = QVGatherFacts(QVSelfCheckInput());
    owner.join();
    EXPECT_EQ(facts.driver, Facts::Driver::Started);
    EXPECT_EQ(facts.answer, 20737);
}

TEST(SelfCheckOfTheDriver, isInterruptedWhileAProgramQuits)
{
    const TemporaryHome home;
    const EmulatedTablets tablets;
    writeFile(home.path() + QStringLiteral("/driver.service"),
        "[D-BUS Service]\nName=org.quorvia.AppleEvents.TdSg\nExec=/bin/sleep 10\n");
    const PrivateBus bus(home.path());
    const std::unique_ptr<QThread> thread(
        QThread::create([] { static_cast<void>(QVGatherFacts(QVSelfCheckInput())); }));
    thread->start();
    EXPECT_FALSE(thread->wait(500)) << "the driver never gets its name";
    QElapsedTimer timer;
    timer.start();
    thread->requestInterruption();
    EXPECT_TRUE(thread->wait(20000));
    EXPECT_LT(timer.elapsed(), 4000) << "the start alone may take 5000";
}

TEST(SelfCheckOfTheModule, comparesItsQtWithThePrograms)
{
    const PrivateBus bus;
    QVSelfCheckInput input;
    EXPECT_EQ(QVGatherFacts(input).module, Facts::Module::Fits) << "it is loaded";
    input.modulePath = QStringLiteral(QVTBLT_STAGE_MODULE);
    Facts facts = QVGatherFacts(input);
    EXPECT_EQ(facts.module, Facts::Module::Fits);
    EXPECT_EQ(facts.moduleQt, QString::fromLatin1(qVersion()));
    input.modulePath = QStringLiteral("/nowhere/QVTblt.so");
    EXPECT_EQ(QVGatherFacts(input).module, Facts::Module::Missing);
    input.modulePath = QStringLiteral("/proc/self/exe");
    EXPECT_EQ(QVGatherFacts(input).module, Facts::Module::OtherQt);
}
