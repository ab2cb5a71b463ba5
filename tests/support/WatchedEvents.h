// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Wait.h"

#include <QEvent>
#include <QPaintEvent>
#include <QRegion>
#include <QTest>
#include <QWidget>

/** Counts a widget's events of a kind, and joins the regions that are painted. */
class WatchedEvents final : public QObject {
public:
    WatchedEvents(QWidget& widget, QEvent::Type type)
        : mType(type)
    {
        widget.installEventFilter(this);
    }
    /** Waits for an event after the last clear(). @return false if none has come */
    bool wait() const
    {
        return QTest::qWaitFor([this] { return count > 0; }, kPatience);
    }
    void clear()
    {
        count = 0;
        painted = QRegion();
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == mType) {
            ++count;
            painted +=
                mType == QEvent::Paint ? static_cast<QPaintEvent*>(event)->region() : QRegion();
        }
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
    QRegion painted; ///< in the widget

private:
    QEvent::Type mType;
};
