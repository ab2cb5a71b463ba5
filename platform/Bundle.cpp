// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Bundle.h"

#include "PropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QLoggingCategory>

namespace platform {

namespace {

Q_LOGGING_CATEGORY(lcBundle, "org.quorvia.tablet.bundle", QtInfoMsg)

/** The language of the texts in the sources. */
QString sourceLanguage()
{
    return QStringLiteral("en");
}

/** The user's languages, best first, each followed by its base language: de-AT, de. */
QStringList preferredLanguages()
{
    QStringList languages;
    const QStringList preferred = QLocale().uiLanguages();
    for (const QString& language : preferred) {
        QString tag = language;
        for (auto dash = tag.size(); dash > 0; dash = tag.lastIndexOf(u'-')) {
            tag.truncate(dash);
            languages.append(tag);
        }
    }
    languages.append(sourceLanguage());
    languages.removeDuplicates();
    return languages;
}

/** The strings of a table; if it cannot be used, none, with a message in the log. */
QHash<QString, QString> readTable(const std::optional<QString>& path)
{
    QHash<QString, QString> strings;
    if (!path) {
        return strings;
    }
    const auto list = PropertyList::load(QFile::encodeName(*path).toStdString());
    if (!list) {
        qCWarning(lcBundle, "%s", qUtf8Printable(list.error().text));
        return strings;
    }
    for (const std::string& key : list->root().keys()) {
        const QString name = QString::fromStdString(key);
        const auto text = list->root().string(key.c_str());
        // A key that the conversion changes, such as one that is only a byte-order mark, would
        // replace another.
        if (text && name.toStdString() == key) {
            strings.insert(name, QString::fromUtf8(text->data(), static_cast<int>(text->size())));
        }
    }
    return strings;
}

} // namespace

struct Bundle::Tables {
    /** The tables by language and name; empty if there is none, or it cannot be used. */
    QHash<QString, QHash<QString, QString>> strings;
};

Bundle::Bundle(QString folder)
    : mFolder(std::move(folder))
    , mTables(std::make_shared<Tables>())
{
}

std::optional<QString> Bundle::pathForResource(const QString& name, const QString& type) const
{
    const QString path = mFolder + u'/' + name + u'.' + type;
    if (mFolder.isEmpty() || !QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    return path;
}

QString Bundle::preferredLocalization() const
{
    const QStringList languages = preferredLanguages();
    for (const QString& language : languages) {
        const QString folder = mFolder + u'/' + language + QStringLiteral(".lproj");
        if (language == sourceLanguage() || (!mFolder.isEmpty() && QFileInfo(folder).isDir())) {
            return language;
        }
    }
    return sourceLanguage();
}

std::optional<QString> Bundle::pathForLocalizedResource(
    const QString& name, const QString& type) const
{
    return pathForResource(preferredLocalization() + QStringLiteral(".lproj/") + name, type);
}

QString Bundle::localizedString(
    const QString& key, const QString& value, const QString& table) const
{
    const QStringList languages = mTables ? preferredLanguages() : QStringList();
    for (const QString& language : languages) {
        const QString name = language + QStringLiteral(".lproj/") + table;
        auto strings = mTables->strings.find(name);
        if (strings == mTables->strings.end()) {
            strings = mTables->strings.insert(
                name, readTable(pathForResource(name, QStringLiteral("strings"))));
        }
        const auto text = strings->constFind(key);
        if (text != strings->constEnd()) {
            return *text;
        }
    }
    return value.isEmpty() ? key : value;
}

} // namespace platform
