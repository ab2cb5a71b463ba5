// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVSelfCheck.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSysInfo>

#include <algorithm>
#include <array>
#include <utility>

using Facts = QVSelfCheckFacts;
using Status = QVStage::Status;

namespace {

constexpr auto kContext = "SelfCheck";

// What several stages say.
constexpr auto kLogIn = QT_TRANSLATE_NOOP("SelfCheck", "Log out and in again.");
constexpr auto kRestartDriver =
    QT_TRANSLATE_NOOP("SelfCheck", "Restart the driver, or log out and in again.");
constexpr auto kPlugIn = QT_TRANSLATE_NOOP(
    "SelfCheck", "Plug the tablet in again. If that does not help, log out and in again.");
constexpr auto kEndProgram =
    QT_TRANSLATE_NOOP("SelfCheck", "End that program, and plug the tablet in again.");

/** The result of a stage, to be put together with its ID. */
struct Finding {
    Status status = Status::NotChecked;
    QVStageText text = {};
    const char* remedy = "";
};

Finding good(QVStageText text)
{
    return {Status::Ok, std::move(text)};
}

Finding bad(QVStageText text, const char* remedy)
{
    return {Status::Problem, std::move(text), remedy};
}

Finding unchecked(const char* why)
{
    return {Status::NotChecked, {why}};
}

Finding checkBus(const Facts& facts)
{
    switch (facts.bus) {
    case Facts::Bus::None:
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "There is no session bus.")},
            QT_TRANSLATE_NOOP(
                "SelfCheck", "Log out and in again. Without a desktop, use dbus-run-session."));
    case Facts::Bus::Hangs:
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "The session bus does not answer.")}, kLogIn);
    case Facts::Bus::Answers:
        break;
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "The session bus answers.")});
}

bool hasDriver(const Facts& facts)
{
    return facts.bus == Facts::Bus::Answers
        && (facts.driver == Facts::Driver::Running || facts.driver == Facts::Driver::Started);
}

Finding checkDriver(const Facts& facts)
{
    if (facts.bus != Facts::Bus::Answers) {
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "The driver was not checked."));
    }
    switch (facts.driver) {
    case Facts::Driver::Running:
        return good({QT_TRANSLATE_NOOP("SelfCheck", "The driver is running.")});
    case Facts::Driver::Started:
        return good(
            {QT_TRANSLATE_NOOP("SelfCheck", "The driver was not running and has been started.")});
    case Facts::Driver::NotInstalled:
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "No driver is installed.")},
            QT_TRANSLATE_NOOP("SelfCheck", "Install the package tdsg-driver."));
    case Facts::Driver::NotStarted:
        break;
    }
    return bad({QT_TRANSLATE_NOOP("SelfCheck", "The driver cannot be started.")},
        QT_TRANSLATE_NOOP(
            "SelfCheck", "Log out and in again. The reason is in the journal of the session."));
}

Finding checkAnswer(const Facts& facts)
{
    if (!hasDriver(facts)) {
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "The driver was not asked."));
    }
    if (!facts.answer) {
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "The driver does not answer in time.")},
            kRestartDriver);
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "The driver answers in time.")});
}

Finding checkTablet(const Facts& facts)
{
    if (facts.tablets.empty() && facts.hasDriversTablet()) {
        return good({QT_TRANSLATE_NOOP(
            "SelfCheck", "The driver has a tablet of its own, such as a simulated one.")});
    }
    if (facts.tablets.empty()) {
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "No tablet is connected.")},
            QT_TRANSLATE_NOOP("SelfCheck",
                "Connect the tablet, or switch it on. If it is connected, try another socket or "
                "cable."));
    }
    QStringList ids;
    for (const QVConnectedTablet& tablet : facts.tablets) {
        if (!ids.contains(tablet.id())) {
            ids.append(tablet.id());
        }
    }
    const QString all = ids.join(QStringLiteral(", "));
    if (facts.answer == 0) {
        return bad({QT_TRANSLATE_NOOP(
                        "SelfCheck", "A tablet is connected, but the driver does not use it: %1."),
                       all},
            QT_TRANSLATE_NOOP("SelfCheck",
                "Do what the following lines say. Otherwise, plug the tablet in again, or restart "
                "the driver."));
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "A tablet is connected: %1."), all});
}

/** What to do about a device that may not be opened. */
const char* accessRemedy(bool hasRule, const char* install)
{
    return hasRule ? kPlugIn : install;
}

Finding checkAccess(const Facts& facts)
{
    if (facts.tablets.empty()) {
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "Access to the tablet was not checked."));
    }
    static constexpr auto kInstallAccess = QT_TRANSLATE_NOOP(
        "SelfCheck", "Install the package tdsg-driver-access, and plug the tablet in again.");
    const auto isShut = [](bool isPen) {
        return [isPen](const QVConnectedTablet& tablet) {
            return tablet.isPen == isPen && !tablet.mayBeOpened;
        };
    };
    if (std::ranges::any_of(facts.tablets, isShut(true))) {
        return bad(
            {QT_TRANSLATE_NOOP("SelfCheck", "You do not have permission to open the tablet.")},
            accessRemedy(facts.hasPenRule, kInstallAccess));
    }
    const bool hasPen = std::ranges::any_of(facts.tablets, &QVConnectedTablet::isPen);
    if (hasPen && !facts.mayMakeDevices) {
        return bad({QT_TRANSLATE_NOOP(
                       "SelfCheck", "You may not open /dev/uinput, which the driver needs.")},
            accessRemedy(facts.hasPenRule, kInstallAccess));
    }
    if (std::ranges::any_of(facts.tablets, isShut(false))) {
        return bad({QT_TRANSLATE_NOOP("SelfCheck",
                       "You do not have permission to open the tablet over USB, so its speed "
                       "cannot be set.")},
            accessRemedy(facts.hasUsbRule,
                QT_TRANSLATE_NOOP(
                    "SelfCheck", "Install the package qvtblt, and plug the tablet in again.")));
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "You may open the tablet.")});
}

Finding checkHolder(const Facts& facts)
{
    if (facts.tablets.empty()) {
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "Other programs were not checked."));
    }
    if (!facts.holders.isEmpty()) {
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "Another program has the tablet open: %1."),
                       facts.holders.join(QStringLiteral(", ")), true},
            kEndProgram);
    }
    if (std::ranges::any_of(facts.tablets, &QVConnectedTablet::isClaimed)) {
        return bad({QT_TRANSLATE_NOOP(
                       "SelfCheck", "A program has taken the tablet from the system's drivers.")},
            kEndProgram);
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "None of your programs has the tablet open.")});
}

Finding checkFile(const Facts& facts)
{
    if (!hasDriver(facts) || !facts.hasDriversTablet()) {
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "The settings file was not checked."));
    }
    switch (facts.file) {
    case Facts::File::Missing:
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "There is no settings file.")},
            QT_TRANSLATE_NOOP("SelfCheck", "Restart the driver, which makes the file."));
    case Facts::File::Unusable:
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "The settings file cannot be used.")},
            QT_TRANSLATE_NOOP(
                "SelfCheck", "Move the file away and restart the driver, which makes a new one."));
    case Facts::File::NotWritable:
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "The settings file cannot be written.")},
            QT_TRANSLATE_NOOP(
                "SelfCheck", "Give yourself write permission for the file and its folder."));
    case Facts::File::NoRoom:
        return bad(
            {QT_TRANSLATE_NOOP("SelfCheck", "The disk with the settings file has no room left.")},
            QT_TRANSLATE_NOOP("SelfCheck", "Delete something from this disk."));
    case Facts::File::Good:
        break;
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "The settings file can be read and written.")});
}

Finding checkPush(const Facts& facts)
{
    if (!hasDriver(facts) || !facts.hasDriversTablet()) {
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "Sending settings was not checked."));
    }
    if (!facts.isLastPushTaken) {
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "No settings have been sent yet."));
    }
    if (!*facts.isLastPushTaken) {
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "The driver has not accepted the last change.")},
            kRestartDriver);
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "The driver has accepted the settings.")});
}

Finding checkModule(const Facts& facts)
{
    switch (facts.module) {
    case Facts::Module::Missing:
        return bad({QT_TRANSLATE_NOOP("SelfCheck", "The panel is not installed.")},
            QT_TRANSLATE_NOOP("SelfCheck", "Install the package qvtblt."));
    case Facts::Module::OtherQt:
        return bad({QT_TRANSLATE_NOOP("SelfCheck",
                        "The panel does not fit the version of Qt: it was built for %1."),
                       facts.moduleQt},
            QT_TRANSLATE_NOOP(
                "SelfCheck", "Install the panel of the same release as the desktop."));
    case Facts::Module::Fits:
        break;
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "The panel matches the version of Qt, %1."),
        facts.moduleQt});
}

Finding checkMapping(const Facts& facts)
{
    switch (facts.desktop) {
    case Facts::Desktop::Unknown:
        return unchecked(
            QT_TRANSLATE_NOOP("SelfCheck", "The choice of the pen's display was not checked."));
    case Facts::Desktop::None:
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck", "There is no desktop."));
    case Facts::Desktop::OtherWayland:
        // No such desktop says how it maps the pen.
        return unchecked(QT_TRANSLATE_NOOP("SelfCheck",
            "The pen's display can be chosen if the desktop's own settings map the pen to all "
            "displays."));
    case Facts::Desktop::X11:
    case Facts::Desktop::KWin:
        break;
    }
    return good({QT_TRANSLATE_NOOP("SelfCheck", "The pen's display can be chosen.")});
}

struct StageCheck {
    const char* id;
    Finding (*check)(const Facts& facts);
};

/** In the order in which one needs the other. */
constexpr std::array<StageCheck, 10> kStages{{
    {"bus", checkBus},
    {"driver", checkDriver},
    {"answer", checkAnswer},
    {"tablet", checkTablet},
    {"access", checkAccess},
    {"holder", checkHolder},
    {"file", checkFile},
    {"push", checkPush},
    {"module", checkModule},
    {"mapping", checkMapping},
}};

QString translated(const char* source)
{
    return *source == '\0' ? QString() : QCoreApplication::translate(kContext, source);
}

/** What the environment says, if it is one of the known words; otherwise "other". */
QString knownWord(const char* variable, const QStringList& known)
{
    const QStringList words = qEnvironmentVariable(variable).split(QLatin1Char(':'));
    for (const QString& word : words) {
        if (known.contains(word)) {
            return word;
        }
    }
    return QStringLiteral("other");
}

/** The part of a version at its beginning that cannot hold more than a version. */
QString plainVersion(const QString& version)
{
    static const QRegularExpression kPlain(QStringLiteral("^[0-9]{1,4}(\\.[0-9]{1,4}){0,3}"));
    return kPlain.match(version).captured();
}

/** The distribution's name, which anybody may have changed. */
QString plainName(const QString& name)
{
    static const QRegularExpression kPlain(QStringLiteral("^[a-z]{1,20}$"));
    return kPlain.match(name).hasMatch() ? name : QStringLiteral("other");
}

} // namespace

QString QVConnectedTablet::id() const
{
    return QStringLiteral("%1:%2")
        .arg(vendor, 4, 16, QLatin1Char('0'))
        .arg(product, 4, 16, QLatin1Char('0'));
}

QString QVStageText::shown() const
{
    const QString text = translated(source);
    return word.isEmpty() ? text : text.arg(word);
}

QString QVStageText::reported() const
{
    QString text = QString::fromLatin1(source);
    if (word.isEmpty()) {
        return text;
    }
    return text.arg(isPrivate ? QStringLiteral("…") : word);
}

QString QVRemedyText(const QVStage& stage)
{
    return translated(stage.remedy);
}

const char* QVStatusName(Status status)
{
    switch (status) {
    case Status::Ok:
        return "ok";
    case Status::Problem:
        return "problem";
    case Status::NotChecked:
        break;
    }
    return "not checked";
}

std::vector<QVStage> QVDecideStages(const Facts& facts)
{
    std::vector<QVStage> stages;
    for (const auto& [id, check] : kStages) {
        const auto [status, text, remedy] = check(facts);
        stages.push_back({id, status, text, remedy});
    }
    return stages;
}

QString QVSelfCheckReport(const Facts& facts)
{
    const QString desktop = knownWord("XDG_CURRENT_DESKTOP",
        {QStringLiteral("KDE"), QStringLiteral("GNOME"), QStringLiteral("XFCE"),
            QStringLiteral("MATE"), QStringLiteral("X-Cinnamon"), QStringLiteral("LXQt"),
            QStringLiteral("LXDE"), QStringLiteral("Budgie"), QStringLiteral("Pantheon"),
            QStringLiteral("Unity"), QStringLiteral("sway"), QStringLiteral("Hyprland")});
    const QString session = knownWord("XDG_SESSION_TYPE",
        {QStringLiteral("wayland"), QStringLiteral("x11"), QStringLiteral("tty")});
    QString report =
        QStringLiteral("QVTblt %1, Qt %2, %3 %4, Linux %5\nDesktop: %6, %7\n")
            .arg(QStringLiteral(QVTBLT_VERSION), QString::fromLatin1(qVersion()),
                plainName(QSysInfo::productType()), plainVersion(QSysInfo::productVersion()),
                plainVersion(QSysInfo::kernelVersion()), desktop, session);
    for (const QVConnectedTablet& tablet : facts.tablets) {
        report += QStringLiteral("Tablet: %1, %2\n")
                      .arg(tablet.id(),
                          tablet.isPen ? QStringLiteral("event device") : QStringLiteral("USB"));
    }
    for (const QVStage& stage : QVDecideStages(facts)) {
        report += QStringLiteral("%1  %2  %3\n")
                      .arg(QString::fromLatin1(QVStatusName(stage.status)), -11)
                      .arg(QString::fromLatin1(stage.id), -7)
                      .arg(stage.text.reported());
    }
    return report;
}

platform::PreferencePane::SelfCheck QVSelfCheckResult(const Facts& facts)
{
    platform::PreferencePane::SelfCheck result;
    for (const QVStage& stage : QVDecideStages(facts)) {
        result.stages.push_back(
            {QString::fromLatin1(stage.id), stage.status, stage.text.shown(), QVRemedyText(stage)});
    }
    result.report = QVSelfCheckReport(facts);
    return result;
}
