// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVSelfCheck.h"

#include "TemporaryHome.h"

#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSysInfo>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace {

using Facts = QVSelfCheckFacts;
using Status = QVStage::Status;

/** A tablet of somebody else's in good order. */
Facts goodFacts()
{
    Facts facts;
    facts.bus = Facts::Bus::Answers;
    facts.driver = Facts::Driver::Running;
    facts.answer = 20737;
    facts.tablets = {{0x1234, 0x0042, QStringLiteral("/dev/input/event7"), true, true}};
    facts.mayMakeDevices = true;
    facts.hasPenRule = true;
    facts.hasUsbRule = true;
    facts.file = Facts::File::Good;
    facts.isLastPushTaken = true;
    facts.module = Facts::Module::Fits;
    facts.moduleQt = QStringLiteral("6.4.2");
    facts.desktop = Facts::Desktop::X11;
    return facts;
}

QVStage stage(const Facts& facts, const std::string& id)
{
    const std::vector<QVStage> stages = QVDecideStages(facts);
    const auto found =
        std::ranges::find_if(stages, [&](const QVStage& one) { return one.id == id; });
    EXPECT_NE(found, stages.end()) << id;
    return *found;
}

struct Case {
    const char* stage;
    std::function<void(Facts& facts)> change;
    Status status;
    const char* text;
    const char* remedy; ///< how it begins
};

const Case kCases[] = {
    {"bus", [](Facts& facts) { facts.bus = Facts::Bus::None; }, Status::Problem,
        "There is no session bus.", "Log out"},
    {"bus", [](Facts& facts) { facts.bus = Facts::Bus::Hangs; }, Status::Problem,
        "The session bus does not answer.", "Log out"},
    {"driver", [](Facts& facts) { facts.bus = Facts::Bus::Hangs; }, Status::NotChecked,
        "The driver was not checked.", ""},
    {"driver", [](Facts& facts) { facts.driver = Facts::Driver::Started; }, Status::Ok,
        "The driver was not running and has been started.", ""},
    {"driver", [](Facts& facts) { facts.driver = Facts::Driver::NotInstalled; }, Status::Problem,
        "No driver is installed.", "Install the package tdsg-driver."},
    {"driver", [](Facts& facts) { facts.driver = Facts::Driver::NotStarted; }, Status::Problem,
        "The driver cannot be started.", "Log out"},
    {"answer", [](Facts& facts) { facts.driver = Facts::Driver::NotStarted; }, Status::NotChecked,
        "The driver was not asked.", ""},
    {"answer", [](Facts& facts) { facts.bus = Facts::Bus::Hangs; }, Status::NotChecked,
        "The driver was not asked.", ""},
    {"answer", [](Facts& facts) { facts.driver = Facts::Driver::Started; }, Status::Ok,
        "The driver answers in time.", ""},
    {"answer", [](Facts& facts) { facts.answer.reset(); }, Status::Problem,
        "The driver does not answer in time.", "Restart the driver"},
    {"tablet", [](Facts& facts) { facts.tablets.clear(); }, Status::Ok,
        "The driver has a tablet of its own, such as a simulated one.", ""},
    {"tablet",
        [](Facts& facts) {
            facts.tablets.clear();
            facts.answer = 0;
        },
        Status::Problem, "No tablet is connected.", "Connect the tablet"},
    {"tablet",
        [](Facts& facts) {
            facts.tablets.clear();
            facts.bus = Facts::Bus::None;
            facts.answer.reset();
        },
        Status::Problem, "No tablet is connected.", "Connect the tablet"},
    {"tablet", [](Facts& facts) { facts.answer = 0; }, Status::Problem,
        "A tablet is connected, but the driver does not use it: 1234:0042.", "Do what"},
    {"tablet",
        [](Facts& facts) {
            facts.tablets.push_back(facts.tablets.front());
            facts.tablets.push_back({0x6F3D, 0x5101, {}, false, true});
        },
        Status::Ok, "A tablet is connected: 1234:0042, 6f3d:5101.", ""},
    {"access", [](Facts& facts) { facts.tablets.clear(); }, Status::NotChecked,
        "Access to the tablet was not checked.", ""},
    {"access", [](Facts& facts) { facts.tablets[0].mayBeOpened = false; }, Status::Problem,
        "You do not have permission to open the tablet.", "Plug the tablet in again."},
    {"access",
        [](Facts& facts) {
            facts.tablets[0].mayBeOpened = false;
            facts.hasPenRule = false;
        },
        Status::Problem, "You do not have permission to open the tablet.",
        "Install the package tdsg-driver-access"},
    {"access", [](Facts& facts) { facts.mayMakeDevices = false; }, Status::Problem,
        "You may not open /dev/uinput, which the driver needs.", "Plug the tablet in again."},
    {"access",
        [](Facts& facts) {
            facts.tablets = {{0x6F3D, 0x5101, {}, false, false}};
            facts.hasUsbRule = false;
            facts.mayMakeDevices = false; // not needed without a pen
        },
        Status::Problem,
        "You do not have permission to open the tablet over USB, so its speed cannot be set.",
        "Install the package qvtblt,"},
    {"holder", [](Facts& /*facts*/) {}, Status::Ok, "None of your programs has the tablet open.",
        ""},
    {"holder", [](Facts& facts) { facts.tablets.clear(); }, Status::NotChecked,
        "Other programs were not checked.", ""},
    {"holder",
        [](Facts& facts) {
            facts.holders = QStringList{QStringLiteral("one"), QStringLiteral("two")};
        },
        Status::Problem, "Another program has the tablet open: one, two.", "End that program"},
    {"holder", [](Facts& facts) { facts.tablets[0].isClaimed = true; }, Status::Problem,
        "A program has taken the tablet from the system's drivers.", "End that program"},
    {"file", [](Facts& facts) { facts.answer = 0; }, Status::NotChecked,
        "The settings file was not checked.", ""},
    {"file", [](Facts& facts) { facts.file = Facts::File::Missing; }, Status::Problem,
        "There is no settings file.", "Restart the driver"},
    {"file", [](Facts& facts) { facts.file = Facts::File::Unusable; }, Status::Problem,
        "The settings file cannot be used.", "Move the file away"},
    {"file", [](Facts& facts) { facts.file = Facts::File::NotWritable; }, Status::Problem,
        "The settings file cannot be written.", "Give yourself"},
    {"file", [](Facts& facts) { facts.file = Facts::File::NoRoom; }, Status::Problem,
        "The disk with the settings file has no room left.", "Delete something"},
    {"push", [](Facts& facts) { facts.answer = 0; }, Status::NotChecked,
        "Sending settings was not checked.", ""},
    {"push", [](Facts& facts) { facts.isLastPushTaken.reset(); }, Status::NotChecked,
        "No settings have been sent yet.", ""},
    {"push", [](Facts& facts) { facts.isLastPushTaken = false; }, Status::Problem,
        "The driver has not accepted the last change.", "Restart the driver"},
    {"module", [](Facts& facts) { facts.module = Facts::Module::Missing; }, Status::Problem,
        "The panel is not installed.", "Install the package qvtblt."},
    {"module", [](Facts& facts) { facts.module = Facts::Module::OtherQt; }, Status::Problem,
        "The panel does not fit the version of Qt: it was built for 6.4.2.", "Install the panel"},
    {"mapping", [](Facts& facts) { facts.desktop = Facts::Desktop::Unknown; }, Status::NotChecked,
        "The choice of the pen's display was not checked.", ""},
    {"mapping", [](Facts& facts) { facts.desktop = Facts::Desktop::None; }, Status::NotChecked,
        "There is no desktop.", ""},
    {"mapping", [](Facts& facts) { facts.desktop = Facts::Desktop::KWin; }, Status::Ok,
        "The pen's display can be chosen.", ""},
    {"mapping", [](Facts& facts) { facts.desktop = Facts::Desktop::OtherWayland; },
        Status::NotChecked,
        "The pen's display can be chosen if the desktop's own settings map the pen to all "
        "displays.",
        ""},
};

} // namespace

TEST(SelfCheck, findsNothingWrongWhereEverythingIsInOrder)
{
    std::string ids;
    for (const QVStage& one : QVDecideStages(goodFacts())) {
        EXPECT_EQ(one.status, Status::Ok) << one.id;
        EXPECT_STREQ(one.remedy, "") << one.id;
        ids += std::string(one.id) + ' ';
    }
    EXPECT_EQ(ids, "bus driver answer tablet access holder file push module mapping ");
}

TEST(SelfCheck, saysWhatIsWrongAndWhatToDo)
{
    for (const Case& one : kCases) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, one.text);
        Facts facts = goodFacts();
        one.change(facts);
        const QVStage found = stage(facts, one.stage);
        EXPECT_EQ(found.status, one.status);
        EXPECT_EQ(found.text.shown().toStdString(), one.text);
        EXPECT_EQ(std::string(found.remedy).substr(0, std::strlen(one.remedy)), one.remedy);
        EXPECT_EQ(*found.remedy != '\0', one.status == Status::Problem);
    }
}

TEST(SelfCheck, reportsNothingThatIsTheUsersOwn)
{
    const char* const variables[] = {"XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "HOME", "USER"};
    QByteArrayList before;
    for (const char* const variable : variables) {
        before.append(qgetenv(variable));
        qputenv(variable, "secret\n/home/secret");
    }
    const auto restoring = qScopeGuard([&] {
        for (int i = 0; i < 4; ++i) {
            qputenv(variables[i], before[i]);
        }
    });
    for (const QString& secret : {QStringLiteral("secret"), QStringLiteral("/home/secret/x"),
             QStringLiteral("secret\nSerial: secret\x1b[31m"), QString(100000, u's')}) {
        Facts facts = goodFacts();
        facts.tablets[0].node = secret;
        facts.holders = QStringList{secret, secret};
        const QString report = QVSelfCheckReport(facts);
        EXPECT_FALSE(report.contains(QLatin1String("secret"))) << qPrintable(report);
        EXPECT_FALSE(report.contains(QLatin1String("/home")));
        EXPECT_FALSE(report.contains(QString(5, u's')));
        EXPECT_LT(report.size(), 2000);
        EXPECT_TRUE(report.contains(QStringLiteral("Another program has the tablet open: ….")));
        for (const QChar character : report) {
            EXPECT_TRUE(character.isPrint() || character == u'\n');
        }
    }
}

TEST(SelfCheck, reportsVersionsDesktopTabletsAndStages)
{
    qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    qputenv("XDG_SESSION_TYPE", "wayland");
    const auto restoring = qScopeGuard([] {
        qunsetenv("XDG_CURRENT_DESKTOP");
        qunsetenv("XDG_SESSION_TYPE");
    });
    const QStringList lines = QVSelfCheckReport(goodFacts()).split(u'\n');
    EXPECT_TRUE(lines[0].startsWith(
        QStringLiteral("QVTblt " QVTBLT_VERSION ", Qt %1, ").arg(QLatin1String(qVersion()))));
    const QRegularExpression system(QStringLiteral(", ([a-z]+) [0-9.]*, Linux [0-9]+[0-9.]*$"));
    const QString product = QSysInfo::productType();
    const bool isPlain =
        std::ranges::all_of(product, [](QChar letter) { return letter.isLower(); });
    EXPECT_EQ(system.match(lines[0]).captured(1), isPlain ? product : QStringLiteral("other"))
        << qPrintable(lines[0]);
    EXPECT_EQ(lines[1], QStringLiteral("Desktop: GNOME, wayland"));
    EXPECT_EQ(lines[2], QStringLiteral("Tablet: 1234:0042, event device"));
    EXPECT_EQ(lines[3], QStringLiteral("ok           bus      The session bus answers."));
    EXPECT_EQ(lines.size(), 3 + 10 + 1);
}

TEST(SelfCheck, givesThePanelItsStagesAndTheReport)
{
    Facts facts = goodFacts();
    facts.holders = QStringList{QStringLiteral("secret")};
    const auto result = QVSelfCheckResult(facts);
    ASSERT_EQ(result.stages.size(), 10U);
    EXPECT_EQ(result.stages[5].id, QStringLiteral("holder"));
    EXPECT_EQ(result.stages[5].status, Status::Problem);
    EXPECT_EQ(
        result.stages[5].text, QStringLiteral("Another program has the tablet open: secret."));
    EXPECT_EQ(
        result.stages[5].remedy, QStringLiteral("End that program, and plug the tablet in again."));
    EXPECT_TRUE(result.report.contains(QStringLiteral("Another program has the tablet open: ….")));
}
