// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPaneProfiles.h"

#include "Client.h"
#include "LivingBus.h"
#include "QVConfigEntry.h"
#include "QVConfigStore.h"
#include "QVDriverProtocol.h"
#include "QVEntryText.h"
#include "QVProfileImport.h"
#include "rzkApplication.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFile>

#include <chrono>
#include <utility>
#include <vector>

using platform::Error;
using platform::Result;

namespace {

/** How long a bus may take that hangs. */
constexpr std::chrono::milliseconds kPanelBusLimit{250};

/** Why something has failed, for the user; empty if it has not. */
QString whyNot(const Result<>& result)
{
    return result ? QString() : result.error().text;
}

} // namespace

QVPaneProfiles::QVPaneProfiles(QVConfigStore& store, Panel panel)
    : QVProfileSwitch(store)
    , mPanel(std::move(panel))
{
    mTellSoon.setSingleShot(true);
    connect(&mTellSoon, &QTimer::timeout, this, [this] {
        if (mObject) {
            mObject->tellChanged();
        }
    });
    connect(&mFiles, &QFileSystemWatcher::directoryChanged, this, &QVPaneProfiles::tellListChanged);
}

QVPaneProfiles::~QVPaneProfiles()
{
    part(); // with all that the connection sends signals to, since it closes in another thread
    if (mBus) {
        QDBusConnection::disconnectFromBus(mBus->name());
    }
}

// Showing -----------------------------------------------------------------------------------------

void QVPaneProfiles::enter()
{
    mIsShown = true;
    mShared = qvTabletInfo;
    mProfile = current();
    QDir().mkpath(folder().path()); // so that it can be watched
    joinOrPartSoon();
    takeRole();
    tellListChanged();
}

void QVPaneProfiles::leave()
{
    mIsShown = false;
    joinOrPartSoon();
}

/** Once the host has decided: it may show the panel again at once. */
void QVPaneProfiles::joinOrPartSoon()
{
    QTimer::singleShot(0, this, [this] {
        if (mIsShown) {
            join();
        } else {
            part();
        }
    });
}

void QVPaneProfiles::join()
{
    if (mObject || !mPanel.hasDevice()) {
        return;
    }
    if (!mBus || !mBus->isConnected()) {
        if (!platform::sessionBusAnswers(kPanelBusLimit)) {
            return;
        }
        const QString name =
            QStringLiteral("org.quorvia.TabletPanel-%1").arg(reinterpret_cast<quintptr>(this));
        QDBusConnection::disconnectFromBus(name);
        mBus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    }
    if (!mBus->isConnected()) {
        return;
    }
    mObject = std::make_unique<QVPanelObject>(
        static_cast<QVProfileSwitch&>(*this), QVPanelObject::Kind::Panel, *mBus);
    mObject->setRoleHandler([this] { takeRole(); });
    mObject->setSavedHandler([this] { takeSaved(); });
    mObject->setSettingsHandler([this](const QByteArray& record) { takeSettings(record); });
}

void QVPaneProfiles::part()
{
    // The calibration's window, whose end is told as an edit, may be destroyed only later.
    if (std::exchange(mIsCalibrationTold, false) && isSecond()) {
        mBus->send(QVPanelCall("NoteCalibration", {false}));
    }
    // Calls must not be left in a connection that is closed.
    qDeleteAll(findChildren<QDBusPendingCallWatcher*>(QString(), Qt::FindDirectChildrenOnly));
    mPending = 0;
    mTaken.reset();
    if (mObject) {
        mObject->tellChanged();
        mObject.reset();
    }
}

void QVPaneProfiles::takeRole()
{
    if (!isSecond()) {
        return; // the record stays as it is: it has what a former owner last told
    }
    mIsCalibrationTold = false; // the owner may be another one
    tellCalibration();
    // What has been loaded is the file, which may lack the owner's edits.
    call("Settings", {}, [this](const QDBusPendingCallWatcher& answered) {
        const QDBusPendingReply<QByteArray> reply = answered;
        if (reply.isValid()) {
            takeSettings(reply.value());
        }
    });
}

void QVPaneProfiles::call(const char* method, const QVariantList& arguments,
    std::function<void(const QDBusPendingCallWatcher& reply)> done)
{
    auto* const watcher =
        new QDBusPendingCallWatcher(mBus->asyncCall(QVPanelCall(method, arguments)), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [done = std::move(done)](QDBusPendingCallWatcher* answered) {
            answered->deleteLater();
            done(*answered);
        });
}

// Edits of two panels -----------------------------------------------------------------------------

void QVPaneProfiles::noteEdit()
{
    if (isSecond()) {
        tellCalibration(); // before the edits that it has made
        merge(); // what has come during a calibration
        sendEdits();
    } else if (std::exchange(mIsCalibrationTold, mPanel.isCalibrating()) && !mIsCalibrationTold
        && mObject) {
        mObject->tellAnew();
    } else if (mObject && !mTellSoon.isActive()) {
        mTellSoon.start(); // many edits may follow, as while a slider is dragged
    }
}

void QVPaneProfiles::tellCalibration()
{
    const bool isCalibrating = mPanel.isCalibrating();
    if (std::exchange(mIsCalibrationTold, isCalibrating) != isCalibrating) {
        mBus->send(QVPanelCall("NoteCalibration", {isCalibrating}));
    }
}

void QVPaneProfiles::noteSaved()
{
    if (isSecond()) {
        mBus->send(QVPanelCall("NoteSaved"));
    } else if (mObject) {
        mObject->tellSaved();
    }
}

void QVPaneProfiles::takeSaved()
{
    if (mPanel.hasDevice()) {
        store().noteSaved();
        mPanel.tell(false);
    }
}

/** Sends the owner what it does not have. */
void QVPaneProfiles::sendEdits()
{
    if (mPanel.isCalibrating()) {
        return; // the area is not yet the user's
    }
    QVStringMap values;
    std::vector<const QVEntry*> entries;
    for (const QVEntry& entry : kQVEntries) {
        if (QVIsChosen(entry) && !QVIsSameField(entry, qvTabletInfo, mShared)) {
            values.insert(
                QString::fromStdString(QVEntryPath(entry)), entryValue(qvTabletInfo, entry));
            entries.push_back(&entry);
        }
    }
    if (entries.empty()) {
        return;
    }
    const tagQVTabletInfo before = mShared;
    for (const QVEntry* const entry : entries) {
        QVCopyField(*entry, qvTabletInfo, mShared);
    }
    ++mPending;
    call("Edit", {QVariant::fromValue(values)},
        [this, entries = std::move(entries), before](const QDBusPendingCallWatcher& answered) {
            --mPending;
            if (answered.isError()) {
                // They are sent again with the next change.
                for (const QVEntry* const entry : entries) {
                    QVCopyField(*entry, before, mShared);
                }
            }
            merge();
        });
}

void QVPaneProfiles::takeSettings(const QByteArray& record)
{
    if (const auto others = QVRecordIn(record)) {
        mTaken = others;
        merge();
    }
}

/** Takes over the owner's record, but for the edits that it has not been sent. */
void QVPaneProfiles::merge()
{
    // Until the edits are answered, the owner's record may lack them.
    if (!mTaken || mPending > 0 || mPanel.isCalibrating() || !mPanel.hasDevice()) {
        return;
    }
    const tagQVTabletInfo others = *std::exchange(mTaken, std::nullopt);
    if (QVProductID(others) != QVProductID(qvTabletInfo)) {
        return;
    }
    bool isChanged = false;
    for (const QVEntry& entry : kQVEntries) {
        if (QVIsChosen(entry) && QVIsSameField(entry, qvTabletInfo, mShared)
            && !QVIsSameField(entry, qvTabletInfo, others)) {
            QVCopyField(entry, others, qvTabletInfo);
            isChanged = true;
        }
    }
    mShared = others;
    const bool isOther = std::exchange(mProfile, current()) != mProfile;
    if (isChanged) {
        store().noteSaved(); // by the owner, perhaps
        mPanel.show();
        mPanel.tell(isOther);
    }
    if (isOther) {
        tellListChanged();
    }
    sendEdits();
}

// Switching ---------------------------------------------------------------------------------------

Result<> QVPaneProfiles::attach()
{
    if (!mPanel.hasDevice()) {
        return Error{tr("No tablet is attached.")};
    }
    return {};
}

Result<> QVPaneProfiles::mayChange()
{
    if (mPanel.isCalibrating() || (mObject && mObject->isCalibratedByOther())) {
        return Error{tr("The tablet is being calibrated. Finish that first.")};
    }
    return {};
}

Result<> QVPaneProfiles::push()
{
    PushQVTabletInfo(); // as for each edit of the panel, which does not wait for the driver
    return {};
}

void QVPaneProfiles::show()
{
    mPanel.show();
}

void QVPaneProfiles::changed(bool isOther)
{
    mPanel.tell(isOther);
    if (mObject) {
        mObject->tellChanged();
        if (isOther) {
            mObject->tellSaved();
        }
    }
    tellListChanged();
}

void QVPaneProfiles::tellListChanged()
{
    if (!mPanel.hasDevice()) {
        return;
    }
    const QString path = folder().path();
    if (!mFiles.directories().contains(path)) {
        if (const QStringList watched = mFiles.directories(); !watched.isEmpty()) {
            mFiles.removePaths(watched);
        }
        if (QDir(path).exists()) {
            mFiles.addPath(path);
        }
    }
    if (mChangeHandler) {
        mChangeHandler();
    }
}

// For the shell -----------------------------------------------------------------------------------

std::vector<platform::PaneProfiles::Profile> QVPaneProfiles::list() const
{
    std::vector<Profile> profiles;
    if (mPanel.hasDevice()) {
        const std::vector<QVProfileFolder::Item> items = folder().list();
        for (const QVProfileFolder::Item& item : items) {
            profiles.push_back({item.name, item.applications});
        }
    }
    return profiles;
}

QString QVPaneProfiles::current() const
{
    const QString name = QVProfileChoice::load(QVProductID(qvTabletInfo)).current;
    return !name.isEmpty() && folder().load(name) ? name : QString();
}

void QVPaneProfiles::use(const QString& name, Done done)
{
    if (!isSecond()) {
        done(whyNot(QVProfileSwitch::use(name)));
        return;
    }
    call("Use", {name}, [done = std::move(done)](const QDBusPendingCallWatcher& answered) {
        done(answered.isError() ? answered.error().message() : QString());
    });
}

QString QVPaneProfiles::save(const QString& name)
{
    return whyNot(QVProfileSwitch::save(name));
}

QString QVPaneProfiles::rename(const QString& name, const QString& newName)
{
    return whyNot(QVProfileSwitch::rename(name, newName));
}

QString QVPaneProfiles::duplicate(const QString& name, const QString& newName)
{
    Result<QVProfile> profile = folder().load(name);
    if (!profile) {
        return profile.error().text;
    }
    profile->name = newName;
    profile->applications.clear(); // an application has one profile
    QString why = whyNot(folder().saveNew(*profile));
    tellListChanged();
    return why;
}

QString QVPaneProfiles::remove(const QString& name)
{
    return whyNot(QVProfileSwitch::remove(name));
}

QString QVPaneProfiles::setApplications(const QString& name, const QStringList& applications)
{
    Result<QVProfile> profile = folder().load(name);
    if (!profile) {
        return profile.error().text;
    }
    profile->applications = applications;
    QString why = whyNot(folder().save(*profile));
    tellListChanged();
    return why;
}

QString QVPaneProfiles::exportTo(const QString& name, const QString& file)
{
    const Result<QVProfile> profile = folder().load(name);
    if (!profile) {
        return profile.error().text;
    }
    return whyNot(QVWriteProfile(*profile).save(QFile::encodeName(file).toStdString()));
}

platform::PaneProfiles::Import QVPaneProfiles::readImport(const QString& file)
{
    Import import;
    auto read = QVReadImport(QFile::encodeName(file).toStdString(), qvTabletInfo);
    if (!read) {
        import.error = read.error().text;
        return import;
    }
    read->profile.name = folder().freeName(read->profile.name);
    import.name = read->profile.name;
    import.changes = read->changes;
    import.leftOut = read->leftOut;
    import.applications = read->profile.applications;
    for (const QVProfileImport::Start& start : read->starts) {
        import.starts.push_back({start.button, start.path});
    }
    import.contents = std::make_shared<const QVProfileImport>(*std::move(read));
    return import;
}

QString QVPaneProfiles::keepImport(const Import& import, const std::vector<bool>& allowed)
{
    const auto* const read = static_cast<const QVProfileImport*>(import.contents.get());
    if (read == nullptr) {
        return import.error;
    }
    QVProfileImport kept = *read;
    for (std::size_t i = 0; i < read->starts.size() && i < allowed.size(); ++i) {
        if (allowed[i]) {
            QVAllowStart(kept, read->starts[i]);
        }
    }
    kept.profile.name = folder().freeName(kept.profile.name);
    QString why = whyNot(folder().saveNew(kept.profile));
    tellListChanged();
    return why;
}

QString QVPaneProfiles::faultOf(const QString& name) const
{
    return QVProfileNameFault(name);
}

void QVPaneProfiles::setChangeHandler(std::function<void()> handler)
{
    mChangeHandler = std::move(handler);
}
