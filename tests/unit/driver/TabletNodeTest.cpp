// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletNode.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

class TabletNodeTest : public testing::Test {
protected:
    void add(unsigned code, std::int32_t minimum, std::int32_t maximum, std::int32_t resolution)
    {
        input_absinfo axis{};
        axis.minimum = minimum;
        axis.maximum = maximum;
        axis.resolution = resolution;
        libevdev_enable_event_code(node.get(), EV_ABS, code, &axis);
    }

    NodeState node{libevdev_new(), &libevdev_free};
};

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

TEST_F(TabletNodeTest, anAxisThatClaimsToCountBeyondMeasureIsNone)
{
    add(ABS_X, 0, 1000, 10);
    add(ABS_Y, 0, 1000, 10);
    add(ABS_PRESSURE, kLeast, kMost, 0);
    add(ABS_DISTANCE, -1, kMost, 0);
    add(ABS_TILT_X, -60, 60, 57);
    add(ABS_TILT_Y, 60, -60, 57);
    const auto pen = describePen(*node);
    ASSERT_TRUE(pen);
    EXPECT_FALSE(pen->pressure);
    EXPECT_FALSE(pen->distance);
    EXPECT_FALSE(pen->tiltX) << "the other direction has no range";
}

TEST_F(TabletNodeTest, aNodeWithoutAUsablePositionIsNoPen)
{
    add(ABS_X, 0, 1000, 10);
    EXPECT_FALSE(describePen(*node));
    add(ABS_Y, kLeast, kMost, 10);
    EXPECT_FALSE(describePen(*node));
}

TEST_F(TabletNodeTest, aResolutionBeyondMeasureIsUnknown)
{
    add(ABS_X, 0, 1000, kMost);
    add(ABS_Y, 0, 1000, -1);
    const auto pen = describePen(*node);
    ASSERT_TRUE(pen);
    EXPECT_EQ(pen->x.resolution, 0);
    EXPECT_EQ(pen->y.resolution, 0);
}

TEST_F(TabletNodeTest, keysAreInTheOrderOfTheirCodesAndNoMoreThanTheRecordHas)
{
    for (unsigned code = BTN_JOYSTICK + 15; code >= BTN_JOYSTICK; --code) {
        libevdev_enable_event_code(node.get(), EV_KEY, code, nullptr);
    }
    libevdev_enable_event_code(node.get(), EV_KEY, BTN_0, nullptr);
    libevdev_enable_event_code(node.get(), EV_KEY, BTN_STYLUS, nullptr);
    libevdev_enable_event_code(node.get(), EV_KEY, KEY_A, nullptr);
    const PadDescription pad = describePad(*node);
    ASSERT_EQ(pad.keys.size(), 16U);
    EXPECT_EQ(pad.keys.front(), BTN_0);
    EXPECT_EQ(pad.keys.back(), BTN_JOYSTICK + 14);
}

TEST_F(TabletNodeTest, noMoreStripsThanTheRecordHas)
{
    add(ABS_RX, 0, 100, 0);
    add(ABS_WHEEL, 0, 71, 0);
    libevdev_enable_event_code(node.get(), EV_REL, REL_WHEEL, nullptr);
    const PadStrips ranges = describePad(*node).ranges();
    EXPECT_EQ(ranges.at(0).length, 100);
    EXPECT_FALSE(ranges.at(0).isRing);
    EXPECT_EQ(ranges.at(1).length, 72);
    EXPECT_TRUE(ranges.at(1).isRing);
}

} // namespace
