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
 * The display page's picture: the displays in miniature over a drawing of the tablet, with the
 * mapped area framed and joined to the tablet. Also what the page's controls do: they change the
 * record and push it at once.
 *
 * Before it is drawn, the mapped area of the record and the page's lists are brought up to date,
 * without pushing.
 */
class QVMonitorView final : public platform::PaneView {
    Q_OBJECT

public:
    explicit QVMonitorView(QWidget* parent = nullptr);

    /**
     * Connects the page's lists, and the button that starts a calibration, which is off while there
     * is none to start; before awakeFromNib(). Without them, what they would do is left out.
     */
    void setOutlets(QComboBox* displays, QComboBox* speed, QComboBox* useMode,
        QPushButton* calibrate = nullptr);
    /** The interface file has been loaded. */
    void awakeFromNib();

    /** Reads the displays and fills their list: with two or more, all of them first. */
    void interrogateHardware();
    /** Empties the list of displays, which are about to change. */
    void disableUI();

    /** Maps the tablet to the chosen display or to all. */
    void SelectMonitor();
    /** Sets the report mode; the tablet is told over USB too. */
    void SelectSpeed();
    /** Turns the tablet. */
    void SelectUseMode();
    /** Uses the whole tablet. */
    void setTabletDefaultArea();
    /**
     * Starts a calibration on the chosen display: four crosses to be touched with the pen. With
     * more displays than one and all of them chosen, nothing is shown.
     */
    void DoCalibrate();
    /**
     * Ends a calibration that is going on, as Escape does. An area that the user has not agreed to
     * is taken back, and an alert that asks for it goes.
     *
     * @param pushes whether the driver is told; false where it has another tablet by now
     */
    void endCalibration(bool pushes = true);
    /** Uses the part of the tablet that has the mapped area's shape. */
    void AutoCalibrate();

    /**
     * Brings the list of displays and the mapped area of the record up to date with the displays,
     * as drawing does. Pushes nothing.
     *
     * @return whether the record's area is another now
     */
    bool updateMappedArea();

    /** The lower right corner of the tablet's area in use, in the picture, as last drawn. */
    QVPoint tabletPictureCorner() const { return mTabletPicRightDn; }

    /**
     * The smallest rectangle around the first mDspCount rectangles.
     *
     * @param rects as many as there are displays, at least one
     */
    void GetAllMonitorRect(const platform::Rect* rects, platform::Rect* outRect) const;

    /** Which displays there are, where, and which of them the tablet reaches. */
    QString spokenContents() const override;

Q_SIGNALS:
    /** Displays have come, gone, moved or turned, and the list shows them as they are now. */
    void displaysChanged();

protected:
    /** Light windows have a light picture, dark ones a dark one. */
    void changeEvent(QEvent* event) override;
    void sync() override;
    void drawRect(QPainter& painter, const platform::Rect& dirty) override;

private:
    friend void DisplayRegisterReconfigurationCallback(
        platform::DisplayID display, std::uint32_t flags, void* userInfo);

    /** @param rect in points from the main display's lower left corner, y growing upwards */
    void CreateCalibrateWin(const platform::Rect& rect);
    void readPicture();
    int chosenItem() const;
    void updateCalibrate();
    void updatePicturePoints();
    void updateLists();
    platform::Rect drawMiniatures(QPainter& painter) const;

    QPointer<QComboBox> mComboBox;
    QPointer<QComboBox> mComboBoxSpeed;
    QPointer<QComboBox> mComboBoxUseMode;
    QPointer<QPushButton> mDoCalibrate;
    QString mCalibrateHelp; ///< the button's own words
    QByteArray mBackgroundFile; ///< the picture's file until the view is drawn for the first time:
                                ///< decoded, it takes 4 MiB, which most showings of the panel spare
    QImage mBackgroundImage;
    bool mIsDark = false; ///< the picture
    QMetaObject::Connection DisplayRegistrationCallBackSuccessful; ///< ends with the view
    tagQVTabletInfo* pQVInfo;
    std::vector<platform::DisplayID> mDisplays;
    std::uint32_t mDspCount = 0;
    std::array<platform::Rect, kQVMaxDisplays> mSubMonitorRect{}; ///< global display points
    QPointer<QVCalibrateWin> mCalibration; ///< while one is going on
    QVPoint mTabletPicLeftUp{}; ///< of the area in use, in the picture
    QVPoint mTabletPicRightDn{};
    bool mHasTabletArea = true; ///< as it was last drawn
    std::int16_t mUnknownDisplay = 0; ///< the number of the last one that there was not
};

/** Empties the view's list when displays begin to change, and fills it when they have changed. */
void DisplayRegisterReconfigurationCallback(
    platform::DisplayID display, std::uint32_t flags, void* userInfo);
