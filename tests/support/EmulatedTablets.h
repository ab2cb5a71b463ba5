// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <linux/input.h>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <sys/ioctl.h>
#include <umockdev.h>
#include <utility>
#include <vector>

/** An event node, as udev and the kernel describe it. */
struct EmulatedNode {
    std::string device = "/devices/pci0000:00/usb1/1-1"; ///< of the USB device, in /sys
    int interface = 0; ///< of the USB device
    int number = 1; ///< of the event node
    std::string name = "Acme Pen";
    std::uint16_t vendor = 0x1234;
    std::uint16_t product = 0x0042;
    std::string serial = {};
    unsigned bus = BUS_USB;
    std::vector<std::string> properties = {"ID_INPUT_TABLET=1"}; ///< of udev
    std::map<unsigned, std::vector<unsigned>> codes = {}; ///< by type
    std::map<unsigned, input_absinfo> axes = {};
};

/** Tablets without hardware. The process runs with libumockdev-preload.so.0. */
class EmulatedTablets {
public:
    EmulatedTablets()
        : mTestbed(umockdev_testbed_new())
    {
        EXPECT_TRUE(umockdev_in_mock_environment()) << "run me with LD_PRELOAD";
    }
    ~EmulatedTablets()
    {
        for (const auto& [number, handler] : mHandlers) {
            umockdev_testbed_detach_ioctl(mTestbed, file(number).c_str(), nullptr);
            g_object_unref(handler);
        }
        g_object_unref(mTestbed);
    }
    EmulatedTablets(const EmulatedTablets&) = delete;
    EmulatedTablets& operator=(const EmulatedTablets&) = delete;

    static std::string file(int number) { return "/dev/input/event" + std::to_string(number); }

    /** Plugs a node in, with an event. */
    void plug(const EmulatedNode& node)
    {
        const bool isUsb = node.device.find("/usb") != std::string::npos;
        if (isUsb && mParents.insert(node.device).second) {
            add("P: " + node.device + "\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_device\n\n");
        }
        const std::string input = node.device
            + (isUsb ? "/1-1:1." + std::to_string(node.interface) : std::string()) + "/input/input"
            + std::to_string(node.number);
        char ids[96];
        std::snprintf(ids, sizeof ids,
            "A: id/bustype=%04x\\n\nA: id/vendor=%04x\\n\nA: id/product=%04x\\n\n", node.bus,
            node.vendor, node.product);
        if (mParents.insert(input).second) {
            add("P: " + input + "\nE: SUBSYSTEM=input\nA: name=" + node.name
                + "\\n\nA: uniq=" + node.serial + "\\n\n" + ids + "A: capabilities/key="
                + words(
                    node.codes.contains(EV_KEY) ? node.codes.at(EV_KEY) : std::vector<unsigned>())
                + "\\n\nA: capabilities/abs=" + words(keysOf(node.axes)) + "\\n\n\n");
        }
        std::string event = input + "/event" + std::to_string(node.number);
        std::string text = "P: " + event + "\nN: input/event" + std::to_string(node.number)
            + "\nE: SUBSYSTEM=input\nE: DEVNAME=" + file(node.number) + '\n';
        for (const std::string& property : node.properties) {
            text += "E: " + property + '\n';
        }
        add(text + '\n');
        event.insert(0, "/sys");
        mEvents[node.number] = event;
        auto* const handler = umockdev_ioctl_base_new();
        auto& kept = *mNodes.emplace_back(std::make_unique<EmulatedNode>(node));
        g_signal_connect(handler, "handle-ioctl", G_CALLBACK(&EmulatedTablets::handle), &kept);
        GError* error = nullptr;
        EXPECT_TRUE(
            umockdev_testbed_attach_ioctl(mTestbed, file(node.number).c_str(), handler, &error))
            << error->message;
        mHandlers.emplace_back(node.number, handler);
        umockdev_testbed_uevent(mTestbed, event.c_str(), "add");
    }

    /** udev has looked at a node that was plugged in without properties. */
    void identify(int number, const std::vector<std::string>& properties)
    {
        const std::string& event = mEvents.at(number);
        for (const std::string& property : properties) {
            umockdev_testbed_set_property(mTestbed, event.c_str(), property.c_str(), "1");
        }
        umockdev_testbed_uevent(mTestbed, event.c_str(), "add");
    }

    /** Adds another device, in umockdev's form, without an event. */
    void add(const std::string& description)
    {
        GError* error = nullptr;
        EXPECT_TRUE(umockdev_testbed_add_from_string(mTestbed, description.c_str(), &error))
            << error->message << '\n'
            << description;
    }

    /** Unplugs it, with an event. The emulation allows no other node with this number. */
    void unplug(int number)
    {
        const std::string& event = mEvents.at(number);
        umockdev_testbed_uevent(mTestbed, event.c_str(), "remove");
        umockdev_testbed_remove_device(mTestbed, event.c_str());
        removeFile(number);
    }

    /** Brings back what removeFile() has removed, with an event. */
    void restoreFile(int number)
    {
        const std::string file = root() + EmulatedTablets::file(number);
        EXPECT_EQ(std::rename((file + "-removed").c_str(), file.c_str()), 0);
        umockdev_testbed_uevent(mTestbed, mEvents.at(number).c_str(), "change");
    }

    /** Removes its file in /dev alone, without an event. */
    void removeFile(int number)
    {
        const std::string file = root() + EmulatedTablets::file(number);
        EXPECT_EQ(std::rename(file.c_str(), (file + "-removed").c_str()), 0);
    }

    /** The folder that stands for /. */
    std::string root() const
    {
        char* const folder = umockdev_testbed_get_root_dir(mTestbed);
        std::string path = folder;
        g_free(folder);
        return path;
    }

private:
    static std::vector<unsigned> keysOf(const std::map<unsigned, input_absinfo>& axes)
    {
        std::vector<unsigned> codes;
        for (const auto& [code, axis] : axes) {
            codes.push_back(code);
        }
        return codes;
    }

    /** A bit field as sysfs has it: words of the kernel's long, the last one first. */
    static std::string words(const std::vector<unsigned>& bits)
    {
        constexpr unsigned kWord = 8 * sizeof(long);
        std::vector<unsigned long> fields(1);
        for (const unsigned bit : bits) {
            fields.resize(std::max<std::size_t>(fields.size(), bit / kWord + 1));
            fields[bit / kWord] |= 1UL << bit % kWord;
        }
        std::string text;
        for (auto field = fields.rbegin(); field != fields.rend(); ++field) {
            char digits[24];
            std::snprintf(digits, sizeof digits, "%lx", *field);
            text += (text.empty() ? "" : " ") + std::string(digits);
        }
        return text;
    }

    static void setBits(std::vector<std::uint8_t>& bytes, const std::vector<unsigned>& bits)
    {
        for (const unsigned bit : bits) {
            if (bit / 8 < bytes.size()) {
                bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] | 1U << bit % 8);
            }
        }
    }

    /** The kernel's side of an event node. Runs in umockdev's thread. */
    static gboolean handle(UMockdevIoctlBase*, UMockdevIoctlClient* client, EmulatedNode* node)
    {
        const auto request = static_cast<unsigned>(umockdev_ioctl_client_get_request(client));
        if (_IOC_TYPE(request) != 'E') {
            umockdev_ioctl_client_complete(client, -1, ENOTTY);
            return TRUE;
        }
        if ((_IOC_DIR(request) & _IOC_READ) != 0) {
            std::vector<std::uint8_t> bytes(_IOC_SIZE(request));
            const unsigned number = _IOC_NR(request);
            constexpr unsigned kBits = _IOC_NR(EVIOCGBIT(0, 0));
            constexpr unsigned kAxes = _IOC_NR(EVIOCGABS(0));
            const auto absolute = node->axes.find(number - kAxes);
            if (number == kBits) {
                std::vector<unsigned> types{EV_SYN};
                for (const auto& [type, codes] : node->codes) {
                    types.push_back(type);
                }
                if (!node->axes.empty()) {
                    types.push_back(EV_ABS);
                }
                setBits(bytes, types);
            } else if (number == kBits + EV_ABS) {
                setBits(bytes, keysOf(node->axes));
            } else if (number > kBits && number < kAxes) {
                setBits(bytes, node->codes[number - kBits]);
            } else if (number >= kAxes && absolute != node->axes.end()) {
                std::memcpy(bytes.data(), &absolute->second, sizeof absolute->second);
            }
            UMockdevIoctlData* const data = umockdev_ioctl_data_resolve(
                umockdev_ioctl_client_get_arg(client), 0, bytes.size(), nullptr);
            std::memcpy(data->data, bytes.data(), bytes.size());
            umockdev_ioctl_data_unref(data);
        }
        umockdev_ioctl_client_complete(client, 0, 0);
        return TRUE;
    }

    UMockdevTestbed* mTestbed;
    std::map<int, std::string> mEvents;
    std::set<std::string> mParents; ///< that are there
    std::vector<std::pair<int, UMockdevIoctlBase*>> mHandlers;
    std::vector<std::unique_ptr<EmulatedNode>> mNodes;
};
