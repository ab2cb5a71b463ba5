// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "Result.h"
#include "tagQVTabletInfo.h"

/**
 * @file
 * Checks the panel's two events for their exact forms. Everything else is rejected, so that a
 * change on one side of the wire shows at once on the other.
 */

/** Checks that the event is a query for the configuration file. */
platform::Result<> checkQuery(const platform::AppleEvent& event);

/** The complete record that the event pushes. */
platform::Result<tagQVTabletInfo> pushedRecord(const platform::AppleEvent& event);
