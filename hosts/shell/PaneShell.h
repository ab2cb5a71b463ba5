// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>

class QPushButton;

namespace platform {
class NoticeLabel;
}

/**
 * What every host puts around the pane: a line that says what has gone wrong, with a button that
 * mends it, and, in a window of our own, scroll bars and the buttons Save and Cancel.
 *
 * The pane itself reports and repeats nothing. The shell hears its news, and leaves the pane and
 * shows it anew when the driver has another tablet, or when the user goes back to the saved
 * settings. Of its own accord and for "Send Again" it sends a driver nothing that has not said,
 * just before, that it has the same tablet.
 *
 * The host calls willSelect(), didSelect(), willUnselect() and didUnselect() as it would call the
 * pane's own.
 */
class PaneShell final : public QWidget {
    Q_OBJECT

public:
    /** Who shows the shell. */
    enum class Host : std::uint8_t {
        Window, ///< has no buttons for save() and cancel(), and no scroll bars
        SettingsApplication, ///< has both
    };

    /** Loads the pane's main view. */
    PaneShell(std::unique_ptr<platform::PreferencePane> pane, Host host, QWidget* parent = nullptr);
    ~PaneShell() override;
    PaneShell(const PaneShell&) = delete;
    PaneShell& operator=(const PaneShell&) = delete;
    PaneShell(PaneShell&&) = delete;
    PaneShell& operator=(PaneShell&&) = delete;

    /** Takes what is called each time hasChanges() may have another answer. */
    void setChangeHandler(std::function<void()> handler);
    /** Whether there is something that save() would make permanent and cancel() give up. */
    bool hasChanges() const;

    /** The pane's main view. */
    QWidget& view() const;

    /** How much height the line and the buttons need below the pane, in pixels. */
    int bottomHeight() const;

    /** Whether the pane has been selected and not unselected since. */
    bool isSelected() const { return mIsSelected; }

    void willSelect();
    void didSelect();
    /**
     * Has the pane save its settings.
     *
     * @return why the user's changes could not be saved; empty when none are lost
     */
    QString willUnselect();
    void didUnselect();
    /** Leaves a pane that is still selected, because the shell is about to go. */
    void end();

    /** What to do about changes that could not be saved. */
    enum class Unsaved : std::uint8_t { TryAgain, Discard, Stay };
    /**
     * Asks the user, who may answer after the shell has gone.
     *
     * @param why from willUnselect()
     * @param canStay whether the host can still go back to where it was; without an answer, it
     *     does so if it can, and else discards
     */
    Unsaved askAboutUnsaved(const QString& why, bool canStay);

    /** Makes the settings permanent. */
    void save();
    /** Goes back to the saved settings, and shows the pane anew so that its controls follow. */
    void cancel();
    /** Goes back to the saved settings just before the pane is left. */
    void giveUp();

private:
    using Pane = platform::PreferencePane;

    /** What the line says; the first that holds is shown. */
    enum class Notice : std::uint8_t { NotSaved, NotKept, NotLoaded, NotTaken, None };

    void makeButtons();
    void makeNotice();
    void take(Pane::News news, const QString& text);
    void forget();
    Notice notice() const;
    void showNotice();
    void mend();
    void sendAgain();
    void followSoon();
    void followDevice();
    void load();
    void showAnew();
    void comeAgain();
    void closeDialogs() const;

    std::unique_ptr<Pane> mPane;
    bool mIsSelected = false;
    QString mNotSaved; ///< why the last save failed; empty when it did not
    QString mNotKept; ///< why the former tablet's changes were lost; empty when none were
    QString mNotLoaded; ///< why the settings could not be read; empty when they were
    bool mIsNotTaken = false; ///< the driver has not taken the last change
    bool mIsFollowing = false; ///< followDevice() will be called soon
    bool mIsUnsure = false; ///< a driver has come that did not say which tablet it has

    QWidget* mBottom = nullptr; ///< the line and the buttons
    platform::NoticeLabel* mNoticeLabel = nullptr; ///< null before there was anything to say
    QPushButton* mMend = nullptr;
    QPushButton* mSave = nullptr; ///< null where the host has one
    QPushButton* mCancel = nullptr;
};
