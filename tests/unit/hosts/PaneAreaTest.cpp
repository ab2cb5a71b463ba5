// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneArea.h"

#include "AlertAnswer.h"
#include "NotedPane.h"

#include <QCoreApplication>
#include <QDialog>
#include <QHideEvent>
#include <QMessageBox>
#include <QTest>
#include <QVBoxLayout>
#include <QtTest/qtestspontaneevent.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace {

class Area : public testing::Test {
protected:
    Area()
    {
        auto pane = std::make_unique<NotedPane>(mLife);
        mPane = pane.get();
        mArea = new PaneArea(std::move(pane));
        mArea->setChangeHandler([this](bool isChanged) { mTold = isChanged; });
        auto* const layout = new QVBoxLayout(mWindow.get());
        layout->addWidget(mArea);
    }

    QStringList calls() { return mLife.take(); }

    /** Runs the host's event loop until it is idle. */
    static void settle() { QCoreApplication::processEvents(); }

    void show()
    {
        mWindow->show();
        settle();
        calls();
    }

    PaneLife mLife;
    std::unique_ptr<QDialog> mWindow = std::make_unique<QDialog>();
    NotedPane* mPane = nullptr;
    PaneArea* mArea = nullptr;
    std::optional<bool> mTold;
};

} // namespace

TEST_F(Area, hidesThePanesOwnButtonsBeforeItIsShown)
{
    EXPECT_EQ(calls(), QStringList{QStringLiteral("buttons hidden")});
}

TEST_F(Area, comesAndLeavesOnceWithItsWindow)
{
    calls();
    mWindow->show();
    EXPECT_EQ(calls(), kComing);
    mWindow->hide();
    settle();
    EXPECT_EQ(calls(), kLeaving);
    mWindow->show();
    EXPECT_EQ(calls(), kComing);
}

TEST_F(Area, staysWhenTheHostHidesAndShowsItOnTheWay)
{
    show();
    mArea->hide();
    mArea->show();
    mWindow->hide();
    mWindow->show();
    mArea->hide();
    mArea->show();
    settle();
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(Area, isLeftWhenItIsDestroyed)
{
    show();
    mWindow.reset();
    EXPECT_EQ(calls(), kLeaving);
}

TEST_F(Area, isNotLeftTwiceWhenItIsHiddenAndDestroyed)
{
    show();
    mWindow->hide();
    mWindow.reset();
    settle();
    EXPECT_EQ(calls(), kLeaving);
}

TEST_F(Area, isNotLeftWhenItNeverCame)
{
    calls();
    mWindow.reset();
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(Area, isLeftWhenTheApplicationEnds)
{
    show();
    ASSERT_TRUE(QMetaObject::invokeMethod(qApp, "aboutToQuit"));
    EXPECT_EQ(calls(), kLeaving);
    mWindow.reset();
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(Area, staysWhenTheWindowIsMinimised)
{
    show();
    QHideEvent hide;
    QSpontaneKeyEvent::setSpontaneous(&hide);
    ASSERT_TRUE(hide.spontaneous());
    mArea->setAttribute(Qt::WA_WState_Visible, false); // as when it is minimised
    qApp->notify(mArea, &hide);
    settle();
    EXPECT_EQ(calls(), QStringList());
    mArea->setAttribute(Qt::WA_WState_Visible, true);
}

TEST_F(Area, appliesBySaving)
{
    show();
    mPane->edit();
    EXPECT_EQ(mTold, true);
    mArea->apply();
    EXPECT_EQ(mTold, false);
    EXPECT_EQ(calls(), QStringList{QStringLiteral("save")});
}

TEST_F(Area, saysAgainThatThereAreChangesAfterASaveThatFailed)
{
    show();
    mLife.canSave = false;
    mPane->edit();
    mArea->apply();
    mTold.reset(); // by now, the host assumes that there are none
    settle();
    EXPECT_EQ(mTold, true);
}

TEST_F(Area, resetsByCancellingAndShowsThePaneAnew)
{
    show();
    mPane->edit();
    mArea->reset();
    EXPECT_EQ(calls(), QStringList{QStringLiteral("cancel")} + kLeaving + kComing);
    EXPECT_EQ(mTold, false);
    mWindow.reset();
    EXPECT_EQ(calls(), kLeaving);
}

TEST_F(Area, resetsNothingWhereNothingHasChanged)
{
    show();
    mArea->reset();
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(Area, givesUpTheChangesWhenItsDialogIsRejected)
{
    show();
    mPane->edit();
    mWindow->reject();
    settle();
    EXPECT_EQ(calls(), QStringList{QStringLiteral("cancel")} + kLeaving);
}

TEST_F(Area, cancelsNothingWhenAnUnchangedDialogIsRejectedOrAChangedOneAccepted)
{
    show();
    mWindow->reject();
    settle();
    EXPECT_EQ(calls(), kLeaving);
    show();
    mPane->edit();
    mWindow->accept();
    settle();
    EXPECT_EQ(calls(), kLeaving);
}

TEST_F(Area, asksWhetherToTryAgainWhenChangesCannotBeSavedOnceItIsOutOfSight)
{
    show();
    mPane->edit();
    mLife.canSave = false;
    mWindow->hide();
    const AlertAnswer first("Retry");
    QTimer::singleShot(0, &first, [&] {
        // The user frees space:
        mLife.canSave = true;
    });
    settle();
    EXPECT_EQ(
        first.text(), QStringLiteral("The tablet's settings could not be saved: the disk is full"));
    EXPECT_EQ(calls(), QStringList{QStringLiteral("will unselect")} + kLeaving);
}

TEST_F(Area, givesUpTheChangesThatCannotBeSavedWhenTheUserDiscardsThem)
{
    show();
    mPane->edit();
    mLife.canSave = false;
    mWindow->hide();
    const AlertAnswer answer("Discard");
    settle();
    EXPECT_EQ(calls(),
        (QStringList{QStringLiteral("will unselect"), QStringLiteral("cancel"),
            QStringLiteral("did unselect")}));
    EXPECT_EQ(mTold, false);
}

TEST_F(Area, givesUpTheChangesThatCannotBeSavedWhenTheQuestionIsDismissed)
{
    show();
    mPane->edit();
    mLife.canSave = false;
    mWindow->hide();
    bool isDismissed = false;
    QTimer::singleShot(0, mWindow.get(), [&isDismissed] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        QTest::keyClick(box, Qt::Key_Escape);
        isDismissed = !box->isVisible();
        box->reject();
    });
    settle();
    EXPECT_TRUE(isDismissed);
    EXPECT_EQ(calls(),
        (QStringList{QStringLiteral("will unselect"), QStringLiteral("cancel"),
            QStringLiteral("did unselect")}));
}

TEST_F(Area, asksNothingWhenItIsDestroyed)
{
    show();
    mPane->edit();
    mLife.canSave = false;
    mWindow.reset();
    EXPECT_EQ(calls(), kLeaving);
}
