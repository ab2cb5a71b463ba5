// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "InstalledApplications.h"
#include "OpenPanel.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

namespace platform {

/**
 * The dialog for choosing an application: those chosen last, then all others by name. A search
 * looks at their keywords, too. Applications that cannot be used are listed with the reason. Icons
 * are only loaded for rows that are visible.
 */
class ApplicationChooser final : public QDialog {
    Q_OBJECT

public:
    /** Lets the user choose any other file, above the dialog; nothing if none was chosen. */
    using OtherFile = std::function<std::optional<QString>(QWidget* parent)>;

    ApplicationChooser(QWidget* parent, const OpenPanel::Refusal& refusal, OtherFile otherFile);

    /** The path of the chosen application, once the dialog has been accepted. */
    QString chosen() const { return mChosen; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Model;
    class Search;

    void search(const QString& text);
    void updateButton();
    void chooseCurrent();
    void chooseOther();
    void choose(const QString& path);

    OtherFile mOtherFile;
    QString mChosen;
    Search* mSearch;
    QLineEdit* mLine;
    QListView* mList;
    QLabel* mNothing;
    QPushButton* mChoose = nullptr;
};

} // namespace platform
