// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneShell.h"

#include "Accessible.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QMessageBox>
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
        scroll->setFocusPolicy(Qt::NoFocus); // it scrolls to the focused control
        scroll->setWidget(contents);
        contents = scroll;
    }
    layout->addWidget(contents, 1);
    layout->addWidget(mBottom);
    auto* const bottom = new QHBoxLayout(mBottom);
    // Align the sides with the pages; the pane's own margins are below.
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
    //: Button: discards the changes since the last save; the window stays open.
    mCancel = new QPushButton(tr("&Cancel"));
    mCancel->setToolTip(tr("Go back to the saved settings"));
    connect(mCancel, &QPushButton::clicked, this, &PaneShell::cancel);
    //: Button: saves the settings; the window stays open.
    mSave = new QPushButton(tr("Sa&ve"));
    mSave->setToolTip(tr("Save the current settings"));
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
        delete row->takeAt(0); // the line takes the place of the stretch
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

// Selecting and leaving ---------------------------------------------------------------------------

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

platform::Result<> PaneShell::willUnselect()
{
    const bool hasChanges = mPane->hasDevice() && mPane->hasChanges();
    if (!mNotLoaded.isEmpty() && !hasChanges) {
        load(); // otherwise a file repaired meanwhile would be overwritten with foreign settings
    }
    mNotSaved.clear();
    mPane->willUnselect();
    if (hasChanges && !mNotSaved.isEmpty()) {
        return platform::Error{mNotSaved};
    }
    return {};
}

void PaneShell::didUnselect()
{
    mIsSelected = false;
    mPane->didUnselect();
}

void PaneShell::end()
{
    mPane->setNewsHandler(nullptr); // the line is no longer visible
    if (std::exchange(mIsSelected, false)) {
        mPane->willUnselect();
        mPane->didUnselect();
    }
}

void PaneShell::showAnew()
{
    closeDialogs();
    const platform::Result<> kept = willUnselect();
    comeAgain();
    mNotKept = kept ? QString() : kept.error().text;
    showNotice();
}

void PaneShell::comeAgain()
{
    view().hide(); // showing it again redraws it
    didUnselect();
    willSelect();
    view().show();
    didSelect();
}

void PaneShell::load()
{
    closeDialogs();
    // Do not leave the pane, which would save what could not be loaded.
    comeAgain();
}

void PaneShell::closeDialogs() const
{
    // These dialogs are about the tablet that has gone.
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
            return; // it refuses to close
        }
    }
}

PaneShell::Unsaved PaneShell::askAboutUnsaved(const platform::Error& error, bool canStay)
{
    // Its parent may be destroyed, and the message box with it, before the user answers.
    const QPointer<QMessageBox> question = new QMessageBox(QMessageBox::Warning, windowTitle(),
        //: %1 is the reason, in English.
        tr("The tablet's settings could not be saved: %1").arg(error.text),
        QMessageBox::Retry | QMessageBox::Discard, window());
    question->setTextFormat(Qt::PlainText);
    if (canStay) {
        question->setInformativeText(tr("Close the window and discard the changes?"));
        //: Button: the window stays open, with its unsaved changes.
        QPushButton* const keep = question->addButton(tr("&Keep Open"), QMessageBox::RejectRole);
        question->setDefaultButton(keep);
        question->setEscapeButton(keep);
    } else {
        question->setEscapeButton(QMessageBox::Discard);
    }
    const int answer = question->exec();
    delete question;
    switch (answer) {
    case QMessageBox::Retry:
        return Unsaved::TryAgain;
    case QMessageBox::Discard:
        return Unsaved::Discard;
    default:
        return canStay ? Unsaved::Stay : Unsaved::Discard;
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
        if (mIsUnsure) {
            followSoon();
        }
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
        mNotLoaded.clear(); // the file now matches the pages
        break;
    case Pane::News::NotSaved:
        mNotSaved = text;
        break;
    case Pane::News::DeviceMayHaveChanged:
        followSoon();
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
    mNotKept.clear();
    mNotLoaded.clear();
    mIsNotTaken = false;
    mIsUnsure = false;
}

PaneShell::Notice PaneShell::notice() const
{
    if (!mIsSelected || !mPane->hasDevice()) {
        return Notice::None;
    }
    if (!mNotSaved.isEmpty()) {
        return Notice::NotSaved;
    }
    if (!mNotKept.isEmpty()) {
        return Notice::NotKept;
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
        //: %1 is the reason, in English.
        text = tr("The settings were not saved: %1").arg(mNotSaved);
        //: Button: saves or loads the settings again.
        button = tr("Tr&y Again");
        break;
    case Notice::NotKept:
        //: %1 is the reason, in English.
        text = tr("The previous tablet's settings were not saved: %1").arg(mNotKept);
        break;
    case Notice::NotLoaded:
        //: %1 is the reason, in English.
        text = tr("The tablet's settings cannot be loaded, so the pages do not show them: %1")
                   .arg(mNotLoaded);
        //: Button: saves or loads the settings again.
        button = tr("Tr&y Again");
        break;
    case Notice::NotTaken:
        text = tr("The tablet's driver has not accepted the last change. Is it running?");
        //: Button: sends the settings to the driver again.
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
        mNoticeLabel->hide(); // screen readers announce only what appears
        mNoticeLabel->setText(text);
        mNoticeLabel->setVisible(!text.isEmpty());
        mMend->setText(button);
        mMend->setVisible(!button.isEmpty());
        if (hadFocus && button.isEmpty()) {
            mPane->didSelect(); // the focus goes back to the pane's first control
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
    case Notice::NotKept:
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

void PaneShell::followSoon()
{
    // A new driver may be announced more than once, but is asked only once.
    if (mIsSelected && !std::exchange(mIsFollowing, true)) {
        QMetaObject::invokeMethod(this, &PaneShell::followDevice, Qt::QueuedConnection);
    }
}

void PaneShell::followDevice()
{
    mIsFollowing = false;
    if (!mIsSelected) {
        return;
    }
    mIsUnsure = false;
    switch (mPane->checkDevice()) {
    case Pane::Device::Unknown:
        mIsUnsure = true; // it is asked again when it accepts a push
        break;
    case Pane::Device::Same:
        if (!mNotLoaded.isEmpty()) {
            load(); // the driver may have created the file
        }
        break;
    case Pane::Device::Other:
        showAnew();
        break;
    }
}
