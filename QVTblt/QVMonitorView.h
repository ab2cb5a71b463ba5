// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Displays.h"
#include "PaneView.h"
#include "QVMonitorGeometry.h"
#include "tagQVTabletInfo.h"

#include <QImage>
#include <QPointer>

#include <array>
#include <cstdint>
#include <vector>

class QComboBox;
class QPushButton;
class QVCalibrateWin;

/**
 * The display page's picture: the displays in miniature above a drawing of the tablet, with a frame
 * around the mapped area that is connected to the tablet. Also handles the page's controls, which
 * change the record and push it at once.
 *
 * Before it is drawn, the mapped area of the record and the page's lists are brought up to date,
 * without pushing.
 */
class QVMonitorView final : public platform::PaneView {
    Q_OBJECT

public:
    explicit QVMonitorView(QWidget* parent = nullptr);

    /**
     * Sets the page's lists, and the button that starts a calibration, which is disabled while that
     * is not possible; before awakeFromNib(). Each may be null.
     */
    void setOutlets(QComboBox* displays, QComboBox* speed, QComboBox* useMode,
        QPushButton* calibrate = nullptr);
    /** Called when the interface file has been loaded. */
    void awakeFromNib() { interrogateHardware(); }

    /** Reads the displays and fills their list: with two or more, "all displays" comes first. */
    void interrogateHardware();
    /** Clears the list of displays, which are about to change. */
    void disableUI();

    /** Maps the tablet to the chosen display or to all. */
    void SelectMonitor();
    /** Sets the report mode, also in the tablet over USB. */
    void SelectSpeed();
    /** Sets the tablet's orientation. */
    void SelectUseMode();
    /** Uses the whole tablet. */
    void setTabletDefaultArea();
    /**
     * Starts a calibration on the chosen display: four crosses to be touched with the pen. If all
     * of several displays are chosen, nothing is shown.
     */
    void DoCalibrate();
    /**
     * Ends a running calibration, like Escape. Restores an area that the user has not confirmed,
     * and closes the alert that asks for it.
     *
     * @param pushes whether to push the record; false if the driver has another tablet by now
     */
    void endCalibration(bool pushes = true);
    bool isCalibrating() const { return !mCalibration.isNull(); }
    /** Uses the part of the tablet with the proportions of the mapped area. */
    void AutoCalibrate();

    /**
     * Updates the list of displays and the record's mapped area, as drawing does. Pushes nothing.
     *
     * @return whether the record's area has changed
     */
    bool updateMappedArea();

    /** The lower right corner of the used area of the tablet in the picture, as last drawn. */
    QVPoint tabletPictureCorner() const { return mTabletPicRightDn; }

    /**
     * The bounding rectangle of the first mDspCount rectangles.
     *
     * @param rects one for each display, at least one
     */
    void GetAllMonitorRect(const platform::Rect* rects, platform::Rect* outRect) const;

    /** Describes the displays, their positions, and which of them the tablet is mapped to. */
    QString spokenContents() const override;

Q_SIGNALS:
    /** The displays have changed, and the list is up to date. */
    void displaysChanged();
    /** A calibration has ended, with or without a new area. */
    void calibrationEnded();

protected:
    /** Selects the light or the dark picture. */
    void changeEvent(QEvent* event) override;
    void sync() override;
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    friend void DisplayRegisterReconfigurationCallback(
        platform::DisplayID display, std::uint32_t flags, void* userInfo);

    /** @param rect in points from the main display's lower left corner, y growing upwards */
    void CreateCalibrateWin(const platform::Rect& rect);
    void readPicture();
    void updateCalibrate();
    void updatePicturePoints();
    void updateLists();
    platform::Rect drawMiniatures(QPainter& painter) const;

    QPointer<QComboBox> mComboBox;
    QPointer<QComboBox> mComboBoxSpeed;
    QPointer<QComboBox> mComboBoxUseMode;
    QPointer<QPushButton> mDoCalibrate;
    QString mCalibrateHelp; ///< the button's own text
    QByteArray mBackgroundFile; ///< the picture's file until the view is drawn for the first time:
                                ///< decoded, it takes 4 MiB, which most showings of the panel spare
    QImage mBackgroundImage;
    bool mIsDark = false; ///< the picture
    bool DisplayRegistrationCallBackSuccessful;
    tagQVTabletInfo* pQVInfo;
    std::vector<platform::DisplayID> mDisplays;
    std::uint32_t mDspCount = 0;
    std::array<platform::Rect, kQVMaxDisplays> mSubMonitorRect{}; ///< global display points
    QPointer<QVCalibrateWin> mCalibration; ///< while one is running
    QVPoint mTabletPicLeftUp{}; ///< of the used area, in the picture
    QVPoint mTabletPicRightDn{};
    bool mHasTabletArea = true; ///< as it was last drawn
    std::int16_t mUnknownDisplay = 0; ///< the last invalid number
};

/** A display's name in the list, such as "Display #1". @param index from 0 */
QString QVDisplayName(std::uint32_t index);

/** Clears the view's list when displays begin to change, and fills it when they have changed. */
void DisplayRegisterReconfigurationCallback(
    platform::DisplayID display, std::uint32_t flags, void* userInfo);
