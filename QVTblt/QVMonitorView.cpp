// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVMonitorView.h"

#include "Client.h"
#include "QVCalibrateWin.h"
#include "QVPictureFile.h"
#include "WheelGuard.h"
#include "rzkApplication.h"
#include "rzkBundle.h"

#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <utility>

using platform::Rect;

namespace {

Q_LOGGING_CATEGORY(lcMonitor, "org.quorvia.tablet.monitor", QtInfoMsg)

constexpr double kPictureLeft = kQVPictureArea.x;
constexpr double kPictureRight = kQVPictureArea.x + kQVPictureArea.width;
constexpr double kPictureBottom = kQVPictureArea.y;
constexpr double kPictureTop = kQVPictureArea.y + kQVPictureArea.height;

/** Whether displays have begun to change; shared by all views. */
bool DisplayConfigurationChanged = false;

/** The index of the chosen item; -1 if there is none. */
int chosenIn(const QComboBox* list)
{
    return list == nullptr ? -1 : list->currentIndex();
}

/** A line one point wide with flat ends. */
QPen linePen(const QColor& color)
{
    return {color, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

/**
 * The largest font, up to the painter's, in which the text fits the width; at least a readable
 * size.
 */
QFont fittingFont(const QPainter& painter, const QString& text, double width)
{
    constexpr int kSmallest = 7; // points of the view
    QFont font = painter.font();
    for (int size = QFontInfo(font).pixelSize(); size > kSmallest
         && QFontMetricsF(font, painter.device()).horizontalAdvance(text) > width;) {
        font.setPixelSize(--size);
    }
    return font;
}

/** Draws a display's name in its miniature, small enough to fit. */
void drawLabel(QPainter& painter, const QString& name, const Rect& miniature)
{
    constexpr double kLeft = 20;
    constexpr double kAbove = 15;
    constexpr double kRight = 3;
    painter.save();
    painter.setClipRect(QRectF(miniature.x, miniature.y, miniature.width, miniature.height));
    painter.setFont(fittingFont(painter, name, miniature.width - kLeft - kRight));
    platform::drawText(painter, name, miniature.x + kLeft, miniature.y + kAbove);
    painter.restore();
}

} // namespace

QString QVDisplayName(std::uint32_t index)
{
    const QString display = rzkBundle.localizedString(
        QStringLiteral("Monitor"), QString(), QStringLiteral("InfoPlist"));
    return QStringLiteral("%1 #%2").arg(display, QString::number(index + 1));
}

QVMonitorView::QVMonitorView(QWidget* parent)
    : PaneView(parent)
    , DisplayRegistrationCallBackSuccessful(
          static_cast<bool>(connect(&platform::displays(), &platform::Displays::reconfigured, this,
              [this](platform::DisplayID display, std::uint32_t flags) {
                  DisplayRegisterReconfigurationCallback(display, flags, this);
              })))
    , pQVInfo(GetqvTabletInfo())
{
    readPicture();
}

void QVMonitorView::readPicture()
{
    mIsDark = QVIsDark(palette());
    mBackgroundImage = QImage();
    mBackgroundFile.clear();
    const auto path = QVPicturePath(
        rzkBundle, QStringLiteral("backgroundregion"), QStringLiteral("jpg"), false, mIsDark);
    if (path) {
        QFile file(*path);
        if (file.open(QIODevice::ReadOnly)) {
            mBackgroundFile = file.readAll();
        }
    }
}

void QVMonitorView::changeEvent(QEvent* event)
{
    PaneView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && QVIsDark(palette()) != mIsDark) {
        readPicture();
        setNeedsDisplay();
    }
}

void QVMonitorView::setOutlets(
    QComboBox* displays, QComboBox* speed, QComboBox* useMode, QPushButton* calibrate)
{
    mComboBox = displays;
    mComboBoxSpeed = speed;
    mComboBoxUseMode = useMode;
    mDoCalibrate = calibrate;
    for (QComboBox* const list : {displays, speed, useMode}) {
        if (list != nullptr) {
            platform::ignoreWheelWithoutFocus(*list);
        }
    }
    if (displays != nullptr) {
        connect(displays, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &QVMonitorView::updateCalibrate);
    }
    if (calibrate != nullptr) {
        mCalibrateHelp = calibrate->toolTip();
    }
}

void QVMonitorView::updateCalibrate()
{
    if (mDoCalibrate.isNull()) {
        return;
    }
    const bool hasOneDisplay = mDspCount == 1 || chosenIn(mComboBox) > 0;
    const QString help = hasOneDisplay
        ? mCalibrateHelp
        : tr("Choose one display first: only one display can be calibrated at a time.");
    if (mDoCalibrate->accessibleDescription() == help) {
        return; // screen readers would announce it again
    }
    mDoCalibrate->setEnabled(hasOneDisplay);
    mDoCalibrate->setToolTip(help);
    mDoCalibrate->setAccessibleDescription(help);
}

void QVMonitorView::disableUI()
{
    if (!mComboBox.isNull()) {
        mComboBox->clear();
    }
}

void QVMonitorView::interrogateHardware()
{
    const platform::Displays& service = platform::displays();
    mDspCount = std::min(service.activeDisplayCount().value_or(1), kQVMaxDisplays);
    const auto displays = service.activeDisplays();
    if (!displays) {
        mDisplays.assign(mDspCount, 0);
        updateCalibrate();
        return;
    }
    mDisplays = *displays;
    mDisplays.resize(std::min<std::size_t>(mDisplays.size(), mDspCount));
    mDspCount = static_cast<std::uint32_t>(mDisplays.size());
    disableUI();
    QStringList items;
    if (mDspCount >= 2) {
        items.append(rzkBundle.localizedString(
            QStringLiteral("Monitors"), QString(), QStringLiteral("InfoPlist")));
    }
    for (std::uint32_t i = 0; i < mDspCount; ++i) {
        items.append(QVDisplayName(i));
        mSubMonitorRect[i] = service.bounds(mDisplays[i]);
    }
    if (!mComboBox.isNull()) {
        mComboBox->addItems(items);
    }
    updateCalibrate();
}

void QVMonitorView::GetAllMonitorRect(const Rect* rects, Rect* outRect) const
{
    *outRect = QVBoundingRect({rects, std::max(mDspCount, 1U)});
}

bool QVMonitorView::updateMappedArea()
{
    if (mDspCount == 0) {
        return false;
    }
    const auto& monitor = pQVInfo->Monitor;
    const auto area = [&monitor] {
        return std::array<std::int16_t, 4>{
            monitor.XOrg, monitor.Width, monitor.YOrg, monitor.Height};
    };
    const auto before = area();
    const std::int16_t num = mDspCount == 1 ? std::int16_t{0} : monitor.num;
    const auto chosen = static_cast<std::uint32_t>(std::int32_t{num}); // negative is too large
    if (!mComboBox.isNull()) {
        mComboBox->setCurrentIndex(chosen > mDspCount ? 0 : num);
    }
    if (num == 0) {
        Rect all;
        GetAllMonitorRect(mSubMonitorRect.data(), &all);
        QVSetMappedArea(*pQVInfo, all);
    } else if (chosen <= mSubMonitorRect.size()) {
        QVSetMappedArea(*pQVInfo, mSubMonitorRect[chosen - 1]);
    } else if (num != mUnknownDisplay) { // once, not with each redraw
        mUnknownDisplay = num;
        qCWarning(lcMonitor, "there is no display %d: the mapped area is not changed", num);
    }
    return area() != before;
}

void QVMonitorView::updatePicturePoints()
{
    const QVTabletArea whole = QVWholeArea(*pQVInfo);
    mTabletPicLeftUp = {kPictureLeft, kPictureTop};
    mTabletPicRightDn = QVPictureCorner(QVUsedArea(*pQVInfo), whole);
    const bool hasArea = whole.xmin != whole.xmax && whole.ymin != whole.ymax;
    if (!hasArea && mHasTabletArea) { // once, not with each redraw
        qCWarning(lcMonitor, "the tablet's active area has no width or no height");
    }
    mHasTabletArea = hasArea;
}

void QVMonitorView::updateLists()
{
    const auto select = [](QComboBox* list, std::int16_t value, std::int16_t first,
                            std::int16_t second) {
        if (list != nullptr && (value == first || value == second)) {
            list->setCurrentIndex(value == first ? 0 : 1);
        }
    };
    select(mComboBoxUseMode, pQVInfo->Monitor.rotationFlag, kQVTurned, 0);
    select(mComboBoxSpeed, pQVInfo->Monitor.Speed, kQVSpeedFast, kQVSpeedNormal);
}

Rect QVMonitorView::drawMiniatures(QPainter& painter) const
{
    std::array<Rect, kQVMaxDisplays> miniatures{};
    for (std::uint32_t i = 0; i < mDspCount; ++i) {
        Rect& miniature = miniatures[i];
        miniature = QVMiniature(mSubMonitorRect[i], bounds());
        painter.setPen(linePen(Qt::magenta));
        painter.setBrush(Qt::magenta);
        painter.drawRect(QRectF(miniature.x, miniature.y, miniature.width, miniature.height));
        // On the miniature, which has the same colour in every theme.
        painter.setPen(Qt::black);
        drawLabel(painter, QVDisplayName(i), miniature);
    }
    const int chosen = chosenIn(mComboBox);
    if (mDspCount == 1) {
        return miniatures[0];
    }
    if (chosen > 0) {
        return miniatures[static_cast<std::size_t>(chosen) - 1];
    }
    Rect all;
    GetAllMonitorRect(miniatures.data(), &all);
    return all;
}

QString QVMonitorView::spokenContents() const
{
    QStringList sentences;
    for (std::uint32_t i = 0; i < mDspCount; ++i) {
        const Rect& display = mSubMonitorRect[i];
        const auto number = [](double value) { return QString::number(std::lround(value)); };
        //: Read by screen readers; %1 is a display's name, %2 by %3 its size, %4, %5 its position.
        sentences.append(tr("%1: %2 by %3 points, its upper left corner at %4, %5.")
                             .arg(QVDisplayName(i), number(display.width), number(display.height),
                                 number(display.x), number(display.y)));
    }
    if (chosenIn(mComboBox) >= 0) {
        //: Read by screen readers; %1 is an item of the display list, such as "Display #1".
        sentences.append(tr("The tablet is mapped to %1.").arg(mComboBox->currentText()));
    }
    return sentences.join(u' ');
}

void QVMonitorView::sync()
{
    updateMappedArea();
    updatePicturePoints();
    updateLists();
}

void QVMonitorView::drawRect(QPainter& painter, const Rect& dirty)
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (!mBackgroundFile.isEmpty()) {
        mBackgroundImage = QImage::fromData(std::exchange(mBackgroundFile, {}));
    }
    if (!mBackgroundImage.isNull()) {
        platform::drawImage(
            painter, mBackgroundImage, dirty, platform::imageBounds(mBackgroundImage));
    }
    const Rect framed = drawMiniatures(painter);
    platform::frameRect(painter, framed);

    const double left = static_cast<float>(framed.x);
    const double bottom = static_cast<float>(framed.y);
    const double right = static_cast<float>(framed.x + framed.width);
    const double top = static_cast<float>(framed.y + framed.height);
    QPainterPath lines;
    lines.moveTo(left, top);
    lines.lineTo(kPictureLeft, kPictureTop);
    lines.moveTo(right, top);
    lines.lineTo(kPictureRight, kPictureTop);
    lines.moveTo(right, bottom);
    lines.lineTo(kPictureRight, kPictureBottom);
    lines.moveTo(left, bottom);
    lines.lineTo(kPictureLeft, kPictureBottom);
    painter.strokePath(lines, linePen(Qt::black));
}

void QVMonitorView::SelectMonitor()
{
    const int chosen = chosenIn(mComboBox);
    pQVInfo->Monitor.num = static_cast<std::int16_t>(chosen);
    if (chosen == 0 && mDspCount > 1) {
        Rect all;
        GetAllMonitorRect(mSubMonitorRect.data(), &all);
        QVSetMappedArea(*pQVInfo, all);
    } else {
        const auto display = static_cast<std::size_t>(mDspCount >= 2 ? chosen - 1 : chosen);
        if (display < mSubMonitorRect.size()) {
            QVSetMappedArea(*pQVInfo, mSubMonitorRect[display]);
        }
    }
    setNeedsDisplay();
    PushQVTabletInfo();
}

void QVMonitorView::SelectSpeed()
{
    const int chosen = chosenIn(mComboBoxSpeed);
    if (chosen == 0 || chosen == 1) {
        pQVInfo->Monitor.Speed = chosen == 0 ? kQVSpeedFast : kQVSpeedNormal;
        QVSendReportSpeed();
    }
    PushQVTabletInfo();
}

void QVMonitorView::SelectUseMode()
{
    const int chosen = chosenIn(mComboBoxUseMode);
    if (chosen == 0 || chosen == 1) {
        pQVInfo->Monitor.rotationFlag = chosen == 0 ? kQVTurned : std::int16_t{0};
    }
    PushQVTabletInfo();
}

void QVMonitorView::setTabletDefaultArea()
{
    QVSetUsedArea(*pQVInfo, QVWholeArea(*pQVInfo));
    PushQVTabletInfo();
}

void QVMonitorView::AutoCalibrate()
{
    mTabletPicLeftUp = {kPictureLeft, kPictureTop};
    mTabletPicRightDn = {kPictureRight, kPictureBottom};
    const QVTabletArea whole = QVWholeArea(*pQVInfo);
    const auto fitted = QVAspectFit(whole, pQVInfo->Monitor.Width, pQVInfo->Monitor.Height);
    if (fitted) {
        QVSetUsedArea(*pQVInfo, *fitted);
        mTabletPicRightDn = QVPictureCorner(*fitted, whole);
    } else {
        qCWarning(lcMonitor, "the tablet cannot be fitted to a display without width or height");
    }
    setNeedsDisplay();
    PushQVTabletInfo();
}

void QVMonitorView::CreateCalibrateWin(const Rect& rect)
{
    if (!mCalibration.isNull()) {
        mCalibration->removeAndClose(); // one at a time: the driver's reports go to the newest
    }
    mCalibration = new QVCalibrateWin(rect, window()); // the window owns it and closes it
    connect(mCalibration, &QVCalibrateWin::ended, this, [this, window = mCalibration.data()] {
        if (mCalibration == window) {
            mCalibration.clear();
        }
        Q_EMIT calibrationEnded();
    });
}

void QVMonitorView::DoCalibrate()
{
    pQVInfo->Monitor.disableFlag = 1;
    Rect place = mSubMonitorRect[0];
    if (mDspCount != 1) {
        const int chosen = chosenIn(mComboBox);
        if (chosen <= 0 || static_cast<std::size_t>(chosen) > mDisplays.size()) {
            return; // only one display can be calibrated at a time
        }
        const auto index = static_cast<std::size_t>(chosen) - 1;
        const auto isMain = [](platform::DisplayID display) {
            return platform::displays().isMain(display);
        };
        const auto main = std::ranges::find_if(mDisplays, isMain);
        if (main == mDisplays.end()) {
            qCWarning(lcMonitor, "no display is the main one: the tablet cannot be calibrated");
            pQVInfo->Monitor.disableFlag = 0;
            return;
        }
        if (!isMain(mDisplays[index])) {
            const Rect& m = mSubMonitorRect[static_cast<std::size_t>(main - mDisplays.begin())];
            const Rect& s = mSubMonitorRect[index];
            place = {s.x + m.x, (m.y + m.height) - (s.y + s.height), s.width, s.height};
        }
    }
    CreateCalibrateWin(place);
    PushQVTabletInfo();
}

void QVMonitorView::endCalibration(bool pushes)
{
    if (!mCalibration.isNull()) {
        mCalibration->endCalibration(pushes);
    }
}

void DisplayRegisterReconfigurationCallback(
    platform::DisplayID display, std::uint32_t flags, void* userInfo)
{
    static_cast<void>(display);
    auto& view = *static_cast<QVMonitorView*>(userInfo);
    const bool isBeginning = flags == platform::kDisplayBeginConfiguration;
    if (isBeginning == DisplayConfigurationChanged) {
        return; // one of a burst, but not its first
    }
    DisplayConfigurationChanged = isBeginning;
    if (isBeginning) {
        view.disableUI();
    } else {
        view.interrogateHardware();
        view.setNeedsDisplay();
        Q_EMIT view.displaysChanged();
    }
}
