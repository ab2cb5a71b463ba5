// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "WheelGuard.h"

#include "Wait.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <qpa/qwindowsysteminterface.h>

#include <gtest/gtest.h>

namespace {

/** A page that is too high for its window, with a slider and a list on it. */
class GuardedPage : public testing::Test {
protected:
    GuardedPage()
    {
        auto* const page = new QWidget;
        page->setFixedSize(200, 2000);
        mSlider = new QSlider(Qt::Horizontal, page);
        mSlider->setGeometry(10, 300, 150, 30);
        mSlider->setValue(50);
        mBox = new QComboBox(page);
        mBox->setGeometry(10, 350, 150, 30);
        mBox->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        mBox->setCurrentIndex(1);
        mArea.setWidget(page);
        mArea.resize(220, 400);
        mArea.verticalScrollBar()->setValue(200);
        mArea.show();
        mArea.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mArea, kPatience));
        mArea.setFocus();
        platform::ignoreWheelWithoutFocus(*mSlider);
        platform::ignoreWheelWithoutFocus(*mBox);
    }

    static void turnWheel(QWidget& over)
    {
        const QPoint at(5, 5);
        const QWidget& window = *over.window();
        QWindowSystemInterface::handleWheelEvent(window.windowHandle(), over.mapTo(&window, at),
            over.mapToGlobal(at), QPoint(), QPoint(0, -120));
        QCoreApplication::processEvents();
    }
    int scrolled() { return mArea.verticalScrollBar()->value() - 200; }

    QScrollArea mArea;
    QSlider* mSlider = nullptr;
    QComboBox* mBox = nullptr;
};

} // namespace

TEST_F(GuardedPage, scrollsWhereTheWheelTurnsOverAControlWithoutFocus)
{
    turnWheel(*mSlider);
    EXPECT_EQ(mSlider->value(), 50);
    const int first = scrolled();
    EXPECT_GT(first, 0);
    turnWheel(*mBox);
    EXPECT_EQ(mBox->currentIndex(), 1);
    EXPECT_GT(scrolled(), first);
}

TEST_F(GuardedPage, leavesTheWheelToAControlThatHasTheFocus)
{
    mSlider->setFocus();
    turnWheel(*mSlider);
    EXPECT_NE(mSlider->value(), 50);
    mBox->setFocus();
    turnWheel(*mBox);
    EXPECT_EQ(mBox->currentIndex(), 2);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(GuardedPage, givesNoControlTheFocusByTheWheel)
{
    turnWheel(*mBox);
    turnWheel(*mSlider);
    EXPECT_TRUE(mArea.hasFocus());
    EXPECT_EQ(mBox->focusPolicy(), Qt::StrongFocus) << "the keyboard still reaches it";
}
