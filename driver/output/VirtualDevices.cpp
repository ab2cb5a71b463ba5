// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "VirtualDevices.h"

#include "KeyCodes.h"
#include "QVTabletModels.h"
#include "hid_usb_2_adb_keymap_char.h"

#include <QFileInfo>

#include <array>
#include <utility>

using platform::Error;
using platform::Result;

namespace {

/** Of a device that this program makes. */
constexpr int kVersion = 1;
constexpr int kPenProduct = 0x0001;
constexpr int kKeyboardProduct = 0x0002;
constexpr int kPointerProduct = 0x0003;

/** A tablet that does not report its size is treated as one with this many units per millimetre. */
constexpr std::int32_t kUsualResolution = 100;

/** The virtual pen claims a size that is this part of the tablet's. */
constexpr std::int32_t kSmallness = 8;

NodeState newDevice(const char* name, int product)
{
    NodeState device(libevdev_new(), &libevdev_free);
    libevdev_set_name(device.get(), name);
    libevdev_set_id_bustype(device.get(), BUS_VIRTUAL);
    libevdev_set_id_vendor(device.get(), kQVVendorID);
    libevdev_set_id_product(device.get(), product);
    libevdev_set_id_version(device.get(), kVersion);
    return device;
}

void addAxis(libevdev& device, unsigned code, std::int32_t minimum, std::int32_t maximum,
    std::int32_t resolution)
{
    input_absinfo axis{};
    axis.minimum = minimum;
    axis.maximum = maximum;
    axis.resolution = resolution;
    libevdev_enable_event_code(&device, EV_ABS, code, &axis);
}

void addKey(libevdev& device, unsigned code)
{
    libevdev_enable_event_code(&device, EV_KEY, code, nullptr);
}

NodeState describe(const PenDescription& tablet)
{
    NodeState pen = newDevice(kVirtualPenName, kPenProduct);
    libevdev& device = *pen;
    const PenAxes axes = virtualAxes(tablet);
    // Without a resolution, libinput ignores the device.
    addAxis(device, ABS_X, 0, axes.xMax, claimedResolution(tablet.x));
    addAxis(device, ABS_Y, 0, axes.yMax, claimedResolution(tablet.y));
    if (axes.pressureMax > 0) {
        addAxis(device, ABS_PRESSURE, 0, axes.pressureMax, 0);
    }
    if (tablet.distance) {
        addAxis(device, ABS_DISTANCE, 0, tablet.distance->range(), 0);
    }
    if (tablet.tiltX && tablet.tiltY) {
        const auto addTilt = [&](unsigned code, const Axis& tilt) {
            const std::int32_t half = (tilt.range() + 1) / 2;
            addAxis(device, code, -half, half, tilt.resolution);
        };
        addTilt(ABS_TILT_X, *tablet.tiltX);
        addTilt(ABS_TILT_Y, *tablet.tiltY);
    }
    if (tablet.twist) {
        addAxis(device, ABS_Z, 0, tablet.twist->range(), tablet.twist->resolution);
    }
    for (const unsigned code :
        std::to_array<unsigned>({BTN_TOOL_PEN, BTN_TOUCH, BTN_STYLUS, BTN_STYLUS2, BTN_STYLUS3})) {
        addKey(device, code);
    }
    if (tablet.hasEraser) {
        addKey(device, BTN_TOOL_RUBBER);
    }
    libevdev_enable_event_code(&device, EV_MSC, MSC_SERIAL, nullptr);
    libevdev_enable_event_code(&device, EV_MSC, MSC_TIMESTAMP, nullptr);
    // Also for a tablet with a display: desktops map a direct pen to a display of their choice.
    libevdev_enable_property(&device, INPUT_PROP_POINTER);
    return pen;
}

NodeState describeKeyboard()
{
    NodeState keyboard = newDevice("Quorvia Virtual Keyboard", kKeyboardProduct);
    for (const QVKeyName& key : hid_usb_2_adb_keymap_char) {
        addKey(*keyboard, linuxKeyCode(key.code));
    }
    return keyboard;
}

NodeState describePointer()
{
    NodeState pointer = newDevice("Quorvia Virtual Pointer", kPointerProduct);
    // Nothing moves it, but without these axes it is no pointer.
    for (const unsigned code :
        std::to_array<unsigned>({REL_X, REL_Y, REL_WHEEL, REL_WHEEL_HI_RES})) {
        libevdev_enable_event_code(pointer.get(), EV_REL, code, nullptr);
    }
    for (const unsigned code :
        std::to_array<unsigned>({BTN_LEFT, BTN_RIGHT, BTN_MIDDLE, BTN_SIDE})) {
        addKey(*pointer, code);
    }
    return pointer;
}

Result<VirtualDevice> make(const NodeState& description)
{
    libevdev_uinput* device = nullptr;
    const int error = libevdev_uinput_create_from_device(
        description.get(), LIBEVDEV_UINPUT_OPEN_MANAGED, &device);
    if (error != 0) {
        return Error{
            QStringLiteral("Cannot create a virtual device with /dev/uinput: %1. Install the "
                           "package tdsg-driver-access.")
                .arg(qt_error_string(-error))};
    }
    return VirtualDevice(device, &libevdev_uinput_destroy);
}

} // namespace

PenAxes virtualAxes(const PenDescription& tablet)
{
    PenAxes axes = tablet.axes();
    axes.xMax *= kVirtualUnits;
    axes.yMax *= kVirtualUnits;
    return axes;
}

std::int32_t claimedResolution(const Axis& tablet)
{
    return kVirtualUnits * kSmallness
        * (tablet.resolution > 0 ? tablet.resolution : kUsualResolution);
}

VirtualDevices::VirtualDevices(VirtualDevice pen, VirtualDevice keyboard, VirtualDevice pointer)
    : mPen(std::move(pen))
    , mKeyboard(std::move(keyboard))
    , mPointer(std::move(pointer))
{
}

QString VirtualDevices::penNode() const
{
    return QFileInfo(QFile::decodeName(libevdev_uinput_get_devnode(mPen.get()))).fileName();
}

Result<VirtualDevices> VirtualDevices::create(const PenDescription& tablet)
{
    Result<VirtualDevice> pen = make(describe(tablet));
    if (!pen) {
        return pen.error();
    }
    Result<VirtualDevice> keyboard = make(describeKeyboard());
    if (!keyboard) {
        return keyboard.error();
    }
    Result<VirtualDevice> pointer = make(describePointer());
    if (!pointer) {
        return pointer.error();
    }
    return VirtualDevices(std::move(*pen), std::move(*keyboard), std::move(*pointer));
}
