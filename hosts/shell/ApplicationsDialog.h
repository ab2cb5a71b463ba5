// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "InstalledApplications.h"

#include <QDialog>
#include <QString>
#include <QStringList>

#include <vector>

class QListWidget;
class QPushButton;

/** How a profile names an application: its desktop entry without ".desktop", or its file. */
QString applicationIDOf(const QString& path);

/**
 * The applications with these IDs, in their order. One that is not installed has its ID for a name,
 * and no path.
 */
std::vector<platform::Application> applicationsWithIDs(const QStringList& ids);

/** Lets the user choose which applications a profile is for. */
class ApplicationsDialog final : public QDialog {
    Q_OBJECT

public:
    /**
     * @param profile its name
     * @param applications the IDs of those that it is for
     */
    ApplicationsDialog(const QString& profile, const QStringList& applications, QWidget* parent);

    /** The IDs of the applications. */
    QStringList applications() const { return mIDs; }

    QSize sizeHint() const override;

private:
    void add();
    void remove();
    void addRow(const QString& id, const platform::Application& application);
    void updateButton();

    QStringList mIDs; ///< in the order of the list
    QListWidget* mList;
    QPushButton* mRemove = nullptr;
};
