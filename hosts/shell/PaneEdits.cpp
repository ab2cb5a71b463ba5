// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneEdits.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QUndoCommand>

#include <utility>

namespace {

constexpr int kMostEdits = 100;

} // namespace

/** The settings before and after an edit. The next edit shares the latter. */
class PaneEdits::Edit final : public QUndoCommand {
public:
    Edit(PaneEdits& edits, QByteArray before, QByteArray after)
        : mEdits(edits)
        , mBefore(std::move(before))
        , mAfter(std::move(after))
        , mPress(edits.mIsPressed ? edits.mPresses : 0)
    {
        setText(mEdits.mPane.nameOfEdit(mBefore, mAfter));
    }

    void undo() override { mEdits.setSettings(mBefore); }
    void redo() override
    {
        // The stack also calls this for the edit itself, which has been made.
        if (std::exchange(mIsMade, true)) {
            mEdits.setSettings(mAfter);
        }
    }

    int id() const override { return 0; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& next = static_cast<const Edit&>(*other); // NOLINT(*-downcast): by its id
        if (next.mPress == 0 || next.mPress != mPress || next.text() != text()) {
            return false;
        }
        mAfter = next.mAfter;
        setObsolete(mAfter == mBefore);
        return true;
    }

private:
    PaneEdits& mEdits;
    QByteArray mBefore;
    QByteArray mAfter;
    int mPress; ///< that it belongs to; 0 for none
    bool mIsMade = false;
};

PaneEdits::PaneEdits(platform::PreferencePane& pane, QWidget& shell)
    : QObject(&shell)
    , mPane(pane)
    , mUndo(new QAction(this))
    , mRedo(new QAction(this))
{
    mStack.setUndoLimit(kMostEdits);
    const auto prepare = [&shell](QAction& action, const char* keys) {
        action.setShortcut(QKeySequence(QLatin1String(keys)));
        action.setShortcutContext(Qt::WidgetWithChildrenShortcut);
        shell.addAction(&action);
    };
    prepare(*mUndo, "Ctrl+Z");
    prepare(*mRedo, "Ctrl+Shift+Z");
    const auto step = [this](void (QUndoStack::*way)()) {
        return [this, way] {
            // Otherwise, the step would be lost: the pane takes no settings while an edit is
            // unfinished.
            if (!mPane.settings().isEmpty()) {
                (mStack.*way)();
            }
        };
    };
    connect(mUndo, &QAction::triggered, this, step(&QUndoStack::undo));
    connect(mRedo, &QAction::triggered, this, step(&QUndoStack::redo));
    connect(&mStack, &QUndoStack::indexChanged, this, &PaneEdits::updateActions);
    updateActions();
    makeMenu(*mPane.mainView());
    qApp->installEventFilter(this);
}

void PaneEdits::makeMenu(const QWidget& view) const
{
    auto* const tabs = view.findChild<QTabWidget*>();
    if (tabs == nullptr) {
        return;
    }
    auto* const button = new QToolButton(tabs);
    //: Button beside the tabs, which opens a menu with Undo and Redo.
    button->setText(tr("Edit"));
    button->setAutoRaise(true);
    button->setPopupMode(QToolButton::InstantPopup);
    auto* const menu = new QMenu(button);
    menu->addAction(mUndo);
    menu->addAction(mRedo);
    button->setMenu(menu);
    tabs->setCornerWidget(button);
    QWidget::setTabOrder(tabs->tabBar(), button);
}

void PaneEdits::updateActions() const
{
    mUndo->setEnabled(mStack.canUndo());
    //: Menu item; %1 is what was edited, such as "key 3".
    mUndo->setText(mStack.canUndo() ? tr("&Undo: %1").arg(mStack.undoText())
                                    //: Menu item while there is nothing to undo.
                                    : tr("&Undo"));
    mRedo->setEnabled(mStack.canRedo());
    //: Menu item; %1 is what was edited, such as "key 3".
    mRedo->setText(mStack.canRedo() ? tr("&Redo: %1").arg(mStack.redoText())
                                    //: Menu item while there is nothing to redo.
                                    : tr("&Redo"));
}

void PaneEdits::begin()
{
    mStack.clear();
    mLast = mPane.settings();
}

void PaneEdits::note()
{
    const QByteArray settings = mIsPassing ? QByteArray() : mPane.settings();
    if (settings.isEmpty() || settings == mLast) {
        return;
    }
    const QByteArray before = std::exchange(mLast, settings);
    if (!before.isEmpty()) {
        mStack.push(new Edit(*this, before, settings));
    }
}

void PaneEdits::passOver(const std::function<void()>& act)
{
    const QScopedValueRollback passing(mIsPassing, true);
    act();
    if (const QByteArray settings = mPane.settings(); !settings.isEmpty()) {
        mLast = settings;
    }
}

void PaneEdits::setSettings(const QByteArray& settings)
{
    passOver([&] { mPane.setSettings(settings); });
}

bool PaneEdits::eventFilter(QObject* watched, QEvent* event)
{
    static_cast<void>(watched);
    const auto isRepeated = [event] {
        return static_cast<QKeyEvent*>(event)->isAutoRepeat(); // NOLINT(*-downcast): by its type
    };
    switch (event->type()) {
    case QEvent::KeyPress:
        if (isRepeated()) {
            break;
        }
        [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::TabletPress:
        ++mPresses;
        mIsPressed = true;
        break;
    case QEvent::KeyRelease:
        if (isRepeated()) {
            break;
        }
        [[fallthrough]];
    case QEvent::MouseButtonRelease:
    case QEvent::TabletRelease:
        mIsPressed = false;
        break;
    default:
        break;
    }
    return false;
}
