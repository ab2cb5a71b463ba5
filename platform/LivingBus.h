// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace platform {

/**
 * Whether a connection to the session bus can be made without waiting long: asks it over a socket
 * of its own for the first step of a connection.
 *
 * Connecting itself has no time-out that can be set; to a bus that hangs it takes 25 seconds, in
 * which all of the process's connections stand still.
 *
 * @param limit waits at most so long for the answer
 * @return false for a bus that takes connections and does not answer. True where there is no bus,
 *     which connecting tells at once, and where the bus is not reached over a Unix socket.
 */
bool sessionBusAnswers(std::chrono::milliseconds limit);

} // namespace platform
