// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Undo and redo around a pane that records its calls.

#include "NotedPane.h"
#include "PaneShell.h"
#include "Wait.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

namespace {

class Edits : public testing::TestWithParam<PaneShell::Host> {
protected:
    Edits()
    {
        auto pane = std::make_unique<NotedPane>(mLife);
        mPane = pane.get();
        mLife.settings = "a0";
        mShell = std::make_unique<PaneShell>(std::move(pane), GetParam());
        mShell->willSelect();
        mShell->show();
        mShell->didSelect();
        mShell->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(mShell.get()));
        box().setFocus();
        mLife.take();
    }

    QCheckBox& box() { return *mShell->findChild<QCheckBox*>(); }
    QStringList items()
    {
        QStringList texts;
        for (const QAction* const action : mShell->actions()) {
            texts.append(QString(action->text()).remove(u'&')
                + (action->isEnabled() ? QString() : QStringLiteral(", disabled")));
        }
        return texts;
    }
    void edit(const char* settings)
    {
        mLife.settings = settings;
        mPane->edit();
    }
    void undo() { QTest::keyClick(&box(), Qt::Key_Z, Qt::ControlModifier); }
    void redo() { QTest::keyClick(&box(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    PaneLife mLife;
    NotedPane* mPane = nullptr;
    std::unique_ptr<PaneShell> mShell;
};

QStringList texts(std::initializer_list<const char*> names)
{
    QStringList list;
    for (const char* const name : names) {
        list.append(QString::fromLatin1(name));
    }
    return list;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(InEachHost, Edits,
    testing::Values(PaneShell::Host::Window, PaneShell::Host::SettingsApplication),
    [](const auto& host) {
        return std::string(host.param == PaneShell::Host::Window ? "window" : "settings");
    });

TEST_P(Edits, areUndoneAndRedoneOneByOne)
{
    EXPECT_EQ(items(), texts({"Undo, disabled", "Redo, disabled"}));
    edit("a1");
    edit("b1");
    EXPECT_EQ(items(), texts({"Undo: b1", "Redo, disabled"}));
    undo();
    EXPECT_EQ(mLife.take(), texts({"set a1"}));
    EXPECT_EQ(items(), texts({"Undo: a", "Redo: b1"}));
    undo();
    EXPECT_EQ(mLife.take(), texts({"set a0"}));
    undo();
    EXPECT_EQ(mLife.take(), QStringList());
    redo();
    redo();
    EXPECT_EQ(mLife.take(), texts({"set a1", "set b1"}));
    EXPECT_EQ(items(), texts({"Undo: b1", "Redo, disabled"}));
    undo();
    edit("c1");
    EXPECT_EQ(items(), texts({"Undo: c1", "Redo, disabled"}));
}

TEST_P(Edits, areThoseThatChangeSomething)
{
    mPane->edit();
    edit("");
    EXPECT_EQ(items(), texts({"Undo, disabled", "Redo, disabled"})) << "not yet finished";
    edit("a2");
    EXPECT_EQ(items(), texts({"Undo: a", "Redo, disabled"}));
}

TEST_P(Edits, outliveASaveButNotTheShowing)
{
    edit("a1");
    mShell->save();
    EXPECT_EQ(items(), texts({"Undo: a", "Redo, disabled"}));
    mLife.device = platform::PreferencePane::Device::Other;
    mPane->tell(platform::PreferencePane::News::DeviceMayHaveChanged);
    QCoreApplication::processEvents();
    EXPECT_EQ(items(), texts({"Undo, disabled", "Redo, disabled"}));
    edit("a2");
    mShell->cancel();
    EXPECT_EQ(items(), texts({"Undo, disabled", "Redo, disabled"}));
}

TEST_P(Edits, areNeitherUndoneNorRedoneWhileOneIsUnfinished)
{
    edit("a1");
    edit("b1");
    undo();
    mLife.take();
    mLife.settings = "";
    undo();
    redo();
    EXPECT_EQ(mLife.take(), QStringList());
    EXPECT_EQ(items(), texts({"Undo: a", "Redo: b1"}));
    mLife.settings = "a1";
    undo();
    EXPECT_EQ(mLife.take(), texts({"set a0"}));
}

TEST_P(Edits, areNotWhatASaveWritesOtherwise)
{
    edit("a1");
    mLife.savedAs = "a1 in its usual form";
    mShell->save();
    EXPECT_EQ(items(), texts({"Undo: a", "Redo, disabled"}));
    undo();
    edit("b1");
    undo();
    EXPECT_EQ(mLife.take(), texts({"save", "set a0", "set a0"}));
}

TEST_P(Edits, areAHundredAtMost)
{
    for (int i = 1; i <= 150; ++i) {
        edit(("a" + std::to_string(i)).c_str());
    }
    for (int i = 0; i < 150; ++i) {
        undo();
    }
    const QStringList calls = mLife.take();
    EXPECT_EQ(calls.size(), 100);
    EXPECT_EQ(calls.constLast(), QStringLiteral("set a50"));
}

TEST_P(Edits, ofOnePressAreOne)
{
    QTest::mousePress(&box(), Qt::LeftButton);
    edit("a1");
    edit("a2");
    edit("a3");
    QTest::mouseRelease(&box(), Qt::LeftButton);
    EXPECT_EQ(items(), texts({"Undo: a", "Redo, disabled"}));
    QTest::mousePress(&box(), Qt::LeftButton);
    edit("a4");
    edit("a3");
    QTest::mouseRelease(&box(), Qt::LeftButton);
    EXPECT_EQ(items(), texts({"Undo: a", "Redo, disabled"})) << "it was taken back";
    edit("a4");
    edit("a5");
    EXPECT_EQ(items(), texts({"Undo: a", "Redo, disabled"}));
    undo();
    undo();
    undo();
    EXPECT_EQ(mLife.take(), texts({"set a4", "set a3", "set a0"}));
}

TEST_P(Edits, ofAKeyThatIsHeldAreOne)
{
    const auto press = [this](QEvent::Type type, bool isRepeated) {
        QKeyEvent event(type, Qt::Key_Right, {}, QString(), isRepeated);
        QCoreApplication::sendEvent(&box(), &event);
    };
    press(QEvent::KeyPress, false);
    edit("a1");
    press(QEvent::KeyRelease, true);
    press(QEvent::KeyPress, true);
    edit("a2");
    press(QEvent::KeyRelease, false);
    EXPECT_EQ(items(), texts({"Undo: a", "Redo, disabled"}));
    press(QEvent::KeyPress, false);
    edit("a3");
    press(QEvent::KeyRelease, false);
    undo();
    undo();
    EXPECT_EQ(mLife.take(), texts({"set a2", "set a0"}));
}

TEST_P(Edits, areUndoneOnlyByAKeyInThePane)
{
    QWidget window;
    auto* const other = new QCheckBox(&window);
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(mShell.get());
    layout->addWidget(other);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kPatience));
    mLife.take();
    edit("a1");
    other->setFocus();
    QTest::keyClick(other, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(mLife.take(), QStringList()) << "the host may have a use for it";
    box().setFocus();
    undo();
    EXPECT_EQ(mLife.take(), texts({"set a0"}));
    mShell->setParent(nullptr);
}

TEST(EditsOfTabs, areInAMenuBesideThem)
{
    PaneLife life;
    life.hasTabs = true;
    life.settings = "a0";
    auto noted = std::make_unique<NotedPane>(life);
    NotedPane& pane = *noted;
    PaneShell shell(std::move(noted), PaneShell::Host::Window);
    shell.willSelect();
    shell.show();
    shell.didSelect();
    shell.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shell, kPatience));
    for (const char* const settings : {"a1", "b1"}) {
        life.settings = settings;
        pane.edit();
    }
    auto& tabs = *shell.view().findChild<QTabWidget*>();
    auto* const button = qobject_cast<QToolButton*>(tabs.cornerWidget());
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(button->text(), QStringLiteral("Edit"));
    tabs.tabBar()->setFocus();
    QTest::keyClick(tabs.tabBar(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), button);
    QTest::keyClick(button, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), tabs.currentWidget());

    life.take();
    QMenu& menu = *button->menu();
    QStringList items;
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        const auto actions = menu.actions();
        for (const QAction* const action : actions) {
            items.append(QString(action->text()).remove(u'&'));
        }
        QMetaObject::invokeMethod(
            &menu, [&menu] { QTest::keyClick(&menu, Qt::Key_U); }, Qt::QueuedConnection);
    });
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(items, texts({"Undo: b1", "Redo"}));
    EXPECT_EQ(life.take(), texts({"set a1"}));
}
