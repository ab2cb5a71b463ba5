// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneShell.h"

#include "Accessible.h"
#include "PaneEdits.h"
#include "ProfileBar.h"
#include "SelfCheckDialog.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <optional>
#include <utility>

PaneShell::PaneShell(std::unique_ptr<Pane> pane, Host host, QWidget* parent)
    : QWidget(parent)
    , mPane(std::move(pane))
    , mBottom(new QWidget(this))
{
    QWidget* contents = mPane->loadMainView();
    setWindowTitle(contents->windowTitle());
    // Before the pane is put in, since Tab goes in this order, but with the pane's translations.
    // NOLINTNEXTLINE(*-prefer-member-initializer)
    mProfiles = new ProfileBar(*mPane, this);
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
    layout->addWidget(mProfiles);
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
    mPane->setNewsHandler([this](Pane::News news, const QString& text) { handleNews(news, text); });
    mEdits = new PaneEdits(*mPane, *this);
    setChangeHandler({});
}

PaneShell::~PaneShell()
{
    mProfiles->leavePane();
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
    mRetry = new QPushButton(mBottom);
    connect(mRetry, &QPushButton::clicked, this, &PaneShell::retry);
    auto* const row = static_cast<QHBoxLayout*>(mBottom->layout()); // NOLINT(*-downcast): made so
    if (mSave != nullptr) {
        delete row->takeAt(0); // the line takes the place of the stretch
    }
    row->insertWidget(0, mNoticeLabel, 1);
    row->insertWidget(1, mRetry);
    if (mCancel != nullptr) {
        setTabOrder(mRetry, mCancel);
        setTabOrder(mCancel, mSave);
    }
}

void PaneShell::makeSelfCheck()
{
    mSelfCheck = new QWidget(this);
    auto* const row = new QHBoxLayout(mSelfCheck);
    row->setContentsMargins(mBottom->layout()->contentsMargins());
    //: Button where no tablet is found: opens the self-check.
    auto* const button = new QPushButton(tr("Find the &Problem…"));
    button->setToolTip(tr("Check the tablet, its driver and the panel"));
    button->setAccessibleDescription(button->toolTip());
    connect(button, &QPushButton::clicked, this, &PaneShell::checkSelf);
    row->addWidget(button);
    row->addStretch(1);
    layout()->addWidget(mSelfCheck);
}

void PaneShell::checkSelf()
{
    auto* const dialog = new SelfCheckDialog(*mPane, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The tablet may be there by now; then the pages appear, and the dialog closes.
    connect(dialog, &SelfCheckDialog::checked, this, &PaneShell::checkDeviceSoon);
    dialog->open();
}

void PaneShell::setChangeHandler(std::function<void()> handler)
{
    mPane->setChangeHandler([this, handler = std::move(handler)] {
        mEdits->note();
        if (mIsSelected && mPane->hasDevice() && mMonitor.note(*mPane)) {
            showNotice();
        }
        if (handler) {
            handler();
        }
    });
}

bool PaneShell::hasChanges() const
{
    return mPane->hasChanges();
}

QWidget& PaneShell::view() const
{
    return *mPane->mainView();
}

int PaneShell::topHeight() const
{
    return mPane->profiles() == nullptr ? 0 : mProfiles->sizeHint().height();
}

int PaneShell::bottomHeight() const
{
    return mBottom->sizeHint().height();
}

// Selecting and leaving ---------------------------------------------------------------------------

void PaneShell::willSelect()
{
    clearNotices();
    mIsSelected = true;
    mPane->willSelect();
    mEdits->begin();
    mMonitor.show(*mPane, mNotLoaded.isEmpty());
    mProfiles->showDevice();
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
        reload(); // otherwise a file repaired meanwhile would be overwritten with foreign settings
    }
    mPane->willUnselect(); // says whether it could save
    if (hasChanges && !mNotSaved.isEmpty()) {
        return platform::Error{mNotSaved};
    }
    return {};
}

bool PaneShell::mayLeave(bool canStay)
{
    const QPointer<PaneShell> shell(this);
    for (;;) {
        const platform::Result<> saved = willUnselect();
        // Do not delay a logout.
        if (saved || qGuiApp->isSavingSession()) {
            return true;
        }
        const int answer = askAboutUnsaved(saved.error(), canStay);
        if (shell.isNull() || !mIsSelected) {
            return false; // the host has moved on while the user was asked
        }
        if (answer != QMessageBox::Retry) {
            const bool stays = canStay && answer != QMessageBox::Discard;
            if (!stays) {
                discardChanges();
            }
            return !stays;
        }
    }
}

void PaneShell::didUnselect()
{
    mIsSelected = false;
    mPane->didUnselect();
}

void PaneShell::end()
{
    if (std::exchange(mIsSelected, false)) {
        mPane->willUnselect();
        mPane->didUnselect();
    }
}

void PaneShell::reopen()
{
    closeDialogs();
    const platform::Result<> kept = willUnselect();
    reshow();
    mNotKept = kept ? QString() : kept.error().text;
    showNotice();
}

void PaneShell::reshow()
{
    view().hide(); // showing it again redraws it
    didUnselect();
    willSelect();
    view().show();
    didSelect();
}

void PaneShell::reload()
{
    closeDialogs();
    // Do not leave the pane, which would save what could not be loaded.
    reshow();
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

/** Asks what to do with changes that could not be saved. @return the button that was pressed */
int PaneShell::askAboutUnsaved(const platform::Error& error, bool canStay)
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
    } else {
        question->setEscapeButton(QMessageBox::Discard);
    }
    const int answer = question->exec();
    delete question;
    return answer;
}

void PaneShell::save()
{
    // What a save makes of the settings is no edit of the user's.
    mEdits->passOver([this] { mPane->save(); });
}

void PaneShell::cancel()
{
    mPane->cancel();
    if (mIsSelected) {
        reopen();
    }
}

void PaneShell::discardChanges()
{
    if (mIsSelected && mPane->hasChanges()) {
        mPane->cancel();
    }
}

// What has gone wrong -----------------------------------------------------------------------------

void PaneShell::handleNews(Pane::News news, const QString& text)
{
    switch (news) {
    case Pane::News::ChangeTaken:
        mIsNotTaken = false;
        if (mIsUnsure) {
            checkDeviceSoon();
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
        mNotKept.clear(); // the user has gone on with this tablet
        mNotLoaded.clear(); // the file now matches the pages
        break;
    case Pane::News::NotSaved:
        mNotSaved = text;
        break;
    case Pane::News::DeviceMayHaveChanged:
        checkDeviceSoon();
        return;
    case Pane::News::ChangedByItself:
        if (mIsSelected) {
            sendAgain();
        }
        return;
    case Pane::News::DisplayChosen:
        mMonitor.choose(*mPane);
        break;
    case Pane::News::DisplaysChanged:
        break;
    case Pane::News::SettingsReplaced:
        if (!mIsSelected) {
            return;
        }
        // The file has been saved and loaded.
        mNotSaved.clear();
        mNotKept.clear();
        mNotLoaded.clear();
        mEdits->begin();
        mMonitor.note(*mPane); // the profile may be for another display
        mMonitor.show(*mPane);
        break;
    }
    showNotice();
}

void PaneShell::clearNotices()
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
        return {};
    }
    if (!mNotSaved.isEmpty()) {
        //: %1 is the reason, in English.
        return {tr("The settings were not saved: %1").arg(mNotSaved),
            //: Button: saves or loads the settings again.
            tr("Tr&y Again"), &PaneShell::saveAgain};
    }
    if (!mNotKept.isEmpty()) {
        //: %1 is the reason, in English.
        return {tr("The previous tablet's settings were not saved: %1").arg(mNotKept)};
    }
    if (!mNotLoaded.isEmpty()) {
        //: %1 is the reason, in English.
        return {tr("The tablet's settings cannot be loaded, so the pages do not show them: %1")
                    .arg(mNotLoaded),
            //: Button: saves or loads the settings again.
            tr("Tr&y Again"), &PaneShell::reload};
    }
    if (mIsNotTaken) {
        return {tr("The tablet's driver has not accepted the last change. Is it running?"),
            //: Button: sends the settings to the driver again.
            tr("Send A&gain"), &PaneShell::sendAgain};
    }
    if (const std::optional<int> display = mMonitor.moved(*mPane)) {
        //: %1 is a number in the list of displays.
        return {tr("The monitor that you chose for the tablet is now display %1.").arg(*display),
            //: Button: maps the tablet to the display with the number %1.
            tr("Choose Displa&y %1").arg(*display), &PaneShell::chooseMovedMonitor};
    }
    return {};
}

void PaneShell::showNotice()
{
    const auto [text, button, action] = notice();
    if (mNoticeLabel == nullptr && !text.isEmpty()) {
        makeNotice();
    }
    if (mNoticeLabel != nullptr && text != mNoticeLabel->text()) {
        const bool hadFocus = mRetry->hasFocus();
        mNoticeLabel->hide(); // screen readers announce only what appears
        mNoticeLabel->setText(text);
        mNoticeLabel->setVisible(!text.isEmpty());
        mRetry->setText(button);
        mRetry->setVisible(!button.isEmpty());
        if (hadFocus && button.isEmpty()) {
            mPane->didSelect(); // the focus goes back to the pane's first control
        }
    }
    mBottom->setVisible(!text.isEmpty() || (mSave != nullptr && mPane->hasDevice()));
    const bool isMissed = mIsSelected && !mPane->hasDevice();
    if (mSelfCheck == nullptr && isMissed) {
        makeSelfCheck();
    }
    if (mSelfCheck != nullptr) {
        mSelfCheck->setVisible(isMissed);
    }
}

void PaneShell::retry()
{
    if (const auto action = notice().action) {
        (this->*action)();
    }
}

void PaneShell::saveAgain()
{
    if (mPane->checkDevice() == Pane::Device::Other) {
        reopen();
    } else {
        save();
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
        reopen();
        break;
    }
}

void PaneShell::chooseMovedMonitor()
{
    if (const std::optional<int> display = mMonitor.moved(*mPane)) {
        mPane->chooseDisplay(*display);
    }
}

void PaneShell::checkDeviceSoon()
{
    // A new driver may be announced more than once, but is asked only once.
    if (mIsSelected && !std::exchange(mWillCheckDevice, true)) {
        QMetaObject::invokeMethod(this, &PaneShell::checkDevice, Qt::QueuedConnection);
    }
}

void PaneShell::checkDevice()
{
    mWillCheckDevice = false;
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
            reload(); // the driver may have created the file
        }
        break;
    case Pane::Device::Other:
        reopen();
        break;
    }
}
