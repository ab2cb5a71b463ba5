// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPictureFile.h"

#include "Bundle.h"

#include <QPalette>

bool QVIsDark(const QPalette& palette)
{
    constexpr int kMiddle = 128;
    return palette.color(QPalette::Window).lightness() < kMiddle;
}

std::optional<QString> QVPicturePath(const platform::Bundle& bundle, const QString& name,
    const QString& type, bool isDense, bool isDark)
{
    const QString dark = isDark ? QStringLiteral("-dark") : QString();
    const QString dense = isDense ? QStringLiteral("@2x") : QString();
    for (const QString& form : {dark + dense, dark, dense, QString()}) {
        if (auto path = bundle.pathForResource(name + form, type)) {
            return path;
        }
    }
    return std::nullopt;
}
