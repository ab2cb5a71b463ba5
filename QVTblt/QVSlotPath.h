// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <QString>

#include <algorithm>

/**
 * Stores the path of the application that a key slot opens. If it is not ASCII, or too long for the
 * field with its NUL, the slot's path becomes empty.
 */
inline void QVStoreSlotPath(const QString& path, tagQVTabletInfoSubKey& slot)
{
    QVString& field = slot.App;
    field.fill('\0');
    const bool isAscii =
        std::ranges::all_of(path, [](QChar character) { return character.unicode() < 0x80; });
    if (isAscii && path.size() < static_cast<qsizetype>(field.size())) {
        std::ranges::copy(path.toLatin1(), field.begin());
    }
}
