// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ProfileBar.h"

#include "Accessible.h"
#include "ApplicationsDialog.h"
#include "Dialogs.h"
#include "FakeSystemd.h"
#include "FollowService.h"
#include "ImportDialog.h"
#include "NotedPane.h"
#include "PaneShell.h"
#include "PrivateBus.h"
#include "ProfileNameDialog.h"
#include "SameImage.h"
#include "TemporaryHome.h"
#include "Wait.h"
#include "WatchedEvents.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyleFactory>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <memory>

namespace {

using News = platform::PreferencePane::News;

class Bar : public testing::Test {
protected:
    Bar()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        mLife.hasProfiles = true;
        mLife.profiles = {{QStringLiteral("Modelling"), {}},
            {QStringLiteral("Painting"), {QStringLiteral("org.example.Paint")}},
            {QStringLiteral("R&D <b>"), {}}};
        mLife.profile = QStringLiteral("Painting");
        mLife.settings = "a1";
        auto pane = std::make_unique<NotedPane>(mLife);
        mPane = pane.get();
        mShell = std::make_unique<PaneShell>(std::move(pane), PaneShell::Host::Window);
    }

    void show()
    {
        mShell->willSelect();
        mShell->show();
        mShell->didSelect();
        mLife.take();
    }
    void reopen()
    {
        mPane->tell(News::DeviceMayHaveChanged);
        mLife.device = platform::PreferencePane::Device::Other;
        QCoreApplication::processEvents();
        mLife.take();
    }

    ProfileBar& bar() { return *mShell->findChild<ProfileBar*>(); }
    QComboBox& list() { return *bar().findChild<QComboBox*>(); }
    QStringList names()
    {
        QStringList names;
        for (int i = 0; i < list().count(); ++i) {
            names.append(list().itemText(i));
        }
        return names;
    }
    /** Chooses an item as a user does. */
    void choose(const char* name)
    {
        list().setFocus();
        list().showPopup();
        const int index = list().findText(QString::fromUtf8(name));
        ASSERT_GE(index, 0) << name;
        list().view()->setCurrentIndex(list().model()->index(index, 0));
        QTest::keyClick(list().view(), Qt::Key_Return);
    }

    QAction* action(const char* text)
    {
        const auto actions = bar().findChild<QToolButton*>()->menu()->actions();
        for (QAction* const action : actions) {
            if (QString(action->text()).remove(u'&') == QString::fromUtf8(text)) {
                return action;
            }
        }
        ADD_FAILURE() << "there is no item " << text;
        return nullptr;
    }
    void trigger(const char* text)
    {
        mLife.take();
        action(text)->trigger();
    }
    QStringList disabled()
    {
        QStringList texts;
        const auto actions = bar().findChild<QToolButton*>()->menu()->actions();
        for (const QAction* const action : actions) {
            if (!action->isEnabled() && !action->isSeparator()) {
                texts.append(QString(action->text()).remove(u'&'));
            }
        }
        return texts;
    }

    /** The dialog of that kind that is open; null if there is none. */
    template <class Dialog>
    Dialog* dialog()
    {
        return qobject_cast<Dialog*>(QApplication::activeModalWidget());
    }
    static void press(QDialog& dialog, const char* text)
    {
        QPushButton& button = buttonOf(dialog, text);
        EXPECT_TRUE(button.isEnabled()) << text;
        button.click();
    }
    static QPushButton* defaultButton(const QDialog& dialog)
    {
        const auto buttons = dialog.findChildren<QPushButton*>();
        for (QPushButton* const button : buttons) {
            if (button->isDefault()) {
                return button;
            }
        }
        return nullptr;
    }
    /** Expects an alert with that text, and closes it. */
    void expectTold(const char* text)
    {
        auto* const message = dialog<QMessageBox>();
        ASSERT_NE(message, nullptr) << text;
        EXPECT_EQ(message->text(), QString::fromUtf8(text));
        EXPECT_EQ(message->textFormat(), Qt::PlainText);
        message->reject();
    }
    QPushButton& saveAs() { return *bar().findChild<QPushButton*>(); }
    QToolButton& more() { return *bar().findChild<QToolButton*>(); }
    /** The tool tip that appears where the mouse rests. */
    static QString toolTipAt(QWidget& widget, const QPoint& place)
    {
        QHelpEvent rest(QEvent::ToolTip, place, widget.mapToGlobal(place));
        QCoreApplication::sendEvent(&widget, &rest);
        return QToolTip::text();
    }
    static QString toolTipOf(QWidget& widget) { return toolTipAt(widget, widget.rect().center()); }

    TemporaryHome mHome;
    PaneLife mLife;
    NotedPane* mPane = nullptr;
    std::unique_ptr<PaneShell> mShell;
};

QStringList calls(std::initializer_list<const char*> names)
{
    QStringList list;
    for (const char* const name : names) {
        list.append(QString::fromUtf8(name));
    }
    return list;
}

} // namespace

// The list ----------------------------------------------------------------------------------------

TEST_F(Bar, showsTheProfilesAndWhichOneIsCurrent)
{
    show();
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(names(), calls({"Modelling", "Painting", "R&D <b>"}));
    EXPECT_EQ(list().currentText(), QStringLiteral("Painting"));
}

TEST_F(Bar, hasItsLabelAndItsButtonsBesideTheList)
{
    show();
    activate(*mShell);
    const auto& label = *bar().findChild<QLabel*>();
    EXPECT_EQ(label.text(), QStringLiteral("&Profile:"));
    int right = -1;
    for (const QWidget* const part :
        std::initializer_list<const QWidget*>{&label, &list(), &saveAs(), &more()}) {
        EXPECT_GT(part->x(), right);
        right = part->geometry().right();
    }
    EXPECT_EQ(saveAs().width(), saveAs().sizeHint().width()) << "what is left stays empty";
    saveAs().setFocus();
    QTest::keyClick(&saveAs(), Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &list());
}

TEST_F(Bar, explainsItsControls)
{
    show();
    EXPECT_EQ(toolTipOf(list()),
        QStringLiteral("Each profile has all settings of the tablet for one kind of work."));
    EXPECT_EQ(toolTipOf(saveAs()), QStringLiteral("Save the current settings as a profile"));
    EXPECT_EQ(toolTipOf(more()), QStringLiteral("Manage the profiles"));
    for (const QWidget* const control :
        std::initializer_list<const QWidget*>{&list(), &saveAs(), &more()}) {
        EXPECT_EQ(control->accessibleDescription(), control->toolTip());
    }
}

TEST_F(Bar, drawsTheListAsAnyOther)
{
    show();
    saveAs().setFocus();
    QComboBox other(&bar());
    other.addItems(names());
    other.setCurrentText(list().currentText());
    other.setFocusPolicy(list().focusPolicy());
    other.resize(list().size());
    expectSameImage(list().grab().toImage(), other.grab().toImage());
}

TEST_F(Bar, isOnlyThereWithADeviceThatHasProfiles)
{
    mLife.hasDevice = false;
    show();
    EXPECT_FALSE(bar().isVisible());
    mLife.hasDevice = true;
    reopen();
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(mShell->topHeight(), bar().height());
    mLife.hasProfiles = false;
    reopen();
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(mShell->topHeight(), 0);
}

TEST_F(Bar, saysNoneWhileTheSettingsAreThoseOfNoProfile)
{
    mLife.profile.clear();
    show();
    EXPECT_EQ(names(), calls({"None", "Modelling", "Painting", "R&D <b>"}));
    EXPECT_EQ(list().currentIndex(), 0);
    choose("None");
    EXPECT_EQ(mLife.take(), QStringList());
    choose("Modelling");
    EXPECT_EQ(mLife.take(), calls({"use Modelling"}));
    mPane->noted.useDone({});
    EXPECT_EQ(names(), calls({"Modelling", "Painting", "R&D <b>"}));
    EXPECT_EQ(list().currentText(), QStringLiteral("Modelling"));
}

TEST_F(Bar, usesAProfileThatIsCalledNone)
{
    mLife.profile.clear();
    mLife.profiles = {{QStringLiteral("None"), {}}};
    show();
    ASSERT_EQ(list().count(), 2);
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Down); // opens the list, and goes to the second item
    QTest::keyClick(list().view(), Qt::Key_Return);
    EXPECT_EQ(mLife.take(), calls({"use None"}));
}

TEST_F(Bar, followsWhatOthersDo)
{
    show();
    mLife.profiles.erase(mLife.profiles.begin());
    mLife.profile = QStringLiteral("R&D <b>");
    mPane->noted.change();
    EXPECT_EQ(names(), calls({"Painting", "R&D <b>"}));
    EXPECT_EQ(list().currentText(), QStringLiteral("R&D <b>"));
    EXPECT_EQ(mLife.take(), QStringList()) << "nothing is used again";
}

TEST_F(Bar, leavesTheOpenListAsItIsWhenNothingInItHasChanged)
{
    show();
    list().setFocus();
    list().showPopup();
    const int row = list().findText(QStringLiteral("R&D <b>"));
    list().view()->setCurrentIndex(list().model()->index(row, 0));
    mPane->noted.change();
    EXPECT_TRUE(list().view()->isVisible());
    EXPECT_EQ(list().view()->currentIndex().row(), row);
    QTest::keyClick(list().view(), Qt::Key_Return);
    EXPECT_EQ(mLife.take(), calls({"use R&D <b>"}));
}

TEST_F(Bar, goesBackToTheCurrentProfileWhenAnotherCannotBeUsed)
{
    show();
    choose("Modelling");
    EXPECT_EQ(mLife.take(), calls({"use Modelling"}));
    mPane->noted.useDone(QStringLiteral("A <b>calibration</b> runs."));
    EXPECT_EQ(list().currentText(), QStringLiteral("Painting"));
    expectTold("A <b>calibration</b> runs.");
}

TEST_F(Bar, usesTheCurrentProfileAgain)
{
    show();
    choose("Painting");
    EXPECT_EQ(mLife.take(), calls({"use Painting"}));
}

TEST_F(Bar, choosesNothingByTheWheelOrByAKeyOnTheClosedList)
{
    show();
    list().setFocus();
    const QPoint place(5, 5);
    QWheelEvent wheel(place, list().mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&list(), &wheel);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_M, Qt::Key_Space}) {
        QTest::keyClick(&list(), key);
        EXPECT_TRUE(list().view()->isVisible()) << key;
        QTest::keyClick(list().view(), Qt::Key_Escape);
        EXPECT_EQ(list().currentText(), QStringLiteral("Painting")) << key;
    }
    EXPECT_EQ(mLife.take(), QStringList());
}

TEST_F(Bar, keepsTheFocusWhenAProfileIsUsed)
{
    show();
    mShell->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mShell.get(), kPatience));
    choose("Modelling");
    mPane->noted.useDone({});
    mPane->tell(News::SettingsReplaced);
    EXPECT_EQ(QApplication::focusWidget(), &list());
}

TEST_F(Bar, elidesALongNameAndShowsAllOfItOnRequest)
{
    const QString longName = QString(64, u'W');
    mLife.profiles = {{longName, {}}};
    mLife.profile = longName;
    show();
    const auto widthOf = [&](const QString& text) {
        return list().fontMetrics().horizontalAdvance(text);
    };
    EXPECT_LT(list().sizeHint().width(), widthOf(longName));
    const int width = bar().minimumSizeHint().width();
    EXPECT_LT(width, 700);
    EXPECT_EQ(list().itemText(0), longName);
    const QImage elided = list().grab().toImage();
    list().setItemText(0, QString(63, u'W') + u'X');
    EXPECT_EQ(list().grab().toImage(), elided) << "its end is not drawn";
    QStyleOptionComboBox option;
    option.initFrom(&list());
    const int room =
        list()
            .style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list())
            .width();
    bool endsInDots = false;
    for (QString part = QStringLiteral("\u2026"); widthOf(part) < room; part.prepend(u'W')) {
        list().setItemText(0, part);
        endsInDots = endsInDots || list().grab().toImage() == elided;
    }
    EXPECT_TRUE(endsInDots);
    list().setItemText(0, longName);
    EXPECT_EQ(toolTipOf(list()), QStringLiteral("<span>%1</span>").arg(longName));
    list().showPopup();
    QAbstractItemView& view = *list().view();
    EXPECT_GT(view.width(), list().width()) << "where there is room";
    EXPECT_EQ(toolTipAt(*view.viewport(), view.visualRect(list().model()->index(0, 0)).center()),
        QStringLiteral("<span>%1</span>").arg(longName));
}

TEST_F(Bar, makesTheOpenListAsWideAsItsNamesUpToHalfTheScreen)
{
    const int room = mShell->screen()->availableSize().width() / 2;
    const QFontMetrics metrics = list().fontMetrics();
    QString name = QStringLiteral("W");
    while (metrics.horizontalAdvance(name) < room * 4 / 5) {
        name += u'W';
    }
    mLife.profiles = {{name, {}}, {QStringLiteral("R&D <b>"), {}}};
    mLife.profile = name;
    show();
    // In a style that opens a list below the closed one instead of a menu.
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Windows")));
    list().setStyle(style.get());
    list().showPopup();
    QAbstractItemView& view = *list().view();
    EXPECT_GE(view.viewport()->width(), view.sizeHintForColumn(0));
    EXPECT_EQ(toolTipAt(*view.viewport(), view.visualRect(list().model()->index(1, 0)).center()),
        QStringLiteral("<span>R&amp;D &lt;b&gt;</span>"));
    list().hidePopup();
    mLife.profiles.front().name = name.repeated(4);
    mPane->noted.change();
    list().showPopup();
    EXPECT_LE(view.width(), room + 4);
    list().setStyle(nullptr);
}

// Saving ------------------------------------------------------------------------------------------

TEST_F(Bar, savesUnderTheNameOfTheCurrentProfileAfterAQuestion)
{
    show();
    saveAs().click();
    auto* const dialog = this->dialog<ProfileNameDialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), QStringLiteral("Painting"));
    press(*dialog, "Save");
    auto* question = this->dialog<QMessageBox>();
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->text(),
        QStringLiteral(
            "There is a profile “Painting” already. Replace it with the current settings?"));
    EXPECT_EQ(QString(defaultButton(*question)->text()).remove(u'&'), QStringLiteral("Cancel"));
    QTest::keyClick(question, Qt::Key_Escape);
    EXPECT_EQ(mLife.take(), QStringList());
    ASSERT_EQ(this->dialog<ProfileNameDialog>(), dialog) << "for another name";
    press(*dialog, "Save");
    question = this->dialog<QMessageBox>();
    ASSERT_NE(question, nullptr);
    press(*question, "Replace");
    EXPECT_EQ(mLife.take(), calls({"save Painting"}));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Bar, savesUnderANewNameAtOnce)
{
    mLife.profile.clear();
    show();
    saveAs().click();
    auto* const dialog = this->dialog<ProfileNameDialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), QString());
    QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("Sketching"));
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_EQ(mLife.take(), calls({"save Sketching"}));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(list().currentText(), QStringLiteral("Sketching"));
}

TEST_F(Bar, takesNoNameThatCannotBeOneAndSaysWhy)
{
    show();
    saveAs().click();
    auto* const dialog = this->dialog<ProfileNameDialog>();
    ASSERT_NE(dialog, nullptr);
    auto& line = *dialog->findChild<QLineEdit*>();
    const auto says = [dialog](const char* text) {
        const auto labels = dialog->findChildren<QLabel*>();
        return std::ranges::any_of(labels, [text](const QLabel* label) {
            return label->isVisible() && label->text() == QString::fromUtf8(text);
        });
    };
    EXPECT_FALSE(says("That is no name."));
    line.setText(QStringLiteral("bad"));
    EXPECT_TRUE(says("That is no name."));
    EXPECT_FALSE(defaultButton(*dialog)->isEnabled());
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(mLife.take(), QStringList());
    line.setText(QStringLiteral("good"));
    EXPECT_FALSE(says("That is no name."));
    EXPECT_TRUE(defaultButton(*dialog)->isEnabled());
    mLife.profileFault = QStringLiteral("The disk is full.");
    const WatchedEvents shows(*dialog->findChild<platform::NoticeLabel*>(), QEvent::Show);
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(mLife.take(), calls({"save good"}));
    EXPECT_TRUE(dialog->isVisible()) << "for another attempt";
    EXPECT_TRUE(says("The disk is full."));
    EXPECT_EQ(shows.count, 1) << "screen readers announce it";
    mLife.profileFault.clear();
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(mLife.take(), calls({"save good"}));
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(Bar, saysAtOnceThatTheProposedNameCannotBeOne)
{
    mLife.profiles = {{QStringLiteral("bad"), {}}};
    mLife.profile = QStringLiteral("bad");
    show();
    saveAs().click();
    auto* const dialog = this->dialog<ProfileNameDialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(defaultButton(*dialog)->isEnabled());
    EXPECT_EQ(
        dialog->findChild<platform::NoticeLabel*>()->text(), QStringLiteral("That is no name."));
}

TEST_F(Bar, asksForANameInADialogThatKeepsItsSize)
{
    show();
    saveAs().click();
    auto* const dialog = this->dialog<ProfileNameDialog>();
    ASSERT_NE(dialog, nullptr);
    activate(*dialog);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Save Profile"));
    auto& line = *dialog->findChild<QLineEdit*>();
    EXPECT_EQ(QApplication::focusWidget(), &line);
    auto& fault = *dialog->findChild<platform::NoticeLabel*>();
    const auto labels = dialog->findChildren<QLabel*>();
    const auto label = std::ranges::find(labels, QStringLiteral("&Name:"), &QLabel::text);
    ASSERT_NE(label, labels.end());
    EXPECT_LT((*label)->geometry().right(), line.x());
    EXPECT_LT(line.geometry().bottom(), fault.y());
    EXPECT_LT(fault.geometry().bottom(), defaultButton(*dialog)->parentWidget()->y());
    EXPECT_GE(line.width(), 40 * line.fontMetrics().averageCharWidth());
    defaultButton(*dialog)->setFocus();
    QTest::keyClick(dialog, Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &line);

    const QSize size = dialog->size();
    dialog->showFault(QStringLiteral("<b>Short.</b>"));
    EXPECT_EQ(fault.textFormat(), Qt::PlainText);
    const QImage drawn = fault.grab().toImage();
    const auto hasText = [&drawn](int top, int height) {
        const QImage part = drawn.copy(0, top, drawn.width(), height);
        QImage empty = part;
        empty.fill(part.pixelColor(part.width() - 1, part.height() - 1));
        return part != empty;
    };
    const int half = drawn.height() / 2;
    EXPECT_TRUE(hasText(0, half)) << "it is close to the line";
    EXPECT_FALSE(hasText(half, drawn.height() - half));
    dialog->showFault(QStringLiteral("word ").repeated(
        fault.width() / fault.fontMetrics().horizontalAdvance(QStringLiteral("word ")) * 3 / 2));
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog->size(), size);
    EXPECT_GE(fault.height() + 1, fault.heightForWidth(fault.width())) << "Qt 5 rounds up";
    EXPECT_GE(fault.heightForWidth(fault.width()), 2 * fault.fontMetrics().lineSpacing());
}

TEST_F(Bar, savesNothingAfterCancel)
{
    show();
    QPointer<ProfileNameDialog> dialog;
    cancelInEachWay(
        [&] {
            saveAs().click();
            dialog = this->dialog<ProfileNameDialog>();
            if (dialog != nullptr) {
                activate(*dialog);
            }
            return dialog.data();
        },
        [&] {
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            EXPECT_TRUE(dialog.isNull());
            EXPECT_EQ(mLife.take(), QStringList());
        });
}

// The menu ----------------------------------------------------------------------------------------

TEST_F(Bar, opensItsMenuAtOnce)
{
    const PrivateBus bus;
    show();
    QMenu& menu = *more().menu();
    QStringList texts;
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        const auto actions = menu.actions();
        for (const QAction* const action : actions) {
            texts.append(
                action->isSeparator() ? QStringLiteral("-") : QString(action->text()).remove(u'&'));
        }
        QMetaObject::invokeMethod(&menu, &QMenu::close, Qt::QueuedConnection);
    });
    QTest::mouseClick(&more(), Qt::LeftButton);
    EXPECT_EQ(texts,
        calls({"Rename…", "Duplicate…", "Delete…", "Applications…", "-", "Import…", "Export…", "-",
            "Follow Applications"}));
}

TEST_F(Bar, offersNothingOfTheCurrentProfileWithoutOne)
{
    show();
    EXPECT_EQ(disabled(), calls({"Follow Applications"})) << "while that is unknown";
    EXPECT_FALSE(action("Follow Applications")->isChecked());
    mLife.profile.clear();
    mPane->noted.change();
    EXPECT_EQ(disabled(),
        calls({"Rename…", "Duplicate…", "Delete…", "Applications…", "Export…",
            "Follow Applications"}));
}

TEST_F(Bar, renamesTheCurrentProfile)
{
    show();
    trigger("Rename…");
    auto* const dialog = this->dialog<ProfileNameDialog>();
    ASSERT_NE(dialog, nullptr);
    auto& line = *dialog->findChild<QLineEdit*>();
    EXPECT_EQ(line.text(), QStringLiteral("Painting"));
    EXPECT_EQ(line.selectedText(), QStringLiteral("Painting"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Rename Profile"));
    QTest::keyClicks(&line, QStringLiteral("Ink & wash"));
    press(*dialog, "Rename");
    EXPECT_EQ(mLife.take(), calls({"rename Painting Ink & wash"}));
    EXPECT_EQ(list().currentText(), QStringLiteral("Ink & wash"));
    trigger("Rename…");
    press(*this->dialog<ProfileNameDialog>(), "Rename");
    EXPECT_EQ(mLife.take(), QStringList()) << "it has that name";
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Bar, duplicatesTheCurrentProfileUnderAFreeName)
{
    show();
    for (const char* const free : {"Painting 2", "Painting 3"}) {
        trigger("Duplicate…");
        auto* const dialog = this->dialog<ProfileNameDialog>();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Duplicate Profile"));
        EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), QString::fromLatin1(free));
        press(*dialog, "Duplicate");
        EXPECT_EQ(mLife.take(),
            QStringList{QStringLiteral("duplicate Painting ") + QString::fromLatin1(free)});
        EXPECT_TRUE(names().contains(QString::fromLatin1(free)));
    }
    EXPECT_EQ(list().currentText(), QStringLiteral("Painting"));
}

TEST_F(Bar, deletesTheCurrentProfileOnlyOnPurpose)
{
    show();
    trigger("Delete…");
    auto* question = dialog<QMessageBox>();
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->text(),
        QStringLiteral("Delete the profile “Painting”? The tablet keeps its settings."));
    EXPECT_EQ(question->windowTitle(), mShell->windowTitle());
    EXPECT_EQ(question->textFormat(), Qt::PlainText);
    QTest::keyClick(question, Qt::Key_Return);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(mLife.take(), QStringList()) << "by default, it is kept";
    trigger("Delete…");
    question = dialog<QMessageBox>();
    ASSERT_NE(question, nullptr);
    press(*question, "Delete");
    EXPECT_EQ(mLife.take(), calls({"remove Painting"}));
    EXPECT_EQ(names(), calls({"None", "Modelling", "R&D <b>"}));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "there is nothing to tell";
}

TEST_F(Bar, saysWhyAProfileWasNotDeleted)
{
    show();
    mLife.profileFault = QStringLiteral("The folder is locked.");
    trigger("Delete…");
    ASSERT_NE(dialog<QMessageBox>(), nullptr);
    press(*dialog<QMessageBox>(), "Delete");
    expectTold("The folder is locked.");
}

TEST_F(Bar, exportsTheCurrentProfileToTheChosenFile)
{
    mLife.profiles = {{QStringLiteral("Ink/wash"), {}}};
    mLife.profile = QStringLiteral("Ink/wash");
    show();
    trigger("Export…");
    auto* const dialog = this->dialog<QFileDialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(
        QFileInfo(dialog->selectedFiles().value(0)).fileName(), QStringLiteral("Ink-wash.plist"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Export Profile"));
    EXPECT_EQ(dialog->nameFilters(), calls({"Profiles (*.plist)"}));
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("mine"));
    EXPECT_EQ(QFileInfo(dialog->selectedFiles().value(0)).fileName(), QStringLiteral("mine.plist"));
    const QString file = mHome.path() + QStringLiteral("/mine.plist");
    mLife.profileFault = QStringLiteral("The disk is full.");
    Q_EMIT dialog->fileSelected(file);
    dialog->reject();
    EXPECT_EQ(mLife.take(), QStringList{QStringLiteral("export Ink/wash ") + file});
    expectTold("The disk is full.");
}

TEST_F(Bar, importsWhatTheUserHasSeen)
{
    mLife.import.name = QStringLiteral("Theirs");
    mLife.import.starts = {{QStringLiteral("Express key 1"), QStringLiteral("/a")},
        {QStringLiteral("Express key 2"), QStringLiteral("/b")}};
    mLife.import.contents = std::make_shared<int>(1);
    show();
    const QString file = mHome.path() + QStringLiteral("/theirs.plist");
    const auto open = [&] {
        trigger("Import…");
        auto* const dialog = this->dialog<QFileDialog>();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Choose a Profile to Import"));
        EXPECT_EQ(dialog->nameFilters(), calls({"Profiles (*.plist)", "All files (*)"}));
        dialog->reject();
        Q_EMIT dialog->fileSelected(file);
    };
    open();
    EXPECT_EQ(mLife.take(), QStringList{QStringLiteral("read ") + file});
    ASSERT_NE(dialog<ImportDialog>(), nullptr);
    press(*dialog<ImportDialog>(), "Cancel");
    EXPECT_EQ(mLife.take(), QStringList());
    open();
    mLife.take();
    auto* const dialog = this->dialog<ImportDialog>();
    ASSERT_NE(dialog, nullptr);
    const auto boxes = dialog->findChildren<QCheckBox*>();
    ASSERT_EQ(boxes.size(), 2);
    boxes[1]->click();
    press(*dialog, "Import");
    EXPECT_EQ(mLife.take(), calls({"import Theirs -+"}));
    EXPECT_TRUE(names().contains(QStringLiteral("Theirs")));
    EXPECT_EQ(list().currentText(), QStringLiteral("Painting")) << "it is only listed";
}

TEST_F(Bar, saysWhyAFileCannotBeImported)
{
    mLife.import.error = QStringLiteral("This is no profile.");
    show();
    trigger("Import…");
    auto* const dialog = this->dialog<QFileDialog>();
    ASSERT_NE(dialog, nullptr);
    dialog->reject();
    Q_EMIT dialog->fileSelected(QStringLiteral("/theirs.plist"));
    expectTold("This is no profile.");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Bar, changesWhatTheProfileIsFor)
{
    show();
    trigger("Applications…");
    auto* const dialog = this->dialog<ApplicationsDialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->applications(), calls({"org.example.Paint"}));
    press(*dialog, "Remove");
    press(*dialog, "OK");
    EXPECT_EQ(mLife.take(), calls({"set applications Painting"}));
}

TEST_F(Bar, saysWhyProfilesCannotFollowApplications)
{
    const PrivateBus bus; // without a service manager
    show();
    QAction& follow = *action("Follow Applications");
    EXPECT_TRUE(follow.isCheckable());
    QMenu& menu = *bar().findChild<QToolButton*>()->menu();
    Q_EMIT menu.aboutToShow();
    const QString fault =
        QStringLiteral("Your session has no systemd user manager, which would start the service.");
    EXPECT_TRUE(QTest::qWaitFor([&] { return follow.toolTip() == fault; }, kPatience));
    EXPECT_FALSE(follow.isEnabled());
    EXPECT_EQ(follow.text(), QStringLiteral("&Follow Applications"));
    EXPECT_TRUE(menu.toolTipsVisible());
}

TEST_F(Bar, hasProfilesFollowApplicationsWhenTheUserSaysSo)
{
    const PrivateBus bus;
    FakeSystemd systemd(bus.address());
    show();
    QAction& follow = *action("Follow Applications");
    int changes = 0;
    QObject::connect(
        bar().findChild<FollowService*>(), &FollowService::changed, [&changes] { ++changes; });
    const auto andWait = [&](const auto& act) {
        const int before = changes;
        act();
        EXPECT_TRUE(QTest::qWaitFor([&] { return changes > before; }, kPatience));
    };
    andWait([this] { Q_EMIT bar().findChild<QToolButton*>()->menu()->aboutToShow(); });
    EXPECT_TRUE(follow.isEnabled());
    EXPECT_FALSE(follow.isChecked());
    EXPECT_EQ(follow.toolTip(),
        QStringLiteral("Use a profile while one of its applications is in front"));
    andWait([&] { follow.trigger(); });
    EXPECT_EQ(systemd.state, QStringLiteral("enabled"));
    EXPECT_TRUE(follow.isChecked());
    andWait([&] { follow.trigger(); });
    EXPECT_EQ(systemd.state, QStringLiteral("disabled"));
    EXPECT_FALSE(follow.isChecked());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    systemd.activeState = QStringLiteral("failed");
    andWait([&] { follow.trigger(); });
    EXPECT_TRUE(follow.isChecked());
    EXPECT_EQ(follow.text(), QStringLiteral("&Follow Applications (not running)"));
    EXPECT_EQ(follow.whatsThis(), bar().findChild<FollowService*>()->fault());
    expectTold(qUtf8Printable(bar().findChild<FollowService*>()->fault()));
    andWait([&] { follow.trigger(); });
    EXPECT_EQ(follow.text(), QStringLiteral("&Follow Applications"));
    systemd.failing = QStringLiteral("EnableUnitFiles");
    andWait([&] { follow.trigger(); });
    EXPECT_FALSE(follow.isChecked());
    expectTold("“Follow Applications” was not changed: It does not work.");
}

// Around it ---------------------------------------------------------------------------------------

TEST_F(Bar, beginsTheEditsAnewWhenAProfileIsUsed)
{
    show();
    mLife.settings = "a2";
    mPane->edit();
    const auto undo = [this] {
        const auto actions = mShell->actions();
        return *std::ranges::find_if(actions, [](const QAction* candidate) {
            return candidate->shortcut() == QKeySequence(QStringLiteral("Ctrl+Z"));
        });
    };
    EXPECT_TRUE(undo()->isEnabled());
    mLife.settings = "b1";
    mPane->edit();
    mPane->tell(News::SettingsReplaced);
    EXPECT_FALSE(undo()->isEnabled());
    mLife.settings = "b2";
    mPane->edit();
    undo()->trigger();
    EXPECT_EQ(mLife.settings, "b1");
}

TEST_F(Bar, closesItsDialogsWhenTheTabletIsAnother)
{
    show();
    saveAs().click();
    const QPointer<ProfileNameDialog> dialog = this->dialog<ProfileNameDialog>();
    ASSERT_FALSE(dialog.isNull());
    press(*dialog, "Save");
    const QPointer<QMessageBox> question = this->dialog<QMessageBox>();
    ASSERT_FALSE(question.isNull());
    reopen();
    EXPECT_TRUE(dialog.isNull() || !dialog->isVisible());
    EXPECT_TRUE(question.isNull() || !question->isVisible());
}

TEST_F(Bar, mayGoWhileItsDialogIsOpenAndAProfileIsChosen)
{
    show();
    choose("Modelling");
    const auto done = mPane->noted.useDone;
    saveAs().click();
    const QPointer<ProfileNameDialog> dialog = this->dialog<ProfileNameDialog>();
    ASSERT_FALSE(dialog.isNull());
    mShell.reset();
    EXPECT_TRUE(dialog.isNull());
}

TEST_F(Bar, isBeforeThePaneForTheTabKey)
{
    show();
    mShell->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mShell.get(), kPatience));
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &saveAs());
    QTest::keyClick(&saveAs(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), bar().findChild<QToolButton*>());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), mShell->view().findChild<QCheckBox*>());
}
