// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "VirtualDevices.h"

#include <gtest/gtest.h>

namespace {

/** The width in millimetres that the virtual pen of a tablet claims. */
double claimedWidth(double width, std::int32_t resolution)
{
    PenDescription tablet;
    tablet.x = {0, static_cast<std::int32_t>(width * resolution), resolution};
    tablet.y = tablet.x;
    return static_cast<double>(virtualAxes(tablet).xMax) / claimedResolution(tablet.x);
}

} // namespace

TEST(VirtualPen, claimsToBeSmallerThanAnyMonitor)
{
    // The displays of phones have 60 mm, and desktops take a difference of 5 % for none.
    for (double width = 20; width <= 450; width += 0.5) {
        for (const std::int32_t resolution : {40, 100, 200}) {
            ASSERT_LT(claimedWidth(width, resolution), 57) << width;
        }
    }
}

TEST(VirtualPen, claimsASizeAlsoForATabletThatTellsNone)
{
    EXPECT_EQ(claimedResolution({0, 30000, 0}), claimedResolution({0, 30000, 100}));
}
