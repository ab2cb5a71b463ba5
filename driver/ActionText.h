// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <QString>

/** What a button does, for people: "Left mouse button". */
QString actionText(const tagQVTabletInfoSubKey& slot);

/**
 * What a strip does, for people.
 *
 * @param field 0 when the strip is on
 */
QString stripText(std::int16_t field, std::int16_t speed);
