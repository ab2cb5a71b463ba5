// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Bundle.h"
#include "Geometry.h"
#include "PreferencePane.h"
#include "QVConfigStore.h"
#include "rzkApplication.h"
#include "ui_QVTblt_prefPanePref.h"

#include <QHash>
#include <QTranslator>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

class QVKeyComboBox;
class QVKeySetClass;

namespace platform {
struct Event;
struct Notification;
} // namespace platform

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

    void save() override { SaveSet(); }
    void cancel() override { CancelSet(); }
    bool hasChanges() const override { return hasUnsavedFields(); }
    void setButtonsShown(bool shown) override { mButtonsShown = shown; }
    /** Asks for at most a quarter of a second. */
    Device checkDevice() override;
    bool hasDevice() const override;
    void send() override;

    /** Saves the record into its file and pushes it. */
    void SaveSet();
    /** Loads the file again and pushes the record. All pages keep showing what was given up. */
    void CancelSet();

    /**
     * Lays the key page out for the model and shows the record in its controls. The layouts move
     * mKey1_1 and mKeyLScroll from where they stand, so a second call moves them again.
     */
    void InitComboBoxWithKey();
    /**
     * Shows a slot of the record in its combo box and commits the item.
     *
     * @param keyNo 0 to 15 for the express keys, 16 and 17 for the pen's upper and lower button
     */
    void InitSingleComboBoxWithKey(QVKeyComboBox* comboBox, std::int32_t keyNo) const;
    /**
     * Takes the user's choice into the slot that is the combo box's tag and pushes the record. The
     * item of an application opens the chooser, that of a key combination its dialog; what the
     * user cancels there brings the committed item back.
     */
    void SelectKey(QVKeyComboBox* comboBox);
    /** Takes both scroll check boxes into the record and pushes it. */
    void SelectScroll();
    /** Takes the slider into the record and pushes it. */
    void ScrollSpeed(const QSlider* slider);
    /** Lets the user choose an application. @return whether there is one; it is in mFileName */
    bool SetApplicationPath();
    /** The text of a slot's key combination, whether or not the slot is one. @param keyNo 0 to 17
     */
    QString GetSubKeyString(std::int32_t keyNo) const;

    /** The pen's coming and going is the views' alone. */
    void tabletProximity(const std::shared_ptr<const platform::Event>& /*event*/) { }
    void handleProximity(const platform::Notification& /*notification*/) { }

private:
    QWidget* makeMainView() override;

    void showModel();
    void showNoDevice();
    void placeNoDevice();
    void relay(QLatin1String name, News news);
    bool askForDevice();
    void takeScrollBoxes();

    void setUpDisplayPage();
    void setUpKeyPage();
    void setUpPenPage();
    void restoreKeyPage();
    void layOutKeyPage(std::uint16_t productID);
    void takeApplication(QVKeyComboBox& comboBox, tagQVTabletInfoSubKey& slot);
    void askForKeys(QVKeyComboBox& comboBox);

    QTranslator mTranslator; ///< of the panel's own texts
    double mNoDevTitleX = 0; ///< of the label, from the side on which lines begin
    /** What the driver says of its tablet. */
    struct Answer {
        std::array<char, kQVListNameSize> name{};
        bool hasDevice = false;
    };
    std::optional<Answer> mAnswer; ///< for the next showing; other than what is shown
    bool mHasDevice = false; ///< as it is shown
    bool mButtonsShown = false; ///< Save and Cancel, where there is a tablet
    QVKeySetClass* mKeyset = nullptr; ///< belongs to the main view
    QString mFileName; ///< path of the application last chosen

    std::array<QVKeyComboBox*, kQVSlotCount> mSlotBoxes{}; ///< by slot
    std::array<QLabel*, kQVSlotCount> mSlotLabels{};
    QHash<QWidget*, bool> mEnabledAtFirst; ///< the key page's controls, as in the interface file
    std::optional<std::uint16_t> mLaidOutProduct;

    /** Frames in the interface file, and then before each layout moved them. */
    platform::Rect keyFrame_org;
    platform::Rect keyFrame_org_scroll_l;
    platform::Rect keyFrame_org_scroll_r;
};
