// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <libudev.h>
#include <memory>
#include <vector>

/** A pen tablet that is plugged in. */
struct Tablet {
    QString device; ///< what its nodes have in common: the USB device's path, or an equivalent
    QString name; ///< as the kernel reports it
    std::uint16_t vendor = 0;
    std::uint16_t product = 0;
    QString serial; ///< empty if it has none
    QString penNode; ///< the event node of the pen, such as /dev/input/event7
    QString padNode; ///< that of its keys and strips; empty if it has none

    /** What it is remembered by: vendor, product and serial, such as "6f3d:0042:A17". */
    QString id() const;

    bool operator==(const Tablet&) const = default;
};

/** Watches which pen tablets are plugged in. Devices made with uinput do not count. */
class TabletMonitor final : public QObject {
    Q_OBJECT

public:
    explicit TabletMonitor(QObject* parent = nullptr);

    /** The tablets, in the order in which their pens were plugged in. */
    const std::vector<Tablet>& tablets() const { return mTablets; }

Q_SIGNALS:
    void changed();
    /** The rights of a node have changed; perhaps it can be opened now. */
    void accessChanged();

private:
    void receive();
    void enumerate();

    std::unique_ptr<udev, decltype(&udev_unref)> mUdev;
    std::unique_ptr<udev_monitor, decltype(&udev_monitor_unref)> mMonitor;
    std::unique_ptr<QSocketNotifier> mNotifier;
    QTimer mEnumerateSoon; ///< the nodes of a device come one after the other
    QElapsedTimer mSinceWaiting; ///< for nodes that udev has yet to look at
    std::vector<Tablet> mTablets;
};
