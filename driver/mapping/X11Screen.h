// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "X11Connection.h"

#include <QObject>
#include <QSize>
#include <QSocketNotifier>

#include <memory>

/**
 * The size of the screen of an X server, over which it lays the whole range of a pen. It may be
 * larger than the displays that show parts of it.
 */
class X11Screen final : public QObject {
    Q_OBJECT

public:
    /** Connects to the display in DISPLAY. */
    X11Screen();

    /** In pixels; empty if there was no connection. */
    QSize size() const { return mSize; }

Q_SIGNALS:
    /** size() has changed. */
    void changed();

private:
    void readEvents();

    platform::X11Connection mConnection;
    std::unique_ptr<QSocketNotifier> mNotifier;
    QSize mSize;
};
