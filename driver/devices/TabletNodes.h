// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Descriptor.h"
#include "Result.h"
#include "TabletMonitor.h"
#include "TabletNode.h"

#include <QVariantMap>

#include <memory>

/** The open nodes of a tablet, and what they offer. */
struct TabletNodes {
    std::unique_ptr<Descriptor> penFile;
    std::unique_ptr<Descriptor> padFile; ///< none if the tablet has no keys
    PenDescription pen;
    PadDescription pad;

    /**
     * Opens them for reading, without blocking and with times of the monotonic clock. An error says
     * what to do about it.
     */
    static platform::Result<TabletNodes> open(const Tablet& tablet);
};

/** The entries of a tablet for the list of docs/driver-protocol.md, except "inUse". */
QVariantMap describeTablet(const Tablet& tablet);
/** The same of a tablet that is open, without opening it once more. */
QVariantMap describeTablet(const Tablet& tablet, const TabletNodes& nodes);
