// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVProfile.h"
#include "Result.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

/**
 * The profiles of a tablet: the files of one folder, $XDG_DATA_HOME/qvtblt/profiles/<product>. A
 * file that is no profile is passed over. Nothing is kept in memory: other programs work on the
 * same files. Each profile also has a desktop entry, so that the desktop's shortcuts and the
 * tablet's keys can choose it.
 *
 * Names are unique, and compared as they are. Those of the files follow from them. Errors are for
 * the user.
 */
class QVProfileFolder {
public:
    explicit QVProfileFolder(std::uint16_t productID);

    /** A profile, without its settings. */
    struct Item {
        QString name;
        QStringList applications;
        QString path; ///< of its file
    };

    /** The profiles in the order of their names, as the user's language sorts them. */
    std::vector<Item> list() const;

    /** Loads the profile with that name. */
    platform::Result<QVProfile> load(const QString& name) const;

    /** Saves the profile, replacing one of the same name. */
    platform::Result<> save(const QVProfile& profile) const;
    /** The same, but fails if there is one with its name. */
    platform::Result<> saveNew(const QVProfile& profile) const;

    /** Renames a profile, in the same file. */
    platform::Result<> rename(const QString& name, const QString& newName) const;
    /** Deletes a profile, with its file and its desktop entry. */
    platform::Result<> remove(const QString& name) const;

    /** The name, or, if there is a profile with it, the name with the first free number. */
    QString freeName(const QString& name) const;

    QString path() const { return mPath; }

private:
    struct Found {
        QString path;
        QVProfile profile;
    };
    std::optional<Found> find(const QString& name) const;
    platform::Result<> checkNew(const QString& name) const;
    platform::Result<> write(const QVProfile& profile, const QString& path) const;

    QString mPath;
};

/**
 * Which profile a tablet has, kept in $XDG_STATE_HOME/qvtblt/profiles.plist. Empty names stand for
 * none; a name may be that of a profile that is gone.
 */
struct QVProfileChoice {
    QString current; ///< used last
    QString chosen; ///< used last by the user's own choice, and not for an application in front

    static QVProfileChoice load(std::uint16_t productID);
    void save(std::uint16_t productID) const;
};
