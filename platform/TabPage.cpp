// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabPage.h"

#include "Geometry.h"

namespace platform {

QSize TabPage::sizeHint() const
{
    return isHidden() ? kRoom * pixelsPerPoint(font()) : QWidget::sizeHint();
}

QSize TabPage::minimumSizeHint() const
{
    return isHidden() ? kLeast * pixelsPerPoint(font()) : QWidget::minimumSizeHint();
}

} // namespace platform
