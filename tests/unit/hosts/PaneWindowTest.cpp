// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneWindow.h"

#include "AlertAnswer.h"
#include "NotedPane.h"

#include <QAbstractButton>

#include <gtest/gtest.h>

#include <memory>

namespace {

class Window : public testing::Test {
protected:
    Window()
    {
        auto pane = std::make_unique<NotedPane>(mLife);
        mPane = pane.get();
        mWindow = std::make_unique<PaneWindow>(std::move(pane));
        mWindow->select();
        mLife.take();
    }

    PaneLife mLife;
    NotedPane* mPane = nullptr;
    std::unique_ptr<PaneWindow> mWindow;
};

} // namespace

TEST_F(Window, leavesThePaneOnceWhenItIsClosed)
{
    EXPECT_TRUE(mWindow->close());
    EXPECT_FALSE(mWindow->isVisible());
    mWindow->unselect();
    EXPECT_EQ(mLife.take(), kLeaving);
}

TEST_F(Window, asksNothingWhereNoChangesAreLost)
{
    mLife.canSave = false;
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(mLife.take(), kLeaving);
}

TEST_F(Window, staysOpenWhereChangesCannotBeSavedAndTheUserWantsToKeepIt)
{
    mPane->edit();
    mLife.canSave = false;
    const AlertAnswer answer("Keep Open");
    EXPECT_FALSE(mWindow->close());
    EXPECT_EQ(answer.text(),
        QStringLiteral("The tablet's settings could not be saved: the disk is full\n"
                       "Close the window and discard the changes?"));
    EXPECT_TRUE(mWindow->isVisible());
    EXPECT_EQ(mLife.take(), QStringList{QStringLiteral("will unselect")});
    mLife.canSave = true;
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(mLife.take(), kLeaving);
}

TEST_F(Window, staysOpenWhenTheQuestionIsDismissed)
{
    mPane->edit();
    mLife.canSave = false;
    const AlertAnswer answer(Qt::Key_Escape);
    EXPECT_FALSE(mWindow->close());
    EXPECT_TRUE(mWindow->isVisible());
}

TEST_F(Window, staysOpenByDefault)
{
    mPane->edit();
    mLife.canSave = false;
    const AlertAnswer answer(Qt::Key_Return);
    QTimer::singleShot(0, &answer, [this] { mLife.canSave = true; });
    EXPECT_FALSE(mWindow->close());
    EXPECT_TRUE(mWindow->isVisible());
}

TEST_F(Window, givesTheChangesUpAtTheDriverTooWhenTheUserDiscardsThem)
{
    mPane->edit();
    mLife.canSave = false;
    const AlertAnswer answer("Discard");
    EXPECT_TRUE(mWindow->close());
    EXPECT_FALSE(mWindow->isVisible());
    EXPECT_EQ(mLife.take(),
        (QStringList{QStringLiteral("will unselect"), QStringLiteral("cancel"),
            QStringLiteral("did unselect")}));
}

TEST_F(Window, isLeftOnceWhenTheProgramIsToldToEndWhileItAsks)
{
    mPane->edit();
    mLife.canSave = false;
    QTimer::singleShot(0, mWindow.get(), [this] { mWindow->unselect(); });
    const AlertAnswer answer("Discard");
    EXPECT_FALSE(mWindow->close());
    EXPECT_EQ(mLife.take(), QStringList{QStringLiteral("will unselect")} + kLeaving);
}

TEST_F(Window, asksNobodyWhenTheProgramIsToldToEnd)
{
    mPane->edit();
    mLife.canSave = false;
    mWindow->unselect();
    EXPECT_EQ(mLife.take(), kLeaving);
}
