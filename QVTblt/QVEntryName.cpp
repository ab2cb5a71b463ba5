// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVEntryName.h"

#include <QCoreApplication>

#include <cstddef>

namespace {

/** The context of the translations. */
struct EntryName {
    Q_DECLARE_TR_FUNCTIONS(EntryName)
};

} // namespace

QString QVEntryName(const QVEntry& entry)
{
    if (entry.slot != nullptr) {
        const std::size_t slot = QVSlotOf(entry);
        if (slot == kQVUpperPenSlot) {
            //: After "Undo:".
            return EntryName::tr("upper pen button");
        }
        if (slot == kQVLowerPenSlot) {
            //: After "Undo:".
            return EntryName::tr("lower pen button");
        }
        //: After "Undo:"; %1 is the number of an express key.
        return EntryName::tr("key %1").arg(slot + 1);
    }
    switch (entry.offset) {
    case offsetof(tagQVTabletInfo, Pen.PressureThreshold):
        //: After "Undo:": the pressure curve.
        return EntryName::tr("pressure");
    case offsetof(tagQVTabletInfo, Pen.Speed):
        //: After "Undo:".
        return EntryName::tr("pen speed");
    case offsetof(tagQVTabletInfo, Key.Scrollbar0):
        //: After "Undo:".
        return EntryName::tr("left scroll strip");
    case offsetof(tagQVTabletInfo, Key.Scrollbar1):
        //: After "Undo:".
        return EntryName::tr("right scroll strip");
    case offsetof(tagQVTabletInfo, Key.ScrollSpeed):
        //: After "Undo:".
        return EntryName::tr("scroll speed");
    case offsetof(tagQVTabletInfo, Monitor.num):
        //: After "Undo:": the display that the tablet is mapped to.
        return EntryName::tr("display");
    case offsetof(tagQVTabletInfo, Monitor.Speed):
        //: After "Undo:".
        return EntryName::tr("report speed");
    case offsetof(tagQVTabletInfo, Monitor.rotationFlag):
        //: After "Undo:": how the tablet lies on the desk.
        return EntryName::tr("orientation");
    default:
        //: After "Undo:": the part of the tablet that is in use.
        return EntryName::tr("area of the tablet");
    }
}
