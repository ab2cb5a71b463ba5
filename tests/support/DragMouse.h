// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

/**
 * Moves the mouse over a widget with its left button down; Qt 5's own function drops the button.
 */
inline void dragMouse(QWidget& widget, const QPoint& to)
{
    QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
        Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}
