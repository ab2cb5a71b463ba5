// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Displays.h"
#include "PreferencePane.h"

#include <QString>

#include <optional>
#include <vector>

/**
 * The number, from 1, of a remembered monitor among the connected ones; nothing if it is not
 * connected or cannot be identified. It is identified by maker, product and serial number. If
 * several agree in these, such as two of a kind without serial numbers, the connector decides.
 */
std::optional<int> findMonitor(
    const platform::Monitor& remembered, const std::vector<platform::Monitor>& monitors);

/**
 * Remembers which monitor was chosen for a device: the desktop numbers its displays as it likes,
 * and the device's settings contain just a number. It is kept for each device and each window
 * system, since these do not name monitors alike. Main thread only.
 */
class MonitorMemory {
public:
    /**
     * The device is shown. What its settings name is remembered, if nothing was before.
     *
     * @param isLoaded whether the pane has the device's own settings
     */
    void show(const platform::PreferencePane& pane, bool isLoaded = true);

    /**
     * The settings may have changed: if they name another display, remembers its monitor. If they
     * name the display from the start of the showing again, as after an undo, restores what was
     * remembered then.
     *
     * @return whether they name another display
     */
    bool note(const platform::PreferencePane& pane);

    /** A display was chosen for the device: remembers its monitor, or none if all were chosen. */
    void choose(const platform::PreferencePane& pane);

    /**
     * The number of the monitor that was chosen, if that is there and the device's settings name
     * another one; otherwise nothing.
     */
    std::optional<int> moved(const platform::PreferencePane& pane) const;

private:
    void load(const QString& device);
    void save(const QString& device) const;

    std::optional<platform::Monitor> mChosen;
    int mNumber = 0; ///< the display that the settings last named
    std::optional<platform::Monitor> mShown; ///< mChosen when the showing began
    int mShownNumber = 0; ///< mNumber then
};
