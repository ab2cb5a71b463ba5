// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneArea.h"

#include <QApplication>
#include <QDialog>
#include <QHideEvent>
#include <QVBoxLayout>

#include <utility>

PaneArea::PaneArea(std::unique_ptr<platform::PreferencePane> pane, QWidget* parent)
    : QWidget(parent)
    , mShell(new PaneShell(std::move(pane), PaneShell::Host::SettingsApplication))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mShell);
    mShell->setChangeHandler([this] { reportChanges(); });
    // A host that rearranges its window hides the area and shows it again a moment later.
    connect(this, &PaneArea::hidden, this, &PaneArea::unselectWhereHidden, Qt::QueuedConnection);
    // After the call, a host assumes that the settings are saved, without checking the result.
    connect(this, &PaneArea::served, this, &PaneArea::reportChanges, Qt::QueuedConnection);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &PaneArea::unselect);
}

PaneArea::~PaneArea()
{
    mChangeHandler = nullptr;
    mShell->end();
}

void PaneArea::setChangeHandler(std::function<void(bool)> handler)
{
    mChangeHandler = std::move(handler);
}

void PaneArea::reportChanges() const
{
    if (mChangeHandler) {
        mChangeHandler(mShell->hasChanges());
    }
}

void PaneArea::unselect()
{
    if (mShell->isSelected() && mShell->mayLeave(false)) {
        mShell->didUnselect();
        reportChanges();
    }
}

void PaneArea::unselectWhereHidden()
{
    if (!isVisible()) {
        unselect();
    }
}

void PaneArea::apply()
{
    mShell->save();
    Q_EMIT served();
}

void PaneArea::reset()
{
    if (!mShell->hasChanges()) {
        return;
    }
    mShell->cancel();
    Q_EMIT served();
}

void PaneArea::showEvent(QShowEvent* event)
{
    const bool isComing = !mShell->isSelected();
    if (isComing) {
        mShell->willSelect();
    }
    QWidget::showEvent(event);
    if (isComing) {
        mShell->didSelect();
        if (const auto* const dialog = qobject_cast<QDialog*>(window())) {
            // The dialog emits this right after it has hidden itself, so before the pane is left.
            connect(dialog, &QDialog::rejected, mShell, &PaneShell::discardChanges,
                Qt::UniqueConnection);
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
