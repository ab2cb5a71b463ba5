// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Notifications.h"
#include "PaneView.h"
#include "QVPressCurve.h"

class QLabel;
class QSlider;

/**
 * The pen's pressure curve: how hard one presses to the right, what programs receive upwards. It is
 * computed from the record whenever it is drawn, and the slider follows.
 */
class QVPressView final : public platform::PaneView {
    Q_OBJECT

public:
    explicit QVPressView(QWidget* parent = nullptr);

    /** Connects the slider, which carries tenths, and what names the pen; before awakeFromNib(). */
    void setOutlets(QSlider* slider, QLabel* penID);
    /** The interface file has been loaded. */
    void awakeFromNib();

    /** Takes the slider into the record and pushes it. */
    void AdjustPressLine(const QSlider* sender);
    /** Computes the curve of a threshold. */
    void SetPoint(int value);

    /** The curve at three places. */
    QString spokenContents() const override;

    /** Names the pen that has come into reach. */
    void handleProximity(const platform::Notification& notification);

protected:
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    void DrawPressLine(QPainter& painter) const;

    std::array<QVPoint, kQVCurvePoints> m_pt{};
    QSlider* mSlider = nullptr;
    QLabel* mPenID = nullptr;
};
