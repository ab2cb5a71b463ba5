// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QtVersions.h"

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>
#include <qpa/qwindowsysteminterface.h>
#include <qpa/qwindowsysteminterface_p.h>

/**
 * A pen of the window system, whose events take the whole path through Qt. Nothing arrives before
 * deliver(), so that many events can arrive together.
 */
class PenInput {
public:
    enum class End { Tip, Eraser };

    PenInput(QWidget& view, qint64 serial, End end = End::Tip)
        : mView(view)
        , mSerial(serial)
        , mEnd(end)
    {
        // As on a real desktop, where Qt turns ignored pen events into mouse events.
        QWindowSystemInterfacePrivate::TabletEvent::setPlatformSynthesizesMouse(false);
    }

    int xTilt = 0;
    int yTilt = 0;
    qreal rotation = 0;

    void enter()
    {
        QWindowSystemInterface::handleTabletEnterProximityEvent(kStylus, pointer(), mSerial);
    }
    void leave()
    {
        QWindowSystemInterface::handleTabletLeaveProximityEvent(kStylus, pointer(), mSerial);
    }
    /** @param at in the view, from its upper left corner */
    void press(const QPointF& at, qreal pressure) { move(at, pressure); }
    void move(const QPointF& at, qreal pressure) { put(at, Qt::LeftButton, pressure); }
    void release(const QPointF& at) { put(at, Qt::NoButton, 0); }
    /** Some pens go on to report the pressure of their last touch. */
    void hover(const QPointF& at, qreal pressure = 0) { put(at, Qt::NoButton, pressure); }

    /** The other end of the same pen. */
    void turn() { mEnd = mEnd == End::Tip ? End::Eraser : End::Tip; }

    static void deliver()
    {
        // Qt delivers, the queue hands over, and the view is painted.
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::processEvents();
        }
    }

private:
    static constexpr int kStylus = static_cast<int>(platform::TabletDeviceType::Stylus);
    static constexpr int kTip = static_cast<int>(platform::PointerType::Pen);
    static constexpr int kEraser = static_cast<int>(platform::PointerType::Eraser);

    int pointer() const { return mEnd == End::Tip ? kTip : kEraser; }

    void put(const QPointF& at, Qt::MouseButtons buttons, qreal pressure)
    {
        const QWidget& window = *mView.window();
        const qreal density = window.devicePixelRatioF(); // the window system uses pixels
        const QPointF inWindow = at + mView.mapTo(&window, QPoint(0, 0));
        const QPointF local = inWindow * density;
        const QPointF global = (inWindow + window.mapToGlobal(QPoint(0, 0))) * density;
        QWindowSystemInterface::handleTabletEvent(window.windowHandle(), local, global, kStylus,
            pointer(), buttons, pressure, xTilt, yTilt, 0, rotation, 0, mSerial);
    }

    QWidget& mView;
    qint64 mSerial;
    End mEnd;
};
