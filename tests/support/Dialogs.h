// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Wait.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <stdexcept>

/** Waits until a window itself is active; a dialog of an active window is taken for active, too. */
inline void activate(QWidget& window)
{
    window.activateWindow();
    ASSERT_TRUE(
        QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }, kPatience));
}

/** The button of a window with that text, without its mnemonic. */
inline QPushButton& buttonOf(const QWidget& window, const char* text)
{
    const auto buttons = window.findChildren<QPushButton*>();
    for (QPushButton* const button : buttons) {
        if (QString(button->text()).remove(u'&') == QString::fromUtf8(text)) {
            return *button;
        }
    }
    ADD_FAILURE() << "there is no button " << text;
    return *buttons.constFirst();
}

/** The widget in a window with that accessible name. */
inline QWidget& widgetNamed(const QWidget& window, const char* accessibleName)
{
    const auto children = window.findChildren<QWidget*>();
    for (QWidget* const child : children) {
        if (child->accessibleName() == QString::fromUtf8(accessibleName)) {
            return *child;
        }
    }
    throw std::logic_error("no such widget");
}

/**
 * Cancels a dialog in each way: by its button, by Escape, and by Return on the button.
 *
 * @param open opens it, active, and returns it
 * @param expectCancelled called after each
 */
inline void cancelInEachWay(
    const std::function<QDialog*()>& open, const std::function<void()>& expectCancelled)
{
    using Way = void (*)(QDialog&);
    for (const Way cancel :
        std::initializer_list<Way>{[](QDialog& dialog) { buttonOf(dialog, "Cancel").click(); },
            [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape); },
            [](QDialog& dialog) {
                QPushButton& button = buttonOf(dialog, "Cancel");
                button.setFocus();
                QTest::keyClick(&button, Qt::Key_Return);
            }}) {
        QDialog* const dialog = open();
        ASSERT_NE(dialog, nullptr);
        cancel(*dialog);
        expectCancelled();
    }
}

/** Expects an item of a list to be wrapped within the list, and all of its text to be drawn. */
inline void expectWrapped(QListWidget& list, int row)
{
    QListWidgetItem& item = *list.item(row);
    const QRect lines = list.visualItemRect(&item);
    EXPECT_LE(lines.width(), list.viewport()->width()) << row;
    EXPECT_GE(lines.height(), 3 * list.fontMetrics().lineSpacing()) << row;
    const QImage before = list.grab().toImage();
    item.setText(item.text().chopped(2) + u'X');
    EXPECT_NE(list.grab().toImage(), before) << row << ": its end is drawn";
}
