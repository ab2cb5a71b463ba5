// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTblt_prefPanePref.h"

#include <QObject>

/** The module's plug-in, with which a host creates the panel. */
class QVTbltModule final : public QObject, public platform::PreferencePanePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QVTBLT_PLUGIN_IID)
    Q_INTERFACES(platform::PreferencePanePlugin)

public:
    std::unique_ptr<platform::PreferencePane> makePane() const override
    {
        return std::make_unique<QVTblt_prefPanePref>();
    }
};

#include "QVTbltModule.moc"
