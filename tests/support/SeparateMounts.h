// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <sched.h>
#include <sys/mount.h>

/** Moves this process into a mount namespace of its own. @return false without permission */
inline bool separateMounts()
{
    if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}
