// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Client.h"

#include "ErrorText.h"
#include "FakeEvents.h"
#include "Notifications.h"
#include "rzkApplication.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

using namespace platform;

namespace {

/** A record with distinct bytes at the offsets that the diagnostic line prints. */
std::array<unsigned char, 5077> markedRecord()
{
    std::array<unsigned char, 5077> record{};
    for (std::size_t i = 0; i < record.size(); ++i) {
        record[i] = static_cast<unsigned char>(i * 7);
    }
    record[318] = 0xAB;
    record[319] = 200;
    record[320] = 3;
    record[321] = 255;
    return record;
}

std::string pushAndCapture(const void* record, std::int32_t length, bool& result)
{
    testing::internal::CaptureStderr();
    result = ConnectToDriver(record, length);
    return testing::internal::GetCapturedStderr();
}

constexpr const char* kDiagnostic = "ConnectToDriver ab 200 3 255\n";

} // namespace

TEST(ConnectToDriver, sendsTheBytesAsTheyAreInOneEvent)
{
    FakeEvents events;
    const auto record = markedRecord();
    bool result = false;
    pushAndCapture(record.data(), 5077, result);
    EXPECT_TRUE(result);
    ASSERT_EQ(events.sent.size(), 1U);
    const FakeEvents::Sent& sent = events.sent.front();
    EXPECT_EQ(sent.event.eventClass, fourCharCode("TdSg"));
    EXPECT_EQ(sent.event.eventID, fourCharCode("WSnd"));
    EXPECT_EQ(sent.event.address.type, fourCharCode("sign"));
    EXPECT_EQ(*sent.event.address.bytes(), QByteArray("gSdT", 4)); // host order
    ASSERT_EQ(sent.event.parameters.size(), 1U);
    const AEKeyDesc& data = sent.event.parameters.front();
    EXPECT_EQ(data.keyword, fourCharCode("data"));
    EXPECT_EQ(data.desc.type, fourCharCode("utf8"));
    EXPECT_EQ(*data.desc.bytes(), QByteArray(reinterpret_cast<const char*>(record.data()), 5077));
}

TEST(ConnectToDriver, waitsForNoReplyAndNamesModePriorityAndTimeOut)
{
    FakeEvents events;
    const auto record = markedRecord();
    bool result = false;
    pushAndCapture(record.data(), 5077, result);
    ASSERT_EQ(events.sent.size(), 1U);
    EXPECT_FALSE(events.sent.front().wantsReply);
    EXPECT_EQ(events.sent.front().mode, 3);
    EXPECT_EQ(events.sent.front().priority, 1);
    EXPECT_EQ(events.sent.front().timeOut, 15);
}

TEST(ConnectToDriver, sendsNothingOfARecordThatIsNotThereOrOfALengthThatItHasNot)
{
    FakeEvents events;
    const auto record = markedRecord();
    bool result = true;
    for (const std::int32_t length : {-1, std::numeric_limits<std::int32_t>::min(), 5078}) {
        EXPECT_EQ(pushAndCapture(record.data(), length, result),
            std::string(kDiagnostic) + "ConnectToDriver fail...\n");
        EXPECT_FALSE(result);
    }
    EXPECT_EQ(pushAndCapture(nullptr, 5077, result),
        "ConnectToDriver 0 0 0 0\nConnectToDriver fail...\n");
    EXPECT_FALSE(result);
    EXPECT_TRUE(events.sent.empty());
}

TEST(ConnectToDriver, sendsAsManyBytesAsItIsTold)
{
    FakeEvents events;
    const auto record = markedRecord();
    for (const std::int32_t length : {0, 1, 400}) {
        events.sent.clear();
        bool result = false;
        pushAndCapture(record.data(), length, result);
        EXPECT_TRUE(result);
        ASSERT_EQ(events.sent.size(), 1U);
        EXPECT_EQ(events.sent.front().event.parameters.front().desc.bytes()->size(), length);
    }
}

TEST(ConnectToDriver, printsExactlyTwoLines)
{
    FakeEvents events;
    const auto record = markedRecord();
    bool result = false;
    EXPECT_EQ(pushAndCapture(record.data(), 5077, result),
        std::string(kDiagnostic) + "ConnectToDriver ok\n");
}

TEST(ConnectToDriver, saysOkWhateverTheSendReturned)
{
    FakeEvents events;
    events.sendResult = procNotFound;
    const auto record = markedRecord();
    bool result = false;
    EXPECT_EQ(pushAndCapture(record.data(), 5077, result),
        std::string(kDiagnostic) + "ConnectToDriver ok\n");
    EXPECT_TRUE(result);
}

TEST(ConnectToDriver, saysFailWithoutDotsWhenThereIsNoAddress)
{
    FakeEvents events;
    events.createDescResult = errAECoercionFail;
    const auto record = markedRecord();
    bool result = true;
    EXPECT_EQ(pushAndCapture(record.data(), 5077, result),
        std::string(kDiagnostic) + "ConnectToDriver fail\n");
    EXPECT_FALSE(result);
    EXPECT_TRUE(events.sent.empty());
}

TEST(ConnectToDriver, saysFailWithTwoDotsWhenThereIsNoEvent)
{
    FakeEvents events;
    events.createEventResult = errAECoercionFail;
    const auto record = markedRecord();
    bool result = true;
    EXPECT_EQ(pushAndCapture(record.data(), 5077, result),
        std::string(kDiagnostic) + "ConnectToDriver fail..\n");
    EXPECT_FALSE(result);
    EXPECT_TRUE(events.sent.empty());
}

TEST(ConnectToDriver, saysFailWithThreeDotsWhenTheDataCannotBePut)
{
    FakeEvents events;
    events.putParamResult = errAECoercionFail;
    const auto record = markedRecord();
    bool result = true;
    EXPECT_EQ(pushAndCapture(record.data(), 5077, result),
        std::string(kDiagnostic) + "ConnectToDriver fail...\n");
    EXPECT_FALSE(result);
    EXPECT_TRUE(events.sent.empty());
}

TEST(ConnectToDriver, tellsThatItHasPushedWhetherOrNotItCould)
{
    FakeEvents events;
    const auto record = markedRecord();
    const QObject observer;
    int told = 0;
    notifications().addObserver(observer, kRecordPushedNotification, [&](const Notification&) {
        EXPECT_EQ(events.sent.size(), 1U) << "once it is sent";
        ++told;
    });
    bool result = false;
    pushAndCapture(record.data(), 5077, result);
    EXPECT_EQ(told, 1);
    events.putParamResult = errAECoercionFail;
    pushAndCapture(record.data(), 5077, result);
    EXPECT_EQ(told, 2);
}

TEST(PushAndWait, saysWhetherTheDriverHasTheRecord)
{
    FakeEvents events;
    const auto push = [] {
        testing::internal::CaptureStderr();
        const Result<> pushed = QVPushAndWait();
        testing::internal::GetCapturedStderr();
        return errorText(pushed);
    };
    EXPECT_EQ(push(), "");
    ASSERT_EQ(events.sent.size(), 1U);
    EXPECT_EQ(events.sent.front().event.parameters.front().desc.bytes()->size(), kQVRecordSize);
    events.sendResult = errAETimeout;
    EXPECT_EQ(push(), "the driver did not accept the record (error -1712)");
    events.putParamResult = errAECoercionFail;
    EXPECT_EQ(push(), "the record could not be sent");
}
