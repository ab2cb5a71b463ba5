// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Bundle.h"

/** The module's own bundle, for strings and pictures; the host's is never used. */
extern platform::Bundle rzkBundle;
