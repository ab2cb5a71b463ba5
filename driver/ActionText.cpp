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
    case 0:
        return ActionText::tr("Left mouse button");
    case 1:
        return ActionText::tr("Right mouse button");
    case 3:
        return ActionText::tr("Middle mouse button");
    case 2:
        return ActionText::tr("Back mouse button");
    default:
        return ActionText::tr("No action");
    }
}

QString pathText(const QVString& path)
{
    const auto length = qstrnlen(path.data(), kQVStringSize);
    return QString::fromLatin1(path.data(), static_cast<int>(length));
}

} // namespace

QString actionText(const tagQVTabletInfoSubKey& slot)
{
    switch (slot.Valid) {
    case 1:
        return mouseText(slot.Mouse);
    case 2: {
        const QString path = pathText(slot.App);
        return path.isEmpty() ? ActionText::tr("Open an application, of which no path is known")
                              : ActionText::tr("Open %1").arg(path);
    }
    case 3: {
        const QString keys = QString::fromStdU16String(QVKeyCombinationText(slot.Key)).trimmed();
        return keys.isEmpty() ? ActionText::tr("Press no keys")
                              : ActionText::tr("Press %1").arg(keys);
    }
    case 4:
        return ActionText::tr("Go to the next display");
    case 5:
        return ActionText::tr("Move finely while held");
    case 6:
        return ActionText::tr("Pause the tablet");
    default:
        return ActionText::tr("No action");
    }
}

QString stripText(std::int16_t field, std::int16_t speed)
{
    return field == 0 ? ActionText::tr("Scroll at speed %1").arg(speed)
                      : ActionText::tr("No action: the strip is off");
}
