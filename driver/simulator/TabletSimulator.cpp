// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletSimulator.h"

#include "QVConfigEntry.h"
#include "QVDriverProtocol.h"
#include "QVEntryText.h"
#include "QVTabletModels.h"

#include <QDBusMetaType>

TabletSimulator::TabletSimulator(Driver& driver)
    : mDriver(driver)
{
    qRegisterMetaType<ModelNames>("ModelNames"); // Qt 5 knows a method's types by name only
    qDBusRegisterMetaType<ModelNames>();
    connect(&driver, &Driver::attachedChanged, this, &TabletSimulator::AttachedChanged);
    connect(&driver, &Driver::pushed, this, &TabletSimulator::Pushed);
}

ModelNames TabletSimulator::Models() const
{
    ModelNames models;
    for (const QVTabletModel& model : kQVTabletModels) {
        models.insert(model.productID, QString::fromUtf8(model.name));
    }
    return models;
}

void TabletSimulator::answer(const platform::Result<>& result)
{
    if (!result) {
        const QString& text = result.error().text;
        say(text);
        sendErrorReply(QStringLiteral("org.quorvia.TabletSimulator.Error.Failed"), text);
    }
}

QVariantMap TabletSimulator::LastRecordDecoded() const
{
    QVariantMap entries;
    if (const auto record = QVRecordIn(mDriver.lastRecord())) {
        for (const QVEntry& entry : kQVEntries) {
            entries.insert(QString::fromStdString(QVEntryPath(entry)),
                entry.type == QVFieldType::String
                    ? QVariant(entryValue(*record, entry))
                    : QVariant(static_cast<qlonglong>(QVFieldNumber(entry, *record))));
        }
    }
    return entries;
}
