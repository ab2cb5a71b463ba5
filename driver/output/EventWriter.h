// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "PenFrame.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <linux/input.h>

/** Collects events and writes them to a device at once. Does not allocate memory. */
class EventBuffer {
public:
    void add(unsigned type, unsigned code, std::int32_t value);

    /** Ends a frame, if anything was added since the last one ended. */
    void endFrame();

    /** Writes all of it with one system call, and forgets it. @return whether it was taken */
    bool writeTo(int fd);

private:
    std::array<input_event, 256> mEvents{};
    std::size_t mCount = 0;
    std::size_t mFrameBegin = 0;
};

/** Writes the frames of the virtual pen as events: what has changed, each frame with its time. */
class PenWriter {
public:
    /** @param fd the virtual pen, a uinput device */
    explicit PenWriter(int fd)
        : mFd(fd)
    {
    }

    /**
     * Writes a frame. A pen that leaves does so with its tip and buttons up; another end of the pen
     * comes after the first one has left. A pen that stays out of reach writes nothing.
     *
     * @return whether the device took it
     */
    bool write(const PenFrame& frame);

private:
    void leave();
    void arrive(const PenFrame& frame);
    void stay(const PenFrame& frame);
    void stamp(std::chrono::microseconds time);

    int mFd;
    PenFrame mLast{}; ///< what the device has, also while the pen is out of reach
    EventBuffer mEvents;
};

/** Writes the commands that are key strokes, mouse buttons and scrolling. */
class CommandWriter {
public:
    /**
     * @param keyboard the virtual keyboard, a uinput device
     * @param pointer the virtual pointer with buttons and a wheel, another one
     */
    CommandWriter(int keyboard, int pointer)
        : mKeyboard(keyboard)
        , mPointer(pointer)
    {
    }

    /** Writes them in order; others are left alone. @return whether the devices took them */
    bool write(const Commands& commands);

private:
    void scroll(std::int32_t amount);

    int mKeyboard;
    int mPointer;
    std::int32_t mNotches = 0; ///< scrolled since the last whole notch, in 120ths
    EventBuffer mKeys;
    EventBuffer mMouse;
};
