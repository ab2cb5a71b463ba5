// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PenFrame.h"
#include "Result.h"
#include "TabletNode.h"

#include <QString>

#include <libevdev/libevdev-uinput.h>
#include <memory>

/** A device that the kernel shows to the desktop, and that this process writes to. */
using VirtualDevice = std::unique_ptr<libevdev_uinput, decltype(&libevdev_uinput_destroy)>;

/** The virtual pen's axes have this many units for each of the tablet's. A part of the desktop that
 * the tablet is mapped to then still has all of its steps. */
inline constexpr std::int32_t kVirtualUnits = 4;

/** The name of every virtual pen, as the desktop shows it; the package's quirks name it, too. */
inline constexpr const char* kVirtualPenName = "Quorvia Virtual Pen";

/** The ranges of the virtual pen of a tablet. */
PenAxes virtualAxes(const PenDescription& tablet);

/**
 * The units per millimetre that the virtual pen claims for an axis. Some desktops map a pen whose
 * size is that of a monitor to that monitor; so it claims to be smaller than any.
 */
std::int32_t claimedResolution(const Axis& tablet);

/**
 * The devices that stand for a tablet: a pen, a keyboard, and a pointer with buttons and a wheel.
 * They exist as long as this object; a device that disappears has everything released.
 */
class VirtualDevices {
public:
    /** Creates them. Needs access to /dev/uinput. */
    static platform::Result<VirtualDevices> create(const PenDescription& tablet);

    /** The name of the pen's event node, such as "event7"; empty if that is not known. */
    QString penNode() const;

    int pen() const { return libevdev_uinput_get_fd(mPen.get()); }
    int keyboard() const { return libevdev_uinput_get_fd(mKeyboard.get()); }
    int pointer() const { return libevdev_uinput_get_fd(mPointer.get()); }

private:
    VirtualDevices(VirtualDevice pen, VirtualDevice keyboard, VirtualDevice pointer);

    VirtualDevice mPen;
    VirtualDevice mKeyboard;
    VirtualDevice mPointer;
};
