// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Geometry.h"

#include <QLabel>

#include <gtest/gtest.h>

using platform::Rect;

TEST(Geometry, measuresFramesFromTheParentsLowerLeftCorner)
{
    QWidget parent;
    parent.resize(400, 300);
    QWidget control(&parent);
    control.setGeometry(10, 20, 100, 30);
    EXPECT_EQ(platform::frame(control), (Rect{10, 250, 100, 30}));
}

TEST(Geometry, movesAControlUpWhenItsYGrows)
{
    QWidget parent;
    parent.resize(400, 300);
    QWidget control(&parent);
    platform::setFrame(control, {10, 250, 100, 30});
    EXPECT_EQ(control.geometry(), QRect(10, 20, 100, 30));
    platform::setFrame(control, {10, 251, 100, 30});
    EXPECT_EQ(control.geometry(), QRect(10, 19, 100, 30));
}

TEST(Geometry, fitsTheSizeAroundTheLowerLeftCorner)
{
    QWidget parent;
    parent.resize(400, 300);
    QLabel label(QStringLiteral("text"), &parent);
    platform::setFrame(label, {30, 100, 500, 90});
    platform::sizeToFit(label);
    const Rect fitted = platform::frame(label);
    EXPECT_EQ(fitted.x, 30);
    EXPECT_EQ(fitted.y, 100);
    EXPECT_EQ(fitted.width, label.sizeHint().width());
    EXPECT_EQ(fitted.height, label.sizeHint().height());
}

TEST(Geometry, leavesAWindowWhereItIs)
{
    QWidget window;
    window.setGeometry(5, 6, 70, 80);
    platform::setFrame(window, {0, 0, 10, 10});
    EXPECT_EQ(window.geometry(), QRect(5, 6, 70, 80));
}
