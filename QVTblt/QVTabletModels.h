// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

/**
 * @file The table of tablet models. Everything that depends on the model uses it: the panel, our
 * driver, and the configuration files that it installs.
 */

/** The USB vendor ID of all models. */
inline constexpr std::uint16_t kQVVendorID = 0x6F3D;

/** The layout of the key page, see QVTblt_prefPanePref::InitComboBoxWithKey. */
enum class QVKeyLayout : std::uint8_t {
    A, ///< eight keys and the left strip; also for every product that is not in the table
    B, ///< only the pen
    C, ///< four keys, one report speed
    D, ///< four keys
    E, ///< five keys
    F, ///< seven keys in groups of three, one and three
    G, ///< two groups of four keys with a strip in between
    H, ///< no keys at all
};

/** One model. */
struct QVTabletModel {
    std::uint16_t productID;
    const char* name; ///< UTF-8; a proper name, never translated
    QVKeyLayout layout;
    const char* picture; ///< resource with its type, capitals as they are; null for none
    std::uint16_t keyNum; ///< express keys
    std::uint16_t scrollNum; ///< scroll strips
    std::uint16_t penButtons; ///< buttons of its pen: 1 or 2
    std::uint16_t tabletXmax; ///< the active area is from (0, 0), in tablet units
    std::uint16_t tabletYmax;
    std::uint16_t pressureMax; ///< highest pressure value
};

// clang-format off
inline constexpr auto kQVTabletModels = std::to_array<QVTabletModel>({
    // Two groups of four keys around a strip
    {0x5101, "Quorvia Draft S", QVKeyLayout::G, "tabletpic6.PNG", 8, 1, 2, 20320, 12700, 1023},
    {0x5102, "Quorvia Draft M", QVKeyLayout::G, "tabletpic6.PNG", 8, 1, 2, 25400, 15875, 2047},
    {0x5103, "Quorvia Draft L", QVKeyLayout::G, "tabletpic6.PNG", 8, 1, 2, 40640, 25400, 2047},
    {0x5104, "Quorvia Draft XL", QVKeyLayout::G, "tabletpic6.PNG", 8, 1, 2, 50800, 31750, 2047},
    {0x5105, "Quorvia Draft M Touch", QVKeyLayout::G, nullptr, 8, 1, 2, 25400, 15875, 2047},
    {0x5106, "Quorvia Draft L Touch", QVKeyLayout::G, nullptr, 8, 1, 2, 40640, 25400, 2047},
    // Four keys, one report speed
    {0x5107, "Quorvia Sketch 5", QVKeyLayout::C, "tabletpic3.jpg", 4, 0, 1, 12700, 7620, 1023},
    {0x5108, "Quorvia Sketch 6", QVKeyLayout::C, "tabletpic3.jpg", 4, 0, 1, 15240, 9525, 1023},
    {0x5109, "Quorvia Sketch 7", QVKeyLayout::C, "tabletpic3.jpg", 4, 0, 1, 17780, 11112, 1023},
    {0x510A, "Quorvia Sketch 8", QVKeyLayout::C, "tabletpic3.jpg", 4, 0, 1, 20320, 12700, 1023},
    {0x510B, "Quorvia Sketch 9", QVKeyLayout::C, "tabletpic3.jpg", 4, 0, 1, 22860, 14287, 1023},
    {0x510C, "Quorvia Folio 6", QVKeyLayout::C, "tabletpic4.jpg", 4, 0, 1, 15240, 9525, 1023},
    {0x510D, "Quorvia Folio 8", QVKeyLayout::C, "tabletpic4.jpg", 4, 0, 1, 20320, 12700, 1023},
    {0x510E, "Quorvia Folio 10", QVKeyLayout::C, "tabletpic4.jpg", 4, 0, 1, 25400, 15875, 1023},
    {0x510F, "Quorvia Folio 12", QVKeyLayout::C, "tabletpic4.jpg", 4, 0, 1, 30480, 19050, 1023},
    // Four keys
    {0x5110, "Quorvia Pocket", QVKeyLayout::D, nullptr, 4, 0, 1, 10160, 6350, 1023},
    {0x5111, "Quorvia Pocket Air", QVKeyLayout::D, nullptr, 4, 0, 1, 10160, 6350, 1023},
    {0x5112, "Quorvia Pocket Max", QVKeyLayout::D, nullptr, 4, 0, 1, 15240, 9525, 1023},
    // Five keys
    {0x5113, "Quorvia Etch M", QVKeyLayout::E, "tabletpic1.jpg", 5, 0, 1, 25400, 15875, 2047},
    {0x5114, "Quorvia Etch L", QVKeyLayout::E, "tabletpic1.jpg", 5, 0, 1, 40640, 25400, 2047},
    // Seven keys; the first has a pen with one button
    {0x5115, "Quorvia Contour Lite", QVKeyLayout::F, "tabletpic2.jpg", 7, 0, 1, 25400, 15875, 1023},
    {0x5116, "Quorvia Contour", QVKeyLayout::F, "tabletpic2.jpg", 7, 0, 2, 30480, 19050, 2047},
    {0x5117, "Quorvia Contour Pro", QVKeyLayout::F, "tabletpic2.jpg", 7, 0, 2, 40640, 25400, 8191},
    // Eight keys and a strip
    {0x5118, "Quorvia Fresco 13", QVKeyLayout::A, "tabletpic5.png", 8, 1, 2, 29376, 16524, 8191},
    {0x5119, "Quorvia Fresco 16", QVKeyLayout::A, "tabletpic5.png", 8, 1, 2, 34419, 19358, 8191},
    {0x511A, "Quorvia Fresco 19", QVKeyLayout::A, nullptr, 8, 1, 2, 41000, 25600, 8191},
    {0x511B, "Quorvia Fresco 22", QVKeyLayout::A, nullptr, 8, 1, 2, 47664, 26811, 8191},
    {0x511C, "Quorvia Fresco 24", QVKeyLayout::A, nullptr, 8, 1, 2, 52704, 29646, 8191},
    {0x511D, "Quorvia Fresco 27", QVKeyLayout::A, nullptr, 8, 1, 2, 59674, 33566, 8191},
    // Nothing but the pen
    {0x511E, "Quorvia Note A6", QVKeyLayout::B, nullptr, 0, 0, 1, 14800, 10500, 1023},
    {0x511F, "Quorvia Note A5", QVKeyLayout::B, nullptr, 0, 0, 1, 21000, 14800, 1023},
    {0x5120, "Quorvia Note A4", QVKeyLayout::B, nullptr, 0, 0, 1, 29700, 21000, 1023},
    {0x5121, "Quorvia Sign", QVKeyLayout::B, nullptr, 0, 0, 1, 9600, 6000, 511},
    // No keys at all
    {0x5122, "Quorvia Slate", QVKeyLayout::H, "tabletpic7.png", 0, 0, 1, 25400, 15875, 2047},
});
// clang-format on

/** Returns the model with that product ID; null if it is unknown. */
constexpr const QVTabletModel* QVFindModel(std::uint16_t productID)
{
    const auto* const found =
        std::ranges::find(kQVTabletModels, productID, &QVTabletModel::productID);
    return found == kQVTabletModels.end() ? nullptr : found;
}
