// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "DriverState.h"
#include "PenReports.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <cstdint>
#include <optional>
#include <vector>

/**
 * The driver: answers the panel's query, takes its pushes, and has at most one simulated tablet
 * attached. Says on standard output, one line each, what arrived and what it did.
 */
class Driver final : public QObject {
    Q_OBJECT

public:
    /**
     * Installs the handlers of the panel's events.
     *
     * @param bus on which the events come, and on which panels come and go
     */
    Driver(platform::AppleEvents& events, QDBusConnection bus);

    /**
     * Takes up what was known when the driver last ended.
     *
     * @param productID the model to attach, 0 for none; by default the one that was attached, and
     *     the first of the table when there never was any
     * @return why the model of the parameter could not be attached; empty on success
     */
    QString start(std::optional<std::uint16_t> productID);

    /** Product ID of the attached tablet; 0 for none. */
    std::uint16_t attached() const { return mState.attached; }

    /** Bytes of the last push; empty before the first. */
    QByteArray lastRecord() const { return mState.record; }

    /** How many pushes there were. */
    std::uint32_t pushes() const { return mState.pushes; }

    /** Attaches a model in place of any other. @return why it failed; empty on success */
    QString attach(std::uint16_t productID);

    /** Detaches the tablet; without one, nothing happens. */
    void detach();

    /** From now on the driver does nothing at all for so long before it handles an event. */
    void stall(std::uint32_t milliseconds);

    /** Whether a panel asks for the pen. */
    bool isCalibrating() const { return !mCalibrating.empty(); }

    /**
     * The pen touches a point of the tablet and is lifted. Its reports go to the panel that
     * calibrates, one after the other at the report rate; without one, nothing happens.
     *
     * @param x in tablet units
     * @return why it is not reported; empty when it is
     */
    QString tap(std::uint16_t x, std::uint16_t y);

    /**
     * The tip of the pen goes down and stays down until penUp(). As long as a panel calibrates, it
     * is told at the report rate where the pen is, in the same row of reports as a tap's; also one
     * that begins to calibrate meanwhile. Without a tablet, nothing happens.
     */
    void penDown(std::uint16_t x, std::uint16_t y);
    /** The pen is dragged; nothing while its tip is up. */
    void penMove(std::uint16_t x, std::uint16_t y);
    /** The tip is lifted; nothing while it is up. */
    void penUp();

    /** Sets how many reports are sent in a second: 1 to 1000. @return whether it is such a number
     */
    bool setReportRate(std::uint32_t perSecond);

    /** Writes what is known to disk now. */
    void saveState();

Q_SIGNALS:
    void attachedChanged(ushort productID);
    void pushed(uint count);
    /** A panel begins to ask for the pen, or none does any more. */
    void calibratingChanged(bool isCalibrating);
    /** The pen touches a point and is lifted, as it was told to by tap(). */
    void tapped(ushort x, ushort y);

private:
    platform::OSErr answerQuery(const platform::AppleEvent& event, platform::AppleEvent& reply);
    platform::OSErr takeSettings(const platform::AppleEvent& event, platform::AppleEvent& reply);
    platform::OSErr refuse(
        const platform::AppleEvent& event, const QString& why, platform::AppleEvent& reply);
    void setAttached(std::uint16_t productID);
    /** A panel asks for the pen; from now on it is the newest, also when it has asked before. */
    void beginCalibration(const QByteArray& panel);
    /** A panel no longer asks for the pen. @return whether it did */
    bool endCalibration(const QByteArray& panel);
    void setCalibrating(std::vector<QByteArray> panels);
    void watch(const QString& panel);
    void panelHasGone(const QString& panel);
    void wakeReports();
    void sendDueReports();
    void send(const PenReport& report);
    ReportClock::Time now() const { return ReportClock::Time(mSinceStart.nsecsElapsed()); }

    platform::AppleEvents& mEvents;
    QDBusConnection mBus;
    DriverState mState;
    QTimer mSaveSoon;
    std::uint32_t mStall = 0;
    /**
     * Bus names of the panels whose last push said that they calibrate. The newest, which gets the
     * reports, is the last.
     */
    std::vector<QByteArray> mCalibrating;
    QDBusServiceWatcher mPanels; ///< tells when one of these panels has gone
    PenReports mReports;
    ReportClock mClock;
    QElapsedTimer mSinceStart;
    QTimer mSendReports; ///< runs while there is something to report
};

/** Writes a line to standard output at once. */
void say(const QString& line);
