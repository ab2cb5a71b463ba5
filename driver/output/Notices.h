// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

/** Shows the user a short notice on the screen; each takes the place of the one before. */
class Notices final : public QObject {
    Q_OBJECT

public:
    explicit Notices(QDBusConnection session, QObject* parent = nullptr);

    /** Shows it, if the desktop shows notifications. */
    void show(const QString& text);

private:
    QDBusConnection mBus;
    uint mLast = 0; ///< the desktop's number of the last one
    bool mIsAsking = false; ///< the desktop has not yet said the number
    QString mNext; ///< to be shown then; empty for none
};
