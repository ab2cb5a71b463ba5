// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Bundle.h"

#include "PropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>

namespace platform {

namespace {

Q_LOGGING_CATEGORY(lcBundle, "org.quorvia.tablet.bundle", QtInfoMsg)

/** What the texts in the sources are in. */
QString sourceLanguage()
{
    return QStringLiteral("en");
}

/** The user's languages, best first, each followed by what it is a variant of: de-AT, de. */
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

} // namespace

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
    const QStringList languages = preferredLanguages();
    for (const QString& language : languages) {
        const std::optional<QString> path = pathForResource(
            language + QStringLiteral(".lproj/") + table, QStringLiteral("strings"));
        if (!path) {
            continue;
        }
        PropertyListError error;
        const std::optional<PropertyList> strings =
            PropertyList::load(QFile::encodeName(*path).toStdString(), error);
        if (!strings) {
            qCWarning(lcBundle, "%s", error.message.c_str());
            continue;
        }
        const auto text = strings->root().string(key.toUtf8().constData());
        if (text) {
            return QString::fromUtf8(text->data(), static_cast<int>(text->size()));
        }
    }
    return value.isEmpty() ? key : value;
}

} // namespace platform
