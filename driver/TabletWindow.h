// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "tagQVTabletInfo.h"

#include <QWidget>

#include <cstdint>
#include <optional>

class Driver;
class QComboBox;
class QLabel;
class QHBoxLayout;
class TabletSurface;
struct QVTabletModel;

/**
 * The simulated tablet in a window: its surface to be touched with mouse or keyboard, its keys,
 * and what of it reaches the panel. Follows the driver, whoever attaches or detaches a tablet.
 */
class TabletWindow final : public QWidget, public platform::Accessible {
    Q_OBJECT

public:
    /** @param driver must live longer than the window */
    explicit TabletWindow(Driver& driver);

    /** How large the window opens on a screen with so much room, its frame not counted. */
    QSize usualSize(const QSize& available) const;

Q_SIGNALS:
    /** Somebody has closed the window. */
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    class ToldLabel;

    void choose();
    void showModel();
    void showSettings();
    void showListening();
    void showPen();
    void addKeys(const QVTabletModel& model);
    void addPenButtons(const QVTabletModel& model);
    /** Adds a button that tells, when it is pressed, what the settings say it does. */
    void addButton(QLayout& layout, const QString& text, const QString& name, std::size_t slot);
    void addStrip(std::size_t strip);
    void tell(const QString& name, const QString& action);
    const QVTabletModel* model() const;
    /** The settings that the attached tablet got; nothing before, and with those of another. */
    std::optional<tagQVTabletInfo> settings() const;
    void liftAboveCalibration();

    Driver& mDriver;
    QComboBox* mModels;
    QWidget* mTablet; ///< all that is shown of a tablet
    QWidget* mKeys = nullptr;
    QWidget* mPenButtons = nullptr;
    TabletSurface* mSurface;
    QLabel* mNoTablet;
    QLabel* mListening;
    QLabel* mPen;
    QLabel* mMapped;
    ToldLabel* mTold;
    QHBoxLayout* mTop;
    QHBoxLayout* mBody;
};
