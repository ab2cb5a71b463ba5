// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The pen page's pressure: slider, curve, record, driver.

#include "QVPressView.h"

#include "DragMouse.h"
#include "PaneTest.h"
#include "QVNSView.h"
#include "SameImage.h"
#include "Wait.h"

#include <QAccessible>
#include <QLabel>
#include <QPainterPath>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

#include <functional>

/** Access to members of a view that the panel does not use. */
struct PressViewAccess {
    static auto& curve(const QVPressView& view) { return view.m_pt; }
    static auto& redraw(QVPressView& view) { return view.mRedraw; }
    static QPointF first(const QVPressView& view) { return view.mFirstLoc; }
    static auto& last(QVPressView& view) { return view.mLastLoc; }
};

namespace {

class PressurePage : public PaneTest {
protected:
    void SetUp() override
    {
        PaneTest::SetUp();
        layOutInPixels();
        show();
        showPage("penPage");
        mEvents.sent.clear();
    }

    QVPressView& view() { return outlet<QVPressView>("mPressView"); }
    QSlider& slider() { return outlet<QSlider>("mSlider"); }
    QString penID() { return outlet<QLabel>("mPenID").text(); }
    QImage drawWith(int threshold)
    {
        qvTabletInfo.Pen.PressureThreshold = static_cast<std::int16_t>(threshold);
        view().setNeedsDisplay();
        return view().grab().toImage();
    }
    void postProximity(platform::PointingDeviceType type, std::uint64_t serial, bool isEntering)
    {
        auto event = std::make_shared<platform::Event>();
        event->pointingDeviceType = type;
        event->uniqueID = serial;
        event->isEnteringProximity = isEntering;
        QVPostProximity(*mWindow, event);
    }
};

} // namespace

TEST_F(PressurePage, drawsTheCurveInItsFrame)
{
    const double density = view().devicePixelRatioF(); // the tests run at 1 and at 2
    for (const int threshold : {0, 50, 99, 100, 150, 200, -300, 32767}) {
        SCOPED_TRACE(threshold);
        Canvas expected({200, 200}, density);
        expected.painter.fillRect(QRectF(0, 0, 200, 200), Qt::lightGray);
        for (const QRectF& edge : {QRectF(0, 0, 200, 1), QRectF(0, 199, 200, 1),
                 QRectF(0, 0, 1, 200), QRectF(199, 0, 1, 200)}) {
            expected.painter.fillRect(edge, Qt::black);
        }
        QPainterPath path;
        path.lineTo(0, 0);
        for (int j = 1; j <= 198; ++j) {
            path.lineTo(j, QVPressHeight(threshold, j));
        }
        expected.painter.strokePath(
            path, QPen(Qt::black, 1, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin));
        expected.painter.end();
        expectSameImage(drawWith(threshold), expected.image);
    }
}

TEST_F(PressurePage, hasAGroundThatNothingShowsThrough)
{
    EXPECT_TRUE(view().testAttribute(Qt::WA_OpaquePaintEvent)) << "Qt draws nothing below it";
    const QImage drawn = drawWith(100);
    EXPECT_EQ(drawn.pixelColor(drawn.width() / 4, drawn.height() / 4), QColor(Qt::lightGray));
}

TEST_F(PressurePage, endsTheCurveBeforeTheUpperRightCorner)
{
    const QImage straight = drawWith(100);
    const double density = view().devicePixelRatioF();
    const auto at = [&](double x, double y) {
        return straight.pixelColor(
            static_cast<int>(x * density), static_cast<int>((200 - y) * density));
    };
    EXPECT_NE(at(190.2, 190.2), QColor(Qt::lightGray));
    EXPECT_EQ(at(198.5, 196.0), QColor(Qt::lightGray));
    // On the extension of the line, where its last segment would be.
    EXPECT_NE(at(197.4, 197.4), QColor(Qt::lightGray));
    EXPECT_EQ(at(198.4, 198.4), QColor(Qt::lightGray));
}

TEST_F(PressurePage, theSliderInTenthsStoresWholes)
{
    slider().setValue(379);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 37);
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_EQ(+pushes().front().Pen.PressureThreshold, 37);
    const QImage drawn = view().grab().toImage();
    expectSameImage(drawn, drawWith(37));
    EXPECT_EQ(slider().value(), 370) << "follows the record when the curve is drawn";
    EXPECT_EQ(pushes().size(), 1U);
}

TEST_F(PressurePage, everyStepOfADragIsPushed)
{
    qvTabletInfo.Pen.PressureThreshold = 100;
    view().setNeedsDisplay();
    view().grab();
    const QPoint middle(slider().width() / 2, slider().height() / 3);
    QTest::mousePress(&slider(), Qt::LeftButton, {}, middle);
    QSet<int> thresholds;
    for (int step = 1; step <= 20; ++step) {
        dragMouse(slider(), middle + QPoint(2 * step, 0));
        thresholds.insert(qvTabletInfo.Pen.PressureThreshold);
        view().grab(); // as on screen, where the slider follows the record meanwhile
    }
    QTest::mouseRelease(&slider(), Qt::LeftButton, {}, middle + QPoint(40, 0));
    EXPECT_GE(thresholds.size(), 18);
    const auto pushed = pushes();
    ASSERT_GE(pushed.size(), 18U);
    for (std::size_t i = 1; i < pushed.size(); ++i) {
        EXPECT_GE(+pushed[i].Pen.PressureThreshold, +pushed[i - 1].Pen.PressureThreshold);
    }
    EXPECT_EQ(+pushed.back().Pen.PressureThreshold, +qvTabletInfo.Pen.PressureThreshold);
}

TEST_F(PressurePage, theKeyboardMovesByWholesAndTens)
{
    qvTabletInfo.Pen.PressureThreshold = 100;
    drawWith(100);
    QTest::keyClick(&slider(), Qt::Key_Right);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 101);
    QTest::keyClick(&slider(), Qt::Key_PageUp);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 111);
    QTest::keyClick(&slider(), Qt::Key_Home);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 0);
    QTest::keyClick(&slider(), Qt::Key_End);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 200);
}

TEST_F(PressurePage, theSlidersEndsAreChosenForThresholdsBeyondThem)
{
    struct End {
        int stored;
        Qt::Key key;
        int chosen;
    };
    const auto expectChosen = [this](const End& end, const std::function<void()>& act) {
        drawWith(end.stored);
        ASSERT_EQ(slider().value(), end.chosen * 10);
        mEvents.sent.clear();
        act();
        EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, end.chosen);
        ASSERT_EQ(pushes().size(), 1U);
        EXPECT_EQ(+pushes().front().Pen.PressureThreshold, end.chosen);
        view().grab();
        act();
        EXPECT_EQ(pushes().size(), 1U) << "it is stored already";
    };
    for (const End& end : {End{300, Qt::Key_End, 200}, End{-5, Qt::Key_Home, 0}}) {
        SCOPED_TRACE(end.stored);
        expectChosen(end, [&] { QTest::keyClick(&slider(), end.key); });
        expectChosen(end, [&] { // on the handle
            const int x = end.chosen == 0 ? 5 : slider().width() - 5;
            QTest::mouseClick(&slider(), Qt::LeftButton, {}, {x, slider().height() / 3});
        });
        expectChosen(end, [&] { // as a screen reader sets it
            QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(&slider());
            ASSERT_NE(heard, nullptr);
            ASSERT_NE(heard->valueInterface(), nullptr);
            heard->valueInterface()->setCurrentValue(end.chosen * 10);
        });
    }
    drawWith(300);
    mEvents.sent.clear();
    QTest::keyClick(&slider(), Qt::Key_Left);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 199);
    EXPECT_EQ(pushes().size(), 1U);
}

TEST_F(PressurePage, theWheelDoesNothingToASliderWithoutFocus)
{
    drawWith(100);
    mEvents.sent.clear();
    outlet<QTabWidget>("tabView").setFocus();
    const QPoint at(10, 10);
    QWheelEvent event(at, slider().mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&slider(), &event);
    EXPECT_EQ(slider().value(), 1000);
    EXPECT_TRUE(pushes().empty());
}

TEST_F(PressurePage, hasACurveForTheBeginningThatFalls)
{
    view().InitPoint();
    const auto& curve = PressViewAccess::curve(view());
    EXPECT_EQ(curve[0].x, 0);
    EXPECT_EQ(curve[0].y, 0);
    for (std::size_t i = 1; i < 199; ++i) {
        EXPECT_EQ(curve[i].x, static_cast<double>(i));
        EXPECT_EQ(curve[i].y, 200.0 - static_cast<double>(i));
    }
    EXPECT_EQ(curve[199].x, 200);
    EXPECT_EQ(curve[199].y, 200);
}

TEST_F(PressurePage, drawsALineAcrossForAsLongAsItIsSaidNotToBeRedrawn)
{
    const QImage without = drawWith(200);
    PressViewAccess::redraw(view()) = 0;
    const QImage with = drawWith(200);
    const double density = view().devicePixelRatioF();
    const auto at = [density](const QImage& image, double x, double y) {
        return image.pixelColor(
            static_cast<int>(x * density), static_cast<int>((200 - y) * density));
    };
    EXPECT_EQ(at(without, 100.2, 100.2), QColor(Qt::lightGray));
    EXPECT_NE(at(with, 100.2, 100.2), QColor(Qt::lightGray));
    EXPECT_EQ(PressViewAccess::first(view()), QPointF(0, 0));
    EXPECT_EQ(PressViewAccess::last(view()), QPointF(200, 200));

    // The slider's action redraws again, and shows where the line would go.
    PressViewAccess::last(view()) = {};
    slider().setValue(505);
    EXPECT_EQ(+PressViewAccess::redraw(view()), 1);
    EXPECT_EQ(PressViewAccess::first(view()), QPointF(50.5, 0));
    EXPECT_EQ(PressViewAccess::last(view()), QPointF(200, 200));
    expectSameImage(drawWith(200), without);
}

TEST_F(PressurePage, followsTheFileAfterCancel)
{
    slider().setValue(2000);
    view().grab();
    mPane.CancelSet();
    leave();
    show();
    const int inFile = recordInFile().Pen.PressureThreshold;
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, inFile);
    EXPECT_TRUE(QTest::qWaitFor([&] { return slider().value() == inFile * 10; }, kPatience));
}

TEST_F(PressurePage, isSavedWithTheRecord)
{
    slider().setValue(1230);
    mPane.SaveSet();
    EXPECT_EQ(+recordInFile().Pen.PressureThreshold, 123);
}

TEST_F(PressurePage, keepsAThresholdThatNoSliderReaches)
{
    for (const int threshold : {-32768, -1, 201, 32767}) {
        drawWith(threshold);
        EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, threshold);
    }
    EXPECT_EQ(slider().value(), 2000);
    EXPECT_TRUE(pushes().empty());
}

TEST_F(PressurePage, namesThePenThatIsInReach)
{
    using platform::PointingDeviceType;
    postProximity(PointingDeviceType::Pen, 4711, true);
    EXPECT_EQ(penID(), QStringLiteral("Pen, serial number 4711"));
    postProximity(PointingDeviceType::Eraser, 4711, true);
    EXPECT_EQ(penID(), QStringLiteral("Eraser, serial number 4711"));
    postProximity(PointingDeviceType::Eraser, 0, true);
    EXPECT_EQ(penID(), QStringLiteral("Eraser"));
    postProximity(PointingDeviceType::Pen, 0, true);
    EXPECT_EQ(penID(), QStringLiteral("Pen"));
    postProximity(PointingDeviceType::Pen, 0, false);
    EXPECT_EQ(penID(), QStringLiteral("No pen in range"));
}
