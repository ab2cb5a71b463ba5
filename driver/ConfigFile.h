// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletModels.h"
#include "Result.h"

/**
 * Creates the model's configuration file, "<product ID>.plist", with every entry that a panel
 * knows, and says so. An existing file is never touched, whatever it contains.
 */
platform::Result<> installConfigFile(const QVTabletModel& model);
