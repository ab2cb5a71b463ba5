// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ActionText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace {

std::string text(
    std::int16_t valid, std::int16_t mouse = 0, std::uint32_t key = 0, std::string_view app = {})
{
    tagQVTabletInfoSubKey slot{valid, mouse, key, {}};
    std::ranges::copy(app, slot.App.begin());
    return actionText(slot).toStdString();
}

} // namespace

TEST(ActionText, namesEveryAction)
{
    EXPECT_EQ(text(0), "No action");
    EXPECT_EQ(text(1, 0), "Left mouse button");
    EXPECT_EQ(text(1, 1), "Right mouse button");
    EXPECT_EQ(text(1, 2), "Back mouse button");
    EXPECT_EQ(text(1, 3), "Middle mouse button");
    EXPECT_EQ(text(2, 0, 0, "/usr/bin/krita"), "Open /usr/bin/krita");
    EXPECT_EQ(text(3, 0, 0x02000636), "Press Ctrl  Z");
    EXPECT_EQ(text(4), "Go to the next display");
    EXPECT_EQ(text(5), "Move finely while held");
    EXPECT_EQ(text(6), "Pause the tablet");
}

TEST(ActionText, isReadableForWhatASettingMayHoldBesides)
{
    EXPECT_EQ(text(-1), "No action");
    EXPECT_EQ(text(7), "No action");
    EXPECT_EQ(text(1, 4), "No action");
    EXPECT_EQ(text(2), "Open an application (unknown path)");
    EXPECT_EQ(text(3), "Press no keys");
    EXPECT_EQ(text(2, 0, 0, std::string(kQVStringSize, 'x')), "Open " + std::string(256, 'x'));
}

TEST(ActionText, ofAStripIsItsSpeedUnlessItIsOff)
{
    EXPECT_EQ(stripText(0, 7).toStdString(), "Scroll at speed 7");
    EXPECT_EQ(stripText(1, 7).toStdString(), "No action: the strip is off");
}
