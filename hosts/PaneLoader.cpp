// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneLoader.h"

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

LoadedPane loadPane(const QString& modulePath, const QString& resourcesPath)
{
    QPluginLoader loader(QDir::cleanPath(modulePath));
    const auto* const plugin = qobject_cast<platform::PreferencePanePlugin*>(loader.instance());
    if (plugin == nullptr) {
        return {nullptr, loader.errorString()};
    }
    const QDir moduleFolder = QFileInfo(loader.fileName()).absoluteDir();
    const platform::Bundle bundle(QDir::cleanPath(moduleFolder.filePath(resourcesPath)));
    std::unique_ptr<platform::PreferencePane> pane = plugin->makePane();
    if (pane->initWithBundle(bundle) == nullptr) {
        return {nullptr, QStringLiteral("%1 refused its bundle").arg(loader.fileName())};
    }
    return {std::move(pane), {}};
}
