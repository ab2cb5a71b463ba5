// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

/**
 * The service manager's watchdog, if it has one for this process: it kills a driver that hangs, so
 * that the kernel takes the tablet away from it.
 */
class Watchdog final : public QObject {
    Q_OBJECT

public:
    Watchdog();

    /** Tells the service manager that everything is well: the answer to due(). */
    void feed() const;

Q_SIGNALS:
    /** Feed it now, if everything is well. */
    void due();

private:
    QByteArray mSocket;
    QTimer mTimer;
};
