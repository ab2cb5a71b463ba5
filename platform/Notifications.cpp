// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Notifications.h"

#include <utility>

namespace platform {

void NotificationCenter::addObserver(
    const QObject& owner, const QString& name, Observer observer) const
{
    connect(this, &NotificationCenter::posted, &owner,
        [name, observer = std::move(observer)](const Notification& notification) {
            if (notification.name == name) {
                observer(notification);
            }
        });
}

void NotificationCenter::post(const Notification& notification)
{
    Q_EMIT posted(notification);
}

NotificationCenter& notifications()
{
    static NotificationCenter center;
    return center;
}

} // namespace platform
