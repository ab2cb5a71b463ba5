// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletMonitor.h"

#include "DriverState.h"

#include <algorithm>
#include <chrono>
#include <linux/input.h>
#include <map>
#include <set>
#include <utility>

namespace {

/**
 * How long a device that has just appeared may take to bring its other nodes. The file of a tablet
 * whose keys come later is made without them.
 */
constexpr std::chrono::milliseconds kSettle{250};
/** How long it may take if udev has yet to look at a node of it. */
constexpr std::chrono::milliseconds kLongestSettle{2000};

using Device = std::unique_ptr<udev_device, decltype(&udev_device_unref)>;

QString property(udev_device* device, const char* name)
{
    return QString::fromUtf8(udev_device_get_property_value(device, name));
}

bool isSet(udev_device* device, const char* name)
{
    return property(device, name) == QLatin1String("1");
}

/** The input device of an event node, which has its name and its IDs. */
udev_device* inputOf(udev_device* node)
{
    return udev_device_get_parent_with_subsystem_devtype(node, "input", nullptr);
}

/** An attribute of the node's input device; empty if there is none. */
QString attributeOf(udev_device* node, const char* name)
{
    udev_device* const input = inputOf(node);
    return QString::fromUtf8(
        input == nullptr ? nullptr : udev_device_get_sysattr_value(input, name));
}

/**
 * What the nodes of one physical device have in common. The interfaces of a USB device are inputs
 * of their own. Bluetooth devices share the place and the USB device of their adapter, but have an
 * address; others report their place.
 */
QString physicalDevice(udev_device* node)
{
    QString address = attributeOf(node, "uniq");
    if (attributeOf(node, "id/bustype").toUShort(nullptr, 16) == BUS_BLUETOOTH
        && !address.isEmpty()) {
        return address;
    }
    if (udev_device* const usb =
            udev_device_get_parent_with_subsystem_devtype(node, "usb", "usb_device")) {
        return QString::fromUtf8(udev_device_get_syspath(usb));
    }
    QString place = attributeOf(node, "phys").section(QLatin1Char('/'), 0, 0);
    if (!place.isEmpty()) {
        return place;
    }
    udev_device* const hid = udev_device_get_parent_with_subsystem_devtype(node, "hid", nullptr);
    return QString::fromUtf8(udev_device_get_syspath(hid == nullptr ? node : hid));
}

/** A number in hexadecimal of the input device; 0 if there is none. */
std::uint16_t idOf(udev_device* node, const char* attribute)
{
    return attributeOf(node, attribute).toUShort(nullptr, 16);
}

QString nameOf(udev_device* node)
{
    QString name = attributeOf(node, "name");
    // A device may call itself anything. A property list cannot hold all of it.
    for (QChar& character : name) {
        character = character.isPrint() ? character : QChar(QLatin1Char(' '));
    }
    return name.simplified();
}

QString serialOf(udev_device* node)
{
    const QString unique = attributeOf(node, "uniq");
    return unique.isEmpty() ? property(node, "ID_SERIAL_SHORT") : unique;
}

} // namespace

QString Tablet::id() const
{
    const QString model = modelKey(vendor, product);
    return serial.isEmpty() ? model : model + QLatin1Char(':') + serial;
}

TabletMonitor::TabletMonitor(QObject* parent)
    : QObject(parent)
    , mUdev(udev_new(), &udev_unref)
    , mMonitor(udev_monitor_new_from_netlink(mUdev.get(), "udev"), &udev_monitor_unref)
{
    mEnumerateSoon.setSingleShot(true);
    mEnumerateSoon.setInterval(kSettle);
    connect(&mEnumerateSoon, &QTimer::timeout, this, &TabletMonitor::enumerate);
    if (mMonitor != nullptr) {
        udev_monitor_filter_add_match_subsystem_devtype(mMonitor.get(), "input", nullptr);
        udev_monitor_enable_receiving(mMonitor.get());
        mNotifier = std::make_unique<QSocketNotifier>(
            udev_monitor_get_fd(mMonitor.get()), QSocketNotifier::Read);
        connect(mNotifier.get(), &QSocketNotifier::activated, this, &TabletMonitor::receive);
    }
    enumerate();
}

void TabletMonitor::receive()
{
    const Device device(udev_monitor_receive_device(mMonitor.get()), &udev_device_unref);
    if (device == nullptr || udev_device_get_devnode(device.get()) == nullptr) {
        return;
    }
    const QString node = QString::fromUtf8(udev_device_get_devnode(device.get()));
    const bool isKnown = std::ranges::any_of(mTablets,
        [&](const Tablet& tablet) { return tablet.penNode == node || tablet.padNode == node; });
    if (QString::fromUtf8(udev_device_get_action(device.get())) == QLatin1String("remove")) {
        if (isKnown) {
            enumerate(); // at once, so that nothing stays pressed
        }
    } else if (isSet(device.get(), "ID_INPUT_TABLET")) {
        mEnumerateSoon.start();
        if (isKnown) {
            Q_EMIT accessChanged();
        }
    }
}

void TabletMonitor::enumerate()
{
    const std::unique_ptr<udev_enumerate, decltype(&udev_enumerate_unref)> search(
        udev_enumerate_new(mUdev.get()), &udev_enumerate_unref);
    udev_enumerate_add_match_subsystem(search.get(), "input");
    udev_enumerate_scan_devices(search.get());

    std::vector<Tablet> found;
    std::map<QString, QString> pads; // by their physical device
    std::set<QString> unsettled; // physical devices with a node that udev has yet to look at
    for (udev_list_entry* entry = udev_enumerate_get_list_entry(search.get()); entry != nullptr;
         entry = udev_list_entry_get_next(entry)) {
        const Device device(
            udev_device_new_from_syspath(mUdev.get(), udev_list_entry_get_name(entry)),
            &udev_device_unref);
        if (device == nullptr) {
            continue; // it has just gone
        }
        udev_device* const node = device.get();
        const QString path = QString::fromUtf8(udev_device_get_syspath(node));
        const char* const file = udev_device_get_devnode(node);
        if (file == nullptr
            || !QString::fromUtf8(udev_device_get_sysname(node)).startsWith(QLatin1String("event"))
            || path.contains(QLatin1String("/devices/virtual/input/"))) {
            continue;
        }
        if (!isSet(node, "ID_INPUT_TABLET")) {
            if (udev_device_get_is_initialized(node) == 0) {
                unsettled.insert(physicalDevice(node));
            }
            continue;
        }
        if (isSet(node, "ID_INPUT_TOUCHSCREEN") || isSet(node, "ID_INPUT_TOUCHPAD")
            || isSet(node, "ID_INPUT_KEYBOARD")) {
            continue;
        }
        const QString physical = physicalDevice(node);
        if (isSet(node, "ID_INPUT_TABLET_PAD")) {
            pads.emplace(physical, QString::fromUtf8(file));
            continue;
        }
        const auto known = std::ranges::find(found, physical, &Tablet::device);
        if (known == found.end()) {
            found.push_back({physical, nameOf(node), idOf(node, "id/vendor"),
                idOf(node, "id/product"), serialOf(node), QString::fromUtf8(file), QString()});
        }
    }
    const auto mustWait = [&](const Tablet& tablet) {
        return unsettled.contains(tablet.device)
            && std::ranges::find(mTablets, tablet.device, &Tablet::device) == mTablets.end();
    };
    if (std::ranges::none_of(found, mustWait)
        || (mSinceWaiting.isValid() && mSinceWaiting.hasExpired(kLongestSettle.count()))) {
        mSinceWaiting.invalidate();
    } else {
        if (!mSinceWaiting.isValid()) {
            mSinceWaiting.start();
        }
        std::erase_if(found, mustWait);
        mEnumerateSoon.start();
    }
    for (Tablet& tablet : found) {
        if (const auto pad = pads.find(tablet.device); pad != pads.end()) {
            tablet.padNode = pad->second;
        }
    }
    // Those that were here keep their order; new ones follow.
    const auto place = [this](const Tablet& tablet) {
        return std::ranges::find(mTablets, tablet.device, &Tablet::device) - mTablets.begin();
    };
    std::ranges::stable_sort(found, {}, place);
    if (found != mTablets) {
        mTablets = std::move(found);
        Q_EMIT changed();
    }
}
