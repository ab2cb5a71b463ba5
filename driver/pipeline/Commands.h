// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/** What one notch of a wheel counts, as for high-resolution wheels in Linux. */
inline constexpr std::int32_t kWheelNotch = 120;

/** Something to be done besides moving the pen. */
struct Command {
    enum class Kind : std::uint8_t {
        KeyDown, ///< value is a key code of Linux
        KeyUp,
        MouseDown, ///< value is a QVMouseButton
        MouseUp,
        Scroll, ///< value is in parts of kWheelNotch, positive away from the user
        Launch, ///< starts the application of the slot in value
        NextDisplay,
        Pause, ///< value is 1 when the pen is ignored from now on, 0 when it is not any longer
    };

    Kind kind;
    std::int32_t value;

    bool operator==(const Command&) const = default;
};

/** The commands of one frame, in order. Adding one does not allocate memory. */
class Commands {
public:
    void add(Command::Kind kind, std::int32_t value) { mCommands.at(mCount++) = {kind, value}; }
    void clear() { mCount = 0; }

    std::span<const Command> all() const { return {mCommands.data(), mCount}; }

private:
    /** Each of 18 buttons presses or releases at most three keys; two strips scroll. */
    std::array<Command, 64> mCommands{};
    std::size_t mCount = 0;
};
