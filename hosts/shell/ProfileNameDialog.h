// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <functional>

class QLineEdit;
class QPushButton;

namespace platform {
class NoticeLabel;
}

/**
 * Asks for the name of a profile. While the text cannot be one, the dialog says why. It stays open
 * until whoever has opened it closes it: the name may be taken.
 */
class ProfileNameDialog final : public QDialog {
    Q_OBJECT

public:
    /** Says why a text cannot be a name; empty if it can. */
    using Fault = std::function<QString(const QString& name)>;

    /**
     * @param button the text of the button that takes the name
     * @param name what is proposed
     */
    ProfileNameDialog(const QString& title, const QString& button, const QString& name, Fault fault,
        QWidget* parent);

    /** Says why the name was not accepted, until it is changed. */
    void showFault(const QString& fault);

Q_SIGNALS:
    /** The user has pressed the button. */
    void chosen(const QString& name);

private:
    void check();

    Fault mFaultOf;
    QLineEdit* mName;
    platform::NoticeLabel* mFault;
    QPushButton* mTake = nullptr;
};
