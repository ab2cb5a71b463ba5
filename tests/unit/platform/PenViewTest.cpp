// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Pen and mouse, from the window system to a view's handlers.

#include "PenView.h"

#include "DragMouse.h"
#include "PenInput.h"
#include "ProximityRelay.h"
#include "Service.h"

#include <QTest>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using namespace platform;

namespace {

constexpr std::uint32_t kStrokeMask = eventMask(EventType::LeftMouseUp)
    | eventMask(EventType::LeftMouseDragged) | eventMask(EventType::TabletPoint)
    | eventMask(EventType::TabletProximity);

/** Records its events. With tracksStrokes, takes the events of a stroke itself. */
class Witness final : public PenView {
public:
    Witness() { setAcceptsMouseMovedEvents(true); }

    std::vector<std::string> log;
    std::vector<Event> events;
    bool tracksStrokes = false;
    int wakes = 0; ///< number of notifications of waiting events

    void mouseDown(const Event& event) override
    {
        note("down", event);
        if (tracksStrokes) {
            queue().beginTracking();
        }
    }
    void mouseUp(const Event& event) override { note("up", event); }
    void mouseMoved(const Event& event) override { note("moved", event); }
    void mouseDragged(const Event& event) override { note("dragged", event); }
    void tabletPoint(const Event& event) override { note("point", event); }
    void trackEvents() override
    {
        ++wakes;
        while (const auto event = queue().nextEventMatchingMask(kStrokeMask)) {
            note("tracked", *event);
            if (event->type == EventType::LeftMouseUp) {
                queue().endTracking();
                return;
            }
        }
    }
    using PenView::convertPointFromWindow;

protected:
    void drawRect(QPainter&, const Rect&) override { }

private:
    void note(const char* what, const Event& event)
    {
        log.emplace_back(what);
        events.push_back(event);
    }
};

/** Records proximity events. */
class Reach final : public QWidget, public ProximityResponder {
public:
    Reach()
        : ProximityResponder(static_cast<const QWidget&>(*this))
    {
    }
    std::vector<Event> events;

    void tabletProximity(const std::shared_ptr<const Event>& event) override
    {
        events.push_back(*event);
    }
};

using Log = std::vector<std::string>;

class PenViewTest : public testing::Test {
protected:
    PenViewTest()
    {
        mWindow.resize(300, 200);
        mView.setParent(&mWindow);
        mView.setGeometry(50, 20, 200, 100);
        mWindow.show();
        mWindow.windowHandle();
        PenInput::deliver();
    }

    void doStroke(PenInput& pen)
    {
        pen.press({10, 10}, 0.5);
        pen.move({20, 10}, 0.5);
        pen.release({20, 10});
    }

    QWidget mWindow;
    Witness mView;
    PenInput mPen{mView, 77};
};

} // namespace

TEST_F(PenViewTest, aStrokeIsAPressDragsAndARelease)
{
    mPen.xTilt = 12;
    mPen.yTilt = -7;
    mPen.rotation = 30;
    mPen.press({10, 20}, 0.25);
    mPen.move({15, 20}, 0.5);
    mPen.release({15, 20});
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "dragged", "up"}));
    const Event& drag = mView.events.at(1);
    EXPECT_EQ(drag.type, EventType::LeftMouseDragged);
    EXPECT_EQ(drag.subtype, kTabletPointSubtype);
    EXPECT_EQ(drag.locationInWindow, QPointF(65, 200 - 40)) << "from the lower left corner";
    EXPECT_EQ(mView.convertPointFromWindow(drag.locationInWindow), QPointF(15, 80));
    EXPECT_EQ(drag.pressure, 0.5F);
    EXPECT_EQ(drag.tilt, QPointF(12, -7));
    EXPECT_EQ(drag.rotation, 30);
    EXPECT_EQ(drag.deviceID, 77);
    EXPECT_EQ(drag.uniqueID, 77U);
    const QPoint onDesktop = mView.mapToGlobal(QPoint(15, 20));
    EXPECT_EQ(QPoint(drag.absoluteX, drag.absoluteY), onDesktop);
}

TEST_F(PenViewTest, anotherPressureAtTheSamePlaceIsATabletPoint)
{
    mPen.press({10, 20}, 0.25);
    mPen.move({10, 20}, 0.5);
    mPen.release({10, 20});
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "point", "up"}));
}

TEST_F(PenViewTest, aPenAboveTheTabletMoves)
{
    mPen.hover({1, 1});
    mPen.hover({1, 1});
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"moved", "moved"}));
    EXPECT_EQ(mView.events.at(0).pressure, 0);
}

TEST_F(PenViewTest, aMousePressesFullyWithoutBeingAPen)
{
    QTest::mousePress(&mView, Qt::LeftButton, {}, {5, 5});
    dragMouse(mView, {6, 6});
    QTest::mousePress(&mView, Qt::RightButton, {}, {6, 6});
    QTest::mouseRelease(&mView, Qt::LeftButton, {}, {6, 6});
    PenInput::deliver();
    ASSERT_EQ(mView.log.front(), "down");
    ASSERT_EQ(mView.log.back(), "up");
    EXPECT_EQ(mView.events.front().pressure, 1);
    EXPECT_EQ(mView.events.front().subtype, 0);
    EXPECT_EQ(mView.events.back().pressure, 0);
    EXPECT_EQ(std::count(mView.log.begin(), mView.log.end(), "down"), 1);
}

TEST_F(PenViewTest, aTrackingViewTakesAllThatHasArrivedTogether)
{
    mView.tracksStrokes = true;
    mPen.press({0, 0}, 1);
    for (int x = 1; x <= 100; ++x) {
        mPen.move(QPointF(x, 0), 1);
    }
    PenInput::deliver();
    EXPECT_EQ(mView.wakes, 1);
    ASSERT_EQ(mView.events.size(), 101U);
    for (int x = 1; x <= 100; ++x) {
        EXPECT_EQ(
            mView.convertPointFromWindow(mView.events[static_cast<std::size_t>(x)].locationInWindow)
                .x(),
            x);
    }
    mPen.release({100, 0});
    mPen.hover({101, 0});
    PenInput::deliver();
    EXPECT_EQ(mView.log.back(), "moved") << "what comes after the stroke is handed over again";
}

TEST_F(PenViewTest, whatAnotherPenDoesMeanwhileComesAfterTheStroke)
{
    PenInput other(mView, 88);
    mPen.press({1, 1}, 1);
    PenInput::deliver();
    other.press({100, 50}, 1);
    other.move({110, 50}, 1);
    mPen.move({2, 1}, 1);
    other.release({110, 50});
    mPen.release({2, 1});
    PenInput::deliver();
    std::vector<std::uint64_t> pens;
    for (const Event& event : mView.events) {
        pens.push_back(event.uniqueID);
    }
    EXPECT_EQ(mView.log, (Log{"down", "dragged", "up", "down", "dragged", "up"}));
    EXPECT_EQ(pens, (std::vector<std::uint64_t>{77, 77, 77, 88, 88, 88}));
}

TEST_F(PenViewTest, theMouseWaitsForThePen)
{
    mPen.press({1, 1}, 1);
    PenInput::deliver();
    QTest::mousePress(&mView, Qt::LeftButton, {}, {50, 50});
    QTest::mouseRelease(&mView, Qt::LeftButton, {}, {50, 50});
    mPen.move({2, 1}, 1);
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "dragged"}));
    mPen.release({2, 1});
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "dragged", "up", "down", "up"}));
}

TEST_F(PenViewTest, aPenThatLeavesInMidStrokeIsReleased)
{
    mPen.enter();
    mPen.press({1, 1}, 1);
    mPen.move({9, 1}, 1);
    mPen.leave();
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "dragged", "up"}));
    EXPECT_EQ(mView.convertPointFromWindow(mView.events.back().locationInWindow), QPointF(9, 99));
    EXPECT_EQ(mView.events.back().pressure, 0);
}

TEST_F(PenViewTest, aViewThatIsHiddenInMidStrokeIsReleased)
{
    mPen.press({1, 1}, 1);
    PenInput::deliver();
    mWindow.hide();
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "up"}));
}

TEST_F(PenViewTest, aSecondPressEndsTheStrokeBefore)
{
    QTest::mousePress(&mView, Qt::LeftButton, {}, {5, 5});
    QTest::mousePress(&mView, Qt::LeftButton, {}, {8, 8});
    QTest::mouseRelease(&mView, Qt::LeftButton, {}, {8, 8});
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "up", "down", "up"}));
}

TEST_F(PenViewTest, aReleaseWithoutAPressIsHandedOver)
{
    QTest::mouseRelease(&mView, Qt::LeftButton, {}, {5, 5});
    PenInput::deliver();
    EXPECT_EQ(mView.log, Log{"up"});
}

TEST_F(PenViewTest, aViewThatGoesInMidStrokeTakesItsEventsAlong)
{
    auto view = std::make_unique<Witness>();
    view->setParent(&mWindow);
    view->setGeometry(50, 20, 200, 100);
    view->tracksStrokes = true;
    view->show();
    PenInput pen(*view, 5);
    pen.press({1, 1}, 1);
    PenInput::deliver();
    ASSERT_EQ(view->log, Log{"down"});
    QTest::mousePress(&mView, Qt::LeftButton, {}, {5, 5}); // waits for the stroke's end
    view.reset();
    PenInput::deliver();
    QTest::mouseRelease(&mView, Qt::LeftButton, {}, {5, 5});
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "up"}));
}

TEST_F(PenViewTest, aTrackingViewLeavesOtherViewsTheirEvents)
{
    Witness other;
    other.setParent(&mWindow);
    other.setGeometry(0, 120, 300, 80);
    other.show();
    mView.tracksStrokes = true;
    mPen.press({1, 1}, 1);
    QTest::mousePress(&other, Qt::LeftButton, {}, {5, 5});
    QTest::mouseRelease(&other, Qt::LeftButton, {}, {5, 5});
    PenInput::deliver();
    EXPECT_EQ(other.log, (Log{"down", "up"}));
    mPen.release({1, 1});
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "tracked"}));
}

TEST_F(PenViewTest, whatNoPenCanDoIsMended)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    mPen.press({1, 1}, 1);
    for (const double pressure : {kNaN, -1.0, 2.0, kInfinity, -kInfinity}) {
        mPen.move({2, 1}, pressure);
        mPen.move({3, 1}, 0.5);
    }
    mPen.rotation = kNaN;
    mPen.move({4, 1}, 0.5);
    mPen.move({1e300, -1e300}, 0.5);
    mPen.move({kNaN, kInfinity}, 0.5);
    PenInput::deliver();
    std::vector<float> pressures;
    for (const Event& event : mView.events) {
        pressures.push_back(event.pressure);
        EXPECT_EQ(event.rotation, 0);
        EXPECT_LE(std::abs(event.locationInWindow.x()), 1e6);
        EXPECT_LE(std::abs(event.locationInWindow.y()), 1e6 + 200);
        EXPECT_LE(std::abs(event.absoluteX), 1000000);
    }
    pressures.resize(11);
    EXPECT_EQ(
        pressures, (std::vector{1.0F, 0.0F, 0.5F, 0.0F, 0.5F, 1.0F, 0.5F, 1.0F, 0.5F, 0.0F, 0.5F}));
}

TEST_F(PenViewTest, tenThousandEventsKeepTheirOrder)
{
    mView.tracksStrokes = true;
    mPen.press({0, 0}, 1);
    for (int i = 1; i <= 10000; ++i) {
        mPen.move(QPointF(i % 200, i / 200), 1);
    }
    mPen.release({0, 0});
    PenInput::deliver();
    ASSERT_EQ(mView.events.size(), 10002U);
    for (int i = 1; i <= 10000; ++i) {
        const QPointF place = mView.convertPointFromWindow(
            mView.events[static_cast<std::size_t>(i)].locationInWindow);
        ASSERT_EQ(place, QPointF(i % 200, 100 - i / 200)) << i;
    }
}

// Proximity --------------------------------------------------------------------------------------

TEST_F(PenViewTest, theNewestVisibleResponderIsToldOfThePen)
{
    Reach first;
    Reach second;
    first.show();
    mPen.enter();
    PenInput::deliver();
    ASSERT_EQ(first.events.size(), 1U);
    EXPECT_TRUE(first.events[0].isEnteringProximity);
    EXPECT_EQ(first.events[0].type, EventType::TabletProximity);
    EXPECT_EQ(first.events[0].pointingDeviceType, PointingDeviceType::Pen);
    EXPECT_EQ(first.events[0].uniqueID, 77U);
    second.show();
    mPen.leave();
    PenInput::deliver();
    EXPECT_EQ(first.events.size(), 1U);
    ASSERT_EQ(second.events.size(), 1U);
    EXPECT_FALSE(second.events[0].isEnteringProximity);
    second.hide();
    first.hide();
    mPen.enter();
    PenInput::deliver();
    EXPECT_EQ(first.events.size() + second.events.size(), 2U) << "nobody is there to be told";
}

TEST_F(PenViewTest, aPenThatIsNotAnnouncedIsSaidToEnterWithItsFirstEvent)
{
    Reach reach;
    reach.show();
    mPen.hover({1, 1});
    mPen.hover({2, 1});
    mPen.turn();
    mPen.hover({3, 1});
    PenInput::deliver();
    ASSERT_EQ(reach.events.size(), 2U);
    EXPECT_EQ(reach.events[0].pointingDeviceType, PointingDeviceType::Pen);
    EXPECT_EQ(reach.events[1].pointingDeviceType, PointingDeviceType::Eraser);
}

TEST_F(PenViewTest, aPenThatIsNotAnnouncedInAnothersStrokeIsSaidToEnterOnce)
{
    Reach reach;
    reach.show();
    PenInput other(mView, 88);
    mPen.press({1, 1}, 1);
    PenInput::deliver();
    other.hover({5, 5});
    mPen.release({1, 1});
    other.hover({6, 5});
    PenInput::deliver();
    ASSERT_EQ(reach.events.size(), 2U);
    EXPECT_EQ(reach.events[0].uniqueID, 77U);
    EXPECT_EQ(reach.events[1].uniqueID, 88U);
}

TEST_F(PenViewTest, proximityOutlivesTheViewInWhoseStrokeItWaits)
{
    Reach reach;
    reach.show();
    auto view = std::make_unique<Witness>();
    view->setParent(&mWindow);
    view->setGeometry(50, 20, 200, 100);
    view->show();
    PenInput pen(*view, 5);
    pen.enter();
    pen.press({1, 1}, 1);
    PenInput::deliver();
    PenInput other(mView, 88);
    other.enter();
    PenInput::deliver();
    ASSERT_EQ(reach.events.size(), 1U) << "it waits for the end of the stroke";
    view.reset();
    PenInput::deliver();
    ASSERT_EQ(reach.events.size(), 2U);
    EXPECT_EQ(reach.events[1].uniqueID, 88U);
    EXPECT_TRUE(reach.events[1].isEnteringProximity);
}

TEST_F(PenViewTest, proximityInsideAStrokeIsForWhoTracksIt)
{
    Reach reach;
    reach.show();
    mPen.enter();
    mView.tracksStrokes = true;
    mPen.press({1, 1}, 1);
    mPen.enter();
    mPen.release({1, 1});
    mPen.leave();
    PenInput::deliver();
    EXPECT_EQ(mView.log, (Log{"down", "tracked", "tracked"}));
    EXPECT_EQ(mView.events.at(1).type, EventType::TabletProximity);
    ASSERT_EQ(reach.events.size(), 2U);
    EXPECT_TRUE(reach.events[0].isEnteringProximity);
    EXPECT_FALSE(reach.events[1].isEnteringProximity);
}

TEST(ProximityRelay, endsWithItsLastUser)
{
    auto reach = std::make_unique<Reach>();
    auto view = std::make_unique<Witness>();
    const std::weak_ptr<ProximityRelay> relay = sharedInstance<ProximityRelay>();
    reach.reset();
    EXPECT_FALSE(relay.expired());
    view.reset();
    EXPECT_TRUE(relay.expired());
}
