// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PenEvents.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

/**
 * @file
 * Notices within the process: whoever has something to tell posts it under a name, and whoever
 * wants to know is told. Main thread only.
 */
namespace platform {

struct Notification {
    QString name;
    const QObject* object = nullptr; ///< who posts it
    QHash<QString, std::shared_ptr<const Event>> userInfo;
    QString text = {}; ///< why something failed, for people; empty when nothing did
};

/** Main thread only. */
class NotificationCenter final : public QObject {
    Q_OBJECT

public:
    using Observer = std::function<void(const Notification&)>;

    /** Tells the observer of everything under that name, for as long as its owner lives. */
    void addObserver(const QObject& owner, const QString& name, Observer observer) const;

    /** Tells all observers of the name, in the order in which they came, before it returns. */
    void post(const Notification& notification);

Q_SIGNALS:
    void posted(const platform::Notification& notification);
};

/** The process's one. */
NotificationCenter& notifications();

} // namespace platform
