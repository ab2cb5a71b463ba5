// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The report mode's request through the real USB library, on an emulated bus.

#include "Client.h"
#include "EmulatedUsb.h"
#include "QVTabletModels.h"
#include "Service.h"
#include "Sleep.h"

#include <gtest/gtest.h>

#include <chrono>

using Lines = std::vector<std::string>;

namespace {

constexpr std::uint16_t kTablet = 0x5101;
constexpr const char* kNoDevice = "Unable to find first matching USB device\n";
constexpr const char* kFast = "21 09 04 03 00 00 02 00 | 04 01";
constexpr const char* kNormal = "21 09 04 03 00 00 02 00 | 04 00";

/** Counts sleeps instead of sleeping. */
class NoSleep final : public platform::Sleep {
public:
    void sleepFor(std::chrono::milliseconds time) override
    {
        EXPECT_EQ(time, std::chrono::seconds(1));
        ++count;
    }
    int count = 0;

private:
    platform::ServiceScope<platform::Sleep> mScope{*this};
};

class UsbBus : public testing::Test {
protected:
    void SetUp() override
    {
        // Other devices, before and after the tablet.
        mBus.plug({.number = 2, .vendor = 0x1D6B, .product = kTablet});
        mBus.plug({.number = 3, .vendor = kQVVendorID, .product = 0x5102});
    }

    /** Plugs in a tablet, by default an intact one. */
    void plug(EmulatedDevice tablet = {})
    {
        tablet.number = 4;
        tablet.vendor = kQVVendorID;
        tablet.product = kTablet;
        mBus.plug(tablet);
        mBus.plug({.number = 5, .vendor = 0x1D6B, .product = 2});
    }

    /** Sets a report mode. @return the diagnostics */
    static std::string control(std::uint8_t flag = kQVReportFast)
    {
        testing::internal::CaptureStderr();
        EXPECT_TRUE(controlUSBDev(flag, kTablet));
        return testing::internal::GetCapturedStderr();
    }

    EmulatedUsb mBus;
    NoSleep mSleep;
};

const Lines kAskedFast{"claim 0", kFast, "release", "kernel driver"};

} // namespace

TEST_F(UsbBus, theTabletIsFoundAmongOthersAndToldFast)
{
    plug();
    EXPECT_EQ(control(kQVReportFast), "");
    EXPECT_EQ(mBus.asked(), kAskedFast);
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, theTabletIsToldNormal)
{
    plug();
    control(kQVReportNormal);
    EXPECT_EQ(mBus.asked(), (Lines{"claim 0", kNormal, "release", "kernel driver"}));
}

TEST_F(UsbBus, withoutTheTabletThereIsOneLineAndNoSleep)
{
    EXPECT_EQ(control(), kNoDevice);
    EXPECT_EQ(mBus.asked(), Lines{});
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, aTabletOfTwoConfigurationsIsPassedOver)
{
    plug({.configurations = 2});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mBus.asked(), Lines{});
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, aTabletWithoutAConfigurationDescriptorIsPassedOver)
{
    plug({.hasConfiguration = false});
    control();
    EXPECT_EQ(mBus.asked(), Lines{});
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, aTabletThatAnotherProgramHoldsForAWhileIsToldThen)
{
    plug({.heldClaims = 3});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mSleep.count, 3);
    Lines expected{"claim 0", "claim 0", "claim 0"};
    expected.insert(expected.end(), kAskedFast.begin(), kAskedFast.end());
    EXPECT_EQ(mBus.asked(), expected);
}

TEST_F(UsbBus, aTabletThatIsHeldForOnePassIsToldInTheSecond)
{
    plug({.heldClaims = 1});
    control();
    EXPECT_EQ(mSleep.count, 1);
    EXPECT_EQ(mBus.asked().size(), 1 + kAskedFast.size());
}

TEST_F(UsbBus, aTabletThatIsHeldForTwoPassesIsToldInTheThird)
{
    plug({.heldClaims = 2});
    control();
    EXPECT_EQ(mSleep.count, 2);
    EXPECT_EQ(mBus.asked().size(), 2 + kAskedFast.size());
}

TEST_F(UsbBus, aTabletThatStaysHeldIsToldNothingInFourPasses)
{
    plug({.heldClaims = 99});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mSleep.count, 4);
    EXPECT_EQ(mBus.asked(), (Lines{"claim 0", "claim 0", "claim 0", "claim 0"}));
}

TEST_F(UsbBus, aRequestThatStallsStillGivesTheTabletBack)
{
    plug({.requestStatus = -EPIPE});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mBus.asked(), kAskedFast);
}

TEST_F(UsbBus, aRequestThatIsRefusedStillGivesTheTabletBack)
{
    plug({.submitError = EPERM});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mBus.asked(), kAskedFast);
}

TEST_F(UsbBus, aTabletUnpluggedBeforeTheRequestDoesNoHarm)
{
    plug({.submitError = ENODEV});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, aTabletUnpluggedDuringTheRequestDoesNoHarm)
{
    plug({.requestStatus = -ESHUTDOWN});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, aTabletUnpluggedBetweenListingAndOpeningIsPassedOver)
{
    plug();
    std::unique_ptr<platform::UsbIterator> devices;
    platform::UsbMatching matching = *platform::usb().serviceMatching("IOUSBDevice");
    matching.properties = {{"idVendor", kQVVendorID}, {"idProduct", kTablet}};
    ASSERT_EQ(platform::usb().getMatchingServices(matching, devices), platform::kIOReturnSuccess);
    mBus.unplug(4);
    EXPECT_EQ(iterateDevices(*devices, kQVReportFast), -1);
    EXPECT_EQ(mBus.asked(), Lines{});
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, aTabletWhoseInterfaceIsGoneIsPassedOver)
{
    plug({.claimError = ENODEV});
    EXPECT_EQ(control(), "");
    EXPECT_EQ(mBus.asked(), Lines{"claim 0"});
    EXPECT_EQ(mSleep.count, 0);
}

TEST_F(UsbBus, noOtherClassOfServicesIsFound)
{
    plug();
    std::unique_ptr<platform::UsbIterator> services;
    ASSERT_EQ(platform::usb().getMatchingServices(
                  *platform::usb().serviceMatching("IOUSBInterface"), services),
        platform::kIOReturnSuccess);
    EXPECT_EQ(services->next(), nullptr);
}

TEST_F(UsbBus, whatIsNotOpenCannotBeAsked)
{
    plug();
    std::unique_ptr<platform::UsbIterator> devices;
    platform::usb().getMatchingServices(*platform::usb().serviceMatching("IOUSBDevice"), devices);
    const auto device = platform::usb().createDeviceInterface(*devices->next());
    ASSERT_NE(device, nullptr);
    platform::UsbDeviceRequest request{};
    EXPECT_EQ(device->deviceRequest(request), platform::kIOReturnNotOpen);
    EXPECT_EQ(device->setConfiguration(1), platform::kIOReturnNotOpen);
}

TEST_F(UsbBus, theInterfacesOfADeviceAreFoundTakenAndGivenBack)
{
    plug();
    std::unique_ptr<platform::UsbIterator> devices;
    platform::UsbMatching matching = *platform::usb().serviceMatching("IOUSBDevice");
    matching.properties = {{"idVendor", kQVVendorID}, {"idProduct", kTablet}};
    ASSERT_EQ(platform::usb().getMatchingServices(matching, devices), platform::kIOReturnSuccess);
    const auto service = devices->next();
    std::unique_ptr<platform::UsbIterator> interfaces;
    ASSERT_EQ(platform::usb().createDeviceInterface(*service)->createInterfaceIterator(interfaces),
        platform::kIOReturnSuccess);
    platform::IOReturn error = platform::kIOReturnSuccess;
    EXPECT_EQ(platform::usb().createInterfaceInterface(*service, error), nullptr);
    EXPECT_NE(error, platform::kIOReturnSuccess);
    EXPECT_EQ(iterateinterfaces(*interfaces), 0);
    EXPECT_EQ(mBus.asked(), (Lines{"claim 0", "release", "kernel driver"}));
    interfaces->reset();
    EXPECT_NE(interfaces->next(), nullptr);
    EXPECT_EQ(interfaces->next(), nullptr);
}

TEST(UsbSleep, lastsASecondAfterEachOfFourPasses)
{
    EmulatedUsb bus;
    bus.plug({.vendor = kQVVendorID, .product = kTablet, .heldClaims = 99});
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(controlUSBDev(kQVReportFast, kTablet));
    const auto passed = std::chrono::steady_clock::now() - start;
    EXPECT_GE(passed, std::chrono::seconds(4));
    EXPECT_LT(passed, std::chrono::seconds(8));
    EXPECT_EQ(bus.asked().size(), 4U);
}
