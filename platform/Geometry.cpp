// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Geometry.h"

#include "PointCanvas.h"

#include <QFontInfo>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/** The text size of the interface files: ten points at 96 dots per inch. */
constexpr double kUsualPixels = 13.0;

} // namespace

double pixelsPerPoint(const QFont& font)
{
    return std::max(1.0, QFontInfo(font).pixelSize() / kUsualPixels);
}

Rect frame(const QWidget& control)
{
    if (const auto* const canvas = qobject_cast<const PointCanvas*>(control.parentWidget())) {
        return canvas->frameOf(control);
    }
    const QRect place = control.geometry();
    const QWidget* const parent = control.parentWidget();
    const int parentHeight = parent == nullptr ? 0 : parent->height();
    return {static_cast<double>(place.x()),
        static_cast<double>(parentHeight - (place.y() + place.height())),
        static_cast<double>(place.width()), static_cast<double>(place.height())};
}

void setFrame(QWidget& control, const Rect& frame)
{
    const QWidget* const parent = control.parentWidget();
    if (parent == nullptr) {
        return;
    }
    if (auto* const canvas = qobject_cast<PointCanvas*>(control.parentWidget())) {
        canvas->setFrameOf(control, frame);
        return;
    }
    const double top = parent->height() - (frame.y + frame.height);
    control.setGeometry(static_cast<int>(std::lround(frame.x)), static_cast<int>(std::lround(top)),
        static_cast<int>(std::lround(frame.width)), static_cast<int>(std::lround(frame.height)));
}

void sizeToFit(QWidget& control)
{
    Rect fitted = frame(control);
    const QSize size = control.sizeHint();
    fitted.width = size.width();
    fitted.height = size.height();
    setFrame(control, fitted);
}

} // namespace platform
