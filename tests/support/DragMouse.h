// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

/** The mouse moves over a widget with its left button down, which Qt 5's own function leaves out.
 */
inline void dragMouse(QWidget& widget, const QPoint& to)
{
    QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
        Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}
