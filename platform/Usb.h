// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace platform {

/** Result of a USB operation: 0 on success, or a negative error. */
using IOReturn = std::int32_t;

inline constexpr IOReturn kIOReturnSuccess = 0;
inline constexpr auto kIOReturnError = static_cast<IOReturn>(0xE00002BC);
inline constexpr auto kIOReturnNoMemory = static_cast<IOReturn>(0xE00002BD);
inline constexpr auto kIOReturnNoDevice = static_cast<IOReturn>(0xE00002C0); ///< the device is gone
inline constexpr auto kIOReturnExclusiveAccess = static_cast<IOReturn>(0xE00002C5); ///< it is held
inline constexpr auto kIOReturnUnsupported = static_cast<IOReturn>(0xE00002C7);
inline constexpr auto kIOReturnNotOpen = static_cast<IOReturn>(0xE00002CD);
inline constexpr auto kIOReturnTimeout = static_cast<IOReturn>(0xE00002D6);
inline constexpr auto kIOReturnNotPermitted = static_cast<IOReturn>(0xE00002E2);
inline constexpr auto kIOReturnNotFound = static_cast<IOReturn>(0xE00002F0);
inline constexpr auto kIOUSBPipeStalled = static_cast<IOReturn>(0xE000404F); ///< it was rejected

/** The class of matching dictionaries for whole devices. */
inline constexpr const char* kIOUSBDeviceClassName = "IOUSBDevice";

/** Criteria for services: their class, and the values of some of their properties. */
struct UsbMatching {
    std::string className;
    std::map<std::string, std::int32_t> properties; ///< "idVendor", "idProduct"
};

/** A control request (USB 2.0, section 9.3). */
struct UsbDeviceRequest {
    std::uint8_t bmRequestType;
    std::uint8_t bRequest;
    std::uint16_t wValue;
    std::uint16_t wIndex;
    std::uint16_t wLength; ///< bytes at data
    std::uint8_t* data;
    std::uint32_t wLenDone; ///< bytes transferred
};

/** The part of a configuration descriptor that is used here (USB 2.0, section 9.6.3). */
struct UsbConfigurationDescriptor {
    std::uint8_t bNumInterfaces;
    std::uint8_t bConfigurationValue;
};

/** A device or an interface that was found on the bus; it may be gone by now. */
class UsbService {
public:
    virtual ~UsbService() = default;
};

/** The services that were found, in bus order. */
class UsbIterator {
public:
    virtual ~UsbIterator() = default;

    /** @return the next service; null after the last */
    virtual std::unique_ptr<UsbService> next() = 0;
    /** Starts again, with the current state of the bus. */
    virtual void reset() = 0;
};

/** One device. Its destructor undoes open(). */
class UsbDeviceInterface {
public:
    virtual ~UsbDeviceInterface() = default;

    virtual IOReturn getNumberOfConfigurations(std::uint8_t& count) = 0;
    /** @param index from 0 */
    virtual IOReturn getConfigurationDescriptor(
        std::uint8_t index, UsbConfigurationDescriptor& descriptor) = 0;
    /**
     * Opens the device: claims its first interface and detaches the kernel's driver from it until
     * release.
     *
     * @return kIOReturnExclusiveAccess if another program holds the interface,
     *     kIOReturnNotPermitted if the user may not open the device
     */
    virtual IOReturn open() = 0;
    /** Sends a control request to an open device; waits at most a second. */
    virtual IOReturn deviceRequest(UsbDeviceRequest& request) = 0;
    /** @param value a bConfigurationValue */
    virtual IOReturn setConfiguration(std::uint8_t value) = 0;
    /** Finds the interfaces of any class in the current configuration. */
    virtual IOReturn createInterfaceIterator(std::unique_ptr<UsbIterator>& interfaces) = 0;
};

/** One interface of a device. */
class UsbInterfaceInterface {
public:
    virtual ~UsbInterfaceInterface() = default;

    /** Claims the interface, and releases it. */
    virtual IOReturn open() = 0;
    virtual IOReturn close() = 0;
};

/** The USB busses of this machine. Main thread only. */
class Usb {
public:
    virtual ~Usb() = default;

    /** Whether the machine's services can be queried at all. */
    virtual IOReturn mainPort() = 0;
    /** Returns a matching dictionary for a class of services; nothing if there is none. */
    virtual std::optional<UsbMatching> serviceMatching(const char* className) = 0;
    /** Finds the services that match; consumes the dictionary. */
    virtual IOReturn getMatchingServices(
        UsbMatching matching, std::unique_ptr<UsbIterator>& services) = 0;
    /** @return null if the service is not a device */
    virtual std::unique_ptr<UsbDeviceInterface> createDeviceInterface(
        const UsbService& service) = 0;
    /** @return null if the service is not an interface; error says why */
    virtual std::unique_ptr<UsbInterfaceInterface> createInterfaceInterface(
        const UsbService& service, IOReturn& error) = 0;
};

/** Returns the machine's USB, or its replacement by a ServiceScope<Usb>. */
Usb& usb();

} // namespace platform
