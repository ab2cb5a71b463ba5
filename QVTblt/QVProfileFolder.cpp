// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfileFolder.h"

#include "FileSaving.h"
#include "HomeFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

using platform::Error;
using platform::Result;

namespace {

/** The context of the translations. */
struct FolderTexts {
    Q_DECLARE_TR_FUNCTIONS(QVProfileFolder)
};

std::string encoded(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

/** A name for files: letters and digits of ASCII, and hyphens. */
QString slugOf(const QString& name)
{
    constexpr int kLongest = 40;
    QString slug;
    const QString plain = name.normalized(QString::NormalizationForm_KD).toLower();
    for (const QChar character : plain) {
        const bool isPlain =
            (character >= u'a' && character <= u'z') || (character >= u'0' && character <= u'9');
        if (isPlain) {
            slug += character;
        } else if (!character.isMark() && !slug.isEmpty() && !slug.endsWith(u'-')) {
            slug += u'-';
        }
    }
    slug.truncate(kLongest);
    while (slug.endsWith(u'-')) {
        slug.chop(1);
    }
    return slug.isEmpty() ? QStringLiteral("profile") : slug;
}

// Desktop entries ---------------------------------------------------------------------------------

/** "Profile: " in the languages of the panel: a desktop entry has all of them. */
constexpr std::array kEntryNames{std::pair("", "Profile: "), std::pair("[de]", "Profil: "),
    std::pair("[es]", "Perfil: "), std::pair("[fr]", "Profil\u00a0: "),
    std::pair("[ja]", "プロファイル: "), std::pair("[zh_CN]", "配置方案: ")};

/** The desktop entry that uses the profile in a file. */
QString entryPath(const QString& profile)
{
    const QFileInfo file(profile);
    return platform::userDataFolder()
        + QStringLiteral("/applications/org.quorvia.profile-%1-%2.desktop")
              .arg(file.dir().dirName(), file.completeBaseName());
}

/** An argument for Exec, quoted by the rules of the Desktop Entry Specification. */
QString quotedArgument(const QString& text)
{
    QString quoted;
    for (const QChar character : text) {
        if (character == u'"' || character == u'`' || character == u'$' || character == u'\\') {
            quoted += u'\\';
        }
        quoted += character == u'%' ? QStringLiteral("%%") : QString(character);
    }
    // Backslashes again, since the whole is a string of the file.
    return u'"' + quoted.replace(u'\\', QLatin1String("\\\\")) + u'"';
}

/** Without the entry, only shortcuts miss the profile. */
void writeEntry(const QString& path, const QString& name)
{
    QString text = QStringLiteral("[Desktop Entry]\nType=Application\n");
    for (const auto& [language, words] : kEntryNames) {
        text += QStringLiteral("Name%1=%2%3\n")
                    .arg(QLatin1String(language), QString::fromUtf8(words),
                        QString(name).replace(u'\\', QLatin1String("\\\\")));
    }
    text += QStringLiteral("Exec=qvtbltctl profile use -- %1\n"
                           "Icon=org.quorvia.qvtblt\nCategories=Settings;HardwareSettings;\n"
                           "StartupNotify=false\n")
                .arg(quotedArgument(name));
    const QString entry = entryPath(path);
    QDir().mkpath(QFileInfo(entry).path());
    static_cast<void>(platform::replaceFile(entry, text.toStdString()));
}

void removeEntry(const QString& path)
{
    QFile::remove(entryPath(path));
}

} // namespace

QVProfileFolder::QVProfileFolder(std::uint16_t productID)
    : mPath(QStringLiteral("%1/qvtblt/profiles/%2")
                .arg(platform::userDataFolder(), QString::number(productID)))
{
}

namespace {

Result<QVProfile> profileIn(const QString& path)
{
    const auto list = platform::PropertyList::load(encoded(path));
    if (!list) {
        return list.error();
    }
    return QVReadProfile(*list);
}

Error noProfile(const QString& name)
{
    return {FolderTexts::tr("There is no profile “%1”.").arg(name)};
}

} // namespace

std::vector<QVProfileFolder::Item> QVProfileFolder::list() const
{
    std::vector<Item> items;
    const QDir folder(mPath);
    const QStringList files =
        folder.entryList({QStringLiteral("*.plist")}, QDir::Files | QDir::Readable, QDir::Name);
    for (const QString& file : files) {
        const QString path = folder.filePath(file);
        if (const Result<QVProfile> profile = profileIn(path)) {
            items.push_back({profile->name, profile->applications, path});
        }
    }
    std::ranges::stable_sort(items, [](const Item& one, const Item& other) {
        const int order = QString::localeAwareCompare(one.name, other.name);
        return order == 0 ? one.name < other.name : order < 0;
    });
    // Files that were copied here may share a name; the others of them cannot be reached.
    items.erase(std::unique(items.begin(), items.end(),
                    [](const Item& one, const Item& other) { return one.name == other.name; }),
        items.end());
    return items;
}

std::optional<QVProfileFolder::Found> QVProfileFolder::find(const QString& name) const
{
    // Most files are called as their profile, so that the others need not be read.
    const QString path = QStringLiteral("%1/%2.plist").arg(mPath, slugOf(name));
    if (Result<QVProfile> profile = profileIn(path); profile && profile->name == name) {
        return Found{path, *std::move(profile)};
    }
    const std::vector<Item> items = list();
    const auto item = std::ranges::find(items, name, &Item::name);
    if (item == items.end()) {
        return std::nullopt;
    }
    Result<QVProfile> profile = profileIn(item->path);
    return profile ? std::optional(Found{item->path, *std::move(profile)}) : std::nullopt;
}

Result<QVProfile> QVProfileFolder::load(const QString& name) const
{
    std::optional<Found> found = find(name);
    if (!found) {
        return noProfile(name);
    }
    return std::move(found->profile);
}

Result<> QVProfileFolder::save(const QVProfile& profile) const
{
    const std::optional<Found> found = find(profile.name);
    return found ? write(profile, found->path) : saveNew(profile);
}

Result<> QVProfileFolder::write(const QVProfile& profile, const QString& path) const
{
    Result<> saved = QVWriteProfile(profile).save(encoded(path));
    if (saved) {
        writeEntry(path, profile.name);
    }
    return saved;
}

/** Fails if there cannot be a new profile with the name. */
Result<> QVProfileFolder::checkNew(const QString& name) const
{
    if (const QString fault = QVProfileNameFault(name); !fault.isEmpty()) {
        return Error{fault};
    }
    if (find(name)) {
        return Error{FolderTexts::tr("There is already a profile “%1”.").arg(name)};
    }
    return {};
}

Result<> QVProfileFolder::saveNew(const QVProfile& profile) const
{
    if (Result<> checked = checkNew(profile.name); !checked) {
        return checked;
    }
    QDir().mkpath(mPath); // a failure shows when the file is created
    const QString slug = slugOf(profile.name);
    QString path = QStringLiteral("%1/%2.plist").arg(mPath, slug);
    for (int number = 2; QFileInfo::exists(path); ++number) {
        path = QStringLiteral("%1/%2-%3.plist").arg(mPath, slug, QString::number(number));
    }
    Result<> saved = QVWriteProfile(profile).saveNew(encoded(path));
    if (saved) {
        writeEntry(path, profile.name);
    }
    return saved;
}

Result<> QVProfileFolder::rename(const QString& name, const QString& newName) const
{
    std::optional<Found> found = find(name);
    if (!found) {
        return noProfile(name);
    }
    if (newName == name) {
        return {};
    }
    if (Result<> checked = checkNew(newName); !checked) {
        return checked;
    }
    // In the same file, so that there is no moment without the profile, or with two.
    found->profile.name = newName;
    return write(found->profile, found->path);
}

Result<> QVProfileFolder::remove(const QString& name) const
{
    const std::optional<Found> found = find(name);
    if (!found) {
        return noProfile(name);
    }
    QFile file(found->path);
    if (!file.remove()) {
        return Error{file.errorString()};
    }
    removeEntry(found->path);
    return {};
}

QString QVProfileFolder::freeName(const QString& name) const
{
    const std::vector<Item> items = list();
    QString free = name;
    for (int number = 2; std::ranges::find(items, free, &Item::name) != items.end(); ++number) {
        const QString suffix = QStringLiteral(" %1").arg(number);
        free = name;
        while ((free + suffix).toUcs4().size() > kQVProfileNameSize) {
            free.chop(std::as_const(free).back().isLowSurrogate() ? 2 : 1);
        }
        free += suffix;
    }
    return free;
}

// The choice --------------------------------------------------------------------------------------

namespace {

constexpr const char* kCurrentKey = "Current";
constexpr const char* kChosenKey = "Chosen";

QString choicePath()
{
    return platform::userStateFolder() + QStringLiteral("/qvtblt/profiles.plist");
}

} // namespace

QVProfileChoice QVProfileChoice::load(std::uint16_t productID)
{
    const auto list = platform::PropertyList::load(encoded(choicePath()));
    if (!list) {
        return {};
    }
    const platform::Dictionary product = list->root().dictionary(std::to_string(productID).c_str());
    const auto text = [&product](const char* key) {
        return QString::fromStdString(std::string(product.string(key).value_or("")));
    };
    return {text(kCurrentKey), text(kChosenKey)};
}

void QVProfileChoice::save(std::uint16_t productID) const
{
    const QString path = choicePath();
    auto list = platform::PropertyList::load(encoded(path)).value_or(platform::PropertyList());
    const platform::MutableDictionary product =
        list.root().addDictionary(std::to_string(productID).c_str());
    product.setString(kCurrentKey, current.toStdString());
    product.setString(kChosenKey, chosen.toStdString());
    QDir().mkpath(QFileInfo(path).path());
    // Without success, the list shows another profile, or none; the settings are what they are.
    static_cast<void>(list.save(encoded(path)));
}
