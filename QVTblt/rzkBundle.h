// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Bundle.h"

/** The module's own bundle: strings and pictures are looked up here, never in the host's. */
extern platform::Bundle rzkBundle;
