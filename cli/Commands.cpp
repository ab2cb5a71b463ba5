// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "AppleEventWire.h"
#include "AppleEvents.h"
#include "CheckFile.h"
#include "Client.h"
#include "QVConfigEntry.h"
#include "QVConfigStore.h"
#include "QVTabletModels.h"
#include "QVWire.h"
#include "RecordText.h"
#include "UsbMode.h"
#include "rzkApplication.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFile>

#include <cstdio>
#include <cstring>
#include <optional>

namespace {

int fail(const QString& why)
{
    std::fprintf(stderr, "qvtbltctl: %s\n", qUtf8Printable(why));
    return kExitBad;
}

QString modelName(const tagQVTabletInfo& record)
{
    const auto productID = static_cast<std::uint16_t>(record.Basic.ProductID);
    const QVTabletModel* const model = QVFindModel(productID);
    return QStringLiteral("%1 (product %2)")
        .arg(model == nullptr ? QStringLiteral("unknown model") : QString::fromUtf8(model->name),
            QString::number(productID));
}

/** Finds the tablet and loads its file. @return the file's contents; nothing when why says so */
std::optional<platform::PropertyList> loadTablet(QVConfigStore& store, QString& why)
{
    if (!rzkgetQVDevice()) {
        why = *GetPListName() == '\0' ? QStringLiteral("the driver does not answer")
                                      : QStringLiteral("no tablet is attached");
        return std::nullopt;
    }
    platform::PropertyListError error;
    auto list = store.loadTabletsRecord(error);
    why = QString::fromStdString(error.message);
    return list;
}

/** Pushes the record and waits for the driver. @return why it was not taken; empty on success */
QString pushRecord()
{
    if (!PushQVTabletInfo()) {
        return QStringLiteral("the record could not be sent");
    }
    const platform::OSErr error = platform::events().finishSends();
    return error == platform::noErr
        ? QString()
        : QStringLiteral("the driver did not take the record (error %1)").arg(error);
}

/** A call to the simulated tablet, which only a driver that is there may answer. */
QDBusMessage simulatorCall(const char* method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(platform::wire::busName(kQVDriverSignature),
        QLatin1String(kQVSimulatorPath), QLatin1String(kQVSimulatorInterface),
        QString::fromLatin1(method));
    call.setAutoStartService(false);
    return call;
}

/** What the driver got last; an error in words when it cannot be had. */
std::optional<tagQVTabletInfo> lastRecord(QString& why)
{
    const QDBusReply<QByteArray> reply =
        QDBusConnection::sessionBus().call(simulatorCall("LastRecord"));
    if (!reply.isValid()) {
        why =
            QStringLiteral("the driver does not tell what it got: %1").arg(reply.error().message());
        return std::nullopt;
    }
    if (reply.value().size() != kQVRecordSize) {
        why = QStringLiteral("the driver has not got a record yet");
        return std::nullopt;
    }
    tagQVTabletInfo record{};
    std::memcpy(&record, reply.value().constData(), sizeof record);
    return record;
}

} // namespace

int runStatus()
{
    const bool hasTablet = rzkgetQVDevice();
    const bool hasDriver = *GetPListName() != '\0';
    std::printf("driver  %s\n", hasDriver ? "running" : "does not answer");
    if (!hasTablet) {
        std::printf("tablet  %s\n", hasDriver ? "none attached" : "unknown");
        return kExitBad;
    }
    const std::string path = QVConfigStore::configPath();
    QVConfigStore store;
    platform::PropertyListError error;
    const bool isUsable = store.loadRecord(path, error).has_value();
    std::printf(
        "tablet  %s\n", isUsable ? qUtf8Printable(modelName(*GetqvTabletInfo())) : "attached");
    std::printf("file    %s\n", isUsable ? path.c_str() : error.message.c_str());
    return isUsable ? kExitGood : kExitBad;
}

int runShow(const std::optional<QString>& file, bool asJson)
{
    if (!file) {
        QString why;
        const std::optional<tagQVTabletInfo> record = lastRecord(why);
        if (!record) {
            return fail(why);
        }
        *GetqvTabletInfo() = *record;
    } else {
        QVConfigStore store;
        platform::PropertyListError error;
        if (!store.loadRecord(QFile::encodeName(*file).toStdString(), error,
                platform::PropertyListSource::AnyFile)) {
            return fail(QString::fromStdString(error.message));
        }
    }
    const tagQVTabletInfo& record = *GetqvTabletInfo();
    const QByteArray text = asJson ? recordJson(record) : recordTable(record).toUtf8();
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return kExitGood;
}

int runCheck(const QString& file)
{
    return checkFile(file) ? kExitGood : kExitBad;
}

int runPush()
{
    QVConfigStore store;
    QString why;
    if (loadTablet(store, why)) {
        why = pushRecord();
    }
    if (!why.isEmpty()) {
        return fail(why);
    }
    std::printf("pushed the settings of %s\n", qUtf8Printable(modelName(*GetqvTabletInfo())));
    return kExitGood;
}

int runSet(const QString& entry, const QString& value)
{
    const QVEntry* const found = findEntry(entry);
    if (found == nullptr || !found->section->saved) {
        fail(found != nullptr
                ? QStringLiteral("%1 belongs to the tablet and cannot be set").arg(entry)
                : QStringLiteral("there is no entry %1; 'show' lists them all").arg(entry));
        return kExitUsage;
    }
    QVConfigStore store;
    QString why;
    const auto list = loadTablet(store, why);
    if (!list) {
        return fail(why);
    }
    // The panel adds no dictionaries.
    if (!QVEntryDictionary(list->root(), *found).exists()) {
        return fail(QStringLiteral("the tablet's file has no place for %1").arg(entry));
    }
    why = setEntry(*GetqvTabletInfo(), *found, value);
    if (!why.isEmpty()) {
        fail(why);
        return kExitUsage;
    }
    why = pushRecord();
    if (!why.isEmpty()) {
        return fail(why);
    }
    platform::PropertyListError error;
    if (!store.saveRecord(QVConfigStore::configPath(), error)) {
        return fail(QString::fromStdString(error.message));
    }
    std::printf("set %s to %s\n", qUtf8Printable(entry), qUtf8Printable(value));
    return kExitGood;
}

int runUsbMode(bool isFast)
{
    QVConfigStore store;
    QString why;
    if (!loadTablet(store, why)) {
        return fail(why + QStringLiteral(", so it is not known which tablet to tell"));
    }
    const auto productID = static_cast<std::uint16_t>(GetqvTabletInfo()->Basic.ProductID);
    const UsbModeResult result = setUsbMode(isFast, productID, modelName(*GetqvTabletInfo()));
    if (!result.isDone) {
        return fail(result.sentence);
    }
    std::puts(qUtf8Printable(result.sentence));
    return kExitGood;
}

int runSimTap(std::uint16_t x, std::uint16_t y)
{
    QDBusMessage call = simulatorCall("Tap");
    call.setArguments({QVariant::fromValue(x), QVariant::fromValue(y)});
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call);
    return reply.type() == QDBusMessage::ReplyMessage ? kExitGood : fail(reply.errorMessage());
}
