// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PaneView.h"

#include <QImage>

#include <cstdint>

/**
 * Shows the picture of the attached model, to identify its keys. Uses the record whenever it draws;
 * the picture's file is read only when the product, the required resolution, or the light or dark
 * theme has changed. Without a picture or its file, the view is empty.
 */
class QVKeyView final : public platform::PaneView {
    Q_OBJECT

public:
    using PaneView::PaneView;

    /** Describes the picture. */
    QString spokenContents() const override;

protected:
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;
    void changeEvent(QEvent* event) override;

private:
    QImage mBackgroundImage;
    std::int64_t productID_cached = 0; ///< the product of the current picture
    bool mIsDense = false; ///< the current picture is for high density
    bool mIsDark = false; ///< and for a dark theme
};
