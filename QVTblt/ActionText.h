// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <QString>

/** Describes a button's action to the user: "Left mouse button". */
QString actionText(const tagQVTabletInfoSubKey& slot);

/**
 * Describes a strip's action to the user.
 *
 * @param field Scrollbar0 or Scrollbar1; 0 is on
 */
QString stripText(std::int16_t field, std::int16_t speed);
