// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

/**
 * Shows what the pane's self-check finds: a list of its stages, with what to do where something is
 * wrong, and a report to be copied. Checks when it is created, and again on request.
 */
class SelfCheckDialog final : public QDialog {
    Q_OBJECT

public:
    /** @param pane outlives the dialog */
    explicit SelfCheckDialog(platform::PreferencePane& pane, QWidget* parent);

    QSize sizeHint() const override;

Q_SIGNALS:
    /** A check has ended; it may have started the driver. */
    void checked();

private:
    using Stage = platform::PreferencePane::CheckedStage;

    void check();
    void showResult(const platform::PreferencePane::SelfCheck& check);
    void add(const Stage& stage);
    void copyReport() const;

    platform::PreferencePane& mPane;
    QString mReport;
    QLabel* mResult;
    QListWidget* mStages;
    QPushButton* mCheck;
    QPushButton* mCopy;
};
