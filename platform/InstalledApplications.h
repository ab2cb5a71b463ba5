// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

#include <vector>

namespace platform {

/** An application for the user to choose. What its entry says may be hostile; the texts are not. */
struct Application {
    QString name; ///< in the user's language, on one line; never empty
    QString detail; ///< what it is for; may be empty
    QString path; ///< of the desktop entry, the AppImage or the bundle
    QString icon; ///< a name in the icon theme, or a path; may be empty
    QString words; ///< all that a search looks at, in lower case
};

/**
 * The applications in the desktop's menu, in the order of their names. Reads every desktop entry;
 * empty without GLib's library, which is loaded by the first call, since loading it costs more than
 * the rest of the panel's start.
 */
std::vector<Application> installedApplications();

/** The application in a file, from its desktop entry or, without one, from the file's name. */
Application applicationAt(const QString& path);

/**
 * The application's icon; a general one if it has none, or one that is too large to be decoded
 * while the user waits.
 */
QIcon iconOf(const Application& application);

/** The path of an application's file as it is to be stored: with links resolved, except in the
 * folder that a sandbox exports its desktop entries to. There, the link is what stays the same with
 * each update; its target does not.
 */
QString lastingPath(const QString& file);

} // namespace platform
