// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVDrawView.h"

#include "QVNSView.h"

#include <QLabel>
#include <QLocale>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

using platform::Event;
using platform::eventMask;
using platform::EventType;

namespace {

constexpr float kWidest = 50; ///< points, at full pressure
constexpr float kUsualWidth = 25;
constexpr double kRawPressure = 65535; ///< full pressure, as displayed

constexpr std::uint32_t kDrawn =
    eventMask(EventType::TabletPoint) | eventMask(EventType::LeftMouseDragged);
constexpr std::uint32_t kTracked =
    kDrawn | eventMask(EventType::LeftMouseUp) | eventMask(EventType::TabletProximity);
constexpr std::uint32_t kDragged =
    eventMask(EventType::LeftMouseUp) | eventMask(EventType::LeftMouseDragged);
static_assert(kTracked == 0x1800044 && kDrawn == 0x800040 && kDragged == 68);

/** The pad's background, which is also the colour of the eraser. */
constexpr Qt::GlobalColor kGround = Qt::lightGray;

/** Compares exactly, unlike Qt's own operator. */
bool isSame(const QPointF& one, const QPointF& other)
{
    return one.x() == other.x() && one.y() == other.y();
}

/** A number with up to two decimals, in the locale's format, without group separators. */
QString decimals(double number)
{
    constexpr double kHundred = 100;
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale.toString(
        std::round(number * kHundred) / kHundred, 'f', QLocale::FloatingPointShortest);
}

} // namespace

QVDrawView::QVDrawView(QWidget* parent)
    : PenView(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent); // its background is opaque
}

void QVDrawView::awakeFromNib()
{
    setCaptureMouseMoves(mCapturesMouseMoves);
    platform::notifications().addObserver(*this, kProximityNotification,
        [this](const platform::Notification& notification) { handleProximity(notification); });
}

void QVDrawView::setCaptureMouseMoves(bool captures)
{
    mCapturesMouseMoves = captures;
    setAcceptsMouseMovedEvents(captures);
}

void QVDrawView::drawRect(QPainter& painter, const platform::Rect& dirty)
{
    const platform::Rect all = bounds();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(all.x, all.y, all.width, all.height), kGround);
    platform::frameRect(painter, dirty);
}

// Strokes ----------------------------------------------------------------------------------------

void QVDrawView::mouseDown(const Event& event)
{
    handleMouseEvent(event);
    queue().beginTracking();
}

void QVDrawView::trackEvents()
{
    while (const auto event = queue().nextEventMatchingMask(mIsDragging ? kDragged : kTracked)) {
        if (event->type == EventType::LeftMouseUp) {
            queue().endTracking();
            if (!std::exchange(mIsDragging, false)) {
                cachedPressure.fill(0);
                cachedLastLoc = {};
                handleMouseEvent(*event);
            }
            return;
        }
        if (mIsDragging) {
            drawCurrentDataFromEvent(*event);
            showPressure(mDrawnPressure);
        } else if (event->type == EventType::LeftMouseDragged
            || (event->type == EventType::TabletPoint && event->pressure != 0)) {
            drawWaiting(*event);
        }
    }
}

/** Draws the event and all that have arrived since, and shows them at once. */
void QVDrawView::drawWaiting(const Event& event)
{
    drawCurrentDataFromEvent(event);
    while (const auto next = queue().nextEventMatchingMask(kDrawn)) {
        drawCurrentDataFromEvent(*next);
    }
    showPressure(mDrawnPressure);
    flushWindow();
}

void QVDrawView::mouseDragged(const Event& event)
{
    if (mUpdatesStatsDuringDrag) {
        drawCurrentDataFromEvent(event);
        handleMouseEvent(event);
    } else {
        mIsDragging = true;
        queue().beginTracking();
    }
}

void QVDrawView::tabletPoint(const Event& event)
{
    handleMouseEvent(event);
    drawCurrentDataFromEvent(event);
    showPressure(mDrawnPressure);
    flushWindow();
}

/** The mean of this pressure and the last smoothed ones: a recursive filter. */
float QVDrawView::smoothed(float pressure)
{
    const float sum = std::accumulate(cachedPressure.begin(), cachedPressure.end(), pressure);
    const float mean = sum / static_cast<float>(cachedPressure.size() + 1);
    std::rotate(cachedPressure.begin(), cachedPressure.begin() + 1, cachedPressure.end());
    cachedPressure.back() = mean;
    return mean;
}

void QVDrawView::drawCurrentDataFromEvent(const Event& event)
{
    const QPointF to = event.type == EventType::TabletPoint
        ? mLastLoc // it has no position of its own
        : convertPointFromWindow(event.locationInWindow);
    const float pressure = mAdjustSize ? smoothed(event.pressure) : event.pressure;
    const float width = mAdjustSize ? kWidest * pressure : kUsualWidth;
    const double half = width * 0.5F;
    mDrawnPressure = pressure;

    QColor color(mIsErasing ? kGround : Qt::black);
    color.setAlphaF(mAdjustOpacity ? pressure : 1);
    QPainter& painter = lockFocus();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.moveTo(mLastLoc);
    if (isSame(mLastLoc, to)) {
        path.addEllipse(QRectF(to.x() - half, to.y() - half, width, width));
        painter.fillPath(path, color);
    } else {
        const QPointF control = isSame(cachedLastLoc, {}) ? to : (cachedLastLoc + to) * 0.5;
        path.cubicTo(control, control, to);
        painter.strokePath(path, QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    }
    const double margin = half + 1; // antialiasing reaches into the next pixel
    unlockFocus({std::min(mLastLoc.x(), to.x()) - margin, std::min(mLastLoc.y(), to.y()) - margin,
        std::abs(to.x() - mLastLoc.x()) + 2 * margin,
        std::abs(to.y() - mLastLoc.y()) + 2 * margin});
    mLastLoc = to;
    cachedLastLoc = to;
}

// Statistics -------------------------------------------------------------------------------------

void QVDrawView::handleMouseEvent(const Event& event)
{
    mStats.mEventType = event.type;
    mStats.mAbsX = event.absoluteX;
    mStats.mAbsY = event.absoluteY;
    mStats.mTiltX = static_cast<float>(event.tilt.x());
    mStats.mTiltY = static_cast<float>(event.tilt.y());
    if (event.type == EventType::LeftMouseDown) {
        mLastLoc = convertPointFromWindow(event.locationInWindow);
        return;
    }
    if (event.type != EventType::TabletPoint) {
        mStats.mMouseX = static_cast<float>(event.locationInWindow.x());
        mStats.mMouseY = static_cast<float>(event.locationInWindow.y());
    }
    mStats.mPressure = event.type == EventType::MouseMoved ? 0 : event.pressure;
    showPressure(event.pressure);
    if (event.type == EventType::TabletPoint || event.subtype == platform::kTabletPointSubtype) {
        mStats.mRotDeg = event.rotation;
        mStats.mDeviceID = event.deviceID;
    }
    postStats();
}

void QVDrawView::showPressure(float pressure)
{
    txtRawTabletPressure->setText(decimals(pressure * kRawPressure));
    mShownPressure = pressure;
    contentsChanged();
}

QString QVDrawView::spokenContents() const
{
    //: Read by screen readers for the drawing pad; %1 is 0 to 100.
    return tr("Pressure %1 %").arg(std::lround(mShownPressure * 100));
}

void QVDrawView::postStats()
{
    platform::notifications().post({kStatsUpdatedNotification, this, {}});
}

void QVDrawView::handleProximity(const platform::Notification& notification)
{
    if (const auto event = notification.userInfo.value(kProximityEventKey)) {
        mIsErasing = event->pointingDeviceType == platform::PointingDeviceType::Eraser;
    } else if (!notification.userInfo.contains(kProximityEventCarbonKey)) {
        qFatal("Assertion failed: (proxData), function -[QVDrawView handleProximity:], "
               "file QVTblt/QVDrawView, line 102.");
    }
    postStats();
}
