// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Frameworks.h"
#include "PaneArea.h"

#include <QPointer>

/**
 * The module that System Settings loads: the pane with the host's buttons. Apply is the pane's
 * Save, Reset its Cancel; they are enabled while the record and the file differ. If the pane cannot
 * be loaded, the module says why.
 */
class TabletModule final : public KCModule {
    Q_OBJECT

public:
    TabletModule(ModuleParent* parent, const ModuleArguments& arguments);
    ~TabletModule() override;

    /** The host's Reset, and its Discard on leaving; it also calls this after the first showing. */
    void load() override;
    /** The host's Apply. */
    void save() override;

private:
    QPointer<PaneArea> mArea; ///< null if the pane cannot be loaded
};
