// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace platform {

/**
 * A folder of resources: files by name and type, and localized string tables.
 *
 * A string table is the file <language>.lproj/<table>.strings, a property list with one dictionary
 * of strings. The user's preferred languages are those of the desktop's settings, best first. A
 * folder's language is written as in these: de, pt-BR, or zh-Hans, which serves Chinese in all
 * places that write it in simplified characters, and no other.
 *
 * A string table is read once, when its first string is asked for; the copies of a bundle share it.
 */
class Bundle {
public:
    /** A bundle without resources. */
    Bundle() = default;

    explicit Bundle(QString folder);

    const QString& folder() const { return mFolder; }

    /** Path of the file name.type, capitals as given; nothing where there is none. */
    std::optional<QString> pathForResource(const QString& name, const QString& type) const;

    /**
     * The user's best language for which the bundle has a folder, for instance "de". It is "en"
     * where there is none, and where English comes first, which is the language of the texts in
     * the sources and needs no folder.
     */
    QString preferredLocalization() const;

    /**
     * Path of the file name.type of the preferred localization; nothing where its folder has no
     * such file.
     */
    std::optional<QString> pathForLocalizedResource(const QString& name, const QString& type) const;

    /**
     * The string under the key, in the best language whose table has it, English last. Where none
     * has it: the value, or, when that is empty, the key itself.
     */
    QString localizedString(const QString& key, const QString& value, const QString& table) const;

private:
    struct Tables;

    QString mFolder;
    std::shared_ptr<Tables> mTables; ///< those that have been read
};

} // namespace platform
