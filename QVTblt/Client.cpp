// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Client.h"

#include "Notifications.h"
#include "QVDriverProtocol.h"
#include "QVTabletModels.h"
#include "Sleep.h"
#include "rzkApplication.h"

#include <QLoggingCategory>
#include <QScopeGuard>

#include <array>
#include <cstdio>
#include <span>

namespace {

Q_LOGGING_CATEGORY(lcClient, "org.quorvia.tablet.client", QtInfoMsg)

/** Number of tries while other programs hold the devices. */
constexpr int kPasses = 4;

/** The tablet's feature report for its report mode. */
constexpr std::uint8_t kReportMode = 4;

/** Results of openUSBDevice() if the device is not open. */
constexpr std::int32_t kNotOpened = -1;
constexpr std::int32_t kHeldByAnother = -2;

/** Whether iterateinterfaces() has opened its interface. */
bool foundOnce = false;

/** Sends HID's Set_Report to the first interface (HID 1.11, section 7.2.2). */
platform::IOReturn setReportMode(platform::UsbDeviceInterface& device, std::uint8_t flag)
{
    std::array<std::uint8_t, 2> report{kReportMode, flag};
    platform::UsbDeviceRequest request{
        .bmRequestType = 0x21, // host to device, class, interface
        .bRequest = 9, // Set_Report
        .wValue = 0x0300 | kReportMode, // a feature report
        .wIndex = 0,
        .wLength = report.size(),
        .data = report.data(),
        .wLenDone = report.size(),
    };
    return device.deviceRequest(request);
}

} // namespace

bool ConnectToDriver(const void* record, std::int32_t length)
{
    using namespace platform;
    const auto told = qScopeGuard([] {
        notifications().post({kRecordPushedNotification, nullptr, {}});
    });
    AppleEvents& service = events();
    static constexpr std::array<unsigned char, kQVRecordSize> kNone{};
    const auto* const bytes =
        record == nullptr ? kNone.data() : static_cast<const unsigned char*>(record);
    std::fprintf(
        stderr, "ConnectToDriver %x %d %d %d\n", bytes[318], bytes[319], bytes[320], bytes[321]);
    if (record == nullptr || length < 0 || length > kQVRecordSize) {
        std::fputs("ConnectToDriver fail...\n", stderr); // does not fit the event
        return false;
    }

    AEDesc driver;
    if (service.createDesc(typeApplSignature, bytesOf(kQVDriverSignature), driver) != noErr) {
        std::fputs("ConnectToDriver fail\n", stderr);
        return false;
    }
    AppleEvent settings;
    if (service.createAppleEvent(kQVDriverSignature, kQVSettingsEvent, driver, settings) != noErr) {
        std::fputs("ConnectToDriver fail..\n", stderr);
        return false;
    }
    // The record is binary, but the driver expects it with the type of a text.
    const auto data = std::as_bytes(std::span(bytes, static_cast<std::size_t>(length)));
    if (service.putParamPtr(settings, kQVSettingsData, typeUTF8Text, data) != noErr) {
        std::fputs("ConnectToDriver fail...\n", stderr);
        return false;
    }
    // The push reads no answer: a missing driver is noticed at the next query.
    service.send(settings, nullptr, kAEWaitReply, kAEHighPriority, kQVDriverTimeOut);
    std::fputs("ConnectToDriver ok\n", stderr);
    return true;
}

bool PushQVTabletInfo()
{
    return ConnectToDriver(GetqvTabletInfo(), kQVRecordSize);
}

platform::Result<> QVPushAndWait()
{
    if (!PushQVTabletInfo()) {
        return platform::Error{QStringLiteral("the record could not be sent")};
    }
    const platform::OSErr error = platform::events().finishSends();
    if (error != platform::noErr) {
        return platform::Error{
            QStringLiteral("the driver did not accept the record (error %1)").arg(error)};
    }
    return {};
}

void QVSendReportSpeed()
{
    const std::int16_t speed = GetqvTabletInfo()->Monitor.Speed;
    if (speed == kQVSpeedFast || speed == kQVSpeedNormal) {
        controlUSBDev(speed == kQVSpeedFast ? kQVReportFast : kQVReportNormal,
            QVProductID(*GetqvTabletInfo()));
    }
}

bool controlUSBDev(std::uint8_t flag, std::uint16_t productID)
{
    return requestReportMode(flag, productID).isSearched;
}

ReportModeOutcome requestReportMode(std::uint8_t flag, std::uint16_t productID)
{
    ReportModeOutcome outcome;
    platform::Usb& service = platform::usb();
    if (service.mainPort() != platform::kIOReturnSuccess) {
        return outcome;
    }
    std::optional<platform::UsbMatching> matching =
        service.serviceMatching(platform::kIOUSBDeviceClassName);
    if (!matching) {
        return outcome;
    }
    matching->properties["idVendor"] = kQVVendorID;
    matching->properties["idProduct"] = productID;
    std::unique_ptr<platform::UsbIterator> devices;
    outcome.isSearched =
        service.getMatchingServices(std::move(*matching), devices) == platform::kIOReturnSuccess;
    if (outcome.isSearched) {
        iterateDevices(*devices, flag, &outcome);
    }
    return outcome;
}

std::int32_t iterateDevices(
    platform::UsbIterator& devices, std::uint8_t flag, ReportModeOutcome* outcome)
{
    ReportModeOutcome unused;
    ReportModeOutcome& noted = outcome == nullptr ? unused : *outcome;
    std::int32_t result = -1;
    // Of all tries together: without a result from any device, it counts as open.
    std::int32_t opened = 0;
    for (int pass = 1;;) {
        std::unique_ptr<platform::UsbService> service = devices.next();
        if (service == nullptr) {
            std::fputs("Unable to find first matching USB device\n", stderr);
            return -1;
        }
        noted.isFound = true;
        int busy = 0;
        for (; service != nullptr; service = devices.next()) {
            if (const auto device = getUSBDevice(*service)) {
                opened = openUSBDevice(*device, &noted);
                if (opened == kHeldByAnother) {
                    ++busy;
                } else if (opened >= 0) {
                    result = setReportMode(*device, flag);
                    noted.requested = result;
                }
            }
            if (opened >= 0) {
                return 0;
            }
        }
        if (busy == 0) {
            return result;
        }
        platform::sleeper().sleepFor(std::chrono::seconds(1));
        devices.reset();
        if (++pass > kPasses) {
            return result;
        }
    }
}

std::unique_ptr<platform::UsbDeviceInterface> getUSBDevice(const platform::UsbService& service)
{
    auto device = platform::usb().createDeviceInterface(service);
    if (device == nullptr) {
        std::fputs("Unable to create USB device with QueryInterface\n", stderr);
    }
    return device;
}

std::int32_t openUSBDevice(platform::UsbDeviceInterface& device, ReportModeOutcome* outcome)
{
    ReportModeOutcome unused;
    ReportModeOutcome& noted = outcome == nullptr ? unused : *outcome;
    std::uint8_t configurations = 0;
    platform::UsbConfigurationDescriptor configuration{};
    const platform::IOReturn counted = device.getNumberOfConfigurations(configurations);
    noted.configurations = configurations;
    if (counted != platform::kIOReturnSuccess || configurations != 1
        || device.getConfigurationDescriptor(0, configuration) != platform::kIOReturnSuccess) {
        return kNotOpened;
    }
    const platform::IOReturn error = device.open();
    noted.opened = error;
    if (error == platform::kIOReturnExclusiveAccess) {
        return kHeldByAnother;
    }
    if (error == platform::kIOReturnNotPermitted) {
        qCWarning(lcClient,
            "no permission to open the tablet; the udev rule 60-quorvia-tablet.rules grants it");
    }
    return error == platform::kIOReturnSuccess ? configuration.bConfigurationValue : kNotOpened;
}

std::int32_t useUSBDevice(platform::UsbDeviceInterface& device, std::uint8_t configuration)
{
    platform::IOReturn error = device.setConfiguration(configuration);
    std::unique_ptr<platform::UsbIterator> interfaces;
    if (error == platform::kIOReturnSuccess) {
        error = device.createInterfaceIterator(interfaces);
    }
    return error == platform::kIOReturnSuccess ? iterateinterfaces(*interfaces) : error;
}

std::int32_t iterateinterfaces(platform::UsbIterator& interfaces)
{
    std::unique_ptr<platform::UsbService> service = interfaces.next();
    if (service == nullptr) {
        std::fputs("Unable to find an Interface\n", stderr);
        return -1;
    }
    std::unique_ptr<platform::UsbInterfaceInterface> winner;
    for (; service != nullptr; service = interfaces.next()) {
        auto interface = getUSBInterfaceInterface(std::move(service));
        if (interface != nullptr && isThisTheInterfaceYoureLookingFor()) {
            winner = std::move(interface);
        }
    }
    if (winner == nullptr) {
        std::fputs("No interesting interfaces found\n", stderr);
        return -1;
    }
    const platform::IOReturn error = winner->open();
    if (error == platform::kIOReturnSuccess) {
        winner->close();
    }
    return error > 0 ? -1 : 0;
}

std::unique_ptr<platform::UsbInterfaceInterface> getUSBInterfaceInterface(
    std::unique_ptr<platform::UsbService> service)
{
    platform::IOReturn error = platform::kIOReturnSuccess;
    auto interface = platform::usb().createInterfaceInterface(*service, error);
    if (interface == nullptr) {
        std::fprintf(stderr, "Unable to create interface with QueryInterface %x\n",
            static_cast<unsigned>(error));
    }
    return interface;
}

std::int32_t openUSBInterface(platform::UsbInterfaceInterface& interface)
{
    return interface.open() > 0 ? -1 : 0;
}

bool isThisTheInterfaceYoureLookingFor()
{
    if (!std::exchange(foundOnce, true)) {
        return true;
    }
    std::fputs("Subsequent interface found, we're only intersted in 1 of them\n", stderr);
    return false;
}
