// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TabletSettings.h"

#include <atomic>

/**
 * Hands the settings from the main thread to the input thread, as a whole, without locks. The input
 * thread neither allocates nor frees memory: the main thread frees what was replaced.
 */
class SettingsExchange {
public:
    explicit SettingsExchange(const TabletSettings& settings);
    ~SettingsExchange();
    SettingsExchange(const SettingsExchange&) = delete;
    SettingsExchange& operator=(const SettingsExchange&) = delete;

    /** Main thread: replaces the settings. Only the last of several reaches the input thread. */
    void publish(const TabletSettings& settings);

    /** Input thread: the settings in force, valid until the next call. */
    const TabletSettings& take();

private:
    struct Version {
        TabletSettings settings;
        Version* next = nullptr; ///< of those to be freed
    };

    static void freeAll(Version* version);

    std::atomic<Version*> mPublished{nullptr}; ///< not taken yet
    std::atomic<Version*> mReplaced{nullptr}; ///< to be freed by the main thread
    Version* mInUse; ///< by the input thread
};
