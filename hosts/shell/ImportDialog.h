// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QDialog>

#include <vector>

class QCheckBox;
class QListWidget;

/**
 * Shows what is in a profile from somebody else before it is kept, and asks for each button that
 * would start an application whether it may. Everything from the file is shown literally.
 */
class ImportDialog final : public QDialog {
    Q_OBJECT

public:
    ImportDialog(platform::PaneProfiles::Import import, QWidget* parent);

    /** What was read from the file. */
    const platform::PaneProfiles::Import& import() const { return mImport; }
    /** For each of its starts, whether the button may start the application. */
    std::vector<bool> allowed() const;

    QSize sizeHint() const override;

private:
    void addLines(const QString& heading, const QStringList& lines);
    QWidget* makeStarts();

    platform::PaneProfiles::Import mImport;
    QListWidget* mContents;
    std::vector<QCheckBox*> mStarts;
};
