// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Access to the tablet over USB, with failures at each step.

#include "Client.h"
#include "FakeUsb.h"
#include "QVTabletModels.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace platform;

namespace {

constexpr const char* kNoDevice = "Unable to find first matching USB device\n";
constexpr const char* kSubsequent =
    "Subsequent interface found, we're only intersted in 1 of them\n";

class ClientUsb : public testing::Test {
protected:
    /** Runs the function, and keeps its standard error in mSaid. */
    template <class Function>
    auto quietly(const Function& function)
    {
        testing::internal::CaptureStderr();
        const auto result = function();
        mSaid = testing::internal::GetCapturedStderr();
        return result;
    }
    std::int32_t iterate(std::uint8_t flag = kQVReportFast)
    {
        const auto devices = mUsb.iterator();
        return quietly([&] { return iterateDevices(*devices, flag); });
    }
    std::int32_t iterateInterfaces(std::size_t device = 0)
    {
        std::unique_ptr<UsbIterator> interfaces;
        mUsb.device(device)->createInterfaceIterator(interfaces);
        mUsb.log.clear();
        return quietly([&] { return iterateinterfaces(*interfaces); });
    }
    long count(const std::string& what) const
    {
        return std::count(mUsb.log.begin(), mUsb.log.end(), what);
    }

    FakeUsb mUsb;
    std::string mSaid;
};

} // namespace

TEST_F(ClientUsb, failsWhenTheBusCannotBeAsked)
{
    mUsb.mainPortError = kIOReturnError;
    EXPECT_FALSE(controlUSBDev(kQVReportFast, 0x5101));
    mUsb.mainPortError = kIOReturnSuccess;
    mUsb.hasMatching = false;
    EXPECT_FALSE(controlUSBDev(kQVReportFast, 0x5101));
    mUsb.hasMatching = true;
    mUsb.servicesError = kIOReturnError;
    EXPECT_FALSE(controlUSBDev(kQVReportFast, 0x5101));
    EXPECT_TRUE(mUsb.log.empty());
}

TEST_F(ClientUsb, succeedsWhateverBecomesOfTheDevices)
{
    EXPECT_TRUE(quietly([] { return controlUSBDev(kQVReportFast, 0x5101); }));
    mUsb.devices.resize(1);
    mUsb.devices[0].requestError = kIOUSBPipeStalled;
    EXPECT_TRUE(controlUSBDev(kQVReportFast, 0x5101));
    mUsb.devices[0].openErrors = {kIOReturnError};
    EXPECT_TRUE(controlUSBDev(kQVReportFast, 0x5101));
}

TEST_F(ClientUsb, asksTheDeviceThatItFinds)
{
    mUsb.devices.resize(1);
    EXPECT_TRUE(controlUSBDev(kQVReportFast, 0x5101));
    ASSERT_EQ(mUsb.data.size(), 1U);
    EXPECT_EQ(mUsb.data[0], (std::vector<std::uint8_t>{4, 1}));
}

TEST_F(ClientUsb, looksForTheMakersDevicesOfTheProduct)
{
    quietly([] { return controlUSBDev(kQVReportFast, 0xC001); });
    EXPECT_EQ(mUsb.asked.className, "IOUSBDevice");
    const std::map<std::string, std::int32_t> expected{
        {"idVendor", kQVVendorID}, {"idProduct", 0xC001}};
    EXPECT_EQ(mUsb.asked.properties, expected) << "the product's number is not negative";
}

TEST_F(ClientUsb, sendsSetReportOfFeatureReportFour)
{
    mUsb.devices.resize(1);
    EXPECT_EQ(iterate(kQVReportFast), 0);
    EXPECT_EQ(iterate(kQVReportNormal), 0);
    ASSERT_EQ(mUsb.requests.size(), 2U);
    const UsbDeviceRequest& request = mUsb.requests.front();
    EXPECT_EQ(request.bmRequestType, 0x21);
    EXPECT_EQ(request.bRequest, 9);
    EXPECT_EQ(request.wValue, 0x0304);
    EXPECT_EQ(request.wIndex, 0);
    EXPECT_EQ(request.wLength, 2);
    EXPECT_EQ(request.wLenDone, 2U);
    EXPECT_EQ(mUsb.data[0], (std::vector<std::uint8_t>{4, 1}));
    EXPECT_EQ(mUsb.data[1], (std::vector<std::uint8_t>{4, 0}));
}

TEST_F(ClientUsb, withoutADeviceSaysSoAndDoesNotSleep)
{
    EXPECT_EQ(iterate(), -1);
    EXPECT_EQ(mSaid, kNoDevice);
    EXPECT_TRUE(mUsb.log.empty());
}

TEST_F(ClientUsb, theFirstDeviceThatOpensIsAskedAndNoOther)
{
    mUsb.devices.resize(3);
    mUsb.devices[0].configurations = 2;
    EXPECT_EQ(iterate(), 0);
    const std::vector<std::string> expected{"release device", "release service", "open", "request",
        "release device", "release service"};
    EXPECT_EQ(mUsb.log, expected);
    EXPECT_EQ(mSaid, "");
}

TEST_F(ClientUsb, aRequestThatFailsCountsAsSent)
{
    mUsb.devices.resize(2);
    mUsb.devices[0].requestError = kIOReturnNoDevice;
    EXPECT_EQ(iterate(), 0);
    EXPECT_EQ(count("request"), 1);
}

TEST_F(ClientUsb, aDeviceWhoseConfigurationHasTheNumberZeroIsAskedToo)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].configurationValue = 0;
    EXPECT_EQ(iterate(), 0);
    EXPECT_EQ(count("request"), 1);
}

TEST_F(ClientUsb, aDeviceThatIsHeldIsTriedFourTimesWithASecondAfterEach)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].openErrors = std::deque<IOReturn>(9, kIOReturnExclusiveAccess);
    EXPECT_EQ(iterate(), -1);
    EXPECT_EQ(count("open"), 4);
    EXPECT_EQ(count("sleep 1000"), 4);
    EXPECT_EQ(count("reset"), 4);
    EXPECT_EQ(count("request"), 0);
    EXPECT_EQ(mUsb.log.back(), "reset");
}

TEST_F(ClientUsb, aDeviceThatIsGivenBackIsAskedInThatPass)
{
    for (std::size_t passes = 1; passes <= 3; ++passes) {
        mUsb.log.clear();
        mUsb.devices.assign(1, {});
        mUsb.devices[0].openErrors = std::deque<IOReturn>(passes, kIOReturnExclusiveAccess);
        EXPECT_EQ(iterate(), 0);
        EXPECT_EQ(count("sleep 1000"), static_cast<long>(passes));
        EXPECT_EQ(count("request"), 1);
    }
}

TEST_F(ClientUsb, aDeviceThatGoesBetweenThePassesIsSaidToBeMissing)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].openErrors = {kIOReturnExclusiveAccess};
    mUsb.goesWithReset = true;
    EXPECT_EQ(iterate(), -1);
    EXPECT_EQ(mSaid, kNoDevice);
    EXPECT_EQ(count("sleep 1000"), 1);
}

TEST_F(ClientUsb, onlyAHeldDeviceIsTriedAgain)
{
    for (const IOReturn error : {kIOReturnError, kIOReturnNoDevice, kIOReturnNotPermitted}) {
        mUsb.log.clear();
        mUsb.devices.assign(1, {});
        mUsb.devices[0].openErrors = {error};
        EXPECT_EQ(iterate(), -1);
        EXPECT_EQ(count("open"), 1);
        EXPECT_EQ(count("sleep 1000"), 0);
    }
}

TEST_F(ClientUsb, namesTheCureWhenTheUserMayNotOpenTheTablet)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].openErrors = {kIOReturnNotPermitted};
    EXPECT_EQ(iterate(), -1);
    EXPECT_NE(mSaid.find("60-quorvia-tablet.rules"), std::string::npos) << mSaid;
}

TEST_F(ClientUsb, theFirstDeviceWithoutAnInterfaceEndsTheSearchAsIfItHadBeenAsked)
{
    mUsb.devices.resize(2);
    mUsb.devices[0].interfaceError = kIOReturnError;
    EXPECT_EQ(iterate(), 0);
    EXPECT_EQ(mSaid, "Unable to create USB device with QueryInterface\n");
    EXPECT_EQ(mUsb.log, std::vector<std::string>{"release service"});
}

TEST_F(ClientUsb, aLaterDeviceWithoutAnInterfaceKeepsTheAnswerOfTheOneBefore)
{
    mUsb.devices.resize(3);
    mUsb.devices[0].configurations = 2;
    mUsb.devices[1].interfaceError = kIOReturnError;
    EXPECT_EQ(iterate(), 0);
    EXPECT_EQ(count("request"), 1);
}

TEST_F(ClientUsb, onlyADeviceOfOneConfigurationThatCanBeReadIsOpened)
{
    mUsb.devices.resize(5);
    mUsb.devices[0].configurations = 0;
    mUsb.devices[1].configurations = 2;
    mUsb.devices[2].countError = kIOReturnError;
    mUsb.devices[3].descriptorError = kIOReturnError;
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(openUSBDevice(*mUsb.device(i)), -1) << i;
    }
    EXPECT_EQ(count("open"), 0);
    EXPECT_EQ(openUSBDevice(*mUsb.device(4)), 7) << "the configuration's value";
    mUsb.devices[4].openErrors = {kIOReturnExclusiveAccess, kIOReturnError};
    EXPECT_EQ(openUSBDevice(*mUsb.device(4)), -2);
    EXPECT_EQ(openUSBDevice(*mUsb.device(4)), -1);
}

// Interfaces --------------------------------------------------------------------------------------

TEST_F(ClientUsb, onlyTheFirstInterfaceOfTheProcessIsTheOne)
{
    EXPECT_TRUE(quietly([] { return isThisTheInterfaceYoureLookingFor(); }));
    EXPECT_EQ(mSaid, "");
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(quietly([] { return isThisTheInterfaceYoureLookingFor(); }));
        EXPECT_EQ(mSaid, kSubsequent);
    }
}

TEST_F(ClientUsb, theFirstInterfaceIsOpenedAndTheOthersArePassedOver)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].interfaces.resize(3);
    EXPECT_EQ(iterateInterfaces(), 0);
    EXPECT_EQ(mSaid, std::string(kSubsequent) + kSubsequent);
    EXPECT_EQ(count("open interface"), 1);
    EXPECT_EQ(count("close interface"), 1);
    EXPECT_EQ(count("release interface"), 3);
    EXPECT_EQ(count("release service"), 3);
}

TEST_F(ClientUsb, theFlagOfTheFirstInterfaceIsNeverReset)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].interfaces.resize(1);
    EXPECT_EQ(iterateInterfaces(), 0);
    EXPECT_EQ(iterateInterfaces(), -1);
    EXPECT_EQ(mSaid, std::string(kSubsequent) + "No interesting interfaces found\n");
    EXPECT_FALSE(quietly([] { return isThisTheInterfaceYoureLookingFor(); }));
}

TEST_F(ClientUsb, noInterfaceAtAllIsSaid)
{
    mUsb.devices.resize(1);
    EXPECT_EQ(iterateInterfaces(), -1);
    EXPECT_EQ(mSaid, "Unable to find an Interface\n");
}

TEST_F(ClientUsb, interfacesThatCannotBeGotAreSaid)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].interfaces.resize(1);
    mUsb.devices[0].interfaces[0].interfaceError = kIOReturnUnsupported;
    EXPECT_EQ(iterateInterfaces(), -1);
    EXPECT_EQ(mSaid,
        "Unable to create interface with QueryInterface e00002c7\n"
        "No interesting interfaces found\n");
    EXPECT_EQ(count("release service"), 1);
}

TEST_F(ClientUsb, onlyAPositiveErrorOfOpeningAnInterfaceIsOne)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].interfaces.resize(1);
    mUsb.devices[0].interfaces[0].openErrors = {1};
    EXPECT_EQ(iterateInterfaces(), -1);
    EXPECT_EQ(count("close interface"), 0);
    EXPECT_EQ(count("release interface"), 1);
}

TEST_F(ClientUsb, aNegativeErrorOfOpeningAnInterfaceIsNone)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].interfaces.resize(1);
    mUsb.devices[0].interfaces[0].openErrors = {kIOReturnExclusiveAccess};
    EXPECT_EQ(iterateInterfaces(), 0);
    EXPECT_EQ(count("close interface"), 0);
}

TEST_F(ClientUsb, openingAnInterfaceAloneJudgesAlike)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].interfaces.resize(1);
    mUsb.devices[0].interfaces[0].openErrors = {1, kIOReturnError, kIOReturnSuccess};
    std::unique_ptr<UsbIterator> interfaces;
    mUsb.device(0)->createInterfaceIterator(interfaces);
    const auto interface = getUSBInterfaceInterface(interfaces->next());
    EXPECT_EQ(openUSBInterface(*interface), -1);
    EXPECT_EQ(openUSBInterface(*interface), 0);
    EXPECT_EQ(openUSBInterface(*interface), 0);
}

TEST_F(ClientUsb, usingADeviceSetsItsConfigurationFirst)
{
    mUsb.devices.resize(1);
    mUsb.devices[0].interfaces.resize(1);
    const auto device = mUsb.device(0);
    EXPECT_EQ(useUSBDevice(*device, 3), 0);
    EXPECT_EQ(mUsb.log.front(), "configuration 3");
    EXPECT_EQ(count("open interface"), 1);
    mUsb.log.clear();
    mUsb.devices[0].configurationError = kIOReturnNotOpen;
    EXPECT_EQ(useUSBDevice(*device, 3), kIOReturnNotOpen);
    EXPECT_EQ(count("open interface"), 0);
}
