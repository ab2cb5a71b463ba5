// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "DriverState.h"
#include "PenReports.h"
#include "QVTabletModels.h"
#include "Result.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <cstdint>
#include <optional>
#include <vector>

/**
 * The driver: answers the panel's query, receives its pushes, and has at most one tablet attached,
 * a real or a simulated one. Prints a line for each event.
 */
class Driver final : public QObject {
    Q_OBJECT

public:
    /**
     * Installs the handlers of the panel's events.
     *
     * @param bus carries the events, and reports when panels leave it
     */
    Driver(platform::AppleEvents& events, QDBusConnection bus);

    /** Restores the state of the last run, for real tablets: none is attached yet. */
    void start();

    /**
     * Restores the state of the last run, for simulated tablets.
     *
     * @param productID the model to attach, 0 for none; by default the last one attached, or the
     *     first of the table on the first run
     * @return whether the given model could be attached
     */
    platform::Result<> startSimulation(std::optional<std::uint16_t> productID);

    /** Number of the attached tablet's file, its product ID if it is one of our own; 0 for none. */
    std::uint16_t attached() const { return mAttached; }

    /** Bytes of the last push; empty before the first. */
    QByteArray lastRecord() const { return mState.record; }

    /** Number of pushes so far. */
    std::uint32_t pushes() const { return mState.pushes; }

    /** Attaches a simulated model in place of any other, and remembers it. */
    platform::Result<> attach(std::uint16_t productID);

    /** Detaches the tablet, if any. */
    void detach();

    /**
     * Attaches a real tablet in place of any other. Creates its configuration file if it has none.
     *
     * @param model made of what the kernel says; its productID is the number of the file
     */
    platform::Result<> attachTablet(const QVTabletModel& model, std::uint16_t vendorID);

    /**
     * The number of a tablet's configuration file: the product ID of one of our own, else a number
     * from 0x8000 on that it keeps.
     *
     * @param name of the tablet, as in its file
     */
    platform::Result<std::uint16_t> configNumber(
        std::uint16_t vendorID, std::uint16_t productID, const QString& name);

    /** The tablet that the user chose, as Tablet::id(); empty for the first one. */
    const QString& chosenTablet() const { return mState.chosen; }
    /** Remembers the choice. */
    void setChosenTablet(const QString& id);

    /**
     * Whether the user wants a short notice on the screen when a key pauses the pen or moves it to
     * another display.
     */
    bool showsNotices() const { return mState.showsNotices; }
    /** Remembers whether they are shown. */
    void setShowsNotices(bool areShown);

    /** The settings of the attached tablet: those of the last push, or else those of its file. */
    const tagQVTabletInfo& settings() const { return mSettings; }

    /** Passes a report to the panel that calibrates, if any. */
    void report(const QVPenReport& report);

    /** From now on, the driver sleeps for this time before it handles an event. */
    void stall(std::uint32_t milliseconds);

    /** Whether a panel is calibrating. */
    bool isCalibrating() const { return !mCalibrating.empty(); }

    /**
     * Touches a point of the tablet with the pen and lifts it. The reports go to the calibrating
     * panel, at the report rate; without one, nothing happens.
     *
     * @param x in tablet units
     */
    platform::Result<> tap(std::uint16_t x, std::uint16_t y);

    /**
     * Presses the tip of the pen down until penUp(). Meanwhile, a calibrating panel gets the pen's
     * position at the report rate, queued after the reports of taps, even if it begins to calibrate
     * later. Without a tablet, nothing happens.
     */
    void penDown(std::uint16_t x, std::uint16_t y);
    /** Drags the pen; does nothing while the tip is up. */
    void penMove(std::uint16_t x, std::uint16_t y);
    /** Lifts the tip; does nothing while it is up. */
    void penUp();

    /** Sets the reports per second, 1 to 1000. */
    platform::Result<> setReportRate(std::uint32_t perSecond);

    /** Tells that a button of the simulated tablet or of its pen is down or up. */
    void press(std::uint16_t slot, bool isDown) { Q_EMIT buttonChanged(slot, isDown); }

    /** Writes the state to disk now. */
    void saveState();

Q_SIGNALS:
    /** attached() has changed. */
    void attachedChanged(ushort productID);
    /** A push was accepted; count is the number so far. */
    void pushed(uint count);
    /** A panel has begun to calibrate, or none does any longer. */
    void calibratingChanged(bool isCalibrating);
    /** settings() have changed. */
    void settingsChanged();
    /** press() was called. */
    void buttonChanged(ushort slot, bool isDown);
    /** tap() has touched a point. */
    void tapped(ushort x, ushort y);

private:
    platform::OSErr answerQuery(const platform::AppleEvent& event, platform::AppleEvent& reply);
    platform::OSErr takeSettings(const platform::AppleEvent& event, platform::AppleEvent& reply);
    platform::OSErr refuse(const platform::AppleEvent& event, const platform::Error& error,
        platform::AppleEvent& reply);
    void setAttached(std::uint16_t productID, const QString& name);
    /** A panel calibrates; it becomes the newest, even if it was in the list already. */
    void beginCalibration(const QByteArray& panel);
    /** A panel no longer calibrates. @return whether it did */
    bool endCalibration(const QByteArray& panel);
    void setCalibrating(std::vector<QByteArray> panels);
    void panelHasGone(const QString& panel);
    void wakeReports();
    void sendDueReports();
    void send(const QVPenReport& report);
    ReportClock::Time now() const { return ReportClock::Time(mSinceStart.nsecsElapsed()); }

    platform::AppleEvents& mEvents;
    QDBusConnection mBus;
    DriverState mState;
    bool mIsSimulation = false;
    std::uint16_t mAttached = 0;
    tagQVTabletInfo mSettings{}; ///< of a real tablet
    QTimer mSaveSoon;
    std::uint32_t mStall = 0;
    /**
     * Bus names of the panels whose last push had disableFlag 1. The last one is the newest, and
     * gets the reports.
     */
    std::vector<QByteArray> mCalibrating;
    QDBusServiceWatcher mPanels; ///< reports when one of these panels leaves the bus
    PenReports mReports;
    ReportClock mClock;
    QElapsedTimer mSinceStart;
    QTimer mSendReports; ///< runs while there is something to report
};

/** Writes a line to standard output, without buffering. */
void say(const QString& line);
