// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ImportDialog.h"

#include "ApplicationsDialog.h"
#include "DialogSize.h"
#include "LiteralText.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

using platform::literalText;
using platform::wrappableText;

namespace {

QLabel* makeLabel(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

ImportDialog::ImportDialog(platform::PaneProfiles::Import import, QWidget* parent)
    : QDialog(parent)
    , mImport(std::move(import))
    , mContents(new QListWidget(this))
{
    //: Title of the dialog.
    setWindowTitle(tr("Import Profile"));
    mContents->setWordWrap(true);
    mContents->setSelectionMode(QAbstractItemView::NoSelection); // there is nothing to choose
    //: Name of the list, for screen readers.
    mContents->setAccessibleName(tr("What is in the profile"));
    addLines(mImport.changes.isEmpty() ? tr("It changes nothing.")
                                       //: Heading of a list.
                                       : tr("It changes:"),
        mImport.changes);
    if (!mImport.leftOut.isEmpty()) {
        //: Heading of a list.
        addLines(tr("Left out, because it does not fit your tablet:"), mImport.leftOut);
    }
    if (!mImport.applications.isEmpty()) {
        QStringList names;
        for (const platform::Application& application : applicationsWithIDs(mImport.applications)) {
            names.append(application.name);
        }
        //: Heading of a list.
        addLines(tr("It is for these applications:"), names);
    }

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(makeLabel(
        //: %1 is the name of a profile.
        tr("The profile will be in the list as “%1”. It is not used yet.")
            .arg(literalText(mImport.name)),
        this));
    layout->addWidget(mContents, 3);
    if (!mImport.starts.empty()) {
        layout->addWidget(makeLabel(tr("Some of its buttons would start an application. Allow only "
                                       "what you know and trust; the others do nothing."),
            this));
        layout->addWidget(makeStarts(), 2);
    }
    auto* const buttons = new QDialogButtonBox(this);
    //: Button: keeps what is in the file as a profile.
    buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    //: Button: closes the dialog, and changes nothing.
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resizeWithinScreen(*this);
}

void ImportDialog::addLines(const QString& heading, const QStringList& lines)
{
    auto* const item = new QListWidgetItem(heading, mContents);
    QFont bold = mContents->font();
    bold.setBold(true);
    item->setFont(bold);
    for (const QString& line : lines) {
        const QString text = literalText(line);
        auto* const wrapped = new QListWidgetItem(wrappableText(text), mContents);
        wrapped->setData(Qt::AccessibleTextRole, text);
    }
}

QWidget* ImportDialog::makeStarts()
{
    auto* const area = new QScrollArea(this);
    auto* const contents = new QWidget;
    auto* const layout = new QVBoxLayout(contents);
    for (const platform::PaneProfiles::Start& start : mImport.starts) {
        const QString path = literalText(start.path);
        const QString button = literalText(start.button);
        QLabel* const label = makeLabel(button + u'\n' + wrappableText(path), contents);
        //: Read by screen readers; %1 is a button of the tablet, %2 the path of an application.
        label->setAccessibleName(tr("%1: %2").arg(button, path));
        //: Check box: a button of the tablet may start the application whose path is above.
        auto* const box = new QCheckBox(tr("Let this button start it"), contents);
        //: Read by screen readers; %1 is a button of the tablet, %2 the path of an application.
        box->setAccessibleName(tr("%1: let this button start %2").arg(button, path));
        layout->addWidget(label);
        layout->addWidget(box);
        mStarts.push_back(box);
    }
    layout->addStretch(1);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // it scrolls to the focused check box
    area->setWidget(contents);
    return area;
}

std::vector<bool> ImportDialog::allowed() const
{
    std::vector<bool> allowed;
    allowed.reserve(mStarts.size());
    for (const QCheckBox* const box : mStarts) {
        allowed.push_back(box->isChecked());
    }
    return allowed;
}

QSize ImportDialog::sizeHint() const
{
    constexpr int kColumns = 80;
    constexpr int kLines = 24;
    constexpr int kLinesOfStarts = 10;
    const int lines = mStarts.empty() ? kLines : kLines + kLinesOfStarts;
    return {kColumns * fontMetrics().averageCharWidth(), lines * fontMetrics().lineSpacing()};
}
