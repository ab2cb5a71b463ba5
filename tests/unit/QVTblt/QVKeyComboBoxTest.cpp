// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyComboBox.h"

#include "WatchedEvents.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPixmap>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/** Leaves a small margin before the text, like some styles in low boxes. */
class TightStyle final : public QProxyStyle {
public:
    explicit TightStyle(int margin)
        : mMargin(margin)
    {
    }
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override
    {
        if (control != CC_ComboBox || part != SC_ComboBoxEditField) {
            return QProxyStyle::subControlRect(control, option, part, widget);
        }
        const QRect field = option->rect.adjusted(mMargin, 0, -20, 0);
        return visualRect(option->direction, option->rect, field);
    }

private:
    int mMargin;
};

class KeyBox : public testing::Test {
protected:
    KeyBox()
    {
        mBox.resize(200, 24);
        mBox.show();
    }

    /** What the tooltip says; empty if there is none. */
    QString toolTip()
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, QPoint(10, 10), mBox.mapToGlobal(QPoint(10, 10)));
        const bool isShown = QCoreApplication::sendEvent(&mBox, &event) && event.isAccepted();
        const QString text = isShown ? QToolTip::text() : QString();
        QToolTip::hideText();
        return text;
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

TEST_F(KeyBox, shortensAPathAtItsBeginningAndKeysInTheirMiddle)
{
    const auto text = [](const char* start, const char* middle, const char* end) {
        return QString::fromLatin1(start) + QString(240, u'm') + QString::fromLatin1(middle)
            + QString(240, u'm') + QString::fromLatin1(end);
    };
    // Texts that differ only in the elided part look alike, in the box and in its list.
    for (const auto item : {QVKeyComboBox::Application, QVKeyComboBox::KeyCombination}) {
        const bool isPath = item == QVKeyComboBox::Application;
        const auto drawn = [this, item](const QString& what) {
            mBox.replaceItem(item, what);
            const QImage closed = mBox.grab().toImage();
            mBox.showPopup();
            const QImage list = mBox.view()->viewport()->grab().toImage();
            mBox.hidePopup();
            return std::pair(closed, list);
        };
        const auto usual = drawn(text("/a/", "x", "/b"));
        const auto start = drawn(text("/c/", "x", "/b"));
        const auto middle = drawn(text("/a/", "y", "/b"));
        const auto end = drawn(text("/a/", "x", "/c"));
        EXPECT_EQ(usual.first == start.first, isPath);
        EXPECT_EQ(usual.second == start.second, isPath);
        EXPECT_EQ(usual, middle);
        EXPECT_NE(usual.first, end.first);
        EXPECT_NE(usual.second, end.second);
    }
}

TEST_F(KeyBox, drawsAnEmptyTextAsTheActionsName)
{
    mBox.setCurrentIndex(QVKeyComboBox::KeyCombination);
    const QImage expected = mBox.grab().toImage();
    mBox.replaceItem(QVKeyComboBox::KeyCombination, QString());
    EXPECT_EQ(mBox.currentText(), QString());
    EXPECT_EQ(mBox.grab().toImage(), expected);
}

TEST_F(KeyBox, aKeyThatWouldChooseOpensTheListInstead)
{
    for (const Qt::Key key :
        {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}) {
        mBox.setCurrentIndex(4);
        QTest::keyClick(&mBox, key);
        EXPECT_TRUE(mBox.view()->isVisible()) << key;
        EXPECT_EQ(mBox.currentIndex(), 4) << key;
        mBox.hidePopup();
    }
    EXPECT_EQ(mChoices.count(), 0);
}

TEST_F(KeyBox, keysThatChooseNothingDoAsInAnyBox)
{
    QTest::keyClick(&mBox, Qt::Key_F4);
    EXPECT_TRUE(mBox.view()->isVisible());
}

TEST_F(KeyBox, aTextThatFitsIsDrawnAsInAnyBox)
{
    QComboBox plain;
    plain.addItem(mBox.currentText());
    plain.setFocusPolicy(mBox.focusPolicy());
    plain.resize(mBox.size());
    EXPECT_EQ(mBox.grab().toImage(), plain.grab().toImage());
}

TEST_F(KeyBox, keepsItsTextOffTheFrameWhereTheStyleHasHardlyAnyMargin)
{
    TightStyle none(0);
    TightStyle small(1);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        mBox.setLayoutDirection(direction);
        const auto drawn = [this](const QString& text) {
            mBox.replaceItem(QVKeyComboBox::Application, text);
            return mBox.grab().toImage();
        };
        const auto margin = [&](QStyle& style) {
            mBox.setStyle(&style);
            // Only the texts differ.
            const QImage one = drawn(QStringLiteral("MMMM"));
            const QImage other = drawn(QStringLiteral("...."));
            int first = one.width();
            int last = 0;
            for (int x = 0; x < one.width(); ++x) {
                for (int y = 0; y < one.height(); ++y) {
                    if (one.pixel(x, y) != other.pixel(x, y)) {
                        first = std::min(first, x);
                        last = std::max(last, x);
                    }
                }
            }
            return direction == Qt::LeftToRight ? first : one.width() - 1 - last;
        };
        EXPECT_GE(margin(none), 4) << direction;
        EXPECT_LE(margin(none), 10) << direction;
        EXPECT_EQ(margin(none), margin(small)) << direction;
    }
    mBox.setStyle(nullptr);
}

TEST_F(KeyBox, leavesTheTextWhereAStyleWithAMarginHasIt)
{
    TightStyle style(2);
    QComboBox plain;
    plain.addItem(mBox.currentText());
    plain.setFocusPolicy(mBox.focusPolicy());
    plain.resize(mBox.size());
    plain.setStyle(&style);
    mBox.setStyle(&style);
    EXPECT_EQ(mBox.grab().toImage(), plain.grab().toImage());
    mBox.setStyle(nullptr);
    plain.setStyle(nullptr);
}

TEST_F(KeyBox, hasAFrameInTheColourOfSelectionsWhileItsButtonIsPressed)
{
    const auto painted = [this] { return WatchedEvents(mBox, QEvent::Paint).wait(); };
    QCoreApplication::processEvents();
    const QImage before = mBox.grab().toImage();
    mBox.setMarked(true);
    EXPECT_TRUE(painted());
    const QImage marked = mBox.grab().toImage();
    const int width = static_cast<int>(2 * mBox.devicePixelRatioF());
    const QRect inner = marked.rect().adjusted(width, width, -width, -width);
    for (int y = 0; y < marked.height(); ++y) {
        for (int x = 0; x < marked.width(); ++x) {
            const bool isInside = inner.contains(x, y);
            const bool isCorner = !isInside && (x < width || x >= marked.width() - width)
                && (y < width || y >= marked.height() - width);
            if (isCorner) {
                continue; // cut off between two lines
            }
            ASSERT_EQ(marked.pixelColor(x, y),
                isInside ? before.pixelColor(x, y) : mBox.palette().color(QPalette::Highlight))
                << x << ' ' << y;
        }
    }
    mBox.setMarked(false);
    EXPECT_TRUE(painted());
    EXPECT_EQ(mBox.grab().toImage(), before);
}

TEST_F(KeyBox, isDescribedByTheApplicationForAsLongAsItShowsThat)
{
    const QString path = QStringLiteral("/a");
    const QString own = QStringLiteral("Key of the tablet");
    for (const QString& description : {QString(), own}) {
        mBox.setAccessibleDescription(description);
        mBox.showApplication(path, QStringLiteral("Draw"), {});
        EXPECT_EQ(mBox.accessibleDescription(), QStringLiteral("Draw"));
        mBox.showApplication(path, QStringLiteral("Paint"), {});
        EXPECT_EQ(mBox.accessibleDescription(), QStringLiteral("Paint"));
        EXPECT_EQ(toolTip(), QStringLiteral("<b>Paint</b><br>/a"));
        EXPECT_TRUE(mBox.showsApplication(path));
        mBox.replaceItem(QVKeyComboBox::KeyCombination, QStringLiteral("Ctrl"));
        EXPECT_EQ(mBox.accessibleDescription(), description);
        EXPECT_EQ(toolTip(), QString());
        mBox.setCurrentIndex(QVKeyComboBox::Application);
        EXPECT_EQ(mBox.accessibleDescription(), QStringLiteral("Paint"));
        mBox.replaceItem(QVKeyComboBox::Application, path);
        EXPECT_EQ(mBox.accessibleDescription(), description);
        EXPECT_EQ(toolTip(), QString());
        EXPECT_FALSE(mBox.showsApplication(path));
    }
    mBox.showApplication(path, QStringLiteral("Draw"), {});
    mBox.resetItems();
    EXPECT_EQ(mBox.accessibleDescription(), own);
    mBox.setCurrentIndex(QVKeyComboBox::Application);
    EXPECT_EQ(mBox.accessibleDescription(), own) << "of the former application nothing is left";
}

TEST_F(KeyBox, otherKeysOpenNothing)
{
    for (const Qt::Key key : {Qt::Key_F5, Qt::Key_Shift, Qt::Key_Left, Qt::Key_Tab}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString());
        QCoreApplication::sendEvent(&mBox, &event);
        EXPECT_FALSE(mBox.view()->isVisible()) << key;
    }
    // A control character, as typed with Ctrl.
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QString(QChar(1)));
    QCoreApplication::sendEvent(&mBox, &event);
    EXPECT_FALSE(mBox.view()->isVisible());
}

TEST_F(KeyBox, theSpaceBarOpensTheListAtThePresentItem)
{
    mBox.setCurrentIndex(3);
    QTest::keyClick(&mBox, Qt::Key_Space);
    ASSERT_TRUE(mBox.view()->isVisible());
    EXPECT_EQ(mBox.view()->currentIndex().row(), 3);
}

TEST_F(KeyBox, aTextThatFitsHasNoTooltip)
{
    mBox.setCurrentIndex(QVKeyComboBox::NoAction);
    mBox.resize(400, 24);
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, QPoint(10, 10), mBox.mapToGlobal(QPoint(10, 10)));
    QCoreApplication::sendEvent(&mBox, &event);
    EXPECT_FALSE(QToolTip::text().contains(mBox.currentText())) << qPrintable(QToolTip::text());
}

TEST_F(KeyBox, hasATooltipFromTheFirstPixelThatIsMissing)
{
    const QString path = QStringLiteral("/opt/draw.AppImage");
    QPixmap square(64, 64);
    square.fill(Qt::blue);
    TightStyle tight(0);
    for (QStyle* const style : {static_cast<QStyle*>(nullptr), static_cast<QStyle*>(&tight)}) {
        mBox.setStyle(style);
        for (const QIcon& icon : {QIcon(), QIcon(square)}) {
            mBox.showApplication(path, {}, icon);
            // The label is drawn two pixels in from both ends of its field, four from an icon, and
            // four from the frame where the style does not keep it off.
            QStyleOptionComboBox option;
            option.initFrom(&mBox);
            const QRect field = mBox.style()->subControlRect(
                QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &mBox);
            const int needed = mBox.fontMetrics().horizontalAdvance(path) + 4
                + (icon.isNull() ? 0 : mBox.iconSize().width() + 4) + (style == nullptr ? 0 : 4);
            const int fitting = mBox.width() - field.width() + needed;
            mBox.resize(fitting, mBox.height());
            EXPECT_EQ(toolTip(), QString());
            mBox.resize(fitting - 1, mBox.height());
            EXPECT_TRUE(toolTip().contains(path));
        }
    }
    mBox.setStyle(nullptr);
}

TEST_F(KeyBox, aReplacedItemTellsItsWholeTextInTheList)
{
    mBox.replaceItem(QVKeyComboBox::Application, QStringLiteral("/a<b>"));
    EXPECT_EQ(mBox.itemData(QVKeyComboBox::Application, Qt::ToolTipRole),
        QStringLiteral("<span>/a&lt;b&gt;</span>"));
}

TEST_F(KeyBox, drawsControlCharactersAsReplacements)
{
    const auto drawn = [this](const QString& text) {
        mBox.replaceItem(QVKeyComboBox::Application, text);
        return mBox.grab().toImage();
    };
    EXPECT_EQ(drawn(QStringLiteral("a\nb")), drawn(QStringLiteral("a\uFFFDb")));
    EXPECT_NE(drawn(QStringLiteral("a b")), drawn(QStringLiteral("a\uFFFDb")));
}

TEST_F(KeyBox, theListDrawsItsTextsLikeTheBox)
{
    const auto drawn = [this](const QString& text) {
        mBox.replaceItem(QVKeyComboBox::KeyCombination, text);
        mBox.setCurrentIndex(0);
        mBox.showPopup();
        const QImage image = mBox.view()->viewport()->grab().toImage();
        mBox.hidePopup();
        return image;
    };
    const QImage name = drawn(mBox.itemText(QVKeyComboBox::KeyCombination));
    EXPECT_EQ(drawn(QString()), name);
    EXPECT_NE(drawn(QStringLiteral("x")), name);
    EXPECT_EQ(drawn(QStringLiteral("a\tb")), drawn(QStringLiteral("a\uFFFDb")));
}

TEST_F(KeyBox, itsListsRowsAreAThirdOfATextHigherThanUsual)
{
    QStyleOptionViewItem option;
    option.initFrom(mBox.view());
    const QModelIndex index = mBox.model()->index(1, 0);
    EXPECT_EQ(mBox.itemDelegate()->sizeHint(option, index),
        QStyledItemDelegate().sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 3));
    EXPECT_GT(option.fontMetrics.height() / 3, 2);
}

TEST_F(KeyBox, noTextWidensIt)
{
    const QSize before = mBox.sizeHint();
    mBox.replaceItem(QVKeyComboBox::Application, QString(500, u'x'));
    EXPECT_EQ(mBox.sizeHint(), before);
    QVKeyComboBox neverShown;
    neverShown.replaceItem(QVKeyComboBox::Application, QString(500, u'x'));
    EXPECT_EQ(neverShown.sizeHint(), QVKeyComboBox().sizeHint());
}

TEST_F(KeyBox, theWheelDoesNotTakeTheFocus)
{
    EXPECT_EQ(mBox.focusPolicy(), Qt::StrongFocus);
}
