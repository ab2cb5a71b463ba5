// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletModels.h"

#include <QString>

/** What became of a model's configuration file. */
struct InstalledConfig {
    QString path;
    bool created = false; ///< false: the user had one, and it was left alone
    QString error; ///< why there is none; empty when there is one
};

/**
 * Sees that the user has the model's configuration file, "<product ID>.plist", with every entry
 * that a panel knows. One that is there, whatever it holds, is never touched.
 */
InstalledConfig installConfigFile(const QVTabletModel& model);
