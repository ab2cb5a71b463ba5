// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneLoader.h"

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

LoadedPane loadPane(const QString& modulePath, const QString& resourcesPath)
{
    const QString file = QDir::cleanPath(modulePath);
    const QDir moduleFolder = QFileInfo(file).absoluteDir();
    const platform::Bundle bundle(QDir::cleanPath(moduleFolder.filePath(resourcesPath)));
    QPluginLoader loader(file);
    const auto* const plugin = qobject_cast<platform::PreferencePanePlugin*>(loader.instance());
    if (plugin == nullptr) {
        return {platform::Error{loader.errorString()}, bundle};
    }
    std::unique_ptr<platform::PreferencePane> pane = plugin->makePane();
    if (pane->initWithBundle(bundle) == nullptr) {
        return {platform::Error{QStringLiteral("%1 rejected its bundle").arg(file)}, bundle};
    }
    return {std::move(pane), bundle};
}
