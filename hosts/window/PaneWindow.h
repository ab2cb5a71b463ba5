// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QMainWindow>
#include <QSize>

#include <memory>

class PaneShell;
class QTabWidget;

namespace platform {
class PreferencePane;
}

/**
 * A window that hosts one pane. It calls the pane's callbacks in the order of every host: main view
 * loaded, will select, (shown,) did select; when it closes, will unselect, (hidden,) did unselect.
 * It fits on the screen with its frame, and scrolls if necessary.
 */
class PaneWindow final : public QMainWindow {
    Q_OBJECT

public:
    explicit PaneWindow(std::unique_ptr<platform::PreferencePane> pane);
    ~PaneWindow() override;

    /** Shows the pane. */
    void select();

    /** Hides the pane, which saves; a second call does nothing. */
    void unselect();

    /**
     * Writes a picture of each of the pane's pages to the folder, named after the page, or of the
     * whole pane if it has no pages. The pane is shown but never left, so nothing is saved.
     *
     * @return the files, or the reason why one could not be written
     */
    platform::Result<QStringList> render(const QString& folder);

    /** Whether the pane has pages, as it does with a tablet. */
    bool hasPages() const;

protected:
    /** Leaves the pane. If the changes cannot be saved, asks whether to discard them. */
    void closeEvent(QCloseEvent* event) override;

private:
    QTabWidget* pages() const;
    /** The size at which nothing has to scroll. */
    QSize naturalSize() const;
    /** The space on the screen, without the window's frame. */
    QSize roomOnScreen() const;

    PaneShell* mShell;
};
