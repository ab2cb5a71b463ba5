// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

/**
 * @file
 * The maker's tablets. Everything that depends on the model looks here: the panel, the driver that
 * comes with it, and the configuration files that this driver installs.
 */

/** The maker's USB vendor ID. */
inline constexpr std::uint16_t kQVVendorID = 0x6F3D;

/** One model. */
struct QVTabletModel {
    std::uint16_t productID;
    const char* name; ///< UTF-8; a proper name, never translated
    std::uint16_t keyNum; ///< express keys
    std::uint16_t scrollNum; ///< scroll strips
    std::uint16_t tabletXmax; ///< active area from (0, 0), in tablet units
    std::uint16_t tabletYmax;
    std::uint16_t pressureMax; ///< highest pressure value
};

inline constexpr std::array<QVTabletModel, 4> kQVTabletModels{{
    {0x5101, "Quorvia Draft S", 4, 0, 20320, 12700, 1023},
    {0x5102, "Quorvia Draft M", 8, 1, 25400, 15875, 2047},
    {0x5103, "Quorvia Draft L", 8, 2, 40640, 25400, 2047},
    {0x5104, "Quorvia Note", 0, 0, 15240, 10160, 1023},
}};

/** The model with that product ID; null for one that is not ours. */
constexpr const QVTabletModel* QVFindModel(std::uint16_t productID)
{
    const auto* const found =
        std::ranges::find(kQVTabletModels, productID, &QVTabletModel::productID);
    return found == kQVTabletModels.end() ? nullptr : found;
}
