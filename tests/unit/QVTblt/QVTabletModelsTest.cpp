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
        EXPECT_GT(model.tabletXmax, 0) << model.name;
        EXPECT_GT(model.tabletYmax, 0) << model.name;
    }
}

TEST(QVTabletModels, haveTheirIDsInOneBlock)
{
    std::uint16_t expected = 0x5101;
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_EQ(model.productID, expected++) << model.name;
    }
}

TEST(QVTabletModels, areSoManyOfEachLayout)
{
    std::map<QVKeyLayout, int> counts;
    for (const QVTabletModel& model : kQVTabletModels) {
        ++counts[model.layout];
    }
    EXPECT_GE(counts.at(QVKeyLayout::A), 1);
    counts.erase(QVKeyLayout::A);
    const std::map<QVKeyLayout, int> expected{{QVKeyLayout::B, 4}, {QVKeyLayout::C, 9},
        {QVKeyLayout::D, 3}, {QVKeyLayout::E, 2}, {QVKeyLayout::F, 3}, {QVKeyLayout::G, 6},
        {QVKeyLayout::H, 1}};
    EXPECT_EQ(counts, expected);
}

TEST(QVTabletModels, areSoManyOfEachPictureAndThirteenWithout)
{
    std::map<QVPicture, int> counts;
    for (const QVTabletModel& model : kQVTabletModels) {
        ++counts[model.picture];
    }
    const std::map<QVPicture, int> expected{{QVPicture::None, 13}, {QVPicture::Pic1, 2},
        {QVPicture::Pic2, 3}, {QVPicture::Pic3, 5}, {QVPicture::Pic4, 4}, {QVPicture::Pic5, 2},
        {QVPicture::Pic6, 4}, {QVPicture::Pic7, 1}};
    EXPECT_EQ(counts, expected);
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

TEST(QVTabletModels, ofLayoutFAreOneWithAPenOfOneButton)
{
    int count = 0;
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_TRUE(model.penButtons == 1 || model.penButtons == 2) << model.name;
        count += model.layout == QVKeyLayout::F && model.penButtons == 1 ? 1 : 0;
    }
    EXPECT_EQ(count, 1);
}
