// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel's settings as a whole: going back and forth between edits, and
// their names.

#include "PaneTest.h"
#include "QVKeyComboBox.h"
#include "QVMonitorView.h"
#include "QVPressView.h"

#include <QCheckBox>
#include <QSlider>

#include <cstring>
#include <functional>

namespace {

class Settings : public PaneTest {
protected:
    void SetUp() override
    {
        PaneTest::SetUp();
        show();
        mEvents.sent.clear();
    }

    /** The name of the edit that makes these changes. */
    QString nameOf(const std::function<void(tagQVTabletInfo&)>& change)
    {
        const tagQVTabletInfo record = qvTabletInfo;
        const QByteArray before = mPane.settings();
        change(qvTabletInfo);
        const QByteArray after = mPane.settings();
        qvTabletInfo = record;
        return mPane.nameOfEdit(before, after);
    }
};

} // namespace

TEST_F(Settings, goBackToWhatTheyWereAreShownAndPushedOnce)
{
    const QByteArray before = mPane.settings();
    const tagQVTabletInfo record = qvTabletInfo;
    auto& box = outlet<QVKeyComboBox>("mKey1_3");
    auto& strip = outlet<QCheckBox>("mKeyLScroll");
    const QString text = box.currentText();
    const bool isOn = strip.isChecked();
    box.setCurrentIndex(QVKeyComboBox::PauseTablet);
    mPane.SelectKey(&box);
    strip.toggle();
    qvTabletInfo.Pen.PressureThreshold = 17;
    qvTabletInfo.Monitor.num = 2;
    mEvents.sent.clear();

    mPane.setSettings(before);
    EXPECT_EQ(std::memcmp(&qvTabletInfo.Key, &record.Key, sizeof record.Key), 0);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, +record.Pen.PressureThreshold);
    EXPECT_EQ(+qvTabletInfo.Monitor.num, +record.Monitor.num);
    EXPECT_EQ(box.currentText(), text);
    EXPECT_EQ(strip.isChecked(), isOn);
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_EQ(std::memcmp(&pushes().back(), &qvTabletInfo, sizeof qvTabletInfo), 0);
    showPage("penPage");
    outlet<QVPressView>("mPressView").grab();
    EXPECT_EQ(outlet<QSlider>("mSlider").value(), record.Pen.PressureThreshold * 10);
}

TEST_F(Settings, mapTheTabletAgainToTheDisplayOfTheEdit)
{
    qvTabletInfo.Monitor.num = 1;
    outlet<QVMonitorView>("mMonitorView").updateMappedArea();
    const QByteArray first = mPane.settings();
    qvTabletInfo.Monitor.num = 2;
    outlet<QVMonitorView>("mMonitorView").updateMappedArea();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 100);
    mPane.setSettings(first);
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 0);
    EXPECT_EQ(+pushes().back().Monitor.XOrg, 0);
}

TEST_F(Settings, haveNothingThatTheUserDoesNotChoose)
{
    const QByteArray before = mPane.settings();
    qvTabletInfo.Monitor.disableFlag = 1;
    qvTabletInfo.Monitor.XOrg = 5;
    qvTabletInfo.Monitor.Height = 5;
    qvTabletInfo.Basic.PressureMax = 5;
    EXPECT_EQ(mPane.settings(), before);
    mPane.setSettings(before);
    EXPECT_EQ(+qvTabletInfo.Basic.PressureMax, 5);
}

TEST_F(Settings, areNoneWithoutATablet)
{
    leave();
    mEvents.answer(0);
    show();
    mEvents.sent.clear();
    EXPECT_EQ(mPane.settings(), QByteArray());
    mPane.setSettings(QByteArray(5077, '\0'));
    EXPECT_EQ(pushes().size(), 0U);
}

TEST_F(Settings, nameWhatWasEdited)
{
    const auto slot = [](std::size_t number) {
        return [number](tagQVTabletInfo& record) { ++record.Key.SubKey[number].Valid; };
    };
    EXPECT_EQ(nameOf(slot(0)), QStringLiteral("key 1"));
    EXPECT_EQ(nameOf(slot(15)), QStringLiteral("key 16"));
    EXPECT_EQ(nameOf(slot(16)), QStringLiteral("upper pen button"));
    EXPECT_EQ(nameOf(slot(17)), QStringLiteral("lower pen button"));
    EXPECT_EQ(nameOf([](auto& record) {
        record.Key.SubKey[2].Valid = kQVApplication;
        record.Key.SubKey[2].App[3] = 'x';
    }),
        QStringLiteral("key 3"));
    EXPECT_EQ(
        nameOf([](auto& record) { ++record.Pen.PressureThreshold; }), QStringLiteral("pressure"));
    EXPECT_EQ(
        nameOf([](auto& record) { ++record.Key.Scrollbar0; }), QStringLiteral("left scroll strip"));
    EXPECT_EQ(nameOf([](auto& record) { ++record.Key.Scrollbar1; }),
        QStringLiteral("right scroll strip"));
    EXPECT_EQ(
        nameOf([](auto& record) { ++record.Key.ScrollSpeed; }), QStringLiteral("scroll speed"));
    EXPECT_EQ(nameOf([](auto& record) { ++record.Monitor.num; }), QStringLiteral("display"));
    EXPECT_EQ(nameOf([](auto& record) { ++record.Monitor.Speed; }), QStringLiteral("report speed"));
    EXPECT_EQ(
        nameOf([](auto& record) { ++record.Monitor.rotationFlag; }), QStringLiteral("orientation"));
    EXPECT_EQ(nameOf([](auto& record) {
        ++record.Monitor.cTabletXmax;
        ++record.Monitor.cTabletYmax;
    }),
        QStringLiteral("area of the tablet"));
    EXPECT_EQ(nameOf([](auto& record) {
        ++record.Pen.PressureThreshold;
        ++record.Monitor.num;
    }),
        QStringLiteral("several settings"));
    EXPECT_EQ(nameOf([](auto& record) { ++record.Monitor.XOrg; }), QString());
}
