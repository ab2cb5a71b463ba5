// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The input thread, with pipes in place of the event nodes and of the virtual devices.

#include "TabletRelay.h"

#include "Descriptor.h"
#include "InputEvent.h"
#include "Pipe.h"
#include "Wait.h"

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <poll.h>
#include <sys/eventfd.h>
#include <thread>
#include <vector>

namespace {

/** Reads a value from a pipe, or nothing if none comes in time. */
template <class Value>
std::optional<Value> next(const Pipe& pipe, int patience = kPatience)
{
    pollfd file{pipe.reading->get(), POLLIN, 0};
    Value value{};
    if (::poll(&file, 1, patience) <= 0 || ::read(file.fd, &value, sizeof value) != sizeof value) {
        return std::nullopt;
    }
    return value;
}

constexpr auto kEnd = [] { return event(EV_SYN, SYN_REPORT, 0); };

/** The last value of each code in a frame of events. */
using Frame = std::map<std::pair<unsigned, unsigned>, std::int32_t>;

class TabletRelayTest : public testing::Test {
protected:
    TabletRelayTest()
    {
        description.x = {0, 10000, 100};
        description.y = {0, 5000, 100};
        description.pressure = Axis{0, 1000, 0};
        description.hasTool = true;
        description.hasEraser = true;
        padDescription.keys = {BTN_0, BTN_1, BTN_2};
        settings.range = {0, 0, 10000, 5000};
        settings.area = settings.range;
    }

    ~TabletRelayTest() override { stop(); }

    void start()
    {
        exchange = std::make_unique<SettingsExchange>(settings);
        relay = std::make_unique<TabletRelay>(
            TabletRelay::Files{pen.reading->get(), pad.reading->get(), virtualPen.writing->get(),
                keyboard.writing->get(), pointer.writing->get(), notes.writing->get(), wake.get()},
            description, description.axes(), padDescription, *exchange);
        thread = std::thread([this] { relay->run(); });
        expectNote(RelayNote::Kind::Grabbed);
    }

    void stop()
    {
        if (thread.joinable()) {
            relay->stop();
            thread.join();
        }
    }

    static void send(const Pipe& node, std::vector<input_event> events)
    {
        events.push_back(kEnd());
        const std::size_t size = events.size() * sizeof(input_event);
        ASSERT_EQ(::write(node.writing->get(), events.data(), size), static_cast<ssize_t>(size));
    }

    void sendPen(std::int32_t x, std::int32_t pressure, bool isNear = true)
    {
        send(pen,
            {event(EV_KEY, BTN_TOOL_PEN, isNear ? 1 : 0), event(EV_ABS, ABS_X, x),
                event(EV_ABS, ABS_Y, 100), event(EV_ABS, ABS_PRESSURE, pressure),
                event(EV_KEY, BTN_TOUCH, pressure > 0 ? 1 : 0)});
    }

    /** The next frame that a virtual device was given; empty if none comes. */
    static Frame frameOf(const Pipe& device, int patience = kPatience)
    {
        Frame frame;
        while (const auto got = next<input_event>(device, patience)) {
            if (got->type == EV_SYN) {
                break;
            }
            frame[{got->type, got->code}] = got->value;
        }
        return frame;
    }

    RelayNote expectNote(RelayNote::Kind kind)
    {
        const auto note = next<RelayNote>(notes);
        EXPECT_TRUE(note);
        EXPECT_EQ(note.value_or(RelayNote{}).kind, kind);
        return note.value_or(RelayNote{});
    }

    Pipe pen;
    Pipe pad;
    Pipe virtualPen;
    Pipe keyboard;
    Pipe pointer;
    Pipe notes{O_NONBLOCK};
    Descriptor wake{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    PenDescription description;
    PadDescription padDescription;
    TabletSettings settings;
    std::unique_ptr<SettingsExchange> exchange;
    std::unique_ptr<TabletRelay> relay;
    std::thread thread;
};

TEST_F(TabletRelayTest, aStrokeArrivesInOrderAndComplete)
{
    start();
    for (int x = 1; x <= 1000; ++x) {
        sendPen(x, x);
        const Frame frame = frameOf(virtualPen);
        ASSERT_EQ(frame.at({EV_ABS, ABS_X}), x);
        ASSERT_EQ(frame.at({EV_ABS, ABS_PRESSURE}), x);
        ASSERT_TRUE(frame.contains({EV_MSC, MSC_TIMESTAMP}));
        ASSERT_EQ(frame.contains({EV_KEY, BTN_TOOL_PEN}), x == 1);
        ASSERT_EQ(frame.contains({EV_KEY, BTN_TOUCH}), x == 1);
    }
    sendPen(1000, 0, false);
    const Frame gone = frameOf(virtualPen);
    EXPECT_EQ(gone.at({EV_KEY, BTN_TOOL_PEN}), 0);
    EXPECT_EQ(gone.at({EV_KEY, BTN_TOUCH}), 0);
    EXPECT_EQ(gone.at({EV_ABS, ABS_PRESSURE}), 0);
}

TEST_F(TabletRelayTest, aPenThatRestsIsLiftedWhereItIsBeforeItsTargetMoves)
{
    start();
    sendPen(4000, 500);
    frameOf(virtualPen);
    settings.target = {0.5, 0, 1, 1};
    exchange->publish(settings);
    relay->wake();
    const Frame lifted = frameOf(virtualPen);
    EXPECT_EQ(lifted.at({EV_KEY, BTN_TOUCH}), 0);
    EXPECT_EQ(lifted.at({EV_ABS, ABS_PRESSURE}), 0);
    EXPECT_FALSE(lifted.contains({EV_ABS, ABS_X}));
    const Frame moved = frameOf(virtualPen);
    EXPECT_EQ(moved.at({EV_ABS, ABS_X}), 7000);
    EXPECT_FALSE(moved.contains({EV_KEY, BTN_TOUCH}));
    EXPECT_FALSE(moved.contains({EV_KEY, BTN_TOOL_PEN}));
}

TEST_F(TabletRelayTest, theOtherEndOfThePenComesAfterTheFirstHasLeft)
{
    start();
    sendPen(10, 500);
    frameOf(virtualPen);
    send(pen, {event(EV_KEY, BTN_TOOL_PEN, 0), event(EV_KEY, BTN_TOOL_RUBBER, 1)});
    const Frame left = frameOf(virtualPen);
    EXPECT_EQ(left.at({EV_KEY, BTN_TOOL_PEN}), 0);
    EXPECT_EQ(left.at({EV_KEY, BTN_TOUCH}), 0);
    EXPECT_FALSE(left.contains({EV_KEY, BTN_TOOL_RUBBER}));
    const Frame came = frameOf(virtualPen);
    EXPECT_EQ(came.at({EV_KEY, BTN_TOOL_RUBBER}), 1);
    EXPECT_EQ(came.at({EV_KEY, BTN_TOUCH}), 1);
}

TEST_F(TabletRelayTest, aKeyReachesTheKeyboardAndTheMainThread)
{
    settings.buttons[1] = {kQVKeyCombination, kQVLeftButton, {KEY_LEFTCTRL, KEY_Z, 0}, 2};
    start();
    send(pad, {event(EV_KEY, BTN_1, 1)});
    EXPECT_EQ(frameOf(keyboard), (Frame{{{EV_KEY, KEY_LEFTCTRL}, 1}}));
    EXPECT_EQ(frameOf(keyboard), (Frame{{{EV_KEY, KEY_Z}, 1}}));
    const RelayNote pressed = expectNote(RelayNote::Kind::Button);
    EXPECT_EQ(pressed.slot, 1);
    EXPECT_TRUE(pressed.isDown);
    send(pad, {event(EV_KEY, BTN_1, 0)});
    EXPECT_EQ(frameOf(keyboard), (Frame{{{EV_KEY, KEY_Z}, 0}}));
    EXPECT_EQ(frameOf(keyboard), (Frame{{{EV_KEY, KEY_LEFTCTRL}, 0}}));
    EXPECT_FALSE(expectNote(RelayNote::Kind::Button).isDown);
}

TEST_F(TabletRelayTest, mouseButtonsAndScrollingReachThePointer)
{
    settings.buttons[0] = {kQVMouseButton, kQVBackButton, {}, 0};
    padDescription.strips.push_back({EV_ABS, ABS_RX, {0, 100, 0}, false});
    start();
    send(pad, {event(EV_KEY, BTN_0, 1)});
    EXPECT_EQ(frameOf(pointer), (Frame{{{EV_KEY, BTN_SIDE}, 1}}));
    send(pad, {event(EV_ABS, ABS_RX, 50)});
    send(pad, {event(EV_ABS, ABS_RX, 45)});
    EXPECT_EQ(frameOf(pointer), (Frame{{{EV_REL, REL_WHEEL_HI_RES}, 60}}));
    send(pad, {event(EV_ABS, ABS_RX, 40)});
    EXPECT_EQ(
        frameOf(pointer), (Frame{{{EV_REL, REL_WHEEL_HI_RES}, 60}, {{EV_REL, REL_WHEEL}, 1}}));
}

TEST_F(TabletRelayTest, whatTheMainThreadDoesIsToldToIt)
{
    settings.buttons[0].action = kQVApplication;
    start();
    send(pad, {event(EV_KEY, BTN_0, 1)});
    const RelayNote launch = expectNote(RelayNote::Kind::Command);
    EXPECT_EQ(launch.command, (Command{Command::Kind::Launch, 0}));
}

TEST_F(TabletRelayTest, aPenThatReturnsUprightIsNoLongerTilted)
{
    description.tiltX = Axis{-60, 60, 57};
    description.tiltY = description.tiltX;
    start();
    send(pen, {event(EV_KEY, BTN_TOOL_PEN, 1), event(EV_ABS, ABS_TILT_X, 30)});
    EXPECT_EQ(frameOf(virtualPen).at({EV_ABS, ABS_TILT_X}), 30);
    send(pen, {event(EV_KEY, BTN_TOOL_PEN, 0)});
    EXPECT_FALSE(frameOf(virtualPen).contains({EV_ABS, ABS_TILT_X}));
    send(pen, {event(EV_KEY, BTN_TOOL_PEN, 1), event(EV_ABS, ABS_TILT_X, 0)});
    EXPECT_EQ(frameOf(virtualPen).at({EV_ABS, ABS_TILT_X}), 0);
}

TEST_F(TabletRelayTest, aPenThatReturnsAtTheEdgeIsThere)
{
    start();
    sendPen(100, 0);
    frameOf(virtualPen);
    relay->setActive(false);
    EXPECT_EQ(frameOf(virtualPen).at({EV_KEY, BTN_TOOL_PEN}), 0);
    expectNote(RelayNote::Kind::Released);
    sendPen(100, 0, false);
    relay->setActive(true);
    expectNote(RelayNote::Kind::Grabbed);
    sendPen(0, 0);
    EXPECT_EQ(frameOf(virtualPen).at({EV_ABS, ABS_X}), 0);
}

TEST_F(TabletRelayTest, aStripThatWasTouchedBeforeScrollsNothingAtTheNextTouch)
{
    padDescription.strips.push_back({EV_ABS, ABS_RX, {0, 100, 0}, false});
    start();
    send(pad, {event(EV_ABS, ABS_RX, 10)});
    send(pad, {event(EV_ABS, ABS_RX, 20)});
    EXPECT_EQ(frameOf(pointer).at({EV_REL, REL_WHEEL_HI_RES}), -120);
    send(pad, {event(EV_KEY, BTN_0, 1)});
    expectNote(RelayNote::Kind::Button);
    relay->setActive(false);
    EXPECT_FALSE(expectNote(RelayNote::Kind::Button).isDown);
    expectNote(RelayNote::Kind::Released);
    send(pad, {event(EV_KEY, BTN_0, 0)});
    relay->setActive(true);
    expectNote(RelayNote::Kind::Grabbed);
    send(pad, {event(EV_ABS, ABS_RX, 90)});
    send(pad, {event(EV_ABS, ABS_RX, 95)});
    EXPECT_EQ(frameOf(pointer).at({EV_REL, REL_WHEEL_HI_RES}), -60);
}

TEST_F(TabletRelayTest, aFingerThatLeavesHasLeftWhateverComesAfter)
{
    padDescription.strips.push_back({EV_ABS, ABS_RX, {0, 100, 0}, false});
    start();
    send(pad, {event(EV_ABS, ABS_MISC, 15), event(EV_ABS, ABS_RX, 50)});
    send(pad, {event(EV_ABS, ABS_MISC, 0), event(EV_ABS, ABS_RX, 0)});
    send(pad, {event(EV_ABS, ABS_MISC, 15), event(EV_ABS, ABS_RX, 60)});
    send(pad, {event(EV_ABS, ABS_RX, 61)});
    EXPECT_EQ(frameOf(pointer).at({EV_REL, REL_WHEEL_HI_RES}), -12);
}

TEST_F(TabletRelayTest, anyKindOfPenIsOne)
{
    start();
    send(pen, {event(EV_KEY, BTN_TOOL_BRUSH, 1), event(EV_ABS, ABS_X, 7)});
    EXPECT_EQ(frameOf(virtualPen).at({EV_KEY, BTN_TOOL_PEN}), 1);
    send(pen, {event(EV_KEY, BTN_TOOL_AIRBRUSH, 1), event(EV_KEY, BTN_TOOL_BRUSH, 0)});
    EXPECT_FALSE(frameOf(virtualPen).contains({EV_KEY, BTN_TOOL_PEN}));
    send(pen, {event(EV_KEY, BTN_TOOL_AIRBRUSH, 0)});
    EXPECT_EQ(frameOf(virtualPen).at({EV_KEY, BTN_TOOL_PEN}), 0);
}

TEST_F(TabletRelayTest, valuesThatADeviceDoesNotHaveAreThoseOfTheNearestEnd)
{
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    description.x = {kLeast, kLeast + 10000, 100};
    description.tiltX = Axis{kLeast, kLeast + 10, 0};
    description.tiltY = Axis{kMost - 10, kMost, 0};
    padDescription.strips.push_back({EV_ABS, ABS_RX, {kLeast, kLeast + 100, 0}, false});
    padDescription.strips.push_back({EV_REL, REL_WHEEL, {}, false});
    settings.isTurned = true;
    start();
    send(pen,
        {event(EV_KEY, BTN_TOOL_PEN, 1), event(EV_ABS, ABS_X, kMost),
            event(EV_ABS, ABS_TILT_X, kLeast), event(EV_ABS, ABS_TILT_Y, kLeast)});
    const Frame frame = frameOf(virtualPen);
    EXPECT_EQ(frame.at({EV_ABS, ABS_TILT_X}), 5);
    EXPECT_EQ(frame.at({EV_ABS, ABS_TILT_Y}), 5);
    EXPECT_FALSE(frame.contains({EV_ABS, ABS_X})); // the right end, turned
    send(pad, {event(EV_ABS, ABS_RX, kLeast + 1)});
    send(pad, {event(EV_ABS, ABS_RX, kMost)});
    EXPECT_EQ(frameOf(pointer).at({EV_REL, REL_WHEEL_HI_RES}), 99 * 120 * 2 * 5 / 100);
    send(pad, std::vector<input_event>(2, event(EV_REL, REL_WHEEL, kMost)));
    EXPECT_EQ(frameOf(pointer).at({EV_REL, REL_WHEEL_HI_RES}), 100 * 120);
    send(pad, {event(EV_REL, REL_WHEEL, kLeast)});
    EXPECT_EQ(frameOf(pointer).at({EV_REL, REL_WHEEL_HI_RES}), -100 * 120);
}

TEST_F(TabletRelayTest, whatWasLostIsNotMadeUp)
{
    start();
    sendPen(1, 0);
    frameOf(virtualPen);
    send(pen, {event(EV_SYN, SYN_DROPPED, 0), event(EV_ABS, ABS_X, 9000)});
    sendPen(2, 0);
    EXPECT_EQ(frameOf(virtualPen).at({EV_ABS, ABS_X}), 2);
}

TEST_F(TabletRelayTest, takesTheTabletAgainOnlyWhenThePenHasLeft)
{
    start();
    sendPen(1, 10);
    frameOf(virtualPen);
    relay->setActive(false);
    EXPECT_EQ(frameOf(virtualPen).at({EV_KEY, BTN_TOOL_PEN}), 0);
    expectNote(RelayNote::Kind::Released);
    relay->setActive(true);
    sendPen(2, 20); // the desktop's
    sendPen(3, 0);
    sendPen(4, 0, false);
    expectNote(RelayNote::Kind::Grabbed);
    sendPen(5, 0);
    EXPECT_EQ(frameOf(virtualPen).at({EV_ABS, ABS_X}), 5);
}

TEST_F(TabletRelayTest, takesTheTabletAgainOnlyWhenItsKeysAreUp)
{
    start();
    send(pad, {event(EV_KEY, BTN_0, 1)});
    EXPECT_TRUE(expectNote(RelayNote::Kind::Button).isDown);
    relay->setActive(false);
    EXPECT_FALSE(expectNote(RelayNote::Kind::Button).isDown);
    expectNote(RelayNote::Kind::Released);
    relay->setActive(true);
    send(pad, {event(EV_KEY, BTN_1, 1)});
    send(pad, {event(EV_KEY, BTN_0, 0)});
    send(pad, {event(EV_KEY, BTN_1, 0)});
    expectNote(RelayNote::Kind::Grabbed); // and no button before it
    send(pad, {event(EV_KEY, BTN_2, 1)});
    EXPECT_EQ(expectNote(RelayNote::Kind::Button).slot, 2);
}

TEST_F(TabletRelayTest, lettingGoReleasesEverything)
{
    settings.buttons[0] = {kQVKeyCombination, kQVLeftButton, {KEY_A, 0, 0}, 1};
    start();
    sendPen(1, 10);
    frameOf(virtualPen);
    send(pad, {event(EV_KEY, BTN_0, 1)});
    frameOf(keyboard);
    expectNote(RelayNote::Kind::Button);
    relay->setActive(false);
    EXPECT_EQ(frameOf(keyboard), (Frame{{{EV_KEY, KEY_A}, 0}}));
    EXPECT_EQ(frameOf(virtualPen).at({EV_KEY, BTN_TOUCH}), 0);
    expectNote(RelayNote::Kind::Button);
    expectNote(RelayNote::Kind::Released); // once everything is
    relay->setActive(false);
    sendPen(2, 20);
    stop();
    EXPECT_TRUE(frameOf(virtualPen, 0).empty());
    EXPECT_FALSE(next<RelayNote>(notes, 0));
}

TEST_F(TabletRelayTest, nothingOfAStrokeOutlivesLettingGo)
{
    start();
    sendPen(1, 10);
    frameOf(virtualPen);
    relay->setActive(false);
    frameOf(virtualPen);
    expectNote(RelayNote::Kind::Released);
    settings.target = {0, 0, 0.5, 1};
    exchange->publish(settings);
    relay->setActive(true);
    sendPen(1, 0, false);
    expectNote(RelayNote::Kind::Grabbed);
    sendPen(1, 10);
    Frame stroke = frameOf(virtualPen);
    EXPECT_EQ((stroke[{EV_KEY, BTN_TOUCH}]), 1) << "not a part of the one before";
}

TEST_F(TabletRelayTest, lettingGoLiftsThePenThatCalibrates)
{
    settings.isCalibrating = true;
    start();
    sendPen(100, 10);
    EXPECT_EQ(expectNote(RelayNote::Kind::Report).report.key, 1U);
    relay->setActive(false);
    EXPECT_EQ(expectNote(RelayNote::Kind::Report).report.key, 0U);
    expectNote(RelayNote::Kind::Released);
}

TEST_F(TabletRelayTest, unpluggingInAStrokeReleasesEverything)
{
    settings.buttons[0] = {kQVKeyCombination, kQVLeftButton, {KEY_A, 0, 0}, 1};
    start();
    send(pad, {event(EV_KEY, BTN_0, 1)});
    frameOf(keyboard);
    expectNote(RelayNote::Kind::Button);
    sendPen(1, 10);
    frameOf(virtualPen);
    pen.writing.reset();
    EXPECT_EQ(frameOf(virtualPen).at({EV_KEY, BTN_TOOL_PEN}), 0);
    EXPECT_EQ(frameOf(keyboard), (Frame{{{EV_KEY, KEY_A}, 0}}));
    expectNote(RelayNote::Kind::Button);
    expectNote(RelayNote::Kind::Gone);
}

TEST_F(TabletRelayTest, settingsAreTakenAsAWholeBetweenFrames)
{
    // The area is as large as the curve says, so that a mixture of two versions would show.
    settings.threshold = kQVStraightThreshold;
    settings.area.right *= 2;
    start();
    TabletSettings other = settings;
    other.threshold = kQVHighestThreshold;
    other.area = settings.range;
    std::atomic<bool> isEnough{false};
    std::thread storm([&] {
        for (bool isOther = false; !isEnough; isOther = !isOther) {
            exchange->publish(isOther ? other : settings);
        }
    });
    std::int32_t lastX = 0;
    std::int32_t lastPressure = 0;
    for (int i = 1; i <= 2000; ++i) {
        sendPen(5000 + i % 2, 500 + i % 2);
        const Frame frame = frameOf(virtualPen);
        const auto value = [&](unsigned code, std::int32_t& last) {
            const auto found = frame.find({EV_ABS, code});
            return last = found == frame.end() ? last : found->second;
        };
        const bool isRight = value(ABS_X, lastX) > 2600;
        const bool isHeavy = value(ABS_PRESSURE, lastPressure) < 400;
        ASSERT_EQ(isRight, isHeavy) << lastX << " " << lastPressure;
    }
    isEnough = true;
    storm.join();
}

TEST_F(TabletRelayTest, tenThousandPushesLoseNoFrame)
{
    start();
    for (int i = 0; i < 10'000; ++i) {
        exchange->publish(settings);
        relay->wake();
    }
    for (int x = 1; x <= 100; ++x) {
        sendPen(x, 0);
    }
    for (int x = 1; x <= 100;) {
        const Frame frame = frameOf(virtualPen);
        ASSERT_FALSE(frame.empty());
        if (const auto found = frame.find({EV_ABS, ABS_X}); found != frame.end()) {
            ASSERT_EQ(found->second, x++);
        }
    }
}

TEST_F(TabletRelayTest, aCalibrationThatBeginsLiftsThePenThatLiesStill)
{
    start();
    sendPen(100, 10);
    frameOf(virtualPen);
    settings.isCalibrating = true;
    exchange->publish(settings);
    relay->wake();
    EXPECT_EQ(frameOf(virtualPen).at({EV_KEY, BTN_TOOL_PEN}), 0);
    EXPECT_EQ(expectNote(RelayNote::Kind::Report).report, (QVPenReport{1, 100, 100, 10}));
}

TEST_F(TabletRelayTest, tellsThatItIsAlive)
{
    start();
    relay->ask();
    expectNote(RelayNote::Kind::Alive);
}

TEST_F(TabletRelayTest, aMainThreadThatHangsDelaysNoFrame)
{
    settings.isCalibrating = true;
    start();
    for (int x = 1; x <= 5000; ++x) { // far more than the pipe holds
        sendPen(x, 0);
    }
    settings.isCalibrating = false;
    exchange->publish(settings);
    sendPen(42, 0);
    while (frameOf(virtualPen)[{EV_ABS, ABS_X}] != 42) {
        ASSERT_FALSE(HasFailure());
    }
}

} // namespace
