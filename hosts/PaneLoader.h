// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QString>

#include <memory>

/** A pane, or why there is none. */
struct LoadedPane {
    std::unique_ptr<platform::PreferencePane> pane;
    QString error; ///< for people; empty when there is a pane
    platform::Bundle bundle; ///< the module's, with or without a pane
};

/**
 * Loads a module's plug-in and makes a pane of it, initialised with its bundle.
 *
 * @param modulePath the plug-in's file
 * @param resourcesPath the bundle's folder, seen from the plug-in's
 */
LoadedPane loadPane(const QString& modulePath, const QString& resourcesPath);
