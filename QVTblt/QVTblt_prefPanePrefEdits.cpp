// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel's settings as a whole, for undoing edits.

#include "Client.h"
#include "QVConfigEntry.h"
#include "QVEntryName.h"
#include "QVKeyComboBox.h"
#include "QVTblt_prefPanePref.h"
#include "rzkApplication.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cstring>

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

tagQVTabletInfo recordOf(const QByteArray& settings)
{
    tagQVTabletInfo record{};
    std::memcpy(&record, settings.constData(),
        std::min(static_cast<std::size_t>(settings.size()), sizeof record));
    return record;
}

} // namespace

QByteArray QVTblt_prefPanePref::settings() const
{
    if (!hasDevice() || mMonitorView->isCalibrating()) {
        return {}; // the area of an unfinished calibration is not yet the user's
    }
    tagQVTabletInfo record{};
    copyChosen(qvTabletInfo, record);
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

void QVTblt_prefPanePref::setSettings(const QByteArray& settings)
{
    if (this->settings().isEmpty()) {
        return;
    }
    const std::int16_t speed = qvTabletInfo.Monitor.Speed;
    copyChosen(recordOf(settings), qvTabletInfo);
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
    const tagQVTabletInfo one = recordOf(before);
    const tagQVTabletInfo other = recordOf(after);
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
