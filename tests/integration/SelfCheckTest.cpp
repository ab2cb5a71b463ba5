// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// What the self-check finds: with a real bus, and devices as the kernel describes them.

#include "AppleEventWire.h"
#include "DBusAppleEvents.h"
#include "EmulatedTablets.h"
#include "Peer.h"
#include "PrivateBus.h"
#include "QVDriverProtocol.h"
#include "QVSelfCheck.h"
#include "QVTblt_prefPanePref.h"
#include "SampleConfig.h"
#include "ScopedVariable.h"
#include "SeparateMounts.h"
#include "Service.h"
#include "TemporaryHome.h"
#include "Wait.h"
#include "rzkApplication.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using Facts = QVSelfCheckFacts;

namespace {

EmulatedNode pen(int number)
{
    EmulatedNode node;
    node.number = number;
    node.codes = {{EV_KEY, {BTN_TOOL_PEN, BTN_TOUCH, BTN_STYLUS, BTN_STYLUS2}}};
    node.axes = {{ABS_X, {0, 0, 24000, 0, 0, 100}}, {ABS_Y, {0, 0, 15000, 0, 0, 100}}};
    return node;
}

Facts gather()
{
    return QVGatherFacts(QVSelfCheckInput());
}

/** Gathers until the driver answers in time: within its quarter of a second, a busy one may not. */
Facts gatherWithAnswer()
{
    Facts facts = gather();
    for (const QDeadlineTimer patience(kPatience); !facts.answer && !patience.hasExpired();) {
        facts = gather();
    }
    return facts;
}

/** For its lifetime, file modes apply to what this process asks about, also where it is root's. */
class AsPlainUser {
public:
    AsPlainUser()
    {
        constexpr uid_t kNobody = 65534;
        EXPECT_TRUE(mBefore != 0 || ::setreuid(kNobody, static_cast<uid_t>(-1)) == 0);
    }
    ~AsPlainUser() { EXPECT_EQ(::setreuid(mBefore, static_cast<uid_t>(-1)), 0); }
    Q_DISABLE_COPY_MOVE(AsPlainUser)

private:
    uid_t mBefore = ::getuid();
};

/** Has a bus with the services of that folder start a driver with a command. */
void offerDriver(const TemporaryHome& services, const QByteArray& command)
{
    writeFile(services.path() + QStringLiteral("/driver.service"),
        "[D-BUS Service]\nName=org.quorvia.AppleEvents.TdSg\nExec=" + command + '\n');
}

void setMode(const std::string& path, mode_t mode)
{
    EXPECT_EQ(::chmod(path.c_str(), mode), 0) << path << ": " << std::strerror(errno);
}

/** The number of an event node that no other test has now: programs are found by their files. */
int nodeNumber(int digit)
{
    return static_cast<int>(::getpid()) * 10 + digit;
}

class SelfCheckFacts : public testing::Test {
protected:
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
    EXPECT_FALSE(facts.isLastPushTaken);
    EXPECT_TRUE(facts.tablets.empty());
}

TEST_F(SelfCheckFacts, sayOnWhichDesktopThePenIs)
{
    using Desktop = Facts::Desktop;
    const auto found = [](const char* wayland, const char* session, const char* display) {
        const ScopedVariable waylandScope("WAYLAND_DISPLAY", wayland);
        const ScopedVariable sessionScope("XDG_SESSION_TYPE", session);
        const ScopedVariable displayScope("DISPLAY", display);
        return gather().desktop;
    };
    EXPECT_EQ(found("", "", ""), Desktop::None);
    EXPECT_EQ(found("", "tty", ""), Desktop::None);
    EXPECT_EQ(found("", "x11", ":0"), Desktop::X11);
    EXPECT_EQ(found("wayland-0", "", ""), Desktop::OtherWayland);
    EXPECT_EQ(found("", "wayland", ":0"), Desktop::OtherWayland) << "for programs of X11";
    {
        const Peer windowManager(mBus, QStringLiteral("org.kde.KWin"));
        EXPECT_EQ(found("wayland-0", "wayland", ":0"), Desktop::KWin);
        EXPECT_EQ(found("", "x11", ":0"), Desktop::X11);
    }
    mBus.stop();
    EXPECT_EQ(found("wayland-0", "wayland", ":0"), Desktop::Unknown) << "the bus would know";
    EXPECT_EQ(found("", "x11", ":0"), Desktop::X11);
}

TEST_F(SelfCheckFacts, leaveTheBus)
{
    const BusClients clients(mBus);
    EXPECT_EQ(gather().bus, Facts::Bus::Answers);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clients.count() == 1; }, kPatience));
}

TEST_F(SelfCheckFacts, sayThatThereIsNoBus)
{
    mBus.stop();
    EXPECT_EQ(gather().bus, Facts::Bus::None);
}

TEST_F(SelfCheckFacts, giveABusUpThatHangs)
{
    const ScopedVariable session("XDG_SESSION_TYPE", "wayland");
    ::kill(static_cast<pid_t>(mBus.pid()), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const Facts facts = gather();
    const qint64 time = timer.elapsed();
    ::kill(static_cast<pid_t>(mBus.pid()), SIGCONT);
    EXPECT_EQ(facts.bus, Facts::Bus::Hangs);
    EXPECT_EQ(facts.desktop, Facts::Desktop::Unknown);
    EXPECT_LT(time, 20000) << "the bus library would wait for 25 seconds";
}

TEST_F(SelfCheckFacts, listPensButNoOtherInputs)
{
    mTablets.plug(pen(nodeNumber(1)));
    EmulatedNode keyboard;
    keyboard.number = nodeNumber(2);
    keyboard.codes = {{EV_KEY, {KEY_A, KEY_B}}};
    mTablets.plug(keyboard);
    EmulatedNode touchpad = pen(nodeNumber(3));
    touchpad.codes = {{EV_KEY, {BTN_TOOL_FINGER, BTN_TOUCH}}};
    mTablets.plug(touchpad);
    EmulatedNode made = pen(nodeNumber(4));
    made.device = "/devices/virtual";
    mTablets.plug(made);
    EmulatedNode pointer = pen(nodeNumber(5));
    pointer.axes.erase(ABS_X);
    mTablets.plug(pointer);
    const Facts facts = gather();
    ASSERT_EQ(facts.tablets.size(), 1U);
    const QVConnectedTablet& tablet = facts.tablets[0];
    EXPECT_EQ(tablet.id(), QStringLiteral("1234:0042"));
    EXPECT_EQ(tablet.node, QString::fromStdString(EmulatedTablets::file(nodeNumber(1))));
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

TEST_F(SelfCheckFacts, sayWhichTabletsThisUserMayOpen)
{
    const std::string root = mTablets.root();
    setMode(root, 0755);
    mTablets.plug(pen(1));
    mTablets.add("P: /devices/pci0000:00/usb1/1-2\nN: bus/usb/001/002\nE: SUBSYSTEM=usb\n"
                 "E: DEVTYPE=usb_device\nA: idVendor=6f3d\\n\nA: idProduct=5101\\n\n"
                 "A: busnum=1\\n\nA: devnum=2\\n\n\n");
    const std::string pen = root + EmulatedTablets::file(1);
    const std::string usb = root + "/dev/bus/usb/001/002";
    const auto mayBeOpened = [&](mode_t penMode, mode_t usbMode) {
        setMode(pen, penMode);
        setMode(usb, usbMode);
        const AsPlainUser user;
        const Facts facts = gather();
        EXPECT_EQ(facts.tablets.size(), 2U);
        std::vector<bool> may;
        for (const QVConnectedTablet& tablet : facts.tablets) {
            may.push_back(tablet.mayBeOpened);
        }
        return may;
    };
    EXPECT_EQ(mayBeOpened(0000, 0000), (std::vector{false, false}));
    EXPECT_EQ(mayBeOpened(0444, 0444), (std::vector{true, false})) << "a pen is only read";
    EXPECT_EQ(mayBeOpened(0222, 0222), (std::vector{false, false}));
    EXPECT_EQ(mayBeOpened(0666, 0666), (std::vector{true, true}));
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

namespace {

constexpr auto kPenKeys = "1 0 0 0 0 0";

/** Adds an event node as a plain file: an emulated node would be open as a terminal. */
void addFile(EmulatedTablets& tablets, int digit, const char* ids, const char* keys)
{
    const std::string number = std::to_string(nodeNumber(digit));
    const std::string input = "/devices/pci0000:00/input/input" + number;
    tablets.add("P: " + input + "\nE: SUBSYSTEM=input\nA: id/vendor=" + std::string(ids, 4)
        + "\\n\nA: id/product=" + (ids + 5) + "\\n\nA: capabilities/key=" + keys
        + "\\n\nA: capabilities/abs=3\\n\n\n");
    tablets.add("P: " + input + "/event" + number + "\nN: input/event" + number
        + "=00\nE: SUBSYSTEM=input\n\n");
}

/** A program that has files open until its end: a shell, which waits for its input. */
class Holder {
public:
    /**
     * @param name of which the kernel keeps 15 bytes; as a string of printf
     * @param digits of the event nodes' numbers
     * @param wait says that it is ready, and waits
     */
    Holder(
        const char* name, std::initializer_list<int> digits, const char* wait = "echo; read line")
    {
        // In the emulation, the shell would lose some of its files.
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("LD_PRELOAD"));
        mShell.setProcessEnvironment(environment);
        QString files = QStringLiteral("3</dev/null");
        for (const int digit : digits) {
            files += QStringLiteral(" %1<%2%3")
                         .arg(digit + 3)
                         .arg(environment.value(QStringLiteral("UMOCKDEV_DIR")),
                             QString::fromStdString(EmulatedTablets::file(nodeNumber(digit))));
        }
        mShell.start(QStringLiteral("sh"),
            {QStringLiteral("-c"),
                QStringLiteral("exec %1 && printf '%2' > /proc/$$/comm && %3")
                    .arg(files, QLatin1String(name), QLatin1String(wait))});
        EXPECT_TRUE(mShell.waitForReadyRead(kPatience)) << mShell.readAllStandardError().data();
    }
    ~Holder()
    {
        mShell.kill();
        mShell.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Holder)

private:
    QProcess mShell;
};

} // namespace

TEST_F(SelfCheckFacts, nameAProgramThatHasTheTabletOpenButNoDesktop)
{
    addFile(mTablets, 1, "1234:0042", kPenKeys);
    addFile(mTablets, 2, "5678:0042", "40000000");
    addFile(mTablets, 3, "1234:0042", "100 0 0 0 0"); // the tablet's own keys
    addFile(mTablets, 4, "1234:0043", "40000000"); // another device of its maker's
    ASSERT_EQ(gather().tablets.size(), 1U);
    const Holder desktop("desktop", {1, 2});
    const Holder otherDesktop("other", {4, 1});
    const Holder keyLogger("keys", {3});
    EXPECT_EQ(gather().holders, QStringList());
    {
        const Holder holder("gr\\303\\266\\303\\237er-\\360\\237\\226\\212-\\303\\266", {1, 3});
        EXPECT_EQ(
            gather().holders, QStringList(QStringLiteral("gr\u00f6\u00dfer-\U0001F58A-\ufffd")));
    }
    EXPECT_EQ(gather().holders, QStringList());
    const Holder strange("\\033[1m two\\n words", {1});
    EXPECT_EQ(gather().holders, QStringList(QStringLiteral("[1m two words")));
}

TEST_F(SelfCheckFacts, nameNoMoreThanThreePrograms)
{
    addFile(mTablets, 1, "1234:0042", kPenKeys);
    const Holder holders[]{{"one", {1}}, {"two", {1}}, {"three", {1}}, {"four", {1}}};
    EXPECT_EQ(gather().holders.size(), 3);
}

TEST_F(SelfCheckFacts, nameNoProgramOfTheirOwnAndNoneOfAnotherUser)
{
    addFile(mTablets, 1, "1234:0042", kPenKeys);
    QFile tablet(QString::fromStdString(EmulatedTablets::file(nodeNumber(1))));
    ASSERT_TRUE(tablet.open(QIODevice::ReadOnly));
    EXPECT_EQ(gather().holders, QStringList());
    if (::getuid() != 0) {
        GTEST_SKIP() << "a program of another user can be started by root alone";
    }
    const Holder other(
        "other", {1}, "exec setpriv --reuid=65534 --clear-groups sh -c 'echo; read line'");
    EXPECT_EQ(gather().holders, QStringList());
}

TEST(SelfCheckOfTheDriver, startsItAndLooksAtItsFile)
{
    const TemporaryHome home;
    const PrivateBus bus(PrivateBus::Activation::On);
    const EmulatedTablets tablets;
    Facts facts = gather();
    EXPECT_EQ(facts.driver, Facts::Driver::Started);
    facts = gather();
    EXPECT_EQ(facts.driver, Facts::Driver::Running);
    EXPECT_EQ(facts.answer, 20737);
    EXPECT_EQ(facts.file, Facts::File::Good);
    EXPECT_FALSE(facts.isLastPushTaken);
    const QString file = home.configFile(20737);
    const QByteArray whole = readFile(file);
    for (const char* const contents : {"", "nonsense", "<plist><dict/></plist>"}) {
        writeFile(file, contents);
        EXPECT_EQ(gather().file, Facts::File::Unusable) << contents;
    }
    writeFile(file, whole);
    EXPECT_EQ(gather().file, Facts::File::Good);
    EXPECT_TRUE(QFile::remove(file));
    EXPECT_EQ(gather().file, Facts::File::Missing);
}

TEST(SelfCheckOfTheDriver, doesNotNameItAsAProgramThatHasTheTabletOpen)
{
    const TemporaryHome home;
    EmulatedTablets tablets;
    addFile(tablets, 1, "1234:0042", kPenKeys);
    offerDriver(home,
        QByteArray("/bin/sh -c \"exec 3<") + EmulatedTablets::file(nodeNumber(1)).c_str()
            + " " QVTBLT_STAGE_DRIVER " --simulate\"");
    const PrivateBus bus(home.path());
    const Facts facts = gatherWithAnswer();
    EXPECT_EQ(facts.answer, 20737);
    EXPECT_EQ(facts.holders, QStringList());
    const Holder holder("painter", {1});
    EXPECT_EQ(gather().holders, QStringList(QStringLiteral("painter")));
}

TEST(SelfCheckOfTheDriver, triesOnceToStartIt)
{
    const TemporaryHome home;
    const EmulatedTablets tablets;
    const QString starts = home.path() + QStringLiteral("/starts");
    offerDriver(home, "/bin/sh -c \"echo >> " + QFile::encodeName(starts) + "; exit 1\"");
    const PrivateBus bus(home.path());
    const Facts facts = gather();
    EXPECT_EQ(facts.driver, Facts::Driver::NotStarted);
    EXPECT_FALSE(facts.answer);
    EXPECT_EQ(readFile(starts), "\n");
}

namespace {

/** A driver that answers as the test wants. */
class SelfCheckOfAnyDriver : public testing::Test {
protected:
    SelfCheckOfAnyDriver()
    {
        mDriver.answer = [this](const QDBusMessage& call) {
            return call.createReply(
                call.member() == QLatin1String("LastRecord") ? QVariant(mLastRecord) : mAnswer);
        };
        EXPECT_TRUE(
            mDriver.connection().registerVirtualObject(QLatin1String(kQVSimulatorPath), &mDriver));
    }

    static QVariant parameter(
        platform::AEKeyword keyword, platform::DescType type, const QByteArray& bytes)
    {
        return platform::wire::encode({{keyword, {type, bytes}}});
    }
    static QVariant number(std::int32_t number)
    {
        return parameter(platform::keyDirectObject, platform::typeLongInteger,
            QByteArray(reinterpret_cast<const char*>(&number), sizeof number));
    }

    TemporaryHome mHome;
    EmulatedTablets mTablets;
    PrivateBus mBus;
    QVariant mAnswer = number(20737);
    QByteArray mLastRecord;
    Peer mDriver{mBus, QStringLiteral("org.quorvia.AppleEvents.TdSg")};
};

bool areSame(const platform::AEDesc& one, const platform::AEDesc& other)
{
    const auto* const ones = std::get_if<platform::AERecord>(&one.data);
    const auto* const others = std::get_if<platform::AERecord>(&other.data);
    if (one.type != other.type || one.bytes() == nullptr || other.bytes() == nullptr) {
        return one.type == other.type && ones != nullptr && others != nullptr
            && std::ranges::equal(*ones, *others, [](const auto& left, const auto& right) {
                   return left.keyword == right.keyword && areSame(left.desc, right.desc);
               });
    }
    return *one.bytes() == *other.bytes();
}

} // namespace

TEST_F(SelfCheckOfAnyDriver, asksAsThePanelDoes)
{
    gather();
    const std::size_t ownCalls = mDriver.calls().size();
    ASSERT_GT(ownCalls, 0U);
    platform::DBusAppleEvents events;
    const platform::ServiceScope<platform::AppleEvents> scope(events);
    rzkgetQVDevice();
    ASSERT_TRUE(QTest::qWaitFor([&] { return mDriver.calls().size() > ownCalls; }, kPatience));
    const QDBusMessage own = mDriver.calls().front();
    const QDBusMessage panels = mDriver.calls().back();
    EXPECT_EQ(own.member(), panels.member());
    EXPECT_EQ(own.arguments().mid(0, 2), panels.arguments().mid(0, 2));
    const auto parametersOf = [](const QDBusMessage& call) {
        return platform::AEDesc{
            platform::typeObjectSpecifier, platform::wire::decode(call.arguments().at(2)).value()};
    };
    EXPECT_TRUE(areSame(parametersOf(own), parametersOf(panels)));
}

TEST_F(SelfCheckOfAnyDriver, takesNoAnswerButANumberOfFourBytes)
{
    using namespace platform;
    const QByteArray four(4, '\1');
    for (const QVariant& answer : {QVariant(), QVariant(QStringLiteral("20737")), QVariant(20737),
             parameter(keyAEKeyData, typeLongInteger, four),
             parameter(keyDirectObject, typeType, four),
             parameter(keyDirectObject, typeLongInteger, QByteArray(2, '\1')),
             parameter(keyDirectObject, typeLongInteger, QByteArray(8, '\1')),
             wire::encode({{keyDirectObject, {typeLongInteger, AEList()}}})}) {
        mAnswer = answer;
        EXPECT_FALSE(gather().answer) << answer.typeName();
    }
    mAnswer = parameter(keyDirectObject, typeLongInteger, four);
    EXPECT_EQ(gatherWithAnswer().answer, 0x01010101);
}

TEST_F(SelfCheckOfAnyDriver, asksOneThatWasRunningOnce)
{
    mTablets.plug(pen(1));
    mAnswer = number(0);
    const Facts facts = gather();
    EXPECT_EQ(facts.driver, Facts::Driver::Running);
    EXPECT_EQ(facts.answer.value_or(0), 0);
    EXPECT_EQ(std::ranges::count(mDriver.calls(), QLatin1String(platform::wire::kSendMethod),
                  &QDBusMessage::member),
        1);
}

TEST_F(SelfCheckOfAnyDriver, givesOneUpThatDoesNotAnswer)
{
    mDriver.answer = nullptr;
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(gather().answer);
    EXPECT_LT(timer.elapsed(), 20000) << "the bus library would wait for 25 seconds";
}

TEST_F(SelfCheckOfAnyDriver, saysWhetherItHasTakenSettings)
{
    const auto isGathered = [](const QVSelfCheckInput& input, std::optional<bool> expected) {
        // Within its quarter of a second, a busy driver may not answer.
        return QTest::qWaitFor(
            [&] { return QVGatherFacts(input).isLastPushTaken == expected; }, kPatience);
    };
    QVSelfCheckInput input;
    EXPECT_FALSE(gather().isLastPushTaken) << "it may have been started just now";
    mLastRecord = QByteArray(kQVRecordSize - 1, '\0');
    EXPECT_FALSE(gather().isLastPushTaken);
    mLastRecord = QByteArray(kQVRecordSize, '\0');
    EXPECT_TRUE(isGathered(input, true));
    // A panel knows what has become of its own push.
    input.isLastPushTaken = false;
    EXPECT_EQ(QVGatherFacts(input).isLastPushTaken, false);
    mLastRecord.clear();
    input.isLastPushTaken = true;
    EXPECT_EQ(QVGatherFacts(input).isLastPushTaken, true);
}

TEST_F(SelfCheckOfAnyDriver, looksAtTheFileOfTheAnswersLowerHalf)
{
    writeFile(mHome.configFile(20737), sampleConfig());
    mAnswer = number(0x1'0000 + 20737);
    EXPECT_EQ(gatherWithAnswer().file, Facts::File::Good);
    mAnswer = number(20738);
    EXPECT_EQ(gatherWithAnswer().file, Facts::File::Missing);
}

TEST_F(SelfCheckOfAnyDriver, saysThatThisUserMayNotWriteTheFileOrBesideIt)
{
    const QString file = mHome.configFile(20737);
    writeFile(file, sampleConfig());
    for (QDir folder = mHome.configFolder(); folder != QDir(mHome.path()); folder.cdUp()) {
        setMode(folder.path().toStdString(), 0755);
    }
    setMode(mHome.path().toStdString(), 0755);
    const auto found = [&](mode_t folderMode, mode_t fileMode) {
        const std::string folder = mHome.configFolder().path().toStdString();
        setMode(file.toStdString(), fileMode);
        setMode(folder, folderMode);
        const AsPlainUser user;
        const Facts::File result = gatherWithAnswer().file;
        setMode(folder, 0777);
        return result;
    };
    EXPECT_EQ(found(0777, 0666), Facts::File::Good);
    EXPECT_EQ(found(0777, 0444), Facts::File::NotWritable);
    EXPECT_EQ(found(0555, 0666), Facts::File::NotWritable) << "a save writes a new file";
}

TEST_F(SelfCheckOfAnyDriver, saysThatTheDiskHasLittleRoom)
{
    if (!separateMounts()) {
        GTEST_SKIP() << "mounting is not permitted here: " << std::strerror(errno);
    }
    const std::string folder = mHome.configFolder().path().toStdString();
    const auto foundOn = [&](const char* size) {
        EXPECT_EQ(::mount("tmpfs", folder.c_str(), "tmpfs", 0, size), 0) << std::strerror(errno);
        writeFile(mHome.configFile(20737), sampleConfig());
        const Facts::File file = gatherWithAnswer().file;
        EXPECT_EQ(::umount2(folder.c_str(), MNT_DETACH), 0) << std::strerror(errno);
        return file;
    };
    EXPECT_EQ(foundOn("size=64k"), Facts::File::NoRoom);
    EXPECT_EQ(foundOn("size=1m"), Facts::File::NoRoom);
    EXPECT_EQ(foundOn("size=1280k"), Facts::File::Good);
}

TEST(SelfCheckOfTheDriver, givesOneThatItHasStartedTimeToBeReady)
{
    const TemporaryHome home;
    EmulatedTablets tablets;
    tablets.plug(pen(1));
    offerDriver(home, "/bin/sleep 10");
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
    const Facts facts = gather();
    owner.join();
    EXPECT_EQ(facts.driver, Facts::Driver::Started);
    EXPECT_EQ(facts.answer, 20737);
}

TEST(SelfCheckOfTheDriver, asksOneThatItHasStartedForAWhileOnly)
{
    const TemporaryHome home;
    EmulatedTablets tablets;
    tablets.plug(pen(1));
    // Without a driver for the pen: it has no tablet.
    offerDriver(home, QVTBLT_STAGE_DRIVER " --simulate none");
    const PrivateBus bus(home.path());
    const Facts facts = gather();
    EXPECT_EQ(facts.driver, Facts::Driver::Started);
    EXPECT_EQ(facts.answer.value_or(0), 0);
}

TEST(SelfCheckOfTheDriver, isInterruptedWhileAProgramQuits)
{
    const TemporaryHome home;
    const EmulatedTablets tablets;
    offerDriver(home, "/bin/sleep 10");
    const PrivateBus bus(home.path());
    const std::unique_ptr<QThread> thread(QThread::create([] { static_cast<void>(gather()); }));
    thread->start();
    EXPECT_FALSE(thread->wait(500)) << "the driver never gets its name";
    QElapsedTimer timer;
    timer.start();
    thread->requestInterruption();
    EXPECT_TRUE(thread->wait(20000));
    EXPECT_LT(timer.elapsed(), 4000) << "the start alone may take 5000";
}

TEST(SelfCheckOfThePanel, isOverWhenTheProgramQuits)
{
    const TemporaryHome home;
    const EmulatedTablets tablets;
    offerDriver(home, "/bin/sleep 10");
    const PrivateBus bus(home.path());
    QVTblt_prefPanePref pane;
    bool isOver = false;
    pane.checkSelf([&isOver](const platform::PreferencePane::SelfCheck&) { isOver = true; });
    QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_FALSE(isOver) << "it has blocked nobody";
    QCoreApplication::processEvents(); // its word is among what is waiting
    EXPECT_TRUE(isOver);
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

TEST(SelfCheckOfTheModule, saysForWhichQtItWasBuilt)
{
    const TemporaryHome home;
    const PrivateBus bus;
    QVSelfCheckInput input;
    input.modulePath = home.path() + QStringLiteral("/QVTblt.so");
    QByteArray module = readFile(QStringLiteral(QVTBLT_STAGE_MODULE));
    // The compiler puts Qt's version, a byte each for major and minor, before the plug-in's data.
    constexpr int kBeforeData = 3;
    const auto header = module.indexOf(QByteArrayLiteral("\xbf\x02x")) - kBeforeData;
    ASSERT_GT(header, 0);
    char* const version = module.data() + header;
    ASSERT_EQ(version[0], QT_VERSION_MAJOR);
    ASSERT_EQ(version[1], QT_VERSION_MINOR);
    const auto check = [&](int major, int minor) {
        version[0] = static_cast<char>(major);
        version[1] = static_cast<char>(minor);
        writeFile(input.modulePath, module);
        const Facts facts = QVGatherFacts(input);
        QFile::remove(input.modulePath);
        return std::pair(facts.module, facts.moduleQt);
    };
    const QString own = QString::fromLatin1(qVersion());
    const auto name = [](int major, int minor) {
        return QStringLiteral("%1.%2.0").arg(major).arg(minor);
    };
    EXPECT_EQ(check(QT_VERSION_MAJOR, QT_VERSION_MINOR), std::pair(Facts::Module::Fits, own));
    EXPECT_EQ(check(QT_VERSION_MAJOR, QT_VERSION_MINOR - 1), std::pair(Facts::Module::Fits, own));
    for (const auto& [major, minor] : {std::pair(QT_VERSION_MAJOR, QT_VERSION_MINOR + 1),
             {QT_VERSION_MAJOR - 1, QT_VERSION_MINOR}, {QT_VERSION_MAJOR + 1, 0}}) {
        EXPECT_EQ(check(major, minor), std::pair(Facts::Module::OtherQt, name(major, minor)));
    }
}
