// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class FollowService;
class ImportDialog;
class ProfileNameDialog;
class QAction;
class QMenu;
class QPushButton;
class QToolButton;

/**
 * The row above the pane with its device's profiles: a list to use one, a button to save the
 * settings as one, and a menu with everything else. It is visible while the pane has a device and
 * profiles.
 */
class ProfileBar final : public QWidget {
    Q_OBJECT

public:
    /** @param pane must exist until leavePane() */
    ProfileBar(platform::PreferencePane& pane, QWidget* shell);

    /** The pane has a device, or none: shows the profiles of that. */
    void showDevice();

    /** The pane is about to be destroyed. */
    void leavePane();

private:
    class List;
    /** What to do with a name. @return why it was not done, for the user; empty on success */
    using Act = std::function<QString(platform::PaneProfiles& profiles, const QString& name)>;

    void makeMenu();
    void refresh();
    void updateFollow();
    /** The pane's profiles; null without any, and when the pane has gone. */
    platform::PaneProfiles* profiles() const;
    std::vector<platform::PaneProfiles::Profile> list() const;
    bool has(const QString& name) const;
    QString current() const;

    void use(const QString& name);
    void askWhereToSave();
    void askForNewName();
    void askForCopysName();
    void askWhetherToDelete();
    void askForApplications();
    void askWhatToImport();
    void showImport(const QString& file);
    void keepImport(ImportDialog& dialog);
    void askWhereToExport();

    ProfileNameDialog& openNameDialog(
        const QString& title, const QString& button, const QString& proposal);
    void askForName(
        const QString& title, const QString& button, const QString& proposal, const Act& act);
    /** Does something with the name of a dialog, which stays open if that fails. */
    void take(ProfileNameDialog& dialog, const QString& name, const Act& act);
    /** Asks about something that cannot be undone; by default, nothing is done. */
    void ask(const QString& text, const QString& button, QWidget* parent,
        const std::function<void()>& act);
    void tell(const QString& fault);

    platform::PreferencePane* mPane; ///< null when it has gone
    List* mList;
    QToolButton* mMore;
    FollowService* mFollow;
    QAction* mFollowAction = nullptr;
    std::vector<QAction*> mOfCurrent; ///< the menu's items that need a current profile
};
