// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Descriptor.h"

#include <array>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

/** Both ends of a pipe, both negative if it could not be created. */
struct Pipe {
    /** @param flags of pipe2(), besides O_CLOEXEC */
    explicit Pipe(int flags = 0)
    {
        std::array<int, 2> ends{-1, -1};
        [[maybe_unused]] const int made = ::pipe2(ends.data(), O_CLOEXEC | flags);
        reading = std::make_unique<Descriptor>(ends[0]);
        writing = std::make_unique<Descriptor>(ends[1]);
    }

    std::unique_ptr<Descriptor> reading;
    std::unique_ptr<Descriptor> writing;
};
