// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"
#include "Result.h"

#include <QString>

#include <memory>

/** The result of loadPane(). */
struct LoadedPane {
    platform::Result<std::unique_ptr<platform::PreferencePane>> pane;
    platform::Bundle bundle; ///< the module's, even if there is no pane
};

/**
 * Loads a module's plug-in and creates its pane, initialised with its bundle.
 *
 * @param modulePath the plug-in's file
 * @param resourcesPath the bundle's folder, relative to the plug-in's
 */
LoadedPane loadPane(const QString& modulePath, const QString& resourcesPath);
