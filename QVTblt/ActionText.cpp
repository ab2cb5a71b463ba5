// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ActionText.h"

#include "hid_usb_2_adb_keymap_char.h"

#include <QCoreApplication>

namespace {

/** The context of the translations. */
struct ActionText {
    Q_DECLARE_TR_FUNCTIONS(ActionText)
};

QString mouseText(std::int16_t button)
{
    switch (button) {
    case kQVLeftButton:
        //: Action of a tablet key: clicks with this button of a mouse.
        return ActionText::tr("Left mouse button");
    case kQVRightButton:
        //: Action of a tablet key: clicks with this button of a mouse.
        return ActionText::tr("Right mouse button");
    case kQVMiddleButton:
        //: Action of a tablet key: clicks with this button of a mouse.
        return ActionText::tr("Middle mouse button");
    case kQVBackButton:
        //: The mouse button that goes back, as in a browser.
        return ActionText::tr("Back mouse button");
    default:
        //: Action of a tablet key: it does nothing.
        return ActionText::tr("No action");
    }
}

} // namespace

QString actionText(const tagQVTabletInfoSubKey& slot)
{
    switch (slot.Valid) {
    case kQVMouseButton:
        return mouseText(slot.Mouse);
    case kQVApplication: {
        const std::string_view path = QVText(slot.App);
        if (path.empty()) {
            //: Action of a tablet key.
            return ActionText::tr("Open an application (unknown path)");
        }
        //: Action of a tablet key; %1 is the path of an application.
        return ActionText::tr("Open %1").arg(
            QString::fromLatin1(path.data(), static_cast<int>(path.size())));
    }
    case kQVKeyCombination: {
        const QString keys = QString::fromStdU16String(QVKeyCombinationText(slot.Key)).trimmed();
        if (keys.isEmpty()) {
            //: Action of a tablet key: a key combination without keys.
            return ActionText::tr("Press no keys");
        }
        //: Action of a tablet key; %1 is a key combination, such as "Ctrl Z".
        return ActionText::tr("Press %1").arg(keys);
    }
    case kQVNextDisplay:
        //: Action of a tablet key: maps the tablet to the next of several displays.
        return ActionText::tr("Go to the next display");
    case kQVFinePositioning:
        //: Action of a tablet key: slows the pointer down while the key is held.
        return ActionText::tr("Move finely while held");
    case kQVPauseTablet:
        //: Action of a tablet key: the pen is ignored until the key is pressed again.
        return ActionText::tr("Pause the tablet");
    default:
        //: Action of a tablet key: it does nothing.
        return ActionText::tr("No action");
    }
}

QString stripText(std::int16_t field, std::int16_t speed)
{
    if (field != 0) {
        //: Action of a scroll strip.
        return ActionText::tr("No action: the strip is off");
    }
    //: Action of a scroll strip; %1 is 1 to 10.
    return ActionText::tr("Scroll at speed %1").arg(speed);
}
