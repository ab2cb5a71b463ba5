// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTblt_prefPanePref.h"

#include "Notifications.h"
#include "PaneTest.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

using platform::Rect;

namespace {

class Pane : public PaneTest {
protected:
    QString notice() { return outlet<QLabel>("mNotice").text(); }
    static void post(QLatin1String name) { platform::notifications().post({name, nullptr, {}}); }
};

} // namespace

TEST_F(Pane, hasItsOutletsUnderTheirNames)
{
    outlet<QTabWidget>("tabView");
    outlet<QLabel>("NoDevTitle");
    for (const char* const bank : {"mKey1_", "mKey2_"}) {
        for (int key = 1; key <= 8; ++key) {
            outlet<QComboBox>((bank + std::to_string(key)).c_str());
        }
    }
    outlet<QCheckBox>("mKeyLScroll");
    outlet<QCheckBox>("mKeyRScroll");
    outlet<QSlider>("mScrollSpeed");
    outlet<QWidget>("mMonitorSpeed");
    outlet<QComboBox>("penKeyUpper");
    outlet<QComboBox>("penKeyLower");
    outlet<QWidget>("mSoft");
}

TEST_F(Pane, keepsItsBundleForEveryLookUp)
{
    EXPECT_EQ(rzkBundle.folder(), QStringLiteral(QVTBLT_STAGE_RESOURCES));
}

TEST_F(Pane, givesEveryComboBoxItsSlotAsTag)
{
    for (int key = 0; key < 16; ++key) {
        const std::string name =
            "mKey" + std::to_string(key / 8 + 1) + '_' + std::to_string(key % 8 + 1);
        EXPECT_EQ(outlet<QComboBox>(name.c_str()).property("tag").toInt(), key) << name;
    }
    EXPECT_EQ(outlet<QComboBox>("penKeyUpper").property("tag").toInt(), 16);
    EXPECT_EQ(outlet<QComboBox>("penKeyLower").property("tag").toInt(), 17);
}

TEST_F(Pane, showsThePagesAndTheFilesStateWithATablet)
{
    show();
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible());
    EXPECT_FALSE(outlet<QLabel>("NoDevTitle").isVisible());
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
    // The sample has 26 and 27 there: both strips are off.
    EXPECT_FALSE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    EXPECT_FALSE(outlet<QCheckBox>("mKeyRScroll").isChecked());
    EXPECT_TRUE(pushes().empty()) << "showing the pane must not push";
}

TEST_F(Pane, showsOnlyTheLabelWithoutATablet)
{
    mEvents.sendResult = platform::procNotFound;
    show();
    EXPECT_FALSE(outlet<QTabWidget>("tabView").isVisible());
    const QLabel& label = outlet<QLabel>("NoDevTitle");
    EXPECT_TRUE(label.isVisible());
    EXPECT_EQ(label.text(), QStringLiteral("No tablet was found"));
    EXPECT_TRUE(label.font().bold());
    EXPECT_EQ(label.font().pixelSize(), 20);
    const QColor color = label.palette().color(QPalette::WindowText);
    EXPECT_NEAR(color.redF(), 1.0, 1e-4);
    EXPECT_NEAR(color.greenF(), 0.2, 1e-4);
    EXPECT_NEAR(color.blueF(), 0.2, 1e-4);
    EXPECT_NEAR(color.alphaF(), 0.6, 1e-4);
    for (const char* const name : {"mSave", "mCancel", "mSoft"}) {
        EXPECT_FALSE(outlet<QWidget>(name).isVisible()) << name;
    }
    EXPECT_TRUE(sameBytes(qvTabletInfo, {})) << "no file may be loaded";
}

TEST_F(Pane, movesTheLabelFurtherAtEachShowingWithoutATablet)
{
    mEvents.answer(0);
    const QLabel& label = outlet<QLabel>("NoDevTitle");
    const Rect first = platform::frame(label);
    show();
    const Rect second = platform::frame(label);
    leave();
    show();
    const Rect third = platform::frame(label);
    EXPECT_EQ(second.x, first.x + 20);
    EXPECT_EQ(second.y, first.y - 150);
    EXPECT_EQ(third.x, second.x + 20);
    EXPECT_EQ(third.y, second.y - 150);
    EXPECT_EQ(third.width, label.sizeHint().width());
    EXPECT_EQ(third.height, label.sizeHint().height());
}

TEST_F(Pane, comesBackWhenATabletIsThereAgain)
{
    mEvents.answer(0);
    show();
    leave();
    mEvents.answer(7);
    show();
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible());
    EXPECT_TRUE(outlet<QPushButton>("mSave").isVisible());
    EXPECT_FALSE(outlet<QLabel>("NoDevTitle").isVisible());
}

TEST_F(Pane, saysUnderTheLabelWhatToTryAndNeverOutOfSight)
{
    mEvents.answer(0);
    for (int showing = 1; showing <= 6; ++showing) {
        show();
        const QLabel& help = outlet<QLabel>("NoDevHelp");
        EXPECT_TRUE(help.isVisible());
        EXPECT_TRUE(mWindow->rect().contains(help.geometry())) << showing;
        if (showing == 1) {
            EXPECT_GE(help.geometry().top(), outlet<QLabel>("NoDevTitle").geometry().bottom());
        }
        leave();
    }
    mEvents.answer(7);
    show();
    EXPECT_FALSE(outlet<QLabel>("NoDevHelp").isVisible());
}

TEST_F(Pane, isShownAnewWhenTheDriverSaysThatThereIsATablet)
{
    mEvents.answer(0);
    show();
    const Rect before = platform::frame(outlet<QLabel>("NoDevTitle"));
    post(platform::kSourceChangedNotification);
    EXPECT_FALSE(outlet<QTabWidget>("tabView").isVisible());
    EXPECT_EQ(platform::frame(outlet<QLabel>("NoDevTitle")), before) << "it was not shown again";
    mEvents.answer(7);
    post(platform::kSourceChangedNotification);
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible());
    EXPECT_FALSE(outlet<QLabel>("NoDevTitle").isVisible());
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
    EXPECT_TRUE(pushes().empty());
}

TEST_F(Pane, asksNobodyWhileItIsNotShown)
{
    mEvents.answer(0);
    show();
    leave();
    mEvents.sent.clear();
    mEvents.answer(7);
    post(platform::kSourceChangedNotification);
    EXPECT_TRUE(mEvents.sent.empty());
}

TEST_F(Pane, saysThatTheDriverHasNotTakenAPushUntilItTakesOne)
{
    show();
    EXPECT_EQ(notice(), QString());
    post(platform::kEventNotTakenNotification);
    EXPECT_EQ(notice(),
        QStringLiteral("The tablet's driver has not taken the last change. Is it running?"));
    post(platform::kEventTakenNotification);
    EXPECT_EQ(notice(), QString());
}

TEST_F(Pane, pushesAgainWhatWasNotTakenWhenTheDriverComesBack)
{
    show();
    post(platform::kSourceChangedNotification);
    EXPECT_TRUE(pushes().empty()) << "nothing was lost";
    post(platform::kEventNotTakenNotification);
    post(platform::kSourceChangedNotification);
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
}

TEST_F(Pane, saysWhyTheSettingsAreNotSavedUntilTheyAre)
{
    show();
    const QString path = mHome.configFile(7);
    ASSERT_TRUE(QFile::rename(path, path + QStringLiteral(".away")));
    QTest::mouseClick(&outlet<QPushButton>("mSave"), Qt::LeftButton);
    EXPECT_TRUE(notice().startsWith(QStringLiteral("The settings are not saved: ")))
        << notice().toStdString();
    EXPECT_TRUE(notice().contains(path));
    ASSERT_TRUE(QFile::rename(path + QStringLiteral(".away"), path));
    QTest::mouseClick(&outlet<QPushButton>("mSave"), Qt::LeftButton);
    EXPECT_EQ(notice(), QString());
}

TEST_F(Pane, putsTheFocusOnMSoft)
{
    show();
    mWindow->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mWindow.get()));
    EXPECT_TRUE(outlet<QWidget>("mSoft").hasFocus());
}

TEST_F(Pane, namesTheTablet)
{
    show();
    EXPECT_EQ(outlet<QLabel>("mSoft").text(), QStringLiteral("Unknown tablet, product 0002"));
}

TEST_F(Pane, pushesTheStripsAtOnceWhenABoxIsClicked)
{
    show();
    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    ASSERT_EQ(pushes().size(), 1U);
    tagQVTabletInfo expected = sampleRecord();
    expected.Key.Scrollbar0 = 0;
    expected.Key.Scrollbar1 = 1;
    EXPECT_TRUE(sameBytes(pushes().front(), expected));
    EXPECT_TRUE(sameBytes(qvTabletInfo, expected));

    QTest::keyClick(&outlet<QCheckBox>("mKeyRScroll"), Qt::Key_Space);
    ASSERT_EQ(pushes().size(), 2U);
    expected.Key.Scrollbar1 = 0;
    EXPECT_TRUE(sameBytes(pushes().back(), expected));

    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    expected.Key.Scrollbar0 = 1;
    EXPECT_TRUE(sameBytes(pushes().back(), expected));
}

TEST_F(Pane, pushesTheStripsWhenAScreenReaderTogglesABox)
{
    show();
    QAccessibleActionInterface* const action =
        QAccessible::queryAccessibleInterface(&outlet<QCheckBox>("mKeyLScroll"))->actionInterface();
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    action->doAction(QAccessibleActionInterface::toggleAction());
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_EQ(+pushes().front().Key.Scrollbar0, 0);
    EXPECT_EQ(+qvTabletInfo.Key.Scrollbar0, 0);
}

TEST_F(Pane, pushesNothingWhenItShowsOtherStrips)
{
    show();
    leave();
    qvTabletInfo.Key.Scrollbar0 = 0;
    qvTabletInfo.Key.Scrollbar1 = 0;
    leave(); // into the file
    show();
    EXPECT_TRUE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    EXPECT_TRUE(outlet<QCheckBox>("mKeyRScroll").isChecked());
    EXPECT_TRUE(pushes().empty());
}

TEST_F(Pane, saveStoresZeroForABoxThatIsOnAndOneForABoxThatIsOff)
{
    show();
    {
        const QSignalBlocker left(outlet<QCheckBox>("mKeyLScroll"));
        const QSignalBlocker right(outlet<QCheckBox>("mKeyRScroll"));
        outlet<QCheckBox>("mKeyLScroll").setChecked(true);
        outlet<QCheckBox>("mKeyRScroll").setChecked(false);
    }
    QTest::mouseClick(&outlet<QPushButton>("mSave"), Qt::LeftButton);
    EXPECT_EQ(+qvTabletInfo.Key.Scrollbar0, 0);
    EXPECT_EQ(+qvTabletInfo.Key.Scrollbar1, 1);
    EXPECT_TRUE(sameBytes(recordInFile(), qvTabletInfo));
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
}

TEST_F(Pane, cancelPushesTheFilesValuesWhileTheBoxKeepsTheChoice)
{
    show();
    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    ASSERT_TRUE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    QTest::mouseClick(&outlet<QPushButton>("mCancel"), Qt::LeftButton);
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_TRUE(sameBytes(pushes().back(), sampleRecord()));
    EXPECT_TRUE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    leave();
    show();
    EXPECT_FALSE(outlet<QCheckBox>("mKeyLScroll").isChecked());
}

TEST_F(Pane, leavingSavesWithoutPushing)
{
    show();
    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    const std::size_t before = pushes().size();
    leave();
    EXPECT_EQ(pushes().size(), before);
    EXPECT_EQ(+recordInFile().Key.Scrollbar0, 0);
    EXPECT_TRUE(sameBytes(recordInFile(), qvTabletInfo));
}

TEST_F(Pane, leavingSavesIntoTheFormerTabletsFileAfterTheTabletWasUnplugged)
{
    show();
    leave();
    mEvents.sendResult = platform::procNotFound;
    show();
    qvTabletInfo.Pen.Speed = 99;
    leave();
    EXPECT_EQ(+recordInFile().Pen.Speed, 99);
}

TEST_F(Pane, leavingWithoutATabletEverCreatesNothing)
{
    mEvents.sendResult = platform::procNotFound;
    show();
    leave();
    EXPECT_EQ(readFile(mHome.configFile(7)), sampleConfig());
    EXPECT_EQ(mHome.configFolder().entryList(QDir::Files).size(), 1);
}

TEST_F(Pane, putsTheMovedControlsBackWhenItIsLeft)
{
    show();
    const std::vector<QWidget*> controls{&outlet<QComboBox>("mKey1_1"),
        &outlet<QCheckBox>("mKeyLScroll"), &outlet<QCheckBox>("mKeyRScroll")};
    std::vector<QRect> before;
    for (QWidget* const control : controls) {
        before.push_back(control->geometry());
        control->move(control->pos() + QPoint(5, 65));
    }
    leave();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        EXPECT_EQ(controls[i]->geometry(), before[i]) << i;
    }
}

TEST_F(Pane, leavesTheControlsInPlaceWhenItWasNeverShownWithATablet)
{
    const QRect before = outlet<QComboBox>("mKey1_1").geometry();
    mEvents.answer(0);
    show();
    leave();
    EXPECT_EQ(outlet<QComboBox>("mKey1_1").geometry(), before);
}

TEST_F(Pane, loadsItsMainViewOnce)
{
    EXPECT_EQ(mPane.loadMainView(), mWindow.get());
    EXPECT_EQ(mPane.mainView(), mWindow.get());
    mWindow.reset();
    EXPECT_EQ(mPane.mainView(), nullptr);
}

TEST_F(Pane, tellsItsHostOfChangesAndOfSaveAndCancel)
{
    std::vector<bool> told;
    mPane.setChangeHandler([&] { told.push_back(mPane.hasChanges()); });
    show();
    EXPECT_FALSE(mPane.hasChanges());
    outlet<QSlider>("mSlider").setValue(70);
    EXPECT_EQ(told, std::vector{true});
    mPane.save();
    EXPECT_EQ(told, (std::vector{true, false}));
    outlet<QSlider>("mSlider").setValue(20);
    mPane.cancel();
    EXPECT_EQ(told, (std::vector{true, false, true, false}));
}

TEST_F(Pane, hasNoChangesWhereAllItsPagesWereOnlyLookedAt)
{
    QByteArray second = sampleConfig();
    second.replace("<key>num</key><integer>14</integer>", "<key>num</key><integer>2</integer>");
    writeFile(mHome.configFile(7), second);
    show();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 18);
    auto& pages = outlet<QTabWidget>("tabView");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        mWindow->grab();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 100) << "as the display page has found the second one";
    EXPECT_FALSE(mPane.hasChanges());
}

TEST_F(Pane, leavesItsButtonsToAHostThatHasThem)
{
    mPane.setButtonsShown(false);
    show();
    EXPECT_FALSE(outlet<QPushButton>("mSave").isVisible());
    EXPECT_FALSE(outlet<QPushButton>("mCancel").isVisible());
    EXPECT_TRUE(outlet<QLabel>("mSoft").isVisible());
}
