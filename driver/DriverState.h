// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

/**
 * What the driver knows and must not forget: a file in the user's folder of program states
 * (XDG_STATE_HOME, else ~/.local/state).
 */
struct DriverState {
    std::uint16_t attached = 0; ///< product ID; 0 is no tablet
    QByteArray record; ///< the last push; empty before the first
    std::uint32_t pushes = 0; ///< how many there were

    /**
     * Reads the file.
     *
     * @return nothing when there is none, or one that no driver has written: its numbers have to be
     *     whole and in the range of their types, its record empty or whole
     */
    static std::optional<DriverState> load();

    /** Replaces the file. @return why it failed; empty on success */
    QString save() const;
};
