// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ApplicationsDialog.h"

#include "LiteralText.h"
#include "OpenPanel.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

QString applicationIDOf(const QString& path)
{
    constexpr QLatin1String kEntrySuffix(".desktop");
    QString name = QFileInfo(path).fileName();
    if (name.endsWith(kEntrySuffix)) {
        name.chop(kEntrySuffix.size());
    }
    return name;
}

std::vector<platform::Application> applicationsWithIDs(const QStringList& ids)
{
    const std::vector<platform::Application> installed =
        ids.isEmpty() ? std::vector<platform::Application>() : platform::installedApplications();
    std::vector<platform::Application> found;
    found.reserve(static_cast<std::size_t>(ids.size()));
    for (const QString& id : ids) {
        const auto application =
            std::ranges::find_if(installed, [&id](const platform::Application& candidate) {
                return applicationIDOf(candidate.path) == id;
            });
        if (application != installed.end()) {
            found.push_back(*application);
        } else {
            found.emplace_back();
            found.back().name = id;
        }
    }
    return found;
}

ApplicationsDialog::ApplicationsDialog(
    const QString& profile, const QStringList& applications, QWidget* parent)
    : QDialog(parent)
    , mList(new QListWidget(this))
{
    //: Title of the dialog.
    setWindowTitle(tr("Applications of the Profile"));
    auto* const label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    //: %1 is the name of a profile; the quotation marks are those of the menu item.
    label->setText(tr("With “Follow Applications”, the profile “%1” is used while one of these "
                      "applications is in front:")
                       .arg(profile));
    constexpr QSize kApplicationIcon(32, 32);
    mList->setIconSize(kApplicationIcon);
    mList->setTextElideMode(Qt::ElideMiddle);
    mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    //: Name of the list, for screen readers.
    mList->setAccessibleName(tr("Applications"));
    connect(mList, &QListWidget::currentRowChanged, this, &ApplicationsDialog::updateButton);

    //: Button: chooses another application for the list.
    auto* const another = new QPushButton(tr("A&dd…"), this);
    //: Button: takes the selected application out of the list.
    mRemove = new QPushButton(tr("&Remove"), this);
    auto* const buttons = new QDialogButtonBox(this);
    //: Button: takes the list of applications.
    buttons->addButton(tr("&OK"), QDialogButtonBox::AcceptRole);
    //: Button: closes the dialog, and changes nothing.
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    connect(another, &QPushButton::clicked, this, &ApplicationsDialog::add);
    connect(mRemove, &QPushButton::clicked, this, &ApplicationsDialog::remove);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const changes = new QHBoxLayout;
    changes->addWidget(another);
    changes->addWidget(mRemove);
    changes->addStretch(1);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(mList, 1);
    layout->addLayout(changes);
    layout->addWidget(buttons);
    const std::vector<platform::Application> all = applicationsWithIDs(applications);
    for (std::size_t i = 0; i < all.size(); ++i) {
        addRow(applications[static_cast<int>(i)], all[i]);
    }
    mList->setCurrentRow(0);
    updateButton();
}

QSize ApplicationsDialog::sizeHint() const
{
    constexpr int kLines = 18;
    constexpr int kColumns = 60;
    return QDialog::sizeHint().expandedTo(
        {kColumns * fontMetrics().averageCharWidth(), kLines * fontMetrics().lineSpacing()});
}

void ApplicationsDialog::addRow(const QString& id, const platform::Application& application)
{
    mIDs.append(id);
    auto* const item = new QListWidgetItem(platform::iconOf(application), application.name, mList);
    // The text may come from somebody else's file.
    item->setToolTip(platform::literalToolTip(id));
}

void ApplicationsDialog::add()
{
    // The dialog may be destroyed before the user is done.
    const QPointer<ApplicationsDialog> self(this);
    const std::optional<QString> path = platform::openPanel().chooseApplication(
        this, [](const QString& /*any*/) { return QString(); });
    if (!path || self.isNull()) {
        return;
    }
    const QString id = applicationIDOf(*path);
    if (!mIDs.contains(id)) {
        addRow(id, platform::applicationAt(*path));
    }
    mList->setCurrentRow(static_cast<int>(mIDs.indexOf(id)));
}

void ApplicationsDialog::remove()
{
    const int row = mList->currentRow();
    if (row >= 0) {
        mIDs.removeAt(row);
        delete mList->takeItem(row);
    }
}

void ApplicationsDialog::updateButton()
{
    mRemove->setEnabled(mList->currentRow() >= 0);
}
