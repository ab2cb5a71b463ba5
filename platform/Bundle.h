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
 * of strings. The user's preferred languages come from the desktop's settings, best first. A folder
 * is named after its language, as in these: de, pt-BR, or zh-Hans, which serves all places that
 * write Chinese in simplified characters, and no others.
 *
 * A string table is read once, when its first string is requested; copies of a bundle share it.
 */
class Bundle {
public:
    /** A bundle without resources. */
    Bundle() = default;

    explicit Bundle(QString folder);

    const QString& folder() const { return mFolder; }

    /** The path of the file name.type, case-sensitive; nothing if there is none. */
    std::optional<QString> pathForResource(const QString& name, const QString& type) const;

    /**
     * The best of the user's languages for which the bundle has a folder, such as "de". It is "en"
     * if there is none, and if English comes first, which is the language of the sources and needs
     * no folder.
     */
    QString preferredLocalization() const;

    /**
     * The path of the file name.type of the preferred localization; nothing if its folder has no
     * such file.
     */
    std::optional<QString> pathForLocalizedResource(const QString& name, const QString& type) const;

    /**
     * The string for the key, in the best language whose table has it, English last. If none has
     * it, the value or, if that is empty, the key itself.
     */
    QString localizedString(const QString& key, const QString& value, const QString& table) const;

private:
    struct Tables;

    QString mFolder;
    std::shared_ptr<Tables> mTables; ///< the tables read so far
};

} // namespace platform
