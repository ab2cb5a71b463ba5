// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorMemory.h"
#include "PreferencePane.h"
#include "Result.h"

#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>

class PaneEdits;
class ProfileBar;
class QPushButton;

namespace platform {
class NoticeLabel;
}

/**
 * What every host puts around the pane: a row with its profiles, a line that reports a problem,
 * with a button that fixes it, and, in our own window, scroll bars and the buttons Save and Cancel.
 *
 * The pane itself reports no failures and retries nothing. The shell listens to its news, and
 * leaves and reshows the pane when the driver has another tablet, or when the user goes back to the
 * saved settings. Where there is no tablet, it offers to find out why. Before it sends anything, on
 * its own or for "Send Again", it checks that the driver still has the same tablet.
 *
 * The host calls willSelect(), didSelect(), willUnselect() and didUnselect() here instead of on the
 * pane.
 */
class PaneShell final : public QWidget {
    Q_OBJECT

public:
    /** What kind of host shows the shell. */
    enum class Host : std::uint8_t {
        Window, ///< has no buttons for save() and cancel(), and no scroll bars
        SettingsApplication, ///< has both
    };

    /** Loads the pane's main view. */
    PaneShell(std::unique_ptr<platform::PreferencePane> pane, Host host, QWidget* parent = nullptr);
    ~PaneShell() override;

    /** Sets the function to call when the result of hasChanges() may have changed. */
    void setChangeHandler(std::function<void()> handler);
    /** Whether there is anything to save() or cancel(). */
    bool hasChanges() const;

    /** The pane's main view. */
    QWidget& view() const;

    /** The height of the row above the pane, in pixels; 0 if the pane has no profiles. */
    int topHeight() const;
    /** The height of the line and the buttons below the pane, in pixels. */
    int bottomHeight() const;

    /** Whether the pane is selected. */
    bool isSelected() const { return mIsSelected; }

    void willSelect();
    void didSelect();
    /** Has the pane save its settings; fails if changes of the user's could not be saved. */
    platform::Result<> willUnselect();
    /**
     * Like willUnselect(), but asks the user what to do with changes that could not be saved. The
     * shell may be destroyed before the answer.
     *
     * @param canStay whether the host can still go back; without an answer, the pane then stays,
     *     otherwise the changes are discarded
     * @return whether to go on leaving the pane; false also if the host has left it meanwhile
     */
    [[nodiscard]] bool mayLeave(bool canStay);
    void didUnselect();
    /** Leaves the pane if it is still selected, before the shell is destroyed. */
    void end();

    /** Saves the settings. */
    void save();
    /** Goes back to the saved settings, and reshows the pane so that its controls match. */
    void cancel();
    /** Goes back to the saved settings just before the pane is left. */
    void discardChanges();

private:
    using Pane = platform::PreferencePane;

    /** What the line says, and its button; empty if there is none. */
    struct Notice {
        QString text{};
        QString button{};
        void (PaneShell::*action)() = nullptr; ///< what the button does
    };

    void makeButtons();
    void makeNotice();
    void makeSelfCheck();
    void checkSelf();
    int askAboutUnsaved(const platform::Error& error, bool canStay);
    void handleNews(Pane::News news, const QString& text);
    void clearNotices();
    /** What the line says now: the first of several things that are wrong. */
    Notice notice() const;
    void showNotice();
    void retry();
    void saveAgain();
    void sendAgain();
    void chooseMovedMonitor();
    void checkDeviceSoon();
    void checkDevice();
    /** Shows the pane again without leaving it, so that it saves nothing. */
    void reload();
    /** Leaves the pane, which saves, and shows it again. */
    void reopen();
    /** Shows the pane again, once it has been left. */
    void reshow();
    void closeDialogs() const;

    std::unique_ptr<Pane> mPane;
    PaneEdits* mEdits = nullptr;
    bool mIsSelected = false;
    QString mNotSaved; ///< why the last save failed; empty on success
    QString mNotKept; ///< why the former tablet's changes were lost; empty if none were
    QString mNotLoaded; ///< why the settings could not be read; empty on success
    bool mIsNotTaken = false; ///< the driver has not accepted the last change
    bool mWillCheckDevice = false; ///< checkDevice() will be called soon
    bool mIsUnsure = false; ///< a new driver did not say which tablet it has
    MonitorMemory mMonitor; ///< the one that was chosen for the tablet

    ProfileBar* mProfiles = nullptr; ///< above the pane
    QWidget* mBottom = nullptr; ///< the line and the buttons
    platform::NoticeLabel* mNoticeLabel = nullptr; ///< null until the first notice
    QPushButton* mRetry = nullptr;
    QWidget* mSelfCheck = nullptr; ///< the button for a self-check; null before it is needed
    QPushButton* mSave = nullptr; ///< null if the host has its own
    QPushButton* mCancel = nullptr;
};
