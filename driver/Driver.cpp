// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Driver.h"

#include "ConfigFile.h"
#include "EventForms.h"
#include "LivingBus.h"
#include "QVConfigEntry.h"
#include "QVConfigStore.h"
#include "QVDriverProtocol.h"
#include "QVEntryText.h"
#include "QVTabletModels.h"
#include "rzkApplication.h"

#include <QDBusMessage>
#include <QStringList>
#include <QThread>

#include <chrono>
#include <cstdio>
#include <utility>

using namespace platform;

namespace {

constexpr std::int32_t kReportTimeOut = 10 * kTicksPerSecond; ///< the panel pauses between points

/** Changes that are listed for a push; a completely new record would have a hundred. */
constexpr int kMaxChangesTold = 4;

/** No model of our own has such a product ID: no request of the panel reaches a foreign device. */
constexpr std::uint32_t kFirstForeignNumber = 0x8000;

/** Pushes often come in bursts, such as from a slider; the state is written after the burst. */
constexpr std::chrono::milliseconds kSaveDelay{250};

QString senderOf(const AppleEvent& event)
{
    const QByteArray* const name = event.address.bytes();
    return name == nullptr ? QStringLiteral("an unknown sender") : QString::fromUtf8(*name);
}

QString valueText(const QVEntry& entry, const tagQVTabletInfo& record)
{
    const QString text = entryValue(record, entry);
    return entry.type == QVFieldType::String ? QStringLiteral("\"%1\"").arg(text) : text;
}

/** Lists the differences between two records, for the log. */
QString changes(const std::optional<tagQVTabletInfo>& old, const tagQVTabletInfo& now)
{
    if (!old) {
        return QStringLiteral("the first record");
    }
    QStringList told;
    int count = 0;
    for (const QVEntry& entry : kQVEntries) {
        const QString was = valueText(entry, *old);
        const QString is = valueText(entry, now);
        if (was != is && ++count <= kMaxChangesTold) {
            told.append(QStringLiteral("%1 %2 -> %3")
                            .arg(QString::fromStdString(QVEntryPath(entry)), was, is));
        }
    }
    if (count > kMaxChangesTold) {
        told.append(QStringLiteral("and %1 more").arg(count - kMaxChangesTold));
    }
    return told.isEmpty() ? QStringLiteral("nothing changed") : told.join(QStringLiteral(", "));
}

} // namespace

void say(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

Driver::Driver(AppleEvents& events, QDBusConnection bus)
    : mEvents(events)
    , mBus(std::move(bus))
{
    mSaveSoon.setSingleShot(true);
    mSaveSoon.setInterval(kSaveDelay);
    connect(&mSaveSoon, &QTimer::timeout, this, &Driver::saveState);

    mPanels.setConnection(mBus);
    mPanels.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&mPanels, &QDBusServiceWatcher::serviceUnregistered, this, &Driver::panelHasGone);

    mSinceStart.start();
    mSendReports.setSingleShot(true);
    mSendReports.setTimerType(Qt::PreciseTimer);
    connect(&mSendReports, &QTimer::timeout, this, &Driver::sendDueReports);

    mEvents.installEventHandler(kAECoreSuite, kAEGetData,
        [this](const AppleEvent& event, AppleEvent& reply) { return answerQuery(event, reply); });
    mEvents.installEventHandler(kQVDriverSignature, kQVSettingsEvent,
        [this](const AppleEvent& event, AppleEvent& reply) { return takeSettings(event, reply); });
}

void Driver::start()
{
    Result<DriverState> state = DriverState::load();
    if (!state && !state.error().isMissingFile) {
        say(QStringLiteral("starting afresh: %1").arg(state.error().text));
    }
    mState = std::move(state).value_or(DriverState());
}

Result<> Driver::startSimulation(std::optional<std::uint16_t> productID)
{
    mIsSimulation = true;
    start();
    const std::uint16_t remembered = mState.attached;
    mState.attached = 0;
    if (productID) {
        return *productID == 0 ? Result<>() : attach(*productID);
    }
    if (remembered != 0) {
        if (const Result<> attached = attach(remembered); !attached) {
            say(attached.error().text);
        }
    }
    return {};
}

Result<> Driver::attach(std::uint16_t productID)
{
    const QVTabletModel* const model = QVFindModel(productID);
    if (model == nullptr) {
        return Error{QStringLiteral("there is no model with product %1").arg(productID)};
    }
    Result<> installed = installConfigFile(*model);
    if (installed) {
        setAttached(productID, QString::fromUtf8(model->name));
    }
    return installed;
}

void Driver::detach()
{
    setAttached(0, {});
}

Result<> Driver::attachTablet(const QVTabletModel& model, std::uint16_t vendorID)
{
    Result<> installed = installConfigFile(model, vendorID);
    if (!installed) {
        return installed;
    }
    const std::optional<tagQVTabletInfo> last = QVRecordIn(mState.record);
    if (last && QVProductID(*last) == model.productID) {
        mSettings = *last;
    } else {
        qvTabletInfo = {};
        QVConfigStore store;
        // A file that cannot be used leaves a tablet without settings, which covers everything.
        static_cast<void>(store.loadRecord(QVConfigStore::configPath()));
        mSettings = qvTabletInfo;
    }
    setAttached(model.productID, QString::fromUtf8(model.name));
    Q_EMIT settingsChanged();
    return {};
}

Result<std::uint16_t> Driver::configNumber(
    std::uint16_t vendorID, std::uint16_t productID, const QString& name)
{
    if (vendorID == kQVVendorID) {
        return productID;
    }
    const QString key = modelKey(vendorID, productID);
    const auto known = mState.numbers.constFind(key);
    if (known != mState.numbers.constEnd()) {
        return *known;
    }
    const QList<std::uint16_t> taken = mState.numbers.values();
    for (std::uint32_t number = kFirstForeignNumber; number <= 0xFFFF; ++number) {
        const auto candidate = static_cast<std::uint16_t>(number);
        // After the state was lost, a tablet finds its own file again, and no other's.
        if (!taken.contains(candidate) && mayBeConfigFileOf(candidate, vendorID, name)) {
            mState.numbers.insert(key, candidate);
            saveState(); // before the file has this number
            return candidate;
        }
    }
    return Error{QStringLiteral("all numbers for tablets are in use")};
}

void Driver::setChosenTablet(const QString& id)
{
    mState.chosen = id;
    saveState();
}

void Driver::setShowsNotices(bool areShown)
{
    mState.showsNotices = areShown;
    saveState();
}

void Driver::report(const QVPenReport& report)
{
    if (isCalibrating()) {
        send(report);
    }
}

void Driver::setAttached(std::uint16_t productID, const QString& name)
{
    if (mIsSimulation) {
        mState.attached = productID;
    }
    if (mAttached == productID) {
        return;
    }
    mAttached = productID;
    mReports.reset(); // a tablet that is disconnected reports no lift
    mPanels.setWatchedServices({});
    setCalibrating({}); // the panels were calibrating the previous tablet
    say(QStringLiteral("attached: %1")
            .arg(productID == 0
                    ? QStringLiteral("no tablet")
                    : QStringLiteral("%1 (product %2)").arg(name, QString::number(productID))));
    mSaveSoon.start();
    Q_EMIT attachedChanged(productID);
}

void Driver::stall(std::uint32_t milliseconds)
{
    mStall = milliseconds;
    say(QStringLiteral("stalling for %1 ms before each event").arg(milliseconds));
}

Result<> Driver::tap(std::uint16_t x, std::uint16_t y)
{
    if (mAttached == 0) {
        return Error{QStringLiteral("no tablet is attached")};
    }
    if (!isCalibrating()) {
        return Error{QStringLiteral("no panel is calibrating")};
    }
    mReports.tap(x, y);
    wakeReports();
    say(QStringLiteral("tap at %1, %2").arg(x).arg(y));
    Q_EMIT tapped(x, y);
    return {};
}

void Driver::penDown(std::uint16_t x, std::uint16_t y)
{
    if (mAttached == 0) {
        return;
    }
    mReports.press(x, y);
    if (isCalibrating()) {
        say(QStringLiteral("pen down at %1, %2").arg(x).arg(y));
    }
    wakeReports();
}

void Driver::penMove(std::uint16_t x, std::uint16_t y)
{
    mReports.move(x, y);
    wakeReports();
}

void Driver::penUp()
{
    if (!mReports.isDown()) {
        return;
    }
    mReports.lift();
    if (isCalibrating()) {
        const QVPenReport& pen = mReports.held();
        say(QStringLiteral("pen up at %1, %2").arg(pen.x).arg(pen.y));
    }
    wakeReports();
}

Result<> Driver::setReportRate(std::uint32_t perSecond)
{
    if (perSecond < 1 || perSecond > ReportClock::kMostReports) {
        return Error{QStringLiteral("the report rate must be 1 to 1000 per second")};
    }
    mClock.setRate(perSecond);
    mSendReports.stop();
    wakeReports();
    return {};
}

void Driver::wakeReports()
{
    if (!isCalibrating()) {
        mReports.forget(); // there is no recipient
        mSendReports.stop();
    } else if (!mReports.isEmpty() && !mSendReports.isActive()) {
        mClock.begin(now());
        mSendReports.start(std::chrono::ceil<std::chrono::milliseconds>(mClock.wait(now())));
    }
}

void Driver::sendDueReports()
{
    const ReportClock::Time time = now();
    while (!mReports.isEmpty() && mClock.wait(time) == ReportClock::Time::zero()) {
        send(mReports.take());
        mClock.sent(time);
    }
    if (!mReports.isEmpty()) {
        mSendReports.start(std::chrono::ceil<std::chrono::milliseconds>(mClock.wait(time)));
    }
}

void Driver::send(const QVPenReport& report)
{
    // The panel reads every other item of a list, starting with the first.
    const AEDesc item{kQVPenReportType,
        QByteArray(reinterpret_cast<const char*>(&report), static_cast<int>(sizeof report))};
    AppleEvent event{kAECoreSuite, kAEGetData, {typeBusName, mCalibrating.back()}, {}};
    mEvents.putParamDesc(event, keyDirectObject, {typeAEList, AEList{item}});
    mEvents.send(event, nullptr, kAEWaitReply, kAEHighPriority, kReportTimeOut);
}

void Driver::beginCalibration(const QByteArray& panel)
{
    std::vector<QByteArray> panels = mCalibrating;
    const bool isNew = std::erase(panels, panel) == 0;
    panels.push_back(panel);
    setCalibrating(std::move(panels));
    if (!isNew) {
        return;
    }
    const QString name = QString::fromUtf8(panel);
    mPanels.addWatchedService(name);
    platform::ifGone(mBus, name, *this, [this, name] { panelHasGone(name); });
}

bool Driver::endCalibration(const QByteArray& panel)
{
    std::vector<QByteArray> panels = mCalibrating;
    if (std::erase(panels, panel) == 0) {
        return false;
    }
    mPanels.removeWatchedService(QString::fromUtf8(panel));
    setCalibrating(std::move(panels));
    return true;
}

void Driver::setCalibrating(std::vector<QByteArray> panels)
{
    const bool wasCalibrating = isCalibrating();
    const QByteArray listened = wasCalibrating ? mCalibrating.back() : QByteArray();
    mCalibrating = std::move(panels);
    if (!isCalibrating() || mCalibrating.back() != listened) {
        mReports.forget(); // the next panel must not get the taps of this one
    }
    wakeReports();
    if (wasCalibrating != isCalibrating()) {
        Q_EMIT calibratingChanged(isCalibrating());
    }
}

void Driver::panelHasGone(const QString& panel)
{
    if (endCalibration(panel.toUtf8())) {
        say(QStringLiteral("%1 left the bus while calibrating").arg(panel));
    }
}

void Driver::saveState()
{
    mSaveSoon.stop();
    if (const Result<> saved = mState.save(); !saved) {
        say(saved.error().text);
    }
}

OSErr Driver::answerQuery(const AppleEvent& event, AppleEvent& reply)
{
    QThread::msleep(mStall);
    if (const Result<> query = checkQuery(event); !query) {
        return refuse(event, query.error(), reply);
    }
    const std::int32_t answer = mAttached;
    say(QStringLiteral("query from %1: %2").arg(senderOf(event), QString::number(answer)));
    return mEvents.putParamPtr(reply, keyDirectObject, typeLongInteger, bytesOf(answer));
}

OSErr Driver::takeSettings(const AppleEvent& event, AppleEvent& reply)
{
    QThread::msleep(mStall);
    const Result<tagQVTabletInfo> record = pushedRecord(event);
    if (!record) {
        return refuse(event, record.error(), reply);
    }
    ++mState.pushes;
    say(QStringLiteral("push %1 from %2: %3")
            .arg(mState.pushes)
            .arg(senderOf(event), changes(QVRecordIn(mState.record), *record)));
    mState.record = QVBytesOf(*record);
    // A panel may still show another tablet, whose area and keys would make no sense on this one.
    const bool isAboutTablet = mIsSimulation || QVProductID(*record) == mAttached;
    if (isAboutTablet) {
        mSettings = *record;
    }
    // Only a push from the panel itself ends its calibration; other programs push, too.
    if (const QByteArray* const sender = event.address.bytes()) {
        if (isAboutTablet && record->Monitor.disableFlag == 1) {
            beginCalibration(*sender);
        } else {
            endCalibration(*sender);
        }
    }
    mSaveSoon.start();
    if (isAboutTablet) {
        Q_EMIT settingsChanged();
    }
    Q_EMIT pushed(mState.pushes);
    return noErr;
}

OSErr Driver::refuse(const AppleEvent& event, const Error& error, AppleEvent& reply)
{
    say(QStringLiteral("rejected %1/%2 from %3: %4")
            .arg(QLatin1String(quoted(event.eventClass)), QLatin1String(quoted(event.eventID)),
                senderOf(event), error.text));
    reply.parameters.push_back({keyErrorString, {typeUTF8Text, error.text.toUtf8()}});
    return errAECoercionFail;
}
