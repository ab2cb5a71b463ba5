// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QScreen>
#include <QWidget>

/** The part of a screen's width and height that a dialog may have. */
inline constexpr double kMostOfScreen = 0.9;

/** Gives a window the size of its hint, or most of its screen where that is smaller. */
inline void resizeWithinScreen(QWidget& window)
{
    window.resize(window.sizeHint().boundedTo(window.screen()->availableSize() * kMostOfScreen));
}
