// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyComboBox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

class KeyBox : public testing::Test {
protected:
    KeyBox()
    {
        mBox.resize(200, 24);
        mBox.show();
    }

    QVKeyComboBox mBox;
    QSignalSpy mChoices{&mBox, qOverload<int>(&QComboBox::activated)};
};

} // namespace

TEST_F(KeyBox, hasTenItems)
{
    EXPECT_EQ(mBox.count(), 10);
    for (int i = 0; i < 10; ++i) {
        EXPECT_FALSE(mBox.itemText(i).isEmpty()) << i;
    }
}

TEST_F(KeyBox, choosesWithTheKeyboardThroughItsList)
{
    QTest::keyClick(&mBox, Qt::Key_Down);
    ASSERT_TRUE(mBox.view()->isVisible());
    EXPECT_EQ(mChoices.count(), 0) << "nothing may be chosen before Return";
    QTest::keyClick(mBox.view(), Qt::Key_Down);
    QTest::keyClick(mBox.view(), Qt::Key_Return);
    ASSERT_EQ(mChoices.count(), 1);
    EXPECT_EQ(mBox.currentIndex(), 2);
}

TEST_F(KeyBox, aLetterOpensTheListAtItsItem)
{
    QTest::keyClick(&mBox, Qt::Key_P, {});
    ASSERT_TRUE(mBox.view()->isVisible());
    EXPECT_EQ(mChoices.count(), 0);
    EXPECT_EQ(mBox.currentIndex(), 0);
    EXPECT_EQ(mBox.view()->currentIndex().row(), QVKeyComboBox::KeyCombination);
}

TEST_F(KeyBox, aShortcutChoosesNothing)
{
    for (const Qt::KeyboardModifier modifier :
        {Qt::AltModifier, Qt::ControlModifier, Qt::MetaModifier}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_P, modifier, QStringLiteral("p"));
        QCoreApplication::sendEvent(&mBox, &event);
        EXPECT_FALSE(event.isAccepted());
    }
    EXPECT_EQ(mChoices.count(), 0);
    EXPECT_EQ(mBox.currentIndex(), 0);
    EXPECT_FALSE(mBox.view()->isVisible());
}

TEST_F(KeyBox, escapeInTheListChoosesNothing)
{
    QTest::keyClick(&mBox, Qt::Key_Space);
    ASSERT_TRUE(mBox.view()->isVisible());
    QTest::keyClick(mBox.view(), Qt::Key_Down);
    QTest::keyClick(mBox.view(), Qt::Key_Escape);
    EXPECT_EQ(mChoices.count(), 0);
    EXPECT_EQ(mBox.currentIndex(), 0);
}

TEST_F(KeyBox, theWheelChoosesNothing)
{
    const QPoint at(10, 10);
    QWheelEvent event(at, mBox.mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&mBox, &event);
    EXPECT_EQ(mChoices.count(), 0);
    EXPECT_EQ(mBox.currentIndex(), 0);
    EXPECT_FALSE(event.isAccepted()) << "the page scrolls";
}

TEST_F(KeyBox, aReplacedItemIsSelectedAndKeepsItsPlace)
{
    const QString before = mBox.itemText(QVKeyComboBox::KeyCombination);
    mBox.replaceItem(QVKeyComboBox::Application, QStringLiteral("/opt/draw.AppImage"));
    EXPECT_EQ(mBox.count(), 10);
    EXPECT_EQ(mBox.currentIndex(), 5);
    EXPECT_EQ(mBox.currentText(), QStringLiteral("/opt/draw.AppImage"));
    EXPECT_EQ(mBox.itemText(QVKeyComboBox::KeyCombination), before);
    EXPECT_EQ(mChoices.count(), 0);
    mBox.resetItems();
    EXPECT_NE(mBox.itemText(QVKeyComboBox::Application), QStringLiteral("/opt/draw.AppImage"));
    EXPECT_EQ(mBox.currentIndex(), 0);
}

TEST_F(KeyBox, showsATextThatDoesNotFitWholeInItsTooltip)
{
    const QString path = QStringLiteral("/opt/<b>a</b>/") + QString(240, u'x');
    mBox.replaceItem(QVKeyComboBox::Application, path);
    mBox.grab(); // draws it shortened, without a crash
    QHelpEvent event(QEvent::ToolTip, QPoint(10, 10), mBox.mapToGlobal(QPoint(10, 10)));
    QCoreApplication::sendEvent(&mBox, &event);
    EXPECT_TRUE(QToolTip::text().contains(path.toHtmlEscaped())) << qPrintable(QToolTip::text());
    QToolTip::hideText();
}

TEST_F(KeyBox, shortensALongTextInItsMiddle)
{
    // Texts that differ at their ends only look different; in their middles only, alike.
    const auto drawn = [this](const QString& text) {
        mBox.replaceItem(QVKeyComboBox::Application, text);
        return mBox.grab().toImage();
    };
    const auto path = [](const char* start, const char* middle, const char* end) {
        return QString::fromLatin1(start) + QString(240, u'm') + QString::fromLatin1(middle)
            + QString(240, u'm') + QString::fromLatin1(end);
    };
    EXPECT_NE(drawn(path("/a/", "x", "/b")), drawn(path("/a/", "x", "/c")));
    EXPECT_NE(drawn(path("/a/", "x", "/b")), drawn(path("/c/", "x", "/b")));
    EXPECT_EQ(drawn(path("/a/", "x", "/b")), drawn(path("/a/", "y", "/b")));
}

TEST_F(KeyBox, drawsAnEmptyTextAsTheActionsName)
{
    mBox.setCurrentIndex(QVKeyComboBox::KeyCombination);
    const QImage expected = mBox.grab().toImage();
    mBox.replaceItem(QVKeyComboBox::KeyCombination, QString());
    EXPECT_EQ(mBox.currentText(), QString());
    EXPECT_EQ(mBox.grab().toImage(), expected);
}
