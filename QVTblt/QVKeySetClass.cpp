// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeySetClass.h"

#include "QVKeyComboBox.h"
#include "hid_usb_2_adb_keymap_char.h"
#include "rzkApplication.h"
#include "ui_QVKeySetClass.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QEvent>
#include <QLineEdit>
#include <QScreen>
#include <QStringList>
#include <QStyle>

#include <algorithm>

namespace {

QString separator()
{
    return QString::fromUtf16(kQVKeySeparator.data(), static_cast<int>(kQVKeySeparator.size()));
}

/** The button's title without the mnemonic mark that a desktop may have added. */
QString titleOf(const QAbstractButton& key)
{
    return key.text().remove(u'&');
}

/** The size of a window's frame: that of another window, but at least the usual size. */
QSize frameOf(const QWidget* other)
{
    constexpr QSize kUsual(12, 40);
    return other == nullptr ? kUsual : kUsual.expandedTo(other->frameSize() - other->size());
}

} // namespace

QVKeySetClass::QVKeySetClass(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::QVKeySetClass>())
{
    ui->setupUi(this);
    setModal(true);
    connect(ui->mKeys, qOverload<QAbstractButton*>(&QButtonGroup::buttonClicked), this,
        &QVKeySetClass::ClickButton);
    const auto keys = ui->mKeys->buttons();
    for (QAbstractButton* const key : keys) {
        key->installEventFilter(this);
    }
    connect(ui->delBtn, &QPushButton::clicked, this, &QVKeySetClass::DeleteOneSet);
    connect(ui->okBtn, &QPushButton::clicked, this, &QVKeySetClass::SaveKeyData);
    connect(ui->cancelBtn, &QPushButton::clicked, this, &QVKeySetClass::CancelSet);
}

QVKeySetClass::~QVKeySetClass() = default;

void QVKeySetClass::QVShowWindow(QVKeyComboBox* comboBox)
{
    mComboBox = comboBox;
    ui->mKeyText->clear();
    mNum = 0;
    mKeyValue = 0;
    setHasKeys(false);
    ui->keyCtrl->setFocus(); // most combinations begin there
}

void QVKeySetClass::setVisible(bool visible)
{
    if (visible && isHidden()) {
        const QWidget& owner = parentWidget() == nullptr ? *this : *parentWidget();
        fitInto(owner.screen()->availableSize());
    }
    QDialog::setVisible(visible);
}

void QVKeySetClass::fitInto(const QSize& room)
{
    ensurePolished();
    // The size hint of a scroll area is a few lines of text, not all its contents.
    const QSize keyboard = ui->keyboard->sizeHint();
    const QMargins margins = layout()->contentsMargins();
    const QWidget* const owner = parentWidget() == nullptr ? nullptr : parentWidget()->window();
    const QSize most = room - frameOf(owner);

    // The field has to show its placeholder, if there is room. Its own hint is 17 letters, of which
    // one is kept as a margin.
    QLineEdit& field = *ui->mKeyText;
    const QFontMetrics metrics = field.fontMetrics();
    const int text = metrics.horizontalAdvance(field.placeholderText()) + field.sizeHint().width()
        - 16 * metrics.horizontalAdvance(u'x');
    const int beside = ui->delBtn->sizeHint().width() + ui->textLayout->spacing();
    field.setMinimumWidth(std::min(text, most.width() - beside - margins.left() - margins.right()));

    const QSize hint = layout()->sizeHint();
    QSize whole(std::max(hint.width(), keyboard.width() + margins.left() + margins.right()),
        hint.height() - ui->keyScroll->sizeHint().height() + keyboard.height());
    if (whole.width() > most.width()) { // the scroll bar needs some of the height
        whole.rheight() += style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    }
    resize(whole.boundedTo(most));
}

void QVKeySetClass::ClickButton(const QAbstractButton* key)
{
    if (mNum >= kQVMaxKeys) {
        return;
    }
    const QString text = ui->mKeyText->text();
    ui->mKeyText->setText(text.isEmpty() ? titleOf(*key) : text + separator() + titleOf(*key));
    if (mNum >= 0) { // a key that compensates for deleting nothing has no byte
        mKeyValue |= key->property("tag").toLongLong() << (8 * mNum);
    }
    setHasKeys(true);
    ++mNum;
}

void QVKeySetClass::DeleteOneSet()
{
    QStringList names = ui->mKeyText->text().split(separator());
    const auto count = names.size();
    if (count == 1) {
        ui->mKeyText->clear();
        mKeyValue = 0;
        setHasKeys(false);
    } else {
        names.removeLast();
        ui->mKeyText->setText(names.join(separator()));
        if (count == 3) {
            mKeyValue = (mKeyValue & 0xFFFF) | 0x02000000;
        } else if (count == 2) {
            mKeyValue = (mKeyValue & 0xFF) | 0x01000000;
        }
    }
    --mNum;
}

void QVKeySetClass::SaveKeyData()
{
    const QString text = ui->mKeyText->text();
    if (mNum == 0 || mComboBox.isNull()) {
        done(Rejected);
        return;
    }
    tagQVTabletInfoSubKey& slot =
        qvTabletInfo.Key.SubKey[static_cast<std::size_t>(mComboBox->tag())];
    slot.Valid = kQVKeyCombination;
    // The number is added by OR to what DeleteOneSet() left there, as in existing files.
    slot.Key = static_cast<std::uint32_t>(mNum) << 24U | static_cast<std::uint32_t>(mKeyValue);
    mComboBox->setCommitted(QVKeyComboBox::kStored);
    done(Accepted);
    mComboBox->replaceItem(QVKeyComboBox::KeyCombination, text);
}

bool QVKeySetClass::event(QEvent* event)
{
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::WindowActivate) {
        // Styles show the focus only after Tab was used, so not when the arrow keys come first.
        setAttribute(Qt::WA_KeyboardFocusChange);
    }
    return isHandled;
}

bool QVKeySetClass::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) { // by the arrow keys or the mouse; Tab scrolls by itself
        ui->keyScroll->ensureWidgetVisible(qobject_cast<QWidget*>(watched));
    }
    return QDialog::eventFilter(watched, event);
}

void QVKeySetClass::setHasKeys(bool hasKeys)
{
    // A disabled button would pass the focus on to the next control.
    if (!hasKeys && (ui->delBtn->hasFocus() || ui->okBtn->hasFocus())) {
        ui->keyCtrl->setFocus();
    }
    ui->delBtn->setEnabled(hasKeys);
    ui->okBtn->setEnabled(hasKeys);
}
