// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

/** A file descriptor, or none if negative, that is closed at the end of its scope. */
class Descriptor {
public:
    explicit Descriptor(int fd)
        : mFd(fd)
    {
    }
    ~Descriptor()
    {
        if (mFd >= 0) {
            ::close(mFd);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return mFd; }

private:
    int mFd;
};
