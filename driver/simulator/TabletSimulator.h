// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Driver.h"

#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

/** Product IDs and names. */
using ModelNames = QMap<ushort, QString>;

/**
 * Controls the simulated tablet over D-Bus, for people and tests. All public members are exported,
 * as org.quorvia.TabletSimulator1; a driver of real tablets exports only those that report
 * something, marked Q_SCRIPTABLE.
 */
class TabletSimulator final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quorvia.TabletSimulator1")

public:
    explicit TabletSimulator(Driver& driver);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): moc reads it
    /** The models that can be attached. */
    ModelNames Models() const;
    /** Attaches a model, replacing any other; an error for an unknown product ID. */
    void Attach(ushort productID) { answer(mDriver.attach(productID)); }
    void Detach() { mDriver.detach(); }
    /** Product ID of the attached tablet; 0 for none. */
    Q_SCRIPTABLE ushort Attached() const { return mDriver.attached(); }
    /** Makes the driver sleep for this time before it handles each event; 0 turns it off. */
    void Stall(uint milliseconds) { mDriver.stall(milliseconds); }
    /**
     * Touches a point, in tablet units, with the pen and lifts it; an error if no panel calibrates.
     */
    void Tap(ushort x, ushort y) { answer(mDriver.tap(x, y)); }
    /** Presses or releases a button of the tablet or of its pen. */
    void Press(ushort slot, bool down) { mDriver.press(slot, down); }
    /** Sets the reports per second of a tap, 1 to 1000. */
    void SetReportRate(uint perSecond) { answer(mDriver.setReportRate(perSecond)); }
    /** Number of pushes accepted so far. */
    Q_SCRIPTABLE uint Pushes() const { return mDriver.pushes(); }
    /** The bytes of the last push; empty before the first. */
    Q_SCRIPTABLE QByteArray LastRecord() const { return mDriver.lastRecord(); }
    /** The same record as values by entry: "dictionary/entry" and "Key/slot/entry". */
    Q_SCRIPTABLE QVariantMap LastRecordDecoded() const;

Q_SIGNALS:
    Q_SCRIPTABLE void AttachedChanged(ushort productID);
    /** A push was accepted; count is the number so far. */
    Q_SCRIPTABLE void Pushed(uint count);

private:
    /** Replies with the error, if there is one. */
    void answer(const platform::Result<>& result);

    Driver& mDriver;
};
