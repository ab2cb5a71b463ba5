// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "SelfCheckDialog.h"

#include "Accessible.h"
#include "DialogSize.h"
#include "LiteralText.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QIcon>
#include <QListWidget>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

using Status = platform::PreferencePane::CheckedStage::Status;

namespace {

/** The picture of a stage's result; empty if it was not checked, so that all texts are aligned. */
QIcon iconOf(Status status, const QListWidget& list)
{
    if (status == Status::NotChecked) {
        constexpr int kLarge = 64; // in pixels; a list draws it smaller
        QPixmap nothing(kLarge, kLarge);
        nothing.fill(Qt::transparent);
        return {nothing};
    }
    return list.style()->standardIcon(
        status == Status::Ok ? QStyle::SP_DialogApplyButton : QStyle::SP_MessageBoxWarning, nullptr,
        &list);
}

} // namespace

SelfCheckDialog::SelfCheckDialog(platform::PreferencePane& pane, QWidget* parent)
    : QDialog(parent)
    , mPane(pane)
    , mResult(new platform::NoticeLabel(this))
    , mStages(new QListWidget(this))
{
    //: Title of the window that says what is wrong with tablet, driver and panel.
    setWindowTitle(tr("Self-Check"));
    mResult->setTextFormat(Qt::PlainText);
    mResult->setWordWrap(true);
    mStages->setWordWrap(true);
    mStages->setSpacing(2);
    //: Name of the list, for screen readers.
    mStages->setAccessibleName(tr("What was checked"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    //: Button of the self-check.
    mCheck = buttons->addButton(tr("Check A&gain"), QDialogButtonBox::ActionRole);
    //: Button of the self-check: copies what was found to the clipboard.
    mCopy = buttons->addButton(tr("Copy &Report"), QDialogButtonBox::ActionRole);
    mCopy->setToolTip(tr("For the person who helps you. It contains no personal data."));
    mCopy->setAccessibleDescription(mCopy->toolTip());
    connect(mCheck, &QPushButton::clicked, this, &SelfCheckDialog::check);
    connect(mCopy, &QPushButton::clicked, this, &SelfCheckDialog::copyReport);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(mResult);
    layout->addWidget(mStages, 1);
    layout->addWidget(buttons);
    // Otherwise, Qt makes it as low as the layout allows, since the text wraps.
    resizeWithinScreen(*this);
    check();
}

QSize SelfCheckDialog::sizeHint() const
{
    constexpr int kColumns = 90;
    constexpr int kLines = 32;
    return {kColumns * fontMetrics().averageCharWidth(), kLines * fontMetrics().lineSpacing()};
}

void SelfCheckDialog::check()
{
    mCheck->setEnabled(false);
    mCopy->setEnabled(false);
    mStages->clear();
    mResult->setText(tr("Checking…"));
    mPane.checkSelf([dialog = QPointer<SelfCheckDialog>(this)](
                        const platform::PreferencePane::SelfCheck& check) {
        if (!dialog.isNull()) {
            dialog->showResult(check);
        }
    });
}

void SelfCheckDialog::showResult(const platform::PreferencePane::SelfCheck& check)
{
    mReport = check.report;
    for (const Stage& stage : check.stages) {
        add(stage);
    }
    const auto problem = std::ranges::find(check.stages, Status::Problem, &Stage::status);
    const bool isGood = problem == check.stages.end();
    mStages->setCurrentRow(isGood ? 0 : static_cast<int>(problem - check.stages.begin()));
    mResult->hide(); // screen readers announce only what appears
    mResult->setText(isGood ? tr("No problems were found.")
                            : tr("Something is wrong. Begin with the first problem:"));
    mResult->show();
    mCheck->setEnabled(true);
    mCopy->setEnabled(true);
    Q_EMIT checked();
}

void SelfCheckDialog::add(const Stage& stage)
{
    const bool isProblem = stage.status == Status::Problem;
    const QString text = stage.remedy.isEmpty() ? stage.text : stage.text + u'\n' + stage.remedy;
    auto* const item = new QListWidgetItem(platform::wrappableText(text), mStages);
    item->setIcon(iconOf(stage.status, *mStages));
    QFont font = mStages->font();
    font.setBold(isProblem);
    item->setFont(font);
    const QString status = isProblem ? tr("Problem")
        : stage.status == Status::Ok ? tr("OK")
                                     : tr("Not checked");
    //: Read by screen readers; %1 is OK, Problem or Not checked, %2 what was found.
    item->setData(Qt::AccessibleTextRole, tr("%1: %2").arg(status, text));
}

void SelfCheckDialog::copyReport() const
{
    QGuiApplication::clipboard()->setText(mReport);
}
