// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tagQVTabletInfo.h"

#include <QString>

#include <array>
#include <cstddef>

/** An action that a button can have. */
struct Action {
    QVAction valid;
    QVMouseButton mouse; ///< of a mouse button only
    const char* text; ///< in English, for actionText()
};

/** The number of actions. */
inline constexpr std::size_t kActionCount = 10;

/** All actions, in the order in which the user's lists offer them. */
extern const std::array<Action, kActionCount> kActions;

/** The place of a button's action in kActions: the first, no action, if its values are unknown. */
std::size_t actionOf(const tagQVTabletInfoSubKey& slot);

/** The name of an action without its details: "Press keys…". */
QString actionText(const Action& action);

/** Describes a button's action to the user: "Left mouse button", "Press Ctrl Z". */
QString actionText(const tagQVTabletInfoSubKey& slot);

/**
 * Describes a strip's action to the user.
 *
 * @param field Scrollbar0 or Scrollbar1; 0 is on
 */
QString stripText(std::int16_t field, std::int16_t speed);
