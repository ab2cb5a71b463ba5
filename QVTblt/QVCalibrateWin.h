// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "ProximityRelay.h"
#include "QVCalibrateView.h"

#include <QPointer>
#include <QWidget>

/**
 * The calibration's window: covers one display, lets it show through, and lies above the panel's
 * window, with which it closes. Escape ends the calibration.
 */
class QVCalibrateWin final : public QWidget,
                             public platform::ProximityResponder,
                             public platform::Accessible {
    Q_OBJECT

public:
    /**
     * Shows the window at once.
     *
     * @param contentRect in points from the main display's lower left corner, y growing upwards
     * @param mainWindow the window that shows the panel
     */
    QVCalibrateWin(const platform::Rect& contentRect, QWidget* mainWindow);

    /** Sets the window that Escape closes, which is this one. */
    void sethCalibrateWin(QWidget* window);

    /**
     * Ends the calibration as Escape does: an area that the user has not agreed to is taken back,
     * the record says that nothing is calibrated, and an alert goes with the window.
     *
     * @param pushes whether the driver is told
     * @return false when the window is nobody's any more
     */
    bool endCalibration(bool pushes = true);
    /** Takes the window from the panel's and closes it; its reports count no more. */
    void removeAndClose();

    /** Spreads the pen's coming and going, which while the window is open reaches nobody else. */
    void tabletProximity(const std::shared_ptr<const platform::Event>& event) override;

    QVCalibrateView& view() { return *mView; }

protected:
    /** However the window is closed, the driver must not be left waiting for points. */
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isChildOfMainWindow() const;

    QVCalibrateView* mView;
    QPointer<QWidget> mCalibrateWin;
    QPointer<QWidget> mMainWindow;
};
