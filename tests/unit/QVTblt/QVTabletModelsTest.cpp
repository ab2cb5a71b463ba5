// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTabletModels.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

TEST(QVTabletModels, haveEachTheirOwnProductIDAndName)
{
    std::set<std::uint16_t> products;
    std::set<std::string> names;
    for (const QVTabletModel& model : kQVTabletModels) {
        EXPECT_TRUE(products.insert(model.productID).second) << model.name;
        EXPECT_TRUE(names.insert(model.name).second) << model.name;
        // 0 is the driver's word for "no tablet".
        EXPECT_NE(model.productID, 0);
        EXPECT_EQ(QVFindModel(model.productID), &model);
    }
    EXPECT_GE(kQVTabletModels.size(), 3U);
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
