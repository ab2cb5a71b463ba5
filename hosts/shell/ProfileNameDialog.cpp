// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ProfileNameDialog.h"

#include "Accessible.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

ProfileNameDialog::ProfileNameDialog(
    const QString& title, const QString& button, const QString& name, Fault fault, QWidget* parent)
    : QDialog(parent)
    , mFaultOf(std::move(fault))
    , mName(new QLineEdit(name, this))
    , mFault(new platform::NoticeLabel(this))
{
    setWindowTitle(title);
    //: Label of the field for a profile's name.
    auto* const label = new QLabel(tr("&Name:"), this);
    label->setBuddy(mName);
    constexpr int kColumns = 44;
    mName->setMinimumWidth(kColumns * fontMetrics().averageCharWidth());
    mName->selectAll();
    mFault->setTextFormat(Qt::PlainText);
    mFault->setWordWrap(true);
    // So that the window keeps its size, whatever the text.
    mFault->setMinimumHeight(2 * fontMetrics().lineSpacing());
    mFault->setAlignment(Qt::AlignTop);
    auto* const buttons = new QDialogButtonBox(this);
    mTake = buttons->addButton(button, QDialogButtonBox::AcceptRole);
    //: Button: closes the dialog, and changes nothing.
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    connect(mName, &QLineEdit::textChanged, this, &ProfileNameDialog::check);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Q_EMIT chosen(mName->text()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(mName, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(mFault, 1);
    layout->addWidget(buttons);
    check();
}

void ProfileNameDialog::showFault(const QString& fault)
{
    mFault->hide(); // screen readers announce only what appears
    mFault->setText(fault);
    mFault->show();
}

void ProfileNameDialog::check()
{
    const QString fault = mFaultOf(mName->text());
    mTake->setEnabled(fault.isEmpty());
    if (fault != mFault->text()) {
        showFault(fault);
    }
}
