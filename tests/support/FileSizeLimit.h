// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

/** For its lifetime, no file of this process can grow beyond a size: the disk seems to be full. */
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
        : mHandlerBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &mBefore), 0);
        const rlimit limit{bytes, mBefore.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit()
    {
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &mBefore), 0);
        std::signal(SIGXFSZ, mHandlerBefore);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    FileSizeLimit(FileSizeLimit&&) = delete;
    FileSizeLimit& operator=(FileSizeLimit&&) = delete;

private:
    void (*mHandlerBefore)(int);
    rlimit mBefore{};
};
