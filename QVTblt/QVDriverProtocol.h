// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "tagQVTabletInfo.h"

#include <QByteArray>

#include <cstdint>
#include <cstring>
#include <optional>

/**
 * @file
 * The wire between panel and driver: names, codes and the pen report. docs/driver-protocol.md
 * describes the events; tagQVTabletInfo.h has the record that a push carries, AppleEventWire.h how
 * events travel on the bus.
 */

/** The driver's signature, from which its bus name is made, and the class of the settings event. */
inline constexpr platform::FourCharCode kQVDriverSignature = platform::fourCharCode("TdSg");

/** The time-out of requests to the driver, in ticks: a quarter of a second. */
inline constexpr std::int32_t kQVDriverTimeOut = 15;

/** The driver's property with the number of the tablet's configuration file. */
inline constexpr platform::FourCharCode kQVConfigProperty = platform::fourCharCode("QCFG");

/** The settings event, and its parameter: the record's bytes, labelled as text. */
inline constexpr platform::AEEventID kQVSettingsEvent = platform::fourCharCode("WSnd");
inline constexpr platform::AEKeyword kQVSettingsData = platform::fourCharCode("data");

/** The bytes of a record. */
[[nodiscard]] inline QByteArray QVBytesOf(const tagQVTabletInfo& record)
{
    return {reinterpret_cast<const char*>(&record), kQVRecordSize};
}

/** The record in these bytes; nothing if they are not kQVRecordSize. */
[[nodiscard]] inline std::optional<tagQVTabletInfo> QVRecordIn(const QByteArray& bytes)
{
    if (bytes.size() != kQVRecordSize) {
        return std::nullopt;
    }
    tagQVTabletInfo record{};
    std::memcpy(&record, bytes.constData(), sizeof record);
    return record;
}

/** The type of a pen report. */
inline constexpr platform::DescType kQVPenReportType = platform::fourCharCode("rprt");

/** One pen report, as sent to a calibrating panel. */
struct QVPenReport {
    std::uint32_t key; ///< 1 while the tip is down, 0 while it is up
    std::uint16_t x; ///< in tablet units
    std::uint16_t y;
    std::uint32_t pressure; ///< not read by the panel

    bool operator==(const QVPenReport&) const = default;
};
static_assert(sizeof(QVPenReport) == 12);

/** The simulated tablet, an object on the driver's connection. */
inline constexpr auto kQVSimulatorPath = "/org/quorvia/TabletSimulator";
inline constexpr auto kQVSimulatorInterface = "org.quorvia.TabletSimulator1";

/** The tablet that the driver uses, another object there. */
inline constexpr auto kQVTabletPath = "/org/quorvia/Tablet";
inline constexpr auto kQVTabletInterface = "org.quorvia.Tablet1";

/** Its signal when a button is down or up, with the slot (q) and whether it is down (b). */
inline constexpr auto kQVButtonSignal = "ButtonChanged";
