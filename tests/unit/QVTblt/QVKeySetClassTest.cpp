// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeySetClass.h"

#include "QVKeyComboBox.h"
#include "Wait.h"
#include "hid_usb_2_adb_keymap_char.h"
#include "rzkApplication.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

constexpr int kSlot = 2;

class KeySet : public testing::Test {
protected:
    KeySet()
    {
        qvTabletInfo = {};
        mBox.setProperty("tag", kSlot);
        mBox.setCommitted(100);
        mDialog.QVShowWindow(&mBox);
        mDialog.showWindow();
    }

    static const tagQVTabletInfoSubKey& slot() { return qvTabletInfo.Key.SubKey[kSlot]; }

    template <class Widget>
    Widget& child(const char* name)
    {
        auto* const widget = mDialog.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    void click(std::initializer_list<const char*> keys)
    {
        for (const char* const key : keys) {
            QTest::mouseClick(
                &child<QToolButton>((std::string("key") + key).c_str()), Qt::LeftButton);
        }
    }
    void press(const char* button)
    {
        QTest::mouseClick(&child<QPushButton>(button), Qt::LeftButton);
    }
    QString text() { return child<QLineEdit>("mKeyText").text(); }

    /** Asserts that both buttons are enabled, or neither. */
    void expectHasKeys(bool hasKeys)
    {
        EXPECT_EQ(child<QPushButton>("delBtn").isEnabled(), hasKeys);
        EXPECT_EQ(child<QPushButton>("okBtn").isEnabled(), hasKeys);
    }

    QVKeyComboBox mBox;
    QVKeySetClass mDialog;
};

} // namespace

TEST_F(KeySet, hasAButtonForEveryKeyOfTheTableUnderItsName)
{
    QSet<QString> found;
    const auto buttons = mDialog.findChildren<QToolButton*>();
    for (const QToolButton* const button : buttons) {
        found.insert(button->text() + u'/' + button->property("tag").toString());
        EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty());
    }
    EXPECT_EQ(buttons.size(), 68);
    for (const QVKeyName& key : hid_usb_2_adb_keymap_char) {
        if (!key.name.empty()) {
            const QString name = QString::fromUtf16(key.name.data(), int(key.name.size())) + u'/'
                + QString::number(key.code);
            EXPECT_TRUE(found.contains(name)) << qPrintable(name);
        }
    }
}

TEST_F(KeySet, opensEmptyWithNothingToDeleteOrStore)
{
    click({"A", "B"});
    mDialog.QVShowWindow(&mBox);
    EXPECT_EQ(text(), QString());
    expectHasKeys(false);
    click({"C"});
    mDialog.SaveKeyData();
    EXPECT_EQ(+slot().Key, 0x01000008U);
}

TEST_F(KeySet, opensAtTheFirstModifier)
{
    child<QToolButton>("keyM").setFocus();
    mDialog.CancelSet();
    mDialog.QVShowWindow(&mBox);
    mDialog.showWindow();
    EXPECT_EQ(mDialog.focusWidget(), &child<QToolButton>("keyCtrl"));
}

TEST_F(KeySet, doesNotShowItsWindowWhenItIsPrepared)
{
    mDialog.CancelSet();
    mDialog.QVShowWindow(&mBox);
    EXPECT_FALSE(mDialog.isVisible());
    EXPECT_TRUE(mDialog.isModal());
}

TEST_F(KeySet, threeKeysAreStoredAndShown)
{
    click({"Ctrl", "Shift", "Z"});
    EXPECT_EQ(text(), QStringLiteral("Ctrl  Shift  Z"));
    press("okBtn");
    EXPECT_EQ(+slot().Valid, kQVKeyCombination);
    EXPECT_EQ(+slot().Key, 0x03063836U);
    EXPECT_EQ(mBox.committed(), 256);
    EXPECT_EQ(mBox.currentIndex(), 6);
    EXPECT_EQ(mBox.currentText(), QStringLiteral("Ctrl  Shift  Z"));
    EXPECT_EQ(mBox.count(), 10);
    EXPECT_FALSE(mDialog.isVisible());
}

TEST_F(KeySet, theKeyAAloneIsACountOfOne)
{
    click({"A"});
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x01000000U);
}

TEST_F(KeySet, theCommandKeyKeepsItsSign)
{
    click({"Command", "Minus", "Plus"});
    EXPECT_EQ(text(), QStringLiteral("\u2318  -  +"));
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x03181B37U);
}

TEST_F(KeySet, aFourthClickChangesNothing)
{
    click({"Ctrl", "Shift", "Z", "X"});
    EXPECT_EQ(text(), QStringLiteral("Ctrl  Shift  Z"));
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x03063836U);
}

TEST_F(KeySet, twentyClicksInARowStayThree)
{
    for (int i = 0; i < 20; ++i) {
        click({"B"});
    }
    EXPECT_EQ(text(), QStringLiteral("B  B  B"));
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x030B0B0BU);
}

TEST_F(KeySet, deletingTheOnlyKeyLeavesNothing)
{
    click({"B"});
    expectHasKeys(true);
    press("delBtn");
    EXPECT_EQ(text(), QString());
    expectHasKeys(false);
    click({"C"});
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x01000008U) << "nothing of the deleted key may be left";
}

TEST_F(KeySet, noButtonDeletesFromAnEmptyText)
{
    press("delBtn");
    press("delBtn");
    EXPECT_EQ(text(), QString());
    click({"B", "C"});
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x0200080BU);
}

TEST_F(KeySet, aDeletionOfNothingIsMadeUpForByAKeyThatIsNotStored)
{
    mDialog.DeleteOneSet();
    mDialog.DeleteOneSet();
    EXPECT_EQ(text(), QString());
    expectHasKeys(false);
    click({"B", "C", "D", "E", "F", "G"});
    EXPECT_EQ(text(), QStringLiteral("B  C  D  E  F"));
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x03030E02U) << "D, E and F";
}

TEST_F(KeySet, aNumberBelowZeroIsStoredAsItIs)
{
    mDialog.DeleteOneSet();
    mDialog.SaveKeyData();
    EXPECT_EQ(+slot().Valid, kQVKeyCombination);
    EXPECT_EQ(+slot().Key, 0xFF000000U);
}

TEST_F(KeySet, deletingOneOfThreeAndAddingAnotherLeavesTheCountAtThree)
{
    click({"X", "Y", "Z"});
    press("delBtn");
    click({"C"});
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x03081007U);
    EXPECT_EQ(mBox.currentText(), QStringLiteral("X  Y  C"));
}

TEST_F(KeySet, theCountAfterADeletionIsTheOrOfBothCounts)
{
    click({"X", "Y"});
    press("delBtn");
    EXPECT_EQ(text(), QStringLiteral("X"));
    click({"Z"});
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x03000607U);
    EXPECT_EQ(mBox.currentText(), QStringLiteral("X  Z"));
}

TEST_F(KeySet, deletingOneOfThreeForgetsTheThird)
{
    click({"Ctrl", "Shift", "Z"});
    press("delBtn");
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x02003836U);
}

TEST_F(KeySet, deletingTwiceOfThreeKeepsTheFirst)
{
    click({"Z", "Y", "X"});
    press("delBtn");
    EXPECT_EQ(text(), QStringLiteral("Z  Y"));
    press("delBtn");
    EXPECT_EQ(text(), QStringLiteral("Z"));
    expectHasKeys(true);
    press("okBtn");
    EXPECT_EQ(+slot().Key, 0x01000006U);
}

TEST_F(KeySet, okWithoutAKeyStoresNothing)
{
    mBox.setCommitted(104);
    mDialog.SaveKeyData();
    EXPECT_FALSE(mDialog.isVisible());
    EXPECT_EQ(mBox.committed(), 104);
    EXPECT_EQ(+slot().Valid, kQVNoAction);
    EXPECT_EQ(+slot().Key, 0U);
}

TEST_F(KeySet, cancelStoresNothing)
{
    click({"B"});
    press("cancelBtn");
    EXPECT_FALSE(mDialog.isVisible());
    EXPECT_EQ(mBox.committed(), 100);
    EXPECT_EQ(+slot().Valid, kQVNoAction);
}

TEST_F(KeySet, escapeCancels)
{
    click({"B"});
    QTest::keyClick(&mDialog, Qt::Key_Escape);
    EXPECT_FALSE(mDialog.isVisible());
    EXPECT_EQ(+slot().Valid, kQVNoAction);
}

TEST_F(KeySet, closingTheWindowCancels)
{
    click({"B"});
    mDialog.close();
    EXPECT_FALSE(mDialog.isVisible());
    EXPECT_EQ(+slot().Valid, kQVNoAction);
}

TEST_F(KeySet, returnIsOkOnceThereIsAKey)
{
    QTest::keyClick(&child<QToolButton>("keyCtrl"), Qt::Key_Return);
    EXPECT_TRUE(mDialog.isVisible());
    click({"B"});
    QTest::keyClick(&child<QToolButton>("keyB"), Qt::Key_Return);
    EXPECT_FALSE(mDialog.isVisible());
    EXPECT_EQ(+slot().Key, 0x0100000BU);
}

TEST_F(KeySet, everyKeyIsReachedByArrowsAndByTab)
{
    mDialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mDialog, kPatience));
    QSet<QWidget*> reached;
    QList<QWidget*> open{&child<QToolButton>("keyCtrl")};
    while (!open.isEmpty()) {
        QWidget* const from = open.takeLast();
        if (reached.contains(from)) {
            continue;
        }
        reached.insert(from);
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            from->setFocus();
            QTest::keyClick(from, arrow);
            if (qobject_cast<QToolButton*>(QApplication::focusWidget()) != nullptr) {
                open.append(QApplication::focusWidget());
            }
        }
    }
    EXPECT_EQ(reached.size(), 68);

    reached.clear();
    child<QToolButton>("keyCtrl").setFocus();
    for (int i = 0; i < 80; ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const QToolButton* const button : mDialog.findChildren<QToolButton*>()) {
        EXPECT_TRUE(reached.contains(const_cast<QToolButton*>(button)))
            << qPrintable(button->text());
    }
}

TEST_F(KeySet, noKeysNameIsCutOffAtAnyTextSize)
{
    for (const double factor : {1.0, 1.25, 1.5, 2.0}) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * factor);
        mDialog.setFont(font);
        mDialog.adjustSize();
        for (const QToolButton* const button : mDialog.findChildren<QToolButton*>()) {
            EXPECT_GE(button->width(), button->sizeHint().width()) << qPrintable(button->text());
            EXPECT_GE(button->height(), button->sizeHint().height()) << qPrintable(button->text());
        }
    }
}

TEST_F(KeySet, fitsIntoSmallScreensInEveryLanguageAndTextSize)
{
    // The frame of most desktops' windows.
    constexpr QSize kFrame(12, 40);
    for (const char* const language : {"en", "fr", "de", "ja", "zh-Hans", "es"}) {
        QTranslator translator;
        const QString file = QStringLiteral(QVTBLT_STAGE_RESOURCES "/%1.lproj/QVTblt.qm")
                                 .arg(QLatin1String(language));
        ASSERT_EQ(translator.load(file), QLatin1String(language) != QLatin1String("en"));
        QCoreApplication::installTranslator(&translator);
        for (const QSize& room : {QSize(1024, 600), QSize(1366, 768)}) {
            for (const int points : {10, 14, 18}) {
                SCOPED_TRACE(
                    testing::Message() << language << ' ' << room.width() << ' ' << points);
                QVKeySetClass dialog;
                QFont font = QApplication::font();
                font.setPointSize(points);
                dialog.setFont(font);
                dialog.QVShowWindow(&mBox);
                dialog.show();
                dialog.fitInto(room);
                QCoreApplication::processEvents();
                EXPECT_LE(dialog.width() + kFrame.width(), room.width());
                EXPECT_LE(dialog.height() + kFrame.height(), room.height());
                for (const char* const name : {"mKeyText", "delBtn", "cancelBtn", "okBtn"}) {
                    const auto* const part = dialog.findChild<QWidget*>(QLatin1String(name));
                    const QRect place(part->mapTo(&dialog, QPoint(0, 0)), part->size());
                    EXPECT_TRUE(dialog.rect().contains(place)) << name;
                    EXPECT_GE(part->height(), part->minimumSizeHint().height()) << name;
                }
                const auto& area = *dialog.findChild<QScrollArea*>();
                for (QToolButton* const key : dialog.findChildren<QToolButton*>()) {
                    key->setFocus();
                    const QRect place(key->mapTo(area.viewport(), QPoint(0, 0)), key->size());
                    EXPECT_TRUE(area.viewport()->rect().contains(place)) << qPrintable(key->text());
                }
                EXPECT_EQ(area.verticalScrollBar()->maximum(), 0) << "all rows are seen at once";
            }
        }
        QCoreApplication::removeTranslator(&translator);
    }
}

TEST_F(KeySet, isShownWithinTheScreen)
{
    QVKeySetClass dialog;
    QFont font = QApplication::font();
    font.setPointSize(18);
    dialog.setFont(font);
    dialog.showWindow();
    const QRect screen = dialog.screen()->availableGeometry();
    EXPECT_LE(dialog.frameGeometry().width(), screen.width());
    EXPECT_LE(dialog.frameGeometry().height(), screen.height());
    EXPECT_GE(dialog.width(), screen.width() * 9 / 10) << "which this text size needs";
}

TEST_F(KeySet, needsNoScrollingWhereThereIsRoom)
{
    for (const int points : {8, 10, 14, 18}) {
        QVKeySetClass dialog;
        QFont font = QApplication::font();
        font.setPointSize(points);
        dialog.setFont(font);
        dialog.show();
        dialog.fitInto({4000, 2000});
        QCoreApplication::processEvents();
        const auto& area = *dialog.findChild<QScrollArea*>();
        EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0) << points;
        EXPECT_EQ(area.verticalScrollBar()->maximum(), 0) << points;
        EXPECT_LT(dialog.width(), 200 * points) << "and takes no more than it needs";
        EXPECT_LT(area.viewport()->height(), area.widget()->sizeHint().height() + 2 * points);
        const auto& field = *dialog.findChild<QLineEdit*>();
        const QFontMetrics metrics = field.fontMetrics();
        const int text = metrics.horizontalAdvance(field.placeholderText());
        EXPECT_GE(field.minimumWidth(), text);
        EXPECT_LE(field.minimumWidth(), text + 5 * metrics.horizontalAdvance(u'x'));
        // The narrowest room in which it keeps its width leaves it its height, too.
        const QSize size = dialog.size();
        int width = size.width();
        do {
            dialog.fitInto({width, 2000});
        } while (dialog.width() < size.width() && ++width < 4000);
        EXPECT_EQ(dialog.size(), size) << points;
    }
}

TEST_F(KeySet, keepsItsSizeWhenItIsShownWhileItIsVisible)
{
    const QSize size = mDialog.size() + QSize(20, 20);
    mDialog.resize(size);
    mDialog.show();
    EXPECT_EQ(mDialog.size(), size) << "the user has chosen it";
}

TEST_F(KeySet, leavesRoomForTheFrameAndNotForAllOfTheWindowThatItBelongsTo)
{
    mDialog.fitInto({4000, 2000});
    QWidget owner;
    owner.resize(1800, 900);
    owner.show();
    QVKeySetClass dialog(&owner);
    dialog.fitInto({4000, 2000});
    EXPECT_EQ(dialog.size(), mDialog.size());
}

TEST_F(KeySet, measuresItsTextInTheFontOfFields)
{
    // Also forgets the fonts of classes.
    const auto restoring = qScopeGuard([] { QApplication::setFont(QApplication::font()); });
    QFont large = QApplication::font("QLineEdit");
    large.setPointSize(3 * QFontInfo(large).pointSize());
    QApplication::setFont(large, "QLineEdit");
    QVKeySetClass dialog;
    dialog.fitInto({4000, 2000});
    const auto& field = *dialog.findChild<QLineEdit*>();
    EXPECT_GE(field.minimumWidth(), QFontMetrics(large).horizontalAdvance(field.placeholderText()));
}

TEST_F(KeySet, showsWhichKeyHasTheFocus)
{
    mDialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mDialog, kPatience));
    auto& key = child<QToolButton>("keyM");
    const QImage before = key.grab().toImage();
    key.setFocus();
    EXPECT_TRUE(key.hasFocus());
    EXPECT_NE(key.grab().toImage(), before);
}

TEST_F(KeySet, showsTheFocusFromItsActivationOn)
{
    // The fixture's dialog has been active before.
    QVKeySetClass dialog;
    QEvent deactivated(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&dialog, &deactivated);
    EXPECT_FALSE(dialog.testAttribute(Qt::WA_KeyboardFocusChange));
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&dialog, &activated);
    EXPECT_TRUE(dialog.testAttribute(Qt::WA_KeyboardFocusChange));
}

TEST_F(KeySet, afterTheLastKeyIsDeletedTheFocusIsOnTheFirst)
{
    mDialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mDialog, kPatience));
    click({"B", "C"});
    child<QPushButton>("delBtn").setFocus();
    QTest::keyClick(&child<QPushButton>("delBtn"), Qt::Key_Space);
    EXPECT_EQ(QApplication::focusWidget(), &child<QPushButton>("delBtn")) << "there is one left";
    QTest::keyClick(&child<QPushButton>("delBtn"), Qt::Key_Space);
    EXPECT_EQ(text(), QString());
    EXPECT_EQ(QApplication::focusWidget(), &child<QToolButton>("keyCtrl"));
    // A key combination of the button deletes without taking the focus.
    click({"B"});
    child<QPushButton>("okBtn").setFocus();
    child<QPushButton>("delBtn").click();
    EXPECT_EQ(QApplication::focusWidget(), &child<QToolButton>("keyCtrl"));
    click({"B"});
    child<QToolButton>("keyC").setFocus();
    child<QPushButton>("delBtn").click();
    EXPECT_EQ(QApplication::focusWidget(), &child<QToolButton>("keyC")) << "which is enabled";
}

TEST_F(KeySet, spacePressesTheKeyThatHasTheFocus)
{
    QTest::keyClick(&child<QToolButton>("keyF12"), Qt::Key_Space);
    EXPECT_EQ(text(), QStringLiteral("F12"));
}

TEST_F(KeySet, aMarkThatTheDesktopPutsIntoATitleIsNotPartOfIt)
{
    child<QToolButton>("keyB").setText(QStringLiteral("&B"));
    click({"B"});
    EXPECT_EQ(text(), QStringLiteral("B"));
}

TEST_F(KeySet, endsItsLoopItself)
{
    mDialog.CancelSet();
    mDialog.QVShowWindow(&mBox);
    QTimer::singleShot(0, &mDialog, [this] {
        click({"B"});
        press("okBtn");
    });
    EXPECT_EQ(mDialog.exec(), QDialog::Accepted);
    EXPECT_EQ(+slot().Key, 0x0100000BU);
}
