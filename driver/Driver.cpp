// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Driver.h"

#include "ConfigFile.h"
#include "EventForms.h"
#include "QVConfigEntry.h"
#include "QVTabletModels.h"
#include "rzkApplication.h"

#include <QStringList>
#include <QThread>

#include <chrono>
#include <cstddef>
#include <cstdio>

using namespace platform;

namespace {

constexpr DescType kPenReport = fourCharCode("rprt");
constexpr std::int32_t kReportTimeOut = 10 * kTicksPerSecond; ///< the panel pauses between points
constexpr int kUsualReports = 10; ///< milliseconds from one report to the next
constexpr std::uint32_t kMostReports = 1000;

constexpr AEEventID kSettingsEvent = fourCharCode("WSnd");

/** Changes that one push is told with; a whole new record would be a hundred. */
constexpr int kMaxChangesTold = 4;

/** Settings often come in bursts, as from a slider; the state is written after the burst. */
constexpr std::chrono::milliseconds kSaveDelay{250};

QString senderOf(const AppleEvent& event)
{
    const QByteArray* const name = event.address.bytes();
    return name == nullptr ? QStringLiteral("somebody") : QString::fromUtf8(*name);
}

QString valueText(const QVField& field, const QByteArray& record, std::size_t base)
{
    const auto* const bytes = reinterpret_cast<const std::byte*>(record.constData()) + base;
    return field.type == QVFieldType::String
        ? QStringLiteral("\"%1\"").arg(QString::fromLatin1(QVFieldString(field, bytes).c_str()))
        : QString::number(QVFieldNumber(field, bytes));
}

/** What differs between two whole records, for people. */
QString changes(const QByteArray& before, const QByteArray& after)
{
    if (before.size() != kQVRecordSize) {
        return QStringLiteral("the first record");
    }
    QStringList told;
    int count = 0;
    QVForEachField([&](const QVSection& section, const char* slot, const QVField& field,
                       std::size_t base) {
        const QString was = valueText(field, before, base);
        const QString is = valueText(field, after, base);
        if (was == is || ++count > kMaxChangesTold) {
            return;
        }
        const QString path = slot == nullptr
            ? QString::fromLatin1(section.key)
            : QString::fromLatin1(section.key) + QLatin1Char('/') + QString::fromLatin1(slot);
        told.append(
            QStringLiteral("%1/%2 %3 -> %4").arg(path, QString::fromLatin1(field.key), was, is));
    });
    if (count > kMaxChangesTold) {
        told.append(QStringLiteral("and %1 more").arg(count - kMaxChangesTold));
    }
    return told.isEmpty() ? QStringLiteral("nothing changed") : told.join(QStringLiteral(", "));
}

QString modelText(std::uint16_t productID)
{
    const QVTabletModel* const model = QVFindModel(productID);
    return model == nullptr
        ? QStringLiteral("no tablet")
        : QStringLiteral("%1 (product %2)").arg(QString::fromUtf8(model->name)).arg(productID);
}

} // namespace

void say(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

Driver::Driver(AppleEvents& events)
    : mEvents(events)
{
    mSaveSoon.setSingleShot(true);
    mSaveSoon.setInterval(kSaveDelay);
    connect(&mSaveSoon, &QTimer::timeout, this, &Driver::saveState);

    mSendReport.setInterval(kUsualReports);
    connect(&mSendReport, &QTimer::timeout, this, &Driver::sendReport);

    mEvents.installEventHandler(kAECoreSuite, kAEGetData,
        [this](const AppleEvent& event, AppleEvent& reply) { return answerQuery(event, reply); });
    mEvents.installEventHandler(kQVDriverSignature, kSettingsEvent,
        [this](const AppleEvent& event, AppleEvent& reply) { return takeSettings(event, reply); });
}

QString Driver::start(std::optional<std::uint16_t> productID)
{
    const std::optional<DriverState> state = DriverState::load();
    if (state) {
        mState = *state;
    }
    const std::uint16_t remembered = state ? state->attached : kQVTabletModels.front().productID;
    mState.attached = 0;
    if (productID) {
        return *productID == 0 ? QString() : attach(*productID);
    }
    if (remembered != 0) {
        const QString error = attach(remembered);
        if (!error.isEmpty()) {
            say(error);
        }
    }
    return {};
}

QString Driver::attach(std::uint16_t productID)
{
    const QVTabletModel* const model = QVFindModel(productID);
    if (model == nullptr) {
        return QStringLiteral("there is no model with product %1").arg(productID);
    }
    const InstalledConfig config = installConfigFile(*model);
    if (!config.error.isEmpty()) {
        return config.error;
    }
    if (config.created) {
        say(QStringLiteral("installed %1").arg(config.path));
    }
    setAttached(productID);
    return {};
}

void Driver::detach()
{
    setAttached(0);
}

void Driver::setAttached(std::uint16_t productID)
{
    if (mState.attached == productID) {
        return;
    }
    mState.attached = productID;
    say(QStringLiteral("attached: %1").arg(modelText(productID)));
    mSaveSoon.start();
    Q_EMIT attachedChanged(productID);
}

void Driver::stall(std::uint32_t milliseconds)
{
    mStall = milliseconds;
    say(QStringLiteral("stalling for %1 ms before each event").arg(milliseconds));
}

QString Driver::tap(std::uint16_t x, std::uint16_t y)
{
    if (mState.attached == 0) {
        return QStringLiteral("no tablet is attached");
    }
    if (mCalibrating.isEmpty()) {
        return QStringLiteral("nobody asks for the pen: no calibration is going on");
    }
    constexpr std::uint32_t kPressure = 300;
    constexpr int kMoves = 4;
    for (int i = 0; i <= kMoves; ++i) {
        mReports.push_back({1, x, y, kPressure});
    }
    mReports.push_back({0, x, y, 0});
    mSendReport.start();
    say(QStringLiteral("tap at %1, %2").arg(x).arg(y));
    return {};
}

bool Driver::setReportRate(std::uint32_t perSecond)
{
    if (perSecond < 1 || perSecond > kMostReports) {
        return false;
    }
    mSendReport.setInterval(static_cast<int>(1000 / perSecond));
    return true;
}

void Driver::sendReport()
{
    if (mReports.empty()) {
        mSendReport.stop();
        return;
    }
    const PenReport report = mReports.front();
    mReports.pop_front();
    // Of a list, the panel reads every other item, beginning with the first.
    const AEDesc item{kPenReport,
        QByteArray(reinterpret_cast<const char*>(&report), static_cast<int>(sizeof report))};
    AppleEvent event{kAECoreSuite, kAEGetData, {typeBusName, mCalibrating}, {}};
    mEvents.putParamDesc(event, keyDirectObject, {typeAEList, AEList{item}});
    mEvents.send(event, nullptr, kAEWaitReply, kAEHighPriority, kReportTimeOut);
}

void Driver::saveState()
{
    mSaveSoon.stop();
    const QString error = mState.save();
    if (!error.isEmpty()) {
        say(error);
    }
}

OSErr Driver::answerQuery(const AppleEvent& event, AppleEvent& reply)
{
    QThread::msleep(mStall);
    const QString error = queryFormError(event);
    if (!error.isEmpty()) {
        return refuse(event, error, reply);
    }
    const std::int32_t answer = mState.attached;
    say(QStringLiteral("query from %1: %2").arg(senderOf(event)).arg(answer));
    return mEvents.putParamPtr(reply, keyDirectObject, typeLongInteger, bytesOf(answer));
}

OSErr Driver::takeSettings(const AppleEvent& event, AppleEvent& reply)
{
    QThread::msleep(mStall);
    const QString error = settingsFormError(event);
    if (!error.isEmpty()) {
        return refuse(event, error, reply);
    }
    const QByteArray record = *event.parameters.front().desc.bytes();
    ++mState.pushes;
    say(QStringLiteral("push %1 from %2: %3")
            .arg(mState.pushes)
            .arg(senderOf(event), changes(mState.record, record)));
    mState.record = record;
    const QByteArray* const sender = event.address.bytes();
    const QByteArray flag = record.mid(offsetof(tagQVTabletInfo, Monitor.disableFlag), 2);
    const bool isCalibrating = flag == QByteArray("\x01\x00", 2);
    mCalibrating = isCalibrating && sender != nullptr ? *sender : QByteArray();
    if (!isCalibrating) {
        mReports.clear(); // the next calibration begins with taps of its own
    }
    mSaveSoon.start();
    Q_EMIT pushed(mState.pushes);
    return noErr;
}

OSErr Driver::refuse(const AppleEvent& event, const QString& why, AppleEvent& reply)
{
    say(QStringLiteral("refused %1/%2 from %3: %4")
            .arg(QLatin1String(quoted(event.eventClass)), QLatin1String(quoted(event.eventID)),
                senderOf(event), why));
    reply.parameters.push_back({keyErrorString, {typeUTF8Text, why.toUtf8()}});
    return errAECoercionFail;
}
