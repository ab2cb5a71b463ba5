// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Gathers the facts of the self-check: bus, driver, devices, file, module and desktop.

#include "AppleEventWire.h"
#include "LivingBus.h"
#include "PropertyList.h"
#include "QVConfigStore.h"
#include "QVDriverProtocol.h"
#include "QVSelfCheck.h"
#include "QVTabletModels.h"
#include "rzkApplication.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <QScopeGuard>
#include <QThread>
#include <QVersionNumber>

#include <algorithm>
#include <array>
#include <chrono>
#include <climits>
#include <cstring>
#include <dirent.h>
#include <linux/input.h>
#include <memory>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

using Facts = QVSelfCheckFacts;

namespace {

// The bus -----------------------------------------------------------------------------------------

constexpr std::chrono::milliseconds kCheckBusLimit{2000};
constexpr std::chrono::milliseconds kStartLimit{5000};
constexpr std::chrono::milliseconds kReadyLimit{2000}; ///< for a driver that has just been started
constexpr std::chrono::milliseconds kQueryLimit{
    std::int64_t{kQVDriverTimeOut} * 1000 / platform::kTicksPerSecond};

/** Whether the program quits meanwhile. */
bool isInterrupted()
{
    return QThread::currentThread()->isInterruptionRequested();
}

/** Waits for the answer, unless interrupted. */
QDBusMessage send(QDBusConnection& bus, const QDBusMessage& call, std::chrono::milliseconds limit)
{
    constexpr unsigned long kMoment = 2; // milliseconds
    const QDBusPendingCall pending = bus.asyncCall(call, static_cast<int>(limit.count()));
    while (!pending.isFinished() && !isInterrupted()) {
        QThread::msleep(kMoment);
    }
    // The bus's thread may be writing a reply that has not come.
    return pending.isFinished() ? pending.reply() : QDBusMessage();
}

bool isOwned(QDBusConnection& bus, const QString& name)
{
    const QDBusMessage answer = send(bus, platform::busCall("NameHasOwner", name), kCheckBusLimit);
    return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool();
}

Facts::Driver findDriver(QDBusConnection& bus, const QString& name)
{
    if (isOwned(bus, name)) {
        return Facts::Driver::Running;
    }
    QDBusMessage call = platform::busCall("StartServiceByName", name);
    call << 0U;
    const QDBusMessage answer = send(bus, call, kStartLimit);
    if (answer.type() == QDBusMessage::ReplyMessage) {
        return Facts::Driver::Started;
    }
    return answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown")
        ? Facts::Driver::NotInstalled
        : Facts::Driver::NotStarted;
}

/** The event with which the panel asks for its tablet's file. */
platform::AERecord configQuery()
{
    using namespace platform;
    const auto bytes = [](const auto& value) {
        return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
    };
    AERecord property;
    property.push_back({keyAEDesiredClass, {typeType, bytes(cProperty)}});
    property.push_back({keyAEKeyForm, {typeEnumerated, bytes(formPropertyID)}});
    property.push_back({keyAEKeyData, {typeLongInteger, bytes(QVConfigKeyData())}});
    property.push_back({keyAEContainer, {typeNull, QByteArray()}});
    AERecord query;
    query.push_back({keyAERequestedType, {typeType, bytes(typeLongInteger)}});
    query.push_back({keyDirectObject, {typeObjectSpecifier, std::move(property)}});
    return query;
}

std::optional<std::int32_t> askOnce(QDBusConnection& bus, const QString& name)
{
    using namespace platform;
    QDBusMessage call = QDBusMessage::createMethodCall(name, QLatin1String(wire::kObjectPath),
        QLatin1String(wire::kInterface), QLatin1String(wire::kSendMethod));
    call.setAutoStartService(false);
    call << kAECoreSuite << kAEGetData << wire::encode(configQuery());
    const QDBusMessage answer = send(bus, call, kQueryLimit);
    if (answer.type() != QDBusMessage::ReplyMessage) {
        return std::nullopt;
    }
    const auto parameters = wire::decode(answer.arguments().value(0));
    if (!parameters) {
        return std::nullopt;
    }
    const AEDesc* const number = find(*parameters, keyDirectObject);
    const QByteArray* const bytes = number == nullptr ? nullptr : number->bytes();
    std::int32_t value = 0;
    if (bytes == nullptr || number->type != typeLongInteger || bytes->size() != sizeof value) {
        return std::nullopt;
    }
    std::memcpy(&value, bytes->constData(), sizeof value);
    return value;
}

/** Asks the driver for its tablet, again for a while if it has just been started. */
std::optional<std::int32_t> askDriver(QDBusConnection& bus, const QString& name, const Facts& facts)
{
    constexpr unsigned long kPause = 50; // milliseconds
    const QDeadlineTimer deadline(kReadyLimit);
    for (;;) {
        const std::optional<std::int32_t> answer = askOnce(bus, name);
        // It may own its name before it can answer, and answer before it has taken the tablet.
        const bool isReady = facts.driver != Facts::Driver::Started
            || (answer && (*answer != 0 || facts.tablets.empty()));
        if (isReady || deadline.hasExpired() || isInterrupted()) {
            return answer;
        }
        QThread::msleep(kPause);
    }
}

/** Whether the driver has ever received settings; nothing if it does not say. */
std::optional<bool> hasTakenSettings(QDBusConnection& bus, const QString& name)
{
    QDBusMessage call = QDBusMessage::createMethodCall(name, QLatin1String(kQVSimulatorPath),
        QLatin1String(kQVSimulatorInterface), QStringLiteral("LastRecord"));
    call.setAutoStartService(false);
    const QDBusMessage answer = send(bus, call, kQueryLimit);
    return answer.arguments().value(0).toByteArray().size() == kQVRecordSize ? std::optional(true)
                                                                             : std::nullopt;
}

// Devices -----------------------------------------------------------------------------------------

/** A small file of the kernel's without its line's end; empty if there is none. */
QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

QString attribute(const QString& path)
{
    return QString::fromLatin1(contents(path));
}

std::uint16_t hexAttribute(const QString& path)
{
    return attribute(path).toUShort(nullptr, 16);
}

bool mayOpen(const QString& path, int mode)
{
    return ::access(QFile::encodeName(path).constData(), mode) == 0;
}

/** Whether the bit is set in a bit field of sysfs: words of the kernel's long, the last one first.
 */
bool hasBit(const QString& words, unsigned bit)
{
    constexpr unsigned kWord = 8 * sizeof(long);
    const QStringList list = words.split(QLatin1Char(' '));
    const auto index = list.size() - 1 - static_cast<qsizetype>(bit / kWord);
    return index >= 0
        && (list.value(static_cast<int>(index)).toULongLong(nullptr, 16) >> bit % kWord & 1U) != 0;
}

/** The folder of the input device with that event node, which has the node's folder in it. */
QString inputDevice(const QString& name)
{
    const QFileInfo node(QStringLiteral("/sys/class/input/") + name);
    return QFileInfo(node.canonicalFilePath()).path();
}

std::uint16_t vendorOf(const QString& inputDevice)
{
    return hexAttribute(inputDevice + QStringLiteral("/id/vendor"));
}

std::uint16_t productOf(const QString& inputDevice)
{
    return hexAttribute(inputDevice + QStringLiteral("/id/product"));
}

/** The event nodes with a pen, except those that programs make. */
void findPens(std::vector<QVConnectedTablet>& tablets)
{
    const QDir inputs(QStringLiteral("/sys/class/input"));
    const QStringList names = inputs.entryList({QStringLiteral("event*")}, QDir::Dirs);
    for (const QString& name : names) {
        const QString device = inputDevice(name);
        const bool isPen =
            hasBit(attribute(device + QStringLiteral("/capabilities/key")), BTN_TOOL_PEN)
            && hasBit(attribute(device + QStringLiteral("/capabilities/abs")), ABS_X);
        if (!isPen || device.contains(QLatin1String("/devices/virtual/input/"))) {
            continue;
        }
        const QString node = QStringLiteral("/dev/input/") + name;
        tablets.push_back({vendorOf(device), productOf(device), node, true, mayOpen(node, R_OK)});
    }
}

/** The maker's devices on USB. */
void findUsbDevices(std::vector<QVConnectedTablet>& tablets)
{
    const QDir devices(QStringLiteral("/sys/bus/usb/devices"));
    const QStringList names = devices.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        const QString device = devices.filePath(name);
        const std::uint16_t vendor = hexAttribute(device + QStringLiteral("/idVendor"));
        if (vendor != kQVVendorID) {
            continue;
        }
        const auto number = [&](const char* which) {
            return attribute(device + QLatin1Char('/') + QLatin1String(which))
                .rightJustified(3, QLatin1Char('0'));
        };
        const QString node =
            QStringLiteral("/dev/bus/usb/%1/%2").arg(number("busnum"), number("devnum"));
        const QString driver =
            QFileInfo(QStringLiteral("%1/%2:1.0/driver").arg(device, name)).symLinkTarget();
        tablets.push_back({vendor, hexAttribute(device + QStringLiteral("/idProduct")), node, false,
            mayOpen(node, R_OK | W_OK), driver.endsWith(QLatin1String("/usbfs"))});
    }
}

/** A process's name, which it may have chosen; the kernel keeps the first 15 bytes of it. */
QString processName(const std::string& process)
{
    QString name = QString::fromUtf8(contents(QString::fromStdString(process + "/comm")));
    for (QChar& character : name) {
        const bool isSeen = character.isPrint() || character.isSurrogate();
        character = isSeen ? character : QChar(QLatin1Char(' '));
    }
    return name.simplified();
}

/** The names in a folder. Unlike QDir, does not look at the files: a disk may not answer. */
std::vector<std::string> namesIn(const std::string& folder)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(::opendir(folder.c_str()), &::closedir);
    if (stream == nullptr) {
        return names;
    }
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody else has the stream
    while (const dirent* const entry = ::readdir(stream.get())) {
        names.emplace_back(&entry->d_name[0]);
    }
    return names;
}

QString linkTarget(const std::string& link)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t size = ::readlink(link.c_str(), target.data(), target.size());
    return size < 0 ? QString()
                    : QFile::decodeName(QByteArray(target.data(), static_cast<int>(size)));
}

/** Whether a process has a tablet open, and hardly any other input device. */
bool isHolder(const std::string& process, const std::vector<QVConnectedTablet>& tablets)
{
    bool hasTablet = false;
    const std::string folder = process + "/fd/";
    for (const std::string& entry : namesIn(folder)) {
        const QString file = linkTarget(folder + entry);
        if (!file.contains(QLatin1String("/dev/"))) {
            continue;
        }
        if (std::ranges::any_of(tablets,
                [&](const QVConnectedTablet& tablet) { return file.endsWith(tablet.node); })) {
            hasTablet = true;
            continue;
        }
        if (!file.contains(QLatin1String("/input/event"))) {
            continue;
        }
        // A tablet has other nodes besides that of its pen, such as that of its keys.
        const QString device = inputDevice(file.section(QLatin1Char('/'), -1));
        const std::uint16_t vendor = vendorOf(device);
        const std::uint16_t product = productOf(device);
        if (std::ranges::none_of(tablets, [&](const QVConnectedTablet& tablet) {
                return tablet.vendor == vendor && tablet.product == product;
            })) {
            return false;
        }
    }
    return hasTablet;
}

/**
 * The user's programs that have one of the tablets open; the files of others' programs cannot be
 * seen. A desktop does not count: it has every event device open, and others as well.
 */
QStringList findHolders(const std::vector<QVConnectedTablet>& tablets, const QString& driver)
{
    if (tablets.empty()) {
        return {};
    }
    constexpr int kMostNames = 3;
    QStringList names;
    const std::array others{std::to_string(::getpid()), driver.toStdString()};
    for (const std::string& number : namesIn("/proc")) {
        if (isInterrupted() || names.size() == kMostNames) {
            break;
        }
        const std::string process = "/proc/" + number;
        struct stat status { };
        const bool isUsers = number.find_first_not_of("0123456789") == std::string::npos
            && std::ranges::find(others, number) == others.end()
            && ::stat(process.c_str(), &status) == 0 && status.st_uid == ::getuid();
        if (isUsers && isHolder(process, tablets)) {
            names.append(processName(process));
        }
    }
    return names;
}

bool hasRule(const char* name)
{
    constexpr std::array kFolders{"/etc/udev/rules.d", "/run/udev/rules.d",
        "/usr/local/lib/udev/rules.d", "/usr/lib/udev/rules.d", "/lib/udev/rules.d"};
    return std::ranges::any_of(kFolders, [name](const char* folder) {
        return QFileInfo::exists(
            QStringLiteral("%1/%2").arg(QLatin1String(folder), QLatin1String(name)));
    });
}

// The file and the module -------------------------------------------------------------------------

Facts::File checkFile(const std::string& folder, std::int32_t answer)
{
    const std::string path = folder + std::to_string(answer & 0xFFFF) + ".plist";
    const auto list = platform::PropertyList::load(path);
    if (!list && list.error().isMissingFile) {
        return Facts::File::Missing;
    }
    if (!list || !list->root().dictionary(kQVTabletSection.key).exists()) {
        return Facts::File::Unusable;
    }
    // A save writes a new file beside it.
    if (::access(path.c_str(), W_OK) != 0 || ::access(folder.c_str(), W_OK | X_OK) != 0) {
        return Facts::File::NotWritable;
    }
    constexpr unsigned long kRoom = 1UL << 20U; // bytes: several times the largest file
    struct statvfs disk { };
    if (::statvfs(path.c_str(), &disk) == 0 && disk.f_bavail * disk.f_frsize < kRoom) {
        return Facts::File::NoRoom;
    }
    return Facts::File::Good;
}

void checkModule(Facts& facts, const QString& path)
{
    const QVersionNumber own = QLibraryInfo::version();
    facts.moduleQt = own.toString();
    facts.module = Facts::Module::Fits;
    if (path.isEmpty()) {
        return; // it is loaded
    }
    facts.module = Facts::Module::Missing;
    if (!QFileInfo(path).isFile()) {
        return;
    }
    // The compiler writes the version into the plug-in, a byte for each part.
    const int version = QPluginLoader(path).metaData().value(QStringLiteral("version")).toInt();
    const QVersionNumber built(version >> 16, version >> 8 & 0xFF, version & 0xFF);
    const bool fits =
        built.majorVersion() == own.majorVersion() && built.minorVersion() <= own.minorVersion();
    facts.moduleQt = fits ? facts.moduleQt : built.toString();
    facts.module = fits ? Facts::Module::Fits : Facts::Module::OtherQt;
}

/** @param bus null if there is none */
Facts::Desktop findDesktop(QDBusConnection* bus)
{
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || qEnvironmentVariable("XDG_SESSION_TYPE") == QLatin1String("wayland")) {
        if (bus == nullptr || !bus->isConnected()) {
            return Facts::Desktop::Unknown;
        }
        return isOwned(*bus, QStringLiteral("org.kde.KWin")) ? Facts::Desktop::KWin
                                                             : Facts::Desktop::OtherWayland;
    }
    return qEnvironmentVariableIsEmpty("DISPLAY") ? Facts::Desktop::None : Facts::Desktop::X11;
}

} // namespace

QVSelfCheckInput::QVSelfCheckInput()
    : configFolder(QVConfigStore::configFolder())
{
}

QVSelfCheckFacts QVGatherFacts(const QVSelfCheckInput& input)
{
    Facts facts;
    facts.isLastPushTaken = input.isLastPushTaken;
    checkModule(facts, input.modulePath);
    findPens(facts.tablets);
    findUsbDevices(facts.tablets);
    facts.mayMakeDevices = mayOpen(QStringLiteral("/dev/uinput"), W_OK);
    facts.hasPenRule = hasRule("70-tdsg-driver-access.rules");
    facts.hasUsbRule = hasRule("60-quorvia-tablet.rules");

    QString driverProcess;
    if (!platform::sessionBusAnswers(kCheckBusLimit)) {
        facts.bus = Facts::Bus::Hangs;
        facts.desktop = findDesktop(nullptr);
    } else {
        // Of its own, since it is used on another thread.
        const QString connection =
            QStringLiteral("QVSelfCheck-%1").arg(reinterpret_cast<quintptr>(&facts));
        QDBusConnection bus =
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, connection);
        const auto disconnecting =
            qScopeGuard([&] { QDBusConnection::disconnectFromBus(connection); });
        facts.desktop = findDesktop(&bus);
        if (bus.isConnected()) {
            facts.bus = Facts::Bus::Answers;
            const QString driver = platform::wire::busName(kQVDriverSignature);
            facts.driver = findDriver(bus, driver);
            facts.answer = askDriver(bus, driver, facts);
            driverProcess =
                send(bus, platform::busCall("GetConnectionUnixProcessID", driver), kCheckBusLimit)
                    .arguments()
                    .value(0)
                    .toString();
            if (!facts.isLastPushTaken) {
                facts.isLastPushTaken = hasTakenSettings(bus, driver);
            }
        }
    }
    facts.holders = findHolders(facts.tablets, driverProcess);
    if (facts.hasDriversTablet()) {
        facts.file = checkFile(input.configFolder, *facts.answer);
    }
    return facts;
}
