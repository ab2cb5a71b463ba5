// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace platform {

/**
 * Has the wheel turn a control, a slider or a list, only while the control has the keyboard's
 * focus. Otherwise the page scrolls: whoever scrolls through it must not change settings that the
 * pointer happens to pass. The wheel does not bring the focus either.
 */
void ignoreWheelWithoutFocus(QWidget& control);

} // namespace platform
