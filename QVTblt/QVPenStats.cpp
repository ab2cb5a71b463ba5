// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPenStats.h"

#include "Notifications.h"
#include "QVDrawView.h"

#include <QStringList>

#include <cmath>

namespace {

QString rounded(float value)
{
    return QString::number(std::lround(value));
}

QString textOf(const QVDrawView::Stats& stats)
{
    QStringList parts{
        QVPenStats::tr("Pressure %1 %").arg(std::lround(stats.mPressure * 100)),
        QVPenStats::tr("Tilt %1° right, %2° down")
            .arg(rounded(stats.mTiltX), rounded(stats.mTiltY)),
        QVPenStats::tr("Rotation %1°").arg(rounded(stats.mRotDeg)),
        QVPenStats::tr("At %1, %2 on the desktop")
            .arg(QString::number(stats.mAbsX), QString::number(stats.mAbsY)),
    };
    if (stats.mDeviceID != 0) {
        parts.append(QVPenStats::tr("Pen number %1").arg(stats.mDeviceID));
    }
    return parts.join(QStringLiteral(" · "));
}

} // namespace

QVPenStats::QVPenStats(QWidget* parent)
    : LiveLabel(parent)
{
}

void QVPenStats::observe(const QVDrawView& pad)
{
    setText(textOf(pad.stats()));
    platform::notifications().addObserver(
        *this, kStatsUpdatedNotification, [this, &pad](const platform::Notification& notification) {
            if (notification.object == &pad) {
                setText(textOf(pad.stats()));
            }
        });
}
