// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"
#include "Usb.h"

#include <QLatin1String>

#include <cstdint>
#include <memory>
#include <optional>

/**
 * @file
 * Pushes the record to the driver; sets the tablet's report mode over USB.
 */

/** Posted after each push, successful or not: the record has been edited, or loaded again. */
inline constexpr QLatin1String kRecordPushedNotification("kRecordPushedNotification");

/**
 * Pushes the settings to the driver, so that a change takes effect at once. Never waits for the
 * driver.
 *
 * Writes two lines to standard error: the four bytes at offsets 318 to 321 of the record, and the
 * result.
 *
 * @param record a complete record: kQVRecordSize bytes, whatever the length. If it is null, nothing
 *     is sent, and the first line shows four zeros
 * @param length bytes to push, normally kQVRecordSize. If it is negative or larger, nothing is sent
 * @return whether the event was created and queued; not whether the driver has accepted it
 */
bool ConnectToDriver(const void* record, std::int32_t length);

/** Calls ConnectToDriver() with the complete record. */
bool PushQVTabletInfo();

/** PushQVTabletInfo() for callers that want to know whether the driver has accepted the record. */
platform::Result<> QVPushAndWait();

// The tablet itself, over USB -----------------------------------------------------------------

/** The report mode's flag: fast is 1, normal is 0. */
inline constexpr std::uint8_t kQVReportFast = 1;
inline constexpr std::uint8_t kQVReportNormal = 0;

/**
 * Sets the tablet's report mode over USB: a Set_Report of feature report 4 (HID 1.11, section
 * 7.2.2). Blocks for up to four seconds if another program holds the tablet. The result of the
 * request is ignored: the panel works with or without it.
 *
 * @param flag kQVReportFast or kQVReportNormal
 * @return false if the bus could not be searched
 */
bool controlUSBDev(std::uint8_t flag, std::uint16_t productID);

/**
 * The outcome of a request; with several devices, each value is from the last one that got so far.
 */
struct ReportModeOutcome {
    bool isSearched = false; ///< the bus could be searched
    bool isFound = false; ///< the tablet is on it
    std::optional<int> configurations; ///< of the tablet
    std::optional<platform::IOReturn> opened;
    std::optional<platform::IOReturn> requested;
};

/** Sets the attached tablet's report mode to the record's report speed, with controlUSBDev(). */
void QVSendReportSpeed();

/** Like controlUSBDev(), but returns the outcome of the request. */
ReportModeOutcome requestReportMode(std::uint8_t flag, std::uint16_t productID);

/**
 * Sends the request to the first device that can be opened. If all are held by other programs,
 * tries four times in all, with a second after each.
 *
 * @return 0 if a device was opened and sent the request, -1 if there was none, or none could be
 *     opened. Also 0, with nothing sent, if the first device returns no interface
 * @param outcome takes how far it came, if not null
 */
std::int32_t iterateDevices(
    platform::UsbIterator& devices, std::uint8_t flag, ReportModeOutcome* outcome = nullptr);

/** Returns a device to be opened; null, with a diagnostic, if the service is not a device. */
std::unique_ptr<platform::UsbDeviceInterface> getUSBDevice(const platform::UsbService& service);

/**
 * Opens a device that has exactly one configuration.
 *
 * @return its bConfigurationValue; -2 if another program holds it, -1 for any other reason
 */
std::int32_t openUSBDevice(
    platform::UsbDeviceInterface& device, ReportModeOutcome* outcome = nullptr);

// A variant of the request through one of the device's interfaces.

/**
 * Sets the configuration and tries the device's interfaces. @return the result of
 * iterateinterfaces(), or an error
 */
std::int32_t useUSBDevice(platform::UsbDeviceInterface& device, std::uint8_t configuration);

/**
 * Opens and closes the first interface, only once per process. @return -1 if there is none, or
 * opening it returns a positive number; otherwise 0, even for a negative error
 */
std::int32_t iterateinterfaces(platform::UsbIterator& interfaces);

/**
 * Returns an interface to be opened; null, with a diagnostic, if the service is not an interface.
 */
std::unique_ptr<platform::UsbInterfaceInterface> getUSBInterfaceInterface(
    std::unique_ptr<platform::UsbService> service);

/** @return -1 if opening returns a positive number, otherwise 0 */
std::int32_t openUSBInterface(platform::UsbInterfaceInterface& interface);

/** Whether this is the first interface found in this process. */
bool isThisTheInterfaceYoureLookingFor();
