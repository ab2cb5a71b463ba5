// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Live pressure: the dot on the curve, and fitting the curve to a hand.

#include "QVPressFit.h"

#include "Accessible.h"
#include "Dialogs.h"
#include "PaneTest.h"
#include "PenInput.h"
#include "QVDrawView.h"
#include "QVPressCurve.h"
#include "QVPressView.h"
#include "SameImage.h"
#include "Wait.h"
#include "WatchedEvents.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

class LivePressure : public PaneTest {
protected:
    void SetUp() override
    {
        PaneTest::SetUp();
        layOutInPixels();
        show();
        showPage("penPage");
        setThreshold(100);
    }

    void setThreshold(int threshold)
    {
        qvTabletInfo.Pen.PressureThreshold = static_cast<std::int16_t>(threshold);
        outlet<QVPressView>("mPressView").setNeedsDisplay();
        outlet<QVPressView>("mPressView").grab();
        mEvents.sent.clear();
    }
    QVPressDot& dot() { return outlet<QVPressDot>("mPressDot"); }

    /** Opens the dialog, acts in it, and cancels it if it is still open then. */
    void fit(const std::function<void(QVPressFit&)>& act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto* const dialog = qobject_cast<QVPressFit*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        outlet<QPushButton>("mFitPressure").click();
    }
};

QString textOf(const QVPressFit& dialog)
{
    return dialog.findChild<platform::NoticeLabel*>()->text();
}

/** Presses on the dialog's pad with a pressure that rises and falls. */
void press(QVPressFit& dialog, double pressure)
{
    QWidget& pad = widgetNamed(dialog, "Pad to press on");
    const QPointF at = pad.rect().center();
    PenInput pen(pad, 7);
    pen.press(at, pressure / 2);
    pen.move(at, pressure);
    pen.move(at, pressure / 4);
    pen.release(at);
    PenInput::deliver();
}

/** A picture with the size of a widget, filled with its frame and its ground. */
QImage framed(const QWidget& widget)
{
    QImage image((QSizeF(widget.size()) * widget.devicePixelRatioF()).toSize(),
        QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(widget.devicePixelRatioF());
    image.fill(widget.palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(widget.palette().color(QPalette::Mid));
    painter.setBrush(widget.palette().base());
    painter.drawRect(QRectF(0.5, 0.5, widget.width() - 1, widget.height() - 1));
    return image;
}

/** The dialog alone, for a straight curve. */
class FittingDialog : public testing::Test {
protected:
    void SetUp() override
    {
        mDialog.show();
        activate(mDialog);
    }

    QWidget& pad() { return widgetNamed(mDialog, "Pad to press on"); }
    QWidget& curves() { return widgetNamed(mDialog, "Pressure curve"); }
    QWidget& label() { return *mDialog.findChild<platform::NoticeLabel*>(); }
    /** The uppermost row of the label in which there is text. */
    int textTop()
    {
        const QImage image = label().grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != image.pixel(0, 0)) {
                    return y;
                }
            }
        }
        return image.height();
    }
    std::string text() { return textOf(mDialog).toStdString(); }

    QVPressFit mDialog{100, nullptr};
};

} // namespace

TEST(FittingThreshold, givesTheMiddleOfTheHandHalfOfTheEffect)
{
    for (const auto& [lightest, hardest] : {std::pair(0.1, 0.5), std::pair(0.2, 0.7),
             std::pair(0.0, 1.0), std::pair(0.3, 0.9), std::pair(0.25, 0.25)}) {
        EXPECT_NEAR(
            QVPressResponse((lightest + hardest) / 2, QVFittingThreshold(lightest, hardest)), 0.5,
            0.01)
            << lightest << ' ' << hardest;
    }
    EXPECT_EQ(QVFittingThreshold(0, 1), 100);
    EXPECT_EQ(QVFittingThreshold(0, 0.1), 0);
    EXPECT_EQ(QVFittingThreshold(0.9, 1), 200);
    EXPECT_EQ(QVFittingThreshold(1, 1), 200);
    EXPECT_EQ(QVFittingThreshold(0, 0), 0);
}

TEST_F(LivePressure, theDotRunsAlongTheCurveWhileThePenPresses)
{
    auto& pad = outlet<QVDrawView>("mDrawView");
    const QPointF at = pad.rect().center();
    PenInput pen(pad, 7);
    EXPECT_EQ(dot().geometry(), outlet<QWidget>("mPressView").geometry());
    EXPECT_EQ(dot().pressure(), 0);
    for (const int threshold : {0, 60, 100, 150, 200}) {
        setThreshold(threshold);
        pen.press(at, 0.25);
        PenInput::deliver();
        EXPECT_DOUBLE_EQ(dot().pressure(), 0.25);
        pen.move(at + QPointF(5, 0), 0.5);
        PenInput::deliver();
        const QPointF place = dot().place();
        EXPECT_DOUBLE_EQ(place.y(), 100) << "programs receive a half";
        EXPECT_NEAR(QVPressResponse(place.x() / 200, threshold), 0.5, 1e-9);
        pen.release(at);
        PenInput::deliver();
        EXPECT_EQ(dot().pressure(), 0);
    }
    EXPECT_EQ(mEvents.sent.size(), 0U) << "it sends nothing";
}

TEST_F(LivePressure, theDotIsAboveTheCurveAndLeavesItAsItIs)
{
    auto& canvas = outlet<QWidget>("pressCanvas");
    auto& view = outlet<QVPressView>("mPressView");
    auto& pad = outlet<QVDrawView>("mDrawView");
    const QImage before = canvas.grab().toImage();
    const QImage curve = view.grab().toImage();
    PenInput pen(pad, 7);
    pen.press(pad.rect().center(), 0.5);
    PenInput::deliver();
    const QImage during = canvas.grab().toImage();
    const double density = canvas.devicePixelRatioF();
    EXPECT_EQ(during.pixelColor((dot().place() * density).toPoint()), QColor(Qt::red));
    EXPECT_EQ(view.grab().toImage(), curve);
    EXPECT_EQ(canvas.childAt(dot().geometry().topLeft() + dot().place().toPoint()), &view)
        << "the mouse reaches what is below";
    QImage expected = before;
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(Qt::red);
    painter.drawEllipse(QPointF(dot().pos()) + dot().place(), 5, 5);
    painter.end();
    expectSameImage(during, expected);
    pen.release(pad.rect().center());
    PenInput::deliver();
    EXPECT_EQ(canvas.grab().toImage(), before);
}

TEST_F(LivePressure, theDotIsPaintedWhereItIsAndErasedWhereItWas)
{
    auto& pad = outlet<QVDrawView>("mDrawView");
    const QPointF at = pad.rect().center();
    PenInput pen(pad, 7);
    const auto whole = [this] {
        const QPointF ring(5.5, 5.5);
        return QRectF(dot().place() - ring, dot().place() + ring).toAlignedRect();
    };
    const auto isPainted = [](const WatchedEvents& paints, const QRect& part) {
        return (QRegion(part) - paints.painted).isEmpty();
    };
    pen.press(at, 0.25);
    PenInput::deliver();
    dot().grab(); // so that nothing of it waits to be painted
    const QRect before = whole();
    WatchedEvents paints(dot(), QEvent::Paint);
    for (const double pressure : {0.5, 0.75}) {
        paints.clear();
        const QRect last = whole();
        pen.move(at + QPointF(5, 0), pressure);
        PenInput::deliver();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return isPainted(paints, last) && isPainted(paints, whole()); }, kPatience));
        EXPECT_FALSE(last.intersects(whole()));
    }
    EXPECT_FALSE(isPainted(paints, before)) << "it paints no more than that";
    pen.release(at);
    PenInput::deliver();
}

TEST_F(LivePressure, theDotIsWholeAtTheEndsToo)
{
    auto& canvas = outlet<QWidget>("pressCanvas");
    auto& pad = outlet<QVDrawView>("mDrawView");
    const auto redPixels = [&](double pressure) {
        PenInput pen(pad, 7);
        pen.press(pad.rect().center(), pressure);
        PenInput::deliver();
        const QImage image = canvas.grab().toImage();
        pen.release(pad.rect().center());
        PenInput::deliver();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
            }
        }
        return count;
    };
    const int whole = redPixels(0.5);
    EXPECT_GT(whole, 30);
    EXPECT_NEAR(redPixels(1), whole, 5);
    EXPECT_NEAR(redPixels(0.001), whole, 5);
}

TEST_F(LivePressure, aPenThatHoversHasNoDot)
{
    auto& pad = outlet<QVDrawView>("mDrawView");
    const QPointF at = pad.rect().center();
    PenInput pen(pad, 7);
    pen.press(at, 1);
    pen.release(at);
    for (const double reported : {0.0, 0.5}) {
        pen.hover(at + QPointF(5, 0), reported);
        PenInput::deliver();
        EXPECT_TRUE(dot().isHidden()) << reported;
    }
}

TEST_F(LivePressure, aMouseHasNoDot)
{
    auto& pad = outlet<QVDrawView>("mDrawView");
    QTest::mousePress(&pad, Qt::LeftButton);
    EXPECT_EQ(dot().pressure(), 0);
    QTest::mouseRelease(&pad, Qt::LeftButton);
}

TEST_F(LivePressure, fitsTheThresholdByTwoPressesAndPushesItOnce)
{
    fit([](QVPressFit& dialog) {
        const QString first = textOf(dialog);
        EXPECT_FALSE(buttonOf(dialog, "Use").isEnabled());
        press(dialog, 0.1);
        EXPECT_NE(textOf(dialog), first);
        press(dialog, 0.5);
        EXPECT_EQ(dialog.threshold(), QVFittingThreshold(0.1, 0.5));
        buttonOf(dialog, "Use").click();
    });
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, QVFittingThreshold(0.1, 0.5));
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_EQ(+pushes().back().Pen.PressureThreshold, QVFittingThreshold(0.1, 0.5));
}

TEST_F(LivePressure, takesThePressuresBeforeThePresentCurve)
{
    setThreshold(40);
    fit([](QVPressFit& dialog) {
        press(dialog, QVPressResponse(0.2, 40));
        press(dialog, QVPressResponse(0.9, 40));
        EXPECT_EQ(dialog.threshold(), QVFittingThreshold(0.2, 0.9));
    });
}

TEST_F(LivePressure, cancelLeavesTheThresholdAsItWas)
{
    fit([](QVPressFit& dialog) {
        press(dialog, 0.1);
        press(dialog, 0.5);
        buttonOf(dialog, "Cancel").click();
    });
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 100);
    EXPECT_EQ(pushes().size(), 0U);
}

TEST_F(LivePressure, asksAgainForASecondPressThatIsNotHarder)
{
    fit([](QVPressFit& dialog) {
        press(dialog, 0.5);
        const QString second = textOf(dialog);
        press(dialog, 0.5);
        EXPECT_NE(textOf(dialog), second);
        EXPECT_FALSE(buttonOf(dialog, "Use").isEnabled());
        press(dialog, 0.8);
        EXPECT_TRUE(buttonOf(dialog, "Use").isEnabled());
        buttonOf(dialog, "Start Again").click();
        EXPECT_FALSE(buttonOf(dialog, "Use").isEnabled());
        press(dialog, 0.2);
        press(dialog, 0.6);
        EXPECT_EQ(dialog.threshold(), QVFittingThreshold(0.2, 0.6));
    });
}

TEST_F(LivePressure, closesWithThePanelInAHostsWindowThatStays)
{
    QWidget host;
    mWindow->setParent(&host);
    host.show();
    QPointer<QVPressFit> dialog;
    QTimer::singleShot(0, qApp, [this, &dialog] {
        dialog = qobject_cast<QVPressFit*>(QApplication::activeModalWidget());
        ASSERT_FALSE(dialog.isNull());
        mWindow.reset();
        EXPECT_TRUE(dialog.isNull());
        if (!dialog.isNull()) {
            dialog->reject();
        }
    });
    outlet<QPushButton>("mFitPressure").click();
    EXPECT_EQ(pushes().size(), 0U);
}

TEST_F(LivePressure, outlivesAPanelThatIsClosedMeanwhile)
{
    QTimer::singleShot(0, qApp, [this] { mWindow.reset(); });
    outlet<QPushButton>("mFitPressure").click();
    EXPECT_EQ(pushes().size(), 0U);
}

TEST_F(FittingDialog, saysWhatToDoAndWhatTheResultIs)
{
    EXPECT_EQ(mDialog.windowTitle(), QStringLiteral("Fit the pressure to your hand"));
    const WatchedEvents shown(label(), QEvent::Show);
    EXPECT_EQ(text(), "Press on the pad as lightly as you ever do, and lift the pen.");
    press(mDialog, 0.25);
    EXPECT_EQ(text(), "Now press as hard as you ever do, and lift the pen.");
    EXPECT_EQ(shown.count, 1) << "screen readers read what appears";
    press(mDialog, 0.29);
    EXPECT_EQ(text().find("That was not harder than the first time."), 0U) << text();
    press(mDialog, 0.75);
    EXPECT_EQ(text(), "The curve fits your hand as it is.");
    EXPECT_EQ(mDialog.threshold(), 100);
    buttonOf(mDialog, "Start Again").click();
    EXPECT_EQ(text(), "Press on the pad as lightly as you ever do, and lift the pen.");
    press(mDialog, 0.1);
    press(mDialog, 0.5);
    EXPECT_EQ(text().find("The thick line is the curve that fits your hand"), 0U) << text();
    EXPECT_EQ(shown.count, 6);
    EXPECT_TRUE(label().isVisible());
    buttonOf(mDialog, "Start Again").click();
    press(mDialog, 0.25);
    press(mDialog, 0.3);
    EXPECT_EQ(text().find("The thick line is the curve that fits your hand"), 0U) << text();
}

TEST_F(FittingDialog, takesNoPressWithoutPressureAndNoneAfterTheSecond)
{
    press(mDialog, 0);
    EXPECT_EQ(text(), "Press on the pad as lightly as you ever do, and lift the pen.");
    press(mDialog, 0.1);
    press(mDialog, 0.5);
    const int fitting = mDialog.threshold();
    press(mDialog, 0.9);
    EXPECT_EQ(mDialog.threshold(), fitting);
}

TEST_F(FittingDialog, startedAgainHasThePresentCurve)
{
    EXPECT_FALSE(buttonOf(mDialog, "Start Again").isEnabled());
    press(mDialog, 0.1);
    EXPECT_TRUE(buttonOf(mDialog, "Start Again").isEnabled());
    press(mDialog, 0.5);
    EXPECT_NE(mDialog.threshold(), 100);
    buttonOf(mDialog, "Start Again").click();
    EXPECT_EQ(mDialog.threshold(), 100);
    EXPECT_FALSE(buttonOf(mDialog, "Start Again").isEnabled());
}

TEST_F(FittingDialog, hasADiscOnItsPadThatGrowsWithThePressure)
{
    EXPECT_EQ(pad().cursor().shape(), Qt::CrossCursor);
    const auto expectDisc = [this](double pressure) {
        QImage expected = framed(pad());
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(pad().palette().highlight());
        const double radius = std::min(pad().width(), pad().height()) * pressure / 2;
        painter.drawEllipse(QRectF(pad().rect()).center(), radius, radius);
        painter.end();
        SCOPED_TRACE(pressure);
        expectSameImage(pad().grab().toImage(), expected);
    };
    mDialog.resize(mDialog.width() + 100, mDialog.height());
    QCoreApplication::processEvents();
    EXPECT_GT(pad().width(), pad().height());
    expectDisc(0);
    WatchedEvents paints(pad(), QEvent::Paint);
    const WatchedEvents mouse(pad(), QEvent::MouseButtonPress);
    const QPointF at = pad().rect().center();
    PenInput pen(pad(), 7);
    for (const double pressure : {0.25, 1.0, 0.5}) {
        paints.clear();
        pen.move(at, pressure);
        PenInput::deliver();
        EXPECT_TRUE(paints.wait());
        expectDisc(pressure);
    }
    pen.release(at);
    PenInput::deliver();
    expectDisc(0);
    EXPECT_EQ(mouse.count, 0) << "the pen is no mouse there";
}

TEST_F(FittingDialog, drawsTheCurveThatFitsAboveThePresentOne)
{
    const auto draw = [this](QImage& image, int threshold, const QPen& pen) {
        const QRectF area(0.5, 0.5, curves().width() - 1, curves().height() - 1);
        QPainterPath path(area.bottomLeft());
        for (int percent = 1; percent <= 100; ++percent) {
            const double pressure = percent / 100.0;
            path.lineTo(area.left() + pressure * area.width(),
                area.bottom() - QVPressResponse(pressure, threshold) * area.height());
        }
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.drawPath(path);
    };
    const QPen thick(curves().palette().color(QPalette::Highlight), 3);
    const QPen dashed(curves().palette().color(QPalette::Text), 1, Qt::DashLine);
    QImage present = framed(curves());
    draw(present, 100, dashed);
    expectSameImage(curves().grab().toImage(), present);
    press(mDialog, 0.1);
    expectSameImage(curves().grab().toImage(), present);
    WatchedEvents paints(curves(), QEvent::Paint);
    press(mDialog, 0.5);
    EXPECT_TRUE(paints.wait());
    QImage both = present;
    draw(both, QVFittingThreshold(0.1, 0.5), thick);
    expectSameImage(curves().grab().toImage(), both);
    buttonOf(mDialog, "Start Again").click();
    expectSameImage(curves().grab().toImage(), present);
    press(mDialog, 0.25);
    press(mDialog, 0.75);
    expectSameImage(curves().grab().toImage(), present);
}

TEST_F(FittingDialog, keepsItsSizeAndItsPlacesWhateverItSays)
{
    const QSize size = mDialog.size();
    const QRect padBefore = pad().geometry();
    const QRect curvesBefore = curves().geometry();
    const int topBefore = textTop();
    EXPECT_TRUE(mDialog.rect().contains(padBefore));
    EXPECT_TRUE(mDialog.rect().contains(curvesBefore));
    EXPECT_LT(padBefore.right(), curvesBefore.left());
    EXPECT_EQ(padBefore.top(), curvesBefore.top());
    EXPECT_EQ(curvesBefore.width(), curvesBefore.height());
    for (const double pressure : {0.1, 0.1, 0.5}) {
        press(mDialog, pressure);
        EXPECT_EQ(mDialog.size(), size) << text();
        EXPECT_EQ(pad().size(), padBefore.size()) << text();
        EXPECT_NEAR(pad().y(), padBefore.y(), 1) << text();
        EXPECT_EQ(curves().size(), curvesBefore.size()) << text();
        EXPECT_NEAR(curves().y(), curvesBefore.y(), 1) << text();
        EXPECT_NEAR(textTop(), topBefore, 2) << text();
        EXPECT_LT(label().geometry().bottom(), padBefore.top());
        EXPECT_GE(label().height(), label().heightForWidth(label().width())) << "all of it is seen";
        EXPECT_EQ(label().minimumSizeHint().boundedTo(label().size()), label().minimumSizeHint());
    }
    mDialog.resize(size + QSize(200, 100));
    QCoreApplication::processEvents();
    EXPECT_EQ(pad().width(), padBefore.width() + 200) << "there is more room to press";
    EXPECT_EQ(curves().size(), curvesBefore.size());
    mDialog.resize(1, 1);
    QCoreApplication::processEvents();
    EXPECT_GE(pad().width(), curves().width()) << "there is always room to press";
    EXPECT_GE(pad().height(), curves().height());
}

TEST_F(FittingDialog, hasReturnPressTheButtonThatHasTheFocus)
{
    press(mDialog, 0.1);
    QTest::keyClick(mDialog.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(mDialog.result(), QDialog::Rejected);
    EXPECT_FALSE(mDialog.isVisible()) << "there is nothing to take yet";
}

TEST_F(FittingDialog, hasTheFocusOnTheButtonThatTakesTheCurveOnceThereIsOne)
{
    press(mDialog, 0.1);
    press(mDialog, 0.5);
    EXPECT_TRUE(buttonOf(mDialog, "Use").hasFocus());
    buttonOf(mDialog, "Start Again").setFocus();
    QTest::keyClick(mDialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(mDialog.isVisible());
    EXPECT_FALSE(buttonOf(mDialog, "Use").isEnabled());
    press(mDialog, 0.1);
    press(mDialog, 0.5);
    QTest::keyClick(mDialog.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(mDialog.result(), QDialog::Accepted);
    EXPECT_FALSE(mDialog.isVisible());
}

TEST_F(FittingDialog, isCancelledByReturnOnCancelAlsoWhenThereIsACurve)
{
    press(mDialog, 0.1);
    press(mDialog, 0.5);
    buttonOf(mDialog, "Cancel").setFocus();
    QTest::keyClick(mDialog.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(mDialog.result(), QDialog::Rejected);
    EXPECT_FALSE(mDialog.isVisible());
}
