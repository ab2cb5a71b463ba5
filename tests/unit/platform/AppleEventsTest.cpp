// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "AppleEvents.h"

#include "AppleEventWire.h"
#include "FakeEvents.h"

#include <gtest/gtest.h>

#include <array>

using namespace platform;

TEST(FourCharCode, hasItsFirstCharacterInTheMostSignificantByte)
{
    EXPECT_EQ(fourCharCode("TdSg"), 0x54645367U);
    EXPECT_EQ(fourCharCode("obj "), 0x6F626A20U);
}

TEST(FourCharCode, isQuotedForPeople)
{
    EXPECT_EQ(quoted(fourCharCode("core")), "'core'");
    EXPECT_EQ(quoted(0x41000AFF),
        "'A?"
        "?"
        "?'");
    EXPECT_EQ(quoted(0x1F207E7F),
        "'?"
        " ~?'");
}

TEST(BusName, isTheSignatureWhereABusNameCanHoldIt)
{
    EXPECT_EQ(wire::busName(fourCharCode("TdSg")), QStringLiteral("org.quorvia.AppleEvents.TdSg"));
    EXPECT_EQ(wire::busName(fourCharCode("a_-9")), QStringLiteral("org.quorvia.AppleEvents.a_-9"));
}

TEST(BusName, isTheCodeInHexWhereItCannot)
{
    EXPECT_EQ(
        wire::busName(fourCharCode("ab d")), QStringLiteral("org.quorvia.AppleEvents._x61622064"));
    EXPECT_EQ(
        wire::busName(fourCharCode("1abc")), QStringLiteral("org.quorvia.AppleEvents._x31616263"));
    EXPECT_EQ(wire::busName(0x000000E9), QStringLiteral("org.quorvia.AppleEvents._x000000e9"));
}

TEST(BusName, hasLettersDigitsAndTwoMarks)
{
    for (const char* const plain : {"azAZ", "a09_", "_-_-", "b9yY"}) {
        FourCharCode code = 0;
        for (int i = 0; i < 4; ++i) {
            code = code << 8U | static_cast<unsigned char>(plain[i]);
        }
        EXPECT_EQ(wire::busName(code),
            QStringLiteral("org.quorvia.AppleEvents.") + QString::fromLatin1(plain));
    }
    // The neighbours of the plain characters, and one outside ASCII.
    for (const int other : {int{'`'}, int{'{'}, int{'@'}, int{'['}, int{'/'}, int{':'}, 0xE9}) {
        EXPECT_EQ(wire::busName(0x61626300U | static_cast<unsigned>(other)),
            QStringLiteral("org.quorvia.AppleEvents._x616263%1").arg(other, 2, 16));
    }
}

TEST(BusName, isNeverThatOfTwoSignatures)
{
    EXPECT_EQ(
        wire::busName(fourCharCode("_x12")), QStringLiteral("org.quorvia.AppleEvents._x5f783132"));
}

TEST(GetParam, copiesAtMostWhatTheBufferHolds)
{
    const FakeEvents events;
    AppleEvent event;
    event.parameters = {{keyDirectObject, {typeLongInteger, "abcdefgh"}}};
    std::array<char, 5> buffer{'.', '.', '.', '.', '.'};
    const auto four = std::as_writable_bytes(std::span(buffer)).first(4);
    EXPECT_EQ(events.getParamPtr(event, keyDirectObject, typeLongInteger, four), noErr);
    EXPECT_EQ(std::string(buffer.data(), 5), "abcd.");
}

TEST(GetParam, leavesTheBufferAloneOnAnyError)
{
    const FakeEvents events;
    AppleEvent event;
    event.parameters = {
        {keyDirectObject, {typeLongInteger, AEList{}}}, {keyErrorString, {typeUTF8Text, "x"}}};
    std::array<char, 4> buffer{'.', '.', '.', '.'};
    const auto bytes = std::as_writable_bytes(std::span(buffer));
    EXPECT_EQ(
        events.getParamPtr(event, keyDirectObject, typeLongInteger, bytes), errAECoercionFail);
    EXPECT_EQ(events.getParamPtr(event, keyErrorString, typeLongInteger, bytes), errAECoercionFail);
    EXPECT_EQ(events.getParamPtr(event, keyAEKeyForm, typeLongInteger, bytes), errAEDescNotFound);
    EXPECT_EQ(std::string(buffer.data(), 4), "....");
}

TEST(ServiceScope, putsTheFormerServiceBack)
{
    FakeEvents outer;
    {
        FakeEvents inner;
        EXPECT_EQ(&events(), &inner);
    }
    EXPECT_EQ(&events(), &outer);
}
