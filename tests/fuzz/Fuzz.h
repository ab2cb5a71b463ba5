// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

/**
 * @file
 * What the fuzzers share. Each has its own file, which describes its input and what must hold, and
 * defines libFuzzer's two entry points.
 */

/** Creates the process's application, with offscreen windows; call it once. */
void startApplication(int* argc, char*** argv);

/** Reports a find by ending the process, unless the condition holds. @param what should hold */
void require(bool condition, const char* what);

/** Replaces a file's contents, fast. */
void putFile(const QString& path, std::span<const std::uint8_t> bytes);

/** A fuzzer's input, consumed from its beginning. Beyond its end there are zeros. */
class Input {
public:
    explicit Input(std::span<const std::uint8_t> bytes)
        : mBytes(bytes)
    {
    }

    bool isEmpty() const { return mBytes.empty(); }

    std::uint8_t byte()
    {
        const std::uint8_t value = mBytes.empty() ? std::uint8_t{0} : mBytes.front();
        mBytes = mBytes.subspan(mBytes.empty() ? 0 : 1);
        return value;
    }

    /** Least significant byte first. */
    std::uint16_t word()
    {
        const unsigned low = byte();
        return static_cast<std::uint16_t>(low | static_cast<unsigned>(byte()) << 8U);
    }
    std::uint32_t number()
    {
        const std::uint32_t low = word();
        return low | std::uint32_t{word()} << 16U;
    }

    /** At most that many bytes: fewer at the end. */
    std::span<const std::uint8_t> bytes(std::size_t count)
    {
        const auto taken = mBytes.first(std::min(count, mBytes.size()));
        mBytes = mBytes.subspan(taken.size());
        return taken;
    }

private:
    std::span<const std::uint8_t> mBytes;
};
