// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "AppleEventWire.h"
#include "Bundle.h"
#include "Client.h"
#include "Doctor.h"
#include "Follow.h"
#include "Profile.h"
#include "QVConfigEntry.h"
#include "QVConfigStore.h"
#include "QVDriverProtocol.h"
#include "QVEntryText.h"
#include "QVPanelObject.h"
#include "QVSelfCheck.h"
#include "QVTabletList.h"
#include "QVTabletModels.h"
#include "RecordText.h"
#include "UsbMode.h"
#include "rzkApplication.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <cstdio>

using platform::Error;
using platform::Result;

namespace {

/** The name of the tablet whose file is loaded. */
QString modelName(const QVConfigStore& store)
{
    const auto productID = QVProductID(*GetqvTabletInfo());
    const QVTabletModel* const model = QVFindModel(productID);
    const QString name = model == nullptr ? store.tabletName() : QString::fromUtf8(model->name);
    return QStringLiteral("%1 (product %2)")
        .arg(name.isEmpty() ? QStringLiteral("unknown model") : name, QString::number(productID));
}

QDBusMessage driverCall(const char* path, const char* interface, const char* method)
{
    return QDBusMessage::createMethodCall(platform::wire::busName(kQVDriverSignature),
        QLatin1String(path), QLatin1String(interface), QString::fromLatin1(method));
}

/** Creates a call to the simulated tablet that does not start a driver. */
QDBusMessage simulatorCall(const char* method)
{
    QDBusMessage call = driverCall(kQVSimulatorPath, kQVSimulatorInterface, method);
    call.setAutoStartService(false);
    return call;
}

/** Returns the last record that the driver has received. */
Result<tagQVTabletInfo> lastRecord()
{
    const QDBusReply<QByteArray> reply =
        QDBusConnection::sessionBus().call(simulatorCall("LastRecord"));
    if (!reply.isValid()) {
        return Error{QStringLiteral("the driver does not report its settings: %1")
                         .arg(reply.error().message())};
    }
    if (const auto record = QVRecordIn(reply.value())) {
        return *record;
    }
    return Error{QStringLiteral("the driver has not received any settings yet")};
}

/** The path for a file operand; - is standard input. */
QString fileOf(const QString& operand)
{
    return operand == QLatin1String("-") ? QStringLiteral("/dev/stdin") : operand;
}

/** Prints whether there is a driver, a tablet, and a usable file. */
int runStatus(const Arguments& /*none*/)
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
    const auto list = store.loadRecord(path);
    const bool isUsable = list.has_value();
    std::printf("tablet  %s\n", isUsable ? qUtf8Printable(modelName(store)) : "attached");
    std::printf("file    %s\n", isUsable ? path.c_str() : qUtf8Printable(list.error().text));
    return isUsable ? kExitGood : kExitBad;
}

/** Prints the record in a file or a pipe, or, without one, the driver's last record. */
int runShow(const Arguments& arguments)
{
    if (arguments.operands.isEmpty()) {
        const Result<tagQVTabletInfo> record = lastRecord();
        if (!record) {
            return fail(record.error().text);
        }
        *GetqvTabletInfo() = *record;
    } else if (const auto list = QVConfigStore().loadRecord(
                   QFile::encodeName(fileOf(arguments.operands[0])).toStdString(),
                   platform::PropertyListSource::AnyFile);
               !list) {
        return fail(list.error().text);
    }
    const tagQVTabletInfo& record = *GetqvTabletInfo();
    const QByteArray text = arguments.asJson ? recordJson(record) : recordTable(record).toUtf8();
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return kExitGood;
}

int runCheck(const Arguments& arguments)
{
    return checkFile(fileOf(arguments.operands[0]));
}

/** Loads the tablet's file and pushes the record. */
int runPush(const Arguments& /*none*/)
{
    QVConfigStore store;
    const auto list = store.loadAttachedTablet();
    const Result<> pushed = list ? QVPushAndWait() : list.error();
    if (!pushed) {
        return fail(pushed.error().text);
    }
    std::printf("pushed the settings of %s\n", qUtf8Printable(modelName(store)));
    return kExitGood;
}

/** Sets one entry of the tablet's file, pushes the record and saves the file. */
Result<> setInFile(const QVEntry& entry, const QString& value)
{
    QVConfigStore store;
    const auto list = store.loadAttachedTablet();
    if (!list) {
        return list.error();
    }
    // The panel does not add dictionaries.
    if (!QVEntryDictionary(list->root(), entry).exists()) {
        return Error{QStringLiteral("the tablet's file has no dictionary for %1")
                         .arg(QString::fromStdString(QVEntryPath(entry)))};
    }
    if (Result<> set = setEntry(*GetqvTabletInfo(), entry, value); !set) {
        return set;
    }
    const Result<> pushed = QVPushAndWait();
    return pushed ? store.saveRecord(QVConfigStore::configPath()) : pushed;
}

/** Sets one entry, here or in the panel that holds the settings, which would lose it otherwise. */
int runSet(const Arguments& arguments)
{
    const QString& entry = arguments.operands[0];
    const QString& value = arguments.operands[1];
    const Result<const QVEntry*> found = findSetting(entry);
    if (!found) {
        fail(QStringLiteral("%1; 'show' lists all entries").arg(found.error().text));
        return kExitUsage;
    }
    tagQVTabletInfo other{};
    if (const Result<> fits = setEntry(other, **found, value); !fits) {
        fail(fits.error().text);
        return kExitUsage;
    }
    const auto asked = QVAskPanel(QDBusConnection::sessionBus(), "Set", {entry, value});
    if (const Result<> set = asked ? *asked : setInFile(**found, value); !set) {
        return fail(set.error().text);
    }
    std::printf("set %s to %s\n", qUtf8Printable(entry), qUtf8Printable(value));
    return kExitGood;
}

/** Sets the tablet's report mode over USB. */
int runUsbMode(const Arguments& arguments)
{
    const QString& mode = arguments.operands[0];
    const bool isFast = mode == QLatin1String("fast");
    if (!isFast && mode != QLatin1String("normal")) {
        return usageError(QStringLiteral("there is no report mode '%1'").arg(mode));
    }
    QVConfigStore store;
    if (const auto list = store.loadAttachedTablet(); !list) {
        return fail(list.error().text + QStringLiteral(", so the tablet is not known"));
    }
    const auto productID = QVProductID(*GetqvTabletInfo());
    const Result<QString> told = setUsbMode(isFast, productID, modelName(store));
    if (!told) {
        return fail(told.error().text);
    }
    std::puts(qUtf8Printable(*told));
    return kExitGood;
}

/**
 * Prints the tablets that are plugged in, has the driver use one of them, or says whether it shows
 * notices.
 */
int runTablet(const Arguments& arguments)
{
    const QString& what = arguments.operands[0];
    const bool isList = what == QLatin1String("list");
    const bool isUse = what == QLatin1String("use");
    if (!isList && !isUse && what != QLatin1String("notices")) {
        return usageError(QStringLiteral("there is no command 'tablet %1'").arg(what));
    }
    if (arguments.operands.size() != (isList ? 1 : 2)) {
        return usageError(isList ? QStringLiteral("extra operand '%1'").arg(arguments.operands[1])
                                 : QStringLiteral("missing operand after '%1'").arg(what));
    }
    if (arguments.asJson && !isList) {
        return usageError(QStringLiteral("--json can only be used with tablet list"));
    }
    QVRegisterTabletList();
    QDBusMessage call = driverCall(kQVTabletPath, kQVTabletInterface,
        isList      ? "Tablets"
            : isUse ? "Use"
                    : "ShowNotices");
    if (isUse) {
        call << arguments.operands[1];
    } else if (!isList) {
        const QString& choice = arguments.operands[1];
        const bool isOn = choice == QLatin1String("on");
        if (!isOn && choice != QLatin1String("off")) {
            return usageError(QStringLiteral("notices can be on or off, not '%1'").arg(choice));
        }
        call << isOn;
    }
    const QDBusMessage message = QDBusConnection::sessionBus().call(call);
    if (message.type() != QDBusMessage::ReplyMessage) {
        return fail(message.errorMessage());
    }
    if (!isList) {
        return kExitGood;
    }
    const QVTabletList list = QDBusReply<QVTabletList>(message).value();
    QByteArray text = QVTabletListText(list).toUtf8();
    if (arguments.asJson) {
        QJsonArray array;
        for (const QVariantMap& tablet : list) {
            array.append(QJsonObject::fromVariantMap(tablet));
        }
        text = QJsonDocument(array).toJson();
    }
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return kExitGood;
}

/** Touches a point of the tablet with the simulated pen, in tablet units. */
int runSim(const Arguments& arguments)
{
    if (arguments.operands[0] != QLatin1String("tap")) {
        return usageError(
            QStringLiteral("there is no command 'sim %1'").arg(arguments.operands[0]));
    }
    QDBusMessage call = simulatorCall("Tap");
    const QStringList point = arguments.operands.mid(1);
    for (const QString& operand : point) {
        const qint64 units = numberIn(operand).value_or(-1);
        if (units < 0 || units > 65535) {
            return usageError(QStringLiteral("a point is two numbers from 0 to 65535"));
        }
        call << QVariant::fromValue(static_cast<std::uint16_t>(units));
    }
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call);
    return reply.type() == QDBusMessage::ReplyMessage ? kExitGood : fail(reply.errorMessage());
}

/** Checks everything between the tablet and the panel, and says what to do. */
int runDoctor(const Arguments& arguments)
{
    // The texts are the panel's.
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString module = QDir::cleanPath(programs.filePath(QStringLiteral(QVTBLT_MODULE_PATH)));
    const platform::Bundle bundle(
        QDir::cleanPath(QFileInfo(module).dir().filePath(QStringLiteral(QVTBLT_RESOURCES_PATH))));
    QTranslator translator;
    const auto translation =
        bundle.pathForLocalizedResource(QStringLiteral("QVTblt"), QStringLiteral("qm"));
    if (translation && translator.load(*translation)) {
        QCoreApplication::installTranslator(&translator);
    }
    QVSelfCheckInput input;
    input.modulePath = module;
    const std::vector<QVStage> stages = QVDecideStages(QVGatherFacts(input));
    const QByteArray text = arguments.asJson ? doctorJson(stages) : doctorText(stages).toUtf8();
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    const bool hasProblem = std::ranges::any_of(
        stages, [](const QVStage& stage) { return stage.status == QVStage::Status::Problem; });
    return hasProblem ? kExitBad : kExitGood;
}

bool always(const Arguments& /*any*/)
{
    return true;
}

bool never(const Arguments& /*any*/)
{
    return false;
}

constexpr std::array<Command, 12> kCommands{{
    {"status", 0, 0, never, runStatus},
    {"doctor", 0, 0, never, runDoctor},
    {"show", 0, 1, never, runShow},
    {"check", 1, 1, never, runCheck},
    {"push", 0, 0, always, runPush},
    {"set", 2, 2, always, runSet},
    {"profile", 1, 3, profileNeedsDisplays, runProfile},
    {"follow", 0, 0, never, runFollow},
    {"mapped-area", 1, 1, always, runMappedArea},
    {"usb-mode", 1, 1, never, runUsbMode},
    {"tablet", 1, 2, never, runTablet},
    {"sim", 3, 3, never, runSim},
}};

} // namespace

const Command* findCommand(const QString& name)
{
    const auto* const command = std::ranges::find_if(
        kCommands, [&](const Command& one) { return name == QLatin1String(one.name); });
    return command == kCommands.end() ? nullptr : command;
}

int fail(const QString& why)
{
    std::fprintf(stderr, "qvtbltctl: %s\n", qUtf8Printable(why));
    return kExitBad;
}

int usageError(const QString& why)
{
    std::fprintf(stderr, "qvtbltctl: %s\nTry 'qvtbltctl --help'.\n", qUtf8Printable(why));
    return kExitUsage;
}
