// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "InstalledApplications.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLibrary>
#include <QPixmap>
#include <QStringList>

#include <algorithm>

namespace platform {

namespace {

/**
 * The functions of GLib's library that read desktop entries, in the user's language. They are
 * looked up at run time, so that a panel in which nobody chooses an application never loads it.
 */
class DesktopEntries {
public:
    using Object = void*; ///< a GAppInfo that is a GDesktopAppInfo
    struct List { // GList
        Object data;
        List* next;
        List* previous;
    };

    static const DesktopEntries& instance()
    {
        static const DesktopEntries entries;
        return entries;
    }

    bool isLoaded() const { return mIsLoaded; }

    List* (*all)() = nullptr;
    int (*isShown)(Object) = nullptr;
    const char* (*name)(Object) = nullptr;
    const char* (*description)(Object) = nullptr;
    const char* (*path)(Object) = nullptr;
    const char* (*genericName)(Object) = nullptr;
    const char* const* (*keywords)(Object) = nullptr;
    char* (*string)(Object, const char*) = nullptr;
    Object (*fromFile)(const char*) = nullptr;
    void (*unref)(Object) = nullptr;
    void (*free)(void*) = nullptr;
    void (*freeList)(List*) = nullptr;

private:
    DesktopEntries()
        : mLibrary(QStringLiteral("gio-2.0"), 0)
    {
        // NOLINTNEXTLINE(*-prefer-member-initializer): the functions are set here, too
        mIsLoaded = find(all, "g_app_info_get_all") && find(isShown, "g_app_info_should_show")
            && find(name, "g_app_info_get_name") && find(description, "g_app_info_get_description")
            && find(path, "g_desktop_app_info_get_filename")
            && find(genericName, "g_desktop_app_info_get_generic_name")
            && find(keywords, "g_desktop_app_info_get_keywords")
            && find(string, "g_desktop_app_info_get_string")
            && find(fromFile, "g_desktop_app_info_new_from_filename")
            && find(unref, "g_object_unref") && find(free, "g_free")
            && find(freeList, "g_list_free");
    }

    template <class Function>
    bool find(Function& function, const char* symbol)
    {
        function = reinterpret_cast<Function>(mLibrary.resolve(symbol));
        return function != nullptr;
    }

    QLibrary mLibrary;
    bool mIsLoaded = false;
};

/** Whether it turns the direction of all that follows. */
bool turnsText(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

/** On one line, and not too long to lay out. */
QString oneLine(const QString& text)
{
    constexpr int kLongest = 100;
    constexpr int kLongestRead = 400; // much of it may be spaces
    QString line;
    const QString read = text.left(kLongestRead).simplified();
    for (const QChar character : read) {
        if (character.category() != QChar::Other_Control && !turnsText(character)) {
            line += character;
        }
    }
    return line.left(kLongest);
}

QString nameOfFile(const QString& path)
{
    const QString name = oneLine(QFileInfo(path).completeBaseName());
    return name.isEmpty() ? oneLine(path) : name;
}

Application readEntry(const DesktopEntries& entries, DesktopEntries::Object entry)
{
    Application application;
    application.path = QFile::decodeName(entries.path(entry));
    application.name = oneLine(QString::fromUtf8(entries.name(entry)));
    if (application.name.isEmpty()) {
        application.name = nameOfFile(application.path);
    }
    const QString generic = oneLine(QString::fromUtf8(entries.genericName(entry)));
    const QString comment = oneLine(QString::fromUtf8(entries.description(entry)));
    application.detail = generic.isEmpty() ? comment : generic;
    if (char* const icon = entries.string(entry, "Icon")) {
        application.icon = QString::fromUtf8(icon);
        entries.free(icon);
    }
    QStringList words{
        application.name, generic, comment, QFileInfo(application.path).completeBaseName()};
    for (const char* const* word = entries.keywords(entry); word != nullptr && *word != nullptr;
         ++word) {
        words.append(oneLine(QString::fromUtf8(*word)));
    }
    application.words = words.join(u'\n').toLower();
    return application;
}

QIcon generalIcon()
{
    return QIcon::fromTheme(QStringLiteral("application-x-executable"));
}

/** Reads an icon's file, unless its size or that of its picture is not that of an icon. */
QIcon iconFromFile(const QString& file)
{
    constexpr qint64 kMostBytes = 512L * 1024;
    constexpr qint64 kMostDrawingBytes = 128L * 1024;
    constexpr int kMostPixels = 1024; // on each side
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > kMostBytes) {
        return {};
    }
    QImageReader reader(file);
    // A drawing may take far longer than its size suggests, a packed one in particular.
    const QByteArray format = reader.format();
    if (format == "svgz" || (format == "svg" && info.size() > kMostDrawingBytes)) {
        return {};
    }
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > kMostPixels || size.height() > kMostPixels) {
        return {};
    }
    return QIcon(QPixmap::fromImageReader(&reader));
}

} // namespace

std::vector<Application> installedApplications()
{
    std::vector<Application> applications;
    const DesktopEntries& entries = DesktopEntries::instance();
    if (!entries.isLoaded()) {
        return applications;
    }
    DesktopEntries::List* const all = entries.all();
    for (const DesktopEntries::List* item = all; item != nullptr; item = item->next) {
        if (entries.isShown(item->data) != 0 && entries.path(item->data) != nullptr) {
            applications.push_back(readEntry(entries, item->data));
            applications.back().path = lastingPath(applications.back().path);
        }
        entries.unref(item->data);
    }
    entries.freeList(all);
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(applications, [&collator](const auto& one, const auto& other) {
        return collator.compare(one.name, other.name) < 0;
    });
    return applications;
}

Application applicationAt(const QString& path)
{
    constexpr qint64 kMostBytes = 1024L * 1024; // the user waits; real entries have some thousands
    const QFileInfo file(path);
    const bool isEntry =
        path.endsWith(QLatin1String(".desktop")) && file.isFile() && file.size() <= kMostBytes;
    if (isEntry && DesktopEntries::instance().isLoaded()) {
        const DesktopEntries& entries = DesktopEntries::instance();
        const DesktopEntries::Object entry = entries.fromFile(QFile::encodeName(path).constData());
        if (entry != nullptr) {
            Application application = readEntry(entries, entry);
            application.path = path;
            entries.unref(entry);
            return application;
        }
    }
    Application application;
    application.path = path;
    application.name = nameOfFile(path);
    application.words = application.name.toLower();
    return application;
}

QIcon iconOf(const Application& application)
{
    const QString& name = application.icon;
    // The name in a theme is part of a path there.
    const QIcon icon = QDir::isAbsolutePath(name) ? iconFromFile(name)
        : name.contains(u'/')                     ? QIcon()
                                                  : QIcon::fromTheme(name);
    return icon.isNull() ? generalIcon() : icon;
}

QString lastingPath(const QString& file)
{
    const QFileInfo info(file);
    if (info.absolutePath().endsWith(QLatin1String("/exports/share/applications"))) {
        return info.absoluteFilePath();
    }
    const QString resolved = info.canonicalFilePath();
    return resolved.isEmpty() ? file : resolved; // it has been deleted meanwhile
}

} // namespace platform
