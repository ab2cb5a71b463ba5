// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PointCanvas.h"

#include <QEvent>

#include <cmath>

namespace platform {

PointCanvas::PointCanvas(QWidget* parent)
    : QWidget(parent)
{
}

void PointCanvas::takePlaces()
{
    mSize = minimumSize();
    const auto children = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* const child : children) {
        const QRect place = child->geometry();
        mFrames.insert(child,
            {static_cast<double>(place.x()),
                static_cast<double>(mSize.height() - place.y() - place.height()),
                static_cast<double>(place.width()), static_cast<double>(place.height())});
    }
    mFramesAtFirst = mFrames;
    rescale();
}

void PointCanvas::restorePlaces()
{
    mFrames = mFramesAtFirst;
    rescale();
}

Rect PointCanvas::frameOf(const QWidget& child) const
{
    return mFrames.value(&child);
}

void PointCanvas::setFrameOf(QWidget& child, const Rect& frame)
{
    mFrames.insert(&child, frame);
    place(child);
}

void PointCanvas::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const bool isNews =
        event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange;
    if (isNews && mSize.isValid()) {
        rescale();
    }
}

void PointCanvas::rescale()
{
    mScale = pixelsPerPoint(font());
    setFixedSize(static_cast<int>(std::ceil(mSize.width() * mScale)),
        static_cast<int>(std::ceil(mSize.height() * mScale)));
    const auto children = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* const child : children) {
        place(*child);
    }
}

void PointCanvas::place(QWidget& child) const
{
    const auto found = mFrames.constFind(&child);
    if (found == mFrames.constEnd()) {
        return;
    }
    const auto pixels = [this](double points) {
        return static_cast<int>(std::lround(points * mScale));
    };
    const double left = isRightToLeft() ? mSize.width() - (found->x + found->width) : found->x;
    const double top = mSize.height() - (found->y + found->height);
    child.setGeometry(pixels(left), pixels(top), pixels(found->width), pixels(found->height));
}

} // namespace platform
