// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPressView.h"

#include "ChoiceSlider.h"
#include "Client.h"
#include "QVNSView.h"
#include "rzkApplication.h"

#include <QLabel>
#include <QPainterPath>
#include <QSignalBlocker>

namespace {

QString nameOf(const platform::Event& pen)
{
    const bool isEraser = pen.pointingDeviceType == platform::PointingDeviceType::Eraser;
    if (pen.uniqueID == 0) {
        //: The end of the pen that is near the tablet; a label below the drawing pad.
        const QString eraser = QVPressView::tr("Eraser");
        //: The end of the pen that is near the tablet; a label below the drawing pad.
        const QString tip = QVPressView::tr("Pen");
        return isEraser ? eraser : tip;
    }
    //: A label below the drawing pad.
    const QString eraser = QVPressView::tr("Eraser, serial number %1");
    //: A label below the drawing pad.
    const QString tip = QVPressView::tr("Pen, serial number %1");
    return (isEraser ? eraser : tip).arg(pen.uniqueID);
}

/** Draws a line one point wide that ends at the end of its path. */
void strokeLine(QPainter& painter, const QPainterPath& path)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(Qt::black, 1, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin));
}

} // namespace

QVPressView::QVPressView(QWidget* parent)
    : PaneView(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent); // its background is opaque
}

void QVPressView::setOutlets(platform::ChoiceSlider* slider, QLabel* penID)
{
    mSlider = slider;
    mPenID = penID;
    mSlider->setStored(
        [](int value) { return value / kSliderSteps == GetqvTabletInfo()->Pen.PressureThreshold; });
}

void QVPressView::awakeFromNib()
{
    platform::notifications().addObserver(*this, kProximityNotification,
        [this](const platform::Notification& notification) { handleProximity(notification); });
}

void QVPressView::handleProximity(const platform::Notification& notification)
{
    const auto event = notification.userInfo.value(kProximityEventKey);
    if (event) {
        //: A label below the drawing pad: no pen is near enough for the tablet to detect it.
        mPenID->setText(event->isEnteringProximity ? nameOf(*event) : tr("No pen in range"));
    }
}

QString QVPressView::spokenContents() const
{
    const int threshold = GetqvTabletInfo()->Pen.PressureThreshold;
    // The curve is 200 points wide and high.
    const auto percentAt = [threshold](
                               int j) { return QString::number(QVPressHeight(threshold, j) / 2); };
    //: Read by screen readers for the pressure curve; %2 to %4 are percentages.
    return tr("Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, "
              "%3 % at half and %4 % at three quarters.")
        .arg(QString::number(threshold), percentAt(50), percentAt(100), percentAt(150));
}

void QVPressView::drawRect(QPainter& painter, const platform::Rect& dirty)
{
    const std::int16_t threshold = GetqvTabletInfo()->Pen.PressureThreshold;
    const platform::Rect all = bounds();
    painter.fillRect(QRectF(all.x, all.y, all.width, all.height), Qt::lightGray);
    platform::frameRect(painter, dirty);
    QPainterPath path;
    if (mRedraw == 0) {
        mFirstLoc = QPointF(dirty.x, dirty.y);
        mLastLoc = mFirstLoc + QPointF(dirty.width, dirty.height);
        path.moveTo(mFirstLoc);
        path.lineTo(mLastLoc);
        strokeLine(painter, path);
    }
    SetPoint(threshold);
    DrawPressLine(painter, path);
    const QSignalBlocker blocker(mSlider); // the record must not change
    mSlider->setValue(threshold * kSliderSteps);
}

void QVPressView::DrawPressLine(QPainter& painter, QPainterPath& path) const
{
    // The curve ends a point before the upper right corner.
    path.moveTo(m_pt[0].x, m_pt[0].y);
    for (std::size_t i = 0; i + 1 < m_pt.size(); ++i) {
        path.lineTo(m_pt[i].x, m_pt[i].y);
    }
    strokeLine(painter, path);
}

void QVPressView::InitPoint()
{
    for (std::size_t i = 0; i < m_pt.size(); ++i) {
        const auto x = static_cast<double>(i);
        m_pt[i] = {x, static_cast<double>(m_pt.size()) - x};
    }
    m_pt.front() = {0, 0};
    m_pt.back() = {static_cast<double>(m_pt.size()), static_cast<double>(m_pt.size())};
}

void QVPressView::AdjustPressLine(const QSlider* sender)
{
    const int threshold = sender->value() / kSliderSteps; // truncated toward zero
    const platform::Rect all = bounds();
    mRedraw = 1;
    mFirstLoc = QPointF(static_cast<double>(sender->value()) / kSliderSteps + all.x, all.y);
    mLastLoc = QPointF(all.x + all.width, all.y + all.height);
    SetPoint(threshold);
    setNeedsDisplay();
    GetqvTabletInfo()->Pen.PressureThreshold = static_cast<std::int16_t>(threshold);
    PushQVTabletInfo();
}
