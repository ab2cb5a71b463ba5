// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/** A rectangle by its edges, with y growing downwards. */
struct TabletRect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
    bool operator==(const TabletRect&) const = default;
};

/** What a button does. */
struct ButtonAssignment {
    QVAction action = kQVNoAction;
    QVMouseButton mouse = kQVLeftButton;
    std::array<std::uint16_t, 3> keyCodes{}; ///< of Linux, in the order of pressing
    std::size_t keyCount = 0;

    std::span<const std::uint16_t> keys() const { return {keyCodes.data(), keyCount}; }
};

/** The settings record, decoded once for each push. The input thread takes it as a whole. */
struct TabletSettings {
    TabletRect range{0, 0, 1, 1}; ///< the whole tablet, in tablet units
    TabletRect area{0, 0, 1, 1}; ///< its part in use, in tablet units of the turned tablet
    /** The part of the virtual pen's range that the area covers, each side from 0 to 1. */
    TabletRect target{0, 0, 1, 1};
    /** Quarter turns clockwise by which the desktop rotates the range; they are undone first. */
    int desktopTurns = 0;
    bool isTurned = false; ///< by 180 degrees
    bool isCalibrating = false; ///< the pen moves nothing; raw reports go to the panel
    int threshold = kQVStraightThreshold; ///< of the pressure, for QVPressResponse()
    std::array<ButtonAssignment, kQVSlotCount> buttons{};
    std::array<bool, 2> areStripsOn{true, true};
    int scrollSpeed = kQVUsualScroll; ///< kQVSlowestScroll to kQVFastestScroll
};

/**
 * Decodes a record. Invalid values are replaced: an empty area by the whole tablet, an unknown
 * action by none.
 *
 * @param target the part of the virtual pen's range that the mapped display area covers
 * @param isCalibrating whether a panel waits for raw reports; a flag left in a file is no panel
 */
TabletSettings decodeSettings(
    const tagQVTabletInfo& record, const TabletRect& target, bool isCalibrating);
