// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Usb.h"

#include <QLatin1String>

#include <cstdint>
#include <memory>
#include <optional>

/** Posted after each push, whatever became of it: the record has been edited, or loaded again. */
inline constexpr QLatin1String kRecordPushedNotification("kRecordPushedNotification");

/**
 * Pushes the settings to the driver, so that a change works at once. Never waits for the driver.
 *
 * Writes two lines to standard error: the four bytes at offsets 318 to 321 of the record, and how
 * far it came.
 *
 * @param record a whole record: kQVRecordSize bytes, whatever the length. Without one, nothing is
 *     sent, and the first line shows four zeros
 * @param length bytes to push, normally kQVRecordSize. With one below 0 or above that, nothing is
 *     sent
 * @return whether the event was made and handed over; not whether the driver took it
 */
bool ConnectToDriver(const void* record, std::int32_t length);

/** ConnectToDriver() with the whole record. */
bool PushQVTabletInfo();

// The tablet itself, over USB -----------------------------------------------------------------

/** The report mode's flag: fast is 1, normal is 0. */
inline constexpr std::uint8_t kQVReportFast = 1;
inline constexpr std::uint8_t kQVReportNormal = 0;

/**
 * Tells the tablet on the USB bus its report mode: a Set_Report of feature report 4 (HID 1.11,
 * section 7.2.2). Blocks for up to four seconds while another program holds the tablet. What
 * becomes of the request is nobody's concern: the panel goes on with or without it.
 *
 * @param flag kQVReportFast or kQVReportNormal
 * @return false when the bus could not be searched, else true
 */
bool controlUSBDev(std::uint8_t flag, std::uint16_t productID);

/** What became of a request; of several devices, each value is that of the last to come so far. */
struct ReportModeOutcome {
    bool isSearched = false; ///< the bus could be searched
    bool isFound = false; ///< the tablet is on it
    std::optional<int> configurations; ///< of the tablet
    std::optional<platform::IOReturn> opened;
    std::optional<platform::IOReturn> requested;
};

/** controlUSBDev() for callers who want to know what became of the request. */
ReportModeOutcome requestReportMode(std::uint8_t flag, std::uint16_t productID);

/**
 * Sends the request to the first of the devices that can be opened. Where all are held by others,
 * tries again, four times in all, with a second after each.
 *
 * @return 0 when a device was opened and asked, -1 when there was none, or none to be opened. Also
 *     0, with nothing sent, when the first device gives no interface
 */
std::int32_t iterateDevices(platform::UsbIterator& devices, std::uint8_t flag);

/** A device of the bus as something to be opened; null, with a diagnostic, when it is none. */
std::unique_ptr<platform::UsbDeviceInterface> getUSBDevice(const platform::UsbService& service);

/**
 * Opens a device of exactly one configuration.
 *
 * @return its bConfigurationValue; -2 when another program holds it, -1 for every other reason
 */
std::int32_t openUSBDevice(platform::UsbDeviceInterface& device);

// A variant of the request that would go through one of the device's interfaces.

/** Sets the configuration and tries the device's interfaces. @return iterateinterfaces()'s, or an
 * error */
std::int32_t useUSBDevice(platform::UsbDeviceInterface& device, std::uint8_t configuration);

/**
 * Opens and closes the first interface that is got, the first in the process's life. @return -1
 * when there is none, or when opening it gives a positive number; else 0, also for a usual,
 * negative error
 */
std::int32_t iterateinterfaces(platform::UsbIterator& interfaces);

/** An interface of a device as something to be opened; null, with a diagnostic, when it is none. */
std::unique_ptr<platform::UsbInterfaceInterface> getUSBInterfaceInterface(
    std::unique_ptr<platform::UsbService> service);

/** @return -1 when opening gives a positive number, else 0 */
std::int32_t openUSBInterface(platform::UsbInterfaceInterface& interface);

/** Whether no interface was found before, in the whole life of the process. */
bool isThisTheInterfaceYoureLookingFor();
