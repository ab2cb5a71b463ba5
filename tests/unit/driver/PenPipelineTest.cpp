// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PenPipeline.h"

#include "QVPressCurve.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <utility>

namespace {

/** A tablet of 40,000 by 20,000 units with 8,192 levels, and a virtual pen of other ranges. */
constexpr PenAxes kTablet{40000, 20000, 8191, 3600};
constexpr PenAxes kVirtual{160000, 80000, 8191, 3600};

class PenPipelineTest : public testing::Test {
protected:
    PenPipelineTest()
    {
        settings.range = {0, 0, 20000, 10000};
        settings.area = settings.range;
    }

    PenPipeline::Result next(const PenFrame& frame)
    {
        commands.clear();
        return pipeline.next(frame, settings, buttons, commands);
    }

    static PenFrame at(std::int32_t x, std::int32_t y)
    {
        PenFrame frame;
        frame.tool = PenTool::Tip;
        frame.x = x;
        frame.y = y;
        return frame;
    }

    static PenFrame pressed(std::int32_t pressure)
    {
        PenFrame frame = at(100, 100);
        frame.isTouching = true;
        frame.pressure = pressure;
        return frame;
    }

    static PenFrame holding(std::uint8_t button)
    {
        PenFrame frame = at(100, 100);
        frame.buttons = button;
        return frame;
    }

    void assign(std::size_t slot, QVAction action, QVMouseButton mouse = kQVLeftButton)
    {
        settings.buttons.at(slot) = {action, mouse, {}, 0};
    }

    TabletSettings settings;
    ButtonActions buttons;
    Commands commands;
    PenPipeline pipeline{kTablet, kVirtual};
};

TEST_F(PenPipelineTest, theWholeTabletCoversTheWholeRange)
{
    EXPECT_EQ(next(at(0, 0)).pen.x, 0);
    const PenFrame middle = next(at(20000, 5000)).pen;
    EXPECT_EQ(middle.x, 80000);
    EXPECT_EQ(middle.y, 20000);
    const PenFrame corner = next(at(40000, 20000)).pen;
    EXPECT_EQ(corner.x, 160000);
    EXPECT_EQ(corner.y, 80000);
}

TEST_F(PenPipelineTest, aPartOfTheTabletCoversAllAndIsClampedAtItsEdges)
{
    settings.area = {5000, 2500, 15000, 7500};
    EXPECT_EQ(next(at(20000, 10000)).pen.x, 80000);
    EXPECT_EQ(next(at(10000, 10000)).pen.x, 0);
    EXPECT_EQ(next(at(30000, 10000)).pen.x, 160000);
    EXPECT_EQ(next(at(0, 0)).pen.x, 0);
    EXPECT_EQ(next(at(0, 0)).pen.y, 0);
    EXPECT_EQ(next(at(40000, 20000)).pen.x, 160000);
    EXPECT_EQ(next(at(40000, 20000)).pen.y, 80000);
}

TEST_F(PenPipelineTest, theAreaLandsInItsTarget)
{
    settings.target = {0.5, 0, 1, 0.5};
    EXPECT_EQ(next(at(0, 0)).pen.x, 80001); // unit 80000 begins before the middle
    EXPECT_EQ(next(at(40000, 20000)).pen.x, 160000);
    EXPECT_EQ(next(at(40000, 20000)).pen.y, 40000);
}

TEST_F(PenPipelineTest, thePenStaysOnItsSideOfTheEdgesOfItsTarget)
{
    // Two displays of 1000 points side by side; the second one begins at point 1000.
    const auto pointAt = [&](std::int32_t x) {
        return 2000.0 * next(at(x, 0)).pen.x / (kVirtual.xMax + 1);
    };
    settings.target = {0, 0, 0.5, 1};
    EXPECT_EQ(pointAt(0), 0);
    EXPECT_LT(pointAt(40000), 1000);
    EXPECT_NEAR(pointAt(40000), 1000, 0.02);
    settings.target = {0.5, 0, 1, 1};
    EXPECT_GE(pointAt(0), 1000);
    EXPECT_NEAR(pointAt(0), 1000, 0.02);
    EXPECT_LT(pointAt(40000), 2000);
}

TEST_F(PenPipelineTest, theTurnsOfTheDesktopAreUndoneLast)
{
    settings.target = {0, 0, 0.5, 1};
    const auto place = [&](int turns) {
        settings.desktopTurns = turns;
        const PenFrame pen = next(at(40000, 5000)).pen;
        return std::pair(pen.x, pen.y);
    };
    EXPECT_EQ(place(0), std::pair(80000, 20000));
    EXPECT_EQ(place(1), std::pair(40000, 40001));
    EXPECT_EQ(place(2), std::pair(80001, 60000));
    EXPECT_EQ(place(3), std::pair(120000, 40000));
}

TEST_F(PenPipelineTest, thePenStaysInItsTargetHoweverTheDesktopIsTurned)
{
    for (int turns = 0; turns < 4; ++turns) {
        settings.desktopTurns = turns;
        settings.target = {0.2, 0.1, 0.5, 0.7};
        // A quarter turn back takes the right edge to the lower one, and so on.
        TabletRect turned = settings.target;
        for (int turn = 0; turn < turns; ++turn) {
            turned = {turned.top, 1 - turned.right, turned.bottom, 1 - turned.left};
        }
        double left = 1;
        double top = 1;
        double right = 0;
        double bottom = 0;
        for (const auto& [x, y] : {std::pair(0, 0), {40000, 0}, {0, 20000}, {40000, 20000}}) {
            const PenFrame pen = next(at(x, y)).pen;
            const double across = pen.x / (kVirtual.xMax + 1.0);
            const double down = pen.y / (kVirtual.yMax + 1.0);
            left = std::min(left, across);
            top = std::min(top, down);
            right = std::max(right, across);
            bottom = std::max(bottom, down);
        }
        constexpr double kUnit = 1.0 / 80000;
        EXPECT_GE(left, turned.left) << turns;
        EXPECT_GE(top, turned.top) << turns;
        EXPECT_LT(right, turned.right) << turns;
        EXPECT_LT(bottom, turned.bottom) << turns;
        EXPECT_NEAR(left, turned.left, kUnit) << turns;
        EXPECT_NEAR(top, turned.top, kUnit) << turns;
        EXPECT_NEAR(right, turned.right, 2 * kUnit) << turns;
        EXPECT_NEAR(bottom, turned.bottom, 2 * kUnit) << turns;
    }
}

TEST_F(PenPipelineTest, aStrokeEndsWhereItIsWhenItsTargetMoves)
{
    settings.target = {0, 0, 0.5, 1};
    const PenFrame before = next(pressed(4000)).pen;
    EXPECT_TRUE(before.isTouching);
    settings.target = {0.5, 0, 1, 1};
    PenFrame frame = pressed(4000);
    frame.time = std::chrono::microseconds(7);
    const PenPipeline::Result moved = next(frame);
    ASSERT_TRUE(moved.lift);
    EXPECT_EQ(std::pair(moved.lift->x, moved.lift->y), std::pair(before.x, before.y));
    EXPECT_EQ(moved.lift->tool, PenTool::Tip);
    EXPECT_FALSE(moved.lift->isTouching);
    EXPECT_EQ(moved.lift->pressure, 0);
    EXPECT_EQ(moved.lift->time, frame.time);
    EXPECT_EQ(moved.pen.x, before.x + 80000);
    EXPECT_FALSE(moved.pen.isTouching) << "the tip has not been lifted yet";
    EXPECT_EQ(moved.pen.pressure, 0);
    EXPECT_FALSE(next(pressed(5000)).pen.isTouching);
    EXPECT_FALSE(next(pressed(5000)).lift) << "once is enough";
    EXPECT_FALSE(next(at(100, 100)).pen.isTouching);
    EXPECT_TRUE(next(pressed(4000)).pen.isTouching);
}

TEST_F(PenPipelineTest, aPenThatDoesNotTouchNeedsNoLift)
{
    next(at(100, 100));
    settings.target = {0.5, 0, 1, 1};
    EXPECT_FALSE(next(pressed(4000)).lift);
    EXPECT_TRUE(next(pressed(4000)).pen.isTouching);
    settings.target = {0, 0, 0.5, 1};
    EXPECT_FALSE(next(PenFrame()).lift) << "it leaves anyway";
    EXPECT_TRUE(next(pressed(4000)).pen.isTouching);
}

TEST_F(PenPipelineTest, theLeftButtonOnThePenIsLiftedAsTheTipIs)
{
    assign(kQVLowerPenSlot, kQVMouseButton, kQVLeftButton);
    EXPECT_TRUE(next(holding(kPenLower)).pen.isTouching);
    settings.target = {0.5, 0, 1, 1};
    EXPECT_TRUE(next(holding(kPenLower)).lift);
    EXPECT_FALSE(next(holding(kPenLower)).pen.isTouching);
    EXPECT_FALSE(next(at(100, 100)).pen.isTouching);
    EXPECT_TRUE(next(holding(kPenLower)).pen.isTouching);
}

TEST_F(PenPipelineTest, rotationTurnsPlaceTiltAndTwist)
{
    settings.isTurned = true;
    PenFrame frame = at(10000, 5000);
    frame.tiltX = 30;
    frame.tiltY = -12;
    frame.twist = 2700;
    const PenFrame pen = next(frame).pen;
    EXPECT_EQ(pen.x, 120000);
    EXPECT_EQ(pen.y, 60000);
    EXPECT_EQ(pen.tiltX, -30);
    EXPECT_EQ(pen.tiltY, 12);
    EXPECT_EQ(pen.twist, 900);
    frame.twist = 900;
    EXPECT_EQ(next(frame).pen.twist, 2700);
    pipeline = PenPipeline({40000, 20000, 8191, 0}, kVirtual);
    frame.twist = 0;
    EXPECT_EQ(next(frame).pen.twist, 0) << "the tablet does not tell a pen's twist";
}

TEST_F(PenPipelineTest, theAreaIsOneOfTheTurnedTablet)
{
    settings.isTurned = true;
    settings.area = {0, 0, 10000, 5000}; // the user's upper left quarter
    EXPECT_EQ(next(at(40000, 20000)).pen.x, 0);
    EXPECT_EQ(next(at(20000, 10000)).pen.x, 160000);
    EXPECT_EQ(next(at(20000, 10000)).pen.y, 80000);
    EXPECT_EQ(next(at(0, 0)).pen.x, 160000);
}

TEST_F(PenPipelineTest, aStraightLineKeepsEveryLevel)
{
    for (std::int32_t level = 0; level <= kTablet.pressureMax; ++level) {
        ASSERT_EQ(next(pressed(level)).pen.pressure, level);
    }
}

TEST_F(PenPipelineTest, everyCurveIsMonotoneFromEndToEnd)
{
    for (const int threshold : {0, 50, 99, 100, 101, 150, 200}) {
        settings.threshold = threshold;
        EXPECT_EQ(next(pressed(0)).pen.pressure, 0) << threshold;
        std::int32_t last = 0;
        for (std::int32_t level = 1; level <= kTablet.pressureMax; ++level) {
            const std::int32_t pressure = next(pressed(level)).pen.pressure;
            ASSERT_GE(pressure, std::max(last, 1)) << threshold << " at " << level;
            last = pressure;
        }
        EXPECT_EQ(last, kVirtual.pressureMax) << threshold;
    }
}

TEST_F(PenPipelineTest, thePressureFollowsTheThreshold)
{
    for (const int threshold : {0, 37, 100, 150, 200}) {
        settings.threshold = threshold;
        for (std::int32_t level = 1; level <= kTablet.pressureMax; ++level) {
            const double response =
                QVPressResponse(static_cast<double>(level) / kTablet.pressureMax, threshold);
            ASSERT_NEAR(next(pressed(level)).pen.pressure,
                std::max(1.0, response * kVirtual.pressureMax), 0.5 + 1e-9)
                << threshold << " at " << level;
        }
    }
}

TEST_F(PenPipelineTest, moreThanTheFullPressureIsTheFullPressure)
{
    EXPECT_EQ(next(pressed(9000)).pen.pressure, kVirtual.pressureMax);
    EXPECT_EQ(next(pressed(-5)).pen.pressure, 0);
    pipeline = PenPipeline({40000, 20000, 1, 3600}, kVirtual);
    EXPECT_EQ(next(pressed(1)).pen.pressure, kVirtual.pressureMax) << "with one level, all or none";
    pipeline = PenPipeline({40000, 20000, 0, 3600}, kVirtual);
    EXPECT_EQ(next(pressed(1)).pen.pressure, 0) << "the tablet does not tell it";
}

TEST_F(PenPipelineTest, carriesThroughWhatNoSettingConcerns)
{
    PenFrame frame = at(1, 1);
    frame.time = std::chrono::microseconds(1234);
    frame.tool = PenTool::Eraser;
    frame.serial = 77;
    frame.distance = 12;
    frame.tiltX = 5;
    frame.tiltY = 6;
    frame.twist = 7;
    const PenFrame pen = next(frame).pen;
    EXPECT_EQ(pen.time, frame.time);
    EXPECT_EQ(pen.tool, PenTool::Eraser);
    EXPECT_EQ(pen.serial, 77U);
    EXPECT_EQ(pen.distance, 12);
    EXPECT_EQ(pen.tiltX, 5);
    EXPECT_EQ(pen.tiltY, 6);
    EXPECT_EQ(pen.twist, 7);
}

TEST_F(PenPipelineTest, thePensButtonsAreMouseButtonsOfTheirSlots)
{
    assign(kQVLowerPenSlot, kQVMouseButton, kQVRightButton);
    assign(kQVUpperPenSlot, kQVMouseButton, kQVBackButton);
    EXPECT_EQ(next(holding(kPenLower)).pen.buttons, kPenUpper);
    EXPECT_EQ(next(holding(kPenUpper)).pen.buttons, kPenThird);
    EXPECT_EQ(next(holding(kPenUpper | kPenLower)).pen.buttons, kPenUpper | kPenThird);
    EXPECT_EQ(next(holding(0)).pen.buttons, 0);
    EXPECT_TRUE(commands.all().empty());
}

TEST_F(PenPipelineTest, theLeftButtonOnThePenIsItsTip)
{
    assign(kQVLowerPenSlot, kQVMouseButton, kQVLeftButton);
    const PenFrame pen = next(holding(kPenLower)).pen;
    EXPECT_TRUE(pen.isTouching);
    EXPECT_EQ(pen.pressure, kVirtual.pressureMax);
    EXPECT_EQ(pen.buttons, 0);
    EXPECT_FALSE(next(holding(0)).pen.isTouching);
}

TEST_F(PenPipelineTest, aButtonIsReleasedWhenThePenLeaves)
{
    assign(kQVLowerPenSlot, kQVKeyCombination);
    settings.buttons[kQVLowerPenSlot].keyCodes[0] = KEY_A;
    settings.buttons[kQVLowerPenSlot].keyCount = 1;
    next(holding(kPenLower));
    ASSERT_EQ(commands.all().size(), 1U);
    EXPECT_EQ(commands.all()[0], (Command{Command::Kind::KeyDown, KEY_A}));
    PenFrame gone;
    gone.time = std::chrono::microseconds(1234);
    gone.buttons = kPenLower; // a tablet that never says that it is up
    EXPECT_EQ(next(gone).pen.time, gone.time);
    ASSERT_EQ(commands.all().size(), 1U);
    EXPECT_EQ(commands.all()[0], (Command{Command::Kind::KeyUp, KEY_A}));
}

TEST_F(PenPipelineTest, whatAButtonHoldsIsReleasedAfterTheSettingChanged)
{
    assign(kQVLowerPenSlot, kQVKeyCombination);
    settings.buttons[kQVLowerPenSlot].keyCodes[0] = KEY_A;
    settings.buttons[kQVLowerPenSlot].keyCount = 1;
    assign(kQVUpperPenSlot, kQVMouseButton, kQVLeftButton);
    EXPECT_TRUE(next(holding(kPenLower | kPenUpper)).pen.isTouching);
    assign(kQVLowerPenSlot, kQVNoAction);
    assign(kQVUpperPenSlot, kQVMouseButton, kQVBackButton);
    EXPECT_TRUE(next(holding(kPenLower | kPenUpper)).pen.isTouching);
    const PenFrame released = next(holding(0)).pen;
    EXPECT_FALSE(released.isTouching);
    EXPECT_EQ(released.buttons, 0);
    ASSERT_EQ(commands.all().size(), 1U);
    EXPECT_EQ(commands.all()[0], (Command{Command::Kind::KeyUp, KEY_A}));
}

TEST_F(PenPipelineTest, aPauseEndsWhereNoButtonCouldEndItAnyLonger)
{
    assign(kQVLowerPenSlot, kQVPauseTablet);
    next(holding(kPenLower));
    next(holding(0));
    assign(kQVLowerPenSlot, kQVNoAction);
    assign(3, kQVPauseTablet);
    EXPECT_EQ(next(at(1, 1)).pen.tool, PenTool::None);
    assign(3, kQVNoAction);
    EXPECT_EQ(next(at(1, 1)).pen.tool, PenTool::Tip);
    ASSERT_EQ(commands.all().size(), 1U);
    EXPECT_EQ(commands.all()[0], (Command{Command::Kind::Pause, 0}));
}

TEST_F(PenPipelineTest, finePositioningMovesAQuarterFromWhereItBegan)
{
    assign(kQVLowerPenSlot, kQVFinePositioning);
    next(at(10000, 10000));
    PenFrame frame = at(10000, 10000);
    frame.buttons = kPenLower;
    EXPECT_EQ(next(frame).pen.x, 40000);
    frame.x = 14000;
    frame.y = 6000;
    EXPECT_EQ(next(frame).pen.x, 44000);
    EXPECT_EQ(next(frame).pen.y, 36000);
    EXPECT_EQ(next(at(14000, 6000)).pen.x, 56000);
}

TEST_F(PenPipelineTest, finePositioningBeginsAtTheEdgeWhereThePenIsOffTheArea)
{
    settings.area = {5000, 2500, 15000, 7500};
    assign(kQVLowerPenSlot, kQVFinePositioning);
    PenFrame frame = at(40000, 20000);
    frame.buttons = kPenLower;
    EXPECT_EQ(next(frame).pen.x, 160000);
    frame.x = frame.y = 10000; // the area's left edge, and the middle of its height
    EXPECT_EQ(next(frame).pen.x, 120000);
    EXPECT_EQ(next(frame).pen.y, 70000);
}

TEST_F(PenPipelineTest, finePositioningBeginsAnewEachTime)
{
    assign(kQVLowerPenSlot, kQVFinePositioning);
    const auto beginAt = [&](std::int32_t x) {
        PenFrame frame = at(x, 100);
        frame.buttons = kPenLower;
        return next(frame).pen.x;
    };
    EXPECT_EQ(beginAt(10000), 40000);
    next(at(20000, 100));
    EXPECT_EQ(beginAt(30000), 120000) << "after the button was let go";
    assign(0, kQVFinePositioning);
    buttons.set(0, true, settings, commands);
    next(PenFrame());
    EXPECT_EQ(next(at(10000, 100)).pen.x, 40000) << "after the pen had left, with a key still down";
}

TEST_F(PenPipelineTest, aStrokeDoesNotJumpWhenFinePositioningEnds)
{
    assign(kQVLowerPenSlot, kQVFinePositioning);
    PenFrame frame = pressed(300);
    frame.x = frame.y = 10000;
    frame.buttons = kPenLower;
    EXPECT_EQ(next(frame).pen.x, 40000);
    frame.x = 14000;
    EXPECT_EQ(next(frame).pen.x, 44000);
    frame.buttons = 0;
    const PenPipeline::Result released = next(frame);
    EXPECT_EQ(released.pen.x, 44000);
    EXPECT_FALSE(released.lift) << "the stroke goes on";
    frame.x = 14400;
    EXPECT_EQ(next(frame).pen.x, 44400) << "finely to its end";
    EXPECT_EQ(next(at(14400, 10000)).pen.x, 57600);
}

TEST_F(PenPipelineTest, aPausedPenIsOutOfReachUntilTheButtonIsPressedAgain)
{
    assign(kQVLowerPenSlot, kQVPauseTablet);
    EXPECT_EQ(next(at(1, 1)).pen.tool, PenTool::Tip);
    EXPECT_EQ(next(holding(kPenLower)).pen.tool, PenTool::None);
    EXPECT_EQ(next(at(2, 2)).pen.tool, PenTool::None);
    EXPECT_EQ(next(holding(kPenLower)).pen.tool, PenTool::Tip);
    EXPECT_EQ(next(at(2, 2)).pen.tool, PenTool::Tip);
}

TEST_F(PenPipelineTest, whileThePanelCalibratesItGetsReportsAndThePenMovesNothing)
{
    settings.isCalibrating = true;
    PenPipeline::Result result = next(at(10000, 5000));
    EXPECT_EQ(result.pen.tool, PenTool::None);
    ASSERT_TRUE(result.report);
    EXPECT_EQ(*result.report, (QVPenReport{0, 5000, 2500, 0}));
    PenFrame touching = pressed(300);
    touching.x = 40000;
    touching.y = 20000;
    result = next(touching);
    ASSERT_TRUE(result.report);
    EXPECT_EQ(*result.report, (QVPenReport{1, 20000, 10000, 300}));
    touching.isTouching = false;
    next(touching);
    EXPECT_FALSE(next(PenFrame()).report);
}

TEST_F(PenPipelineTest, aPenThatLeavesWhileItTouchesIsLiftedWhereItWas)
{
    settings.isCalibrating = true;
    next(pressed(300));
    const PenPipeline::Result result = next(PenFrame());
    ASSERT_TRUE(result.report);
    EXPECT_EQ(*result.report, (QVPenReport{0, 50, 50, 0}));
    EXPECT_FALSE(next(PenFrame()).report);
    next(pressed(300));
    settings.isCalibrating = false;
    next(pressed(300));
    settings.isCalibrating = true;
    EXPECT_FALSE(next(PenFrame()).report) << "of a calibration before";
}

TEST_F(PenPipelineTest, aButtonOfAPenThatIsIgnoredDoesNothing)
{
    assign(kQVLowerPenSlot, kQVPauseTablet);
    assign(kQVUpperPenSlot, kQVApplication);
    settings.isCalibrating = true;
    next(holding(kPenUpper));
    EXPECT_TRUE(commands.all().empty());
    next(at(2, 2));
    settings.isCalibrating = false;
    next(holding(kPenLower));
    next(holding(kPenUpper));
    EXPECT_TRUE(commands.all().empty());
    next(holding(kPenLower));
    next(at(2, 2));
    next(holding(kPenUpper));
    ASSERT_EQ(commands.all().size(), 1U);
    EXPECT_EQ(commands.all()[0].kind, Command::Kind::Launch);
}

TEST_F(PenPipelineTest, theReportsOfATurnedTabletAreTurned)
{
    settings.isCalibrating = true;
    settings.isTurned = true;
    settings.range = {100, 200, 20100, 10200};
    const PenPipeline::Result result = next(at(0, 5000));
    ASSERT_TRUE(result.report);
    EXPECT_EQ(*result.report, (QVPenReport{0, 20100, 7700, 0}));
}

/** Frames of a tablet that has lost its mind. */
TEST_F(PenPipelineTest, whateverTheFramesThePenStaysInItsRange)
{
    std::mt19937 random(20261122); // NOLINT(cert-msc51-cpp): the same frames each time
    const auto any = [&random](std::int32_t from, std::int32_t to) {
        return std::uniform_int_distribution<std::int32_t>(from, to)(random);
    };
    const auto oneIn = [&any](int count) { return any(1, count) == 1; };
    std::array<int, KEY_CNT> down{};
    for (int frame = 0; frame < 500'000; ++frame) {
        if (oneIn(100)) {
            settings.isTurned = oneIn(2);
            settings.isCalibrating = oneIn(4);
            settings.threshold = any(0, 200);
            settings.area = {static_cast<double>(any(0, 9000)), static_cast<double>(any(0, 4000)),
                static_cast<double>(any(9001, 20000)), static_cast<double>(any(4001, 10000))};
            settings.target.left = any(0, 50) / 100.0;
            settings.target.right = any(51, 100) / 100.0;
            for (const std::size_t slot : {kQVUpperPenSlot, kQVLowerPenSlot}) {
                ButtonAssignment& button = settings.buttons.at(slot);
                button.action = static_cast<QVAction>(any(kQVNoAction, kQVPauseTablet));
                button.mouse = static_cast<QVMouseButton>(any(kQVLeftButton, kQVMiddleButton));
                button.keyCount = 0;
                while (button.action == kQVKeyCombination && button.keyCount < 3) {
                    button.keyCodes.at(button.keyCount) =
                        static_cast<std::uint16_t>(KEY_A + button.keyCount);
                    ++button.keyCount;
                }
            }
        }
        PenFrame in;
        in.tool = static_cast<PenTool>(any(0, 2));
        in.isTouching = oneIn(2);
        in.buttons = static_cast<std::uint8_t>(any(0, 255));
        constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
        constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
        in.x = oneIn(10) ? any(kLeast, kMost) : any(0, kTablet.xMax);
        in.y = oneIn(10) ? any(kLeast, kMost) : any(0, kTablet.yMax);
        in.pressure = oneIn(10) ? any(kLeast, kMost) : any(0, kTablet.pressureMax);
        in.tiltX = any(-90, 90);
        in.twist = any(0, 3599);
        const PenPipeline::Result out = next(in);
        if (out.pen.tool != PenTool::None) {
            ASSERT_GE(out.pen.x, settings.target.left * kVirtual.xMax - 1);
            ASSERT_LE(out.pen.x, settings.target.right * kVirtual.xMax + 1);
            ASSERT_GE(out.pen.y, 0);
            ASSERT_LE(out.pen.y, kVirtual.yMax);
            ASSERT_GE(out.pen.pressure, 0);
            ASSERT_LE(out.pen.pressure, kVirtual.pressureMax);
            ASSERT_FALSE(settings.isCalibrating);
        } else {
            ASSERT_FALSE(out.pen.isTouching);
            ASSERT_EQ(out.pen.buttons, 0);
            ASSERT_EQ(out.pen.pressure, 0);
        }
        for (const Command& command : commands.all()) {
            if (command.kind == Command::Kind::KeyDown) {
                ASSERT_EQ(++down.at(static_cast<std::size_t>(command.value)), 1);
            } else if (command.kind == Command::Kind::KeyUp) {
                ASSERT_EQ(--down.at(static_cast<std::size_t>(command.value)), 0);
            }
        }
    }
    next(PenFrame());
    for (const Command& command : commands.all()) {
        if (command.kind == Command::Kind::KeyUp) {
            --down.at(static_cast<std::size_t>(command.value));
        }
    }
    EXPECT_EQ(down, (std::array<int, KEY_CNT>{}));
}

} // namespace
