// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include <KCModule>
#include <KPluginFactory>

namespace {

/** A module of settings with nothing in it: what the host itself costs. */
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
