// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Notifications.h"

#include <gtest/gtest.h>

#include <vector>

using platform::Notification;

namespace {

const QString kName = QStringLiteral("name");

} // namespace

TEST(Notifications, tellAllObserversOfTheNameBeforePostReturns)
{
    platform::NotificationCenter center;
    QObject owner;
    const QObject sender;
    std::vector<int> told;
    center.addObserver(owner, kName, [&](const Notification& notification) {
        EXPECT_EQ(notification.object, &sender);
        told.push_back(1);
    });
    center.addObserver(owner, kName, [&](const Notification&) { told.push_back(2); });
    center.addObserver(
        owner, QStringLiteral("another"), [&](const Notification&) { told.push_back(3); });
    center.post({kName, &sender, {}});
    EXPECT_EQ(told, (std::vector{1, 2}));
}

TEST(Notifications, carryTheSameEventToAll)
{
    platform::NotificationCenter center;
    QObject owner;
    std::vector<const platform::Event*> seen;
    const auto observe = [&](const Notification& notification) {
        seen.push_back(notification.userInfo.value(QStringLiteral("key")).get());
    };
    center.addObserver(owner, kName, observe);
    center.addObserver(owner, kName, observe);
    const auto event = std::make_shared<const platform::Event>();
    center.post({kName, &owner, {{QStringLiteral("key"), event}}});
    EXPECT_EQ(seen, (std::vector{event.get(), event.get()}));
}

TEST(Notifications, areNotToldToObserversWhoseOwnerHasGone)
{
    platform::NotificationCenter center;
    int told = 0;
    auto owner = std::make_unique<QObject>();
    center.addObserver(*owner, kName, [&](const Notification&) { ++told; });
    owner.reset();
    center.post({kName, nullptr, {}});
    EXPECT_EQ(told, 0);
}

TEST(Notifications, survivesAnObserverThatEndsItself)
{
    platform::NotificationCenter center;
    auto owner = std::make_unique<QObject>();
    int told = 0;
    center.addObserver(*owner, kName, [&](const Notification&) {
        ++told;
        owner.reset();
    });
    center.post({kName, nullptr, {}});
    center.post({kName, nullptr, {}});
    EXPECT_EQ(told, 1);
}
