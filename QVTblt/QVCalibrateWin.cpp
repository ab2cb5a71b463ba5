// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVCalibrateWin.h"

#include "Displays.h"
#include "QVNSView.h"
#include "rzkApplication.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

using platform::Rect;

namespace {

constexpr double kOpacity = 0.7;

/**
 * The key by its position on the keyboard, independent of the layout. The window system's key codes
 * are the kernel's plus eight. Escape also counts by its meaning: some keyboards have it elsewhere,
 * and the window covers everything.
 */
int placedKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) {
        return Qt::Key_Escape;
    }
    switch (event.nativeScanCode()) {
    case 0: // not from a real keyboard
        return event.key();
    case 9:
        return Qt::Key_Escape;
    case 26:
        return Qt::Key_E;
    case 39:
        return Qt::Key_S;
    default:
        return Qt::Key_unknown;
    }
}

/** The window's geometry, from points relative to the main display's lower left corner. */
QRect placeOf(const Rect& rect)
{
    const QScreen* const main = QGuiApplication::primaryScreen();
    const double height = main == nullptr ? 0 : platform::screenBounds(*main).height;
    return platform::windowGeometry(
        {rect.x, height - (rect.y + rect.height), rect.width, rect.height});
}

} // namespace

QVCalibrateWin::QVCalibrateWin(const Rect& contentRect, QWidget* mainWindow)
    : QWidget(mainWindow, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , ProximityResponder(static_cast<const QWidget&>(*this))
    , Accessible(static_cast<QWidget&>(*this), QAccessible::Window)
    , mView(new QVCalibrateView(this))
    , mCalibrateWin(this)
    , mMainWindow(mainWindow)
{
    setAttribute(Qt::WA_DeleteOnClose);
    if (platform::isOnWayland()) {
        // On Wayland, windows have no opacity, but their contents have.
        mView->setOpacity(kOpacity);
        setAttribute(Qt::WA_TranslucentBackground);
    } else {
        setWindowOpacity(kOpacity);
    }
    //: Title of the window with the crosses.
    setWindowTitle(tr("Calibration"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mView);
    mView->setColor(Qt::yellow);
    mView->setFocus();

    const QRect place = placeOf(contentRect);
    setGeometry(place);
    const QScreen* const screen = QGuiApplication::screenAt(place.center());
    if (screen != nullptr && screen->geometry() == place) {
        // Only a full-screen window covers a whole display, including the desktop's panels. On
        // Wayland, it is also the only way to choose the display.
        winId();
        windowHandle()->setScreen(const_cast<QScreen*>(screen)); // NOLINT(*-const-cast): Qt's
        setGeometry(place);
        showFullScreen();
    } else {
        show();
    }
    raise();
    activateWindow();
}

QVCalibrateWin::~QVCalibrateWin()
{
    Q_EMIT ended();
}

bool QVCalibrateWin::endCalibration(bool pushes)
{
    if (mMainWindow.isNull() || mCalibrateWin.isNull()
        || mCalibrateWin->parentWidget() != mMainWindow) {
        return false;
    }
    mView->stop();
    if (pushes) {
        mView->disableTablet(0);
    } else {
        GetqvTabletInfo()->Monitor.disableFlag = 0;
    }
    removeAndClose();
    return true;
}

void QVCalibrateWin::removeAndClose()
{
    mMainWindow.clear();
    mView->stop();
    if (!mCalibrateWin.isNull()) {
        mCalibrateWin->close();
    }
}

void QVCalibrateWin::tabletProximity(const std::shared_ptr<const platform::Event>& event)
{
    QVPostProximity(*this, event);
}

void QVCalibrateWin::closeEvent(QCloseEvent* event)
{
    if (!mMainWindow.isNull()) { // the calibration has not been ended
        mMainWindow.clear();
        mView->stop();
        mView->disableTablet(0);
    }
    QWidget::closeEvent(event);
}

void QVCalibrateWin::keyPressEvent(QKeyEvent* event)
{
    const int key = placedKey(*event);
    if (key == Qt::Key_S) {
        mView->setDrawEraseFlag(QVCalibrateView::kDrawCross);
    } else if (key == Qt::Key_E) {
        mView->setDrawEraseFlag(QVCalibrateView::kEraseCross);
    } else if (key != Qt::Key_Escape || !endCalibration()) {
        QWidget::keyPressEvent(event);
    }
}
