// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include <KCModule>
#include <KPluginFactory>

namespace {

/** An empty settings module, to measure the host itself. */
class EmptyModule final : public KCModule {
    Q_OBJECT

public:
    explicit EmptyModule(QWidget* parent, const QVariantList& arguments)
        : KCModule(parent, arguments)
    {
    }
};

} // namespace

K_PLUGIN_CLASS_WITH_JSON(EmptyModule, "kcm_empty.json")

#include "EmptyModule.moc"
