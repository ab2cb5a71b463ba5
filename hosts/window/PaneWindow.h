// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QSize>

#include <memory>

class PaneShell;
class QTabWidget;

namespace platform {
class PreferencePane;
}

/**
 * A window that hosts one pane. It calls the pane's callbacks in the order that every host keeps:
 * main view loaded, will select, (shown,) did select; when it closes, will unselect, (hidden,) did
 * unselect. It fits on the screen, frame included, and scrolls what has no room.
 */
class PaneWindow final : public QMainWindow {
    Q_OBJECT

public:
    explicit PaneWindow(std::unique_ptr<platform::PreferencePane> pane);
    ~PaneWindow() override;
    PaneWindow(const PaneWindow&) = delete;
    PaneWindow& operator=(const PaneWindow&) = delete;
    PaneWindow(PaneWindow&&) = delete;
    PaneWindow& operator=(PaneWindow&&) = delete;

    /** Shows the pane. */
    void select();

    /** Hides the pane, which then saves; a second call does nothing. */
    void unselect();

    /**
     * Writes a picture of each of the pane's pages into the folder, named after the page, and of
     * the whole pane where it shows no pages. The pane is shown but never left, so nothing is
     * saved.
     *
     * @return the files; empty when one could not be written
     */
    QStringList render(const QString& folder);

    /** Whether the pane shows pages, as it does with a tablet. */
    bool hasPages() const;

protected:
    /** Leaves the pane. Where the changes cannot be saved, asks whether to lose them. */
    void closeEvent(QCloseEvent* event) override;

private:
    QTabWidget* pages() const;
    /** In which nothing of the pane has to scroll. */
    QSize naturalSize() const;
    /** What the screen has room for, the window's frame taken off. */
    QSize roomOnScreen() const;

    PaneShell* mShell;
};
