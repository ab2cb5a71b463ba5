// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace platform {

/**
 * Makes a control, a slider or a list, respond to the wheel only while it has the keyboard focus.
 * Otherwise the page scrolls, so that scrolling does not change settings under the pointer. The
 * wheel does not set the focus either.
 */
void ignoreWheelWithoutFocus(QWidget& control);

} // namespace platform
