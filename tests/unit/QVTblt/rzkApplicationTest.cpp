// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "rzkApplication.h"

#include "FakeEvents.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace platform;

namespace {

class Query : public testing::Test {
protected:
    /** Sets the name as a previous answer would have. */
    void SetUp() override { std::strcpy(GetPListName(), "former.plist"); }
    void TearDown() override { pListname = {}; }

    FakeEvents mEvents;
};

} // namespace

TEST_F(Query, asksForTheConfigurationPropertyOfTheApplication)
{
    mEvents.answer(7);
    rzkgetQVDevice();
    ASSERT_EQ(mEvents.sent.size(), 1U);
    const FakeEvents::Sent& sent = mEvents.sent.front();
    EXPECT_EQ(sent.event.eventClass, fourCharCode("core"));
    EXPECT_EQ(sent.event.eventID, fourCharCode("getd"));
    EXPECT_EQ(sent.event.address.type, fourCharCode("sign"));
    EXPECT_EQ(*sent.event.address.bytes(), QByteArray("gSdT", 4));
    EXPECT_TRUE(sent.wantsReply);
    EXPECT_EQ(sent.mode, 3);
    EXPECT_EQ(sent.priority, 1);
    EXPECT_EQ(sent.timeOut, 15);

    const AERecord& parameters = sent.event.parameters;
    ASSERT_EQ(parameters.size(), 2U);
    EXPECT_EQ(parameters[0].keyword, fourCharCode("rtyp"));
    EXPECT_EQ(parameters[0].desc.type, fourCharCode("type"));
    EXPECT_EQ(*parameters[0].desc.bytes(), QByteArray("gnol", 4));
    EXPECT_EQ(parameters[1].keyword, fourCharCode("----"));
    EXPECT_EQ(parameters[1].desc.type, fourCharCode("obj "));

    const auto& specifier = std::get<AERecord>(parameters[1].desc.data);
    ASSERT_EQ(specifier.size(), 4U);
    EXPECT_EQ(specifier[0].keyword, fourCharCode("want"));
    EXPECT_EQ(specifier[0].desc.type, fourCharCode("type"));
    EXPECT_EQ(*specifier[0].desc.bytes(), QByteArray("porp", 4));
    EXPECT_EQ(specifier[1].keyword, fourCharCode("form"));
    EXPECT_EQ(specifier[1].desc.type, fourCharCode("enum"));
    EXPECT_EQ(*specifier[1].desc.bytes(), QByteArray("porp", 4));
    EXPECT_EQ(specifier[2].keyword, fourCharCode("seld"));
    EXPECT_EQ(specifier[2].desc.type, fourCharCode("long"));
    EXPECT_EQ(*specifier[2].desc.bytes(), QByteArray("GFCQgSdT", sizeof(long)));
    EXPECT_EQ(specifier[3].keyword, fourCharCode("from"));
    EXPECT_EQ(specifier[3].desc.type, fourCharCode("null"));
    EXPECT_EQ(*specifier[3].desc.bytes(), QByteArray());
}

TEST_F(Query, anAnswerOf7NamesTheFile7)
{
    mEvents.answer(7);
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "7.plist");
}

TEST_F(Query, anAnswerOf0NamesTheFile0ButMeansNoTablet)
{
    mEvents.answer(0);
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "0.plist");
}

TEST_F(Query, anAnswerOf65536NamesTheFile0AndMeansATablet)
{
    mEvents.answer(65536);
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "0.plist");
}

TEST_F(Query, aNegativeAnswerNamesTheFileByItsLowBitsTakenAsUnsigned)
{
    mEvents.answer(-1);
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "65535.plist");
}

TEST_F(Query, withoutADriverTheNameStaysAndThereIsNoTablet)
{
    mEvents.sendResult = procNotFound;
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "former.plist");
}

TEST_F(Query, aTimeOutIsAsNoDriver)
{
    mEvents.answer(7);
    mEvents.sendResult = errAETimeout;
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "former.plist");
}

TEST_F(Query, anEmptyReplyLeavesTheAnswerAt0)
{
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "0.plist");
}

TEST_F(Query, anAnswerOfAnotherTypeIs0)
{
    mEvents.answer(typeUTF8Text, "7777");
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "0.plist");
}

TEST_F(Query, ofALongerAnswerTheFirstFourBytesCount)
{
    const auto answer = [this](std::int64_t number) {
        mEvents.answer(typeLongInteger,
            {reinterpret_cast<const char*>(&number), static_cast<int>(sizeof number)});
        return rzkgetQVDevice();
    };
    EXPECT_TRUE(answer(0x7'0000'0009));
    EXPECT_STREQ(GetPListName(), "9.plist");
    EXPECT_FALSE(answer(0x7'0000'0000));
    EXPECT_STREQ(GetPListName(), "0.plist");
}

TEST_F(Query, ofAShorterAnswerTheMissingBytesAreZero)
{
    mEvents.answer(typeLongInteger, QByteArray("\x05\x01", 2));
    EXPECT_TRUE(rzkgetQVDevice());
    EXPECT_STREQ(GetPListName(), "261.plist");
}

TEST_F(Query, withoutAnAddressNothingIsSent)
{
    mEvents.createDescResult = errAECoercionFail;
    EXPECT_FALSE(rzkgetQVDevice());
    EXPECT_TRUE(mEvents.sent.empty());
    EXPECT_STREQ(GetPListName(), "former.plist");
}

TEST_F(Query, isSentEvenWhenTheEventWasNotMade)
{
    mEvents.createEventResult = errAECoercionFail;
    mEvents.createSpecifierResult = errAECoercionFail;
    mEvents.putParamResult = errAECoercionFail;
    rzkgetQVDevice();
    EXPECT_EQ(mEvents.sent.size(), 1U);
}

TEST_F(Query, thePresenceTestNotesNoName)
{
    mEvents.answer(7);
    EXPECT_TRUE(GetQVTabeltDevices());
    mEvents.answer(0);
    EXPECT_FALSE(GetQVTabeltDevices());
    mEvents.sendResult = procNotFound;
    EXPECT_FALSE(GetQVTabeltDevices());
    EXPECT_STREQ(GetPListName(), "former.plist");
}

TEST_F(Query, writesIntoTheCallersBuffer)
{
    std::array<char, 32> name{};
    mEvents.answer(12345);
    EXPECT_TRUE(GetQVConfigFileName(name.data()));
    EXPECT_STREQ(name.data(), "12345.plist");
    EXPECT_STREQ(GetPListName(), "former.plist");
}

TEST_F(Query, neverWritesMoreThanTwelveBytes)
{

    std::array<char, 16> name{};
    name.fill('?');
    mEvents.answer(65535);
    EXPECT_TRUE(GetQVConfigFileName(name.data()));
    EXPECT_EQ(std::string(name.data(), name.size()), std::string("65535.plist\0????", 16));
}
