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
        //: Part of the line below the drawing pad; %1 is 0 to 100.
        QVPenStats::tr("Pressure %1 %").arg(std::lround(stats.mPressure * 100)),
        //: %1 and %2 are degrees, negative for left and up.
        QVPenStats::tr("Tilt %1° right, %2° down")
            .arg(rounded(stats.mTiltX), rounded(stats.mTiltY)),
        //: Rotation of the pen about its own axis; %1 is in degrees.
        QVPenStats::tr("Rotation %1°").arg(rounded(stats.mRotDeg)),
        //: Position of the pen; %1 is x, %2 is y.
        QVPenStats::tr("At %1, %2 on the desktop")
            .arg(QString::number(stats.mAbsX), QString::number(stats.mAbsY)),
    };
    if (stats.mDeviceID != 0) {
        //: %1 is the number of the input device.
        parts.append(QVPenStats::tr("Pen number %1").arg(stats.mDeviceID));
    }
    return parts.join(QStringLiteral(" · "));
}

} // namespace

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
