// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Notifications.h"
#include "PaneView.h"
#include "QVPressCurve.h"

#include <QPointF>

#include <cstdint>

class QLabel;
class QPainterPath;
class QSlider;

namespace platform {
class ChoiceSlider;
}

/**
 * The pen's pressure curve: how hard one presses to the right, what programs receive upwards. It is
 * computed from the record whenever it is drawn, and the slider follows.
 */
class QVPressView final : public platform::PaneView {
    Q_OBJECT

public:
    explicit QVPressView(QWidget* parent = nullptr);

    /** Connects the slider, which carries tenths, and what names the pen; before awakeFromNib(). */
    void setOutlets(platform::ChoiceSlider* slider, QLabel* penID);
    /** The interface file has been loaded. */
    void awakeFromNib();

    /** Takes the slider into the record and pushes it. */
    void AdjustPressLine(const QSlider* sender);
    /** Computes the curve of a threshold. */
    void SetPoint(int value);
    /** Computes a falling line as the curve; nothing here asks for it. */
    void InitPoint();

    /** The curve at three places. */
    QString spokenContents() const override;

    /** Names the pen that has come into reach. */
    void handleProximity(const platform::Notification& notification);

protected:
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    friend struct PressViewAccess; ///< of the tests: what nothing here reaches

    /** Adds the curve to a path and strokes it. */
    void DrawPressLine(QPainter& painter, QPainterPath& path) const;

    // A line across what is drawn, in points, for as long as mRedraw is 0, which it never is.
    QPointF mFirstLoc;
    QPointF mLastLoc;
    std::uint8_t mRedraw = 1;
    std::array<QVPoint, kQVCurvePoints> m_pt{};
    platform::ChoiceSlider* mSlider = nullptr;
    QLabel* mPenID = nullptr;
};
