// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Notifications.h"
#include "PenView.h"

#include <array>
#include <cstdint>

class QLabel;

/** The notification that a drawing pad's statistics have changed; its object is the pad. */
inline constexpr QLatin1String kStatsUpdatedNotification("WTViewStatsUpdatedNotification");

/**
 * The drawing pad: shows strokes of pen and mouse, with width and opacity that may follow the
 * pressure. It does not store strokes; any redraw clears them.
 */
class QVDrawView final : public platform::PenView {
    Q_OBJECT

public:
    explicit QVDrawView(QWidget* parent = nullptr);

    /**
     * Sets the label that shows the pressure, 0 to 65535 with two decimals; before awakeFromNib().
     */
    void setOutlets(QLabel* rawTabletPressure) { txtRawTabletPressure = rawTabletPressure; }
    /** Called when the interface file has been loaded. */
    void awakeFromNib();

    /** The statistics of the last event; strokes update them only at both ends. */
    struct Stats {
        platform::EventType mEventType = platform::EventType::MouseMoved;
        std::uint16_t mDeviceID = 0; ///< of the last pen
        float mMouseX = 0; ///< in pixels from the window's lower left corner, y growing upwards
        float mMouseY = 0;
        float mPressure = 0; ///< 0 to 1; 0 while the tip is up
        std::int32_t mAbsX = 0; ///< on the desktop
        std::int32_t mAbsY = 0;
        float mTiltX = 0; ///< degrees
        float mTiltY = 0;
        float mRotDeg = 0; ///< of the last pen
    };
    const Stats& stats() const { return mStats; }
    bool isErasing() const { return mIsErasing; }

    /** Whether the opacity of strokes follows the pressure. Off by default. */
    void setAdjustOpacity(bool adjusts) { mAdjustOpacity = adjusts; }
    /**
     * Whether the width of strokes follows the pressure, up to 50 points, or is 25. On by default.
     */
    void setAdjustSize(bool adjusts) { mAdjustSize = adjusts; }
    /** Whether moves without a button update the statistics. On by default. */
    void setCaptureMouseMoves(bool captures);
    bool mCaptureMouseMoves() const { return mCapturesMouseMoves; }
    /** Whether drags without a press update the statistics. On by default. */
    void setUpdateStatsDuringDrag(bool updates) { mUpdatesStatsDuringDrag = updates; }
    bool mUpdateStatsDuringDrag() const { return mUpdatesStatsDuringDrag; }

    /** Clears the pad. */
    void doClean() { setNeedsDisplay(); }

    /** Describes the shown pressure. */
    QString spokenContents() const override;

    /** Switches between drawing and erasing, according to the device that has come into range. */
    void handleProximity(const platform::Notification& notification);

    void mouseDown(const platform::Event& event) override;
    void mouseUp(const platform::Event& event) override { handleMouseEvent(event); }
    void mouseMoved(const platform::Event& event) override { handleMouseEvent(event); }
    void mouseDragged(const platform::Event& event) override;
    void tabletPoint(const platform::Event& event) override;
    void trackEvents() override;

protected:
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    void handleMouseEvent(const platform::Event& event);
    void drawCurrentDataFromEvent(const platform::Event& event);
    void drawWaiting(const platform::Event& event);
    void showPressure(float pressure);
    void postStats();
    float smoothed(float pressure);

    QLabel* txtRawTabletPressure = nullptr;
    Stats mStats;
    bool mAdjustOpacity = false;
    bool mAdjustSize = true;
    bool mCapturesMouseMoves = true;
    bool mUpdatesStatsDuringDrag = true;
    bool mIsErasing = false;
    bool mIsDragging = false; ///< tracking a drag without a press here
    float mShownPressure = 0;
    float mDrawnPressure = 0; ///< of the last step; shown once per batch
    QPointF mLastLoc; ///< in the view's points
    QPointF cachedLastLoc; ///< the point before, for the curve; (0, 0) is none
    std::array<float, 8> cachedPressure{}; ///< the last smoothed pressures, the latest at the end
};
