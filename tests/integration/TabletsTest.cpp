// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The driver's tablets, as udev and the kernel describe them. What it does with their events is
// tested elsewhere: there is no emulated /dev/uinput.

#include "EmulatedTablets.h"
#include "ErrorText.h"
#include "FakeEvents.h"
#include "QVConfigStore.h"
#include "TabletController.h"
#include "TabletNodes.h"
#include "TemporaryHome.h"
#include "Wait.h"

#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace {

bool waitFor(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, kPatience);
}

EmulatedNode pen(int number = 1, const std::string& device = "/devices/pci0000:00/usb1/1-1")
{
    EmulatedNode node;
    node.number = number;
    node.device = device;
    node.codes = {{EV_KEY, {BTN_TOOL_PEN, BTN_TOOL_RUBBER, BTN_TOUCH, BTN_STYLUS, BTN_STYLUS2}}};
    node.axes = {{ABS_X, {0, 0, 24000, 0, 0, 100}}, {ABS_Y, {0, 0, 15000, 0, 0, 100}},
        {ABS_PRESSURE, {0, 0, 8191, 0, 0, 0}}, {ABS_TILT_X, {0, -60, 60, 0, 0, 57}},
        {ABS_TILT_Y, {0, -60, 60, 0, 0, 57}}};
    return node;
}

/** The keys and strips of the same device, on another interface. */
EmulatedNode pad(int number = 2, const std::string& device = "/devices/pci0000:00/usb1/1-1")
{
    EmulatedNode node;
    node.number = number;
    node.device = device;
    node.interface = 1;
    node.name = "Acme Pad";
    node.properties = {"ID_INPUT_TABLET=1", "ID_INPUT_TABLET_PAD=1"};
    node.codes = {{EV_KEY, {BTN_STYLUS, BTN_0, BTN_1, BTN_2, BTN_3}}};
    node.axes = {{ABS_X, {0, 0, 1, 0, 0, 0}}, {ABS_WHEEL, {0, 0, 71, 0, 0, 0}}};
    return node;
}

class Tablets : public testing::Test {
protected:
    static std::vector<std::string> ids(const std::vector<Tablet>& tablets)
    {
        std::vector<std::string> found;
        for (const Tablet& tablet : tablets) {
            found.push_back(tablet.id().toStdString());
        }
        return found;
    }

    using Words = std::vector<std::string>;

    EmulatedTablets mBus;
};

/** The driver, which finds no /dev/uinput. */
class TabletsOfTheDriver : public Tablets {
protected:
    TabletsOfTheDriver() { mDriver.start(); }

    QString nameInUse() const { return mController->facts().name; }

    TemporaryHome mHome;
    FakeEvents mEvents;
    QDBusConnection mNoBus{QStringLiteral("no bus")};
    Driver mDriver{mEvents, mNoBus};
    std::optional<TabletController> mController;
};

} // namespace

TEST_F(Tablets, areListedInTheOrderOfTheirPlugging)
{
    mBus.plug(pen(7));
    const TabletMonitor monitor;
    EXPECT_EQ(ids(monitor.tablets()), Words{"1234:0042"});
    EmulatedNode second = pen(3, "/devices/pci0000:00/usb1/1-2");
    second.serial = "A17";
    second.name = "  A\x01 second\tpen ";
    mBus.plug(second);
    EXPECT_TRUE(waitFor([&] { return monitor.tablets().size() == 2; }));
    EXPECT_EQ(ids(monitor.tablets()), (Words{"1234:0042", "1234:0042:A17"}));
    EXPECT_EQ(monitor.tablets()[1].name, QStringLiteral("A second pen"));
    EXPECT_EQ(monitor.tablets()[1].penNode, QStringLiteral("/dev/input/event3"));
    mBus.unplug(7);
    EXPECT_TRUE(waitFor([&] { return monitor.tablets().size() == 1; }));
    EXPECT_EQ(ids(monitor.tablets()), Words{"1234:0042:A17"});
}

TEST_F(Tablets, haveThePadOnAnotherOfTheirInterfaces)
{
    mBus.plug(pad(1));
    mBus.plug(pen(2));
    mBus.plug(pad(3, "/devices/pci0000:00/usb1/1-2")); // of no pen
    mBus.plug(pen(4, "/devices/pci0000:00/usb1/1-3")); // without a pad
    const TabletMonitor monitor;
    ASSERT_EQ(monitor.tablets().size(), 2U);
    EXPECT_EQ(monitor.tablets()[0].penNode, QStringLiteral("/dev/input/event2"));
    EXPECT_EQ(monitor.tablets()[0].padNode, QStringLiteral("/dev/input/event1"));
    EXPECT_EQ(monitor.tablets()[1].padNode, QString());
}

TEST_F(Tablets, waitForAPadThatUdevHasYetToLookAt)
{
    EmulatedNode keys = pad();
    keys.properties.clear();
    mBus.plug(keys);
    mBus.plug(pen());
    QElapsedTimer timer;
    timer.start();
    const TabletMonitor monitor;
    EXPECT_EQ(ids(monitor.tablets()), Words()) << "its file would have no keys";
    QTest::qWait(500);
    const Words after = ids(monitor.tablets());
    mBus.identify(2, {"ID_INPUT_TABLET", "ID_INPUT_TABLET_PAD"});
    ASSERT_TRUE(waitFor([&] { return monitor.tablets().size() == 1; }));
    if (timer.elapsed() > 1500) {
        GTEST_SKIP() << "too slow: the monitor waits for 2000 milliseconds";
    }
    EXPECT_EQ(after, Words());
    EXPECT_EQ(monitor.tablets()[0].padNode, QStringLiteral("/dev/input/event2"));
}

TEST_F(Tablets, doNotWaitForAnotherDevicesNodeNorForEver)
{
    EmulatedNode other = pad(2, "/devices/pci0000:00/usb1/1-2");
    other.properties.clear();
    mBus.plug(other);
    mBus.plug(pen());
    const TabletMonitor monitor;
    EXPECT_EQ(ids(monitor.tablets()), Words{"1234:0042"});
    EmulatedNode second = pen(3, "/devices/pci0000:00/usb1/1-2");
    second.product = 0x0043;
    mBus.plug(second);
    ASSERT_TRUE(waitFor([&] { return monitor.tablets().size() == 2; }));
    EXPECT_EQ(monitor.tablets()[1].padNode, QString());
}

TEST_F(Tablets, areNeitherTouchscreensNorTouchpadsNorVirtual)
{
    EmulatedNode screen = pen(1);
    screen.properties.emplace_back("ID_INPUT_TOUCHSCREEN=1");
    mBus.plug(screen);
    EmulatedNode touchpad = pen(2);
    touchpad.properties.emplace_back("ID_INPUT_TOUCHPAD=1");
    mBus.plug(touchpad);
    EmulatedNode mouse = pen(5, "/devices/pci0000:00/usb1/1-5");
    mouse.properties = {"ID_INPUT_MOUSE=1"};
    mBus.plug(mouse);
    mBus.plug(pen(6, "/devices/virtual"));
    const TabletMonitor monitor;
    EXPECT_EQ(ids(monitor.tablets()), Words());
}

TEST_F(Tablets, onOneBluetoothAdapterAreToldApartByTheirAddresses)
{
    EmulatedNode first = pen();
    first.bus = BUS_BLUETOOTH;
    first.serial = "aa:bb:cc:00:00:01";
    EmulatedNode second = pen(2);
    second.bus = BUS_BLUETOOTH;
    second.serial = "aa:bb:cc:00:00:02";
    second.name = "Second";
    EmulatedNode secondPad = pad(3);
    secondPad.bus = BUS_BLUETOOTH;
    secondPad.serial = second.serial;
    mBus.plug(first);
    mBus.plug(second);
    mBus.plug(secondPad);
    const TabletMonitor monitor;
    ASSERT_EQ(monitor.tablets().size(), 2U);
    EXPECT_EQ(monitor.tablets()[0].padNode, QString());
    EXPECT_EQ(monitor.tablets()[1].padNode, QStringLiteral("/dev/input/event3"));
}

TEST_F(Tablets, areDescribed)
{
    mBus.plug(pen());
    mBus.plug(pad());
    const TabletMonitor monitor;
    ASSERT_EQ(monitor.tablets().size(), 1U);
    const QVariantMap entries = describeTablet(monitor.tablets()[0]);
    EXPECT_EQ(entries.value(QStringLiteral("problem")).toString().toStdString(), "");
    EXPECT_EQ(entries.value(QStringLiteral("width")).toDouble(), 240);
    EXPECT_EQ(entries.value(QStringLiteral("height")).toDouble(), 150);
    EXPECT_EQ(entries.value(QStringLiteral("pressureLevels")).toUInt(), 8192U);
    EXPECT_TRUE(entries.value(QStringLiteral("tilt")).toBool());
    EXPECT_TRUE(entries.value(QStringLiteral("eraser")).toBool());
    EXPECT_EQ(entries.value(QStringLiteral("keys")).toUInt(), 4U);
    EXPECT_EQ(entries.value(QStringLiteral("strips")).toUInt(), 1U);
    const std::string text = QVTabletListText({entries}).toStdString();
    EXPECT_EQ(text,
        "1234:0042  Acme Pen\n    /dev/input/event1, 240 x 150 mm, 8192 pressure levels, tilt, "
        "eraser, 4 keys, 1 strip or ring\n");
}

TEST_F(Tablets, thatAreOpenAreDescribedWithoutOpeningThem)
{
    mBus.plug(pen());
    mBus.plug(pad());
    const TabletMonitor monitor;
    ASSERT_EQ(monitor.tablets().size(), 1U);
    const Tablet& tablet = monitor.tablets()[0];
    const QVariantMap entries = describeTablet(tablet);
    const platform::Result<TabletNodes> nodes = TabletNodes::open(tablet);
    ASSERT_TRUE(nodes);
    mBus.removeFile(1);
    EXPECT_EQ(describeTablet(tablet, *nodes), entries);
}

TEST_F(Tablets, thatAreUnpluggedWhileTheyAreOpenedSaySo)
{
    mBus.plug(pen());
    mBus.plug(pad());
    const TabletMonitor monitor;
    ASSERT_EQ(monitor.tablets().size(), 1U);
    mBus.removeFile(2);
    EXPECT_EQ(errorText(TabletNodes::open(monitor.tablets()[0])),
        "Acme Pen cannot be opened: /dev/input/event2: No such file or directory");
    mBus.removeFile(1);
    EXPECT_EQ(errorText(TabletNodes::open(monitor.tablets()[0])),
        "Acme Pen cannot be opened: /dev/input/event1: No such file or directory");
}

QVTabletModel acmePen()
{
    QVTabletModel model{};
    model.productID = 0x8000;
    model.name = "Acme Pen";
    model.keyNum = 16;
    model.tabletXmax = 40000;
    model.tabletYmax = 30000;
    model.pressureMax = 8191;
    return model;
}

TEST_F(TabletsOfTheDriver, sayWhatIsMissing)
{
    mBus.plug(pen());
    mController.emplace(mDriver, mNoBus, mNoBus);
    EXPECT_EQ(mController->state(), TabletState::NoPermission);
    const TabletFacts facts = mController->facts();
    EXPECT_EQ(facts.name, QStringLiteral("Acme Pen"));
    EXPECT_EQ(facts.vendorID, 0x1234);
    EXPECT_EQ(facts.productID, 0) << "a panel would find a tablet";
    EXPECT_EQ(facts.state, QStringLiteral("no-permission"));
    EXPECT_TRUE(facts.problem.contains(QStringLiteral("Install the package tdsg-driver-access")))
        << qPrintable(facts.problem);
    mBus.unplug(1);
    EXPECT_TRUE(waitFor([&] { return mController->state() == TabletState::None; }));
    EXPECT_EQ(mController->facts().problem, QString());
}

TEST_F(TabletsOfTheDriver, areTriedAgainWhenTheirRightsChange)
{
    mBus.plug(pen());
    mBus.removeFile(1);
    mController.emplace(mDriver, mNoBus, mNoBus);
    EXPECT_TRUE(mController->facts().problem.contains(QStringLiteral("cannot be opened")));
    mBus.restoreFile(1);
    EXPECT_TRUE(waitFor(
        [&] { return mController->facts().problem.contains(QStringLiteral("/dev/uinput")); }));
}

TEST_F(TabletsOfTheDriver, theFirstIsUsedUntilAnotherIsChosen)
{
    const std::string other = "/devices/pci0000:00/usb1/1-2";
    mBus.plug(pen());
    mController.emplace(mDriver, mNoBus, mNoBus);
    EmulatedNode second = pen(2, other);
    second.name = "Second";
    second.serial = "A17";
    mBus.plug(second);
    ASSERT_TRUE(waitFor([&] { return mController->list().size() == 2; }));
    EXPECT_EQ(nameInUse(), QStringLiteral("Acme Pen"));
    EXPECT_NE(errorText(mController->use(QStringLiteral("1234:0042:B18"))), "");
    EXPECT_EQ(errorText(mController->use(QStringLiteral("1234:0042:A17"))), "");
    EXPECT_EQ(nameInUse(), QStringLiteral("Second"));
    EXPECT_FALSE(mController->list()[0].value(QStringLiteral("inUse")).toBool());
    EXPECT_TRUE(mController->list()[1].value(QStringLiteral("inUse")).toBool());
    mBus.unplug(2);
    EXPECT_TRUE(waitFor([&] { return nameInUse() == QStringLiteral("Acme Pen"); }));
    second.number = 3;
    mBus.plug(second);
    EXPECT_TRUE(waitFor([&] { return nameInUse() == QStringLiteral("Second"); }));

    // Also by the next driver.
    mController.reset();
    Driver next(mEvents, mNoBus);
    next.start();
    EXPECT_EQ(next.chosenTablet(), QStringLiteral("1234:0042:A17"));
}

TEST_F(TabletsOfTheDriver, ofOtherVendorsHaveNumbersOfTheirOwn)
{
    const QString kName = QStringLiteral("Acme Pen");
    EXPECT_EQ(mDriver.configNumber(kQVVendorID, 0x5101, kName).value(), 0x5101);
    EXPECT_EQ(mDriver.configNumber(0x1234, 0x5101, kName).value(), 0x8000);
    EXPECT_EQ(mDriver.configNumber(0x1234, 0x5102, kName).value(), 0x8001);
    EXPECT_EQ(mDriver.configNumber(0x1234, 0x5101, kName).value(), 0x8000);
    Driver next(mEvents, mNoBus);
    next.start();
    EXPECT_EQ(next.configNumber(0x1234, 0x5102, kName).value(), 0x8001);
    EXPECT_EQ(next.configNumber(0x4321, 0x5101, kName).value(), 0x8002);
}

TEST_F(TabletsOfTheDriver, findTheirFilesWithoutTheState)
{
    QVTabletModel model = acmePen();
    EXPECT_EQ(errorText(mDriver.attachTablet(model, 0x1234)), "");
    model.productID = 0x8001;
    model.name = "Other Pen";
    EXPECT_EQ(errorText(mDriver.attachTablet(model, 0x1234)), "");
    EXPECT_EQ(mDriver.configNumber(0x1234, 1, QStringLiteral("Other Pen")).value(), 0x8001);
    EXPECT_EQ(mDriver.configNumber(0x4321, 2, QStringLiteral("Acme Pen")).value(), 0x8002)
        << "of another vendor";
    EXPECT_EQ(mDriver.configNumber(0x1234, 3, QStringLiteral("Acme Pen")).value(), 0x8000);
}

TEST_F(TabletsOfTheDriver, getAFileOnceWithTheirName)
{
    QVTabletModel model = acmePen();
    EXPECT_EQ(errorText(mDriver.attachTablet(model, 0x1234)), "");
    EXPECT_EQ(mDriver.attached(), 0x8000);
    EXPECT_EQ(int{mDriver.settings().Basic.KeyNum}, 16);
    EXPECT_EQ(int{mDriver.settings().Basic.PressureMax}, 8191);
    EXPECT_EQ(int{mDriver.settings().Monitor.cTabletXmax}, 40000);
    QVConfigStore store;
    EXPECT_TRUE(store.loadTabletsRecord());
    EXPECT_EQ(store.tabletName(), QStringLiteral("Acme Pen"));
    model.keyNum = 2;
    mDriver.detach();
    EXPECT_EQ(errorText(mDriver.attachTablet(model, 0x1234)), "");
    EXPECT_EQ(int{mDriver.settings().Basic.KeyNum}, 16) << "the file was replaced";
}
