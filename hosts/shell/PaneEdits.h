// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QObject>
#include <QUndoStack>

#include <functional>

class QAction;

/**
 * Lets the user undo and redo the edits of one showing, up to a hundred: with the keyboard, and in
 * a menu beside the pane's tabs that names them. Undoing an edit makes the settings what they were
 * before it, which the pane sends and shows.
 *
 * Everything that one press of a key or button changes in the same setting is one edit, such as
 * dragging a slider.
 */
class PaneEdits final : public QObject {
    Q_OBJECT

public:
    /** @param shell has the pane's main view in it, and owns this */
    PaneEdits(platform::PreferencePane& pane, QWidget& shell);

    /** Forgets all edits: the settings are those of another showing, or of
     * another device. */
    void begin();
    /** Takes note of an edit, if the settings differ from what they were. */
    void note();
    /** Does something that changes the settings, but is not an edit. */
    void passOver(const std::function<void()>& act);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Edit;

    void makeMenu(const QWidget& view) const;
    void updateActions() const;
    void setSettings(const QByteArray& settings);

    platform::PreferencePane& mPane;
    QUndoStack mStack;
    QAction* mUndo;
    QAction* mRedo;
    QByteArray mLast; ///< the settings after the last edit
    bool mIsPassing = false; ///< the change is not an edit
    int mPresses = 0; ///< how often something was pressed
    bool mIsPressed = false; ///< the last press has not been released
};
