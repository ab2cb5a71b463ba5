// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <QWidget>

namespace platform {

/**
 * A page of a tab widget that affects the window's size only while it is shown.
 *
 * A tab widget asks all its pages for their size, which makes even pages that were never opened lay
 * out all their texts. Instead, a hidden page returns a fixed size, in points that grow with the
 * text as in a PointCanvas, so that the window is large enough for it from the start.
 */
class TabPage final : public QWidget {
    Q_OBJECT

public:
    static constexpr QSize kRoom{800, 450}; ///< preferred size of a hidden page, in points
    static constexpr QSize kLeast{600, 300}; ///< its minimum size, in points

    using QWidget::QWidget;

    QSize sizeHint() const override
    {
        return isHidden() ? kRoom * pixelsPerPoint(font()) : QWidget::sizeHint();
    }
    /** A hidden page needs kLeast, which is no more than the visible page needs. */
    QSize minimumSizeHint() const override
    {
        return isHidden() ? kLeast * pixelsPerPoint(font()) : QWidget::minimumSizeHint();
    }
};

} // namespace platform
