// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"

#include <QString>

/**
 * @file
 * Checks the panel's two events for their exact forms. Everything else is rejected, so that a
 * change on one side of the wire shows at once on the other.
 */

/** Why the event is not a query for the configuration file; empty if it is. */
QString queryFormError(const platform::AppleEvent& event);

/** Why the event is not a push of a complete record; empty if it is. */
QString settingsFormError(const platform::AppleEvent& event);
