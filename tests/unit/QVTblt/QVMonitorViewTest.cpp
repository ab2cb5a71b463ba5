// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The display page: its lists, actions and drawing.

#include "QVMonitorView.h"

#include "Contrast.h"
#include "FakeUsb.h"
#include "PaneTest.h"
#include "QVTabletModels.h"
#include "Wait.h"
#include "WatchedEvents.h"
#include "rzkBundle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

using platform::Rect;

namespace {

const Rect kFullHD{0, 0, 1920, 1080};
const Rect kRight{1920, 0, 1280, 1024};

class DisplayPage : public PaneTest {
protected:
    void SetUp() override
    {
        mDisplays.change({kFullHD, kRight});
        PaneTest::SetUp();
        show();
        showPage("displayPage");
        qvTabletInfo.Basic.TabletXmin = 0;
        qvTabletInfo.Basic.TabletXmax = 10000;
        qvTabletInfo.Basic.TabletYmin = 0;
        qvTabletInfo.Basic.TabletYmax = 6250;
        qvTabletInfo.Monitor.num = 0;
        draw();
        mEvents.sent.clear();
    }

    QVMonitorView& view() { return outlet<QVMonitorView>("mMonitorView"); }
    QComboBox& list() { return outlet<QComboBox>("mComboBox"); }
    QStringList items()
    {
        QStringList texts;
        for (int i = 0; i < list().count(); ++i) {
            texts.append(list().itemText(i));
        }
        return texts;
    }
    /** Whether the view is painted after the action, no later than a neighbour updated after it. */
    template <class Action>
    bool isDrawnAfter(const Action& action)
    {
        QWidget neighbour(view().parentWidget());
        neighbour.show();
        const auto isPainted = [&neighbour] {
            const WatchedEvents paints(neighbour, QEvent::Paint);
            neighbour.update();
            return paints.wait();
        };
        EXPECT_TRUE(isPainted()); // and with it whatever was pending
        const WatchedEvents paints(view(), QEvent::Paint);
        action();
        EXPECT_TRUE(isPainted());
        return paints.count > 0;
    }
    QImage draw()
    {
        view().setNeedsDisplay();
        return view().grab().toImage();
    }
    /** Chooses an item in the open list, like a user. */
    static void choose(QComboBox& box, int item)
    {
        box.showPopup();
        QTest::keyClick(box.view(), Qt::Key_Home);
        for (int i = 0; i < item; ++i) {
            QTest::keyClick(box.view(), Qt::Key_Down);
        }
        QTest::keyClick(box.view(), Qt::Key_Return);
    }
    void press(const char* button)
    {
        QTest::mouseClick(&outlet<QPushButton>(button), Qt::LeftButton);
    }
    static Rect mapped()
    {
        const auto& monitor = qvTabletInfo.Monitor;
        return {double(monitor.XOrg), double(monitor.YOrg), double(monitor.Width),
            double(monitor.Height)};
    }
    static std::vector<int> used()
    {
        const auto& monitor = qvTabletInfo.Monitor;
        return {monitor.cTabletXmin, monitor.cTabletXmax, monitor.cTabletYmin, monitor.cTabletYmax};
    }

    FakeUsb mUsb;
};

} // namespace

// The list ----------------------------------------------------------------------------------------

TEST_F(DisplayPage, listsAllDisplaysFirstWhereThereAreTwo)
{
    EXPECT_EQ(items(),
        (QStringList{QStringLiteral("All displays"), QStringLiteral("Display #1"),
            QStringLiteral("Display #2")}));
}

TEST_F(DisplayPage, listsTheOneDisplayAlone)
{
    mDisplays.change({kFullHD});
    EXPECT_EQ(items(), QStringList{QStringLiteral("Display #1")});
}

TEST_F(DisplayPage, knowsFourDisplaysOfMore)
{
    mDisplays.change(std::vector<Rect>(5, kFullHD));
    EXPECT_EQ(list().count(), 5) << "all, and four";
    draw();
}

TEST_F(DisplayPage, mapsTheFourthOfFourDisplays)
{
    const Rect fourth{5760, 20, 800, 600};
    qvTabletInfo.Monitor.num = 4;
    mDisplays.change({kFullHD, {1920, 0, 1920, 1080}, {3840, 0, 1920, 1080}, fourth});
    draw();
    EXPECT_EQ(list().currentIndex(), 4);
    EXPECT_EQ(mapped(), fourth);
}

TEST_F(DisplayPage, isEmptyWhileDisplaysChangeAndFilledOnceTheyHave)
{
    mDisplays.tell(platform::kDisplayBeginConfiguration);
    EXPECT_EQ(list().count(), 0);
    draw();
    mDisplays.tell(platform::kDisplayBeginConfiguration);
    mDisplays.tell(platform::kDisplaySetMode);
    EXPECT_EQ(list().count(), 3);
    list().addItem(QStringLiteral("mine"));
    mDisplays.tell(platform::kDisplaySetMode);
    EXPECT_EQ(list().count(), 4) << "the rest of the burst changes nothing";
}

TEST_F(DisplayPage, keepsItsListWhenTheDisplaysAreNotTold)
{
    mDisplays.failList = true;
    view().interrogateHardware();
    EXPECT_EQ(list().count(), 3);
    const auto& calibrate = outlet<QPushButton>("mDoCalibrate");
    EXPECT_FALSE(calibrate.isEnabled());
    mDisplays.failCount = true;
    view().interrogateHardware();
    EXPECT_TRUE(calibrate.isEnabled()) << "not counted, it is one";
    mDisplays.failList = false;
    view().interrogateHardware();
    EXPECT_EQ(items(), QStringList{QStringLiteral("Display #1")});
}

TEST_F(DisplayPage, isToldNothingMoreWhenTheViewHasGone)
{
    mWindow.reset();
    mDisplays.change({kFullHD});
}

// Choosing a display ------------------------------------------------------------------------------

TEST_F(DisplayPage, allDisplaysAreMappedByTheirBounds)
{
    choose(list(), 1);
    choose(list(), 0);
    EXPECT_EQ(mapped(), (Rect{0, 0, 3200, 1080}));
    EXPECT_EQ(+qvTabletInfo.Monitor.num, 0);
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
}

TEST_F(DisplayPage, aDisplayIsMappedByItsPlace)
{
    choose(list(), 2);
    EXPECT_EQ(mapped(), kRight);
    EXPECT_EQ(+qvTabletInfo.Monitor.num, 2);
    choose(list(), 1);
    EXPECT_EQ(mapped(), kFullHD);
    EXPECT_EQ(pushes().size(), 2U);
}

TEST_F(DisplayPage, theOneDisplayIsItemZero)
{
    mDisplays.change({{5, 6, 700, 800}});
    choose(list(), 0);
    EXPECT_EQ(+qvTabletInfo.Monitor.num, 0);
    EXPECT_EQ(mapped(), (Rect{5, 6, 700, 800}));
    EXPECT_EQ(pushes().size(), 1U);
}

TEST_F(DisplayPage, aDisplayLeftOfTheMainOneHasANegativeOrigin)
{
    mDisplays.change({kFullHD, {-1280, -100, 1280, 1024}});
    choose(list(), 2);
    EXPECT_EQ(mapped(), (Rect{-1280, -100, 1280, 1024}));
    choose(list(), 0);
    EXPECT_EQ(mapped(), (Rect{-1280, -100, 3200, 1180}));
}

TEST_F(DisplayPage, fractionsAreCutOffTowardZero)
{
    mDisplays.change({kFullHD, {-1280.9, 0.9, 1280.9, 1024.9}});
    choose(list(), 2);
    EXPECT_EQ(mapped(), (Rect{-1280, 0, 1280, 1024}));
}

TEST_F(DisplayPage, nothingSelectedIsStoredButMapsNothing)
{
    const Rect before = mapped();
    list().setCurrentIndex(-1);
    view().SelectMonitor();
    EXPECT_EQ(+qvTabletInfo.Monitor.num, -1);
    EXPECT_EQ(mapped(), before);
    EXPECT_EQ(pushes().size(), 1U);
    draw();
    EXPECT_EQ(list().currentIndex(), 0);
}

TEST_F(DisplayPage, anItemBeyondAllDisplaysIsStoredButMapsNothing)
{
    choose(list(), 2);
    const Rect before = mapped();
    list().addItems({QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("5")});
    list().setCurrentIndex(5);
    view().SelectMonitor();
    EXPECT_EQ(+qvTabletInfo.Monitor.num, 5);
    EXPECT_EQ(mapped(), before);
}

TEST_F(DisplayPage, isDrawnAnewAfterWhatChangesIt)
{
    EXPECT_FALSE(isDrawnAfter([] {}));
    EXPECT_TRUE(isDrawnAfter([this] {
        list().setCurrentIndex(2);
        view().SelectMonitor();
    }));
    EXPECT_TRUE(isDrawnAfter([this] { view().AutoCalibrate(); }));
    EXPECT_TRUE(isDrawnAfter([this] { mDisplays.change({kRight}); }));
}

// Other actions -----------------------------------------------------------------------------------

TEST_F(DisplayPage, theFirstSpeedIsFastAndToldToTheTablet)
{
    mUsb.devices.resize(1);
    choose(outlet<QComboBox>("mComboBoxSpeed"), 0);
    EXPECT_EQ(+qvTabletInfo.Monitor.Speed, 180);
    choose(outlet<QComboBox>("mComboBoxSpeed"), 1);
    EXPECT_EQ(+qvTabletInfo.Monitor.Speed, 220);
    ASSERT_EQ(mUsb.data.size(), 2U);
    EXPECT_EQ(mUsb.data[0], (std::vector<std::uint8_t>{4, 1}));
    EXPECT_EQ(mUsb.data[1], (std::vector<std::uint8_t>{4, 0}));
    EXPECT_EQ(mUsb.asked.properties.at("idProduct"), 2) << "that of the file";
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_EQ(+pushes()[0].Monitor.Speed, 180);
    EXPECT_EQ(+pushes()[1].Monitor.Speed, 220);
}

TEST_F(DisplayPage, noSpeedSelectedStillPushes)
{
    mUsb.devices.resize(1);
    const tagQVTabletInfo before = qvTabletInfo;
    outlet<QComboBox>("mComboBoxSpeed").setCurrentIndex(-1);
    view().SelectSpeed();
    EXPECT_TRUE(mUsb.data.empty());
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_TRUE(sameBytes(pushes().back(), before));
}

TEST_F(DisplayPage, theTabletIsTurnedAndTurnedBack)
{
    auto& mode = outlet<QComboBox>("mComboBoxUseMode");
    choose(mode, 0);
    EXPECT_EQ(+qvTabletInfo.Monitor.rotationFlag, 180);
    choose(mode, 1);
    EXPECT_EQ(+qvTabletInfo.Monitor.rotationFlag, 0);
    mode.setCurrentIndex(-1);
    view().SelectUseMode();
    EXPECT_EQ(+qvTabletInfo.Monitor.rotationFlag, 0);
    EXPECT_EQ(pushes().size(), 3U);
}

TEST_F(DisplayPage, theDefaultAreaIsTheWholeTablet)
{
    press("mDefaultArea");
    EXPECT_EQ(used(), (std::vector{0, 10000, 0, 6250}));
    EXPECT_EQ(pushes().size(), 1U);
}

TEST_F(DisplayPage, theFittedAreaHasTheDisplaysShape)
{
    choose(list(), 1);
    press("mAutoCalibrate");
    EXPECT_EQ(used(), (std::vector{0, 10000, 0, 5625}));
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_EQ(+pushes().back().Monitor.cTabletYmax, 5625);
}

TEST_F(DisplayPage, aSideThatIsZeroIsFittedUnlessItDivides)
{
    mDisplays.change({{0, 0, 10, 0}});
    qvTabletInfo.Basic.TabletXmax = 100;
    qvTabletInfo.Basic.TabletYmax = 100;
    draw();
    press("mAutoCalibrate");
    EXPECT_EQ(used(), (std::vector{0, 100, 0, 0})) << "100 * 0 / 10";
    EXPECT_EQ(view().tabletPictureCorner(), (QVPoint{361, 80}));
    mDisplays.change({kFullHD});
    qvTabletInfo.Basic.TabletXmax = 0;
    draw();
    press("mAutoCalibrate");
    EXPECT_EQ(used(), (std::vector{0, 0, 0, 0})) << "0 * 1080 / 1920";
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
}

TEST_F(DisplayPage, aSideThatWouldDivideByZeroIsNotFittedAndTheLogSaysSo)
{
    for (const Rect& empty : {Rect{0, 0, -1920, 0}, Rect{0, 0, 0, -1080}, Rect{}}) {
        mDisplays.change({empty});
        draw();
        EXPECT_EQ(mapped(), empty);
        const tagQVTabletInfo before = qvTabletInfo;
        mEvents.sent.clear();
        testing::internal::CaptureStderr();
        press("mAutoCalibrate");
        EXPECT_NE(testing::internal::GetCapturedStderr().find("cannot be fitted to a display"),
            std::string::npos);
        EXPECT_TRUE(sameBytes(qvTabletInfo, before));
        ASSERT_EQ(pushes().size(), 1U);
        EXPECT_TRUE(sameBytes(pushes().back(), before));
    }
}

TEST_F(DisplayPage, thePicturesCornerFollowsTheAreaInUseWhenItIsDrawn)
{
    choose(list(), 1);
    press("mAutoCalibrate");
    EXPECT_EQ(view().tabletPictureCorner(), (QVPoint{361, 38}));
    draw();
    EXPECT_EQ(view().tabletPictureCorner(), (QVPoint{361, 38}));
    press("mDefaultArea");
    draw();
    EXPECT_EQ(view().tabletPictureCorner(), (QVPoint{361, 33}));
}

TEST_F(DisplayPage, speedUseModeAndDefaultAreaAskForNoDrawing)
{
    EXPECT_FALSE(isDrawnAfter([this] {
        view().SelectSpeed();
        view().SelectUseMode();
        view().setTabletDefaultArea();
    }));
}

// Calibrate… --------------------------------------------------------------------------------------

TEST_F(DisplayPage, allDisplaysTogetherCannotBeCalibratedAndTheButtonSaysSo)
{
    auto& button = outlet<QPushButton>("mDoCalibrate");
    const QString why =
        QStringLiteral("Choose one display first: only one display can be calibrated at a time.");
    const auto expect = [&](bool isOn, const char* when) {
        EXPECT_EQ(button.isEnabled(), isOn) << when;
        EXPECT_EQ(button.toolTip() == why, !isOn) << when;
        EXPECT_EQ(button.accessibleDescription(), button.toolTip()) << when;
        EXPECT_FALSE(button.toolTip().isEmpty()) << when;
    };
    expect(false, "at first");
    choose(list(), 2);
    expect(true, "chosen");
    choose(list(), 0);
    expect(false, "all chosen");
    qvTabletInfo.Monitor.num = 1;
    draw();
    expect(true, "drawn");
    mDisplays.change({kFullHD});
    expect(true, "of one, the one is meant");
    mDisplays.change({kFullHD, kRight, kRight});
    qvTabletInfo.Monitor.num = 0;
    draw();
    expect(false, "drawn with all");
    mDisplays.change({kFullHD});
    expect(true, "one is left");
}

TEST_F(DisplayPage, withoutAnyDisplayNothingCanBeCalibrated)
{
    mDisplays.change({});
    QVMonitorView bare;
    QComboBox displays;
    QComboBox speed;
    QComboBox mode;
    QPushButton calibrate;
    bare.setOutlets(&displays, &speed, &mode, &calibrate);
    bare.awakeFromNib();
    bare.interrogateHardware();
    EXPECT_FALSE(calibrate.isEnabled());
    EXPECT_FALSE(bare.updateMappedArea());
}

TEST_F(DisplayPage, aRedrawSetsTheHelpOfCalibrateOnlyWhenItIsAnother)
{
    auto& button = outlet<QPushButton>("mDoCalibrate");
    draw();
    const WatchedEvents changes(button, QEvent::ToolTipChange);
    draw();
    EXPECT_EQ(changes.count, 0);
    for (const int display : {2, 1}) {
        choose(list(), display);
        draw();
        EXPECT_EQ(changes.count, 1);
    }
}

// Changes of the displays -------------------------------------------------------------------------

TEST_F(DisplayPage, onlyTheFlagOneAloneIsABeginning)
{
    for (const std::uint32_t flags : {3U, 9U}) {
        mDisplays.tell(flags);
        EXPECT_EQ(list().count(), 3) << flags;
        mDisplays.tell(platform::kDisplayBeginConfiguration);
        EXPECT_EQ(list().count(), 0) << flags;
        mDisplays.tell(flags);
        EXPECT_EQ(list().count(), 3) << flags << " is an end";
    }
}

TEST_F(DisplayPage, tellsOnceThatDisplaysHaveChanged)
{
    int told = 0;
    int listed = 0;
    QObject::connect(&view(), &QVMonitorView::displaysChanged, &view(), [&] {
        ++told;
        listed = list().count();
    });
    mDisplays.change({kFullHD, kRight, kRight});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(listed, 4) << "when they are in the list";
    mDisplays.tell(platform::kDisplaySetMode);
    EXPECT_EQ(told, 1);
}

TEST_F(DisplayPage, theMappedAreaFollowsTheDisplaysAlsoWhereNothingIsDrawn)
{
    choose(list(), 2);
    leave(); // otherwise the pane would ask first
    mEvents.answer(0);
    mPane.willSelect();
    mEvents.sent.clear();
    EXPECT_FALSE(view().updateMappedArea());
    mDisplays.change({kFullHD, {1920, 56, 1280, 1024}});
    EXPECT_TRUE(view().updateMappedArea());
    EXPECT_EQ(mapped(), (Rect{1920, 56, 1280, 1024}));
    EXPECT_EQ(list().currentIndex(), 2);
    EXPECT_FALSE(view().updateMappedArea());
    mDisplays.change({kFullHD}); // the chosen one is unplugged
    EXPECT_TRUE(view().updateMappedArea());
    EXPECT_EQ(mapped(), kFullHD);
    EXPECT_EQ(list().currentIndex(), 0);
    EXPECT_TRUE(pushes().empty());
}

TEST_F(DisplayPage, withoutItsListsItDoesWhatItCan)
{
    const auto useAll = [](QVMonitorView& bare) {
        bare.awakeFromNib();
        bare.disableUI();
        bare.interrogateHardware();
        bare.resize(600, 360);
        EXPECT_FALSE(bare.grab().toImage().isNull());
        bare.updateMappedArea();
        bare.SelectMonitor();
        EXPECT_EQ(+qvTabletInfo.Monitor.num, -1) << "nothing is chosen";
        bare.SelectSpeed();
        bare.SelectUseMode();
        bare.setTabletDefaultArea();
        bare.AutoCalibrate();
        bare.DoCalibrate();
        bare.endCalibration();
        EXPECT_FALSE(bare.spokenContents().isEmpty());
    };
    QVMonitorView never;
    useAll(never);
    QVMonitorView left;
    {
        QComboBox displays;
        QComboBox speed;
        QComboBox mode;
        QPushButton calibrate;
        left.setOutlets(&displays, &speed, &mode, &calibrate);
        left.awakeFromNib();
    }
    useAll(left);
}

// Drawing -----------------------------------------------------------------------------------------

TEST_F(DisplayPage, drawingUpdatesTheMappedAreaWithoutPushing)
{
    qvTabletInfo.Monitor.num = 2;
    draw();
    EXPECT_EQ(list().currentIndex(), 2);
    EXPECT_EQ(mapped(), kRight);
    qvTabletInfo.Monitor.num = 0;
    draw();
    EXPECT_EQ(list().currentIndex(), 0);
    EXPECT_EQ(mapped(), (Rect{0, 0, 3200, 1080}));
    EXPECT_TRUE(pushes().empty());
}

TEST_F(DisplayPage, drawingSelectsTheOneDisplay)
{
    mDisplays.change({kFullHD});
    list().setCurrentIndex(-1);
    draw();
    EXPECT_EQ(list().currentIndex(), 0);
}

TEST_F(DisplayPage, drawingFramesTheOneDisplay)
{
    mDisplays.change({kFullHD});
    const QImage drawn = draw();
    const double density = view().devicePixelRatioF();
    const auto colorAt = [&](double x, double y) {
        return drawn.pixelColor(static_cast<int>(x * density), static_cast<int>(y * density));
    };
    // Its miniature has 128 by 72 points; the name is in its left half.
    EXPECT_EQ(colorAt(340.5, 150.5), QColor(Qt::magenta));
    for (const QPointF& edge : {QPointF(230.5, 170.5), QPointF(357.5, 170.5), QPointF(300.5, 130.5),
             QPointF(300.5, 201.5)}) {
        EXPECT_EQ(colorAt(edge.x(), edge.y()), QColor(Qt::black)) << edge.x() << ", " << edge.y();
    }
}

TEST_F(DisplayPage, aDisplayThatIsGoneShowsAllButMapsItsOldPlace)
{
    const Rect third{3200, 0, 800, 600};
    mDisplays.change({kFullHD, kRight, third});
    mDisplays.change({kFullHD, kRight});
    qvTabletInfo.Monitor.num = 3;
    draw();
    EXPECT_EQ(list().currentIndex(), 0);
    EXPECT_EQ(mapped(), third);
}

TEST_F(DisplayPage, anyNumberOfADisplayIsSafe)
{
    const Rect before = mapped();
    testing::internal::CaptureStderr();
    for (const int num : {-32768, -1, 5, 32767}) {
        qvTabletInfo.Monitor.num = static_cast<std::int16_t>(num);
        draw();
        EXPECT_EQ(list().currentIndex(), 0) << num;
        EXPECT_EQ(mapped(), before) << num;
        EXPECT_NE(
            testing::internal::GetCapturedStderr().find("there is no display"), std::string::npos)
            << num;
        testing::internal::CaptureStderr();
        draw();
        draw();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "once for each";
        testing::internal::CaptureStderr();
    }
    testing::internal::GetCapturedStderr();
}

TEST_F(DisplayPage, aDisplaysNameEndsWhereItsMiniatureDoes)
{
    const double density = view().devicePixelRatioF();
    for (const double width : {450.0, 640.0, 800.0, 1024.0, 1280.0}) {
        mDisplays.change({kFullHD, {1920, 0, width, 600}});
        qvTabletInfo.Monitor.num = 1;
        const QImage drawn = draw();
        const auto at = [&](double x, double y) {
            return drawn.pixelColor(static_cast<int>(x * density), static_cast<int>(y * density));
        };
        // Beside the second miniature is only the background.
        const double right = 230 + 128 + width / 15;
        const QColor ground = at(580, 10);
        for (double y = 131; y < 169; y += 1 / density) {
            for (double x = right + 1.5; x < right + 90; x += 1 / density) {
                const QColor color = at(x, y);
                ASSERT_LT(std::abs(color.red() - ground.red())
                        + std::abs(color.green() - ground.green())
                        + std::abs(color.blue() - ground.blue()),
                    24)
                    << width << ": " << x << ", " << y;
            }
        }
    }
}

TEST_F(DisplayPage, aDisplaysWholeNameStandsInAMiniatureOfUsualSize)
{
    // From 1280 points on, the last character of the name fits, so the picture differs.
    mDisplays.change({kFullHD, {1920, 0, 1280, 720}});
    qvTabletInfo.Monitor.num = 1;
    const QImage second = draw();
    mDisplays.change({kFullHD, {-9000, 0, 100, 100}, {1920, 0, 1280, 720}});
    const QImage third = draw();
    const double density = view().devicePixelRatioF();
    const auto miniature = [&](const QImage& drawn) {
        return drawn.copy(
            QRectF(359 * density, 131 * density, 84 * density, 46 * density).toRect());
    };
    EXPECT_NE(miniature(second), miniature(third)) << "#2 and #3";
}

TEST_F(DisplayPage, showsATabletWithoutWidthOrHeightAndLogsItOnce)
{
    const tagQVTabletInfo good = qvTabletInfo;
    for (const auto& [xmax, ymax] : {std::pair(0, 6250), {10000, 0}, {0, 0}}) {
        qvTabletInfo = good;
        const QImage expected = draw();
        qvTabletInfo.Basic.TabletXmax = static_cast<std::uint16_t>(xmax);
        qvTabletInfo.Basic.TabletYmax = static_cast<std::uint16_t>(ymax);
        const tagQVTabletInfo before = qvTabletInfo;
        testing::internal::CaptureStderr();
        EXPECT_EQ(draw(), expected);
        const std::string log = testing::internal::GetCapturedStderr();
        EXPECT_NE(log.find("active area has no width or no height"), std::string::npos) << log;
        testing::internal::CaptureStderr();
        draw();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_TRUE(sameBytes(qvTabletInfo, before)) << xmax << " by " << ymax;
    }
}

TEST_F(DisplayPage, showsAnUsedAreaWithoutWidthOrHeight)
{
    const QImage expected = draw();
    qvTabletInfo.Monitor.cTabletXmin = qvTabletInfo.Monitor.cTabletXmax = 77;
    qvTabletInfo.Monitor.cTabletYmin = qvTabletInfo.Monitor.cTabletYmax = 88;
    EXPECT_EQ(draw(), expected);
    EXPECT_EQ(used(), (std::vector{77, 77, 88, 88}));
}

TEST_F(DisplayPage, withoutDisplaysNothingIsMapped)
{
    const Rect before = mapped();
    mDisplays.tell(platform::kDisplayBeginConfiguration);
    mDisplays.tell(platform::kDisplaySetMode);
    mDisplays.change({});
    view().interrogateHardware();
    draw();
    EXPECT_EQ(mapped(), before);
}

TEST_F(DisplayPage, theListsShowTheRecord)
{
    auto& mode = outlet<QComboBox>("mComboBoxUseMode");
    auto& speed = outlet<QComboBox>("mComboBoxSpeed");
    const auto expect = [&](int rotation, int rate, int modeItem, int speedItem) {
        qvTabletInfo.Monitor.rotationFlag = static_cast<std::int16_t>(rotation);
        qvTabletInfo.Monitor.Speed = static_cast<std::int16_t>(rate);
        draw();
        EXPECT_EQ(mode.currentIndex(), modeItem);
        EXPECT_EQ(speed.currentIndex(), speedItem);
    };
    expect(0, 220, 1, 1);
    expect(180, 180, 0, 0);
    expect(90, 200, 0, 0); // others leave them unchanged
    expect(0, 220, 1, 1);
    EXPECT_TRUE(pushes().empty());
}

TEST_F(DisplayPage, drawsMiniaturesFrameAndLinesAtTheirPlaces)
{
    const double density = view().devicePixelRatioF(); // the tests run at 1 and at 2
    for (const int num : {0, 1, 2}) {
        qvTabletInfo.Monitor.num = static_cast<std::int16_t>(num);
        // Plain calls with plain numbers: 600 / 3 + 30 = 230, 480 - (72 + 250) = 158.
        QImage expected((QSizeF(600, 360) * density).toSize(), QImage::Format_ARGB32_Premultiplied);
        expected.setDevicePixelRatio(density);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        painter.setFont(view().font());
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        const QImage background(QStringLiteral(QVTBLT_STAGE_RESOURCES "/backgroundregion.jpg"));
        ASSERT_EQ(background.size(), QSize(1200, 720));
        painter.drawImage(QRectF(0, 0, 600, 360), background);
        const QRectF first(230, 360 - 158 - 72, 128, 72);
        const QRectF second(358, 130, 1280 / 15.0, 1024 / 15.0);
        int i = 0;
        for (const QRectF& miniature : {first, second}) {
            painter.setPen(QPen(Qt::magenta, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
            painter.setBrush(Qt::magenta);
            painter.drawRect(miniature);
            painter.setPen(Qt::black);
            painter.save();
            painter.setClipRect(miniature);
            const QString name = QStringLiteral("Display #%1").arg(++i);
            QFont font = painter.font();
            while (painter.fontMetrics().horizontalAdvance(name) > miniature.width() - 23) {
                font.setPixelSize(QFontInfo(painter.font()).pixelSize() - 1);
                painter.setFont(font);
            }
            painter.drawText(QPointF(miniature.x() + 20,
                                 miniature.bottom() - 15 - painter.fontMetrics().descent()),
                name);
            painter.restore();
        }
        const QRectF framed = num == 0 ? first.united(second) : num == 1 ? first : second;
        QPainterPath frame;
        frame.addRect(framed);
        frame.addRect(framed.adjusted(1, 1, -1, -1));
        painter.fillPath(frame, Qt::black);
        painter.setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(framed.topLeft(), QPointF(275, 360 - 80));
        painter.drawLine(framed.topRight(), QPointF(361, 360 - 80));
        painter.drawLine(framed.bottomRight(), QPointF(361, 360 - 33));
        painter.drawLine(framed.bottomLeft(), QPointF(275, 360 - 33));
        painter.end();

        const QImage drawn = draw();
        ASSERT_EQ(drawn.size(), expected.size());
        int differing = 0;
        for (int y = 0; y < expected.height(); ++y) {
            for (int x = 0; x < expected.width(); ++x) {
                const QColor a = expected.pixelColor(x, y);
                const QColor b = drawn.pixelColor(x, y);
                const int difference = std::abs(a.red() - b.red()) + std::abs(a.green() - b.green())
                    + std::abs(a.blue() - b.blue());
                differing += difference > 96 ? 1 : 0;
            }
        }
        EXPECT_LT(differing, 40) << num << " at density " << density;
    }
}

TEST_F(DisplayPage, withoutItsPictureTheRestIsDrawn)
{
    const platform::Bundle bundle = rzkBundle;
    rzkBundle = platform::Bundle(mHome.path());
    QVMonitorView bare;
    QComboBox list;
    QComboBox speed;
    QComboBox mode;
    bare.setOutlets(&list, &speed, &mode);
    bare.resize(600, 360);
    bare.awakeFromNib();
    const QImage drawn = bare.grab().toImage();
    EXPECT_EQ(drawn.pixelColor(240, 160), QColor(Qt::magenta));
    EXPECT_EQ(list.itemText(1), QStringLiteral("Monitor #1")) << "a missing text stands for itself";
    rzkBundle = bundle;
}

TEST_F(DisplayPage, darkWindowsHaveAGroundOnWhichBlackAndMagentaCanBeSeen)
{
    const QPoint onGround(560, 20);
    const QPalette before = QApplication::palette();
    const QColor light = draw().pixelColor(onGround * view().devicePixelRatioF());
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(0x20, 0x23, 0x26));
    view().setPalette(dark);
    const QColor ground = view().grab().toImage().pixelColor(onGround * view().devicePixelRatioF());
    EXPECT_GT(contrastRatio(ground, Qt::white), 2 * contrastRatio(light, Qt::white));
    for (const QColor& paper : {light, ground}) {
        EXPECT_GT(contrastRatio(paper, Qt::black), kGraphicsContrast);
        EXPECT_GT(contrastRatio(paper, Qt::magenta), 2);
    }
    view().setPalette(before);
    EXPECT_EQ(draw().pixelColor(onGround * view().devicePixelRatioF()), light);
}

TEST_F(DisplayPage, theWheelTurnsItsListsOnlyWithTheFocus)
{
    mWindow->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mWindow.get(), kPatience));
    for (const char* const name : {"mComboBox", "mComboBoxSpeed", "mComboBoxUseMode"}) {
        auto& box = outlet<QComboBox>(name);
        box.setCurrentIndex(0);
        const auto turn = [&box] {
            const QPointF middle = QRectF(box.rect()).center();
            QWheelEvent event(middle, box.mapToGlobal(middle.toPoint()), {}, {0, -120},
                Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&box, &event);
        };
        outlet<QWidget>("mMonitorView").setFocus();
        turn();
        EXPECT_EQ(box.currentIndex(), 0) << name;
        EXPECT_FALSE(box.hasFocus()) << name;
        EXPECT_TRUE(pushes().empty()) << name;
        box.setFocus();
        turn();
        EXPECT_EQ(box.currentIndex(), 1) << name;
        mEvents.sent.clear();
    }
}

TEST_F(DisplayPage, itsPictureIsReadWhenItIsMadeAndWhenTheThemeChanges)
{
    const QString copy = QDir(mHome.path()).filePath(QStringLiteral("backgroundregion.jpg"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(QVTBLT_STAGE_RESOURCES "/backgroundregion.jpg"), copy));
    const platform::Bundle bundle = rzkBundle;
    rzkBundle = platform::Bundle(mHome.path());
    QVMonitorView made;
    QVMonitorView neverDrawn;
    for (QVMonitorView* const picture : {&made, &neverDrawn}) {
        picture->resize(600, 360);
        picture->awakeFromNib();
    }
    ASSERT_TRUE(QFile::remove(copy)); // like a package update
    const auto drawn = [](QVMonitorView& picture) {
        return picture.grab().toImage().pixelColor(500, 300);
    };
    const QColor color = drawn(made);
    EXPECT_EQ(color, drawn(view()));
    QPalette palette = made.palette();
    palette.setColor(QPalette::Highlight, Qt::red);
    made.setPalette(palette);
    EXPECT_EQ(drawn(made), color) << "the theme is the same";
    palette.setColor(QPalette::Window, QColor(0x20, 0x23, 0x26));
    for (QVMonitorView* const picture : {&made, &neverDrawn}) {
        picture->setPalette(palette);
        EXPECT_NE(drawn(*picture), color) << "there is no picture for this one";
    }
    rzkBundle = bundle;
}
