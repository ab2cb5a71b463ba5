// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfileImport.h"

#include "QVMonitorGeometry.h"
#include "SampleConfig.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace {

/** The record of a tablet with four keys and a strip. */
tagQVTabletInfo ownRecord()
{
    tagQVTabletInfo record{};
    record.Basic.ProductID = 2;
    record.Basic.KeyNum = 4;
    record.Basic.ScrollNum = 1;
    record.Basic.TabletXmax = 10000;
    record.Basic.TabletYmax = 6000;
    record.Pen = {100, 0};
    record.Monitor.Speed = 220;
    record.Monitor.cTabletXmax = 10000;
    record.Monitor.cTabletYmax = 6000;
    record.Key.ScrollSpeed = 5;
    return record;
}

void start(tagQVTabletInfo& record, std::size_t slot, std::string_view path)
{
    record.Key.SubKey[slot].Valid = kQVApplication;
    record.Key.SubKey[slot].App = {};
    std::ranges::copy(path, record.Key.SubKey[slot].App.begin());
}

QVProfileImport import(const tagQVTabletInfo& theirs, const tagQVTabletInfo& own = ownRecord())
{
    auto read = QVImport(QVWriteProfile(QVProfileOf(theirs, QStringLiteral("Theirs"))), own);
    EXPECT_TRUE(read);
    return *read;
}

tagQVTabletInfo applied(const QVProfileImport& import)
{
    tagQVTabletInfo record = ownRecord();
    QVApplyProfile(import.profile, record);
    return record;
}

} // namespace

TEST(ProfileImport, takesWhatFits)
{
    tagQVTabletInfo theirs = ownRecord();
    theirs.Pen.PressureThreshold = 30;
    theirs.Key.SubKey[2] = {kQVMouseButton, kQVBackButton, 0, {}};
    theirs.Key.SubKey[kQVLowerPenSlot].Valid = kQVPauseTablet;
    theirs.Key.ScrollSpeed = 9;
    theirs.Monitor.num = 2;
    theirs.Monitor.cTabletXmax = 5000;
    theirs.Monitor.cTabletYmax = 3000;
    const QVProfileImport read = import(theirs);
    EXPECT_EQ(read.profile.productID, 2);
    EXPECT_EQ(read.leftOut, QStringList());
    EXPECT_EQ(read.changes,
        (QStringList{QStringLiteral("pressure"), QStringLiteral("scroll speed"),
            QStringLiteral("key 3: Back mouse button"),
            QStringLiteral("lower pen button: Pause the tablet"), QStringLiteral("display"),
            QStringLiteral("area of the tablet")}));
    EXPECT_TRUE(read.profile.present.any());
    const tagQVTabletInfo record = applied(read);
    EXPECT_EQ(+record.Pen.PressureThreshold, 30);
    EXPECT_EQ(+record.Key.SubKey[2].Mouse, kQVBackButton);
    EXPECT_EQ(+record.Monitor.cTabletXmax, 5000);
}

TEST(ProfileImport, startsNoApplicationUnlessAllowed)
{
    tagQVTabletInfo theirs = ownRecord();
    start(theirs, 0, "/usr/bin/good");
    start(theirs, 1, "/home/stranger/evil");
    start(theirs, kQVUpperPenSlot, "");
    tagQVTabletInfo own = ownRecord();
    start(own, 2, "/usr/bin/own");
    std::ranges::copy(std::string_view("/own/dormant"), own.Key.SubKey[1].App.begin());
    theirs.Key.SubKey[3].Valid = kQVNoAction;
    std::ranges::copy(std::string_view("/dormant"), theirs.Key.SubKey[3].App.begin());

    QVProfileImport read = import(theirs, own);
    ASSERT_EQ(read.starts.size(), 2U);
    EXPECT_EQ(read.starts[0].button, QStringLiteral("key 1"));
    EXPECT_EQ(read.starts[0].path, QStringLiteral("/usr/bin/good"));
    EXPECT_EQ(read.starts[1].path, QStringLiteral("/home/stranger/evil"));
    const auto& keys = read.profile.settings.Key.SubKey;
    for (const std::size_t slot : {std::size_t{0}, std::size_t{1}, kQVUpperPenSlot}) {
        EXPECT_EQ(+keys[slot].Valid, kQVNoAction) << slot;
    }
    EXPECT_EQ(QVText(keys[1].App), "/own/dormant");
    EXPECT_EQ(QVText(keys[3].App), "") << "a path that no key starts yet";

    QVAllowStart(read, read.starts[0]);
    EXPECT_EQ(+keys[0].Valid, kQVApplication);
    EXPECT_EQ(QVText(keys[0].App), "/usr/bin/good");
    EXPECT_EQ(+keys[1].Valid, kQVNoAction);
}

TEST(ProfileImport, ofAnotherTabletNamesWhatDoesNotFit)
{
    tagQVTabletInfo theirs = ownRecord();
    theirs.Basic.ProductID = 3;
    theirs.Pen.PressureThreshold = 30;
    for (std::size_t slot = 0; slot < 8; ++slot) {
        theirs.Key.SubKey[slot] = {kQVMouseButton, kQVLeftButton, 0, {}};
    }
    start(theirs, 7, "/usr/bin/hidden");
    theirs.Key.Scrollbar1 = 1;
    theirs.Monitor.cTabletXmax = 5000;
    const QVProfileImport read = import(theirs);
    EXPECT_EQ(read.profile.productID, 2);
    EXPECT_EQ(read.leftOut,
        (QStringList{QStringLiteral("right scroll strip"), QStringLiteral("key 5"),
            QStringLiteral("key 6"), QStringLiteral("key 7"), QStringLiteral("key 8"),
            QStringLiteral("area of the tablet")}));
    EXPECT_TRUE(read.starts.empty()) << "of a key that the tablet does not have";
    const tagQVTabletInfo record = applied(read);
    EXPECT_EQ(+record.Key.SubKey[3].Valid, kQVMouseButton);
    EXPECT_EQ(+record.Key.SubKey[4].Valid, kQVNoAction);
    EXPECT_EQ(+record.Monitor.cTabletXmax, 10000);
}

TEST(ProfileImport, takesNoValueThatThePanelCannotSet)
{
    tagQVTabletInfo theirs = ownRecord();
    theirs.Pen.PressureThreshold = 201;
    theirs.Monitor.num = 5;
    theirs.Monitor.rotationFlag = 1;
    theirs.Monitor.Speed = 1;
    theirs.Monitor.cTabletXmax = 10001;
    theirs.Key.ScrollSpeed = 11;
    theirs.Key.Scrollbar0 = 2;
    theirs.Key.SubKey[0].Valid = 7;
    theirs.Key.SubKey[1].Mouse = 4;
    theirs.Key.SubKey[2].Key = 0x04000000;
    const QVProfileImport read = import(theirs);
    EXPECT_EQ(read.changes, QStringList());
    tagQVTabletInfo record = ownRecord();
    QVApplyProfile(read.profile, record);
    const tagQVTabletInfo own = ownRecord();
    EXPECT_EQ(+record.Pen.PressureThreshold, +own.Pen.PressureThreshold);
    EXPECT_EQ(+record.Monitor.num, 0);
    EXPECT_EQ(+record.Monitor.rotationFlag, 0);
    EXPECT_EQ(+record.Monitor.Speed, 220);
    EXPECT_EQ(+record.Monitor.cTabletXmax, 10000);
    EXPECT_EQ(+record.Key.ScrollSpeed, 5);
    EXPECT_EQ(+record.Key.Scrollbar0, 0);
    EXPECT_EQ(+record.Key.SubKey[0].Valid, 0);
    EXPECT_EQ(+record.Key.SubKey[1].Mouse, 0);
    EXPECT_EQ(+record.Key.SubKey[2].Key, 0U);
    EXPECT_EQ(read.leftOut.size(), 10);
}

TEST(ProfileImport, takesEveryValueThatThePanelCanSet)
{
    tagQVTabletInfo own = ownRecord();
    own.Basic.ScrollNum = 2;
    own.Key.Scrollbar0 = 1;
    own.Key.Scrollbar1 = 1;
    own.Monitor.num = 2;
    own.Monitor.rotationFlag = kQVTurned;
    tagQVTabletInfo lowest = ownRecord();
    lowest.Pen.PressureThreshold = 0;
    lowest.Key.ScrollSpeed = kQVSlowestScroll;
    lowest.Monitor.Speed = kQVSpeedFast;
    tagQVTabletInfo read = applied(import(lowest, own));
    EXPECT_TRUE(sameBytes(read, lowest));

    own.Monitor.Speed = kQVSpeedFast;
    tagQVTabletInfo highest = ownRecord();
    highest.Pen = {kQVHighestThreshold, 50};
    highest.Key.ScrollSpeed = kQVFastestScroll;
    highest.Key.Scrollbar0 = 1;
    highest.Key.Scrollbar1 = 1;
    highest.Monitor.num = 4;
    highest.Monitor.rotationFlag = kQVTurned;
    highest.Key.SubKey[0] = {kQVPauseTablet, kQVMiddleButton, 0x03060504, {}};
    highest.Key.SubKey[kQVUpperPenSlot].Valid = kQVFinePositioning;
    read = applied(import(highest, own));
    EXPECT_TRUE(sameBytes(read, highest));
}

TEST(ProfileImport, takesAnAreaAsAWholeOrNotAtAll)
{
    tagQVTabletInfo own = ownRecord();
    own.Basic.TabletXmin = 100;
    own.Basic.TabletYmin = 100;
    const QVTabletArea ownArea{200, 9000, 200, 5000};
    QVSetUsedArea(own, ownArea);
    const auto areaAfter = [&own](const QVTabletArea& area) {
        tagQVTabletInfo theirs = own;
        QVSetUsedArea(theirs, area);
        return QVUsedArea(import(theirs, own).profile.settings);
    };
    const QVTabletArea whole{100, 10000, 100, 6000};
    EXPECT_EQ(areaAfter(whole), whole);
    for (const QVTabletArea& beyond :
        {QVTabletArea{99, 8000, 300, 4000}, QVTabletArea{300, 10001, 300, 4000},
            QVTabletArea{300, 8000, 99, 4000}, QVTabletArea{300, 8000, 300, 6001},
            QVTabletArea{300, 300, 300, 4000}, QVTabletArea{300, 8000, 300, 300}}) {
        EXPECT_EQ(areaAfter(beyond), ownArea)
            << beyond.xmin << " to " << beyond.xmax << ", " << beyond.ymin << " to " << beyond.ymax;
    }
}

TEST(ProfileImport, leavesAsItIsWhatTheFileLacks)
{
    platform::PropertyList list =
        QVWriteProfile(QVProfileOf(ownRecord(), QStringLiteral("Theirs")));
    list.root().dictionary("Pen").setString("PressureThreshold", "none");
    // An area without its left edge is none.
    list.root().dictionary("Monitor").setString("cTabletXmin", "none");
    list.root().dictionary("Key").dictionary("Key2").setString("Valid", "none");
    tagQVTabletInfo own = ownRecord();
    own.Monitor.cTabletXmax = 9000;
    start(own, 2, "/usr/bin/own");
    const auto read = QVImport(list, own);
    ASSERT_TRUE(read);
    EXPECT_TRUE(sameBytes(read->profile.settings, QVProfileOf(own, {}).settings));
    EXPECT_EQ(read->changes, QStringList());
    EXPECT_EQ(read->leftOut, QStringList{QStringLiteral("area of the tablet")});
}

TEST(ProfileImport, forATabletWithoutStripsNamesWhatIsForThem)
{
    tagQVTabletInfo own = ownRecord();
    own.Basic.ScrollNum = 0;
    tagQVTabletInfo theirs = ownRecord();
    theirs.Key.Scrollbar0 = 1;
    theirs.Key.ScrollSpeed = 7;
    const QVProfileImport read = import(theirs, own);
    EXPECT_EQ(read.leftOut,
        (QStringList{QStringLiteral("left scroll strip"), QStringLiteral("scroll speed")}));
    EXPECT_EQ(+read.profile.settings.Key.Scrollbar0, 0);
    EXPECT_EQ(+read.profile.settings.Key.ScrollSpeed, 5);
}

TEST(ProfileImport, takesNoPlaceOnTheDesktop)
{
    tagQVTabletInfo theirs = ownRecord();
    theirs.Monitor.num = 3;
    theirs.Monitor.XOrg = -5;
    theirs.Monitor.Width = -1;
    const tagQVTabletInfo record = applied(import(theirs));
    EXPECT_EQ(+record.Monitor.num, 3);
    EXPECT_EQ(+record.Monitor.XOrg, 0);
    EXPECT_EQ(+record.Monitor.Width, 0);
}

TEST(ProfileImport, hasANameThatShowsWhatItIs)
{
    const QString name = QString::fromUtf8("a\u202Eb\u200Dc\u200C");
    QVProfile profile = QVProfileOf(ownRecord(), name);
    profile.applications = QStringList{QString::fromUtf8("c\u2028d\u2029")};
    const auto read = QVImport(QVWriteProfile(profile), ownRecord());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->profile.name, QString::fromUtf8("a\uFFFDb\u200Dc\u200C"));
    EXPECT_EQ(read->profile.applications, QStringList{QString::fromUtf8("c\uFFFDd\uFFFD")});
}

TEST(ProfileImport, refusesWhatIsNoProfile)
{
    EXPECT_FALSE(QVImport(platform::PropertyList(), ownRecord()));
    EXPECT_FALSE(QVReadImport("/nonexistent", ownRecord()));
    EXPECT_FALSE(QVReadImport("/dev/zero", ownRecord()));
}
