// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletModels.h"
#include "Result.h"

#include <QString>

#include <cstdint>

/**
 * Creates the configuration file of a tablet, "<product ID>.plist", with every entry that a panel
 * knows, and says so. An existing file is never touched, whatever it contains.
 *
 * @param model from the table, or built from the kernel's description of a foreign tablet; the file
 * of a foreign tablet also holds its name, for the panel
 */
platform::Result<> installConfigFile(
    const QVTabletModel& model, std::uint16_t vendorID = kQVVendorID);

/**
 * Whether the file of a number can be that of a tablet: it has the tablet's vendor and name, or is
 * not there.
 */
bool mayBeConfigFileOf(std::uint16_t number, std::uint16_t vendorID, const QString& name);
