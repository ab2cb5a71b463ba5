// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PaneShell.h"

#include <QWidget>

#include <functional>
#include <memory>

/**
 * Where a settings application shows the pane. Such a host does not tell when the user comes to a
 * module and leaves it: it shows and hides widgets, some of them several times on the way. So the
 * pane is selected when the area is first shown, and unselected
 * - when the area has been hidden and nobody has shown it again once the host is done,
 * - when the area is destroyed, or
 * - when the application ends.
 *
 * A window that is minimised is not left.
 *
 * Leaving the pane saves it. A host that asks the user beforehand calls apply() or reset(). One
 * that does not ask, but shows the module in a dialog, has the user's answer when the dialog is
 * rejected: the changes are given up. Where changes cannot be saved when the pane is left, the user
 * is asked whether to try again, since by then nothing of the module can be seen.
 */
class PaneArea final : public QWidget {
    Q_OBJECT

public:
    explicit PaneArea(std::unique_ptr<platform::PreferencePane> pane, QWidget* parent = nullptr);
    ~PaneArea() override;
    PaneArea(const PaneArea&) = delete;
    PaneArea& operator=(const PaneArea&) = delete;
    PaneArea(PaneArea&&) = delete;
    PaneArea& operator=(PaneArea&&) = delete;

    /** Takes what is told each time whether there is something to apply or to reset. */
    void setChangeHandler(std::function<void(bool)> handler);

    /** Makes the pane's settings permanent. */
    void apply();

    /**
     * Gives up what has changed; the pane is left and shown anew, so that its controls follow.
     * Where nothing has changed there is nothing to do.
     */
    void reset();

Q_SIGNALS:
    /** The host has hidden the area, perhaps only to show it again at once. */
    void hidden();
    /** The host has asked for apply() or reset(), and that is done. */
    void served();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void unselect();
    void unselectWhereHidden();
    void tell() const;

    PaneShell* mShell;
    std::function<void(bool)> mChangeHandler;
};
