// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ActionText.h"

#include "hid_usb_2_adb_keymap_char.h"

namespace {

QString mouseText(std::int16_t button)
{
    switch (button) {
    case 0:
        return QStringLiteral("Left mouse button");
    case 1:
        return QStringLiteral("Right mouse button");
    case 3:
        return QStringLiteral("Middle mouse button");
    case 2:
        return QStringLiteral("Back mouse button");
    default:
        return QStringLiteral("No action");
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
        return path.isEmpty() ? QStringLiteral("Open an application, of which no path is known")
                              : QStringLiteral("Open %1").arg(path);
    }
    case 3: {
        const QString keys = QString::fromStdU16String(QVKeyCombinationText(slot.Key)).trimmed();
        return keys.isEmpty() ? QStringLiteral("Press no keys")
                              : QStringLiteral("Press %1").arg(keys);
    }
    case 4:
        return QStringLiteral("Go to the next display");
    case 5:
        return QStringLiteral("Move finely while held");
    case 6:
        return QStringLiteral("Pause the tablet");
    default:
        return QStringLiteral("No action");
    }
}

QString stripText(std::int16_t field, std::int16_t speed)
{
    return field == 0 ? QStringLiteral("Scroll at speed %1").arg(speed)
                      : QStringLiteral("No action: the strip is off");
}
