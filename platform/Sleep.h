// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace platform {

/** Sleeps that block the caller, for pauses that are intended. */
class Sleep {
public:
    virtual ~Sleep() = default;

    virtual void sleepFor(std::chrono::milliseconds time) = 0;
};

/** Returns the thread's own sleep, or its replacement by a ServiceScope<Sleep>. */
Sleep& sleeper();

} // namespace platform
