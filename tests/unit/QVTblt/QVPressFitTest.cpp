// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Live pressure: the dot on the curve, and fitting the curve to a hand.

#include "QVPressFit.h"

#include "Accessible.h"
#include "PaneTest.h"
#include "PenInput.h"
#include "QVDrawView.h"
#include "QVPressCurve.h"
#include "QVPressView.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <stdexcept>

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

QPushButton& button(const QVPressFit& dialog, QDialogButtonBox::ButtonRole role)
{
    auto* const box = dialog.findChild<QDialogButtonBox*>();
    for (QAbstractButton* const button : box->buttons()) {
        if (box->buttonRole(button) == role) {
            return *qobject_cast<QPushButton*>(button);
        }
    }
    throw std::logic_error("no such button");
}

QString textOf(const QVPressFit& dialog)
{
    return dialog.findChild<platform::NoticeLabel*>()->text();
}

/** Presses on the dialog's pad with a pressure that rises and falls. */
void press(QVPressFit& dialog, double pressure)
{
    QWidget* pad = nullptr;
    const auto children = dialog.findChildren<QWidget*>();
    for (QWidget* const child : children) {
        if (child->accessibleName() == QStringLiteral("Pad to press on")) {
            pad = child;
        }
    }
    ASSERT_NE(pad, nullptr);
    const QPointF at = pad->rect().center();
    PenInput pen(*pad, 7);
    pen.press(at, pressure / 2);
    pen.move(at, pressure);
    pen.move(at, pressure / 4);
    pen.release(at);
    PenInput::deliver();
}

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
    pen.release(pad.rect().center());
    PenInput::deliver();
    EXPECT_EQ(canvas.grab().toImage(), before);
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
    pen.hover(at + QPointF(5, 0));
    PenInput::deliver();
    EXPECT_TRUE(dot().isHidden());
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
        EXPECT_FALSE(button(dialog, QDialogButtonBox::AcceptRole).isEnabled());
        press(dialog, 0.1);
        EXPECT_NE(textOf(dialog), first);
        press(dialog, 0.5);
        EXPECT_EQ(dialog.threshold(), QVFittingThreshold(0.1, 0.5));
        button(dialog, QDialogButtonBox::AcceptRole).click();
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
        button(dialog, QDialogButtonBox::RejectRole).click();
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
        EXPECT_FALSE(button(dialog, QDialogButtonBox::AcceptRole).isEnabled());
        press(dialog, 0.8);
        EXPECT_TRUE(button(dialog, QDialogButtonBox::AcceptRole).isEnabled());
        button(dialog, QDialogButtonBox::ResetRole).click();
        EXPECT_FALSE(button(dialog, QDialogButtonBox::AcceptRole).isEnabled());
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
