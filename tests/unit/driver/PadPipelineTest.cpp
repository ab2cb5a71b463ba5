// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PadPipeline.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <vector>

namespace {

using Kind = Command::Kind;

class PadPipelineTest : public testing::Test {
protected:
    std::vector<Command> next(const PadFrame& frame)
    {
        commands.clear();
        pipeline.next(frame, settings, buttons, commands);
        return {commands.all().begin(), commands.all().end()};
    }

    std::vector<Command> keys(unsigned bits)
    {
        PadFrame frame;
        frame.keys = static_cast<std::uint16_t>(bits);
        return next(frame);
    }

    /** Scrolls by a finger's place on a strip. */
    int finger(std::size_t strip, std::optional<std::int32_t> place)
    {
        PadFrame frame;
        frame.strips.at(strip) = place;
        int sum = 0;
        for (const Command& command : next(frame)) {
            EXPECT_EQ(command.kind, Kind::Scroll);
            sum += command.value;
        }
        return sum;
    }

    void assignKeys(std::size_t slot, std::initializer_list<std::uint16_t> codes)
    {
        ButtonAssignment& button = settings.buttons.at(slot);
        button = {kQVKeyCombination, kQVLeftButton, {}, codes.size()};
        std::ranges::copy(codes, button.keyCodes.begin());
    }

    TabletSettings settings;
    ButtonActions buttons;
    Commands commands;
    PadPipeline pipeline{PadStrips{{{100, false}, {72, true}}}};
};

TEST_F(PadPipelineTest, aCombinationPressesInOrderAndReleasesInReverse)
{
    assignKeys(3, {KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_Z});
    EXPECT_EQ(keys(1U << 3U),
        (std::vector<Command>{{Kind::KeyDown, KEY_LEFTCTRL}, {Kind::KeyDown, KEY_LEFTSHIFT},
            {Kind::KeyDown, KEY_Z}}));
    EXPECT_TRUE(keys(1U << 3U).empty());
    EXPECT_EQ(keys(0),
        (std::vector<Command>{
            {Kind::KeyUp, KEY_Z}, {Kind::KeyUp, KEY_LEFTSHIFT}, {Kind::KeyUp, KEY_LEFTCTRL}}));
}

TEST_F(PadPipelineTest, whatWasPressedIsReleasedAfterTheSettingChanged)
{
    assignKeys(0, {KEY_A});
    keys(1);
    assignKeys(0, {KEY_B});
    EXPECT_EQ(keys(0), (std::vector<Command>{{Kind::KeyUp, KEY_A}}));
    EXPECT_EQ(keys(1), (std::vector<Command>{{Kind::KeyDown, KEY_B}}));
}

TEST_F(PadPipelineTest, leavesThePensButtonsToThePen)
{
    assignKeys(kQVUpperPenSlot, {KEY_A});
    buttons.set(kQVUpperPenSlot, true, settings, commands);
    EXPECT_TRUE(keys(0).empty());
    EXPECT_EQ(buttons.down(), 1U << kQVUpperPenSlot);
}

TEST_F(PadPipelineTest, aKeyThatTwoButtonsHoldIsReleasedByTheLast)
{
    assignKeys(0, {KEY_LEFTCTRL});
    assignKeys(1, {KEY_LEFTCTRL, KEY_Z});
    keys(1);
    EXPECT_EQ(keys(3), (std::vector<Command>{{Kind::KeyDown, KEY_Z}}));
    EXPECT_TRUE(keys(2).empty());
    EXPECT_EQ(keys(0), (std::vector<Command>{{Kind::KeyUp, KEY_Z}, {Kind::KeyUp, KEY_LEFTCTRL}}));
}

TEST_F(PadPipelineTest, aMouseButtonIsHeldAsLongAsTheKey)
{
    settings.buttons[15] = {kQVMouseButton, kQVBackButton, {}, 0};
    EXPECT_EQ(keys(0x8000), (std::vector<Command>{{Kind::MouseDown, kQVBackButton}}));
    EXPECT_EQ(keys(0), (std::vector<Command>{{Kind::MouseUp, kQVBackButton}}));
}

TEST_F(PadPipelineTest, applicationsAndFunctionsHappenOnThePress)
{
    settings.buttons[0].action = kQVApplication;
    settings.buttons[1].action = kQVNextDisplay;
    settings.buttons[2].action = kQVPauseTablet;
    settings.buttons[3].action = kQVFinePositioning;
    EXPECT_EQ(keys(1), (std::vector<Command>{{Kind::Launch, 0}}));
    EXPECT_EQ(keys(2), (std::vector<Command>{{Kind::NextDisplay, 0}}));
    EXPECT_EQ(keys(4), (std::vector<Command>{{Kind::Pause, 1}}));
    EXPECT_TRUE(buttons.isPaused());
    EXPECT_TRUE(keys(0).empty());
    EXPECT_EQ(keys(4), (std::vector<Command>{{Kind::Pause, 0}}));
    EXPECT_TRUE(keys(8).empty());
    EXPECT_TRUE(buttons.isFine());
    EXPECT_TRUE(keys(0).empty());
    EXPECT_FALSE(buttons.isFine());
}

TEST_F(PadPipelineTest, aStripScrollsByItsSpeed)
{
    settings.scrollSpeed = 5;
    EXPECT_EQ(finger(0, 50), 0); // touching does not scroll
    EXPECT_EQ(finger(0, 40), 120); // a tenth of the strip, upwards
    EXPECT_EQ(finger(0, 60), -240);
    EXPECT_EQ(finger(0, std::nullopt), 0);
    EXPECT_EQ(finger(0, 10), 0); // elsewhere
    settings.scrollSpeed = 10;
    EXPECT_EQ(finger(0, 0), 240);
}

TEST_F(PadPipelineTest, slowScrollingLosesNothing)
{
    settings.scrollSpeed = 1;
    finger(0, 0);
    int sum = 0;
    for (int place = 1; place <= 100; ++place) {
        sum += finger(0, place);
    }
    EXPECT_EQ(sum, -240);
}

TEST_F(PadPipelineTest, forgetsTheFingerAndWhatWasTooLittleToScroll)
{
    settings.scrollSpeed = 1;
    finger(0, 50);
    EXPECT_EQ(finger(0, 49), 2); // 2.4 of them
    pipeline.forget();
    EXPECT_EQ(finger(0, 10), 0) << "it touches elsewhere";
    EXPECT_EQ(finger(0, 9), 2);
    EXPECT_EQ(finger(0, 8), 2) << "4.8, and not 7.2";
}

TEST_F(PadPipelineTest, aStripMayBeOneUnitLong)
{
    pipeline = PadPipeline(PadStrips{{{1, false}}});
    settings.scrollSpeed = 5;
    finger(0, 0);
    EXPECT_EQ(finger(0, 1), -1200);
}

TEST_F(PadPipelineTest, aRingScrollsOverItsEnd)
{
    settings.scrollSpeed = 6;
    finger(1, 70);
    EXPECT_EQ(finger(1, 1), -60); // 3 of 72 clockwise
    EXPECT_EQ(finger(1, 70), 60);
}

TEST_F(PadPipelineTest, noFingerMovesMoreThanAnEighthOfARingAtOnce)
{
    settings.scrollSpeed = 6;
    finger(1, 0);
    EXPECT_EQ(finger(1, 9), -180);
    EXPECT_EQ(finger(1, 19), 0) << "it has left, and touches elsewhere";
    EXPECT_EQ(finger(1, 49), 0);
    EXPECT_EQ(finger(1, 13), 0) << "half a turn";
    EXPECT_EQ(finger(1, 4), 180);
}

TEST_F(PadPipelineTest, aWheelScrollsByItsNotches)
{
    pipeline = PadPipeline(PadStrips{});
    PadFrame frame;
    frame.wheels[0] = 120;
    EXPECT_EQ(next(frame), (std::vector<Command>{{Kind::Scroll, 120}}));
    settings.scrollSpeed = 10;
    EXPECT_EQ(next(frame), (std::vector<Command>{{Kind::Scroll, 240}}));
}

TEST_F(PadPipelineTest, aStripThatIsOffDoesNothing)
{
    settings.areStripsOn = {false, true};
    finger(0, 50);
    EXPECT_EQ(finger(0, 0), 0);
    settings.areStripsOn = {true, true};
    EXPECT_EQ(finger(0, 10), -120) << "what was moved while it was off is not made up for";
}

TEST_F(PadPipelineTest, theStripOfATurnedTabletIsUpsideDownButNotItsRing)
{
    settings.isTurned = true;
    finger(0, 50);
    EXPECT_EQ(finger(0, 40), -120);
    finger(1, 0);
    EXPECT_LT(finger(1, 8), 0);
}

TEST_F(PadPipelineTest, releasesEverythingAtOnce)
{
    assignKeys(0, {KEY_A});
    settings.buttons[1] = {kQVMouseButton, kQVRightButton, {}, 0};
    settings.buttons[2].action = kQVFinePositioning;
    keys(7);
    EXPECT_EQ(buttons.down(), 7U);
    commands.clear();
    buttons.releaseAll(commands);
    EXPECT_EQ((std::vector<Command>{commands.all().begin(), commands.all().end()}),
        (std::vector<Command>{{Kind::KeyUp, KEY_A}, {Kind::MouseUp, kQVRightButton}}));
    EXPECT_FALSE(buttons.isFine());
    EXPECT_EQ(buttons.down(), 0U);
}

TEST_F(PadPipelineTest, whateverIsPressedIsReleased)
{
    std::mt19937 random(4711); // NOLINT(cert-msc51-cpp): the same frames each time
    const auto any = [&random](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    std::set<std::int32_t> keysDown;
    std::set<std::int32_t> mouseDown;
    const auto check = [&](const std::vector<Command>& all) {
        for (const Command& command : all) {
            switch (command.kind) {
            case Kind::KeyDown:
                ASSERT_TRUE(keysDown.insert(command.value).second);
                break;
            case Kind::KeyUp:
                ASSERT_EQ(keysDown.erase(command.value), 1U);
                break;
            case Kind::MouseDown:
                ASSERT_TRUE(mouseDown.insert(command.value).second);
                break;
            case Kind::MouseUp:
                ASSERT_EQ(mouseDown.erase(command.value), 1U);
                break;
            default:
                break;
            }
        }
    };
    for (int frame = 0; frame < 100'000; ++frame) {
        ButtonAssignment& button = settings.buttons.at(static_cast<std::size_t>(any(0, 15)));
        button.action = static_cast<QVAction>(any(kQVNoAction, kQVPauseTablet));
        button.mouse = static_cast<QVMouseButton>(any(kQVLeftButton, kQVMiddleButton));
        button.keyCount = 0;
        if (button.action == kQVKeyCombination) {
            button.keyCount = static_cast<std::size_t>(any(0, 3));
            const int first = any(KEY_1, KEY_5);
            for (std::size_t i = 0; i < button.keyCount; ++i) {
                button.keyCodes.at(i) = static_cast<std::uint16_t>(first + static_cast<int>(i));
            }
        }
        PadFrame in;
        in.keys = static_cast<std::uint16_t>(any(0, 0xFFFF));
        in.strips[0] = any(0, 3) == 0 ? std::nullopt : std::optional(any(-1000, 1000));
        in.strips[1] = any(0, 100);
        in.wheels[0] = any(-1000, 1000);
        check(next(in));
    }
    check(keys(0));
    EXPECT_TRUE(keysDown.empty());
    EXPECT_TRUE(mouseDown.empty());
}

} // namespace
