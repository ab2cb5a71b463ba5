// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

class Driver;

/** Product IDs and names. */
using ModelNames = QMap<ushort, QString>;

/**
 * What people and tests do with the simulated tablet, on the driver's own connection; every public
 * member is on the bus, under org.quorvia.TabletSimulator1.
 */
class TabletSimulator final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quorvia.TabletSimulator1")

public:
    static constexpr auto kObjectPath = "/org/quorvia/TabletSimulator";

    explicit TabletSimulator(Driver& driver);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): moc reads it
    /** The models that can be attached. */
    ModelNames Models() const;
    /** Attaches a model in place of any other; an error for an unknown product ID. */
    void Attach(ushort productID);
    void Detach();
    /** Product ID of the attached tablet; 0 for none. */
    ushort Attached() const;
    /** The driver sleeps for so long before it handles each event; 0 ends it. */
    void Stall(uint milliseconds);
    /**
     * The pen touches a point, in tablet units, and is lifted; an error while no panel calibrates.
     */
    void Tap(ushort x, ushort y);
    /** Sets how many reports a tap makes in a second: 1 to 1000. */
    void SetReportRate(uint perSecond);
    /** How many pushes the driver has taken. */
    uint Pushes() const;
    /** The bytes of the last push; none before the first. */
    QByteArray LastRecord() const;
    /** The same as "dictionary/entry" and "Key/slot/entry" with their values. */
    QVariantMap LastRecordDecoded() const;

Q_SIGNALS:
    void AttachedChanged(ushort productID);
    /** A push was taken: the count so far. */
    void Pushed(uint count);

private:
    /** Answers the call with an error, unless it is empty. */
    void answer(const QString& error);

    Driver& mDriver;
};
