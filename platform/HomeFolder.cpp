// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "HomeFolder.h"

#include <QDir>

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace platform {

namespace {

std::string homeFolder()
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing here changes the environment
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        return home;
    }
    // NOLINTNEXTLINE(concurrency-mt-unsafe): called only on the main thread
    const passwd* const user = ::getpwuid(::getuid());
    return user == nullptr || user->pw_dir == nullptr ? std::string() : user->pw_dir;
}

/** The folder in a variable, or the default below the home folder. */
QString folderIn(const char* variable, const char* fallback)
{
    const QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? folder : QDir::home().filePath(QLatin1String(fallback));
}

} // namespace

std::string expandTilde(std::string_view path)
{
    const bool isHome = path == "~" || path.starts_with("~/");
    const std::string home = isHome ? homeFolder() : std::string();
    return home.empty() ? std::string(path) : home + std::string(path.substr(1));
}

QString userDataFolder()
{
    return folderIn("XDG_DATA_HOME", ".local/share");
}

QString userStateFolder()
{
    return folderIn("XDG_STATE_HOME", ".local/state");
}

} // namespace platform
