// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneWindow.h"

#include "PaneShell.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QImageWriter>
#include <QPixmap>
#include <QScreen>
#include <QTabWidget>

#include <utility>

PaneWindow::PaneWindow(std::unique_ptr<platform::PreferencePane> pane)
    : mShell(new PaneShell(std::move(pane), PaneShell::Host::Window))
{
    setCentralWidget(mShell);
    setWindowTitle(mShell->windowTitle());
    resize(naturalSize().boundedTo(roomOnScreen()));
}

PaneWindow::~PaneWindow() = default;

QSize PaneWindow::naturalSize() const
{
    const QWidget& view = mShell->view();
    const QSize contents = view.size().expandedTo(view.sizeHint());
    return {contents.width(), mShell->topHeight() + contents.height() + mShell->bottomHeight()};
}

QSize PaneWindow::roomOnScreen() const
{
    // The window system adds the frame later; its title is about two lines high.
    const int title = 2 * fontMetrics().height();
    const int edge = fontMetrics().height() / 2;
    return screen()->availableSize() - QSize(2 * edge, title + edge);
}

void PaneWindow::select()
{
    mShell->willSelect();
    show();
    mShell->didSelect();
}

void PaneWindow::unselect()
{
    if (mShell->isSelected()) {
        static_cast<void>(mShell->willUnselect()); // there is no user to ask
        hide();
        mShell->didUnselect();
    }
}

void PaneWindow::closeEvent(QCloseEvent* event)
{
    if (!mShell->isSelected()) {
        return;
    }
    if (!mShell->mayLeave(true)) {
        event->ignore();
        return;
    }
    hide();
    mShell->didUnselect();
}

QTabWidget* PaneWindow::pages() const
{
    return mShell->view().findChild<QTabWidget*>();
}

bool PaneWindow::hasPages() const
{
    const QTabWidget* const tabs = pages();
    return tabs != nullptr && !tabs->isHidden();
}

platform::Result<QStringList> PaneWindow::render(const QString& folder)
{
    QStringList files;
    const auto save = [&](const QString& name) -> platform::Result<> {
        const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
        // Unlike a screen, a picture has room for everything.
        resize(naturalSize().expandedTo(mShell->view().minimumSizeHint()
            + QSize(0, mShell->topHeight() + mShell->bottomHeight())));
        // A hidden window is laid out only for its picture. Each round of posted events removes one
        // scroll bar that is not needed.
        for (int bar = 0; bar < 2; ++bar) {
            grab();
            QCoreApplication::sendPostedEvents();
        }
        QImageWriter writer(file);
        if (!writer.write(grab().toImage())) {
            return platform::Error{
                QStringLiteral("cannot write %1: %2").arg(file, writer.errorString())};
        }
        files.append(file);
        return {};
    };
    mShell->willSelect();
    ensurePolished();
    if (!hasPages()) {
        const platform::Result<> saved = save(QStringLiteral("noDevice"));
        return saved ? platform::Result<QStringList>(files) : saved.error();
    }
    QTabWidget* const tabs = pages();
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        if (const platform::Result<> saved = save(tabs->widget(page)->objectName()); !saved) {
            return saved.error();
        }
    }
    return files;
}
