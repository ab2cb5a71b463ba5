// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The key page of the panel: its layouts, and the actions of its controls.

#include "ActionText.h"
#include "Client.h"
#include "InstalledApplications.h"
#include "OpenPanel.h"
#include "QVKeyComboBox.h"
#include "QVKeySetClass.h"
#include "QVSlotPath.h"
#include "QVTabletModels.h"
#include "QVTblt_prefPanePref.h"
#include "hid_usb_2_adb_keymap_char.h"
#include "rzkApplication.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <span>

using platform::Rect;

namespace {

constexpr std::size_t kBankSize = 8;

/** Distance from a box to its number, in points. */
constexpr double kLabelDistance = 20.0;

/** A field's text up to its NUL, with replacement characters for non-ASCII bytes. */
QString textOf(const QVString& field)
{
    QString text;
    for (const char byte : QVText(field)) {
        const auto code = static_cast<unsigned char>(byte);
        text += code < 0x80 ? QChar(char16_t{code}) : QChar(QChar::ReplacementCharacter);
    }
    return text;
}

/** Shows the application with that path in a box. */
void showApplication(QVKeyComboBox& box, const QString& path)
{
    if (path.isEmpty()) {
        box.replaceItem(QVKeyComboBox::Application, path);
        return;
    }
    if (box.showsApplication(path)) {
        box.setCurrentIndex(QVKeyComboBox::Application);
        return; // without reading its files again
    }
    const platform::Application application = platform::applicationAt(path);
    box.showApplication(path, application.name, platform::iconOf(application));
}

/** Colours a box light grey, with readable text even in a dark theme. */
void tint(QVKeyComboBox& box)
{
    if (box.testAttribute(Qt::WA_SetPalette)) {
        return; // already done
    }
    // The list keeps its usual colours; by default, it would inherit the grey.
    const QPalette usual = QApplication::palette(box.view());
    QPalette list;
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Text, QPalette::Window,
             QPalette::WindowText, QPalette::Button, QPalette::ButtonText}) {
        list.setColor(role, usual.color(role));
    }
    box.view()->setPalette(list);
    QPalette palette = box.palette();
    for (const QPalette::ColorRole role : {QPalette::Button, QPalette::Base, QPalette::Window}) {
        palette.setColor(role, QColor(170, 170, 170));
    }
    for (const QPalette::ColorRole role :
        {QPalette::ButtonText, QPalette::Text, QPalette::WindowText}) {
        palette.setColor(role, Qt::black);
    }
    box.setPalette(palette);
}

/** Shows a strip's field in its box. A strip is on if its field is 0. */
void showStrip(QCheckBox& box, std::int16_t field)
{
    const QSignalBlocker blocker(box);
    box.setChecked(field == 0);
}

void disable(std::span<QVKeyComboBox* const> boxes)
{
    for (QVKeyComboBox* const box : boxes) {
        box->setEnabled(false);
    }
}

/**
 * Moves the first box by (x, y) from its frame, and the others below it, at the given distances
 * from the first; in points, with y growing upwards.
 */
void moveColumn(
    std::span<QVKeyComboBox* const> boxes, double x, double y, std::span<const double> distances)
{
    Rect first = platform::frame(*boxes.front());
    first.x += x;
    first.y += y;
    platform::setFrame(*boxes.front(), first);
    for (std::size_t i = 0; i < distances.size(); ++i) {
        platform::setFrame(
            *boxes[i + 1], {first.x, first.y - distances[i], first.width, first.height});
    }
}

} // namespace

void QVTblt_prefPanePref::setUpKeyPage()
{
    // Widgets of a previous main view have been destroyed with it.
    mEnabledAtFirst.clear();
    keyCanvas->takePlaces();
    keyFrame_org = platform::frame(*mKey1_1);
    keyFrame_org_scroll_l = platform::frame(*mKeyLScroll);
    keyFrame_org_scroll_r = platform::frame(*mKeyRScroll);

    mSlotBoxes = {mKey1_1, mKey1_2, mKey1_3, mKey1_4, mKey1_5, mKey1_6, mKey1_7, mKey1_8, mKey2_1,
        mKey2_2, mKey2_3, mKey2_4, mKey2_5, mKey2_6, mKey2_7, mKey2_8, penKeyUpper, penKeyLower};
    mSlotLabels = {mLabel1_1, mLabel1_2, mLabel1_3, mLabel1_4, mLabel1_5, mLabel1_6, mLabel1_7,
        mLabel1_8, mLabel2_1, mLabel2_2, mLabel2_3, mLabel2_4, mLabel2_5, mLabel2_6, mLabel2_7,
        mLabel2_8, mPenUpperLabel, mPenLowerLabel};
    const auto children = keyCanvas->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* const control : children) {
        mEnabledAtFirst.insert(control, control->isEnabled());
    }
    mEnabledAtFirst.insert(mMonitorSpeed, mMonitorSpeed->isEnabled());

    for (QVKeyComboBox* const box : mSlotBoxes) {
        connect(box, qOverload<int>(&QComboBox::activated), this, [this, box] { SelectKey(box); });
    }
    for (QCheckBox* const box : {mKeyLScroll, mKeyRScroll}) {
        // Screen readers toggle a check box without a click.
        connect(box, &QCheckBox::toggled, this, &QVTblt_prefPanePref::SelectScroll);
    }
    mScrollSpeed->setStored([](int value) { return value == qvTabletInfo.Key.ScrollSpeed; });
    connect(mScrollSpeed, &QSlider::valueChanged, this, [this] { ScrollSpeed(mScrollSpeed); });
}

void QVTblt_prefPanePref::markButton(std::size_t slot, bool isDown)
{
    if (mainView() == nullptr || slot >= mSlotBoxes.size()) {
        return;
    }
    QVKeyComboBox& box = *mSlotBoxes[slot];
    box.setMarked(isDown);
    if (mPressed == nullptr) {
        // For screen readers only.
        mPressed = new platform::NoticeLabel(keyCanvas);
        mPressed->setGeometry(0, 0, 1, 1);
    }
    mPressed->hide();
    if (isDown && box.isVisible()) {
        //: Read by screen readers; %1 is the name of a key or of a button of the pen.
        mPressed->setText(tr("%1 is pressed").arg(box.accessibleName()));
        mPressed->show();
    }
}

void QVTblt_prefPanePref::restoreKeyPage()
{
    keyCanvas->restorePlaces();
    for (auto control = mEnabledAtFirst.cbegin(); control != mEnabledAtFirst.cend(); ++control) {
        control.key()->setEnabled(control.value());
        control.key()->setVisible(true);
    }
    for (QVKeyComboBox* const box : mSlotBoxes) {
        if (box->testAttribute(Qt::WA_SetPalette)) {
            box->setPalette(QPalette());
            box->view()->setPalette(QPalette());
        }
        box->resetItems();
    }
    const QSignalBlocker blocker(mScrollSpeed);
    mScrollSpeed->setValue(mScrollSpeed->minimum());
}

void QVTblt_prefPanePref::InitComboBoxWithKey()
{
    const auto productID = QVProductID(qvTabletInfo);
    std::ranges::for_each(std::span(mSlotBoxes).subspan<kBankSize, kBankSize>(), &QWidget::hide);
    mKeyRScroll->hide();
    keyFrame_org = platform::frame(*mKey1_1);
    keyFrame_org_scroll_l = platform::frame(*mKeyLScroll);
    keyFrame_org_scroll_r = platform::frame(*mKeyRScroll);
    layOutKeyPage(productID);
    mLaidOutProduct = productID;

    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        mSlotBoxes[slot]->setMarked(false);
        InitSingleComboBoxWithKey(mSlotBoxes[slot], static_cast<std::int32_t>(slot));
    }
    showStrips();
}

void QVTblt_prefPanePref::showStrips()
{
    showStrip(*mKeyLScroll, qvTabletInfo.Key.Scrollbar0);
    showStrip(*mKeyRScroll, qvTabletInfo.Key.Scrollbar1);
}

void QVTblt_prefPanePref::layOutKeyPage(std::uint16_t productID)
{
    const QVTabletModel* const model = QVFindModel(productID);
    const std::span bank(mSlotBoxes.data(), kBankSize);
    switch (model == nullptr ? QVKeyLayout::A : model->layout) {
    case QVKeyLayout::A:
        break;
    case QVKeyLayout::B:
        disable(bank);
        mKeyLScroll->setEnabled(false);
        penKeyLower->setEnabled(false);
        mScrollSpeed->setEnabled(false);
        break;
    case QVKeyLayout::C:
        mMonitorSpeed->setEnabled(false);
        [[fallthrough]];
    case QVKeyLayout::D:
        std::ranges::for_each(bank.subspan(4), &QWidget::hide);
        mKeyLScroll->hide();
        penKeyLower->setEnabled(false);
        moveColumn(bank, 5.0, -65.0, std::array{45.0, 90.0, 135.0});
        mScrollSpeed->setEnabled(false);
        break;
    case QVKeyLayout::E:
        mKeyLScroll->hide();
        penKeyLower->setEnabled(false);
        moveColumn(bank, 45.0, -50.0, std::array{45.0, 90.0, 135.0, 180.0});
        std::ranges::for_each(bank.subspan(5), &QWidget::hide);
        disable(bank.subspan(5));
        mScrollSpeed->setEnabled(false);
        break;
    case QVKeyLayout::F:
        if (model->penButtons == 1) {
            penKeyLower->setEnabled(false);
        }
        mKeyLScroll->hide();
        // The wider gaps separate the middle key, as on the tablet.
        moveColumn(bank, 45.0, -40.0, std::array{30.0, 60.0, 100.0, 140.0, 170.0, 200.0});
        std::ranges::for_each(bank.subspan(7), &QWidget::hide);
        mScrollSpeed->setEnabled(false);
        break;
    case QVKeyLayout::G: {
        moveColumn(bank.first(4), 0.0, -25.0, std::array{25.0, 50.0, 75.0});
        Rect strip = keyFrame_org_scroll_l;
        strip.x += 15.0;
        platform::setFrame(*mKeyLScroll, strip);
        moveColumn(bank.subspan(4), 0.0, 0.0, std::array{25.0, 50.0, 75.0});
        for (QVKeyComboBox* const box : bank) {
            tint(*box);
        }
        const QSignalBlocker blocker(mScrollSpeed);
        mScrollSpeed->setValue(qvTabletInfo.Key.ScrollSpeed);
        break;
    }
    case QVKeyLayout::H:
        mKeyLScroll->hide();
        penKeyLower->setEnabled(false);
        disable(std::span(mSlotBoxes).first(kQVUpperPenSlot));
        mScrollSpeed->setEnabled(false);
        break;
    }

    // The numbers move with their boxes; the pen's labels stay.
    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        const QVKeyComboBox& box = *mSlotBoxes[slot];
        QLabel& label = *mSlotLabels[slot];
        label.setVisible(!box.isHidden());
        label.setEnabled(box.isEnabled());
        if (slot < kQVUpperPenSlot) {
            Rect place = platform::frame(box);
            place.x -= kLabelDistance;
            place.width = platform::frame(label).width;
            platform::setFrame(label, place);
        }
    }
    mScrollSpeedLabel->setEnabled(mScrollSpeed->isEnabled());
}

QString QVTblt_prefPanePref::GetSubKeyString(std::int32_t keyNo) const
{
    return QString::fromStdU16String(
        QVKeyCombinationText(qvTabletInfo.Key.SubKey[static_cast<std::size_t>(keyNo)].Key));
}

void QVTblt_prefPanePref::InitSingleComboBoxWithKey(
    QVKeyComboBox* comboBox, std::int32_t keyNo) const
{
    const tagQVTabletInfoSubKey& slot = qvTabletInfo.Key.SubKey[static_cast<std::size_t>(keyNo)];
    const auto item = static_cast<QVKeyComboBox::Item>(actionOf(slot));
    if (item == QVKeyComboBox::Application) {
        showApplication(*comboBox, textOf(slot.App));
    } else if (item == QVKeyComboBox::KeyCombination) {
        comboBox->replaceItem(item, GetSubKeyString(keyNo));
    } else {
        comboBox->setCurrentIndex(item);
    }
    comboBox->setCommitted(QVKeyComboBox::kCommitted + comboBox->currentIndex());
}

void QVTblt_prefPanePref::SelectKey(QVKeyComboBox* comboBox)
{
    tagQVTabletInfoSubKey& slot =
        qvTabletInfo.Key.SubKey[static_cast<std::size_t>(comboBox->tag())];
    const int item = comboBox->currentIndex();
    if (item == QVKeyComboBox::KeyCombination) {
        askForKeys(*comboBox);
        return;
    }
    if (item == QVKeyComboBox::Application) {
        takeApplication(*comboBox, slot);
    } else if (item >= 0 && static_cast<std::size_t>(item) < kActionCount) {
        const Action& choice = kActions.at(static_cast<std::size_t>(item));
        slot.Valid = choice.valid;
        if (choice.valid == kQVMouseButton) {
            slot.Mouse = choice.mouse;
        }
    }
    PushQVTabletInfo();
}

void QVTblt_prefPanePref::takeApplication(QVKeyComboBox& comboBox, tagQVTabletInfoSubKey& slot)
{
    const QPointer<QVKeyComboBox> box(&comboBox);
    const bool isChosen = SetApplicationPath();
    if (box.isNull()) { // the host has closed the panel meanwhile
        return;
    }
    if (!isChosen) {
        InitSingleComboBoxWithKey(&comboBox, comboBox.tag());
        return;
    }
    showApplication(comboBox, mFileName);
    slot.Valid = kQVApplication;
    QVStoreSlotPath(mFileName, slot);
    PushQVTabletInfo(); // and a second time on leaving, as after every choice
}

void QVTblt_prefPanePref::askForKeys(QVKeyComboBox& comboBox)
{
    const QPointer<QVKeyComboBox> box(&comboBox);
    if (mKeyset == nullptr) {
        mKeyset = new QVKeySetClass(mainView()); // not before, since it has some eighty controls
    }
    mKeyset->QVShowWindow(&comboBox);
    mKeyset->exec();
    if (box.isNull()) { // the host has closed the panel meanwhile
        return;
    }
    if (comboBox.committed() == QVKeyComboBox::kStored) {
        PushQVTabletInfo();
        comboBox.setCommitted(QVKeyComboBox::kCommitted + QVKeyComboBox::KeyCombination);
    } else if (qvTabletInfo.Key.SubKey[static_cast<std::size_t>(comboBox.tag())].Valid
        != kQVKeyCombination) {
        comboBox.setCurrentIndex(comboBox.committed() - QVKeyComboBox::kCommitted);
    }
}

bool QVTblt_prefPanePref::SetApplicationPath()
{
    const QPointer<QVTblt_prefPanePref> pane(this);
    const std::optional<QString> path =
        platform::openPanel().chooseApplication(mainView(), QVSlotPathFault);
    if (!path || pane.isNull()) {
        return false;
    }
    mFileName = *path;
    return true;
}

void QVTblt_prefPanePref::takeScrollBoxes()
{
    qvTabletInfo.Key.Scrollbar0 = mKeyLScroll->isChecked() ? 0 : 1;
    qvTabletInfo.Key.Scrollbar1 = mKeyRScroll->isChecked() ? 0 : 1;
}

void QVTblt_prefPanePref::SelectScroll()
{
    takeScrollBoxes();
    PushQVTabletInfo();
}

void QVTblt_prefPanePref::ScrollSpeed(const QSlider* slider)
{
    qvTabletInfo.Key.ScrollSpeed = static_cast<std::int16_t>(slider->value());
    PushQVTabletInfo();
}
