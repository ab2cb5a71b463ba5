// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTabletModels.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

TEST(QVTabletModels, haveEachTheirOwnProductIDAndName)
{
    std::set<std::uint16_t> products;
    std::set<std::string> names;
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_TRUE(products.insert(model.productID).second) << model.name;
        EXPECT_TRUE(names.insert(model.name).second) << model.name;
        // 0 means "no tablet" to the driver.
        EXPECT_NE(model.productID, 0);
        EXPECT_EQ(QVFindModel(model.productID), &model);
    }
}

TEST(QVTabletModels, areFoundByTheirProductID)
{
    EXPECT_STREQ(QVFindModel(0x5101)->name, "Quorvia Draft S");
    EXPECT_STREQ(QVFindModel(0x5122)->name, "Quorvia Slate");
}

TEST(QVTabletModels, doNotHoldWhatIsNotOurs)
{
    EXPECT_EQ(QVFindModel(0), nullptr);
    EXPECT_EQ(QVFindModel(0xFFFF), nullptr);
}

TEST(QVTabletModels, haveNoMoreKeysAndStripsThanTheRecord)
{
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_LE(model.keyNum, 16) << model.name;
        EXPECT_LE(model.scrollNum, 2) << model.name;
    }
}

TEST(QVTabletModels, haveSurfacesOfUsualProportions)
{
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_GT(10 * model.tabletXmax, 14 * model.tabletYmax) << model.name;
        EXPECT_LT(10 * model.tabletXmax, 18 * model.tabletYmax) << model.name;
    }
}

TEST(QVTabletModels, havePressureOfAWholeNumberOfBits)
{
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_GT(model.pressureMax, 0) << model.name;
        EXPECT_EQ(model.pressureMax & (model.pressureMax + 1), 0) << model.name;
    }
}

TEST(QVTabletModels, ofOneLayoutHaveOneNumberOfKeys)
{
    const std::map<QVKeyLayout, int> keys{{QVKeyLayout::A, 8}, {QVKeyLayout::B, 0},
        {QVKeyLayout::C, 4}, {QVKeyLayout::D, 4}, {QVKeyLayout::E, 5}, {QVKeyLayout::F, 7},
        {QVKeyLayout::G, 8}, {QVKeyLayout::H, 0}};
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_EQ(model.keyNum, keys.at(model.layout)) << model.name;
        EXPECT_EQ(model.scrollNum,
            model.layout == QVKeyLayout::A || model.layout == QVKeyLayout::G ? 1 : 0)
            << model.name;
    }
}

TEST(QVTabletModels, haveAPenOfOneButtonOrTwoAndOfLayoutFBoth)
{
    std::map<QVKeyLayout, std::set<int>> pens;
    for (const QVTabletModel& model : kQVTabletModels) {
        pens[model.layout].insert(model.penButtons);
    }
    const std::map<QVKeyLayout, std::set<int>> expected{{QVKeyLayout::A, {2}},
        {QVKeyLayout::B, {1}}, {QVKeyLayout::C, {1}}, {QVKeyLayout::D, {1}}, {QVKeyLayout::E, {1}},
        {QVKeyLayout::F, {1, 2}}, {QVKeyLayout::G, {2}}, {QVKeyLayout::H, {1}}};
    EXPECT_EQ(pens, expected);
}
