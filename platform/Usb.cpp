// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Usb.h"

#include "Service.h"

#include <QLoggingCategory>

#include <libusb.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <utility>

namespace platform {

namespace {

Q_LOGGING_CATEGORY(lcUsb, "org.quorvia.tablet.usb", QtInfoMsg)

constexpr unsigned kRequestTimeOut = 1000; ///< milliseconds
constexpr int kFirstInterface = 0;

/** The result for a return value of libusb: an error, or a count. */
IOReturn resultOf(int value)
{
    using Pair = std::pair<int, IOReturn>;
    static constexpr std::array<Pair, 8> kErrors{{
        {LIBUSB_ERROR_ACCESS, kIOReturnNotPermitted},
        {LIBUSB_ERROR_NO_DEVICE, kIOReturnNoDevice},
        {LIBUSB_ERROR_NOT_FOUND, kIOReturnNotFound},
        {LIBUSB_ERROR_BUSY, kIOReturnExclusiveAccess},
        {LIBUSB_ERROR_TIMEOUT, kIOReturnTimeout},
        {LIBUSB_ERROR_PIPE, kIOUSBPipeStalled},
        {LIBUSB_ERROR_NO_MEM, kIOReturnNoMemory},
        {LIBUSB_ERROR_NOT_SUPPORTED, kIOReturnUnsupported},
    }};
    if (value >= 0) {
        return kIOReturnSuccess;
    }
    const auto* const known = std::ranges::find(kErrors, value, &Pair::first);
    return known == kErrors.end() ? kIOReturnError : known->second;
}

/**
 * A libusb context, which has a thread as long as it exists. So it lives only as long as the
 * objects that were found through it.
 */
using Context = std::shared_ptr<libusb_context>;
using Device = std::shared_ptr<libusb_device>;

/** A device that can be opened, with one of its interfaces. */
class Handle {
public:
    Handle(Device device, int interface)
        : mDevice(std::move(device))
        , mInterface(interface)
    {
    }
    ~Handle() { close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    const Device& device() const { return mDevice; }
    /** Null unless it is open. */
    libusb_device_handle* get() const { return mHandle; }

    /** Opens the device and claims the interface, both or neither. */
    int open()
    {
        close();
        libusb_device_handle* opened = nullptr;
        int error = libusb_open(mDevice.get(), &opened);
        if (error != LIBUSB_SUCCESS) {
            return error;
        }
        // libusb detaches the kernel's driver when the interface is claimed, and reattaches it on
        // release.
        libusb_set_auto_detach_kernel_driver(opened, 1);
        error = libusb_claim_interface(opened, mInterface);
        if (error == LIBUSB_SUCCESS) {
            mHandle = opened;
        } else {
            libusb_close(opened);
        }
        return error;
    }

    int close()
    {
        if (mHandle == nullptr) {
            return LIBUSB_SUCCESS;
        }
        const int error = libusb_release_interface(mHandle, mInterface);
        libusb_close(std::exchange(mHandle, nullptr));
        return error;
    }

private:
    Device mDevice;
    int mInterface;
    libusb_device_handle* mHandle = nullptr;
};

/** A device, or one of its interfaces. */
class Service final : public UsbService {
public:
    explicit Service(Device itsDevice, std::optional<int> itsInterface = std::nullopt)
        : device(std::move(itsDevice))
        , interface(itsInterface)
    {
    }
    const Device device;
    const std::optional<int> interface; ///< bInterfaceNumber
};

bool matches(const UsbMatching& matching, libusb_device* device)
{
    libusb_device_descriptor descriptor{};
    if (matching.className != kIOUSBDeviceClassName
        || libusb_get_device_descriptor(device, &descriptor) != LIBUSB_SUCCESS) {
        return false;
    }
    const auto agrees = [&matching](const char* property, std::int32_t value) {
        const auto wanted = matching.properties.find(property);
        return wanted == matching.properties.end() || wanted->second == value;
    };
    return agrees("idVendor", descriptor.idVendor) && agrees("idProduct", descriptor.idProduct);
}

using Services = std::deque<std::unique_ptr<UsbService>>;
/** Adds what is on the bus now. */
using Search = std::function<IOReturn(Services& found)>;

IOReturn findDevices(const UsbMatching& matching, Services& found)
{
    libusb_context* made = nullptr;
    if (const int error = libusb_init(&made); error != LIBUSB_SUCCESS) {
        qCWarning(lcUsb, "cannot list the USB devices: %s", libusb_strerror(error));
        return resultOf(error);
    }
    const Context context(made, libusb_exit);
    libusb_device** list = nullptr;
    const auto count = libusb_get_device_list(context.get(), &list);
    if (count < 0) {
        return resultOf(static_cast<int>(count));
    }
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        if (matches(matching, list[i])) {
            found.push_back(std::make_unique<Service>(Device(libusb_ref_device(list[i]),
                [context](libusb_device* device) { libusb_unref_device(device); })));
        }
    }
    libusb_free_device_list(list, 1);
    return kIOReturnSuccess;
}

IOReturn findInterfaces(const Device& device, Services& found)
{
    libusb_config_descriptor* config = nullptr;
    const int error = libusb_get_active_config_descriptor(device.get(), &config);
    if (error != LIBUSB_SUCCESS) {
        return resultOf(error);
    }
    for (int i = 0; i < config->bNumInterfaces; ++i) {
        if (config->interface[i].num_altsetting > 0) {
            found.push_back(std::make_unique<Service>(
                device, config->interface[i].altsetting->bInterfaceNumber));
        }
    }
    libusb_free_config_descriptor(config);
    return kIOReturnSuccess;
}

class FoundServices final : public UsbIterator {
public:
    explicit FoundServices(Search search)
        : mSearch(std::move(search))
    {
    }

    IOReturn find()
    {
        mFound.clear();
        return mSearch(mFound);
    }

    std::unique_ptr<UsbService> next() override
    {
        if (mFound.empty()) {
            return nullptr;
        }
        auto service = std::move(mFound.front());
        mFound.pop_front();
        return service;
    }

    void reset() override { find(); }

private:
    Search mSearch;
    Services mFound;
};

/** Returns an iterator over the results of a search, unless it fails. */
IOReturn iterate(Search search, std::unique_ptr<UsbIterator>& services)
{
    auto found = std::make_unique<FoundServices>(std::move(search));
    const IOReturn error = found->find();
    if (error == kIOReturnSuccess) {
        services = std::move(found);
    }
    return error;
}

class LibusbDevice final : public UsbDeviceInterface {
public:
    explicit LibusbDevice(Device device)
        : mHandle(std::move(device), kFirstInterface)
    {
    }

    IOReturn getNumberOfConfigurations(std::uint8_t& count) override
    {
        libusb_device_descriptor descriptor{};
        const int error = libusb_get_device_descriptor(device(), &descriptor);
        count = descriptor.bNumConfigurations;
        return resultOf(error);
    }

    IOReturn getConfigurationDescriptor(
        std::uint8_t index, UsbConfigurationDescriptor& descriptor) override
    {
        libusb_config_descriptor* config = nullptr;
        const int error = libusb_get_config_descriptor(device(), index, &config);
        if (error != LIBUSB_SUCCESS) {
            return resultOf(error);
        }
        descriptor = {config->bNumInterfaces, config->bConfigurationValue};
        libusb_free_config_descriptor(config);
        return kIOReturnSuccess;
    }

    IOReturn open() override
    {
        const int error = mHandle.open();
        if (error != LIBUSB_SUCCESS) {
            qCDebug(lcUsb, "device %d on bus %d cannot be opened: %s",
                libusb_get_device_address(device()), libusb_get_bus_number(device()),
                libusb_strerror(error));
        }
        return resultOf(error);
    }

    IOReturn deviceRequest(UsbDeviceRequest& request) override
    {
        if (mHandle.get() == nullptr) {
            return kIOReturnNotOpen;
        }
        const int done =
            libusb_control_transfer(mHandle.get(), request.bmRequestType, request.bRequest,
                request.wValue, request.wIndex, request.data, request.wLength, kRequestTimeOut);
        request.wLenDone = done < 0 ? 0 : static_cast<std::uint32_t>(done);
        return resultOf(done);
    }

    IOReturn setConfiguration(std::uint8_t value) override
    {
        return mHandle.get() == nullptr ? kIOReturnNotOpen
                                        : resultOf(libusb_set_configuration(mHandle.get(), value));
    }

    IOReturn createInterfaceIterator(std::unique_ptr<UsbIterator>& interfaces) override
    {
        return iterate(
            [device = mHandle.device()](Services& found) { return findInterfaces(device, found); },
            interfaces);
    }

private:
    libusb_device* device() const { return mHandle.device().get(); }

    Handle mHandle;
};

class LibusbInterface final : public UsbInterfaceInterface {
public:
    LibusbInterface(Device device, int number)
        : mHandle(std::move(device), number)
    {
    }

    IOReturn open() override { return resultOf(mHandle.open()); }
    IOReturn close() override
    {
        return mHandle.get() == nullptr ? kIOReturnNotOpen : resultOf(mHandle.close());
    }

private:
    Handle mHandle;
};

class LibusbUsb final : public Usb {
public:
    IOReturn mainPort() override { return kIOReturnSuccess; }

    std::optional<UsbMatching> serviceMatching(const char* className) override
    {
        return UsbMatching{className, {}};
    }

    IOReturn getMatchingServices(
        UsbMatching matching, std::unique_ptr<UsbIterator>& services) override
    {
        return iterate([matching = std::move(matching)](
                           Services& found) { return findDevices(matching, found); },
            services);
    }

    std::unique_ptr<UsbDeviceInterface> createDeviceInterface(const UsbService& service) override
    {
        const auto* const found = dynamic_cast<const Service*>(&service);
        return found == nullptr || found->interface ? nullptr
                                                    : std::make_unique<LibusbDevice>(found->device);
    }

    std::unique_ptr<UsbInterfaceInterface> createInterfaceInterface(
        const UsbService& service, IOReturn& error) override
    {
        const auto* const found = dynamic_cast<const Service*>(&service);
        if (found == nullptr || !found->interface) {
            error = kIOReturnUnsupported;
            return nullptr;
        }
        error = kIOReturnSuccess;
        return std::make_unique<LibusbInterface>(found->device, *found->interface);
    }
};

} // namespace

Usb& usb()
{
    return currentService<Usb, LibusbUsb>();
}

} // namespace platform
