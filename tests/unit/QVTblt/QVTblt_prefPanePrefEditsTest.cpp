// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel's settings as a whole: going back and forth between edits, and
// their names.

#include "FakeUsb.h"
#include "PaneTest.h"
#include "QVKeyComboBox.h"
#include "QVMonitorView.h"
#include "QVPressView.h"
#include "Wait.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>

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

TEST_F(Settings, areShownAgainOnWhateverPageIsOpen)
{
    const QByteArray before = mPane.settings();
    const auto isShown = [](const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, kPatience);
    };
    showPage("keyPage");
    auto& speed = outlet<QSlider>("mScrollSpeed");
    for (tagQVTabletInfoSubKey& slot : qvTabletInfo.Key.SubKey) {
        slot.Valid = kQVPauseTablet;
    }
    qvTabletInfo.Key.ScrollSpeed = 3;
    const QByteArray edited = mPane.settings();
    mPane.setSettings(edited);
    const auto boxes = mWindow->findChildren<QVKeyComboBox*>();
    EXPECT_EQ(boxes.size(), 18);
    for (const QVKeyComboBox* const box : boxes) {
        EXPECT_EQ(box->currentIndex(), QVKeyComboBox::PauseTablet) << box->tag();
    }
    EXPECT_EQ(speed.value(), 3);
    speed.setEnabled(false); // as where a tablet has no strip
    qvTabletInfo.Key.ScrollSpeed = 2;
    mPane.setSettings(mPane.settings());
    EXPECT_EQ(speed.value(), 3);

    showPage("penPage");
    auto& pressure = outlet<QSlider>("mSlider");
    ASSERT_TRUE(isShown([&] { return pressure.value() == 120; })) << "as in the file";
    qvTabletInfo.Pen.PressureThreshold = 17;
    mPane.setSettings(mPane.settings());
    EXPECT_TRUE(isShown([&] { return pressure.value() == 170; }));

    showPage("displayPage");
    auto& turned = outlet<QComboBox>("mComboBoxUseMode");
    for (const int degrees : {180, 0, 180}) {
        qvTabletInfo.Monitor.rotationFlag = static_cast<std::int16_t>(degrees);
        mPane.setSettings(mPane.settings());
        EXPECT_TRUE(isShown([&] { return turned.currentIndex() == (degrees == 0 ? 1 : 0); }));
    }
    mPane.setSettings(before);
}

TEST_F(Settings, tellTheTabletItsReportSpeedWhereThatChangesAlone)
{
    FakeUsb usb;
    usb.devices.resize(1);
    qvTabletInfo.Monitor.Speed = kQVSpeedFast;
    const QByteArray fast = mPane.settings();
    mPane.setSettings(fast);
    EXPECT_TRUE(usb.data.empty());
    qvTabletInfo.Monitor.Speed = kQVSpeedNormal;
    mPane.setSettings(fast);
    EXPECT_EQ(usb.data, (std::vector<std::vector<std::uint8_t>>{{4, 1}}));
}

TEST_F(Settings, areNoneWhileTheAreaIsBeingCalibrated)
{
    const QByteArray before = mPane.settings();
    mPane.chooseDisplay(1);
    outlet<QPushButton>("mDoCalibrate").click();
    EXPECT_EQ(mPane.settings(), QByteArray());
    mEvents.sent.clear();
    mPane.setSettings(before);
    EXPECT_EQ(+qvTabletInfo.Monitor.num, 1);
    EXPECT_EQ(pushes().size(), 0U);
    outlet<QVMonitorView>("mMonitorView").endCalibration();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !mPane.settings().isEmpty(); }, kPatience));
}

TEST_F(Settings, areNotTakenFromWhatIsNoRecord)
{
    const tagQVTabletInfo before = qvTabletInfo;
    mPane.setSettings("nonsense");
    EXPECT_EQ(std::memcmp(&qvTabletInfo, &before, sizeof before), 0);
    EXPECT_EQ(pushes().size(), 0U);
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
