// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Frameworks.h"

#include <KPluginFactory>

namespace {

/** An empty settings module, to measure the host itself. */
class EmptyModule final : public KCModule {
    Q_OBJECT

public:
    explicit EmptyModule(ModuleParent* parent, const ModuleArguments& arguments)
        : KCModule(parent, arguments)
    {
    }
};

} // namespace

K_PLUGIN_CLASS_WITH_JSON(EmptyModule, "kcm_empty.json")

#include "EmptyModule.moc"
