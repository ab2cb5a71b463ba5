// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "ProximityRelay.h"
#include "QVCalibrateView.h"

#include <QPointer>
#include <QWidget>

/**
 * The calibration window: covers one display, is translucent, and stays above the panel's window,
 * with which it closes. Escape ends the calibration.
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
    ~QVCalibrateWin() override;

    /** Sets the window that Escape closes: this one. */
    void sethCalibrateWin(QWidget* window) { mCalibrateWin = window; }

    /**
     * Ends the calibration, like Escape: restores an area that the user has not confirmed, clears
     * disableFlag in the record, and closes an alert with the window.
     *
     * @param pushes whether to push the record
     * @return false if the window no longer has an owner
     */
    bool endCalibration(bool pushes = true);
    /** Removes the window from the panel's and closes it; its reports are ignored from then on. */
    void removeAndClose();

    /** Relays proximity events, which only this window gets while it is open. */
    void tabletProximity(const std::shared_ptr<const platform::Event>& event) override;

    QVCalibrateView& view() { return *mView; }

Q_SIGNALS:
    /** The window is about to be destroyed. */
    void ended();

protected:
    /** However the window is closed, the driver must not continue to send points. */
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QVCalibrateView* mView;
    QPointer<QWidget> mCalibrateWin;
    QPointer<QWidget> mMainWindow;
};
