// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "FrontWindow.h"

#include <algorithm>

QStringList applicationNames(const QStringList& names)
{
    constexpr int kLongestName = 255; // as a file's
    QStringList known;
    for (const QString& name : names) {
        QString entry = name.trimmed().section(QLatin1Char('/'), -1);
        const QLatin1String suffix(".desktop");
        if (entry.endsWith(suffix)) {
            entry.chop(static_cast<int>(suffix.size()));
        }
        const bool isPrintable =
            std::ranges::all_of(entry, [](QChar character) { return character.isPrint(); });
        if (!entry.isEmpty() && entry.size() <= kLongestName && isPrintable
            && !known.contains(entry, Qt::CaseInsensitive)) {
            known.append(entry);
        }
    }
    return known;
}
