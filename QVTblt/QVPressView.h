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
 * The pen's pressure curve: the pressure on the pen is the horizontal axis, what programs receive
 * the vertical one. It is computed from the record whenever it is drawn, and the slider follows.
 */
class QVPressView final : public platform::PaneView {
    Q_OBJECT

public:
    static constexpr int kSliderSteps = 10; ///< of the slider, per unit of the threshold

    explicit QVPressView(QWidget* parent = nullptr);

    /** Sets the slider, whose unit is a tenth, and the label for the pen; before awakeFromNib(). */
    void setOutlets(platform::ChoiceSlider* slider, QLabel* penID);
    /** Called when the interface file has been loaded. */
    void awakeFromNib();

    /** Copies the slider's value to the record and pushes it. */
    void AdjustPressLine(const QSlider* sender);
    /** Computes the curve of a threshold. */
    void SetPoint(int value) { m_pt = QVPressCurve(value); }
    /** Computes a falling line as the curve; not used. */
    void InitPoint();

    /** Describes the curve at three positions. */
    QString spokenContents() const override;

    /** Shows the name of the pen that has come into range. */
    void handleProximity(const platform::Notification& notification);

protected:
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    friend struct PressViewAccess; ///< for the tests, to members that are not used here

    /** Adds the curve to a path and strokes it. */
    void DrawPressLine(QPainter& painter, QPainterPath& path) const;

    // A line across the drawing, in points, while mRedraw is 0, which it never is.
    QPointF mFirstLoc;
    QPointF mLastLoc;
    std::uint8_t mRedraw = 1;
    std::array<QVPoint, kQVCurvePoints> m_pt{};
    platform::ChoiceSlider* mSlider = nullptr;
    QLabel* mPenID = nullptr;
};
