// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>
#include <QVariantMap>

/**
 * Whether this user is at the machine: the session is the active one, not locked, and the machine
 * is not about to sleep. logind reports this; without it, the session always counts as active. The
 * machine does not sleep before letSleep().
 */
class SeatSession final : public QObject {
    Q_OBJECT

public:
    /** @param bus where logind is: the system bus, or its replacement in a test */
    explicit SeatSession(QDBusConnection bus, QObject* parent = nullptr);

    /** Whether the tablet is this session's; not before logind has answered. */
    bool isOurs() const { return mIsKnown && mIsActive && !mIsLocked && !mIsAsleep; }

    /**
     * Reports that everything the tablet held down is released, so that the machine may sleep.
     * While the session is ours, this does nothing: more can be pressed.
     */
    void letSleep()
    {
        if (!isOurs()) {
            mSleepDelay = {};
        }
    }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    /** Takes the interface, what has changed, and what is no longer known. */
    void takeProperties(const QDBusMessage& signal);
    void prepareForSleep(bool isAboutToSleep);
    void ask();

private: // NOLINT(readability-redundant-access-specifiers): moc reads the one before
    void take(const QVariantMap& properties);
    /** Emits changed() if isOurs() has changed. */
    void announce(bool wasOurs);
    void delaySleep();

    QDBusConnection mBus;
    bool mIsKnown = false;
    bool mIsActive = true;
    bool mIsLocked = false;
    bool mIsAsleep = false;
    QDBusUnixFileDescriptor mSleepDelay; ///< while it is open, logind waits
    bool mIsWaking = false; ///< asleep until logind has told whether the screen is locked
};
