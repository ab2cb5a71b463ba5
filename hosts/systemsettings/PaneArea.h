// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PaneShell.h"

#include <QWidget>

#include <functional>
#include <memory>

/**
 * The widget in which a settings application shows the pane. Such a host does not say when the user
 * enters or leaves a module: it shows and hides widgets, some of them several times in between. So
 * the pane is selected when the area is first shown, and unselected
 * - when the area is hidden and not shown again by the time the host is done,
 * - when the area is destroyed, or
 * - when the application ends.
 *
 * Minimising the window does not leave the pane.
 *
 * Leaving the pane saves it. A host that asks the user first calls apply() or reset(). If a host
 * does not ask, but shows the module in a dialog, rejecting the dialog discards the changes. If the
 * changes cannot be saved when the pane is left, the user is asked whether to try again, since the
 * module is no longer visible then.
 */
class PaneArea final : public QWidget {
    Q_OBJECT

public:
    explicit PaneArea(std::unique_ptr<platform::PreferencePane> pane, QWidget* parent = nullptr);
    ~PaneArea() override;

    /** Sets the function to call with whether there is anything to apply or reset. */
    void setChangeHandler(std::function<void(bool)> handler);

    /** Saves the pane's settings. */
    void apply();

    /** Discards the changes, if any; the pane is left and reshown, so that its controls match. */
    void reset();

Q_SIGNALS:
    /** The host has hidden the area, possibly for just a moment. */
    void hidden();
    /** A call of apply() or reset() by the host is done. */
    void served();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void unselect();
    void unselectWhereHidden();
    void reportChanges() const;

    PaneShell* mShell;
    std::function<void(bool)> mChangeHandler;
};
