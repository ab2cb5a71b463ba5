// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneArea.h"

#include <QCoreApplication>
#include <QDialog>
#include <QHideEvent>
#include <QVBoxLayout>

#include <utility>

PaneArea::PaneArea(std::unique_ptr<platform::PreferencePane> pane, QWidget* parent)
    : QWidget(parent)
    , mPane(std::move(pane))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mPane->loadMainView());
    mPane->setButtonsShown(false);
    mPane->setChangeHandler([this] { tell(); });
    // A host that rearranges its window hides what it shows again a moment later.
    connect(this, &PaneArea::hidden, this, &PaneArea::unselectWhereHidden, Qt::QueuedConnection);
    // Once it has called, a host takes the settings for saved without a look at the outcome.
    connect(this, &PaneArea::served, this, &PaneArea::tell, Qt::QueuedConnection);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &PaneArea::unselect);
}

PaneArea::~PaneArea()
{
    mChangeHandler = nullptr;
    unselect();
}

void PaneArea::setChangeHandler(std::function<void(bool)> handler)
{
    mChangeHandler = std::move(handler);
}

void PaneArea::tell() const
{
    if (mChangeHandler) {
        mChangeHandler(mPane->hasChanges());
    }
}

void PaneArea::select()
{
    mSelected = true;
    mPane->willSelect();
}

void PaneArea::unselect()
{
    if (!std::exchange(mSelected, false)) {
        return;
    }
    mPane->willUnselect();
    mPane->didUnselect();
    tell();
}

void PaneArea::unselectWhereHidden()
{
    if (!isVisible()) {
        unselect();
    }
}

void PaneArea::apply()
{
    mPane->save();
    Q_EMIT served();
}

void PaneArea::reset()
{
    if (!mPane->hasChanges()) {
        return;
    }
    mPane->cancel();
    if (mSelected) {
        unselect();
        select();
        mPane->didSelect();
    }
    Q_EMIT served();
}

void PaneArea::giveUp()
{
    if (mSelected && mPane->hasChanges()) {
        mPane->cancel();
    }
}

void PaneArea::showEvent(QShowEvent* event)
{
    const bool isComing = !mSelected;
    if (isComing) {
        select();
    }
    QWidget::showEvent(event);
    if (isComing) {
        mPane->didSelect();
        if (const auto* const dialog = qobject_cast<QDialog*>(window())) {
            // It tells right after it has hidden itself, and so before the pane is left.
            connect(dialog, &QDialog::rejected, this, &PaneArea::giveUp, Qt::UniqueConnection);
        }
    }
}

void PaneArea::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous()) {
        return; // the window is minimised
    }
    Q_EMIT hidden();
}
