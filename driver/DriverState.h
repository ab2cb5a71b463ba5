// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletModels.h"
#include "Result.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <cstdint>

/**
 * What the driver keeps over a restart, in the file tdsg-driver/state.json in the user's state
 * folder (XDG_STATE_HOME, or ~/.local/state).
 */
struct DriverState {
    /** Product ID of the simulated tablet; 0 is no tablet. */
    std::uint16_t attached = kQVTabletModels.front().productID;
    QByteArray record; ///< the last push; empty before the first
    std::uint32_t pushes = 0; ///< number of pushes so far
    QString chosen; ///< the tablet that the user chose, as Tablet::id(); empty for the first one
    /** Numbers of the configuration files of foreign tablets, by modelKey(). */
    QMap<QString, std::uint16_t> numbers;
    bool showsNotices = true; ///< on the screen

    /**
     * Reads the file. It is invalid unless its numbers are integers in the range of their types,
     * and its record is empty or complete.
     */
    static platform::Result<DriverState> load();

    /** Replaces the file. */
    platform::Result<> save() const;
};

/** What a model is remembered by: vendor and product, in hexadecimal, such as "6f3d:0042". */
[[nodiscard]] QString modelKey(std::uint16_t vendorID, std::uint16_t productID);
