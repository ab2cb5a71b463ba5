// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletSurface.h"

#include "QtVersions.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

using platform::placeOf;

namespace {

constexpr qreal kMargin = 3; ///< around the surface, for the focus frame
constexpr qreal kRing = 6; ///< radius of the ring around the pen
constexpr int kLargeSteps = 10;

/** The direction of an arrow key. */
struct Arrow {
    int key;
    int right;
    int down;
};
constexpr auto kArrows = std::to_array<Arrow>(
    {{Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}});

QVTabletPoint middle(const QVTabletArea& range)
{
    return {static_cast<std::uint16_t>((range.xmin + range.xmax) / 2),
        static_cast<std::uint16_t>((range.ymin + range.ymax) / 2)};
}

/** Moves a coordinate to the middle of a pixel, so that a thin line covers just one. */
qreal crisp(qreal place)
{
    return std::floor(place) + 0.5;
}

} // namespace

TabletSurface::TabletSurface(QWidget* parent)
    : QWidget(parent)
    , Accessible(static_cast<QWidget&>(*this), QAccessible::Canvas)
{
    //: Read by screen readers: the part of the tablet on which the pen draws.
    setAccessibleName(tr("Surface"));
    setAccessibleDescription(tr(
        "The tablet's surface. Press the mouse here to touch it with the pen. The arrow keys move "
        "the pen, with Shift in large steps; the space bar holds it down."));
    connect(this, &TabletSurface::penChanged, this, [this] { contentsChanged(); });
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TabletSurface::setTablet(const QVTabletArea& range)
{
    mHeldBy = Holder::Nobody; // a tablet that is disconnected reports no lift
    if (mRange != range) {
        mRange = range;
        mPen = middle(range);
    }
    updateGeometry();
    update();
    Q_EMIT penChanged();
}

void TabletSurface::setRange(const QVTabletArea& range)
{
    if (mRange != range) {
        mRange = range;
        updateGeometry();
        movePen(moved(mPen, 0, 0, range));
    }
}

void TabletSurface::setMapped(const std::optional<QVTabletArea>& area)
{
    mMapped = area;
    update();
}

void TabletSurface::showPen(const QVTabletPoint& pen)
{
    if (!isPenDown()) {
        movePen(pen);
    }
}

QRectF TabletSurface::surface() const
{
    return surfaceRect(QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin), mRange);
}

QString TabletSurface::spokenContents() const
{
    //: Read by screen readers; %1 is x, %2 is y, in tablet units.
    const QString down = tr("The pen is down at %1, %2.");
    //: Read by screen readers; %1 is x, %2 is y, in tablet units.
    const QString up = tr("The pen is up at %1, %2.");
    return (isPenDown() ? down : up).arg(QString::number(mPen.x), QString::number(mPen.y));
}

QSize TabletSurface::sizeHint() const
{
    // Whatever range the settings contain, the window has to fit on a screen.
    constexpr QSize kLargest{480, 480};
    constexpr QSize kSmallest{60, 60};
    const QSize range(
        std::max(mRange.xmax - mRange.xmin, 1), std::max(mRange.ymax - mRange.ymin, 1));
    return range.scaled(kLargest, Qt::KeepAspectRatio).expandedTo(kSmallest);
}

void TabletSurface::paintEvent(QPaintEvent* event)
{
    static_cast<void>(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outer = surface();
    const QRectF sheet(QPointF(crisp(outer.left()), crisp(outer.top())),
        QPointF(crisp(outer.right() - 1), crisp(outer.bottom() - 1)));
    const QColor text = palette().color(QPalette::Text);
    QColor line = text;
    line.setAlphaF(0.6F); // fainter than the pen, but visible in every theme
    painter.setPen(QPen(line, 1));
    painter.setBrush(palette().base());
    painter.drawRect(sheet);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(sheet.adjusted(-2, -2, 2, 2));
    }
    painter.setClipRect(outer);
    const QRectF mapped = mMapped ? areaRect(*mMapped, outer, mRange).intersected(sheet) : QRectF();
    if (!mapped.isEmpty()) {
        QColor inside = palette().color(QPalette::Highlight);
        inside.setAlphaF(0.12F);
        painter.setPen(QPen(text, 2));
        painter.setBrush(inside);
        painter.drawRect(mapped.adjusted(1, 1, -1, -1));
    }
    const QPointF pen = toPlace(mPen, outer, mRange);
    painter.setPen(QPen(line, 1));
    painter.drawLine(QPointF(outer.left(), crisp(pen.y())), QPointF(outer.right(), crisp(pen.y())));
    painter.drawLine(QPointF(crisp(pen.x()), outer.top()), QPointF(crisp(pen.x()), outer.bottom()));
    painter.setPen(QPen(text, 1.5));
    painter.setBrush(isPenDown() ? QBrush(text) : QBrush(Qt::NoBrush));
    painter.drawEllipse(pen, kRing, kRing);
}

void TabletSurface::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || isPenDown() || !surface().contains(placeOf(*event))) {
        return;
    }
    movePen(toTablet(placeOf(*event), surface(), mRange));
    hold(Holder::Mouse);
}

void TabletSurface::mouseMoveEvent(QMouseEvent* event)
{
    if (mHeldBy != Holder::SpaceBar) {
        movePen(toTablet(placeOf(*event), surface(), mRange));
    }
}

void TabletSurface::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        mouseMoveEvent(event);
        release(Holder::Mouse);
    }
}

void TabletSurface::keyPressEvent(QKeyEvent* event)
{
    const int steps = event->modifiers().testFlag(Qt::ShiftModifier) ? kLargeSteps : 1;
    const auto* const arrow = std::ranges::find(kArrows, event->key(), &Arrow::key);
    if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat() && !isPenDown()) {
            hold(Holder::SpaceBar);
        }
    } else if (arrow == kArrows.end()) {
        QWidget::keyPressEvent(event);
    } else if (mHeldBy != Holder::Mouse) {
        movePen(moved(mPen, arrow->right * steps, arrow->down * steps, mRange));
    }
}

void TabletSurface::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        release(Holder::SpaceBar);
    }
}

void TabletSurface::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    release(Holder::SpaceBar); // its release goes to another widget
}

void TabletSurface::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    release(mHeldBy);
}

void TabletSurface::hold(Holder holder)
{
    mHeldBy = holder;
    update();
    Q_EMIT penDown(mPen.x, mPen.y);
    Q_EMIT penChanged();
}

void TabletSurface::release(Holder holder)
{
    if (holder == Holder::Nobody || mHeldBy != holder) {
        return;
    }
    mHeldBy = Holder::Nobody;
    update();
    Q_EMIT penUp();
    Q_EMIT penChanged();
}

void TabletSurface::movePen(const QVTabletPoint& pen)
{
    if (pen.x == mPen.x && pen.y == mPen.y) {
        return;
    }
    mPen = pen;
    update();
    if (isPenDown()) {
        Q_EMIT penDragged(pen.x, pen.y);
    }
    Q_EMIT penChanged();
}
