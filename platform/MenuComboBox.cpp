// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "MenuComboBox.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace platform {

namespace {

bool isPrintable(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().at(0).isPrint();
}

/** Whether the key would normally choose another item of a closed list at once. */
bool wouldChoose(const QKeyEvent& event)
{
    constexpr std::array kMoves{
        Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    return std::ranges::find(kMoves, event.key()) != kMoves.end() || isPrintable(event);
}

} // namespace

MenuComboBox::MenuComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void MenuComboBox::keyPressEvent(QKeyEvent* event)
{
    if (!wouldChoose(*event)) {
        QComboBox::keyPressEvent(event);
        return;
    }
    constexpr auto kShortcut = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (isPrintable(*event) && (event->modifiers() & kShortcut) != 0) {
        event->ignore(); // it is not a shortcut
        return;
    }
    showPopup();
    if (event->key() != Qt::Key_Space) {
        // In the open list, the key moves the selection, which Return then chooses.
        QCoreApplication::sendEvent(view(), event);
    }
}

void MenuComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace platform
