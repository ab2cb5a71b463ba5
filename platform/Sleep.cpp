// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Sleep.h"

#include "Service.h"

#include <thread>

namespace platform {

namespace {

class ThreadSleep final : public Sleep {
public:
    void sleepFor(std::chrono::milliseconds time) override { std::this_thread::sleep_for(time); }
};

} // namespace

Sleep& sleeper()
{
    return currentService<Sleep, ThreadSleep>();
}

} // namespace platform
