// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "PaneView.h"
#include "QVMonitorGeometry.h"
#include "rzkApplication.h"

#include <QColor>

#include <cstdint>
#include <optional>
#include <utility>

/**
 * The contents of the calibration window: a hint, and one cross at a time near each corner, to be
 * touched with the pen. From its creation, it receives the driver's pen reports, until another one
 * is created.
 */
class QVCalibrateView final : public platform::PaneView {
    Q_OBJECT

public:
    /**
     * Arguments of setDrawEraseFlag(), plus the number of a cross: 0 is at the upper left, then
     * clockwise.
     */
    static constexpr std::int32_t kDrawCross = 16;
    static constexpr std::int32_t kEraseCross = 32;

    explicit QVCalibrateView(QWidget* parent = nullptr);

    /** Stops handling the driver's reports. */
    void uninstallTabletMsgHandle();

    /** Shows or erases a cross; other values show none. */
    void setDrawEraseFlag(std::int32_t flag);
    /** Sets the background colour. */
    void setColor(const QColor& color) { fillColor = color; }
    /** Makes the view translucent, for windows that cannot be as a whole. */
    void setOpacity(double opacity) { mOpacity = opacity; }

    /** Adds to the number of accepted points. @return the previous number */
    std::int32_t changenPointValue(std::int32_t delta)
    {
        return std::exchange(nPoint, nPoint + delta);
    }

    /** Tells the driver whether a calibration is collecting points. */
    void disableTablet(std::int16_t flag);
    /** Sets the used part of the tablet, and pushes it. */
    void setQVTabletRectInfo(
        std::uint16_t xmin, std::uint16_t xmax, std::uint16_t ymin, std::uint16_t ymax);
    std::uint16_t getQVTabletRectInfoXmin() const { return qvTabletInfo.Monitor.cTabletXmin; }
    std::uint16_t getQVTabletRectInfoXmax() const { return qvTabletInfo.Monitor.cTabletXmax; }
    std::uint16_t getQVTabletRectInfoYmin() const { return qvTabletInfo.Monitor.cTabletYmin; }
    std::uint16_t getQVTabletRectInfoYmax() const { return qvTabletInfo.Monitor.cTabletYmax; }

    /**
     * Notes that the driver has a new area, and the user is asked whether to keep it. Until
     * keepArea(), stop() restores the area from before the first such question.
     */
    void askAboutArea(const QVTabletArea& before);
    /** Notes that the user has decided. */
    void keepArea() { mAreaBefore.reset(); }
    /**
     * Ends the calibration: ignores further reports, and restores an area that the user has not
     * confirmed, only in the record.
     */
    void stop();
    bool hasStopped() const { return mHasStopped; }

    /** The position of the cross; the name says what to do with it. */
    QString spokenContents() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    void drawCross(QPainter& painter, std::int32_t cross) const;
    void eraseCross(std::int32_t cross);

    QColor fillColor = Qt::transparent;
    double mOpacity = 1;
    std::int32_t drawflag = kDrawCross;
    std::int32_t nPoint = 0; ///< points accepted in this round: 0 to 4
    std::optional<QVTabletArea> mAreaBefore; ///< set while the area in the record is not confirmed
    bool mHasStopped = false;
};

/**
 * Handles the driver's pen reports for a view: each lift of the pen is a point. After the fourth,
 * sets the tablet's area and asks the user. Pauses block the caller.
 *
 * @return always noErr
 */
platform::OSErr QVTabletGetDatahandler(
    const platform::AppleEvent& event, platform::AppleEvent& reply, QVCalibrateView* view);
