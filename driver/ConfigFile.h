// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletModels.h"
#include "Result.h"

#include <QString>

/** The result of installConfigFile(). */
struct InstalledConfig {
    QString path;
    bool created = false; ///< false: it existed, and was not touched
};

/**
 * Creates the model's configuration file, "<product ID>.plist", with every entry that a panel
 * knows. An existing file is never touched, whatever it contains.
 */
platform::Result<InstalledConfig> installConfigFile(const QVTabletModel& model);
