// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "LiteralText.h"

#include <QTextBoundaryFinder>

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

QString wrappableText(const QString& text)
{
    constexpr QChar kZeroWidthSpace(0x200b);
    constexpr int kLongest = 20; // characters that stay together
    QTextBoundaryFinder lines(QTextBoundaryFinder::Line, text);
    QString wrapped;
    int length = 0; // of what the character stays together with
    for (int at = 0; at < text.size(); ++at) {
        lines.setPosition(at);
        length = text[at].isSpace() || lines.isAtBoundary() ? 0 : length + 1;
        if (length >= kLongest && !text[at].isLowSurrogate()) {
            wrapped += kZeroWidthSpace;
        }
        wrapped += text[at];
    }
    return wrapped;
}

QString literalToolTip(const QString& text)
{
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace platform
