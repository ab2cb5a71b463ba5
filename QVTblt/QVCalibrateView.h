// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "PaneView.h"
#include "QVMonitorGeometry.h"

#include <QColor>

#include <cstdint>
#include <optional>

/**
 * What the calibration window shows: a hint, and one cross at a time near each corner, to be
 * touched with the pen. From the moment it is made, the driver's pen reports come to it, until
 * another one is made.
 */
class QVCalibrateView final : public platform::PaneView {
    Q_OBJECT

public:
    /** What setDrawEraseFlag() takes, plus the number of a cross: 0 is at the upper left, then
     * clockwise. */
    static constexpr std::int32_t kDrawCross = 16;
    static constexpr std::int32_t kEraseCross = 32;

    explicit QVCalibrateView(QWidget* parent = nullptr);

    /** Stops taking the driver's reports. */
    void uninstallTabletMsgHandle();

    /** Shows or erases a cross; other values show none. */
    void setDrawEraseFlag(std::int32_t flag);
    /** The colour behind everything. */
    void setColor(const QColor& color);

    /** Adds to the number of points taken. @return the number before */
    std::int32_t changenPointValue(std::int32_t delta);

    /** Tells the driver whether a calibration collects points. */
    void disableTablet(std::int16_t flag);
    /** Sets the part of the tablet that is used, and pushes it. */
    void setQVTabletRectInfo(
        std::uint16_t xmin, std::uint16_t xmax, std::uint16_t ymin, std::uint16_t ymax);
    std::uint16_t getQVTabletRectInfoXmin() const;
    std::uint16_t getQVTabletRectInfoXmax() const;
    std::uint16_t getQVTabletRectInfoYmin() const;
    std::uint16_t getQVTabletRectInfoYmax() const;

    /**
     * The driver has a new area, and the user is asked whether it shall stay. Until keepArea(), the
     * one from before the first such question is what stop() goes back to.
     */
    void askAboutArea(const QVTabletArea& before);
    /** The user has decided. */
    void keepArea();
    /**
     * Takes no more reports: the calibration has ended. An area that the user has not agreed to is
     * taken back, in the record alone.
     */
    void stop();
    bool hasStopped() const { return mHasStopped; }

    /** Where the cross is; the name says what to do with it. */
    QString spokenContents() const override;

protected:
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    void drawCross(QPainter& painter, std::int32_t cross) const;
    void eraseCross(std::int32_t cross);

    QColor fillColor = Qt::transparent;
    std::int32_t drawflag = kDrawCross;
    std::int32_t nPoint = 0; ///< points taken in this pass: 0 to 4
    std::optional<QVTabletArea> mAreaBefore; ///< the one in the record is not confirmed
    bool mHasStopped = false;
};

/**
 * Takes the driver's pen reports for a view: each lift of the pen is a point. After the fourth,
 * sets the tablet's area and asks the user. Pauses block the caller.
 *
 * @return always noErr
 */
platform::OSErr QVTabletGetDatahandler(
    const platform::AppleEvent& event, platform::AppleEvent& reply, QVCalibrateView* view);
