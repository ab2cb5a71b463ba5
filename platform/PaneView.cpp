// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneView.h"

#include "PointCanvas.h"

#include <QPainter>
#include <QScopedValueRollback>

namespace platform {

namespace {

/** Dots in a metre where a point has one pixel: 72 to the inch. */
constexpr double kDotsPerMetre = 72.0 / 0.0254;

QRectF toQRect(const Rect& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

} // namespace

PaneView::PaneView(QWidget* parent)
    : QWidget(parent)
{
}

double PaneView::pixelsPerPoint() const
{
    const auto* const canvas = qobject_cast<const PointCanvas*>(parentWidget());
    return canvas == nullptr ? 1.0 : canvas->scale();
}

Rect PaneView::bounds() const
{
    const double scale = pixelsPerPoint();
    return {0, 0, width() / scale, height() / scale};
}

void PaneView::setNeedsDisplay()
{
    mNeedsDisplay = true;
    update();
}

void PaneView::setNeedsDisplayInRect(const Rect& rect)
{
    mNeedsDisplay = mNeedsDisplay || !mIsDrawing;
    const double scale = pixelsPerPoint();
    update(QRectF(rect.x * scale, height() - (rect.y + rect.height) * scale, rect.width * scale,
        rect.height * scale)
               .toAlignedRect());
}

void PaneView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setNeedsDisplay();
}

void PaneView::paintEvent(QPaintEvent* event)
{
    static_cast<void>(event);
    const double density = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * density).toSize();
    if (mNeedsDisplay || mStore.size() != pixels || mStore.devicePixelRatio() != density) {
        mNeedsDisplay = false;
        mStore = QPixmap(pixels);
        mStore.setDevicePixelRatio(density);
        mStore.fill(Qt::transparent);
        QPainter painter(&mStore);
        const double scale = pixelsPerPoint();
        painter.translate(0, height());
        painter.scale(scale, -scale);
        const QScopedValueRollback drawing(mIsDrawing, true);
        drawRect(painter, bounds());
    }
    QPainter(this).drawPixmap(0, 0, mStore);
}

void drawText(QPainter& painter, const QString& text, double x, double y)
{
    painter.save();
    painter.translate(x, y);
    painter.scale(1, -1);
    painter.drawText(QPointF(0, -painter.fontMetrics().descent()), text);
    painter.restore();
}

Rect imageBounds(const QImage& image)
{
    return {0, 0, image.width() * kDotsPerMetre / image.dotsPerMeterX(),
        image.height() * kDotsPerMetre / image.dotsPerMeterY()};
}

void drawImage(QPainter& painter, const QImage& image, const Rect& target, const Rect& source)
{
    const double acrossPoint = image.dotsPerMeterX() / kDotsPerMetre;
    const double alongPoint = image.dotsPerMeterY() / kDotsPerMetre;
    // Of the image, the first row is the upper one.
    const QRectF pixels(source.x * acrossPoint,
        image.height() - (source.y + source.height) * alongPoint, source.width * acrossPoint,
        source.height * alongPoint);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(0, 2 * target.y + target.height);
    painter.scale(1, -1);
    painter.drawImage(toQRect(target), image, pixels);
    painter.restore();
}

} // namespace platform
