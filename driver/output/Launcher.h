// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <functional>
#include <map>

/**
 * Starts applications, never through a shell. The user's service manager starts them, if there is
 * one, so that they live apart from this program and have none of its restrictions.
 */
class Launcher final : public QObject {
    Q_OBJECT

public:
    explicit Launcher(QDBusConnection bus, QObject* parent = nullptr);

    /**
     * Starts the application of a button, at most once a second for each.
     *
     * @param failed is called with the reason if it cannot be started, perhaps later
     */
    void launch(int slot, const QString& path, const std::function<void(const QString&)>& failed);

private Q_SLOTS:
    /** Takes the number of the job, its object, the unit and the result. */
    void jobRemoved(const QDBusMessage& signal);

private: // NOLINT(readability-redundant-access-specifiers): moc reads the one before
    /** An application that the service manager is starting. */
    struct Start {
        QString path;
        std::function<void(const QString&)> failed;
    };

    QDBusConnection mBus;
    std::map<QString, Start> mStarts; ///< by the name of the unit
    std::map<int, QElapsedTimer> mLast; ///< when a button last started something
    int mCount = 0;
};
