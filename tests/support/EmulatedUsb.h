// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <linux/usbdevice_fs.h>
#include <memory>
#include <mutex>
#include <string>
#include <sys/ioctl.h>
#include <umockdev.h>
#include <vector>

/** The properties and the behaviour of an emulated device. */
struct EmulatedDevice {
    int number = 2; ///< on bus 1
    std::uint16_t vendor = 0;
    std::uint16_t product = 0;
    int configurations = 1;
    bool hasConfiguration = true; ///< whether its configuration descriptors can be read

    int heldClaims = 0; ///< number of claims that fail because another program has the interface
    int claimError = 0; ///< errno of every claim
    int submitError = 0; ///< errno of every submitted request
    int requestStatus = 0; ///< negative errno of every completed request
};

/**
 * An emulated USB bus under the real library: its device files in /sys and /dev, and the kernel's
 * answers there. The process runs with libumockdev-preload.so.0.
 */
class EmulatedUsb {
public:
    EmulatedUsb()
        : mTestbed(umockdev_testbed_new())
    {
        EXPECT_TRUE(umockdev_in_mock_environment()) << "run me with LD_PRELOAD";
    }
    ~EmulatedUsb()
    {
        for (const auto& device : mDevices) {
            umockdev_testbed_detach_ioctl(mTestbed, node(device->made.number).c_str(), nullptr);
        }
        mDevices.clear();
        g_object_unref(mTestbed);
    }

    /** Plugs a device in. */
    void plug(const EmulatedDevice& device)
    {
        GError* error = nullptr;
        EXPECT_TRUE(umockdev_testbed_add_from_string(mTestbed, description(device).c_str(), &error))
            << error->message;
        auto& emulation = mDevices.emplace_back(std::make_unique<Emulation>());
        emulation->made = device;
        emulation->owner = this;
        emulation->handler = umockdev_ioctl_base_new();
        g_signal_connect(
            emulation->handler, "handle-ioctl", G_CALLBACK(&EmulatedUsb::handle), emulation.get());
        EXPECT_TRUE(umockdev_testbed_attach_ioctl(
            mTestbed, node(device.number).c_str(), emulation->handler, &error))
            << error->message;
    }

    /** Unplugs it, without an event. */
    void unplug(int number)
    {
        char* const root = umockdev_testbed_get_root_dir(mTestbed);
        const std::string inside = root + node(number);
        g_free(root);
        EXPECT_EQ(std::remove(inside.c_str()), 0) << inside << ' ' << std::strerror(errno);
    }

    /** The requests to the devices, in order: "claim 0", "21 09 … | 04 01", "release 0", … */
    std::vector<std::string> asked()
    {
        const std::lock_guard lock(mMutex);
        return mAsked;
    }

private:
    struct Emulation {
        EmulatedDevice made;
        EmulatedUsb* owner = nullptr;
        UMockdevIoctlBase* handler = nullptr;
        UMockdevIoctlData* urb = nullptr; ///< the request that is waiting to be reaped
        void* urbAddress = nullptr;

        Emulation() = default;
        ~Emulation()
        {
            g_clear_pointer(&urb, umockdev_ioctl_data_unref);
            g_clear_object(&handler);
        }
        Emulation(const Emulation&) = delete;
        Emulation& operator=(const Emulation&) = delete;
    };

    static std::string node(int number)
    {
        char text[32];
        std::snprintf(text, sizeof text, "/dev/bus/usb/001/%03d", number);
        return text;
    }

    static std::string hex(const std::vector<int>& bytes, const char* separator = "")
    {
        std::string text;
        char digits[8];
        for (const int byte : bytes) {
            std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned>(byte) & 0xFFU);
            text += text.empty() ? "" : separator;
            text += digits;
        }
        return text;
    }

    /** The device's descriptors, as in /sys: a tablet's, with one HID interface. */
    static std::string descriptors(const EmulatedDevice& device)
    {
        std::string text =
            hex({18, 1, 0x00, 0x02, 0, 0, 0, 64, device.vendor & 0xFF, device.vendor >> 8,
                device.product & 0xFF, device.product >> 8, 0, 1, 0, 0, 0, device.configurations});
        for (int value = 1; device.hasConfiguration && value <= device.configurations; ++value) {
            text += hex({9, 2, 34, 0, 1, value, 0, 0x80, 50, // configuration
                9, 4, 0, 0, 1, 3, 0, 0, 0, // interface
                9, 0x21, 0x11, 0x01, 0, 1, 0x22, 32, 0, // HID
                7, 5, 0x81, 3, 8, 0, 4}); // endpoint
        }
        return text;
    }

    static std::string description(const EmulatedDevice& device)
    {
        const std::string number = std::to_string(device.number);
        char properties[256];
        std::snprintf(properties, sizeof properties,
            "E: BUSNUM=001\nE: DEVNUM=%03d\nE: PRODUCT=%x/%x/0\n", device.number, device.vendor,
            device.product);
        return "P: /devices/pci0000:00/usb1/1-" + number + "\nN: bus/usb/001/"
            + node(device.number).substr(17) + "\nE: DEVNAME=" + node(device.number)
            + "\nE: DEVTYPE=usb_device\nE: SUBSYSTEM=usb\n" + properties
            + "A: bConfigurationValue=1\\n\nA: busnum=1\\n\nA: devnum=" + number
            + "\\n\nA: speed=12\\n\nA: bNumConfigurations=" + std::to_string(device.configurations)
            + "\\n\nH: descriptors=" + descriptors(device) + "\n\n";
    }

    void note(const std::string& what)
    {
        const std::lock_guard lock(mMutex);
        mAsked.push_back(what);
    }

    /** Completes a system call: returns its result, or -1 with an errno. */
    static gboolean complete(UMockdevIoctlClient* client, int error)
    {
        umockdev_ioctl_client_complete(client, error == 0 ? 0 : -1, error);
        return TRUE;
    }

    /** The kernel's side of a device file. Runs in umockdev's thread. */
    static gboolean handle(UMockdevIoctlBase*, UMockdevIoctlClient* client, Emulation* emulation)
    {
        EmulatedDevice& device = emulation->made;
        EmulatedUsb& bus = *emulation->owner;
        UMockdevIoctlData* const argument = umockdev_ioctl_client_get_arg(client);
        const auto resolve = [argument](std::size_t size) {
            return umockdev_ioctl_data_resolve(argument, 0, size, nullptr);
        };
        gboolean handled = TRUE;
        switch (umockdev_ioctl_client_get_request(client)) {
        case USBDEVFS_GET_CAPABILITIES: {
            UMockdevIoctlData* const data = resolve(sizeof(std::uint32_t));
            const std::uint32_t capabilities = USBDEVFS_CAP_ZERO_PACKET
                | USBDEVFS_CAP_NO_PACKET_SIZE_LIM | USBDEVFS_CAP_REAP_AFTER_DISCONNECT;
            std::memcpy(data->data, &capabilities, sizeof capabilities);
            umockdev_ioctl_data_unref(data);
            complete(client, 0);
            break;
        }
        case USBDEVFS_DISCONNECT_CLAIM: {
            UMockdevIoctlData* const data = resolve(sizeof(usbdevfs_disconnect_claim));
            usbdevfs_disconnect_claim claim{};
            std::memcpy(&claim, data->data, sizeof claim);
            umockdev_ioctl_data_unref(data);
            bus.note("claim " + std::to_string(claim.interface));
            const bool isHeld = device.heldClaims > 0;
            device.heldClaims -= isHeld ? 1 : 0;
            complete(client, isHeld ? EBUSY : device.claimError);
            break;
        }
        case USBDEVFS_RELEASEINTERFACE:
            bus.note("release");
            complete(client, 0);
            break;
        case USBDEVFS_IOCTL: {
            UMockdevIoctlData* const data = resolve(sizeof(usbdevfs_ioctl));
            usbdevfs_ioctl command{};
            std::memcpy(&command, data->data, sizeof command);
            umockdev_ioctl_data_unref(data);
            if (static_cast<unsigned>(command.ioctl_code) == USBDEVFS_CONNECT) {
                bus.note("kernel driver");
            }
            complete(client, 0);
            break;
        }
        case USBDEVFS_SUBMITURB:
            handled = submit(client, *emulation);
            break;
        case USBDEVFS_REAPURB:
        case USBDEVFS_REAPURBNDELAY: {
            if (emulation->urb == nullptr) {
                complete(client, EAGAIN);
                break;
            }
            UMockdevIoctlData* const data = resolve(sizeof(void*));
            umockdev_ioctl_data_set_ptr(data, 0, emulation->urb);
            umockdev_ioctl_data_unref(data);
            complete(client, 0);
            g_clear_pointer(&emulation->urb, umockdev_ioctl_data_unref);
            break;
        }
        case USBDEVFS_DISCARDURB:
            complete(client, EINVAL);
            break;
        default:
            complete(client, ENOTTY);
        }
        return handled;
    }

    static gboolean submit(UMockdevIoctlClient* client, Emulation& emulation)
    {
        UMockdevIoctlData* const argument = umockdev_ioctl_client_get_arg(client);
        UMockdevIoctlData* const data =
            umockdev_ioctl_data_resolve(argument, 0, sizeof(usbdevfs_urb), nullptr);
        auto* const urb = reinterpret_cast<usbdevfs_urb*>(data->data);
        const auto length = static_cast<std::size_t>(urb->buffer_length);
        UMockdevIoctlData* const buffer =
            umockdev_ioctl_data_resolve(data, offsetof(usbdevfs_urb, buffer), length, nullptr);
        std::vector<int> setup;
        std::vector<int> bytes;
        for (std::size_t i = 0; i < length; ++i) {
            (i < 8 ? setup : bytes).push_back(buffer->data[i]);
        }
        umockdev_ioctl_data_unref(buffer);
        emulation.owner->note(hex(setup, " ") + " | " + hex(bytes, " "));
        if (emulation.made.submitError != 0) {
            umockdev_ioctl_data_unref(data);
            return complete(client, emulation.made.submitError);
        }
        urb->status = emulation.made.requestStatus;
        urb->actual_length = urb->status == 0 ? urb->buffer_length - 8 : 0;
        emulation.urb = data;
        return complete(client, 0);
    }

    UMockdevTestbed* mTestbed;
    std::mutex mMutex;
    std::vector<std::string> mAsked;
    std::vector<std::unique_ptr<Emulation>> mDevices;
};
