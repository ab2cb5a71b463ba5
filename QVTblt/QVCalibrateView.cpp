// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVCalibrateView.h"

#include "Alerts.h"
#include "Client.h"
#include "QVCalibrateWin.h"
#include "QVCalibration.h"
#include "QVDriverProtocol.h"
#include "Sleep.h"
#include "rzkApplication.h"
#include "rzkBundle.h"

#include <QFontDatabase>
#include <QLoggingCategory>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

using namespace platform;

namespace {

Q_LOGGING_CATEGORY(lcCalibrate, "org.quorvia.tablet.calibrate", QtInfoMsg)

constexpr std::int32_t kCrosses = 4;
constexpr double kHalfCross = 25.0;
constexpr double kHintLeft = 500.0; ///< left of the middle

constexpr std::uint32_t kNeitherDownNorUp = 2;

// Global for the process: a calibration continues where the last one ended.
std::array<QVTabletPoint, kCrosses> mXY{}; ///< of the crosses, in order
std::int32_t cachedKey = 0; ///< key state of the last report
std::int32_t cachedTmpX = 0; ///< the last accepted point
std::int32_t cachedTmpY = 0;
bool isFinishing = false; ///< a round is being finished, possibly in an alert's event loop

QString localized(const char* key)
{
    return rzkBundle.localizedString(
        QString::fromLatin1(key), QString(), QStringLiteral("InfoPlist"));
}

void pauseForASecond()
{
    sleeper().sleepFor(std::chrono::seconds(1));
}

/** The centre of a cross, from its distance to the edges of the view. */
QPointF centreOf(std::int32_t cross, const Rect& bounds)
{
    const bool isLeft = cross == 0 || cross == 3;
    const bool isUpper = cross == 0 || cross == 1;
    return {isLeft ? bounds.x + kQVCrossInset : bounds.x + bounds.width - kQVCrossInset,
        isUpper ? bounds.y + bounds.height - kQVCrossInset : bounds.y + kQVCrossInset};
}

/** The items of the direct object; none, with a message in the log, if it is not a list. */
AEList itemsOf(const AppleEvent& event)
{
    const AEDesc* const direct = find(event.parameters, keyDirectObject);
    if (direct == nullptr) {
        qCWarning(lcCalibrate, "rzk-get para fail");
    }
    const auto* const list = direct == nullptr ? nullptr : std::get_if<AEList>(&direct->data);
    if (list == nullptr) {
        qCWarning(lcCalibrate, "rzk-count fail");
        return {};
    }
    return *list;
}

void startAgain(QVCalibrateView& view)
{
    view.disableTablet(1);
    view.changenPointValue(-kCrosses);
    view.setDrawEraseFlag(QVCalibrateView::kDrawCross);
}

/** Accepts a point for the current cross, and shows the next one. */
void takePoint(QVCalibrateView& view, std::int32_t cross, const QVPenReport& report)
{
    if (cross < kCrosses) {
        mXY[static_cast<std::size_t>(cross)] = {report.x, report.y};
        view.changenPointValue(1);
        view.setDrawEraseFlag(QVCalibrateView::kEraseCross + cross);
        if (cross == 0 || cross == kCrosses - 1) {
            pauseForASecond();
        }
        if (cross < kCrosses - 1) {
            view.setDrawEraseFlag(QVCalibrateView::kDrawCross + cross + 1);
        }
    }
    cachedTmpX = report.x;
    cachedTmpY = report.y;
    view.setNeedsDisplay();
}

/** Asks whether to keep the new area, which the driver already has. */
void confirm(QVCalibrateView& view, const QVTabletArea& before)
{
    const QPointer<QVCalibrateView> guard(&view);
    view.askAboutArea(before);
    const std::int16_t hit =
        alerts().runStandardAlert({.type = AlertType::Stop,
                                      //: Heading of the question whether to keep the calibration.
                                      .title = QVCalibrateView::tr("Calibration finished"),
                                      .message = localized("Ok"),
                                      .hasCancelButton = true},
            view.window());
    if (guard.isNull() || view.hasStopped()) {
        return; // the panel was left meanwhile
    }
    if (hit == kAlertStdAlertCancelButton) {
        view.keepArea();
        view.setQVTabletRectInfo(before.xmin, before.xmax, before.ymin, before.ymax);
        startAgain(view);
    } else if (hit == kAlertStdAlertOKButton) {
        view.keepArea();
        if (auto* const window = qobject_cast<QVCalibrateWin*>(view.window())) {
            window->removeAndClose();
        }
        view.changenPointValue(-kCrosses);
    }
}

/** Handles the fourth point. */
void finishPass(QVCalibrateView& view)
{
    const QScopedValueRollback finishing(isFinishing, true);
    cachedKey = 0;
    view.disableTablet(0);
    pauseForASecond();
    const Rect bounds = view.bounds();
    const auto area = QVCalibratedArea(mXY, bounds.width, bounds.height);
    if (area) {
        const QVTabletArea before{view.getQVTabletRectInfoXmin(), view.getQVTabletRectInfoXmax(),
            view.getQVTabletRectInfoYmin(), view.getQVTabletRectInfoYmax()};
        view.setQVTabletRectInfo(area->xmin, area->xmax, area->ymin, area->ymax);
        confirm(view, before);
        return;
    }
    const QPointer<QVCalibrateView> guard(&view);
    alerts().runStandardAlert(
        {.type = AlertType::Caution,
            //: Heading of the message that the crosses were touched in a wrong order.
            .title = QVCalibrateView::tr("Calibration failed"),
            .message = localized("Error")},
        view.window());
    if (!guard.isNull() && !view.hasStopped()) {
        startAgain(view);
    }
}

} // namespace

QVCalibrateView::QVCalibrateView(QWidget* parent)
    : PaneView(parent)
{
    setAccessibleName(localized("Esc"));
    setFocusPolicy(Qt::ClickFocus); // so that a screen reader reads what to do
    // The handler stays after the view is destroyed, until another view installs its own.
    events().installEventHandler(kAECoreSuite, kAEGetData,
        [view = QPointer<QVCalibrateView>(this)](const AppleEvent& event, AppleEvent& reply) {
            return view.isNull() ? noErr : QVTabletGetDatahandler(event, reply, view);
        });
}

void QVCalibrateView::uninstallTabletMsgHandle()
{
    events().removeEventHandler(kAECoreSuite, kAEGetData);
}

void QVCalibrateView::setDrawEraseFlag(std::int32_t flag)
{
    drawflag = flag;
    setNeedsDisplay();
}

void QVCalibrateView::disableTablet(std::int16_t flag)
{
    qvTabletInfo.Monitor.disableFlag = flag;
    PushQVTabletInfo();
}

void QVCalibrateView::setQVTabletRectInfo(
    std::uint16_t xmin, std::uint16_t xmax, std::uint16_t ymin, std::uint16_t ymax)
{
    QVSetUsedArea(qvTabletInfo, {xmin, xmax, ymin, ymax});
    PushQVTabletInfo();
}

void QVCalibrateView::askAboutArea(const QVTabletArea& before)
{
    if (!mAreaBefore) { // otherwise the last question was not answered
        mAreaBefore = before;
    }
}

void QVCalibrateView::stop()
{
    mHasStopped = true;
    if (const auto before = std::exchange(mAreaBefore, std::nullopt)) {
        QVSetUsedArea(qvTabletInfo, *before);
    }
}

QString QVCalibrateView::spokenContents() const
{
    static constexpr std::array kCrossTexts{
        //: Read by screen readers: the cross to touch next, of four in the corners of the display.
        QT_TR_NOOP("Cross 1 of 4, at the upper left."),
        //: Read by screen readers: the cross to touch next, of four in the corners of the display.
        QT_TR_NOOP("Cross 2 of 4, at the upper right."),
        //: Read by screen readers: the cross to touch next, of four in the corners of the display.
        QT_TR_NOOP("Cross 3 of 4, at the lower right."),
        //: Read by screen readers: the cross to touch next, of four in the corners of the display.
        QT_TR_NOOP("Cross 4 of 4, at the lower left."),
    };
    // A negative one is too large.
    const std::size_t cross = static_cast<std::size_t>(drawflag) - std::size_t{kDrawCross};
    return cross < kCrossTexts.size() ? tr(kCrossTexts[cross]) : QString();
}

void QVCalibrateView::paintEvent(QPaintEvent* event)
{
    PaneView::paintEvent(event);
    if (mOpacity < 1) {
        // What was just drawn is opaque and covers what was there before, so that the result does
        // not depend on it.
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(rect(), QColor(0, 0, 0, qRound(255 * mOpacity)));
    }
}

void QVCalibrateView::drawRect(QPainter& painter, const Rect& dirty)
{
    painter.fillRect(QRectF(dirty.x, dirty.y, dirty.width, dirty.height), fillColor);

    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setBold(true);
    font.setPixelSize(40);
    painter.setFont(font);
    painter.setPen(QColor::fromRgbF(1.0F, 0.2F, 0.2F, 0.6F));
    drawText(painter, localized("Esc"), dirty.x + dirty.width * 0.5 - kHintLeft,
        dirty.y + dirty.height * 0.5);

    if (drawflag >= kEraseCross && drawflag < kEraseCross + kCrosses) {
        eraseCross(drawflag - kEraseCross);
    } else if (drawflag >= kDrawCross && drawflag < kDrawCross + kCrosses) {
        drawCross(painter, drawflag - kDrawCross);
    }
}

void QVCalibrateView::drawCross(QPainter& painter, std::int32_t cross) const
{
    const QPointF centre = centreOf(cross, bounds());
    QPainterPath path;
    path.moveTo(centre - QPointF(kHalfCross, 0));
    path.lineTo(centre + QPointF(kHalfCross, 0));
    path.moveTo(centre + QPointF(0, kHalfCross));
    path.lineTo(centre - QPointF(0, kHalfCross));
    painter.strokePath(path, QPen(Qt::red, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
}

void QVCalibrateView::eraseCross(std::int32_t cross)
{
    // A cross's height above the cross itself.
    const QPointF centre = centreOf(cross, bounds());
    setNeedsDisplayInRect(
        {centre.x() - kHalfCross, centre.y() + kHalfCross, 2 * kHalfCross, 2 * kHalfCross});
}

OSErr QVTabletGetDatahandler(const AppleEvent& event, AppleEvent& reply, QVCalibrateView* view)
{
    static_cast<void>(reply);
    if (isFinishing || view->hasStopped()) {
        return noErr; // an alert is open, and the pen belongs to it; or the calibration has ended
    }
    const QPointer<QVCalibrateView> guard(view);
    const AEList items = itemsOf(event);
    // A report that is too short leaves the rest unchanged; initially, the pen is neither down nor
    // up.
    QVPenReport report{};
    report.key = kNeitherDownNorUp;
    // Every other item is a report.
    for (std::size_t i = 0; i < items.size(); i += 2) {
        if (const QByteArray* const bytes = items[i].bytes()) {
            std::memcpy(&report, bytes->constData(),
                std::min<std::size_t>(static_cast<std::size_t>(bytes->size()), sizeof report));
        }
        const std::int32_t taken = view->changenPointValue(0);
        if (report.key == 0 && cachedKey == 1) {
            if (cachedTmpX != 0 && QVIsTooNear(cachedTmpX, cachedTmpY, report.x, report.y)) {
                return noErr;
            }
            takePoint(*view, taken, report);
        }
        cachedKey = static_cast<std::int32_t>(report.key);
        if (view->changenPointValue(0) == kCrosses) {
            finishPass(*view);
            if (guard.isNull() || view->hasStopped()) {
                break;
            }
        }
    }
    return noErr;
}
