// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"

#include <QString>

/**
 * @file
 * The exact forms of the panel's two events. Everything else is refused, so that a change on one
 * side of the wire shows on the other at once.
 */

/** Why the event is no query for the configuration file; empty when it is one. */
QString queryFormError(const platform::AppleEvent& event);

/** Why the event is no push of a whole record; empty when it is one. */
QString settingsFormError(const platform::AppleEvent& event);
