// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Geometry.h"

#include "PointCanvas.h"

#include <QWidget>

#include <cmath>

namespace platform {

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
