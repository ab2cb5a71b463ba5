// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneShell.h"

#include "Accessible.h"
#include "ErrorText.h"
#include "FakeDisplays.h"
#include "NotedPane.h"
#include "SelfCheckDialog.h"
#include "TemporaryHome.h"
#include "Wait.h"
#include "WatchedEvents.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace {

using News = platform::PreferencePane::News;
using Device = platform::PreferencePane::Device;

const QString kNotTaken =
    QStringLiteral("The tablet's driver has not accepted the last change. Is it running?");

class Shell : public testing::TestWithParam<PaneShell::Host> {
protected:
    Shell()
    {
        auto pane = std::make_unique<NotedPane>(mLife);
        mPane = pane.get();
        mShell = std::make_unique<PaneShell>(std::move(pane), GetParam());
        mLife.take();
    }

    void show()
    {
        mShell->willSelect();
        mShell->show();
        mShell->didSelect();
        mLife.take();
    }
    void leave()
    {
        static_cast<void>(mShell->willUnselect());
        mShell->hide();
        mShell->didUnselect();
        mLife.take();
    }

    /** The tablet is another, and the changes for the former one cannot be saved. */
    void showAnotherTabletWithoutSaving()
    {
        show();
        mPane->edit();
        mLife.canSave = false;
        mLife.device = Device::Other;
        mPane->tell(News::DeviceMayHaveChanged);
        QCoreApplication::processEvents();
    }

    /** The text of the line; empty if there is none. */
    QString notice()
    {
        const auto* const label = mShell->findChild<platform::NoticeLabel*>();
        return label == nullptr || !label->isVisible() ? QString() : label->text();
    }
    /** The visible button with that text; null if there is none. */
    QPushButton* button(const char* text)
    {
        const auto buttons = mShell->findChildren<QPushButton*>();
        for (QPushButton* const button : buttons) {
            if (button->isVisible()
                && QString(button->text()).remove(u'&') == QString::fromUtf8(text)) {
                return button;
            }
        }
        return nullptr;
    }
    void press(const char* text)
    {
        QPushButton* const found = button(text);
        ASSERT_NE(found, nullptr) << text;
        QTest::mouseClick(found, Qt::LeftButton);
    }

    PaneLife mLife;
    NotedPane* mPane = nullptr;
    std::unique_ptr<PaneShell> mShell;
};

QStringList calls(std::initializer_list<const char*> names)
{
    QStringList list;
    for (const char* const name : names) {
        list.append(QString::fromLatin1(name));
    }
    return list;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(InEachHost, Shell,
    testing::Values(PaneShell::Host::Window, PaneShell::Host::SettingsApplication),
    [](const auto& host) {
        return std::string(host.param == PaneShell::Host::Window ? "window" : "settings");
    });

TEST_P(Shell, saysThatAChangeWasNotTakenUntilOneIs)
{
    show();
    EXPECT_EQ(notice(), QString());
    mPane->tell(News::ChangeNotTaken);
    EXPECT_EQ(notice(), kNotTaken);
    mPane->tell(News::ChangeTaken);
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(mLife.take(), QStringList()) << "nobody asked for anything to be sent";
}

TEST_P(Shell, sendsAgainByHandToADriverThatHasTheSameTablet)
{
    show();
    mPane->tell(News::ChangeNotTaken);
    press("Send Again");
    EXPECT_EQ(mLife.take(), calls({"check", "send"}));
    EXPECT_EQ(notice(), kNotTaken) << "until it is taken";
}

TEST_P(Shell, sendsNothingToADriverThatDoesNotSayWhichTabletItHas)
{
    show();
    mPane->tell(News::ChangeNotTaken);
    mLife.device = Device::Unknown;
    press("Send Again");
    EXPECT_EQ(mLife.take(), calls({"check"}));
    EXPECT_EQ(notice(), kNotTaken);
}

TEST_P(Shell, showsThePaneAnewInsteadOfSendingToADriverThatHasAnotherTablet)
{
    show();
    mPane->tell(News::ChangeNotTaken);
    mLife.device = Device::Other;
    press("Send Again");
    EXPECT_EQ(mLife.take(), calls({"check"}) + kLeaving + kComing);
    EXPECT_EQ(notice(), QString()) << "each showing begins without";
}

TEST_P(Shell, sendsNothingByItselfWhenADriverComes)
{
    show();
    mPane->tell(News::ChangeNotTaken);
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"}));
    EXPECT_EQ(notice(), kNotTaken);
}

TEST_P(Shell, leavesThePaneAndShowsItAnewWhenTheTabletIsAnother)
{
    show();
    mLife.device = Device::Other;
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"}) + kLeaving + kComing);
    EXPECT_TRUE(mShell->isSelected());
}

TEST_P(Shell, asksOnceWhenADriverIsToldOfTwice)
{
    show();
    mPane->tell(News::DeviceMayHaveChanged);
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"}));
}

TEST_P(Shell, asksADriverThatDidNotAnswerAgainWhenItTakesSomething)
{
    show();
    mLife.device = Device::Unknown;
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"}));
    mLife.device = Device::Other;
    mPane->tell(News::ChangeTaken);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"}) + kLeaving + kComing);
    mPane->tell(News::ChangeTaken);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), QStringList());
}

TEST_P(Shell, saysThatTheFormerTabletsChangesAreLost)
{
    showAnotherTabletWithoutSaving();
    EXPECT_EQ(notice(),
        QStringLiteral("The previous tablet's settings were not saved: the disk is full"));
    mLife.canSave = true;
    mShell->save();
    EXPECT_EQ(notice(), QString()) << "the user has gone on with this tablet";
    EXPECT_EQ(button("Try Again"), nullptr) << "there is nothing left to save";
    leave();
    show();
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, saysNothingOfAFormerTabletOnceItIsShownAgain)
{
    showAnotherTabletWithoutSaving();
    EXPECT_NE(notice(), QString());
    leave();
    show();
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, loadsWhatCouldNotBeLoadedBeforeItSavesOnLeaving)
{
    mLife.canLoad = false;
    show();
    mLife.canLoad = true; // the file was repaired meanwhile
    EXPECT_EQ(errorText(mShell->willUnselect()), "");
    EXPECT_EQ(mLife.take(), calls({"did unselect"}) + kComing + calls({"will unselect"}));
}

TEST_P(Shell, loadsNothingOnLeavingOnceTheTabletHasGone)
{
    mLife.canLoad = false;
    mLife.canSave = false;
    show();
    leave();
    mLife.hasDevice = false;
    show();
    EXPECT_EQ(errorText(mShell->willUnselect()), "");
    EXPECT_EQ(mLife.take(), calls({"will unselect"}));
}

TEST_P(Shell, savesWhatTheUserHasChangedAlsoWhereNothingCouldBeLoaded)
{
    mLife.canLoad = false;
    show();
    mPane->edit();
    static_cast<void>(mShell->willUnselect());
    EXPECT_EQ(mLife.take(), calls({"will unselect"}));
}

TEST_P(Shell, asksNobodyWhileItIsNotShown)
{
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    show();
    leave();
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), QStringList());
}

TEST_P(Shell, closesThePanesDialogsWhenTheTabletIsAnother)
{
    show();
    QDialog dialog(&mShell->view());
    QTimer::singleShot(0, mShell.get(), [this] {
        mLife.device = Device::Other;
        mPane->tell(News::DeviceMayHaveChanged);
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(mLife.take(), calls({"check"}) + kLeaving + kComing);
}

TEST_P(Shell, leavesTheDialogsOfTheHostOpenWhenTheTabletIsAnother)
{
    show();
    QDialog dialog;
    QTimer::singleShot(0, mShell.get(), [&] {
        mLife.device = Device::Other;
        mPane->tell(News::DeviceMayHaveChanged);
        QCoreApplication::processEvents();
        EXPECT_TRUE(dialog.isVisible());
        dialog.accept();
    });
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
}

TEST_P(Shell, sendsOnceWhatHasChangedByItself)
{
    show();
    mPane->tell(News::ChangedByItself);
    EXPECT_EQ(mLife.take(), calls({"check", "send"}));
    mLife.device = Device::Unknown;
    mPane->tell(News::ChangedByItself);
    EXPECT_EQ(mLife.take(), calls({"check"}));
    EXPECT_EQ(notice(), kNotTaken);
}

TEST_P(Shell, sendsNothingWhatHasChangedByItselfWhileItIsNotShown)
{
    show();
    leave();
    mPane->tell(News::ChangedByItself);
    EXPECT_EQ(mLife.take(), QStringList());
}

TEST_P(Shell, saysWhyASaveFailedAndTriesAgainByHand)
{
    show();
    mPane->edit();
    mLife.canSave = false;
    mShell->save();
    EXPECT_EQ(notice(), QStringLiteral("The settings were not saved: the disk is full"));
    mLife.take();
    press("Try Again");
    EXPECT_EQ(mLife.take(), calls({"check", "save"}));
    EXPECT_EQ(notice(), QStringLiteral("The settings were not saved: the disk is full"));
    mLife.canSave = true;
    press("Try Again");
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, savesNothingAgainForADriverThatHasAnotherTablet)
{
    show();
    mLife.canSave = false;
    mShell->save();
    mLife.take();
    mLife.device = Device::Other;
    press("Try Again");
    EXPECT_EQ(mLife.take(), calls({"check"}) + kLeaving + kComing);
}

TEST_P(Shell, saysAtOnceThatTheSettingsCannotBeLoadedAndLoadsThemAgainByHand)
{
    mLife.canLoad = false;
    show();
    EXPECT_EQ(notice(),
        QStringLiteral(
            "The tablet's settings cannot be loaded, so the pages do not show them: no such file"));
    mLife.canLoad = true;
    press("Try Again");
    EXPECT_EQ(mLife.take(), calls({"did unselect"}) + kComing)
        << "leaving the pane would have saved what could not be loaded";
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, loadsTheSettingsWhenADriverComesThatMayHaveBroughtThem)
{
    mLife.canLoad = false;
    show();
    mLife.canLoad = true;
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check", "did unselect"}) + kComing);
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, saysNothingOfAFailedSaveWithoutATablet)
{
    mLife.hasDevice = false;
    mLife.canSave = false;
    show();
    static_cast<void>(mShell->willUnselect());
    EXPECT_EQ(notice(), QString());
    mPane->tell(News::ChangeNotTaken);
    EXPECT_EQ(notice(), QString());
    mShell->didUnselect();
    mLife.hasDevice = true;
    show();
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, saysWhatIsWrongLiterallyAndWhole)
{
    show();
    mShell->resize(500, 400);
    const QString reason =
        QStringLiteral("<b>disk</b> ") + QStringLiteral("a long reason ").repeated(12);
    mPane->tell(News::NotSaved, reason);
    QCoreApplication::processEvents();
    EXPECT_TRUE(notice().contains(reason));
    auto& label = *mShell->findChild<platform::NoticeLabel*>();
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(mShell->width(), 500);
    EXPECT_GE(label.height(), 2 * label.fontMetrics().lineSpacing()) << "it wraps";
    EXPECT_GE(label.height(), label.heightForWidth(label.width()));
    EXPECT_GT(button("Try Again")->x(), label.geometry().right());
    // It can be copied.
    const QPoint start = label.rect().topLeft() + QPoint(1, label.fontMetrics().ascent());
    QTest::mouseDClick(&label, Qt::LeftButton, {}, start);
    EXPECT_EQ(label.selectedText(), QStringLiteral("The"));
}

TEST_P(Shell, hasScrollBarsInAWindowThatIsTooSmall)
{
    mShell->view().setMinimumSize(300, 200);
    show();
    const auto* const area = mShell->findChild<QScrollArea*>();
    if (GetParam() == PaneShell::Host::SettingsApplication) {
        EXPECT_EQ(area, nullptr) << "the host has its own";
    } else {
        ASSERT_NE(area, nullptr);
        mShell->resize(200, 150);
        QCoreApplication::processEvents();
        EXPECT_EQ(mShell->size(), QSize(200, 150));
        EXPECT_GT(area->horizontalScrollBar()->maximum(), 0);
        EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    }
    mShell->resize(700, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(mShell->view().width(), 700);
}

TEST_P(Shell, leavesThePaneTheWholeHeightWhereNothingIsBelowIt)
{
    show();
    const int bottom =
        mShell->view().mapTo(mShell.get(), mShell->view().rect().bottomLeft()).y() + 1;
    if (GetParam() == PaneShell::Host::SettingsApplication) {
        EXPECT_EQ(bottom, mShell->height());
    } else {
        EXPECT_EQ(bottom, mShell->height() - mShell->bottomHeight());
    }
}

TEST_P(Shell, hasEachNewLineAppearSoThatScreenReadersReadIt)
{
    show();
    mPane->tell(News::ChangeNotTaken);
    auto& label = *mShell->findChild<platform::NoticeLabel*>();
    const WatchedEvents shown(label, QEvent::Show);
    mPane->tell(News::ChangeNotTaken);
    EXPECT_EQ(shown.count, 0) << "it says the same";
    mPane->tell(News::NotSaved, QStringLiteral("the disk is full"));
    EXPECT_EQ(shown.count, 1);
}

TEST_P(Shell, closesThePanesDialogsWhenItLoadsTheSettingsAgain)
{
    mLife.canLoad = false;
    show();
    mLife.canLoad = true;
    QDialog dialog(&mShell->view());
    QTimer::singleShot(0, mShell.get(), [this] {
        mPane->tell(News::DeviceMayHaveChanged);
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
}

TEST_P(Shell, asksADriverThatHasAnsweredOnlyOnce)
{
    show();
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"}));
    mPane->tell(News::ChangeTaken);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), QStringList());
}

TEST_P(Shell, forgetsThatNothingCouldBeLoadedWhenAllIsSaved)
{
    mLife.canLoad = false;
    show();
    EXPECT_NE(notice(), QString());
    mShell->save();
    EXPECT_EQ(notice(), QString()) << "the file is what the pages show";
}

TEST_P(Shell, hasOneButtonToFindTheProblem)
{
    mLife.hasDevice = false;
    show();
    mPane->tell(News::ChangeNotTaken);
    mPane->tell(News::DisplaysChanged);
    int found = 0;
    const auto buttons = mShell->findChildren<QPushButton*>();
    for (const QPushButton* const button : buttons) {
        found += button->isVisible() ? 1 : 0;
    }
    EXPECT_EQ(found, 1);
    press("Find the Problem…");
    const QPointer<SelfCheckDialog> dialog = mShell->findChild<SelfCheckDialog*>();
    ASSERT_FALSE(dialog.isNull());
    dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(dialog.isNull()) << "the next one begins anew";
}

TEST_P(Shell, hasOnlyThePaneBeforeItIsSelected)
{
    mShell->show();
    EXPECT_EQ(mShell->windowTitle(), QStringLiteral("Noted"));
    const QWidget& view = mShell->view();
    EXPECT_EQ(view.mapTo(mShell.get(), QPoint(0, 0)), QPoint(0, 0));
    EXPECT_EQ(view.size(), mShell->size());
}

TEST_P(Shell, beginsEachShowingWithoutALine)
{
    show();
    mPane->tell(News::ChangeNotTaken);
    mLife.canSave = false;
    mShell->save();
    leave();
    show();
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, showsThePaneAnewAfterCancel)
{
    show();
    mPane->edit();
    mPane->tell(News::ChangeNotTaken);
    mShell->cancel();
    EXPECT_EQ(mLife.take(), calls({"cancel"}) + kLeaving + kComing);
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, savesNothingThatCancelHasLoaded)
{
    mLife.canLoad = false;
    show();
    mLife.canLoad = true;
    mShell->cancel();
    EXPECT_EQ(mLife.take(), calls({"cancel"}) + kLeaving + kComing) << "all is loaded";
    EXPECT_EQ(notice(), QString());
}

TEST_P(Shell, takesThePaneOutOfSightBetweenTwoShowingsSoThatItIsDrawnAgain)
{
    show();
    mLife.views.clear();
    mShell->cancel();
    EXPECT_EQ(mLife.views, calls({"hidden after will unselect", "shown after will select"}));
    EXPECT_TRUE(mShell->view().isVisible());
}

TEST_P(Shell, tellsItsHostWhetherChangesAreLostOnLeaving)
{
    show();
    mLife.canSave = false;
    EXPECT_EQ(errorText(mShell->willUnselect()), "") << "there are none";
    mPane->edit();
    EXPECT_EQ(errorText(mShell->willUnselect()), "the disk is full");
    mLife.canSave = true;
    EXPECT_EQ(errorText(mShell->willUnselect()), "");
}

TEST_P(Shell, hasSaveAndCancelWhereTheHostHasNone)
{
    show();
    const bool isWindow = GetParam() == PaneShell::Host::Window;
    EXPECT_EQ(button("Save") != nullptr, isWindow);
    EXPECT_EQ(button("Cancel") != nullptr, isWindow);
    if (isWindow) {
        press("Save");
        EXPECT_EQ(mLife.take(), calls({"save"}));
        EXPECT_EQ(button("Save")->toolTip(), QStringLiteral("Save the current settings"));
        press("Cancel");
        EXPECT_EQ(mLife.take(), calls({"cancel"}) + kLeaving + kComing);
        EXPECT_EQ(button("Cancel")->toolTip(), QStringLiteral("Go back to the saved settings"));
        EXPECT_LT(button("Cancel")->x(), button("Save")->x());
        EXPECT_EQ(button("Save")->width(), button("Save")->sizeHint().width());
        const int height = mShell->bottomHeight();
        EXPECT_GE(height, button("Save")->height());
        mLife.hasDevice = false;
        leave();
        show();
        EXPECT_EQ(button("Save"), nullptr);
        EXPECT_EQ(button("Cancel"), nullptr);
        EXPECT_LT(mShell->bottomHeight(), height);
    }
}

TEST_P(Shell, givesTheFocusBackWhenTheLineGoes)
{
    show();
    mPane->tell(News::ChangeNotTaken);
    mShell->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mShell.get(), kPatience));
    button("Send Again")->setFocus();
    mLife.take();
    mPane->tell(News::ChangeTaken);
    EXPECT_EQ(mLife.take(), calls({"did select"}));
}

namespace {

platform::PreferencePane::SelfCheck foundProblem()
{
    using Status = platform::PreferencePane::CheckedStage::Status;
    return {{{QStringLiteral("bus"), Status::Ok, QStringLiteral("The bus answers."), {}},
                {QStringLiteral("driver"), Status::Problem, QStringLiteral("There is no driver."),
                    QStringLiteral("Install one.")},
                {QStringLiteral("answer"), Status::NotChecked, QStringLiteral("Not yet."), {}}},
        QStringLiteral("the report")};
}

} // namespace

TEST_P(Shell, findsTheProblemWhereThereIsNoTablet)
{
    show();
    EXPECT_EQ(button("Find the Problem…"), nullptr);
    leave();
    mLife.hasDevice = false;
    show();
    QPushButton& find = *button("Find the Problem…");
    EXPECT_EQ(find.toolTip(), QStringLiteral("Check the tablet, its driver and the panel"));
    EXPECT_EQ(find.accessibleDescription(), find.toolTip());
    EXPECT_EQ(find.width(), find.sizeHint().width());
    EXPECT_GE(find.mapTo(mShell.get(), QPoint(0, 0)).y(),
        mShell->view().mapTo(mShell.get(), QPoint(0, mShell->view().height())).y())
        << "it is below the pane";
    press("Find the Problem…");
    EXPECT_EQ(mLife.take(), calls({"check self"}));
    auto* const dialog = mShell->findChild<SelfCheckDialog*>();
    ASSERT_NE(dialog, nullptr);
    const auto& list = *dialog->findChild<QListWidget*>();
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(dialog->findChild<platform::NoticeLabel*>()->text(), QStringLiteral("Checking…"));
    EXPECT_FALSE(button("Check Again")->isEnabled());
    mPane->checkDone(foundProblem());
    EXPECT_EQ(list.count(), 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"})) << "the tablet may be there by now";
    press("Check Again");
    EXPECT_EQ(mLife.take(), calls({"check self"}));
    EXPECT_EQ(list.count(), 0);
    mPane->checkDone({});
    EXPECT_EQ(dialog->findChild<platform::NoticeLabel*>()->text(),
        QStringLiteral("No problems were found."));
}

TEST_P(Shell, showsThePagesInsteadOfTheProblemWhenTheTabletIsThere)
{
    mLife.hasDevice = false;
    show();
    press("Find the Problem…");
    const QPointer<SelfCheckDialog> dialog = mShell->findChild<SelfCheckDialog*>();
    mLife.take();
    mLife.hasDevice = true;
    mLife.device = Device::Other;
    mPane->checkDone({});
    QCoreApplication::processEvents();
    EXPECT_EQ(mLife.take(), calls({"check"}) + kLeaving + kComing);
    EXPECT_TRUE(dialog.isNull() || !dialog->isVisible());
    EXPECT_EQ(button("Find the Problem…"), nullptr);
    mPane->checkDone(foundProblem()); // of a dialog that is gone
}

namespace {

/** Two displays, and the tablet on the second of them. */
class ShellWithMonitors : public Shell {
protected:
    ShellWithMonitors()
    {
        mDisplays.monitors = {kLeft, kRight};
        mLife.deviceID = QStringLiteral("7");
        mLife.display = 2;
    }

    const platform::Monitor kLeft{QStringLiteral("Acme"), QStringLiteral("L"), {}, {}};
    const platform::Monitor kRight{QStringLiteral("Acme"), QStringLiteral("R"), {}, {}};
    const QString kMoved =
        QStringLiteral("The monitor that you chose for the tablet is now display 1.");
    TemporaryHome mHome;
    FakeDisplays mDisplays{{{0, 0, 100, 100}, {100, 0, 100, 100}}};
};

INSTANTIATE_TEST_SUITE_P(InEachHost, ShellWithMonitors,
    testing::Values(PaneShell::Host::Window, PaneShell::Host::SettingsApplication));

} // namespace

TEST_P(ShellWithMonitors, offersTheChosenMonitorWhenItHasAnotherNumber)
{
    show();
    EXPECT_EQ(notice(), QString());
    leave();
    mDisplays.monitors = {kRight, kLeft};
    show();
    EXPECT_EQ(notice(), kMoved);
    EXPECT_EQ(mLife.display, 2) << "nothing is mapped unasked";
    press("Choose Display 1");
    EXPECT_EQ(mLife.take(), calls({"choose display"}));
    EXPECT_EQ(mLife.display, 1);
    EXPECT_EQ(notice(), QString());
    leave();
    show();
    EXPECT_EQ(notice(), QString());
}

TEST_P(ShellWithMonitors, noticesAtOnceThatTheDisplaysHaveChanged)
{
    show();
    mDisplays.monitors = {kRight, kLeft};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(notice(), kMoved);
    mDisplays.monitors = {kLeft, kRight};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(notice(), QString());
}

TEST_P(ShellWithMonitors, remembersWhatIsChosenInThePane)
{
    show();
    mDisplays.monitors = {kRight, kLeft};
    mPane->tell(News::DisplaysChanged);
    mPane->tell(News::DisplayChosen); // the same number, but now on purpose
    EXPECT_EQ(notice(), QString());
    mDisplays.monitors = {kLeft, kRight};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(notice(), kMoved);
    mLife.display = 0;
    mPane->tell(News::DisplayChosen);
    EXPECT_EQ(notice(), QString()) << "all displays";
}

TEST_P(ShellWithMonitors, remembersWhatUndoAndCancelGoBackTo)
{
    show();
    mLife.display = 1;
    mPane->tell(News::DisplayChosen);
    mLife.display = 2;
    mPane->edit(); // as an undo does
    leave();
    show();
    EXPECT_EQ(notice(), QString());
    mDisplays.monitors = {kRight, kLeft};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(notice(), kMoved);
    mPane->edit();
    EXPECT_EQ(notice(), kMoved) << "another setting was edited";
    press("Choose Display 1");
    EXPECT_EQ(notice(), QString());
    mLife.display = 2;
    mPane->edit();
    EXPECT_EQ(notice(), kMoved);
}

TEST_P(ShellWithMonitors, saysNothingOfTheFormerMonitorWhenAProfileNamesAnother)
{
    show();
    mLife.display = 1;
    mPane->tell(News::SettingsReplaced);
    EXPECT_EQ(notice(), QString());
    mDisplays.monitors = {kRight, kLeft};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(
        notice(), QStringLiteral("The monitor that you chose for the tablet is now display 2."));
    mPane->tell(News::SettingsReplaced); // for the same display
    EXPECT_NE(notice(), QString());
}

TEST_P(ShellWithMonitors, goesBackToTheMonitorThatAProfileNames)
{
    show();
    mLife.display = 1;
    mPane->tell(News::SettingsReplaced);
    mLife.display = 2;
    mPane->tell(News::DisplayChosen);
    mDisplays.monitors = {kRight, kLeft};
    mLife.display = 1;
    mPane->edit(); // as an undo does
    EXPECT_EQ(
        notice(), QStringLiteral("The monitor that you chose for the tablet is now display 2."));
}

TEST_P(Shell, forgetsWhatWentWrongWithSettingsThatAProfileReplaces)
{
    mLife.canLoad = false;
    show();
    EXPECT_NE(notice(), QString());
    mPane->tell(News::SettingsReplaced);
    EXPECT_EQ(notice(), QString());
    mLife.canSave = false;
    mShell->save();
    EXPECT_NE(notice(), QString());
    mPane->tell(News::SettingsReplaced);
    EXPECT_EQ(notice(), QString());
    mPane->edit();
    mShell->cancel();
    mPane->edit();
    mLife.device = Device::Other;
    mPane->tell(News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_NE(notice(), QString()) << "the former tablet's changes are lost";
    mPane->tell(News::SettingsReplaced);
    EXPECT_EQ(notice(), QString());
}

TEST_P(ShellWithMonitors, forgetsTheFormerMonitorWhenAllAreChosen)
{
    show();
    mLife.display = 0;
    mPane->tell(News::DisplayChosen);
    leave();
    mLife.display = 2; // as another program has set it
    mDisplays.monitors = {kRight, kLeft};
    show();
    EXPECT_EQ(notice(), QString());
}

TEST_P(ShellWithMonitors, remembersNoMonitorWhereThereIsNoChoice)
{
    mDisplays.change({{0, 0, 100, 100}});
    mDisplays.monitors = {kLeft};
    mLife.display = 1;
    show();
    mDisplays.change({{0, 0, 100, 100}, {100, 0, 100, 100}});
    mDisplays.monitors = {kRight, kLeft};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(notice(), QString());
}

TEST_P(ShellWithMonitors, saysThatAMonitorHasMovedAlsoAfterAProfileForIt)
{
    show();
    mDisplays.monitors = {kRight, kLeft};
    mLife.display = 1;
    mPane->tell(News::SettingsReplaced);
    EXPECT_EQ(notice(), QString()) << "the profile is for the right one";
    leave();
    show();
    EXPECT_EQ(notice(), QString());
    mDisplays.monitors = {kLeft, kRight};
    mPane->tell(News::DisplaysChanged);
    EXPECT_NE(notice(), QString());
}

TEST_P(ShellWithMonitors, remembersNothingOfSettingsThatAreNotTheTablets)
{
    mLife.canLoad = false;
    mLife.display = 1;
    show();
    leave();
    mLife.canLoad = true;
    mLife.display = 2;
    show();
    EXPECT_EQ(notice(), QString());
}

TEST_P(ShellWithMonitors, remembersForEachTabletItsOwn)
{
    show();
    leave();
    mLife.deviceID = QStringLiteral("8");
    mDisplays.monitors = {kRight, kLeft};
    show();
    EXPECT_EQ(notice(), QString());
    leave();
    mLife.deviceID = QStringLiteral("7");
    show();
    EXPECT_EQ(notice(), kMoved);
}

TEST_P(ShellWithMonitors, saysNothingWhileTheChosenMonitorIsNotThere)
{
    show();
    mDisplays.monitors = {kLeft, {QStringLiteral("Other"), {}, {}, {}}};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(notice(), QString());
    mDisplays.change({{0, 0, 100, 100}});
    mDisplays.monitors = {kRight};
    mPane->tell(News::DisplaysChanged);
    EXPECT_EQ(notice(), QString()) << "there is no choice";
}

TEST_P(Shell, showsThePanesOwnButtonsNowhere)
{
    PaneLife life;
    const PaneShell shell(std::make_unique<NotedPane>(life), GetParam());
    EXPECT_EQ(life.take(), calls({"buttons hidden"}));
}
