// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"
#include "tagQVTabletInfo.h"

#include <QByteArray>

#include <cstdint>
#include <optional>

/**
 * What the driver keeps over a restart, in the file tdsg-driver/state.json in the user's state
 * folder (XDG_STATE_HOME, or ~/.local/state).
 */
struct DriverState {
    std::uint16_t attached = 0; ///< product ID; 0 is no tablet
    QByteArray record; ///< the last push; empty before the first
    std::uint32_t pushes = 0; ///< number of pushes so far

    /**
     * Reads the file.
     *
     * @return nothing if there is none or it is invalid: numbers must be integers in the range of
     *     their types, and the record must be empty or complete
     */
    [[nodiscard]] static std::optional<DriverState> load();

    /** Replaces the file. */
    platform::Result<> save() const;
};

/** Copies a record from its bytes; nothing if they are not kQVRecordSize. */
[[nodiscard]] std::optional<tagQVTabletInfo> recordIn(const QByteArray& bytes);
