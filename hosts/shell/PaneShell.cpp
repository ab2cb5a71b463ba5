// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneShell.h"

#include "Accessible.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

PaneShell::PaneShell(std::unique_ptr<Pane> pane, Host host, QWidget* parent)
    : QWidget(parent)
    , mPane(std::move(pane))
    , mBottom(new QWidget(this))
{
    QWidget* contents = mPane->loadMainView();
    setWindowTitle(contents->windowTitle());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (host == Host::Window) {
        auto* const scroll = new QScrollArea;
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidgetResizable(true);
        scroll->setFocusPolicy(Qt::NoFocus); // it follows the focus of what is in it
        scroll->setWidget(contents);
        contents = scroll;
    }
    layout->addWidget(contents, 1);
    layout->addWidget(mBottom);
    auto* const bottom = new QHBoxLayout(mBottom);
    // At the sides as far in as the pages, of which the pane's own margins are below.
    bottom->setContentsMargins(bottom->contentsMargins().left(), 0,
        bottom->contentsMargins().right(), bottom->contentsMargins().bottom());
    if (host == Host::Window) {
        makeButtons();
    }
    mBottom->hide();
    mPane->setButtonsShown(false);
    mPane->setNewsHandler([this](Pane::News news, const QString& text) { take(news, text); });
}

PaneShell::~PaneShell()
{
    mPane->setNewsHandler(nullptr);
    mPane->setChangeHandler(nullptr);
}

void PaneShell::makeButtons()
{
    mCancel = new QPushButton(tr("&Cancel"));
    mCancel->setToolTip(tr("Go back to the settings in the file"));
    connect(mCancel, &QPushButton::clicked, this, &PaneShell::cancel);
    mSave = new QPushButton(tr("Sa&ve"));
    mSave->setToolTip(tr("Keep the settings as they are now"));
    connect(mSave, &QPushButton::clicked, this, &PaneShell::save);
    auto* const row = static_cast<QHBoxLayout*>(mBottom->layout()); // NOLINT(*-downcast): made so
    row->addStretch(1);
    row->addWidget(mCancel);
    row->addWidget(mSave);
}

void PaneShell::makeNotice()
{
    mNoticeLabel = new platform::NoticeLabel(mBottom);
    mNoticeLabel->setTextFormat(Qt::PlainText);
    mNoticeLabel->setWordWrap(true);
    mNoticeLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mNoticeLabel->hide();
    mMend = new QPushButton(mBottom);
    mMend->hide();
    connect(mMend, &QPushButton::clicked, this, &PaneShell::mend);
    auto* const row = static_cast<QHBoxLayout*>(mBottom->layout()); // NOLINT(*-downcast): made so
    if (mSave != nullptr) {
        delete row->takeAt(0); // the line takes the room that was left free
    }
    row->insertWidget(0, mNoticeLabel, 1);
    row->insertWidget(1, mMend);
    if (mCancel != nullptr) {
        setTabOrder(mMend, mCancel);
        setTabOrder(mCancel, mSave);
    }
}

void PaneShell::setChangeHandler(std::function<void()> handler)
{
    mPane->setChangeHandler(std::move(handler));
}

bool PaneShell::hasChanges() const
{
    return mPane->hasChanges();
}

QWidget& PaneShell::view() const
{
    return *mPane->mainView();
}

int PaneShell::bottomHeight() const
{
    return mBottom->sizeHint().height();
}

// Coming and leaving ------------------------------------------------------------------------------

void PaneShell::willSelect()
{
    forget();
    mIsSelected = true;
    mPane->willSelect();
    if (mSave != nullptr) {
        mSave->setVisible(mPane->hasDevice());
        mCancel->setVisible(mPane->hasDevice());
    }
    showNotice();
}

void PaneShell::didSelect()
{
    mPane->didSelect();
}

QString PaneShell::willUnselect()
{
    const bool hasChanges = mPane->hasDevice() && mPane->hasChanges();
    mNotSaved.clear();
    mPane->willUnselect();
    return hasChanges ? mNotSaved : QString();
}

void PaneShell::didUnselect()
{
    mIsSelected = false;
    mPane->didUnselect();
}

void PaneShell::end()
{
    mPane->setNewsHandler(nullptr); // nobody would see the line any more
    if (mIsSelected) {
        willUnselect();
        didUnselect();
    }
}

void PaneShell::showAnew()
{
    closeDialogs();
    willUnselect();
    didUnselect();
    willSelect();
    didSelect();
}

void PaneShell::load()
{
    // Without leaving the pane, which would save what could not be loaded.
    didUnselect();
    willSelect();
    didSelect();
}

void PaneShell::closeDialogs() const
{
    // What is asked there is of the tablet that has gone.
    for (QWidget* widget = QApplication::activeModalWidget(); widget != nullptr;
         widget = QApplication::activeModalWidget()) {
        const QWidget* ancestor = widget;
        while (ancestor != nullptr && ancestor != this) {
            ancestor = ancestor->parentWidget();
        }
        auto* const dialog = qobject_cast<QDialog*>(widget);
        if (ancestor == nullptr || dialog == nullptr) {
            return;
        }
        dialog->reject();
        if (dialog->isVisible()) {
            return; // it does not let itself be closed
        }
    }
}

void PaneShell::save()
{
    mPane->save();
}

void PaneShell::cancel()
{
    mPane->cancel();
    if (mIsSelected) {
        showAnew();
    }
}

void PaneShell::giveUp()
{
    if (mIsSelected && mPane->hasChanges()) {
        mPane->cancel();
    }
}

// What has gone wrong -----------------------------------------------------------------------------

void PaneShell::take(Pane::News news, const QString& text)
{
    switch (news) {
    case Pane::News::ChangeTaken:
        mIsNotTaken = false;
        break;
    case Pane::News::ChangeNotTaken:
        mIsNotTaken = true;
        break;
    case Pane::News::Loaded:
        mNotLoaded.clear();
        break;
    case Pane::News::NotLoaded:
        mNotLoaded = text;
        break;
    case Pane::News::Saved:
        mNotSaved.clear();
        mNotLoaded.clear(); // the file now says what the pages show
        break;
    case Pane::News::NotSaved:
        mNotSaved = text;
        break;
    case Pane::News::DeviceMayHaveChanged:
        followDevice();
        return;
    case Pane::News::ChangedByItself:
        if (mIsSelected) {
            sendAgain();
        }
        return;
    }
    showNotice();
}

void PaneShell::forget()
{
    mNotSaved.clear();
    mNotLoaded.clear();
    mIsNotTaken = false;
}

PaneShell::Notice PaneShell::notice() const
{
    if (!mIsSelected || !mPane->hasDevice()) {
        return Notice::None;
    }
    if (!mNotSaved.isEmpty()) {
        return Notice::NotSaved;
    }
    if (!mNotLoaded.isEmpty()) {
        return Notice::NotLoaded;
    }
    return mIsNotTaken ? Notice::NotTaken : Notice::None;
}

void PaneShell::showNotice()
{
    QString text;
    QString button;
    switch (notice()) {
    case Notice::NotSaved:
        text = tr("The settings are not saved: %1").arg(mNotSaved);
        button = tr("Tr&y Again");
        break;
    case Notice::NotLoaded:
        text = tr("The tablet's settings cannot be loaded, so the pages do not show them: %1")
                   .arg(mNotLoaded);
        button = tr("Tr&y Again");
        break;
    case Notice::NotTaken:
        text = tr("The tablet's driver has not taken the last change. Is it running?");
        button = tr("Send A&gain");
        break;
    case Notice::None:
        break;
    }
    if (mNoticeLabel == nullptr && !text.isEmpty()) {
        makeNotice();
    }
    if (mNoticeLabel != nullptr && text != mNoticeLabel->text()) {
        const bool hadFocus = mMend->hasFocus();
        mNoticeLabel->hide(); // only what appears is read out
        mNoticeLabel->setText(text);
        mNoticeLabel->setVisible(!text.isEmpty());
        mMend->setText(button);
        mMend->setVisible(!text.isEmpty());
        if (hadFocus && text.isEmpty()) {
            mPane->didSelect(); // back to where the pane's focus begins
        }
    }
    mBottom->setVisible(!text.isEmpty() || (mSave != nullptr && mPane->hasDevice()));
}

void PaneShell::mend()
{
    switch (notice()) {
    case Notice::NotSaved:
        if (mPane->checkDevice() == Pane::Device::Other) {
            showAnew();
        } else {
            save();
        }
        break;
    case Notice::NotLoaded:
        load();
        break;
    case Notice::NotTaken:
        sendAgain();
        break;
    case Notice::None:
        break;
    }
}

void PaneShell::sendAgain()
{
    switch (mPane->checkDevice()) {
    case Pane::Device::Unknown:
        mIsNotTaken = true;
        showNotice();
        break;
    case Pane::Device::Same:
        mPane->send();
        break;
    case Pane::Device::Other:
        showAnew();
        break;
    }
}

void PaneShell::followDevice()
{
    if (!mIsSelected) {
        return;
    }
    switch (mPane->checkDevice()) {
    case Pane::Device::Unknown:
        break;
    case Pane::Device::Same:
        if (!mNotLoaded.isEmpty()) {
            load(); // a driver that comes may have brought the file
        }
        break;
    case Pane::Device::Other:
        showAnew();
        break;
    }
}
