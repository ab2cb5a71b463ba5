// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVProfileSwitch.h"
#include "Result.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QLatin1String>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

class QDBusPendingCallWatcher;

/** The name on the session bus of the program that owns the tablet's settings, and its object. */
inline constexpr QLatin1String kQVPanelService("org.quorvia.TabletPanel");
inline constexpr QLatin1String kQVPanelPath("/org/quorvia/TabletPanel");
inline constexpr QLatin1String kQVPanelInterface("org.quorvia.TabletPanel1");

using QVStringMap = QMap<QString, QString>;

/**
 * The tablet's settings on the bus, for other programs and for further panels, so that there is one
 * place where they change. The public slots and signals are exported, as org.quorvia.TabletPanel1.
 *
 * Several programs want the name: it goes to the panel that was there first, then to the next one,
 * and to a program that follows applications only while there is no panel.
 */
class QVPanelObject final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quorvia.TabletPanel1")

public:
    enum class Kind : std::uint8_t {
        Panel,
        Follower, ///< leaves the name to a panel
    };

    /** Exports the object and asks for the name. @param own does what is asked of the owner */
    QVPanelObject(QVProfileSwitch& own, Kind kind, QDBusConnection bus);
    /** Gives up the name, after all that was sent before. */
    ~QVPanelObject() override;

    /** Whether this has the name. */
    bool isOwner() const { return mRole == Role::Owner; }
    /** Whether another process has it. Neither is true before the bus has answered. */
    bool isSecond() const { return mRole == Role::Second; }

    /** Sets the function to call when this gets the name, or another process does. */
    void setRoleHandler(std::function<void()> handler) { mRoleHandler = std::move(handler); }

    /** Sets the function to call when another program has saved the settings. */
    void setSavedHandler(std::function<void()> handler) { mSavedHandler = std::move(handler); }

    /** Sets the function to call when the owner, another process, has changed the record. */
    void setSettingsHandler(std::function<void(const QByteArray& record)> handler)
    {
        mSettingsHandler = std::move(handler);
    }

    /** Whether another program calibrates the tablet. */
    bool isCalibratedByOther() const { return !mCalibrating.watchedServices().isEmpty(); }

    /** Tells others what the settings are now, if this has the name. */
    void tellChanged();
    /** The same, also if the record has not changed, for edits that have been refused meanwhile. */
    void tellAnew();
    /** Tells others that the settings have been saved, if this has the name. */
    void tellSaved();

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): moc reads it
    /** The names of the profiles. */
    QStringList Profiles();
    /** The name of the current profile; empty if there is none. */
    QString Current();
    /** Uses a profile. */
    void Use(const QString& name);
    /** Uses the profile after the current one. @return its name */
    QString UseNext();
    /** Changes one entry, such as "Pen/Speed", and saves it. */
    void Set(const QString& entry, const QString& value);
    /** Changes entries without saving them, all or none. */
    void Edit(const QMap<QString, QString>& values); // by this name, the bus finds its type
    /** Uses the profile for an application that has come to the front, or the user's own. */
    void Follow(const QStringList& names);
    /** Keeps the current settings as a profile. */
    void Save(const QString& name);
    /** The record: 5077 bytes. */
    QByteArray Settings();
    /** The caller's panel has begun or ended a calibration; during one, nothing may be changed. */
    void NoteCalibration(bool isOn);
    /** The caller has saved the settings. */
    void NoteSaved();

Q_SIGNALS: // never emitted; declared only for introspection
    /** The settings, the profiles or the current one may have changed. */
    void Changed();
    /** The record has changed; sent once somebody has asked for Settings(). */
    void SettingsChanged(const QByteArray& record);
    /** The settings have been saved. */
    void Saved();

private Q_SLOTS:
    void noteAcquired(const QString& name);
    void noteLost(const QString& name);
    void takeSettings(const QByteArray& record);
    void takeSaved();

private: // NOLINT(readability-redundant-access-specifiers): moc reads the one before
    enum class Role : std::uint8_t { Unknown, Owner, Second };

    void answer(const platform::Result<>& result);
    void requestName();
    void setRole(Role role);
    void noteOwner(const QString& owner);
    void endCalibration(const QString& caller);
    void send(const char* signal, const QVariantList& arguments = {});

    QVProfileSwitch& mOwn;
    Kind mKind;
    QDBusConnection mBus;
    std::function<void()> mRoleHandler;
    std::function<void()> mSavedHandler;
    std::function<void(const QByteArray& record)> mSettingsHandler;
    QDBusPendingCallWatcher* mRequest = nullptr; ///< for the name
    QDBusServiceWatcher mCalibrating; ///< watches those who calibrate, by their unique names
    Role mRole = Role::Unknown;
    bool mHasSeconds = false; ///< somebody follows the record
    QByteArray mLastTold; ///< the record
};

/** A call of a method of whoever owns the panel's name, which the bus must not start. */
QDBusMessage QVPanelCall(const char* method, const QVariantList& arguments = {});

/**
 * Has the owner of the panel's name do something, and waits for it.
 *
 * @return nothing if nobody owns the name
 */
std::optional<platform::Result<>> QVAskPanel(
    const QDBusConnection& bus, const char* method, const QVariantList& arguments = {});
