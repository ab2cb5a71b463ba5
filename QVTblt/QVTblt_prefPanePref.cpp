// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTblt_prefPanePref.h"

#include "AppleEvents.h"
#include "Client.h"
#include "Notifications.h"
#include "QVDriverProtocol.h"
#include "QVNSView.h"
#include "QVPaneProfiles.h"
#include "QVSelfCheck.h"
#include "QVTabletModels.h"
#include "rzkApplication.h"
#include "rzkBundle.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QScrollBar>
#include <QThread>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

platform::Bundle rzkBundle;

namespace {

/** A display's maker and model, and its size, for the user. */
QString describe(platform::DisplayID display)
{
    const platform::Monitor monitor = platform::displays().monitor(display);
    const QSize pixels = platform::displays().pixels(display);
    const QString maker = (monitor.maker + u' ' + monitor.product).simplified();
    const QString name = maker.isEmpty() ? monitor.connector : maker;
    //: On a display; %1 is its maker and model, %2 and %3 its width and height.
    return pixels.isEmpty()
        ? name
        : QVTblt_prefPanePref::tr("%1, %2 × %3 pixels")
              .arg(name, QString::number(pixels.width()), QString::number(pixels.height()));
}

} // namespace

QVTblt_prefPanePref::QVTblt_prefPanePref() = default;
QVTblt_prefPanePref::~QVTblt_prefPanePref() = default;

platform::PreferencePane* QVTblt_prefPanePref::initWithBundle(const platform::Bundle& bundle)
{
    platform::PreferencePane* const pane = PreferencePane::initWithBundle(bundle);
    rzkBundle = bundle;
    const auto translation =
        bundle.pathForLocalizedResource(QStringLiteral("QVTblt"), QStringLiteral("qm"));
    if (translation && mTranslator.load(*translation)) {
        QCoreApplication::installTranslator(&mTranslator);
    }
    platform::events().acceptSignal(QLatin1String(kQVTabletPath), QLatin1String(kQVTabletInterface),
        QLatin1String(kQVButtonSignal));
    platform::notifications().addObserver(
        *this, platform::kSourceSignalNotification, [this](const platform::Notification& signal) {
            if (signal.values.size() == 2) {
                markButton(signal.values[0].toUInt(), signal.values[1].toBool());
            }
        });
    platform::events().acceptEventsFrom(kQVDriverSignature);
    platform::notifications().addObserver(
        *this, kRecordPushedNotification, [this](const platform::Notification&) {
            mayHaveChanged();
            mProfiles->noteEdit();
        });
    relay(platform::kSourceChangedNotification, News::DeviceMayHaveChanged);
    relay(platform::kEventTakenNotification, News::ChangeTaken);
    relay(platform::kEventNotTakenNotification, News::ChangeNotTaken);
    for (const bool isTaken : {true, false}) {
        platform::notifications().addObserver(*this,
            isTaken ? platform::kEventTakenNotification : platform::kEventNotTakenNotification,
            [this, isTaken](const platform::Notification&) { mIsPushTaken = isTaken; });
    }
    relay(kConfigLoadedNotification, News::Loaded);
    relay(kConfigNotLoadedNotification, News::NotLoaded);
    relay(kConfigSavedNotification, News::Saved);
    relay(kConfigNotSavedNotification, News::NotSaved);
    platform::notifications().addObserver(*this, kConfigSavedNotification,
        [this](const platform::Notification&) { mProfiles->noteSaved(); });
    makeProfiles();
    return pane;
}

void QVTblt_prefPanePref::makeProfiles()
{
    mProfiles = std::make_unique<QVPaneProfiles>(*this,
        QVPaneProfiles::Panel{
            .hasDevice = [this] { return hasDevice(); },
            .isCalibrating = [this] { return hasDevice() && mMonitorView->isCalibrating(); },
            .show = [this] { showSettings(); },
            .tell =
                [this](bool isOther) {
                    if (isOther) {
                        tell(News::SettingsReplaced);
                    }
                    mayHaveChanged();
                },
        });
}

platform::PaneProfiles* QVTblt_prefPanePref::profiles()
{
    return mProfiles.get();
}

void QVTblt_prefPanePref::relay(QLatin1String name, News news)
{
    platform::notifications().addObserver(
        *this, name, [this, news](const platform::Notification& notification) {
            tell(news, notification.text);
        });
}

QWidget* QVTblt_prefPanePref::makeMainView()
{
    auto view = std::make_unique<QVNSView>();
    setupUi(view.get());
    mNoDevTitleX = platform::frame(*NoDevTitle).x;
    connect(view.get(), &QVNSView::resized, this, &QVTblt_prefPanePref::placeNoDevice);
    mSoft->setTextFormat(Qt::PlainText); // a device may call itself anything
    setUpKeyPage();
    setUpPenPage();
    setUpDisplayPage();
    connect(mSave, &QPushButton::clicked, this, &QVTblt_prefPanePref::SaveSet);
    connect(mCancel, &QPushButton::clicked, this, &QVTblt_prefPanePref::CancelSet);
    return view.release();
}

void QVTblt_prefPanePref::setUpPenPage()
{
    pressCanvas->takePlaces();
    mPressView->setOutlets(mSlider, mPenID);
    mPressView->awakeFromNib();
    mDrawView->setOutlets(txtRawTabletPressure);
    mDrawView->awakeFromNib();
    mPenStats->observe(*mDrawView);
    mPressDot->follow(*mDrawView);
    connect(mFitPressure, &QPushButton::clicked, this, &QVTblt_prefPanePref::fitPressure);
    connect(
        mSlider, &QSlider::valueChanged, this, [this] { mPressView->AdjustPressLine(mSlider); });
    connect(mAdjustOpacity, &QCheckBox::toggled, mDrawView, &QVDrawView::setAdjustOpacity);
    connect(mAdjustSize, &QCheckBox::toggled, mDrawView, &QVDrawView::setAdjustSize);
    connect(mClean, &QPushButton::clicked, mDrawView, &QVDrawView::doClean);
}

void QVTblt_prefPanePref::fitPressure()
{
    // The dialog is destroyed with the main view, if the host closes the panel meanwhile. The
    // host's window may outlive both.
    const QPointer<QVPressFit> dialog =
        new QVPressFit(qvTabletInfo.Pen.PressureThreshold, mainView());
    if (dialog->exec() == QDialog::Accepted && !dialog.isNull()) {
        mSlider->choose(dialog->threshold() * QVPressView::kSliderSteps);
    }
    delete dialog;
}

void QVTblt_prefPanePref::setUpDisplayPage()
{
    mMonitorView->setOutlets(mComboBox, mComboBoxSpeed, mComboBoxUseMode, mDoCalibrate);
    mMonitorView->awakeFromNib();
    // If the page has its minimum size, Qt 5 makes the text a pixel too narrow.
    mComboBoxUseMode->setMinimumWidth(mComboBoxUseMode->sizeHint().width() + 2);
    // If there is no room for the whole picture, show the part with the tablet and the main
    // display.
    QScrollBar* const upDown = mMonitorScroll->verticalScrollBar();
    connect(upDown, &QScrollBar::rangeChanged, upDown,
        [upDown] { upDown->setValue(upDown->maximum()); });
    mMonitorScroll->viewport()->setAutoFillBackground(false);
    const auto chosen = qOverload<int>(&QComboBox::activated);
    connect(mComboBox, chosen, mMonitorView, &QVMonitorView::SelectMonitor);
    connect(mComboBox, chosen, this, [this] { tell(News::DisplayChosen); });
    connect(mComboBoxSpeed, chosen, mMonitorView, &QVMonitorView::SelectSpeed);
    connect(mComboBoxUseMode, chosen, mMonitorView, &QVMonitorView::SelectUseMode);
    connect(mIdentify, &QPushButton::clicked, this, &QVTblt_prefPanePref::identifyDisplays);
    connect(mDoCalibrate, &QPushButton::clicked, mMonitorView, &QVMonitorView::DoCalibrate);
    connect(
        mDefaultArea, &QPushButton::clicked, mMonitorView, &QVMonitorView::setTabletDefaultArea);
    connect(mAutoCalibrate, &QPushButton::clicked, mMonitorView, &QVMonitorView::AutoCalibrate);
    connect(mMonitorView, &QVMonitorView::calibrationEnded, this, [this] {
        mayHaveChanged();
        mProfiles->noteEdit();
    });
    connect(mMonitorView, &QVMonitorView::displaysChanged, this, [this] {
        if (hasDevice() && mMonitorView->updateMappedArea()) {
            tell(News::ChangedByItself);
        }
        tell(News::DisplaysChanged);
    });
}

void QVTblt_prefPanePref::identifyDisplays()
{
    if (mSigns.areShown()) {
        mSigns.hide();
        return;
    }
    const platform::Displays& displays = platform::displays();
    std::vector<platform::DisplaySign> signs;
    for (const platform::DisplayID display :
        displays.activeDisplays().value_or(std::vector<platform::DisplayID>())) {
        const auto index = static_cast<std::uint32_t>(signs.size());
        if (index == kQVMaxDisplays) {
            break;
        }
        const QString text = describe(display);
        //: Read by screen readers; %1 is a display's name, such as "Display #1", %2 its maker and
        //: size.
        const QString spoken = tr("%1: %2").arg(QVDisplayName(index), text);
        signs.push_back({display, QString::number(index + 1), text, spoken});
    }
    mSigns.show(signs);
}

platform::PreferencePane::Device QVTblt_prefPanePref::checkDevice()
{
    Answer answer;
    answer.hasDevice = GetQVConfigFileName(answer.name.data());
    if (answer.name.front() == '\0') {
        return Device::Unknown;
    }
    const bool isSame = answer.hasDevice == hasDevice()
        && (!answer.hasDevice || std::string_view(answer.name.data()) == GetPListName());
    if (isSame) {
        return Device::Same;
    }
    mAnswer = answer;
    return Device::Other;
}

void QVTblt_prefPanePref::checkSelf(std::function<void(const SelfCheck& check)> done)
{
    QVSelfCheckInput input;
    input.isLastPushTaken = mIsPushTaken;
    const auto facts = std::make_shared<QVSelfCheckFacts>();
    QThread* const thread = QThread::create([facts, input] { *facts = QVGatherFacts(input); });
    connect(thread, &QThread::finished, this,
        [facts, done = std::move(done)] { done(QVSelfCheckResult(*facts)); });
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    // It uses D-Bus, which must not end before it. Interrupted, it stops doing so within the limit.
    // It may still wait for a disk that does not answer, with nothing but what it owns.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, thread, [thread] {
        constexpr unsigned long kLimit = 3000; // milliseconds; a bus has 2000 of them
        thread->requestInterruption();
        thread->wait(kLimit);
    });
    thread->start();
}

bool QVTblt_prefPanePref::askForDevice()
{
    const std::optional<Answer> answer = std::exchange(mAnswer, {});
    if (!answer) {
        return rzkgetQVDevice();
    }
    pListname = answer->name;
    return answer->hasDevice;
}

bool QVTblt_prefPanePref::hasDevice() const
{
    return mainView() != nullptr && mHasDevice;
}

QString QVTblt_prefPanePref::deviceID() const
{
    return hasDevice() ? QString::fromLatin1(GetPListName()).section(u'.', 0, 0) : QString();
}

int QVTblt_prefPanePref::chosenDisplay() const
{
    return qvTabletInfo.Monitor.num;
}

void QVTblt_prefPanePref::chooseDisplay(int number)
{
    if (number < 0 || number >= mComboBox->count()) {
        return; // the displays have changed meanwhile
    }
    mComboBox->setCurrentIndex(number);
    mMonitorView->SelectMonitor();
    tell(News::DisplayChosen);
}

void QVTblt_prefPanePref::willSelect()
{
    mHasDevice = askForDevice();
    if (mainView() == nullptr) {
        return; // its window is destroyed
    }
    tabView->setVisible(mHasDevice);
    NoDevTitle->setVisible(!mHasDevice);
    NoDevHelp->setVisible(!mHasDevice);
    // Without a tablet, there is no name, and nothing to save or cancel.
    mSoft->setVisible(mHasDevice);
    mSave->setVisible(mHasDevice && mButtonsShown);
    mCancel->setVisible(mHasDevice && mButtonsShown);
    if (!mHasDevice) {
        showNoDevice();
        return;
    }
    ReadQVConfigPlist();
    showModel();
    // A layout does not undo that of another product.
    if (mLaidOutProduct && *mLaidOutProduct != QVProductID(qvTabletInfo)) {
        restoreKeyPage();
    }
    InitComboBoxWithKey();
    mProfiles->enter();
}

void QVTblt_prefPanePref::showModel()
{
    const auto productID = QVProductID(qvTabletInfo);
    const QVTabletModel* const model = QVFindModel(productID);
    if (model != nullptr) {
        mSoft->setText(QString::fromUtf8(model->name));
    } else if (const QString name = tabletName(); !name.isEmpty()) {
        mSoft->setText(name);
    } else {
        //: In place of a model's name; %1 is the USB product ID, four hexadecimal digits.
        mSoft->setText(tr("Unknown tablet, product %1").arg(productID, 4, 16, QLatin1Char('0')));
    }
}

void QVTblt_prefPanePref::showNoDevice()
{
    // A point of a frame is a pixel of the widget, so the font is measured in pixels, too.
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setBold(true);
    font.setPixelSize(20);
    NoDevTitle->setFont(font);
    QPalette palette = NoDevTitle->palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgbF(1.0F, 0.2F, 0.2F, 0.6F));
    NoDevTitle->setPalette(palette);

    // The label moves relative to its current position: each showing without a tablet shifts it
    // further.
    platform::Rect frame = platform::frame(*NoDevTitle);
    frame.x = mNoDevTitleX + 20.0;
    frame.y -= 150.0;
    frame.width *= 5.0;
    platform::setFrame(*NoDevTitle, frame);
    NoDevTitle->setText(rzkBundle.localizedString(
        QStringLiteral("NoDevice"), QString(), QStringLiteral("InfoPlist")));
    platform::sizeToFit(*NoDevTitle);
    mNoDevTitleX = frame.x;
    placeNoDevice();
}

void QVTblt_prefPanePref::placeNoDevice()
{
    if (NoDevTitle->isHidden()) {
        return;
    }
    // The label keeps its distance from the side where lines start. The help is below it, but
    // always visible, unlike the label.
    constexpr double kMargin = 12;
    constexpr double kGap = 8;
    const QWidget& view = *NoDevHelp->parentWidget();
    platform::Rect place = platform::frame(*NoDevTitle);
    place.x = view.isRightToLeft() ? view.width() - (mNoDevTitleX + place.width) : mNoDevTitleX;
    platform::setFrame(*NoDevTitle, place);
    place.width = view.width() - 2 * kMargin;
    place.height = NoDevHelp->heightForWidth(static_cast<int>(place.width));
    place.x = kMargin;
    place.y = std::max(place.y - kGap - place.height, kMargin);
    platform::setFrame(*NoDevHelp, place);
}

void QVTblt_prefPanePref::didSelect()
{
    if (mainView() == nullptr) {
        return;
    }
    mSoft->setFocus();
    if (!NoDevHelp->isHidden()) {
        NoDevHelp->setFocus(); // so that screen readers read it
    }
}

void QVTblt_prefPanePref::willUnselect()
{
    mSigns.hide();
    if (mainView() != nullptr) {
        // The driver must not continue to send points. A driver with another tablet has stopped,
        // and these settings are not for that tablet.
        mMonitorView->endCalibration(!mAnswer);
    }
    WriteQVConfigPlist();
}

void QVTblt_prefPanePref::didUnselect()
{
    mProfiles->leave();
    if (mainView() == nullptr) {
        return;
    }
    platform::setFrame(*mKey1_1, keyFrame_org);
    platform::setFrame(*mKeyLScroll, keyFrame_org_scroll_l);
    platform::setFrame(*mKeyRScroll, keyFrame_org_scroll_r);
}

void QVTblt_prefPanePref::SaveSet()
{
    if (mainView() != nullptr) {
        takeScrollBoxes();
    }
    WriteQVConfigPlist();
    PushQVTabletInfo();
}

void QVTblt_prefPanePref::CancelSet()
{
    ReadQVConfigPlist();
    PushQVTabletInfo();
}
