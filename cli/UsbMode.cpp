// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "UsbMode.h"

#include "Client.h"
#include "Service.h"
#include "Usb.h"

#include <optional>
#include <utility>

using namespace platform;

namespace {

/** How far the way to the tablet was gone, by the last device that was tried. */
struct Progress {
    bool isFound = false;
    std::optional<int> configurations;
    std::optional<IOReturn> opened;
    std::optional<IOReturn> requested;
};

class WatchedIterator final : public UsbIterator {
public:
    WatchedIterator(std::unique_ptr<UsbIterator> services, Progress& progress)
        : mServices(std::move(services))
        , mProgress(&progress)
    {
    }
    std::unique_ptr<UsbService> next() override
    {
        auto service = mServices->next();
        mProgress->isFound = mProgress->isFound || service != nullptr;
        return service;
    }
    void reset() override { mServices->reset(); }

private:
    std::unique_ptr<UsbIterator> mServices;
    Progress* mProgress;
};

class WatchedDevice final : public UsbDeviceInterface {
public:
    WatchedDevice(std::unique_ptr<UsbDeviceInterface> device, Progress& progress)
        : mDevice(std::move(device))
        , mProgress(&progress)
    {
    }
    IOReturn getNumberOfConfigurations(std::uint8_t& count) override
    {
        const IOReturn error = mDevice->getNumberOfConfigurations(count);
        mProgress->configurations = count;
        return error;
    }
    IOReturn getConfigurationDescriptor(
        std::uint8_t index, UsbConfigurationDescriptor& descriptor) override
    {
        return mDevice->getConfigurationDescriptor(index, descriptor);
    }
    IOReturn open() override
    {
        mProgress->opened = mDevice->open();
        return *mProgress->opened;
    }
    IOReturn deviceRequest(UsbDeviceRequest& request) override
    {
        mProgress->requested = mDevice->deviceRequest(request);
        return *mProgress->requested;
    }
    IOReturn setConfiguration(std::uint8_t value) override
    {
        return mDevice->setConfiguration(value);
    }
    IOReturn createInterfaceIterator(std::unique_ptr<UsbIterator>& interfaces) override
    {
        return mDevice->createInterfaceIterator(interfaces);
    }

private:
    std::unique_ptr<UsbDeviceInterface> mDevice;
    Progress* mProgress;
};

/**
 * The USB in place, watched: controlUSBDev() tells its caller nothing of the devices, since the
 * panel goes on with or without them.
 */
class WatchedUsb final : public Usb {
public:
    Progress progress;

    IOReturn mainPort() override { return mUsb.mainPort(); }
    std::optional<UsbMatching> serviceMatching(const char* className) override
    {
        return mUsb.serviceMatching(className);
    }
    IOReturn getMatchingServices(
        UsbMatching matching, std::unique_ptr<UsbIterator>& services) override
    {
        const IOReturn error = mUsb.getMatchingServices(std::move(matching), services);
        if (error == kIOReturnSuccess) {
            services = std::make_unique<WatchedIterator>(std::move(services), progress);
        }
        return error;
    }
    std::unique_ptr<UsbDeviceInterface> createDeviceInterface(const UsbService& service) override
    {
        auto device = mUsb.createDeviceInterface(service);
        return device == nullptr ? nullptr
                                 : std::make_unique<WatchedDevice>(std::move(device), progress);
    }
    std::unique_ptr<UsbInterfaceInterface> createInterfaceInterface(
        const UsbService& service, IOReturn& error) override
    {
        return mUsb.createInterfaceInterface(service, error);
    }

private:
    Usb& mUsb = usb();
    ServiceScope<Usb> mScope{*this};
};

QString whyNotOpened(IOReturn error, const QString& name)
{
    switch (error) {
    case kIOReturnExclusiveAccess:
        return QStringLiteral("another program holds the %1").arg(name);
    case kIOReturnNotPermitted:
        return QStringLiteral(
            "you may not open the %1; the udev rule 60-quorvia-tablet.rules gives "
            "leave to the one who sits at the machine")
            .arg(name);
    case kIOReturnNoDevice:
        return QStringLiteral("the %1 was unplugged").arg(name);
    default:
        return QStringLiteral("the %1 could not be opened").arg(name);
    }
}

QString whyNotTaken(IOReturn error, const QString& name)
{
    switch (error) {
    case kIOUSBPipeStalled:
        return QStringLiteral("the %1 refused the report mode").arg(name);
    case kIOReturnNoDevice:
        return QStringLiteral("the %1 was unplugged").arg(name);
    case kIOReturnTimeout:
        return QStringLiteral("the %1 does not answer").arg(name);
    default:
        return QStringLiteral("the %1 did not take the report mode").arg(name);
    }
}

} // namespace

UsbModeResult setUsbMode(bool isFast, std::uint16_t productID, const QString& name)
{
    WatchedUsb watched;
    const Progress& progress = watched.progress;
    if (!controlUSBDev(isFast ? kQVReportFast : kQVReportNormal, productID)) {
        return {false, QStringLiteral("the USB bus cannot be searched")};
    }
    if (!progress.isFound) {
        return {false, QStringLiteral("there is no %1 on the USB bus").arg(name)};
    }
    if (progress.requested == kIOReturnSuccess) {
        return {true,
            QStringLiteral("told the %1 to report %2")
                .arg(name, isFast ? QStringLiteral("fast") : QStringLiteral("normally"))};
    }
    if (progress.requested) {
        return {false, whyNotTaken(*progress.requested, name)};
    }
    if (progress.opened) {
        return {false, whyNotOpened(*progress.opened, name)};
    }
    if (progress.configurations && progress.configurations != 1) {
        return {false,
            QStringLiteral("the %1 has %2 configurations instead of one, so it was left alone")
                .arg(name, QString::number(*progress.configurations))};
    }
    return {
        false, QStringLiteral("the %1 does not say what it is, so it was left alone").arg(name)};
}
