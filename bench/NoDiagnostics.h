// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <unistd.h>

/** Discards the diagnostics of pushes, as for a host without a terminal. */
class NoDiagnostics {
public:
    NoDiagnostics()
        : mBefore(::dup(STDERR_FILENO))
    {
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nowhere, STDERR_FILENO);
        ::close(nowhere);
    }
    ~NoDiagnostics()
    {
        ::dup2(mBefore, STDERR_FILENO);
        ::close(mBefore);
    }
    NoDiagnostics(const NoDiagnostics&) = delete;
    NoDiagnostics& operator=(const NoDiagnostics&) = delete;

private:
    int mBefore;
};
