// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPressView.h"

#include "Client.h"
#include "QVNSView.h"
#include "rzkApplication.h"

#include <QLabel>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QSlider>

namespace {

constexpr int kSliderSteps = 10; ///< in one of the threshold

QString nameOf(const platform::Event& pen)
{
    const bool isEraser = pen.pointingDeviceType == platform::PointingDeviceType::Eraser;
    if (pen.uniqueID == 0) {
        return isEraser ? QVPressView::tr("Eraser") : QVPressView::tr("Pen");
    }
    return (isEraser ? QVPressView::tr("Eraser, serial number %1")
                     : QVPressView::tr("Pen, serial number %1"))
        .arg(pen.uniqueID);
}

} // namespace

QVPressView::QVPressView(QWidget* parent)
    : PaneView(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent); // nothing shows through its ground
}

void QVPressView::setOutlets(QSlider* slider, QLabel* penID)
{
    mSlider = slider;
    mPenID = penID;
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
        mPenID->setText(event->isEnteringProximity ? nameOf(*event) : tr("No pen in reach"));
    }
}

QString QVPressView::spokenContents() const
{
    const int threshold = GetqvTabletInfo()->Pen.PressureThreshold;
    // Points of the curve's width and height, of which 200 are all.
    const auto percentAt = [threshold](int j) { return QVPressHeight(threshold, j) / 2; };
    return tr("Threshold %1 of 200. Of what programs receive at full pressure, they receive %2 % "
              "at a quarter of it, %3 % at half and %4 % at three quarters.")
        .arg(threshold)
        .arg(percentAt(50))
        .arg(percentAt(100))
        .arg(percentAt(150));
}

void QVPressView::drawRect(QPainter& painter, const platform::Rect& dirty)
{
    const std::int16_t threshold = GetqvTabletInfo()->Pen.PressureThreshold;
    const platform::Rect all = bounds();
    painter.fillRect(QRectF(all.x, all.y, all.width, all.height), Qt::lightGray);
    platform::frameRect(painter, dirty);
    SetPoint(threshold);
    DrawPressLine(painter);
    const QSignalBlocker blocker(mSlider); // the record is as it is
    mSlider->setValue(threshold * kSliderSteps);
}

void QVPressView::DrawPressLine(QPainter& painter) const
{
    // The curve ends a point before the upper right corner.
    QPainterPath path;
    path.moveTo(m_pt[0].x, m_pt[0].y);
    for (std::size_t i = 0; i + 1 < m_pt.size(); ++i) {
        path.lineTo(m_pt[i].x, m_pt[i].y);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(Qt::black, 1));
}

void QVPressView::SetPoint(int value)
{
    m_pt = QVPressCurve(value);
}

void QVPressView::AdjustPressLine(const QSlider* sender)
{
    const int threshold = sender->value() / kSliderSteps; // cut off toward zero
    SetPoint(threshold);
    setNeedsDisplay();
    GetqvTabletInfo()->Pen.PressureThreshold = static_cast<std::int16_t>(threshold);
    PushQVTabletInfo();
}
