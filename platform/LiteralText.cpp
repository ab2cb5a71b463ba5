// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "LiteralText.h"

namespace platform {

QString literalText(QString text)
{
    for (QChar& character : text) {
        switch (character.category()) {
        case QChar::Other_Control:
        case QChar::Other_Format: // changes the direction, for instance
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            character = QChar::ReplacementCharacter;
            break;
        default:
            break;
        }
    }
    return text;
}

QString literalToolTip(const QString& text)
{
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace platform
