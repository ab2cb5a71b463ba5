// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel's settings as a whole, for undoing edits.

#include "Client.h"
#include "QVKeyComboBox.h"
#include "QVTblt_prefPanePref.h"
#include "rzkApplication.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

namespace {

std::size_t sizeOf(QVFieldType type)
{
    switch (type) {
    case QVFieldType::Boolean:
        return 1;
    case QVFieldType::Int16:
    case QVFieldType::UInt16:
        return sizeof(std::int16_t);
    case QVFieldType::UInt32:
        return sizeof(std::uint32_t);
    case QVFieldType::String:
        break;
    }
    return kQVStringSize;
}

/** Copies what the user can edit. */
void copyChosen(const tagQVTabletInfo& from, tagQVTabletInfo& to)
{
    for (const QVEntry& entry : kQVEntries) {
        if (QVIsChosen(entry)) {
            std::memcpy(reinterpret_cast<std::byte*>(&to) + entry.offset,
                reinterpret_cast<const std::byte*>(&from) + entry.offset, sizeOf(entry.type));
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

/** What an entry sets, for the name of an edit. */
QString nameOf(const QVEntry& entry)
{
    if (entry.slot != nullptr) {
        const auto slot = static_cast<std::size_t>(
            std::ranges::find(kQVSlotKeys, std::string_view(entry.slot)) - kQVSlotKeys.begin());
        if (slot == kQVUpperPenSlot) {
            //: After "Undo:".
            return QVTblt_prefPanePref::tr("upper pen button");
        }
        if (slot == kQVLowerPenSlot) {
            //: After "Undo:".
            return QVTblt_prefPanePref::tr("lower pen button");
        }
        //: After "Undo:"; %1 is the number of an express key.
        return QVTblt_prefPanePref::tr("key %1").arg(slot + 1);
    }
    switch (entry.offset) {
    case offsetof(tagQVTabletInfo, Pen.PressureThreshold):
        //: After "Undo:": the pressure curve.
        return QVTblt_prefPanePref::tr("pressure");
    case offsetof(tagQVTabletInfo, Key.Scrollbar0):
        //: After "Undo:".
        return QVTblt_prefPanePref::tr("left scroll strip");
    case offsetof(tagQVTabletInfo, Key.Scrollbar1):
        //: After "Undo:".
        return QVTblt_prefPanePref::tr("right scroll strip");
    case offsetof(tagQVTabletInfo, Key.ScrollSpeed):
        //: After "Undo:".
        return QVTblt_prefPanePref::tr("scroll speed");
    case offsetof(tagQVTabletInfo, Monitor.num):
        //: After "Undo:": the display that the tablet is mapped to.
        return QVTblt_prefPanePref::tr("display");
    case offsetof(tagQVTabletInfo, Monitor.Speed):
        //: After "Undo:".
        return QVTblt_prefPanePref::tr("report speed");
    case offsetof(tagQVTabletInfo, Monitor.rotationFlag):
        //: After "Undo:": how the tablet lies on the desk.
        return QVTblt_prefPanePref::tr("orientation");
    default:
        //: After "Undo:": the part of the tablet that is in use.
        return QVTblt_prefPanePref::tr("area of the tablet");
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
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

void QVTblt_prefPanePref::setSettings(const QByteArray& settings)
{
    if (this->settings().isEmpty()) {
        return;
    }
    const std::int16_t speed = qvTabletInfo.Monitor.Speed;
    copyChosen(recordOf(settings), qvTabletInfo);
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

    if (qvTabletInfo.Monitor.Speed != speed) {
        mMonitorView->sendSpeed();
    }
    PushQVTabletInfo();
}

QString QVTblt_prefPanePref::nameOfEdit(const QByteArray& before, const QByteArray& after) const
{
    const tagQVTabletInfo one = recordOf(before);
    const tagQVTabletInfo other = recordOf(after);
    QString name;
    for (const QVEntry& entry : kQVEntries) {
        const auto differs = [&entry](const tagQVTabletInfo& a, const tagQVTabletInfo& b) {
            return std::memcmp(reinterpret_cast<const std::byte*>(&a) + entry.offset,
                       reinterpret_cast<const std::byte*>(&b) + entry.offset, sizeOf(entry.type))
                != 0;
        };
        if (!QVIsChosen(entry) || !differs(one, other)) {
            continue;
        }
        if (!name.isEmpty() && name != nameOf(entry)) {
            //: After "Undo:".
            return tr("several settings");
        }
        name = nameOf(entry);
    }
    return name;
}
