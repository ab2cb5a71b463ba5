// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// A calibration from start to end: reports, pauses, alerts, pushes.

#include "QVCalibrateView.h"

#include "Alerts.h"
#include "FakeUsb.h"
#include "PaneTest.h"
#include "QVCalibrateWin.h"
#include "QVCalibration.h"
#include "SameImage.h"
#include "Wait.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <functional>

using namespace platform;

namespace {

/** Answers alerts at once. */
class FakeAlerts final : public Alerts {
public:
    std::int16_t runStandardAlert(const StandardAlert& alert, QWidget* parent) override
    {
        EXPECT_NE(parent, nullptr);
        shown.push_back(alert);
        if (whileOpen) {
            whileOpen();
        }
        return answer;
    }

    std::int16_t answer = kAlertStdAlertOKButton;
    std::vector<StandardAlert> shown;
    std::function<void()> whileOpen;

private:
    ServiceScope<Alerts> mScope{*this};
};

QByteArray report(std::uint32_t key, std::uint16_t x, std::uint16_t y)
{
    QByteArray bytes(12, '\x7f');
    std::memcpy(bytes.data(), &key, 4);
    std::memcpy(bytes.data() + 4, &x, 2);
    std::memcpy(bytes.data() + 6, &y, 2);
    return bytes;
}

/** Records the regions of a view that are painted. */
class PaintedRegions final : public QObject {
public:
    explicit PaintedRegions(QWidget& view) { view.installEventFilter(this); }

    /** Waits for that many regions, and for more that must not come. */
    void wait(std::size_t count)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return regions.size() >= count; }, kPatience));
        QTest::qWait(20);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            regions.push_back(static_cast<QPaintEvent*>(event)->region());
        }
        return QObject::eventFilter(watched, event);
    }

    std::vector<QRegion> regions;
};

class Calibration : public PaneTest {
protected:
    void SetUp() override
    {
        mDisplays.change({{0, 0, 1920, 1080}});
        PaneTest::SetUp();
        show();
        setAreaBefore();
        mEvents.sent.clear();
    }

    void start() { outlet<QPushButton>("mDoCalibrate").click(); }
    /** Starts a calibration whose next touches are far from the last one. */
    void startFarFromTheLastPoint()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        start();
        tap(40000, 40000);
        view().changenPointValue(-points());
        qvTabletInfo.Monitor.cTabletXmin = 0;
    }
    QVCalibrateWin* window()
    {
        const auto windows = mWindow->findChildren<QVCalibrateWin*>();
        return windows.isEmpty() || !windows.constFirst()->isVisible() ? nullptr
                                                                       : windows.constFirst();
    }
    void setAreaBefore() { QVSetUsedArea(qvTabletInfo, {11, 12, 13, 14}); }
    /** The calibration's view, at the size of the display. */
    QVCalibrateView& view()
    {
        EXPECT_NE(window(), nullptr);
        QVCalibrateView& found = window()->view();
        window()->resize(mSize); // smaller if a point is larger than a pixel
        found.resize(mSize);
        return found;
    }
    void deliverDirect(const AEDesc& direct)
    {
        AppleEvent event{kAECoreSuite, kAEGetData, {}, {{keyDirectObject, direct}}};
        AppleEvent reply;
        EXPECT_EQ(QVTabletGetDatahandler(event, reply, &view()), noErr);
        EXPECT_TRUE(reply.parameters.empty());
    }
    void deliver(const std::vector<QByteArray>& reports)
    {
        AEList list;
        for (const QByteArray& bytes : reports) {
            list.push_back({fourCharCode("rprt"), bytes});
        }
        deliverDirect({typeAEList, list});
    }
    void tap(std::uint16_t x, std::uint16_t y)
    {
        deliver({report(1, x, y)});
        deliver({report(0, x, y)});
    }
    void tapAllFour()
    {
        tap(1000, 800);
        tap(19200, 800);
        tap(19200, 10600);
        tap(1000, 10600);
    }
    /** Taps once more than needed; the last two taps are in one event. */
    void tapFiveTimes()
    {
        tap(1000, 800);
        tap(19200, 800);
        tap(19200, 10600);
        const QByteArray skipped;
        deliver({report(1, 1000, 10600), skipped, report(0, 1000, 10600), skipped,
            report(1, 40000, 40000), skipped, report(0, 40000, 40000)});
    }
    int points() { return view().changenPointValue(0); }
    static std::vector<int> area()
    {
        const auto& monitor = qvTabletInfo.Monitor;
        return {monitor.cTabletXmin, monitor.cTabletXmax, monitor.cTabletYmin, monitor.cTabletYmax};
    }
    std::vector<int> pushedFlags()
    {
        std::vector<int> flags;
        for (const tagQVTabletInfo& record : pushes()) {
            flags.push_back(record.Monitor.disableFlag);
        }
        return flags;
    }
    long sleeps() const { return std::count(mUsb.log.begin(), mUsb.log.end(), "sleep 1000"); }

    FakeAlerts mAlerts;
    FakeUsb mUsb; // for its sleep
    QSize mSize{1920, 1080};
    const std::vector<int> mBefore{11, 12, 13, 14};
    const std::vector<int> mCalibrated{500, 19700, 300, 11100};
};

} // namespace

TEST_F(Calibration, opensOneWindowAndTellsTheDriver)
{
    start();
    EXPECT_NE(window(), nullptr);
    EXPECT_EQ(pushedFlags(), std::vector<int>{1});
    EXPECT_EQ(points(), 0);
}

TEST_F(Calibration, startedAgainHasOneWindowAndStillCalibrates)
{
    start();
    const QPointer<QVCalibrateWin> first = window();
    start();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
    EXPECT_NE(window(), nullptr);
    EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 1}));
    leave();
    EXPECT_EQ(pushedFlags().back(), 0);
    EXPECT_EQ(window(), nullptr);
}

TEST_F(Calibration, withOneDisplayTheChosenItemDoesNotMatter)
{
    outlet<QComboBox>("mComboBox").setCurrentIndex(-1);
    start();
    EXPECT_NE(window(), nullptr);
}

TEST_F(Calibration, ofAllDisplaysTogetherOpensNothing)
{
    mDisplays.change({{0, 0, 1920, 1080}, {1920, 0, 800, 600}});
    outlet<QComboBox>("mComboBox").setCurrentIndex(0);
    outlet<QVMonitorView>("mMonitorView").DoCalibrate();
    EXPECT_EQ(window(), nullptr);
    EXPECT_TRUE(pushes().empty());
    EXPECT_EQ(+qvTabletInfo.Monitor.disableFlag, 1) << "it goes with the next push";
}

TEST_F(Calibration, withoutAMainDisplayIsNotStarted)
{
    mDisplays.change({{0, 0, 1920, 1080}, {1920, 0, 800, 600}});
    mDisplays.main = 7;
    outlet<QComboBox>("mComboBox").setCurrentIndex(2);
    testing::internal::CaptureStderr();
    start();
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("no display is the main one"), std::string::npos) << log;
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(+qvTabletInfo.Monitor.disableFlag, 0);
}

TEST_F(Calibration, coversTheChosenDisplayBesideTheMainOne)
{
    mDisplays.change({{0, 0, 800, 800}, {800, 100, 640, 480}});
    outlet<QComboBox>("mComboBox").setCurrentIndex(2);
    start();
    ASSERT_NE(window(), nullptr);
    // 220 points above the lower edge of the main display, which is the test's screen.
    const int height = QGuiApplication::primaryScreen()->geometry().height();
    EXPECT_EQ(window()->geometry(), QRect(800, height - 220 - 480, 640, 480));
    EXPECT_EQ(window()->view().size(), QSize(640, 480));
}

TEST_F(Calibration, coversTheMainDisplayWhereThereAreOthers)
{
    mDisplays.change({{0, 0, 800, 600}, {800, 100, 640, 480}});
    outlet<QComboBox>("mComboBox").setCurrentIndex(1);
    start();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->view().size(), QSize(800, 600));
    EXPECT_EQ(pushedFlags(), std::vector<int>{1});
}

TEST_F(Calibration, countsFromTheMainDisplayWhereverItLies)
{
    mDisplays.main = 1;
    mDisplays.change({{-640, 30, 640, 480}, {10, 20, 800, 800}});
    outlet<QComboBox>("mComboBox").setCurrentIndex(1);
    start();
    ASSERT_NE(window(), nullptr);
    // -640 + 10 to the right, and 20 + 800 - (30 + 480) above the lower edge
    const int height = QGuiApplication::primaryScreen()->geometry().height();
    EXPECT_EQ(window()->geometry(), QRect(-630, height - 310 - 480, 640, 480));
    EXPECT_EQ(pushedFlags(), std::vector<int>{1});
}

TEST_F(Calibration, ofADisplayThatIsNotListedOpensNothing)
{
    mDisplays.change({{0, 0, 800, 600}, {800, 100, 640, 480}});
    auto& list = outlet<QComboBox>("mComboBox");
    list.addItem(QStringLiteral("another"));
    list.setCurrentIndex(3);
    start();
    EXPECT_EQ(window(), nullptr);
    EXPECT_TRUE(pushes().empty());
}

TEST_F(Calibration, acceptedSetsTheAreaAndCloses)
{
    start();
    tapAllFour();
    ASSERT_EQ(mAlerts.shown.size(), 1U);
    EXPECT_EQ(mAlerts.shown[0].type, AlertType::Stop);
    EXPECT_TRUE(mAlerts.shown[0].hasCancelButton);
    EXPECT_EQ(mAlerts.shown[0].message,
        QStringLiteral("The tablet now fits the display. Keep this calibration?"));
    EXPECT_EQ(area(), mCalibrated);
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 0, 0}));
    EXPECT_EQ(sleeps(), 3) << "after the first point, after the last, and before the test";
}

TEST_F(Calibration, theNewAreaIsWithTheDriverBeforeTheUserConfirms)
{
    start();
    mAlerts.whileOpen = [this] {
        EXPECT_EQ(+pushes().back().Monitor.cTabletXmax, 19700);
        EXPECT_EQ(+pushes().back().Monitor.disableFlag, 0);
    };
    tapAllFour();
}

TEST_F(Calibration, cancelledGoesBackAndBeginsAgain)
{
    start();
    mAlerts.answer = kAlertStdAlertCancelButton;
    tapAllFour();
    EXPECT_EQ(area(), mBefore);
    EXPECT_NE(window(), nullptr);
    EXPECT_EQ(points(), 0);
    EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 0, 0, 0, 1}));
    mAlerts.answer = kAlertStdAlertOKButton;
    tapAllFour();
    EXPECT_EQ(area(), mCalibrated);
    EXPECT_EQ(window(), nullptr);
}

TEST_F(Calibration, takesTheDriversReportsFromItsBeginningOn)
{
    const std::pair key(kAECoreSuite, kAEGetData);
    mEvents.handlers.clear();
    start();
    ASSERT_EQ(mEvents.handlers.count(key), 1U);
    const auto send = [&](const QByteArray& bytes) {
        AppleEvent reply;
        return mEvents.handlers[key](
            {kAECoreSuite, kAEGetData, {},
                {{keyDirectObject, {typeAEList, AEList{{fourCharCode("rprt"), bytes}}}}}},
            reply);
    };
    EXPECT_EQ(send(report(1, 50000, 50000)), noErr);
    EXPECT_EQ(send(report(0, 50000, 50000)), noErr);
    EXPECT_EQ(points(), 1);
    view().uninstallTabletMsgHandle();
    EXPECT_TRUE(mEvents.handlers.empty());
}

TEST_F(Calibration, anAlertWithoutAnAnswerChangesNothingMore)
{
    start();
    mAlerts.answer = 0;
    tapAllFour();
    EXPECT_EQ(area(), mCalibrated);
    EXPECT_NE(window(), nullptr);
}

TEST_F(Calibration, afterAnAlertWithoutAnAnswerEachReportAsksAgain)
{
    start();
    mAlerts.answer = 0;
    tapAllFour();
    tap(5000, 5000);
    EXPECT_EQ(mAlerts.shown.size(), 3U);
    EXPECT_EQ(points(), 4);
    EXPECT_EQ(area(), mCalibrated) << "of the four points, not of the fifth";
}

TEST_F(Calibration, aLiftAfterTheFourthPointIsNoFifth)
{
    start();
    mAlerts.answer = 0;
    deliver({report(1, 5000, 5000)});
    view().changenPointValue(4);
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(mAlerts.shown.size(), 1U) << "the pass has ended";
}

TEST_F(Calibration, acceptedCountsFromTheFirstPointAgain)
{
    start();
    QVCalibrateView& last = view();
    tapAllFour();
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(last.changenPointValue(0), 0);
}

TEST_F(Calibration, pausesAfterTheFirstPointAndAfterTheLast)
{
    start();
    tap(1000, 800);
    EXPECT_EQ(sleeps(), 1);
    tap(19200, 800);
    tap(19200, 10600);
    EXPECT_EQ(sleeps(), 1);
    tap(1000, 10600);
    EXPECT_EQ(sleeps(), 3);
}

TEST_F(Calibration, inAnotherOrderIsAnErrorAndBeginsAgain)
{
    start();
    tap(19200, 800);
    tap(1000, 800);
    tap(1000, 10600);
    tap(19200, 10600);
    ASSERT_EQ(mAlerts.shown.size(), 1U);
    EXPECT_EQ(mAlerts.shown[0].type, AlertType::Caution);
    EXPECT_FALSE(mAlerts.shown[0].hasCancelButton);
    EXPECT_EQ(area(), mBefore);
    EXPECT_EQ(points(), 0);
    EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 0, 1}));
}

TEST_F(Calibration, onlyFromExactlyDownToExactlyUpIsALift)
{
    start();
    deliver({report(2, 5000, 5000)});
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(points(), 0);
    deliver({report(1, 5000, 5000)});
    deliver({report(7, 5000, 5000)});
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(points(), 0);
    deliver({report(1, 5000, 5000)});
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(points(), 1);
}

TEST_F(Calibration, beforeTheFirstReportOfAllThePenIsNotDown)
{
    start();
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(points(), 0);
}

TEST_F(Calibration, aLiftTooNearTheLastPointIsRefusedWithTheRestOfItsEvent)
{
    start();
    tap(30000, 30000); // far from the last point of any other test
    view().changenPointValue(-points());
    tap(5000, 5000);
    EXPECT_EQ(points(), 1);
    tap(10000, 999);
    EXPECT_EQ(points(), 1) << "the sums differ by 999 only";
    deliver({report(1, 5000, 5000), {}, report(0, 5000, 5000), {}, report(1, 9000, 9000), {},
        report(0, 9000, 9000)});
    EXPECT_EQ(points(), 1) << "the rest of the event is not read";
    // The pen still counts as down, so the next "up" report is a lift.
    deliver({report(0, 9000, 9000)});
    EXPECT_EQ(points(), 2);
}

TEST_F(Calibration, theFirstPointOfAnotherPassIsComparedWithTheLast)
{
    start();
    mAlerts.answer = kAlertStdAlertCancelButton;
    tapAllFour();
    tap(1000, 10600);
    EXPECT_EQ(points(), 0);
    tap(1000, 800);
    EXPECT_EQ(points(), 1);
}

TEST_F(Calibration, theFirstLiftOfAllIsTakenHoweverSmallItsCoordinates)
{
    start();
    tap(3, 4);
    EXPECT_EQ(points(), 1);
    tap(3, 4);
    EXPECT_EQ(points(), 1);
}

TEST_F(Calibration, afterAPointOnTheLeftEdgeNoneIsTooNear)
{
    start();
    tap(0, 30000);
    EXPECT_EQ(points(), 1);
    tap(0, 30000);
    EXPECT_EQ(points(), 2);
}

TEST_F(Calibration, onlyEveryOtherItemIsRead)
{
    start();
    deliver({report(1, 5000, 5000), report(0, 5000, 5000)});
    EXPECT_EQ(points(), 0) << "of two, only the first";
    deliver({report(1, 5000, 5000), report(3, 0, 0), report(0, 5000, 5000)});
    EXPECT_EQ(points(), 1) << "of three, the first and the third";
}

TEST_F(Calibration, aReportWithoutBytesIsNoLift)
{
    start();
    deliver({report(1, 5000, 5000), {}, {}});
    EXPECT_EQ(points(), 0) << "it leaves the pen down";
    deliver({{}});
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(points(), 0) << "alone, it leaves the pen neither down nor up";
    tap(5000, 5000);
    EXPECT_EQ(points(), 1);
}

TEST_F(Calibration, aShortReportIsReadAsFarAsItGoes)
{
    // 1000 is 0x03E8. The last of five bytes is the low one of x; the rest is from the previous
    // report.
    for (const QByteArray& bytes :
        {report(0, 0x77E8, 9999).left(5), report(0, 1000, 800).left(11)}) {
        startFarFromTheLastPoint();
        deliver({report(1, 1000, 800), {}, bytes});
        EXPECT_EQ(points(), 1) << bytes.size();
        tap(19200, 800);
        tap(19200, 10600);
        tap(1000, 10600);
        EXPECT_EQ(area(), mCalibrated) << bytes.size();
    }
}

TEST_F(Calibration, aLongReportIsReadToItsTwelfthByte)
{
    for (const int size : {13, 4096}) {
        startFarFromTheLastPoint();
        const QByteArray tail(size - 12, '\xff');
        for (const auto& [x, y] :
            {std::pair(1000, 800), {19200, 800}, {19200, 10600}, {1000, 10600}}) {
            for (const std::uint32_t key : {1U, 0U}) {
                deliver({report(key, static_cast<std::uint16_t>(x), static_cast<std::uint16_t>(y))
                    + tail});
            }
        }
        EXPECT_EQ(area(), mCalibrated) << size;
    }
}

TEST_F(Calibration, reportsOfAnySizeWithoutSenseTakeNoPoint)
{
    start();
    for (const int size : {0, 1, 4, 5, 8, 11, 12, 13, 4096}) {
        for (const char byte : {'\x01', '\x7f', '\xff'}) {
            deliver({QByteArray(size, byte)});
            deliver({QByteArray(size, byte), {}, QByteArray(size, byte)});
        }
    }
    EXPECT_EQ(points(), 0);
}

TEST_F(Calibration, anEmptyListChangesNothing)
{
    start();
    deliver({report(1, 5000, 5000)});
    deliverDirect({typeAEList, AEList{}});
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(points(), 1);
}

TEST_F(Calibration, of4096ItemsTheLastThatIsReadCounts)
{
    start();
    std::vector<QByteArray> reports(4096, report(1, 5000, 5000));
    deliver(reports);
    EXPECT_EQ(points(), 0);
    reports[4095] = report(0, 5000, 5000); // an even one
    deliver(reports);
    EXPECT_EQ(points(), 0);
    reports[4094] = report(0, 5000, 5000);
    deliver(reports);
    EXPECT_EQ(points(), 1);
}

TEST_F(Calibration, itemsThatAreListsAreNoReports)
{
    start();
    deliver({report(1, 5000, 5000)});
    deliverDirect({typeAEList, AEList{AEDesc{typeAEList, AEList{AEDesc{}}}}});
    deliver({report(0, 5000, 5000)});
    EXPECT_EQ(points(), 0) << "the pen was neither down nor up";
}

TEST_F(Calibration, aDirectObjectThatIsNoListIsLoggedAndHasNoReports)
{
    start();
    deliver({report(1, 5000, 5000)});
    testing::internal::CaptureStderr();
    deliverDirect({typeUTF8Text, report(0, 5000, 5000)});
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("rzk-count fail"), std::string::npos);
    EXPECT_EQ(log.find("rzk-get para fail"), std::string::npos);
    EXPECT_EQ(points(), 0);
}

TEST_F(Calibration, anEventWithoutADirectObjectIsLoggedAndHasNoReports)
{
    start();
    testing::internal::CaptureStderr();
    AppleEvent event;
    AppleEvent reply;
    EXPECT_EQ(QVTabletGetDatahandler(event, reply, &view()), noErr);
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("rzk-get para fail"), std::string::npos);
    EXPECT_NE(log.find("rzk-count fail"), std::string::npos);
    EXPECT_EQ(points(), 0);
}

TEST_F(Calibration, reportsWhileAnAlertIsOpenDoNoHarm)
{
    start();
    mAlerts.whileOpen = [this] {
        tap(3000, 3000);
        tap(9000, 9000);
        EXPECT_EQ(points(), 4);
    };
    tapAllFour();
    EXPECT_EQ(mAlerts.shown.size(), 1U);
    EXPECT_EQ(area(), mCalibrated);
}

TEST_F(Calibration, thePanelMayCloseUnderTheAlert)
{
    start();
    mAlerts.whileOpen = [this] { delete window(); };
    tap(1000, 800);
    tap(19200, 800);
    tap(19200, 10600);
    QVCalibrateView& last = view();
    AppleEvent reply;
    for (const std::uint32_t key : {1U, 0U}) {
        AppleEvent event{kAECoreSuite, kAEGetData, {},
            {{keyDirectObject,
                {typeAEList, AEList{AEDesc{fourCharCode("rprt"), report(key, 1000, 10600)}}}}}};
        EXPECT_EQ(QVTabletGetDatahandler(event, reply, &last), noErr);
    }
    EXPECT_EQ(window(), nullptr);
}

TEST_F(Calibration, escapeEndsItAtEachPoint)
{
    for (int taken = 0; taken < 4; ++taken) {
        mEvents.sent.clear();
        start();
        const std::array<QVTabletPoint, 3> touched{{{1000, 800}, {19200, 800}, {19200, 10600}}};
        // Far from the last point of the previous round.
        tap(static_cast<std::uint16_t>(40000 + 2000 * taken), 20000);
        view().changenPointValue(-1);
        for (int i = 0; i < taken; ++i) {
            tap(touched[static_cast<std::size_t>(i)].x, touched[static_cast<std::size_t>(i)].y);
        }
        EXPECT_EQ(points(), taken);
        QTest::keyClick(window(), Qt::Key_Escape);
        EXPECT_EQ(window(), nullptr);
        EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 0}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Calibration, theKeysSAndEShowAndEraseTheFirstCrossOnly)
{
    start();
    tap(1000, 800);
    const QImage second = view().grab().toImage();
    QTest::keyClick(window(), Qt::Key_S);
    const QImage first = view().grab().toImage();
    EXPECT_NE(first, second);
    QTest::keyClick(window(), Qt::Key_E);
    EXPECT_NE(view().grab().toImage(), first);
    EXPECT_EQ(points(), 1);
    tap(19200, 800);
    EXPECT_EQ(points(), 2);
}

TEST_F(Calibration, aTranslucentViewStaysSoWhenItIsDrawnOverItself)
{
    start();
    view().setOpacity(0.7);
    QImage image(view().size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int i = 0; i < 3; ++i) {
        view().render(&image, {}, {}, QWidget::RenderFlags());
        EXPECT_EQ(image.pixelColor(image.rect().center()).alpha(), 179);
        EXPECT_EQ(image.pixelColor(5, 5), QColor(255, 255, 0, 179));
    }
}

TEST_F(Calibration, afterTheKeySTheNextLiftIsStillTheNextPoint)
{
    start();
    tap(1000, 800);
    tap(19200, 800);
    QTest::keyClick(window(), Qt::Key_S);
    tap(19200, 10600);
    tap(1000, 10600);
    EXPECT_EQ(area(), mCalibrated);
}

TEST_F(Calibration, itsWindowHasNoBorderButTheKeyboard)
{
    start();
    EXPECT_TRUE(window()->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(view().focusPolicy(), Qt::ClickFocus) << "a screen reader says what has the focus";
    EXPECT_TRUE(QTest::qWaitForWindowActive(window(), kPatience));
}

TEST_F(Calibration, keysCountByTheirPlaceNotByWhatIsOnThem)
{
    start();
    tap(1000, 800);
    const QImage second = view().grab().toImage();
    const auto press = [this](int scanCode, Qt::Key key) {
        QKeyEvent event(
            QEvent::KeyPress, key, Qt::NoModifier, static_cast<quint32>(scanCode), 0, 0);
        QCoreApplication::sendEvent(window(), &event);
    };
    press(40, Qt::Key_S); // beside it
    EXPECT_EQ(view().grab().toImage(), second);
    press(39, Qt::Key_O);
    const QImage first = view().grab().toImage();
    EXPECT_NE(first, second);
    press(26, Qt::Key_Period);
    EXPECT_NE(view().grab().toImage(), first);
    press(9, Qt::Key_CapsLock);
    EXPECT_EQ(window(), nullptr);
}

TEST_F(Calibration, whatMeansEscapeEndsItWhereverItLies)
{
    start();
    QKeyEvent event(
        QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, 66, 0, 0); // the position of Caps Lock
    QCoreApplication::sendEvent(window(), &event);
    EXPECT_TRUE(event.isAccepted()) << "nobody else uses it";
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 0}));
}

TEST_F(Calibration, closingItsWindowByOtherMeansFreesTheDriver)
{
    start();
    window()->close();
    EXPECT_EQ(window(), nullptr);
    leave(); // before the window is deleted
    EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 0})) << "once";
}

TEST_F(Calibration, leavingThePanelEndsIt)
{
    start();
    leave();
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(pushedFlags(), (std::vector<int>{1, 0}));
    EXPECT_EQ(+recordInFile().Monitor.disableFlag, 0);
}

TEST_F(Calibration, thePanelLeftUnderEitherAlertHasTheAreaFromBefore)
{
    // Neither the alert's answer then nor its absence changes anything.
    for (const bool isInOrder : {true, false}) {
        for (const int answer : {0, 1, 2}) {
            mEvents.sent.clear();
            mAlerts.shown.clear();
            startFarFromTheLastPoint();
            setAreaBefore();
            mAlerts.answer = static_cast<std::int16_t>(answer);
            std::size_t pushed = 0;
            mAlerts.whileOpen = [&] {
                leave();
                EXPECT_EQ(window(), nullptr);
                pushed = pushes().size();
            };
            if (isInOrder) {
                tapAllFour();
            } else {
                tap(19200, 10600);
                tap(1000, 10600);
                tap(1000, 800);
                tap(19200, 800);
            }
            ASSERT_EQ(mAlerts.shown.size(), 1U);
            ASSERT_EQ(pushes().size(), pushed) << "nothing follows the alert";
            EXPECT_EQ(pushedFlags().back(), 0);
            EXPECT_EQ(area(), mBefore);
            EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
            EXPECT_EQ(+qvTabletInfo.Monitor.disableFlag, 0);
            const auto& monitor = recordInFile().Monitor;
            EXPECT_EQ((std::vector<int>{monitor.cTabletXmin, monitor.cTabletXmax,
                          monitor.cTabletYmin, monitor.cTabletYmax}),
                mBefore);
            EXPECT_EQ(+monitor.disableFlag, 0);
            show();
            setAreaBefore();
        }
    }
}

TEST_F(Calibration, endedWithoutAPushLeavesTheDriverAlone)
{
    auto& page = outlet<QVMonitorView>("mMonitorView");
    start();
    tap(40000, 40000);
    page.endCalibration(false);
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(+qvTabletInfo.Monitor.disableFlag, 0);
    EXPECT_EQ(pushedFlags(), std::vector<int>{1});

    startFarFromTheLastPoint();
    setAreaBefore();
    mEvents.sent.clear();
    std::size_t pushed = 0;
    mAlerts.whileOpen = [&] {
        pushed = pushes().size();
        page.endCalibration(false);
    };
    tapAllFour();
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(pushes().size(), pushed);
    EXPECT_EQ(+qvTabletInfo.Monitor.disableFlag, 0);
    EXPECT_EQ(area(), mBefore);
}

TEST_F(Calibration, endedAfterAnAlertWithoutAnAnswerTakesTheAreaBack)
{
    start();
    mAlerts.answer = 0;
    tapAllFour();
    tap(5000, 5000); // asks again
    EXPECT_EQ(area(), mCalibrated);
    leave();
    EXPECT_EQ(area(), mBefore);
    EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
}

TEST_F(Calibration, endedAfterACancelledPassKeepsWhatThePageHasSetSince)
{
    start();
    mAlerts.answer = kAlertStdAlertCancelButton;
    tapAllFour();
    qvTabletInfo.Monitor.cTabletXmin = 77;
    leave();
    EXPECT_EQ(+qvTabletInfo.Monitor.cTabletXmin, 77);
}

TEST_F(Calibration, theAlertsHaveTitles)
{
    start();
    mAlerts.answer = kAlertStdAlertCancelButton;
    tapAllFour();
    tap(19200, 10600);
    tap(1000, 10600);
    tap(1000, 800);
    tap(19200, 800);
    ASSERT_EQ(mAlerts.shown.size(), 2U);
    EXPECT_EQ(mAlerts.shown[0].title, QStringLiteral("Calibration finished"));
    EXPECT_EQ(mAlerts.shown[1].title, QStringLiteral("Calibration failed"));
}

TEST_F(Calibration, reportsAfterItsEndCountNoMore)
{
    const std::pair key(kAECoreSuite, kAEGetData);
    const auto late = [&](std::uint32_t state, std::uint16_t x, std::uint16_t y) {
        AppleEvent reply;
        EXPECT_EQ(mEvents.handlers[key](
                      {kAECoreSuite, kAEGetData, {},
                          {{keyDirectObject,
                              {typeAEList, AEList{{fourCharCode("rprt"), report(state, x, y)}}}}}},
                      reply),
            noErr);
    };
    startFarFromTheLastPoint();
    setAreaBefore();
    tap(1000, 800);
    tap(19200, 800);
    tap(19200, 10600);
    const QPointer<QVCalibrateView> last = &view();
    window()->close();
    mEvents.sent.clear();
    late(1, 1000, 10600);
    late(0, 1000, 10600);
    ASSERT_FALSE(last.isNull());
    EXPECT_EQ(last->changenPointValue(0), 3);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(last.isNull());
    late(1, 1000, 10600);
    late(0, 1000, 10600);
    EXPECT_TRUE(mAlerts.shown.empty());
    EXPECT_TRUE(pushes().empty());
    EXPECT_EQ(area(), mBefore);
}

TEST_F(Calibration, reportsInTheEventThatEndsItCountNoMore)
{
    startFarFromTheLastPoint();
    QVCalibrateView& last = view();
    tapFiveTimes();
    EXPECT_EQ(mAlerts.shown.size(), 1U);
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(last.changenPointValue(0), 0);
}

TEST_F(Calibration, reportsInTheEventThatBeginsItAgainCount)
{
    startFarFromTheLastPoint();
    mAlerts.answer = kAlertStdAlertCancelButton;
    tapFiveTimes();
    EXPECT_EQ(mAlerts.shown.size(), 1U);
    EXPECT_EQ(points(), 1);
}

TEST_F(Calibration, anotherGoesOnFromWhereTheLastOneEnded)
{
    startFarFromTheLastPoint();
    tap(1000, 800);
    tap(19200, 800);
    deliver({report(1, 19200, 10600)});
    QTest::keyClick(window(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    start();
    EXPECT_EQ(points(), 0);
    deliver({report(0, 19200, 800)});
    EXPECT_EQ(points(), 0) << "the pen was down: a lift, but too near the last point";
    deliver({report(0, 19200, 10600)});
    EXPECT_EQ(points(), 1) << "it still counts as down";
}

TEST_F(Calibration, thePointsOfTheLastOneAreKeptUntilTheyAreTakenAnew)
{
    startFarFromTheLastPoint();
    tap(1000, 800);
    tap(19200, 800);
    QTest::keyClick(window(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    start();
    view().changenPointValue(2);
    tap(19200, 10600);
    tap(1000, 10600);
    EXPECT_EQ(area(), mCalibrated);
}

TEST_F(Calibration, theDriverIsToldOfTheEndBeforeThePauseAndTheAreaAfterIt)
{
    struct Pauses final : Sleep {
        void sleepFor(std::chrono::milliseconds) override
        {
            if (whenAsleep) {
                whenAsleep();
            }
        }
        std::function<void()> whenAsleep;
        ServiceScope<Sleep> scope{*this};
    } pauses;
    std::vector<std::size_t> pushed;
    std::vector<int> taken;
    startFarFromTheLastPoint();
    mEvents.sent.clear();
    pauses.whenAsleep = [&] {
        pushed.push_back(pushes().size());
        taken.push_back(points());
    };
    tapAllFour();
    EXPECT_EQ(taken, (std::vector{1, 4, 4}));
    EXPECT_EQ(pushed, (std::vector<std::size_t>{0, 0, 1}));
    EXPECT_EQ(pushedFlags(), (std::vector<int>{0, 0}));
    EXPECT_EQ(+pushes()[0].Monitor.cTabletXmax, mBefore[1]);
    EXPECT_EQ(+pushes()[1].Monitor.cTabletXmax, mCalibrated[1]);
}

TEST_F(Calibration, duringThePauseAfterTheFirstPointNoCrossIsShownNext)
{
    struct Pauses final : Sleep {
        void sleepFor(std::chrono::milliseconds) override
        {
            if (whenAsleep) {
                std::exchange(whenAsleep, nullptr)();
            }
        }
        std::function<void()> whenAsleep;
        ServiceScope<Sleep> scope{*this};
    } pauses;
    startFarFromTheLastPoint();
    view().setDrawEraseFlag(0);
    const QImage none = view().grab().toImage();
    QImage during;
    pauses.whenAsleep = [&] { during = view().grab().toImage(); };
    tap(1000, 800);
    EXPECT_EQ(during, none) << "cross 0 is erased before, cross 1 drawn after";
}

TEST_F(Calibration, edgesAreCutOffTowardZero)
{
    startFarFromTheLastPoint();
    tap(1013, 811);
    tap(19207, 797);
    tap(19188, 10613);
    tap(998, 10607);
    EXPECT_EQ(area(), (std::vector{505, 19696, 303, 11110}));
}

TEST_F(Calibration, anEdgeBeyondSixteenBitsIsSentAsTheLowOnes)
{
    startFarFromTheLastPoint();
    mSize = {400, 400};
    tap(1400, 800);
    tap(60200, 800);
    tap(60200, 10600);
    tap(1400, 10600);
    // 60200 + 58800 * 50 / 300 is 70000
    EXPECT_EQ(+pushes().back().Monitor.cTabletXmax, 4464);
}

TEST_F(Calibration, withOneDisplayThatOneIsCovered)
{
    mDisplays.change({{0, 0, 800, 600}, {800, 100, 640, 480}});
    outlet<QComboBox>("mComboBox").setCurrentIndex(2);
    mDisplays.change({{0, 0, 700, 500}});
    outlet<QComboBox>("mComboBox").setCurrentIndex(-1);
    start();
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->view().size(), QSize(700, 500));
}

TEST_F(Calibration, itsWindowHasATitleForListsOfWindows)
{
    start();
    EXPECT_EQ(window()->windowTitle(), QStringLiteral("Calibration"));
}

TEST_F(Calibration, itsWindowLetsTheDesktopShineThrough)
{
    start();
    EXPECT_NEAR(window()->windowOpacity(), 0.7, 0.01);
}

TEST_F(Calibration, itsWindowFillsTheScreenOfADisplay)
{
    const Rect screen = platform::screenBounds(*QGuiApplication::primaryScreen());
    mDisplays.change({{0, 0, screen.width + 1, screen.height}});
    start();
    EXPECT_FALSE(window()->isFullScreen()) << "the screen is smaller than the display";
    leave();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mDisplays.change({{0, 0, screen.width, screen.height}});
    show();
    start();
    EXPECT_TRUE(window()->isFullScreen());
}

TEST_F(Calibration, saysNothingOfACrossThatIsErased)
{
    start();
    view().setDrawEraseFlag(QVCalibrateView::kDrawCross);
    EXPECT_FALSE(view().spokenContents().isEmpty());
    for (const int flag : {QVCalibrateView::kDrawCross + 4, QVCalibrateView::kEraseCross}) {
        view().setDrawEraseFlag(flag);
        EXPECT_TRUE(view().spokenContents().isEmpty()) << flag;
    }
}

TEST_F(Calibration, itsWindowStaysOnTop)
{
    start();
    EXPECT_TRUE(window()->windowFlags() & Qt::WindowStaysOnTopHint);
}

TEST_F(Calibration, escapeInAWindowThatIsNobodysGoesOn)
{
    start();
    QWidget other;
    window()->sethCalibrateWin(&other);
    mEvents.sent.clear();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(window(), &escape);
    EXPECT_FALSE(escape.isAccepted()) << "others may use it";
    EXPECT_NE(window(), nullptr);
    EXPECT_TRUE(pushes().empty());
    {
        QWidget gone;
        window()->sethCalibrateWin(&gone);
    }
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_NE(window(), nullptr);
    EXPECT_TRUE(pushes().empty());
}

// Drawing, at the densities 1 and 2 ---------------------------------------------------------------

TEST_F(Calibration, drawsEachCrossAndTheHintAsPlainPainterCallsDo)
{
    // From the lower left corner of a display of 1920 by 1080 points, y growing upwards.
    struct Cross {
        QLineF across;
        QLineF along;
    };
    const std::array<Cross, 4> crosses{{
        {{25, 1030, 75, 1030}, {50, 1055, 50, 1005}},
        {{1845, 1030, 1895, 1030}, {1870, 1055, 1870, 1005}},
        {{1845, 50, 1895, 50}, {1870, 75, 1870, 25}},
        {{25, 50, 75, 50}, {50, 75, 50, 25}},
    }};
    start();
    const double density = view().devicePixelRatioF();
    for (const int flag : {16, 17, 18, 19, 32, 33, 34, 35, 0, 15, 20, 31, 36, -1}) {
        QImage expected(
            (QSizeF(1920, 1080) * density).toSize(), QImage::Format_ARGB32_Premultiplied);
        expected.setDevicePixelRatio(density);
        expected.fill(Qt::yellow);
        QPainter painter(&expected);
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setBold(true);
        font.setPixelSize(40);
        painter.setFont(font);
        painter.setPen(QColor::fromRgbF(1.0F, 0.2F, 0.2F, 0.6F));
        painter.drawText(QPointF(460, 540 - painter.fontMetrics().descent()),
            QStringLiteral("Touch the cross with the pen. Esc cancels."));
        painter.translate(0, 1080);
        painter.scale(1, -1);
        if (flag >= 16 && flag <= 19) {
            const Cross& cross = crosses[static_cast<std::size_t>(flag) - 16];
            painter.setPen(QPen(Qt::red, 1, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(cross.across);
            painter.drawLine(cross.along);
        }
        painter.end();

        view().setDrawEraseFlag(flag);
        const QImage drawn = view().grab().toImage();
        SCOPED_TRACE(testing::Message() << flag << " at density " << density);
        expectSameImage(drawn, expected);
    }
}

TEST_F(Calibration, eachPointIsFollowedByTheNextCross)
{
    startFarFromTheLastPoint();
    const std::array<QPoint, 3> taps{{{1000, 800}, {19200, 800}, {19200, 10600}}};
    for (std::size_t point = 0; point < taps.size(); ++point) {
        tap(static_cast<std::uint16_t>(taps[point].x()),
            static_cast<std::uint16_t>(taps[point].y()));
        const QImage shown = view().grab().toImage();
        view().setDrawEraseFlag(17 + static_cast<int>(point));
        EXPECT_EQ(shown, view().grab().toImage()) << point;
    }
}

TEST_F(Calibration, afterTheLastPointNoCrossIsShownAndThenTheFirst)
{
    startFarFromTheLastPoint();
    view().setDrawEraseFlag(16);
    const QImage first = view().grab().toImage();
    view().setDrawEraseFlag(0);
    const QImage none = view().grab().toImage();
    EXPECT_NE(first, none);
    QImage below;
    mAlerts.whileOpen = [&] { below = view().grab().toImage(); };
    mAlerts.answer = kAlertStdAlertCancelButton;
    tapAllFour();
    EXPECT_EQ(below, none);
    EXPECT_EQ(view().grab().toImage(), first);
}

TEST_F(Calibration, theErasedCrossesRectangleHasTheHintWhereThatPutsIt)
{
    // Each rectangle, clipped to the view, from the upper left corner: a cross's height above the
    // cross.
    const std::array<QRect, 4> rectangles{{
        {25, 0, 50, 25},
        {1845, 0, 50, 25},
        {1845, 1080 - 125, 50, 50},
        {25, 1080 - 125, 50, 50},
    }};
    start();
    const double density = view().devicePixelRatioF();
    view().setDrawEraseFlag(0);
    const QImage none = view().grab().toImage();
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setBold(true);
    font.setPixelSize(40);
    for (int cross = 0; cross < 4; ++cross) {
        const QRect& part = rectangles[static_cast<std::size_t>(cross)];
        QImage expected = none.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&expected);
        painter.setClipRect(part);
        painter.fillRect(part, Qt::yellow);
        painter.setFont(font);
        painter.setPen(QColor::fromRgbF(1.0F, 0.2F, 0.2F, 0.6F));
        painter.drawText(QPointF(part.x() + part.width() * 0.5 - 500,
                             part.y() + part.height() * 0.5 - painter.fontMetrics().descent()),
            QStringLiteral("Touch the cross with the pen. Esc cancels."));
        painter.end();
        EXPECT_NE(expected.convertToFormat(QImage::Format_RGB32),
            none.convertToFormat(QImage::Format_RGB32));

        view().setDrawEraseFlag(32 + cross);
        view().grab();
        for (int again = 0; again < 3; ++again) {
            EXPECT_EQ(view().grab().toImage().convertToFormat(QImage::Format_RGB32),
                expected.convertToFormat(QImage::Format_RGB32))
                << cross << " at density " << density;
        }
    }
}

TEST_F(Calibration, drawsTheErasedCrossesRectangleOnceMore)
{
    // From the upper left corner: each reaches from a cross's height above the cross to its own
    // lower edge there, as far as the display does.
    const std::array<QRect, 4> rectangles{{
        {25, 0, 50, 25},
        {1845, 0, 50, 25},
        {1845, 1080 - 125, 50, 50},
        {25, 1080 - 125, 50, 50},
    }};
    start();
    PaintedRegions painted(view());
    for (int cross = 0; cross < 4; ++cross) {
        QTest::qWait(20);
        painted.regions.clear();
        view().setDrawEraseFlag(32 + cross);
        painted.wait(2);
        ASSERT_GE(painted.regions.size(), 2U);
        EXPECT_EQ(painted.regions[0].boundingRect(), view().rect());
        EXPECT_EQ(painted.regions[1].boundingRect(), rectangles[static_cast<std::size_t>(cross)])
            << cross;
        EXPECT_EQ(painted.regions.size(), 2U) << "and no more";
    }
    for (const int none : {31, 36}) {
        QTest::qWait(20);
        painted.regions.clear();
        view().setDrawEraseFlag(none);
        painted.wait(1);
        EXPECT_EQ(painted.regions.size(), 1U) << none;
    }
}
