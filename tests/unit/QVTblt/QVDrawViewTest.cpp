// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The drawing pad: events of pen and mouse, strokes, statistics.

#include "QVDrawView.h"

#include "DragMouse.h"
#include "PaneTest.h"
#include "PenInput.h"
#include "QVNSView.h"
#include "QVPenStats.h"
#include "SameImage.h"
#include "WatchedEvents.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineF>
#include <QLocale>
#include <QMouseEvent>
#include <QPainterPath>
#include <QPushButton>
#include <QRegion>
#include <QTabWidget>
#include <QTest>

#include <cmath>
#include <limits>

using platform::Event;
using platform::EventType;

namespace {

constexpr QSize kPad(400, 300);

/** Paints the expected step of a stroke, in plain painter calls; points are from the upper left. */
void paintStep(QPainter& painter, QPointF from, QPointF to, double width, QColor color = Qt::black)
{
    from.setY(kPad.height() - from.y());
    to.setY(kPad.height() - to.y());
    if (from == to) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(to, width / 2, width / 2);
        return;
    }
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(from, to);
}

/** An empty pad, to paint the expected picture in plain painter calls. */
struct EmptyPad final : Canvas {
    explicit EmptyPad(const QWidget& pad)
        : Canvas(kPad, pad.devicePixelRatioF())
    {
        painter.fillRect(QRectF({0, 0}, kPad), Qt::lightGray);
        platform::frameRect(painter, {0, 0, double(kPad.width()), double(kPad.height())});
    }
};

class DrawingPad : public PaneTest {
protected:
    void SetUp() override
    {
        PaneTest::SetUp();
        show();
        showPage("penPage");
        pad().setFixedSize(kPad);
        PenInput::deliver();
        platform::notifications().addObserver(
            mOwner, kStatsUpdatedNotification, [this](const platform::Notification& notification) {
                EXPECT_EQ(notification.object, &pad());
                EXPECT_TRUE(notification.userInfo.isEmpty());
                ++mUpdates;
            });
    }

    QVDrawView& pad() { return outlet<QVDrawView>("mDrawView"); }
    QString raw() { return outlet<QLabel>("txtRawTabletPressure").text(); }
    QString line() { return outlet<QVPenStats>("mPenStats").text(); }
    /** The pad's picture. */
    QImage shown() { return pad().grab().toImage(); }
    void expectShown(Canvas& canvas)
    {
        canvas.painter.end();
        expectSameImage(shown(), canvas.image);
    }
    /** The pad shows black lines of the fixed width, each from its first point to its last. */
    void expectLines(const std::vector<QLineF>& lines)
    {
        EmptyPad expected(pad());
        for (const QLineF& line : lines) {
            paintStep(expected.painter, line.p1(), line.p2(), 25);
        }
        expectShown(expected);
    }
    void drawLine(const QPointF& from, const QPointF& to)
    {
        pen().press(from, 1);
        pen().move(to, 1);
        pen().release(to);
    }
    /** Where an event is that is at a point of the pad, from its upper left corner. */
    QPointF inWindow(const QPoint& at)
    {
        const QPoint place = pad().mapTo(mWindow.get(), at);
        return {double(place.x()), double(mWindow->height() - place.y())};
    }
    void useFixedWidth() { outlet<QCheckBox>("mAdjustSize").click(); }
    void comeIntoReach(platform::PointingDeviceType type)
    {
        auto event = std::make_shared<Event>();
        event->type = EventType::TabletProximity;
        event->pointingDeviceType = type;
        event->isEnteringProximity = true;
        QVPostProximity(*mWindow, event);
    }

    PenInput& pen()
    {
        if (!mPen) {
            mPen = std::make_unique<PenInput>(pad(), 77);
        }
        return *mPen;
    }

    QObject mOwner;
    int mUpdates = 0;

private:
    std::unique_ptr<PenInput> mPen;
};

} // namespace

// What is drawn ----------------------------------------------------------------------------------

TEST_F(DrawingPad, drawsItsGroundAndFrame)
{
    expectLines({});
}

TEST_F(DrawingPad, drawsADotForAFirstEventAtThePress)
{
    pen().press({100, 50}, 1);
    pen().move({100, 50}, 1);
    PenInput::deliver();
    EmptyPad expected(pad());
    paintStep(expected.painter, {100, 50}, {100, 50}, 50 / 9.0);
    expectShown(expected);
    EXPECT_EQ(raw(), QStringLiteral("7281.67")) << "65535 times the smoothed pressure";
}

TEST_F(DrawingPad, drawsAStrokeWhoseWidthFollowsTheSmoothedPressure)
{
    pen().press({20, 20}, 1);
    EmptyPad expected(pad());
    std::array<float, 8> history{};
    QPointF last(20, 20);
    for (int i = 1; i <= 30; ++i) {
        const QPointF to(20 + 10 * i, 20 + 5 * i);
        pen().move(to, 1);
        float sum = 1;
        for (const float value : history) {
            sum += value;
        }
        std::rotate(history.begin(), history.begin() + 1, history.end());
        history.back() = sum / 9.0F;
        paintStep(expected.painter, last, to, 50 * history.back());
        last = to;
    }
    EXPECT_GT(history.back(), 0.5F);
    PenInput::deliver();
    pen().release(last);
    PenInput::deliver();
    expectShown(expected);
}

TEST_F(DrawingPad, drawsWithOpacityThatFollowsThePressure)
{
    useFixedWidth();
    outlet<QCheckBox>("mAdjustOpacity").click();
    pen().press({50, 50}, 0.5);
    pen().move({300, 50}, 0.25);
    pen().release({300, 50});
    PenInput::deliver();
    EmptyPad expected(pad());
    paintStep(expected.painter, {50, 50}, {300, 50}, 25, QColor::fromRgbF(0, 0, 0, 0.25));
    expectShown(expected);
}

TEST_F(DrawingPad, withBothTheOpacityFollowsTheSmoothedPressureToo)
{
    outlet<QCheckBox>("mAdjustOpacity").click();
    pen().press({50, 50}, 1);
    pen().move({300, 50}, 0.9);
    pen().release({300, 50});
    PenInput::deliver();
    const float smoothed = 0.9F / 9;
    EmptyPad expected(pad());
    paintStep(
        expected.painter, {50, 50}, {300, 50}, 50 * smoothed, QColor::fromRgbF(0, 0, 0, smoothed));
    expectShown(expected);
}

TEST_F(DrawingPad, drawsAThousandMovesEachOnce)
{
    outlet<QCheckBox>("mAdjustOpacity").click(); // drawing twice is darker
    useFixedWidth();
    pen().press({20, 150}, 0.1);
    EmptyPad expected(pad());
    QPointF last(20, 150);
    for (int i = 1; i <= 1000; ++i) {
        const QPointF to(20 + 0.36 * i, 150 + 100 * std::sin(i / 30.0));
        const double pressure = 0.002 * (i % 20 + 1);
        pen().xTilt = i % 60;
        pen().move(to, pressure);
        if (i % 37 == 0) {
            PenInput::deliver(); // so that they come in many batches
        }
        const auto alpha = static_cast<float>(pressure);
        paintStep(expected.painter, last, to, 25, QColor::fromRgbF(0, 0, 0, alpha));
        last = to;
    }
    pen().release(last);
    PenInput::deliver();
    expectShown(expected);
}

TEST_F(DrawingPad, drawsGreyWithTheEraserAndBlackWithTheTip)
{
    useFixedWidth();
    drawLine({50, 50}, {200, 50});
    pen().turn();
    drawLine({100, 20}, {100, 80});
    PenInput::deliver();
    EXPECT_TRUE(pad().isErasing());
    EmptyPad expected(pad());
    paintStep(expected.painter, {50, 50}, {200, 50}, 25);
    paintStep(expected.painter, {100, 20}, {100, 80}, 25, Qt::lightGray);
    pen().turn();
    drawLine({300, 20}, {300, 80});
    PenInput::deliver();
    EXPECT_FALSE(pad().isErasing());
    paintStep(expected.painter, {300, 20}, {300, 80}, 25);
    expectShown(expected);
}

TEST_F(DrawingPad, anEraserThatHoversWhileThePenIsDownDoesNotStick)
{
    useFixedWidth();
    PenInput eraser(pad(), 88, PenInput::End::Eraser);
    pen().press({50, 50}, 1);
    PenInput::deliver();
    eraser.hover({300, 250});
    pen().move({150, 50}, 1);
    PenInput::deliver();
    pen().release({150, 50});
    PenInput::deliver();
    EXPECT_TRUE(pad().isErasing()) << "the eraser was the last that came";
    drawLine({50, 150}, {150, 150});
    PenInput::deliver();
    EXPECT_FALSE(pad().isErasing());
    expectLines({{50, 50, 150, 50}, {50, 150, 150, 150}});
}

TEST_F(DrawingPad, anEraserThatHoversDoesNotStickEvenWhenAllArrivesTogether)
{
    useFixedWidth();
    PenInput eraser(pad(), 88, PenInput::End::Eraser);
    pen().press({50, 50}, 1);
    eraser.hover({300, 250});
    eraser.hover({301, 250});
    pen().move({150, 50}, 1);
    pen().release({150, 50});
    drawLine({50, 150}, {150, 150});
    PenInput::deliver();
    EXPECT_FALSE(pad().isErasing());
    expectLines({{50, 50, 150, 50}, {50, 150, 150, 150}});
}

TEST_F(DrawingPad, anEraserThatCameWhileThePaneWasHiddenErasesFromItsFirstEventOn)
{
    pen().hover({5, 5});
    PenInput::deliver();
    leave();
    PenInput eraser(pad(), 77, PenInput::End::Eraser);
    eraser.enter();
    PenInput::deliver();
    EXPECT_FALSE(pad().isErasing());
    show();
    eraser.hover({5, 5});
    PenInput::deliver();
    EXPECT_TRUE(pad().isErasing());
}

// Width, history, pressure -----------------------------------------------------------------------

TEST_F(DrawingPad, atSteadyPressureTheWidthRisesFromRestAndTheHistoryEndsWithTheStroke)
{
    for (int stroke = 0; stroke < 2; ++stroke) {
        pen().press({10, 10}, 1);
        pen().move({11, 10}, 1);
        PenInput::deliver();
        EXPECT_EQ(raw(), QStringLiteral("7281.67"));
        pen().move({12, 10}, 1);
        PenInput::deliver();
        EXPECT_EQ(raw(), QStringLiteral("8090.74"));
        for (int i = 0; i < 2000; ++i) {
            pen().move(QPointF(13 + 0.1 * i, 10), 1);
        }
        PenInput::deliver();
        EXPECT_NEAR(raw().toDouble(), 65535, 0.1) << "as near as single precision comes";
        pen().release({213, 10});
        PenInput::deliver();
    }
}

TEST_F(DrawingPad, thePressureIsShownInTheLocalesFormInOnePiece)
{
    QLocale::setDefault(QLocale(QLocale::German));
    useFixedWidth();
    pen().press({50, 50}, 0.5);
    pen().move({300, 200}, 0.5);
    PenInput::deliver();
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(raw(), QStringLiteral("32767,5"));
}

TEST_F(DrawingPad, aPressLeavesThePressureThatIsShownAlone)
{
    pen().hover({50, 50});
    PenInput::deliver();
    EXPECT_EQ(raw(), QStringLiteral("0"));
    const int before = mUpdates;
    pen().press({50, 50}, 0.5);
    PenInput::deliver();
    EXPECT_EQ(raw(), QStringLiteral("0"));
    EXPECT_EQ(mUpdates, before);
}

TEST_F(DrawingPad, keepsThePressureOfADragThatUpdatesTheStatistics)
{
    Event drag;
    drag.type = EventType::LeftMouseDragged;
    drag.pressure = 0.375F;
    pad().mouseDragged(drag);
    EXPECT_EQ(pad().stats().mPressure, 0.375F);
    EXPECT_EQ(raw(), QStringLiteral("24575.63"));
}

TEST_F(DrawingPad, showsThePressureWithWhichATabletPointIsDrawn)
{
    Event point;
    point.type = EventType::TabletPoint;
    point.pressure = 0.5F;
    pad().tabletPoint(point);
    EXPECT_EQ(raw(), QStringLiteral("3640.83")) << "smoothed";
}

TEST_F(DrawingPad, withFixedWidthEveryStrokeIs25PointsWideAndThePressureIsRaw)
{
    useFixedWidth();
    pen().press({50, 50}, 0.5);
    pen().move({300, 200}, 0.5);
    PenInput::deliver();
    EXPECT_EQ(raw(), QStringLiteral("32767.5"));
    EXPECT_EQ(pad().spokenContents(), QStringLiteral("Pressure 50 %"));
    expectLines({{50, 50, 300, 200}});
}

TEST_F(DrawingPad, aTabletPointWithoutPressureIsSkippedByTheLoopButDrawnFromTheQueue)
{
    useFixedWidth(); // a dot of 25 points, if it were drawn
    pen().press({100, 100}, 0);
    pen().move({100, 100}, 0);
    PenInput::deliver();
    expectLines({});
    pen().move({200, 100}, 0); // a drag is always drawn, with the events before it
    pen().move({200, 100}, 0);
    PenInput::deliver();
    expectLines({{100, 100, 200, 100}, {200, 100, 200, 100}});
}

TEST_F(DrawingPad, whatArrivesTogetherIsShownAtOnce)
{
    pen().press({10, 10}, 1);
    PenInput::deliver();
    const WatchedEvents paints(pad(), QEvent::Paint);
    for (int x = 11; x < 300; ++x) {
        pen().move(QPointF(x, 10), 1);
    }
    PenInput::deliver();
    EXPECT_EQ(paints.count, 1);
}

TEST_F(DrawingPad, whatIsDrawnIsPaintedBeforeTheNextEventsAreAwaited)
{
    const WatchedEvents paints(pad(), QEvent::Paint);
    Event event;
    event.type = EventType::TabletPoint;
    event.pressure = 0.5F;
    pad().tabletPoint(event);
    EXPECT_EQ(paints.count, 1);
    event.type = EventType::LeftMouseDown;
    pad().queue().post(event);
    event.type = EventType::LeftMouseDragged;
    event.locationInWindow = inWindow({100, 200});
    pad().queue().post(event);
    pad().queue().handOver();
    EXPECT_EQ(paints.count, 2);
}

TEST_F(DrawingPad, aStepPaintsWhatItHasChangedAndHardlyAnythingElse)
{
    useFixedWidth();
    drawLine({20, 20}, {30, 20}); // so that the texts below the pad have their final length
    PenInput::deliver();
    const double density = pad().devicePixelRatioF();
    const auto changed = [density](const QImage& before, const QImage& after) {
        QRegion pixels;
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x) {
                if (before.pixel(x, y) != after.pixel(x, y)) {
                    pixels +=
                        QRect(static_cast<int>(x / density), static_cast<int>(y / density), 1, 1);
                }
            }
        }
        return pixels;
    };
    for (const QLineF& step : {QLineF(100, 100, 160, 130), QLineF(300, 200, 250, 150),
             QLineF(60, 250, 60, 250), QLineF(300, 60, 250, 90)}) {
        pen().press(step.p1(), 1);
        PenInput::deliver();
        const QImage before = shown();
        const WatchedEvents paints(pad(), QEvent::Paint);
        const WatchedEvents behind(*pad().parentWidget(), QEvent::Paint);
        pen().move(step.p2(), 1);
        PenInput::deliver();
        const QRegion painted = paints.painted;
        const QRegion pixels = changed(before, shown());
        EXPECT_FALSE(pixels.isEmpty());
        EXPECT_TRUE((pixels - painted).isEmpty()) << "all that has changed";
        EXPECT_TRUE(pixels.boundingRect().adjusted(-1, -1, 1, 1).contains(painted.boundingRect()))
            << "and a pixel around it";
        EXPECT_FALSE(behind.painted.intersects(pad().geometry())) << "nothing shows through";
        pen().release(step.p2());
        PenInput::deliver();
    }
}

TEST_F(DrawingPad, strokesLeaveNothingInTheLog)
{
    testing::internal::CaptureStderr();
    drawLine({50, 50}, {300, 50});
    PenInput::deliver();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// Wiping -----------------------------------------------------------------------------------------

TEST_F(DrawingPad, clearWipesThePad)
{
    drawLine({10, 10}, {200, 100});
    PenInput::deliver();
    EmptyPad before(pad());
    before.painter.end();
    EXPECT_NE(shown(), before.image);
    QTest::mouseClick(&outlet<QPushButton>("mClean"), Qt::LeftButton);
    expectLines({});
}

TEST_F(DrawingPad, keepsItsFrameWhenItIsResized)
{
    pad().setFixedSize(500, 350);
    const QImage drawn = shown();
    const double density = pad().devicePixelRatioF();
    const auto at = [&](double x, double y) {
        return drawn.pixelColor(static_cast<int>(x * density), static_cast<int>(y * density));
    };
    for (const QPointF& edge :
        {QPointF(0, 175), QPointF(499.5, 175), QPointF(250, 0), QPointF(250, 349.5)}) {
        EXPECT_EQ(at(edge.x(), edge.y()), QColor(Qt::black));
    }
    EXPECT_EQ(at(399, 150), QColor(Qt::lightGray)) << "the frame of before";
}

TEST_F(DrawingPad, aStrokeGoesOnWhereItWasWhenThePadIsResizedInBetween)
{
    useFixedWidth();
    pad().setFixedSize(300, 200);
    PenInput::deliver();
    pen().press({50, 50}, 1);
    PenInput::deliver();
    pad().setFixedSize(kPad);
    PenInput::deliver();
    // The stroke's last point keeps its distance from the lower left corner.
    pen().move({200, 100}, 1);
    PenInput::deliver();
    expectLines({{50, 150, 200, 100}});
}

// Interrupted strokes ------------------------------------------------------

TEST_F(DrawingPad, proximityInsideAStrokeChangesNothing)
{
    useFixedWidth();
    pen().enter();
    pen().press({50, 50}, 1);
    pen().enter();
    pen().move({200, 50}, 1);
    PenInput::deliver();
    EXPECT_EQ(mUpdates, 1) << "the pen that came, before the stroke";
    expectLines({{50, 50, 200, 50}});
}

TEST_F(DrawingPad, aPenThatLeavesInMidStrokeEndsItsStroke)
{
    useFixedWidth();
    pen().press({50, 50}, 1);
    pen().move({100, 50}, 1);
    pen().leave();
    PenInput::deliver();
    EXPECT_EQ(pad().stats().mEventType, EventType::LeftMouseUp);
    pen().press({50, 200}, 1);
    pen().move({100, 200}, 1);
    PenInput::deliver();
    expectLines({{50, 50, 100, 50}, {50, 200, 100, 200}});
}

TEST_F(DrawingPad, twoPensDrawTwoStrokes)
{
    useFixedWidth();
    PenInput other(pad(), 88);
    pen().press({50, 50}, 1);
    other.press({50, 200}, 1);
    pen().move({150, 50}, 1);
    other.move({150, 200}, 1);
    pen().release({150, 50});
    other.release({150, 200});
    PenInput::deliver();
    expectLines({{50, 50, 150, 50}, {50, 200, 150, 200}});
}

TEST_F(DrawingPad, penAndMouseDrawTwoStrokes)
{
    useFixedWidth();
    pen().press({50, 50}, 1);
    PenInput::deliver();
    QTest::mousePress(&pad(), Qt::LeftButton, {}, {50, 200});
    dragMouse(pad(), {150, 200});
    pen().move({150, 50}, 1);
    PenInput::deliver();
    QTest::mouseRelease(&pad(), Qt::LeftButton, {}, {150, 200});
    pen().release({150, 50});
    PenInput::deliver();
    expectLines({{50, 50, 150, 50}, {50, 200, 150, 200}});
}

TEST_F(DrawingPad, aPageThatIsLeftInMidStrokeEndsTheStroke)
{
    useFixedWidth();
    pen().press({50, 50}, 1);
    pen().move({100, 50}, 1);
    PenInput::deliver();
    auto& pages = outlet<QTabWidget>("tabView");
    pages.setCurrentIndex(0);
    PenInput::deliver();
    EXPECT_EQ(pad().stats().mEventType, EventType::LeftMouseUp);
    pages.setCurrentWidget(&outlet<QWidget>("penPage"));
    PenInput::deliver();
    pen().release({300, 200});
    pen().hover({301, 200});
    PenInput::deliver();
    EXPECT_EQ(pad().stats().mEventType, EventType::MouseMoved);
    expectLines({});
}

TEST_F(DrawingPad, aWindowThatIsClosedInMidStrokeTakesThePadAlong)
{
    pen().press({50, 50}, 1);
    PenInput::deliver();
    pen().move({100, 50}, 1);
    leave();
    mWindow.reset();
    PenInput::deliver();
    QObject nobody;
    platform::notifications().post({kProximityNotification, &nobody, {}}); // and nobody is told
}

TEST_F(DrawingPad, aReleaseWithoutAPressOnlyUpdatesTheStatistics)
{
    QTest::mouseRelease(&pad(), Qt::LeftButton, {}, {50, 50});
    PenInput::deliver();
    EXPECT_EQ(pad().stats().mEventType, EventType::LeftMouseUp);
    expectLines({});
}

TEST_F(DrawingPad, tenThousandEventsAtOnceAreAllDrawn)
{
    useFixedWidth();
    pen().press({0, 50}, 1);
    for (int i = 0; i < 10000; ++i) {
        pen().move(QPointF(i % 2 == 0 ? 0 : 399, 50 + i * 0.01), 1);
    }
    pen().release({399, 150});
    PenInput::deliver();
    const QImage drawn = shown();
    const double density = pad().devicePixelRatioF();
    const auto at = [&](double x, double y) {
        return drawn.pixelColor(static_cast<int>(x * density), static_cast<int>(y * density));
    };
    for (int y = 42; y < 158; ++y) {
        ASSERT_EQ(at(200, y), QColor(Qt::black)) << y;
    }
    EXPECT_EQ(pad().stats().mEventType, EventType::LeftMouseUp);
}

TEST_F(DrawingPad, whatNoPenCanDoLeavesThePadUsable)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    pen().press({50, 50}, kNaN);
    for (const double odd : {kNaN, kInfinity, -kInfinity, -1.0, 3e9, -3e9}) {
        pen().move({60, 60}, odd);
        pen().move({odd, 60}, 0.5);
        pen().move({60, odd}, 0.5);
    }
    pen().release({kInfinity, kNaN});
    PenInput::deliver();
    EXPECT_TRUE(std::isfinite(pad().stats().mPressure));
    EXPECT_TRUE(std::isfinite(pad().stats().mMouseX));
    pad().doClean();
    useFixedWidth();
    pen().press({50, 50}, 1);
    pen().move({200, 50}, 1);
    PenInput::deliver();
    expectLines({{50, 50, 200, 50}});
}

// Statistics -------------------------------------------------------------------------------------

TEST_F(DrawingPad, statisticsAreUpdatedByTheEndsOfAStrokeOnly)
{
    pen().enter();
    PenInput::deliver();
    const int before = mUpdates;
    pen().press({50, 50}, 0.5);
    PenInput::deliver();
    EXPECT_EQ(pad().stats().mEventType, EventType::LeftMouseDown);
    EXPECT_EQ(mUpdates, before) << "a press is not announced";
    pen().xTilt = 5;
    pen().move({60, 50}, 0.5);
    PenInput::deliver();
    EXPECT_EQ(pad().stats().mEventType, EventType::LeftMouseDown);
    EXPECT_EQ(pad().stats().mTiltX, 0);
    pen().rotation = 45;
    pen().release({70, 50});
    PenInput::deliver();
    EXPECT_EQ(mUpdates, before + 1);
    const auto& stats = pad().stats();
    EXPECT_EQ(stats.mEventType, EventType::LeftMouseUp);
    EXPECT_EQ(stats.mTiltX, 5);
    EXPECT_EQ(stats.mRotDeg, 45);
    EXPECT_EQ(stats.mDeviceID, 77);
    EXPECT_EQ(stats.mPressure, 0);
    const QPoint inWindow = pad().mapTo(mWindow.get(), QPoint(70, 50));
    EXPECT_EQ(stats.mMouseX, static_cast<float>(inWindow.x()));
    EXPECT_EQ(stats.mMouseY, static_cast<float>(mWindow->height() - inWindow.y()));
    const QPoint onDesktop = pad().mapToGlobal(QPoint(70, 50));
    EXPECT_EQ(QPoint(stats.mAbsX, stats.mAbsY), onDesktop);
}

TEST_F(DrawingPad, ofAMovePressureIsZeroButShownAsItIs)
{
    Event move;
    move.type = EventType::MouseMoved;
    move.pressure = 0.25F;
    pad().mouseMoved(move);
    EXPECT_EQ(pad().stats().mPressure, 0);
    EXPECT_EQ(raw(), QStringLiteral("16383.75"));
}

TEST_F(DrawingPad, aTabletPointKeepsThePlaceAndDrawsADotThere)
{
    useFixedWidth();
    Event down;
    down.type = EventType::LeftMouseUp;
    down.locationInWindow = {7, 9};
    pad().mouseUp(down);
    Event point;
    point.type = EventType::TabletPoint;
    point.pressure = 0.5F;
    point.rotation = 12;
    point.deviceID = 3;
    point.locationInWindow = {100, 100};
    pad().tabletPoint(point);
    EXPECT_EQ(pad().stats().mMouseX, 7);
    EXPECT_EQ(pad().stats().mRotDeg, 12);
    EXPECT_EQ(pad().stats().mDeviceID, 3);
    expectLines({{0, 300, 0, 300}}); // nothing was drawn before
}

TEST_F(DrawingPad, theMouseKeepsRotationAndPen)
{
    pen().rotation = 30;
    pen().hover({5, 5});
    PenInput::deliver();
    QTest::mouseMove(&pad(), {9, 9});
    PenInput::deliver();
    EXPECT_EQ(pad().stats().mRotDeg, 30);
    EXPECT_EQ(pad().stats().mDeviceID, 77);
}

TEST_F(DrawingPad, withoutCapturedMovesOnlyPressesAreSeen)
{
    pad().setCaptureMouseMoves(false);
    EXPECT_FALSE(pad().mCaptureMouseMoves());
    pen().enter();
    PenInput::deliver();
    const int before = mUpdates;
    pen().hover({5, 5});
    pen().hover({6, 6});
    PenInput::deliver();
    EXPECT_EQ(mUpdates, before);
    pad().setCaptureMouseMoves(true);
    pen().hover({7, 7});
    PenInput::deliver();
    EXPECT_EQ(mUpdates, before + 1);
}

TEST_F(DrawingPad, aDragWithoutAPressIsDrawnAndAnnounced)
{
    useFixedWidth();
    Event drag;
    drag.type = EventType::LeftMouseDragged;
    drag.pressure = 0.5F;
    drag.locationInWindow = inWindow({100, 200});
    pad().mouseDragged(drag);
    EXPECT_EQ(mUpdates, 1);
    expectLines({{0, 300, 100, 200}});
}

TEST_F(DrawingPad, withoutStatisticsADragWithoutAPressIsFollowedToItsEnd)
{
    useFixedWidth();
    pad().setUpdateStatsDuringDrag(false);
    EXPECT_FALSE(pad().mUpdateStatsDuringDrag());
    const auto send = [this](QEvent::Type type, const QPointF& at, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, pad().mapToGlobal(at.toPoint()),
            type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, {});
        QCoreApplication::sendEvent(&pad(), &event);
        PenInput::deliver();
    };
    send(QEvent::MouseMove, {50, 50}, Qt::LeftButton);
    EmptyPad expected(pad());
    expectSameImage(shown(), expected.image);
    send(QEvent::MouseMove, {100, 200}, Qt::LeftButton);
    send(QEvent::MouseMove, {200, 200}, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, {200, 200}, Qt::NoButton);
    EXPECT_EQ(mUpdates, 0);
    EXPECT_EQ(raw(), QStringLiteral("65535")) << "that of a mouse";
    paintStep(expected.painter, {0, 300}, {100, 200}, 25);
    paintStep(expected.painter, {100, 200}, {200, 200}, 25);
    expectShown(expected);
    send(QEvent::MouseMove, {210, 200}, Qt::NoButton);
    EXPECT_EQ(mUpdates, 1) << "it has ended";
}

TEST_F(DrawingPad, aDragWithoutAPressWhoseReleaseNeverComesEndsWithThePage)
{
    useFixedWidth();
    pad().setUpdateStatsDuringDrag(false);
    const auto move = [this](const QPointF& at, Qt::MouseButtons buttons) {
        QMouseEvent event(
            QEvent::MouseMove, at, pad().mapToGlobal(at.toPoint()), Qt::NoButton, buttons, {});
        QCoreApplication::sendEvent(&pad(), &event);
        PenInput::deliver();
    };
    const auto doStroke = [this] {
        drawLine({50, 50}, {200, 50});
        PenInput::deliver();
    };
    pen().hover({5, 5}); // so that the texts below the pad have their final length
    PenInput::deliver();
    move({50, 50}, Qt::LeftButton);
    move({100, 200}, Qt::LeftButton);
    auto& pages = outlet<QTabWidget>("tabView");
    pages.setCurrentIndex(0);
    PenInput::deliver();
    pages.setCurrentWidget(&outlet<QWidget>("penPage"));
    PenInput::deliver();
    doStroke();
    EXPECT_EQ(pad().stats().mEventType, EventType::LeftMouseUp);
    EmptyPad curved(pad()); // it begins its curve where the drag was
    QPainterPath path(QPointF(50, 250));
    path.cubicTo(QPointF(150, 175), QPointF(150, 175), QPointF(200, 250));
    curved.painter.strokePath(path, QPen(Qt::black, 25, Qt::SolidLine, Qt::RoundCap));
    expectShown(curved);
    pad().doClean();
    PenInput::deliver();
    doStroke();
    expectLines({{50, 50, 200, 50}});

    // The same if the page stays, and the mouse moves without its button.
    move({50, 50}, Qt::LeftButton);
    move({100, 200}, Qt::LeftButton);
    move({9, 9}, Qt::NoButton);
    EXPECT_EQ(pad().stats().mEventType, EventType::MouseMoved);
}

TEST_F(DrawingPad, eraserAndTipAreToldApartByProximity)
{
    comeIntoReach(platform::PointingDeviceType::Eraser);
    EXPECT_TRUE(pad().isErasing());
    EXPECT_EQ(mUpdates, 1);
    comeIntoReach(platform::PointingDeviceType::Cursor);
    EXPECT_FALSE(pad().isErasing());
    platform::notifications().post({kProximityNotification, mWindow.get(),
        {{kProximityEventCarbonKey, std::make_shared<const Event>()}}});
    EXPECT_FALSE(pad().isErasing()) << "of the older form nothing is taken";
    EXPECT_EQ(mUpdates, 3);
}

TEST_F(DrawingPad, aProximityNotificationWithoutAnEventEndsTheProcess)
{
    EXPECT_DEATH(platform::notifications().post({kProximityNotification, mWindow.get(), {}}),
        "proxData.*-\\[QVDrawView handleProximity:\\].*QVTblt/QVDrawView, line 102");
}

TEST_F(DrawingPad, aLineSaysTheStatisticsForPeople)
{
    pen().xTilt = 12;
    pen().yTilt = -7;
    pen().rotation = 30;
    pen().hover({5, 5});
    PenInput::deliver();
    const QPoint place = pad().mapToGlobal(QPoint(5, 5));
    EXPECT_EQ(line(),
        QStringLiteral("Pressure 0 % · Tilt 12° right, -7° down · Rotation 30° · "
                       "At %1, %2 on the desktop · Pen number 77")
            .arg(place.x())
            .arg(place.y()));
}

TEST_F(DrawingPad, theLineNamesNoPenBeforeOneHasCome)
{
    const QString rest = QStringLiteral(" · Tilt 0° right, 0° down · Rotation 0° · "
                                        "At 0, 0 on the desktop");
    EXPECT_EQ(line(), QStringLiteral("Pressure 0 %") + rest);
    Event drag;
    drag.type = EventType::LeftMouseDragged;
    drag.pressure = 1;
    pad().mouseDragged(drag);
    EXPECT_EQ(line(), QStringLiteral("Pressure 100 %") + rest);
    drag.subtype = platform::kTabletPointSubtype;
    drag.deviceID = 1;
    pad().mouseDragged(drag);
    EXPECT_EQ(line(), QStringLiteral("Pressure 100 %") + rest + QStringLiteral(" · Pen number 1"));
}
