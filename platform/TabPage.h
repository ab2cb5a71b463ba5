// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace platform {

/**
 * A page of a tab widget that has a say in the window's size only while it is the one that is
 * shown.
 *
 * A tab widget asks all its pages for their room, and those have to lay out every text on them
 * before they can tell, also where nobody has come to them yet. A hidden page gives an answer of
 * its own instead, in points that grow with the text as a PointCanvas's do, so that the window is
 * large enough for it from the beginning.
 */
class TabPage final : public QWidget {
    Q_OBJECT

public:
    static constexpr QSize kRoom{800, 450}; ///< what a hidden page would like, in points
    static constexpr QSize kLeast{600, 300}; ///< what it needs, in points

    using QWidget::QWidget;

    QSize sizeHint() const override;
    /** A hidden page needs kLeast: it adds nothing to what the page needs that is shown. */
    QSize minimumSizeHint() const override;
};

} // namespace platform
