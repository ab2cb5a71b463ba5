// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVProfileFolder.h"
#include "Result.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <cstdint>

class QVConfigStore;

/** Who wants a profile. */
enum class QVChooser : std::uint8_t {
    User,
    Application, ///< the one in front, for as long as it is there
};

/**
 * Switches the attached tablet between its profiles, and changes single settings, on behalf of the
 * user, of other programs, or of the application in front. Works on the configuration file and on
 * the record, and pushes; a panel also shows the result. Main thread only. Errors are for the user.
 */
class QVProfileSwitch {
public:
    explicit QVProfileSwitch(QVConfigStore& store)
        : mStore(store)
    {
    }
    virtual ~QVProfileSwitch() = default;
    QVProfileSwitch(const QVProfileSwitch&) = delete;
    QVProfileSwitch& operator=(const QVProfileSwitch&) = delete;
    QVProfileSwitch(QVProfileSwitch&&) = delete;
    QVProfileSwitch& operator=(QVProfileSwitch&&) = delete;

    /** The names of the attached tablet's profiles, in their order; empty without a tablet. */
    platform::Result<QStringList> names();
    /** The profile that was used last, if there still is one with that name; otherwise empty. */
    platform::Result<QString> current();

    /**
     * Puts a profile's settings into the configuration file, loads that and pushes it. Unsaved
     * edits are kept before as the profile "Before <name>".
     */
    platform::Result<> use(const QString& name, QVChooser chooser = QVChooser::User);
    /** Uses the profile after the current one, or the first one. @return its name */
    platform::Result<QString> useNext();
    /**
     * Uses the first profile that is for an application, or, if there is none, the one that the
     * user has chosen. The settings of a user who has chosen none are kept as "Default" before the
     * first change. Does nothing if that is the current one.
     *
     * @param names of the application: of its desktop entry and its windows' class; without case
     */
    platform::Result<> useFor(const QStringList& names);

    /** Changes one entry, such as "Pen/Speed", pushes the record, and saves the entry. */
    platform::Result<> set(const QString& entry, const QString& value);
    /** Changes entries and pushes the record, but saves nothing. All of them, or none. */
    platform::Result<> edit(const QMap<QString, QString>& values);

    /** Saves the current settings as a profile, which becomes the current one. */
    platform::Result<> save(const QString& name);
    /** Renames a profile; the current one stays current. */
    platform::Result<> rename(const QString& name, const QString& newName);
    platform::Result<> remove(const QString& name);

    /** The record as it is now. */
    platform::Result<QByteArray> record();

protected:
    /**
     * Makes the record that of the attached tablet. By default, asks the driver and loads the file.
     */
    virtual platform::Result<> attach();
    /** Fails if nothing may be changed now. */
    virtual platform::Result<> mayChange() { return {}; }
    /** Pushes the record. By default, waits until the driver has accepted it. */
    virtual platform::Result<> push();
    /** Called when the record has been changed or loaded, before the push. */
    virtual void show() { }
    /**
     * Derives the mapped area from the chosen display. By default, from the displays of this
     * program's window system, if there is one.
     */
    virtual void map();
    /** Called after a change. @param isOther whether the settings are those of another profile */
    virtual void changed(bool isOther) { static_cast<void>(isOther); }

    /** The profiles of the tablet of the record. */
    QVProfileFolder folder() const;

    QVConfigStore& store() const { return mStore; }

private:
    platform::Result<> begin();
    platform::Result<> put(const QString& name, QVChooser chooser);
    platform::Result<> keepEdits(const QVProfile& next, const QString& current);
    platform::Result<> change(const QMap<QString, QString>& values);
    static void replaceInChoice(const QString& name, const QString& newName);

    QVConfigStore& mStore;
};
