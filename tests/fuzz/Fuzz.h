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
 * What the fuzzers share. Each has a file of its own, which says what its input is and what must
 * hold of it, and defines the two functions by which libFuzzer knows it.
 */

/** Makes the process's application, whose windows are drawn nowhere; once. */
void startApplication(int* argc, char*** argv);

/**
 * Ends the process, as a find, unless the condition holds. @param what names what ought to hold
 */
void require(bool condition, const char* what);

/** Replaces a file's contents, fast. */
void putFile(const QString& path, std::span<const std::uint8_t> bytes);

/** A fuzzer's input, taken from its beginning. Behind its end there are zeroes. */
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

    /** At most so many bytes: fewer at the end. */
    std::span<const std::uint8_t> bytes(std::size_t count)
    {
        const auto taken = mBytes.first(std::min(count, mBytes.size()));
        mBytes = mBytes.subspan(taken.size());
        return taken;
    }

private:
    std::span<const std::uint8_t> mBytes;
};
