// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <KCModule>

/**
 * @file
 * The differences of a settings module between KDE Frameworks 5 and 6: in 5 it is the widget that
 * the host shows, in 6 it has one.
 */

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QVariantList>
/** The type of a module's parent in its constructor. */
using ModuleParent = QWidget;
using ModuleArguments = QVariantList;

/** The widget in which a module shows its settings. */
inline QWidget& moduleWidget(KCModule& module)
{
    return module;
}
#else
#include <KPluginMetaData>
using ModuleParent = QObject;
using ModuleArguments = KPluginMetaData;

inline QWidget& moduleWidget(KCModule& module)
{
    return *module.widget();
}
#endif
