// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "LiteralText.h"

#include <gtest/gtest.h>

using platform::literalText;

TEST(LiteralText, hasNothingThatMovesACursorOrTurnsADirection)
{
    EXPECT_EQ(literalText(QStringLiteral("a\x1b[2J\tb\u202e\u2028\u2029c")),
        QStringLiteral("a\ufffd[2J\ufffdb\ufffd\ufffd\ufffdc"));
}

TEST(LiteralText, keepsOtherCharacters)
{
    for (const auto& text :
        {QString(), QStringLiteral("Zeichnen ✏️ 描く"), QStringLiteral("a b")}) {
        EXPECT_EQ(literalText(text), text);
    }
}

TEST(LiteralText, isWrappedWithinLongWordsOnly)
{
    const QString word(20, u'a');
    const QString gap = QStringLiteral("\u200b");
    EXPECT_EQ(platform::wrappableText(word + u' ' + word), word + u' ' + word);
    EXPECT_EQ(platform::wrappableText(word + u'\n' + word), word + u'\n' + word);
    EXPECT_EQ(platform::wrappableText(word + QStringLiteral("bc")), word + gap + u'b' + gap + u'c');
    EXPECT_EQ(platform::wrappableText(word + QStringLiteral("\U00010400")),
        word + gap + QStringLiteral("\U00010400"));
}

TEST(LiteralText, isNotWrappedWhereItMayBeAnyway)
{
    for (const auto& text : {QStringLiteral("/usr/share/applications/Paint.desktop"),
             QStringLiteral("ケーブルを接続し直してから、もう一度、確認してください。")}) {
        EXPECT_EQ(platform::wrappableText(text), text);
    }
}
