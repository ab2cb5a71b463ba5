// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace platform {

/** Waiting that blocks the caller, where the work itself asks for it. */
class Sleep {
public:
    virtual ~Sleep() = default;

    virtual void sleepFor(std::chrono::milliseconds time) = 0;
};

/** The thread's own sleep, or what a ServiceScope<Sleep> has put in its place. */
Sleep& sleeper();

} // namespace platform
