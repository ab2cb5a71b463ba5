// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "TabletSettings.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <linux/input-event-codes.h>

/**
 * Does what is assigned to the buttons of tablet and pen. What a button pressed is what it
 * releases, even if its assignment has changed in the meantime; a key that several buttons hold is
 * released by the last of them.
 */
class ButtonActions {
public:
    /** A button is down or up now; does nothing if it already was. */
    void set(std::size_t slot, bool isDown, const TabletSettings& settings, Commands& commands);

    /** Ends a pause that no button could end any longer, since the settings have changed. */
    void endLostPause(const TabletSettings& settings, Commands& commands);

    /** Releases everything. */
    void releaseAll(Commands& commands);

    /** Whether a held button of the pen acts as this mouse button. */
    bool penHolds(QVMouseButton button) const;

    /** The slots whose buttons are down, as bits. */
    std::uint32_t down() const;

    /** Whether a button for fine positioning is held. */
    bool isFine() const { return mFine > 0; }

    /** Whether the pen is ignored. */
    bool isPaused() const { return mIsPaused; }

private:
    void press(std::size_t slot, const ButtonAssignment& button, Commands& commands);
    void release(std::size_t slot, Commands& commands);

    std::array<bool, kQVSlotCount> mIsDown{};
    /** The assignments of the slots that are down, as they were when these were pressed. */
    std::array<ButtonAssignment, kQVSlotCount> mHeld{};
    std::array<std::uint8_t, KEY_CNT> mKeyHolders{}; ///< how many slots hold a key
    std::array<std::uint8_t, 4> mMouseHolders{}; ///< how many of the tablet's keys hold a button
    int mFine = 0;
    bool mIsPaused = false;
};
