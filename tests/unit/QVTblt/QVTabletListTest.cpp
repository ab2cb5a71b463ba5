// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTabletList.h"

#include <gtest/gtest.h>

namespace {

QVariantMap tablet()
{
    return {{QStringLiteral("id"), QStringLiteral("6f3d:0042")},
        {QStringLiteral("name"), QStringLiteral("Pen M")},
        {QStringLiteral("node"), QStringLiteral("/dev/input/event7")},
        {QStringLiteral("inUse"), true}, {QStringLiteral("width"), 240.0},
        {QStringLiteral("height"), 149.6}, {QStringLiteral("pressureLevels"), 8192U},
        {QStringLiteral("tilt"), true}, {QStringLiteral("eraser"), false},
        {QStringLiteral("keys"), 8U}, {QStringLiteral("strips"), 1U},
        {QStringLiteral("problem"), QString()}};
}

} // namespace

TEST(QVTabletList, saysOfEachTabletWhatItHas)
{
    QVariantMap second = tablet();
    second[QStringLiteral("inUse")] = false;
    second[QStringLiteral("width")] = 0.0;
    second[QStringLiteral("tilt")] = false;
    second[QStringLiteral("eraser")] = true;
    second[QStringLiteral("keys")] = 1U;
    second[QStringLiteral("strips")] = 2U;
    EXPECT_EQ(QVTabletListText({tablet(), second}).toStdString(),
        "6f3d:0042  Pen M (in use)\n"
        "    /dev/input/event7, 240 x 150 mm, 8192 pressure levels, tilt, no eraser, 8 keys, "
        "1 strip or ring\n"
        "6f3d:0042  Pen M\n"
        "    /dev/input/event7, 8192 pressure levels, no tilt, eraser, 1 key, 2 strips or "
        "rings\n");
}

TEST(QVTabletList, saysWhyATabletCannotBeUsed)
{
    EXPECT_EQ(QVTabletListText({{{QStringLiteral("id"), QStringLiteral("6f3d:0042")},
                                   {QStringLiteral("name"), QStringLiteral("Pen M")},
                                   {QStringLiteral("node"), QStringLiteral("/dev/input/event7")},
                                   {QStringLiteral("problem"), QStringLiteral("It is not ours.")}}})
                  .toStdString(),
        "6f3d:0042  Pen M\n    /dev/input/event7\n    It is not ours.\n");
}

TEST(QVTabletList, saysThatThereIsNone)
{
    EXPECT_EQ(QVTabletListText({}).toStdString(), "no tablet is plugged in\n");
}
