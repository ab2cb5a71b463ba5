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
        return ActionText::tr("Left mouse button");
    case kQVRightButton:
        return ActionText::tr("Right mouse button");
    case kQVMiddleButton:
        return ActionText::tr("Middle mouse button");
    case kQVBackButton:
        //: The mouse button that goes back, as in a browser.
        return ActionText::tr("Back mouse button");
    default:
        return ActionText::tr("No action");
    }
}

QString pathText(const QVString& path)
{
    const std::string_view text = QVText(path);
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

} // namespace

QString actionText(const tagQVTabletInfoSubKey& slot)
{
    switch (slot.Valid) {
    case kQVMouseButton:
        return mouseText(slot.Mouse);
    case kQVApplication: {
        const QString path = pathText(slot.App);
        return path.isEmpty() ? ActionText::tr("Open an application (unknown path)")
                              //: Action of a tablet key; %1 is the path of an application.
                              : ActionText::tr("Open %1").arg(path);
    }
    case kQVKeyCombination: {
        const QString keys = QString::fromStdU16String(QVKeyCombinationText(slot.Key)).trimmed();
        return keys.isEmpty() ? ActionText::tr("Press no keys")
                              //: Action of a tablet key; %1 is a key combination, such as "Ctrl Z".
                              : ActionText::tr("Press %1").arg(keys);
    }
    case kQVNextDisplay:
        return ActionText::tr("Go to the next display");
    case kQVFinePositioning:
        //: Action of a tablet key: slows the pointer down while the key is held.
        return ActionText::tr("Move finely while held");
    case kQVPauseTablet:
        return ActionText::tr("Pause the tablet");
    default:
        return ActionText::tr("No action");
    }
}

QString stripText(std::int16_t field, std::int16_t speed)
{
    //: Action of a scroll strip; %1 is 1 to 10.
    return field == 0 ? ActionText::tr("Scroll at speed %1").arg(speed)
                      : ActionText::tr("No action: the strip is off");
}
