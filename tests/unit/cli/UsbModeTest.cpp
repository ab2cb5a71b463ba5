// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "UsbMode.h"

#include "FakeUsb.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

class UsbMode : public testing::Test {
protected:
    /** The sentence about the report mode of a tablet named Slate. */
    std::string sentence(bool isFast = true)
    {
        testing::internal::CaptureStderr();
        const Result<QString> told = setUsbMode(isFast, 7, QStringLiteral("Slate"));
        testing::internal::GetCapturedStderr();
        mIsDone = told.has_value();
        return (told ? *told : told.error().text).toStdString();
    }

    FakeUsb mUsb;
    bool mIsDone = false;
};

} // namespace

TEST_F(UsbMode, saysWhatTheTabletWasTold)
{
    mUsb.devices.resize(1);
    EXPECT_EQ(sentence(true), "set the report speed of the Slate to fast");
    EXPECT_TRUE(mIsDone);
    EXPECT_EQ(mUsb.data.back(), (std::vector<std::uint8_t>{4, 1}));
    EXPECT_EQ(sentence(false), "set the report speed of the Slate to normal");
    EXPECT_EQ(mUsb.data.back(), (std::vector<std::uint8_t>{4, 0}));
}

TEST_F(UsbMode, saysWhatKeptItFromTheTablet)
{
    mUsb.servicesError = kIOReturnError;
    EXPECT_EQ(sentence(), "the USB bus cannot be searched");
    mUsb.servicesError = kIOReturnSuccess;
    EXPECT_EQ(sentence(), "there is no Slate on the USB bus");
    mUsb.devices.resize(1);
    FakeUsbService& tablet = mUsb.devices.front();
    tablet.openErrors = std::deque<IOReturn>(4, kIOReturnExclusiveAccess);
    EXPECT_EQ(sentence(), "another program holds the Slate");
    tablet.openErrors = {kIOReturnNotPermitted};
    EXPECT_NE(sentence().find("60-quorvia-tablet.rules"), std::string::npos);
    tablet.openErrors = {kIOReturnNoDevice};
    EXPECT_EQ(sentence(), "the Slate was disconnected");
    tablet.openErrors = {kIOReturnError};
    EXPECT_EQ(sentence(), "the Slate could not be opened");
    tablet.requestError = kIOUSBPipeStalled;
    EXPECT_EQ(sentence(), "the Slate rejected the report mode");
    tablet.requestError = kIOReturnNoDevice;
    EXPECT_EQ(sentence(), "the Slate was disconnected");
    tablet.requestError = kIOReturnTimeout;
    EXPECT_EQ(sentence(), "the Slate does not answer");
    tablet.requestError = kIOReturnError;
    EXPECT_EQ(sentence(), "the Slate did not accept the report mode");
    tablet.configurations = 2;
    EXPECT_EQ(sentence(), "the Slate has 2 configurations instead of one, so it was skipped");
    tablet.configurations = 1;
    tablet.descriptorError = kIOReturnError;
    EXPECT_EQ(sentence(), "the Slate does not return its descriptors, so it was skipped");
    EXPECT_FALSE(mIsDone);
}
