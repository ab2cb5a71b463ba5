// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Profile.h"

#include "LiteralText.h"
#include "QVConfigStore.h"
#include "QVPanelObject.h"
#include "QVProfile.h"
#include "QVProfileFolder.h"
#include "QVProfileImport.h"
#include "QVProfileSwitch.h"
#include "rzkApplication.h"

#include <QDBusConnection>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cstdio>

using platform::literalText;
using platform::Result;

namespace {

std::string pathOf(const QString& operand)
{
    return QFile::encodeName(operand).toStdString();
}

/** The profiles of the attached tablet, whose file is loaded. */
Result<QVProfileFolder> profilesOfTablet()
{
    QVConfigStore store;
    if (const auto list = store.loadAttachedTablet(); !list) {
        return list.error();
    }
    return QVProfileFolder(QVProductID(*GetqvTabletInfo()));
}

/**
 * Lets the program that owns the settings do something, since a panel has to show it; if none does,
 * does it here.
 */
template <class Here>
Result<> throughPanel(const char* method, const QVariantList& operands, const Here& here)
{
    const auto asked = QVAskPanel(QDBusConnection::sessionBus(), method, operands);
    return asked ? *asked : here();
}

/** Reports the outcome: what was done, and with which profile. */
int finish(const Result<>& done, const char* what, const QString& name)
{
    if (!done) {
        return fail(done.error().text);
    }
    std::printf("%s %s\n", what, qUtf8Printable(literalText(name)));
    return kExitGood;
}

/** Reports a name that no profile can have. */
int nameError(const QString& why)
{
    fail(why);
    return kExitUsage;
}

int listProfiles(const QStringList& /*none*/, bool asJson)
{
    const Result<QVProfileFolder> folder = profilesOfTablet();
    if (!folder) {
        return fail(folder.error().text);
    }
    const QString current = QVProfileChoice::load(QVProductID(*GetqvTabletInfo())).current;
    QString lines;
    QJsonArray array;
    const std::vector<QVProfileFolder::Item> profiles = folder->list();
    for (const QVProfileFolder::Item& profile : profiles) {
        const bool isCurrent = profile.name == current;
        lines += QLatin1String(isCurrent ? "* " : "  ") + literalText(profile.name);
        if (!profile.applications.isEmpty()) {
            lines +=
                QLatin1Char('\t') + literalText(profile.applications.join(QLatin1String(", ")));
        }
        lines += QLatin1Char('\n');
        array.append(QJsonObject{{QStringLiteral("name"), profile.name},
            {QStringLiteral("current"), isCurrent},
            {QStringLiteral("applications"), QJsonArray::fromStringList(profile.applications)}});
    }
    const QJsonObject object{{QStringLiteral("version"), 1}, {QStringLiteral("profiles"), array}};
    const QByteArray text = asJson ? QJsonDocument(object).toJson() : lines.toUtf8();
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return kExitGood;
}

int useProfile(const QStringList& operands, bool /*asJson*/)
{
    const QString& name = operands[0];
    const Result<> used = throughPanel("Use", {name}, [&name] {
        QVConfigStore store;
        return QVProfileSwitch(store).use(name);
    });
    return finish(used, "using", name);
}

int useNextProfile(const QStringList& /*none*/, bool /*asJson*/)
{
    const auto asked = QVAskPanel(QDBusConnection::sessionBus(), "UseNext");
    QVConfigStore store;
    QVProfileSwitch profiles(store);
    const Result<QString> next = !asked ? profiles.useNext()
        : *asked                        ? profiles.current()
                                        : Result<QString>(asked->error());
    return next ? finish(Result<>(), "using", *next) : fail(next.error().text);
}

int saveProfile(const QStringList& operands, bool /*asJson*/)
{
    const QString& name = operands[0];
    if (const QString fault = QVProfileNameFault(name); !fault.isEmpty()) {
        return nameError(fault);
    }
    const Result<> saved = throughPanel("Save", {name}, [&name] {
        QVConfigStore store;
        return QVProfileSwitch(store).save(name);
    });
    return finish(saved, "saved", name);
}

int deleteProfile(const QStringList& operands, bool /*asJson*/)
{
    QVConfigStore store;
    return finish(QVProfileSwitch(store).remove(operands[0]), "deleted", operands[0]);
}

int renameProfile(const QStringList& operands, bool /*asJson*/)
{
    const QString& newName = operands[1];
    if (const QString fault = QVProfileNameFault(newName); !fault.isEmpty()) {
        return nameError(fault);
    }
    QVConfigStore store;
    return finish(QVProfileSwitch(store).rename(operands[0], newName), "renamed to", newName);
}

/** Prints a heading and the lines below it, if there are any. */
void printLines(const char* heading, const QStringList& lines)
{
    if (!lines.isEmpty()) {
        std::printf("%s\n", heading);
    }
    for (const QString& line : lines) {
        std::printf("  %s\n", qUtf8Printable(literalText(line)));
    }
}

/** Keeps a profile from somebody else, without what it would start, and says what it does. */
int importProfile(const QStringList& operands, bool /*asJson*/)
{
    const Result<QVProfileFolder> folder = profilesOfTablet();
    if (!folder) {
        return fail(folder.error().text);
    }
    Result<QVProfileImport> import = QVReadImport(pathOf(operands[0]), *GetqvTabletInfo());
    if (!import) {
        return fail(import.error().text);
    }
    QString& name = import->profile.name;
    name = folder->freeName(name);
    if (const Result<> saved = folder->saveNew(import->profile); !saved) {
        return fail(saved.error().text);
    }
    std::printf("imported %s\n", qUtf8Printable(literalText(name)));
    printLines("It would change:", import->changes);
    printLines("Left out, since it does not fit this tablet:", import->leftOut);
    printLines("It is used for:", import->profile.applications);
    QStringList starts;
    for (const QVProfileImport::Start& start : import->starts) {
        starts.append(QStringLiteral("%1: %2").arg(start.button, start.path));
    }
    printLines("These would start an application, and do nothing now. The panel asks for each of\n"
               "them: to allow any, import the file there.",
        starts);
    return kExitGood;
}

int exportProfile(const QStringList& operands, bool /*asJson*/)
{
    const Result<QVProfileFolder> folder = profilesOfTablet();
    const Result<QVProfile> profile =
        folder ? folder->load(operands[0]) : Result<QVProfile>(folder.error());
    if (!profile) {
        return fail(profile.error().text);
    }
    return finish(QVWriteProfile(*profile).saveNew(pathOf(operands[1])), "exported", operands[0]);
}

struct ProfileAction {
    const char* name;
    int operands;
    bool needsDisplays; ///< it pushes settings
    int (*run)(const QStringList& operands, bool asJson);
};

constexpr std::array<ProfileAction, 8> kProfileActions{{
    {"list", 0, false, listProfiles},
    {"use", 1, true, useProfile},
    {"next", 0, true, useNextProfile},
    {"save", 1, false, saveProfile},
    {"delete", 1, false, deleteProfile},
    {"rename", 2, false, renameProfile},
    {"import", 1, false, importProfile},
    {"export", 2, false, exportProfile},
}};

/** Null if there is none with that name. */
const ProfileAction* findProfileAction(const QString& name)
{
    const auto* const found = std::ranges::find_if(kProfileActions,
        [&](const ProfileAction& action) { return name == QLatin1String(action.name); });
    return found == kProfileActions.end() ? nullptr : found;
}

} // namespace

int runProfile(const Arguments& arguments)
{
    const QString& name = arguments.operands[0];
    const QStringList operands = arguments.operands.mid(1);
    const ProfileAction* const action = findProfileAction(name);
    if (action == nullptr) {
        return usageError(QStringLiteral("there is no command 'profile %1'").arg(name));
    }
    if (operands.size() < action->operands) {
        return usageError(
            QStringLiteral("missing operand after '%1'").arg(arguments.operands.constLast()));
    }
    if (operands.size() > action->operands) {
        return usageError(QStringLiteral("extra operand '%1'").arg(operands[action->operands]));
    }
    if (arguments.asJson && action->run != listProfiles) {
        return usageError(QStringLiteral("--json can only be used with profile list"));
    }
    return action->run(operands, arguments.asJson);
}

bool profileNeedsDisplays(const Arguments& arguments)
{
    const ProfileAction* const action = findProfileAction(arguments.operands[0]);
    return action != nullptr && action->needsDisplays;
}
