// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PenEvents.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <memory>

/**
 * @file
 * Notifications within the process: they are posted under a name, to all observers of that name.
 * Main thread only.
 */
namespace platform {

/** One notification, with what its observers may need. */
struct Notification {
    QString name;
    const QObject* object = nullptr; ///< the sender
    QHash<QString, std::shared_ptr<const Event>> userInfo;
    QString text = {}; ///< why something failed, for the user; empty on success
    QVariantList values = {}; ///< the arguments of a signal
};

/** Main thread only. */
class NotificationCenter final : public QObject {
    Q_OBJECT

public:
    using Observer = std::function<void(const Notification&)>;

    /** Calls the observer for each notification with that name, for the lifetime of its owner. */
    void addObserver(const QObject& owner, const QString& name, Observer observer) const;

    /** Calls all observers of the name, in the order of registration, before it returns. */
    void post(const Notification& notification);

Q_SIGNALS:
    void posted(const platform::Notification& notification);
};

/** Returns the process's only instance. */
NotificationCenter& notifications();

} // namespace platform
