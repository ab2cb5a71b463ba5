// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfileSwitch.h"

#include "Client.h"
#include "Displays.h"
#include "QVConfigEntry.h"
#include "QVConfigStore.h"
#include "QVDriverProtocol.h"
#include "QVEntryText.h"
#include "QVMonitorGeometry.h"
#include "rzkApplication.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using platform::Error;
using platform::Result;

namespace {

/** The context of the translations. */
struct SwitchTexts {
    Q_DECLARE_TR_FUNCTIONS(QVProfileSwitch)
};

constexpr QLatin1String kDisplayEntry("Monitor/num");

/** Whether the record has all settings of a profile that the user chooses. */
bool isLike(const QVProfile& profile)
{
    for (std::size_t i = 0; i < kQVEntries.size(); ++i) {
        const QVEntry& entry = kQVEntries[i];
        if (profile.present.test(i) && QVIsChosen(entry)
            && !QVIsSameField(entry, profile.settings, qvTabletInfo)) {
            return false;
        }
    }
    return true;
}

/** The name for the settings before a profile is used. */
QString nameBefore(const QString& name)
{
    //: The name of a profile with what was set before the profile %1 was used.
    const QString before = SwitchTexts::tr("Before %1");
    QString shortened = name;
    while (before.arg(shortened).toUcs4().size() > kQVProfileNameSize) {
        shortened.chop(std::as_const(shortened).back().isLowSurrogate() ? 2 : 1);
    }
    return before.arg(shortened);
}

bool contains(const std::vector<QVProfileFolder::Item>& profiles, const QString& name)
{
    return std::ranges::find(profiles, name, &QVProfileFolder::Item::name) != profiles.end();
}

/** Whether a profile is for an application with one of these names. */
bool isFor(const QVProfileFolder::Item& profile, const QStringList& names)
{
    return std::ranges::any_of(profile.applications, [&](const QString& application) {
        return names.contains(application, Qt::CaseInsensitive);
    });
}

} // namespace

QVProfileFolder QVProfileSwitch::folder() const
{
    return QVProfileFolder(QVProductID(qvTabletInfo));
}

Result<> QVProfileSwitch::attach()
{
    if (const auto list = mStore.loadAttachedTablet(); !list) {
        return list.error();
    }
    return {};
}

Result<> QVProfileSwitch::push()
{
    return QVPushAndWait();
}

void QVProfileSwitch::map()
{
    QVMapChosenDisplay(qvTabletInfo, platform::displays().activeBounds());
}

Result<QStringList> QVProfileSwitch::names()
{
    if (const Result<> attached = attach(); !attached) {
        return attached.error();
    }
    QStringList names;
    const std::vector<QVProfileFolder::Item> profiles = folder().list();
    for (const QVProfileFolder::Item& profile : profiles) {
        names.append(profile.name);
    }
    return names;
}

Result<QString> QVProfileSwitch::current()
{
    const Result<QStringList> all = names();
    if (!all) {
        return all.error();
    }
    const QString current = QVProfileChoice::load(QVProductID(qvTabletInfo)).current;
    return all->contains(current) ? current : QString();
}

Result<> QVProfileSwitch::begin()
{
    Result<> attached = attach();
    return attached ? mayChange() : attached;
}

Result<> QVProfileSwitch::use(const QString& name, QVChooser chooser)
{
    const Result<> begun = begin();
    return begun ? put(name, chooser) : begun;
}

/** Puts a profile's settings in the place of the current ones. */
Result<> QVProfileSwitch::put(const QString& name, QVChooser chooser)
{
    const std::uint16_t product = QVProductID(qvTabletInfo);
    const Result<QVProfile> profile = folder().load(name);
    if (!profile) {
        return profile.error();
    }
    QVProfileChoice choice = QVProfileChoice::load(product);
    if (Result<> kept = keepEdits(*profile, choice.current); !kept) {
        return kept;
    }
    const tagQVTabletInfo before = qvTabletInfo;
    QVApplyProfile(*profile, qvTabletInfo);
    map(); // the displays may be others than when the profile was made
    if (Result<> saved = mStore.saveRecord(QVConfigStore::configPath()); !saved) {
        qvTabletInfo = before;
        return saved;
    }
    if (const auto loaded = mStore.loadTabletsRecord(); !loaded) {
        return loaded.error();
    }
    show();
    // What the driver has comes first: the hand may be on the tablet.
    Result<> pushed = push();
    if (pushed) { // otherwise, it can be tried again
        choice.current = name;
        if (chooser == QVChooser::User) {
            choice.chosen = name;
        }
        choice.save(product);
    }
    if (qvTabletInfo.Monitor.Speed != before.Monitor.Speed) {
        QVSendReportSpeed();
    }
    changed(true);
    return pushed;
}

/** Keeps what the user would lose, unless some profile has it. */
Result<> QVProfileSwitch::keepEdits(const QVProfile& next, const QString& current)
{
    if (isLike(next)) {
        return {};
    }
    const QVProfileFolder profiles = folder();
    const auto has = [&profiles](const QString& name) {
        const Result<QVProfile> profile = profiles.load(name);
        return profile && isLike(*profile);
    };
    if (has(current)) {
        return {}; // mostly so, and quick to find out
    }
    const std::vector<QVProfileFolder::Item> all = profiles.list();
    if (std::ranges::any_of(all, has, &QVProfileFolder::Item::name)) {
        return {};
    }
    return profiles.saveNew(QVProfileOf(qvTabletInfo, profiles.freeName(nameBefore(next.name))));
}

Result<QString> QVProfileSwitch::useNext()
{
    if (const Result<> begun = begin(); !begun) {
        return begun.error();
    }
    const std::vector<QVProfileFolder::Item> profiles = folder().list();
    if (profiles.empty()) {
        return Error{SwitchTexts::tr("There are no profiles.")};
    }
    const QString current = QVProfileChoice::load(QVProductID(qvTabletInfo)).current;
    const auto found = std::ranges::find(profiles, current, &QVProfileFolder::Item::name);
    const bool isLast = found == profiles.end() || std::next(found) == profiles.end();
    const QString name = (isLast ? profiles.begin() : std::next(found))->name;
    if (const Result<> used = put(name, QVChooser::User); !used) {
        return used.error();
    }
    return name;
}

Result<> QVProfileSwitch::useFor(const QStringList& names)
{
    if (Result<> begun = begin(); !begun) {
        return begun;
    }
    const std::uint16_t product = QVProductID(qvTabletInfo);
    const std::vector<QVProfileFolder::Item> profiles = folder().list();
    QVProfileChoice choice = QVProfileChoice::load(product);
    const bool hasChosen = contains(profiles, choice.chosen);
    const auto found = std::ranges::find_if(
        profiles, [&](const QVProfileFolder::Item& profile) { return isFor(profile, names); });
    const QString wanted = found != profiles.end() ? found->name
        : hasChosen                                ? choice.chosen
                                                   : QString();
    if (wanted.isEmpty() || wanted == choice.current) {
        return {};
    }
    if (!hasChosen) {
        //: The name of a profile with the settings of a user who had no profiles for them.
        const QString name = folder().freeName(SwitchTexts::tr("Default"));
        if (Result<> kept = folder().save(QVProfileOf(qvTabletInfo, name)); !kept) {
            return kept;
        }
        choice = {name, name};
        choice.save(product);
    }
    return put(wanted, QVChooser::Application);
}

Result<> QVProfileSwitch::set(const QString& entry, const QString& value)
{
    if (Result<> changed = change({{entry, value}}); !changed) {
        return changed;
    }
    Result<> saved = mStore.saveEntry(**findSetting(entry));
    // What the driver has is what the panel shows, even if it could not be saved.
    changed(false);
    return saved;
}

Result<> QVProfileSwitch::edit(const QMap<QString, QString>& values)
{
    Result<> edited = change(values);
    if (edited) {
        changed(false);
    }
    return edited;
}

/** Changes entries of the record, all or none, and pushes it. */
Result<> QVProfileSwitch::change(const QMap<QString, QString>& values)
{
    if (Result<> begun = begin(); !begun) {
        return begun;
    }
    tagQVTabletInfo record = qvTabletInfo;
    for (auto value = values.begin(); value != values.end(); ++value) {
        const Result<const QVEntry*> entry = findSetting(value.key());
        if (!entry) {
            return entry.error();
        }
        if (Result<> set = setEntry(record, **entry, value.value()); !set) {
            return set;
        }
    }
    qvTabletInfo = record;
    if (values.contains(kDisplayEntry)) {
        map();
    }
    show();
    return push();
}

Result<> QVProfileSwitch::save(const QString& name)
{
    if (Result<> begun = begin(); !begun) {
        return begun;
    }
    QVProfile profile = QVProfileOf(qvTabletInfo, name);
    if (const Result<QVProfile> former = folder().load(name)) {
        profile.applications = former->applications;
    }
    Result<> saved = folder().save(profile);
    if (saved) {
        const std::uint16_t product = QVProductID(qvTabletInfo);
        QVProfileChoice choice = QVProfileChoice::load(product);
        // What is used for the application in front is not the user's own choice.
        if (choice.chosen == choice.current || !folder().load(choice.chosen)) {
            choice.chosen = name;
        }
        choice.current = name;
        choice.save(product);
        changed(false);
    }
    return saved;
}

Result<> QVProfileSwitch::remove(const QString& name)
{
    if (Result<> attached = attach(); !attached) {
        return attached;
    }
    Result<> removed = folder().remove(name);
    if (removed) {
        replaceInChoice(name, QString());
        changed(false);
    }
    return removed;
}

Result<> QVProfileSwitch::rename(const QString& name, const QString& newName)
{
    if (Result<> attached = attach(); !attached) {
        return attached;
    }
    Result<> renamed = folder().rename(name, newName);
    if (renamed) {
        replaceInChoice(name, newName);
        changed(false);
    }
    return renamed;
}

void QVProfileSwitch::replaceInChoice(const QString& name, const QString& newName)
{
    const std::uint16_t product = QVProductID(qvTabletInfo);
    QVProfileChoice choice = QVProfileChoice::load(product);
    for (QString* const one : {&choice.current, &choice.chosen}) {
        if (*one == name) {
            *one = newName;
        }
    }
    choice.save(product);
}

Result<QByteArray> QVProfileSwitch::record()
{
    if (const Result<> attached = attach(); !attached) {
        return attached.error();
    }
    return QVBytesOf(qvTabletInfo);
}
