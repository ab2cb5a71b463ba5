// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PaneView.h"

#include <QImage>

#include <cstdint>

/**
 * Shows the picture of the attached model, so that a person finds the keys. Looks at the record
 * whenever it draws; the picture's file is read only when the product has changed, when the view
 * has come to have more pixels than it, or no more, or when the theme has become dark or light. A
 * model without a picture, or one whose file is missing, leaves the view empty.
 */
class QVKeyView final : public platform::PaneView {
    Q_OBJECT

public:
    using PaneView::PaneView;

    /** Whose picture it is. */
    QString spokenContents() const override;

protected:
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;
    void changeEvent(QEvent* event) override;

private:
    QImage mBackgroundImage;
    std::int64_t productID_cached = 0; ///< the product that the picture was chosen for
    bool mIsDense = false; ///< the picture was chosen for a view of more pixels than points
    bool mIsDark = false; ///< and for a dark theme
};
