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
