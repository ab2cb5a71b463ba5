// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "SelfCheckDialog.h"

#include "Accessible.h"
#include "DialogSize.h"
#include "Dialogs.h"
#include "NotedPane.h"
#include "WatchedEvents.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

using Status = platform::PreferencePane::CheckedStage::Status;

class SelfCheckWindow : public testing::Test {
protected:
    SelfCheckWindow() { qputenv("LANGUAGE", "en"); }

    void open()
    {
        mDialog = std::make_unique<SelfCheckDialog>(mPane, nullptr);
        mDialog->show();
        activate(*mDialog);
    }
    QListWidget& list() { return *mDialog->findChild<QListWidget*>(); }
    QLabel& result() { return *mDialog->findChild<platform::NoticeLabel*>(); }
    QPushButton& button(const char* text) { return buttonOf(*mDialog, text); }

    PaneLife mLife;
    NotedPane mPane{mLife};
    platform::PreferencePane::SelfCheck mProblem{
        {{QStringLiteral("bus"), Status::Ok, QStringLiteral("The bus answers."), {}},
            {QStringLiteral("driver"), Status::Problem, QStringLiteral("There is no driver."),
                QStringLiteral("Install one.")},
            {QStringLiteral("answer"), Status::NotChecked, QStringLiteral("Not yet."), {}},
            {QStringLiteral("file"), Status::Problem, QStringLiteral("The disk is full."), {}}},
        QStringLiteral("the report")};
    std::unique_ptr<SelfCheckDialog> mDialog;
};

} // namespace

TEST_F(SelfCheckWindow, checksAtOnceAndAgainOnRequest)
{
    open();
    QSignalSpy checks(mDialog.get(), &SelfCheckDialog::checked);
    EXPECT_EQ(mDialog->windowTitle(), QStringLiteral("Self-Check"));
    for (int time = 1; time <= 2; ++time) {
        EXPECT_EQ(mLife.take(), QStringList{QStringLiteral("check self")});
        EXPECT_EQ(result().text(), QStringLiteral("Checking…"));
        EXPECT_EQ(list().count(), 0);
        EXPECT_FALSE(button("Check Again").isEnabled());
        EXPECT_FALSE(button("Copy Report").isEnabled());
        mPane.checkDone(mProblem);
        EXPECT_EQ(checks.count(), time);
        EXPECT_EQ(list().count(), 4);
        EXPECT_TRUE(button("Copy Report").isEnabled());
        button("Check Again").click();
    }
}

TEST_F(SelfCheckWindow, selectsTheFirstProblem)
{
    open();
    mPane.checkDone(mProblem);
    EXPECT_EQ(result().text(), QStringLiteral("Something is wrong. Begin with the first problem:"));
    EXPECT_EQ(list().currentRow(), 1);
    EXPECT_EQ(mDialog->focusWidget(), &list()) << "so that the keyboard reaches the others";
    button("Check Again").click();
    mProblem.stages.resize(1);
    mPane.checkDone(mProblem);
    EXPECT_EQ(result().text(), QStringLiteral("No problems were found."));
    EXPECT_EQ(list().currentRow(), 0);
}

TEST_F(SelfCheckWindow, marksProblemsWithMoreThanAColour)
{
    open();
    mPane.checkDone(mProblem);
    const auto picture = [this](int row) {
        return list().item(row)->icon().pixmap(list().iconSize().expandedTo({16, 16})).toImage();
    };
    EXPECT_EQ(list().item(1)->text(), QStringLiteral("There is no driver.\nInstall one."));
    EXPECT_EQ(list().item(3)->text(), QStringLiteral("The disk is full."));
    for (int row = 0; row < list().count(); ++row) {
        const bool isProblem = row == 1 || row == 3;
        EXPECT_EQ(list().item(row)->font().bold(), isProblem) << row;
    }
    EXPECT_NE(picture(0), picture(1));
    EXPECT_EQ(picture(1), picture(3));
    QImage nothing = picture(2);
    nothing.fill(Qt::transparent);
    EXPECT_EQ(picture(2), nothing);
}

TEST_F(SelfCheckWindow, alignsWhatWasNotCheckedWithTheOthers)
{
    mProblem.stages[0].text = mProblem.stages[2].text;
    open();
    mPane.checkDone(mProblem);
    const auto size = [this](int row) {
        return list().sizeHintForIndex(list().model()->index(row, 0));
    };
    EXPECT_EQ(size(0), size(2));
}

TEST_F(SelfCheckWindow, isReadByScreenReaders)
{
    open();
    EXPECT_EQ(list().accessibleName(), QStringLiteral("What was checked"));
    EXPECT_EQ(button("Copy Report").accessibleDescription(),
        QStringLiteral("For the person who helps you. It contains no personal data."));
    EXPECT_EQ(button("Copy Report").toolTip(), button("Copy Report").accessibleDescription());
    const WatchedEvents shows(result(), QEvent::Show);
    mPane.checkDone(mProblem);
    EXPECT_EQ(shows.count, 1) << "what appears is announced";
    QStringList read;
    for (int row = 0; row < list().count(); ++row) {
        read.append(list().item(row)->data(Qt::AccessibleTextRole).toString());
    }
    EXPECT_EQ(read,
        (QStringList{QStringLiteral("OK: The bus answers."),
            QStringLiteral("Problem: There is no driver.\nInstall one."),
            QStringLiteral("Not checked: Not yet."),
            QStringLiteral("Problem: The disk is full.")}));
}

TEST_F(SelfCheckWindow, copiesTheReport)
{
    open();
    QApplication::clipboard()->setText(QStringLiteral("something else"));
    mPane.checkDone(mProblem);
    button("Copy Report").click();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("the report"));
}

TEST_F(SelfCheckWindow, showsAllOfALongTextAndOfALongPath)
{
    mProblem.stages[0].text = QString(QStringLiteral("text ")).repeated(100).trimmed();
    mProblem.stages[1].text = QStringLiteral("There is no /") + QString(500, u'x');
    open();
    mPane.checkDone(mProblem);
    for (int row = 0; row < 2; ++row) {
        expectWrapped(list(), row);
    }
    EXPECT_FALSE(list().horizontalScrollBar()->isVisible());
    EXPECT_TRUE(
        list().item(1)->data(Qt::AccessibleTextRole).toString().contains(mProblem.stages[1].text))
        << "it is read as it is";
}

TEST_F(SelfCheckWindow, wrapsItsResult)
{
    open();
    result().setText(QString(QStringLiteral("text ")).repeated(100));
    const int lines = result().heightForWidth(result().width()) / result().fontMetrics().height();
    EXPECT_GE(lines, 3);
    result().setText(QStringLiteral("<b>a</b>"));
    EXPECT_EQ(result().textFormat(), Qt::PlainText);
}

TEST_F(SelfCheckWindow, hasItsResultAboveTheStagesAndItsButtonsBelow)
{
    open();
    mPane.checkDone(mProblem);
    QCoreApplication::processEvents();
    EXPECT_GT(list().height(), 20 * list().fontMetrics().lineSpacing()) << "room for most stages";
    EXPECT_LE(result().geometry().bottom(), list().y());
    const QWidget& buttons = *mDialog->findChild<QDialogButtonBox*>();
    EXPECT_GE(buttons.y(), list().geometry().bottom());
    for (const QWidget* const part : {static_cast<const QWidget*>(&list()), &buttons}) {
        EXPECT_GT(part->width(), mDialog->width() * 9 / 10);
    }
}

TEST_F(SelfCheckWindow, isAsLargeAsItsTextOrNearlyAsTheScreen)
{
    open();
    const QSize usual = mDialog->size();
    const QSize room = mDialog->screen()->availableSize();
    EXPECT_EQ(usual, mDialog->sizeHint().boundedTo(room * kMostOfScreen));
    EXPECT_GE(usual.width(), 60 * mDialog->fontMetrics().averageCharWidth());
    const QFont before = QApplication::font();
    const auto restoring = qScopeGuard([&before] { QApplication::setFont(before); });
    QFont large = before;
    large.setPointSize(2 * QFontInfo(before).pointSize());
    QApplication::setFont(large);
    open();
    EXPECT_GE(mDialog->sizeHint().width(), 80 * QFontMetrics(large).averageCharWidth());
    EXPECT_GE(mDialog->sizeHint().height(), 28 * QFontMetrics(large).lineSpacing());
    ASSERT_GT(mDialog->sizeHint().height(), room.height());
    EXPECT_GT(mDialog->height(), room.height() * 3 / 4);
    EXPECT_LT(mDialog->height(), room.height());
}

TEST_F(SelfCheckWindow, isClosedByItsButtonAndByEscape)
{
    for (const bool isButton : {true, false}) {
        open();
        if (isButton) {
            button("Close").click();
        } else {
            QTest::keyClick(mDialog->focusWidget(), Qt::Key_Escape);
        }
        EXPECT_FALSE(mDialog->isVisible());
    }
}

TEST_F(SelfCheckWindow, mayBeGoneBeforeTheCheckEnds)
{
    open();
    mDialog.reset();
    mPane.checkDone(mProblem);
}
