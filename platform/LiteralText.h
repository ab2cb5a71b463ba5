// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace platform {

/**
 * A text from somebody else, such as a name in a file, to be shown in a window or on a terminal:
 * replaces each character that could move or turn others, or control the terminal, by U+FFFD.
 */
QString literalText(QString text);

/**
 * A text that can be wrapped within its long words, such as paths, where a list or a label would
 * otherwise cut them off.
 */
QString wrappableText(const QString& text);

/** A tooltip that shows the text as it is, even if it looks like rich text. */
QString literalToolTip(const QString& text);

} // namespace platform
