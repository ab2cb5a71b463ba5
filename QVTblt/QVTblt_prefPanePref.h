// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Bundle.h"
#include "Geometry.h"
#include "PreferencePane.h"
#include "QVConfigStore.h"
#include "ui_QVTblt_prefPanePref.h"

/** The module's own bundle: strings and pictures are looked up here, never in the host's. */
extern platform::Bundle rzkBundle;

/**
 * The panel. Decides at each showing whether a tablet is there, has the record loaded and its pages
 * filled, and saves on leaving. Its outlets are the widgets of the interface file, under their
 * names there.
 */
class QVTblt_prefPanePref final : public platform::PreferencePane,
                                  public QVConfigStore,
                                  private Ui::QVTblt_prefPanePref {
    Q_OBJECT

public:
    platform::PreferencePane* initWithBundle(const platform::Bundle& bundle) override;

    /** Asks the driver for a tablet, for at most a quarter of a second, and sets the pages up. */
    void willSelect() override;
    /** Puts the keyboard focus on mSoft. */
    void didSelect() override;
    /** Saves the record into its file; pushes nothing. */
    void willUnselect() override;
    /** Puts the controls that a model's layout has moved back. */
    void didUnselect() override;

    /** Saves the record into its file and pushes it. */
    void SaveSet();
    /** Loads the file again and pushes the record. The controls keep showing the choices. */
    void CancelSet();

    /** Lays the key page out for the model and shows the record in its controls. */
    void InitComboBoxWithKey();
    /** Takes both scroll check boxes into the record and pushes it. */
    void SelectScroll();

private:
    QWidget* makeMainView() override;

    void showModel();
    void showNoDevice();
    void takeScrollBoxes();

    /** Frames in the interface file, and then before each layout moved them. */
    platform::Rect keyFrame_org;
    platform::Rect keyFrame_org_scroll_l;
    platform::Rect keyFrame_org_scroll_r;
};
