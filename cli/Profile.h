// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"

#include <QString>

/** Lists, uses and keeps the tablet's profiles, and exchanges them with others. */
int runProfile(const Arguments& arguments);

/** Whether the command pushes settings, which depend on the displays. */
bool profileNeedsDisplays(const Arguments& arguments);
