// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneView.h"

#include "PointCanvas.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

/** Dots per metre at one pixel per point: 72 per inch. */
constexpr double kDotsPerMetre = 72.0 / 0.0254;

QRectF toQRect(const Rect& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

} // namespace

PaneView::PaneView(QWidget* parent, QAccessible::Role role)
    : QWidget(parent)
    , Accessible(static_cast<QWidget&>(*this), role)
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
    contentsChanged();
}

void PaneView::setNeedsDisplayInRect(const Rect& rect)
{
    if (mIsDrawingAgain) {
        return; // drawing that requests itself would never end
    }
    if (mIsDrawing) {
        mAskedAgain.push_back(rect);
    } else {
        mNeedsDisplay = true;
    }
    update(toPixels(rect));
}

void PaneView::drawAgain(const Rect& dirty)
{
    const QRectF inside = toQRect(dirty).intersected(toQRect(bounds()));
    if (inside.isEmpty()) {
        return;
    }
    QPainter painter(&mStore);
    painter.setClipRect(toPixels(dirty));
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    beginPoints(painter);
    const QScopedValueRollback drawing(mIsDrawingAgain, true);
    drawRect(painter, {inside.x(), inside.y(), inside.width(), inside.height()});
}

QRect PaneView::toPixels(const Rect& rect) const
{
    const double scale = pixelsPerPoint();
    const QRectF pixels(rect.x * scale, height() - (rect.y + rect.height) * scale,
        rect.width * scale, rect.height * scale);
    return pixels.intersected(QRectF(this->rect())).toAlignedRect();
}

void PaneView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setNeedsDisplay();
}

void PaneView::beginPoints(QPainter& painter) const
{
    const double scale = pixelsPerPoint();
    painter.translate(0, height());
    painter.scale(scale, -scale);
}

void PaneView::updateStore()
{
    const double density = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * density).toSize().expandedTo({1, 1});
    if (mNeedsDisplay || mStore.size() != pixels || mStore.devicePixelRatio() != density) {
        sync();
        mNeedsDisplay = false;
        mAskedAgain.clear();
        mFocus.reset();
        mStore = QPixmap(pixels);
        mStore.setDevicePixelRatio(density);
        // Without an alpha channel, it is painted faster.
        mStore.fill(testAttribute(Qt::WA_OpaquePaintEvent) ? Qt::black : Qt::transparent);
        QPainter painter(&mStore);
        beginPoints(painter);
        const QScopedValueRollback drawing(mIsDrawing, true);
        drawRect(painter, bounds());
    } else if (!mAskedAgain.empty()) {
        mFocus.reset();
        for (const Rect& asked : std::exchange(mAskedAgain, {})) {
            drawAgain(asked);
        }
    }
}

void PaneView::paintEvent(QPaintEvent* event)
{
    static_cast<void>(event);
    updateStore();
    mFocus.reset();
    QPainter painter(this);
    painter.drawPixmap(0, 0, mStore);
    if (hasFocus() && (focusPolicy() & Qt::TabFocus) != 0) {
        drawFocusFrame(painter, rect(), palette());
    }
}

QPainter& PaneView::lockFocus()
{
    updateStore();
    if (!mFocus) { // it is kept until its drawing is painted
        mFocus.emplace(&mStore);
        beginPoints(*mFocus);
    }
    return *mFocus;
}

void PaneView::unlockFocus(const Rect& drawn)
{
    update(toPixels(drawn));
}

void PaneView::flushWindow()
{
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window(), &request);
}

void drawFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette)
{
    // Two lines of contrasting colours: in every theme, one of them contrasts with what is below.
    const auto line = [&painter, &rect](int inset, const QColor& color) {
        painter.setPen(color);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect.adjusted(inset, inset, -inset - 1, -inset - 1));
    };
    line(0, palette.color(QPalette::WindowText));
    line(1, palette.color(QPalette::WindowText));
    line(2, palette.color(QPalette::Window));
    line(3, palette.color(QPalette::Window));
}

void frameRect(QPainter& painter, const Rect& rect)
{
    // Four rectangles are filled faster than the path between two.
    const double wide = std::min(1.0, rect.width);
    const double high = std::min(1.0, rect.height);
    painter.fillRect(QRectF(rect.x, rect.y, rect.width, high), Qt::black);
    painter.fillRect(QRectF(rect.x, rect.y + rect.height - high, rect.width, high), Qt::black);
    painter.fillRect(QRectF(rect.x, rect.y, wide, rect.height), Qt::black);
    painter.fillRect(QRectF(rect.x + rect.width - wide, rect.y, wide, rect.height), Qt::black);
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
    // The first row of the image is the upper one.
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
