// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "tagQVTabletInfo.h"

#include <QWidget>

#include <cstddef>
#include <functional>
#include <optional>

class Driver;
class QComboBox;
class QLabel;
class QHBoxLayout;
class QToolButton;
class TabletSurface;
struct QVTabletModel;

/**
 * The window of the simulated tablet: its surface, to be used with mouse or keyboard, its keys, and
 * whether the panel gets its pen reports. Follows the driver when any program attaches or detaches
 * a tablet.
 */
class TabletWindow final : public QWidget, public platform::Accessible {
    Q_OBJECT

public:
    /** @param driver must live longer than the window */
    explicit TabletWindow(Driver& driver);

    /** The size to open with, given the space on the screen, without the frame. */
    QSize usualSize(const QSize& available) const;

Q_SIGNALS:
    /** The user has closed the window. */
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
    /** Adds a button that shows its action in the settings when it is pressed. */
    QToolButton& addButton(QLayout& layout, const QString& text, const QString& name,
        std::function<QString(const tagQVTabletInfoKey& keys)> action);
    /** Has the driver report when the button is pressed and released. */
    void reportButton(const QToolButton& button, std::size_t slot);
    const QVTabletModel* model() const;
    /**
     * The attached tablet's settings; nothing before a push, or if they belong to another tablet.
     */
    std::optional<tagQVTabletInfo> settings() const;
    void liftAboveCalibration();

    Driver& mDriver;
    QComboBox* mModels;
    QWidget* mTablet; ///< contains all that depends on the tablet
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
