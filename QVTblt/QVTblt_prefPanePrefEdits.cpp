// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel's settings as a whole, for undoing edits.

#include "Client.h"
#include "QVConfigEntry.h"
#include "QVDriverProtocol.h"
#include "QVEntryName.h"
#include "QVKeyComboBox.h"
#include "QVTblt_prefPanePref.h"
#include "rzkApplication.h"

#include <QSignalBlocker>

#include <optional>

namespace {

/** Copies what the user can edit. */
void copyChosen(const tagQVTabletInfo& from, tagQVTabletInfo& to)
{
    for (const QVEntry& entry : kQVEntries) {
        if (QVIsChosen(entry)) {
            QVCopyField(entry, from, to);
        }
    }
}

} // namespace

QByteArray QVTblt_prefPanePref::settings() const
{
    if (!hasDevice() || mMonitorView->isCalibrating()) {
        return {}; // the area of an unfinished calibration is not yet the user's
    }
    tagQVTabletInfo record{};
    copyChosen(qvTabletInfo, record);
    return QVBytesOf(record);
}

void QVTblt_prefPanePref::setSettings(const QByteArray& settings)
{
    const std::optional<tagQVTabletInfo> record = QVRecordIn(settings);
    if (!record || this->settings().isEmpty()) {
        return;
    }
    const std::int16_t speed = qvTabletInfo.Monitor.Speed;
    copyChosen(*record, qvTabletInfo);
    showSettings();
    if (qvTabletInfo.Monitor.Speed != speed) {
        QVSendReportSpeed();
    }
    PushQVTabletInfo();
}

void QVTblt_prefPanePref::showSettings()
{
    mMonitorView->updateMappedArea();

    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        InitSingleComboBoxWithKey(mSlotBoxes[slot], static_cast<std::int32_t>(slot));
    }
    showStrips();
    if (mScrollSpeed->isEnabled()) {
        const QSignalBlocker blocker(mScrollSpeed);
        mScrollSpeed->setValue(qvTabletInfo.Key.ScrollSpeed);
    }
    mPressView->setNeedsDisplay();
    mMonitorView->setNeedsDisplay();
}

QString QVTblt_prefPanePref::nameOfEdit(const QByteArray& before, const QByteArray& after) const
{
    const tagQVTabletInfo one = QVRecordIn(before).value_or(tagQVTabletInfo{});
    const tagQVTabletInfo other = QVRecordIn(after).value_or(tagQVTabletInfo{});
    QString name;
    for (const QVEntry& entry : kQVEntries) {
        if (!QVIsChosen(entry) || QVIsSameField(entry, one, other)) {
            continue;
        }
        if (!name.isEmpty() && name != QVEntryName(entry)) {
            //: After "Undo:".
            return tr("several settings");
        }
        name = QVEntryName(entry);
    }
    return name;
}
