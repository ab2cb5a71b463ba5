// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>

#include <optional>
#include <utility>

PaneWindow::PaneWindow(std::unique_ptr<platform::PreferencePane> pane)
    : mPane(std::move(pane))
{
    QWidget* const view = mPane->loadMainView();
    mNaturalSize = view->size().expandedTo(view->sizeHint());
    auto* const scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus); // it follows the focus of what is in it
    scroll->setWidget(view);
    setCentralWidget(scroll);
    setWindowTitle(view->windowTitle());
    resize(mNaturalSize.boundedTo(screen()->availableSize()));
}

PaneWindow::~PaneWindow() = default;

void PaneWindow::select()
{
    mPane->willSelect();
    mSelected = true;
    show();
    mPane->didSelect();
}

void PaneWindow::unselect()
{
    if (!std::exchange(mSelected, false)) {
        return;
    }
    mPane->willUnselect();
    hide();
    mPane->didUnselect();
}

void PaneWindow::closeEvent(QCloseEvent* event)
{
    unselect();
    event->accept();
}

QTabWidget* PaneWindow::pages() const
{
    return mPane->mainView()->findChild<QTabWidget*>();
}

bool PaneWindow::hasPages() const
{
    const QTabWidget* const tabs = pages();
    return tabs != nullptr && !tabs->isHidden();
}

QStringList PaneWindow::render(const QString& folder)
{
    QStringList files;
    const auto save = [&](const QString& name) {
        const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
        // A picture has room for all of it, unlike a screen.
        resize(mNaturalSize.expandedTo(mPane->mainView()->minimumSizeHint()));
        // A window that is never shown is laid out for its picture. What it posts then lets go of a
        // scroll bar that it has no need for, one by one.
        for (int bar = 0; bar < 2; ++bar) {
            grab();
            QCoreApplication::sendPostedEvents();
        }
        if (!grab().save(file)) {
            return false;
        }
        files.append(file);
        return true;
    };
    mPane->willSelect();
    ensurePolished();
    if (!hasPages()) {
        save(QStringLiteral("noDevice"));
        return files;
    }
    QTabWidget* const tabs = pages();
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        if (!save(tabs->widget(page)->objectName())) {
            return {};
        }
    }
    return files;
}
