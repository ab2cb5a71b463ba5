// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "DriverState.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <optional>

/** One report of the pen, as the panel takes it. */
struct PenReport {
    std::uint32_t key; ///< 1 while the tip is down, 0 when it is up
    std::uint16_t x; ///< in tablet units
    std::uint16_t y;
    std::uint32_t pressure; ///< which the panel does not read
};
static_assert(sizeof(PenReport) == 12);

/**
 * The driver: answers the panel's query, takes its pushes, and has at most one simulated tablet
 * attached. Says on standard output, one line each, what arrived and what it did.
 */
class Driver final : public QObject {
    Q_OBJECT

public:
    /** Installs the handlers of the panel's events. */
    explicit Driver(platform::AppleEvents& events);

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

    /**
     * The pen touches a point of the tablet, moves a little and is lifted. Its reports go to the
     * panel that calibrates, one after the other at the report rate; without one, nothing happens.
     *
     * @param x in tablet units
     * @return why it is not reported; empty when it is
     */
    QString tap(std::uint16_t x, std::uint16_t y);

    /** Sets how many reports are sent in a second: 1 to 1000. @return whether it is such a number
     */
    bool setReportRate(std::uint32_t perSecond);

    /** Writes what is known to disk now. */
    void saveState();

Q_SIGNALS:
    void attachedChanged(ushort productID);
    void pushed(uint count);

private:
    platform::OSErr answerQuery(const platform::AppleEvent& event, platform::AppleEvent& reply);
    platform::OSErr takeSettings(const platform::AppleEvent& event, platform::AppleEvent& reply);
    platform::OSErr refuse(
        const platform::AppleEvent& event, const QString& why, platform::AppleEvent& reply);
    void setAttached(std::uint16_t productID);
    void sendReport();

    platform::AppleEvents& mEvents;
    DriverState mState;
    QTimer mSaveSoon;
    std::uint32_t mStall = 0;
    QByteArray mCalibrating; ///< bus name of the panel whose last push said that it calibrates
    std::deque<PenReport> mReports; ///< not sent yet
    QTimer mSendReport;
};

/** Writes a line to standard output at once. */
void say(const QString& line);
