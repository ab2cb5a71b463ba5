// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <KCModule>

#include <memory>

/**
 * Hosts the pane in System Settings. The pane is selected when the module is first shown and
 * unselected, and so saved, when the module goes. Where the pane cannot be loaded, the module says
 * why.
 */
class TabletModule final : public KCModule {
    Q_OBJECT

public:
    TabletModule(QWidget* parent, const QVariantList& arguments);
    ~TabletModule() override;
    TabletModule(const TabletModule&) = delete;
    TabletModule& operator=(const TabletModule&) = delete;
    TabletModule(TabletModule&&) = delete;
    TabletModule& operator=(TabletModule&&) = delete;

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<platform::PreferencePane> mPane;
    bool mSelected = false;
};
