// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletObject.h"

#include "BusNames.h"
#include "Driver.h"
#include "QVDriverProtocol.h"

#include <QDBusMessage>
#include <QVariantMap>

#include <utility>

TabletObject::TabletObject(QDBusConnection bus, List list, User use, Noticer notices)
    : mBus(std::move(bus))
    , mList(std::move(list))
    , mUse(std::move(use))
    , mNotices(std::move(notices))
{
    QVRegisterTabletList();
    mBus.registerObject(QLatin1String(kQVTabletPath), this,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
            | QDBusConnection::ExportAllProperties);
}

void TabletObject::Use(const QString& id)
{
    if (const platform::Result<> used = mUse(id); !used) {
        say(used.error().text);
        sendErrorReply(QStringLiteral("org.quorvia.Tablet.Error.Failed"), used.error().text);
    }
}

void TabletObject::show(const TabletFacts& facts)
{
    const TabletFacts old = std::exchange(mFacts, facts);
    QVariantMap changed;
    const auto note = [&](const char* property, const auto& was, const auto& is) {
        if (was != is) {
            changed.insert(QLatin1String(property), QVariant::fromValue(is));
        }
    };
    note("Name", old.name, facts.name);
    note("VendorID", old.vendorID, facts.vendorID);
    note("ProductID", old.productID, facts.productID);
    note("State", old.state, facts.state);
    note("Problem", old.problem, facts.problem);
    if (changed.isEmpty()) {
        return;
    }
    QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(kQVTabletPath),
        platform::kBusProperties, QStringLiteral("PropertiesChanged"));
    signal << QLatin1String(kQVTabletInterface) << changed << QStringList();
    mBus.send(signal);
}
