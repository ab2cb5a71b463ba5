// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class QPalette;

namespace platform {
class Bundle;
}

/** Whether the palette is dark, where a white picture would glare. */
bool QVIsDark(const QPalette& palette);

/**
 * The path of a picture in the bundle, in the best variant for the view: NAME-dark@2x, NAME-dark,
 * NAME@2x, or NAME itself, each with the given type. If a variant does not exist, first the density
 * is dropped, then the theme; nothing if not even NAME exists.
 */
std::optional<QString> QVPicturePath(const platform::Bundle& bundle, const QString& name,
    const QString& type, bool isDense, bool isDark);
