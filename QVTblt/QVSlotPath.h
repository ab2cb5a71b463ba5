// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <QCoreApplication>
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

/**
 * Why a path is not for a key slot, for the user; empty if it is. The slot's field takes ASCII with
 * room for a NUL, and a property list no control characters.
 */
inline QString QVSlotPathFault(const QString& path)
{
    constexpr char16_t kFirstPrintable = 0x20;
    constexpr char16_t kDelete = 0x7f;
    const bool isPrintable = std::ranges::all_of(path, [](QChar character) {
        return character.unicode() >= kFirstPrintable && character.unicode() < kDelete;
    });
    if (!isPrintable) {
        return QCoreApplication::translate(
            "QVSlotPath", "The path contains characters that the tablet's settings cannot hold.");
    }
    if (path.size() >= static_cast<qsizetype>(kQVStringSize)) {
        //: %1 is a number of characters.
        return QCoreApplication::translate("QVSlotPath", "The path is longer than %1 characters.")
            .arg(kQVStringSize - 1);
    }
    return {};
}
