// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class QPalette;

namespace platform {
class Bundle;
}

/** Whether windows of the palette are dark, where a picture on white would glare. */
bool QVIsDark(const QPalette& palette);

/**
 * Path of a picture in the bundle, in the form that suits the view best: NAME-dark@2x, NAME-dark,
 * NAME@2x, or NAME itself, each with the type as it is given. A form that is asked for and is not
 * there is done without, density first; nothing where not even NAME is there.
 */
std::optional<QString> QVPicturePath(const platform::Bundle& bundle, const QString& name,
    const QString& type, bool isDense, bool isDark);
