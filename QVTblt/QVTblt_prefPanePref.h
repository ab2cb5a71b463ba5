// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "Bundle.h"
#include "Client.h"
#include "DisplaySigns.h"
#include "Geometry.h"
#include "PreferencePane.h"
#include "QVConfigStore.h"
#include "rzkApplication.h"
#include "ui_QVTblt_prefPanePref.h"

#include <QHash>
#include <QPointer>
#include <QTranslator>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class QVKeyComboBox;
class QVKeySetClass;
class QVPaneProfiles;

namespace platform {
struct Event;
struct Notification;
} // namespace platform

/**
 * The panel. At each showing, it checks whether a tablet is attached, loads the record and fills
 * the pages; it saves on leaving. Its outlets are the widgets of the interface file, with the same
 * names; mSoft is the label with the model's name.
 */
class QVTblt_prefPanePref final : public platform::PreferencePane,
                                  public QVConfigStore,
                                  private Ui::QVTblt_prefPanePref {
    Q_OBJECT

public:
    QVTblt_prefPanePref();
    ~QVTblt_prefPanePref() override;

    platform::PreferencePane* initWithBundle(const platform::Bundle& bundle) override;

    /** Asks the driver for a tablet, for up to a quarter of a second, and sets up the pages. */
    void willSelect() override;
    /** Sets the keyboard focus to mSoft. */
    void didSelect() override;
    /** Saves the record to its file, without a push. */
    void willUnselect() override;
    /** Moves back the controls that a model's layout has moved. */
    void didUnselect() override;

    void save() override { SaveSet(); }
    void cancel() override { CancelSet(); }
    bool hasChanges() const override { return hasUnsavedFields(); }
    void setButtonsShown(bool shown) override { mButtonsShown = shown; }
    /** Takes up to a quarter of a second. */
    Device checkDevice() override;
    void checkSelf(std::function<void(const SelfCheck& check)> done) override;
    bool hasDevice() const override;
    QString deviceID() const override;
    int chosenDisplay() const override;
    void chooseDisplay(int number) override;
    void send() override { PushQVTabletInfo(); }
    QByteArray settings() const override;
    void setSettings(const QByteArray& settings) override;
    QString nameOfEdit(const QByteArray& before, const QByteArray& after) const override;
    platform::PaneProfiles* profiles() override;

    /** Saves the record to its file and pushes it. */
    void SaveSet();
    /** Reloads the file and pushes the record. All pages still show the discarded choices. */
    void CancelSet();

    /**
     * Arranges the key page for the model and shows the record in its controls. The layouts move
     * mKey1_1 and mKeyLScroll relative to their current positions, so a second call moves them
     * again.
     */
    void InitComboBoxWithKey();
    /**
     * Shows a slot of the record in its combo box and commits the item.
     *
     * @param keyNo 0 to 15 for the express keys, 16 and 17 for the pen's upper and lower button
     */
    void InitSingleComboBoxWithKey(QVKeyComboBox* comboBox, std::int32_t keyNo) const;
    /**
     * Copies the user's choice to the slot in the combo box's tag and pushes the record. The
     * application item opens the chooser, the key combination item its dialog; if the user cancels,
     * the committed item is restored.
     */
    void SelectKey(QVKeyComboBox* comboBox);
    /** Copies both scroll check boxes to the record and pushes it. */
    void SelectScroll();
    /** Copies the slider's value to the record and pushes it. */
    void ScrollSpeed(const QSlider* slider);
    /**
     * Lets the user choose an application. @return whether one was chosen; its path is in mFileName
     */
    bool SetApplicationPath();
    /** The text of a slot's key combination, even if it is not in use. @param keyNo 0 to 17 */
    QString GetSubKeyString(std::int32_t keyNo) const;

    /** Does nothing: proximity events are handled by the views. */
    void tabletProximity(const std::shared_ptr<const platform::Event>& /*event*/) { }
    void handleProximity(const platform::Notification& /*notification*/) { }

private:
    QWidget* makeMainView() override;

    void showModel();
    void showNoDevice();
    void placeNoDevice();
    void fitPressure();
    void relay(QLatin1String name, News news);
    [[nodiscard]] bool askForDevice();
    void takeScrollBoxes();
    void showStrips();
    /** Shows the record on the pages. */
    void showSettings();
    void makeProfiles();

    void setUpDisplayPage();
    /** Shows on each display which one it is, or ends that. */
    void identifyDisplays();
    void setUpKeyPage();
    void setUpPenPage();
    void restoreKeyPage();
    void layOutKeyPage(std::uint16_t productID);
    void takeApplication(QVKeyComboBox& comboBox, tagQVTabletInfoSubKey& slot);
    void askForKeys(QVKeyComboBox& comboBox);
    /** A button of the tablet is down or up: marks its box. Screen readers hear it once. */
    void markButton(std::size_t slot, bool isDown);

    std::unique_ptr<QVPaneProfiles> mProfiles;
    platform::DisplaySigns mSigns;
    QTranslator mTranslator; ///< for the panel's own texts
    double mNoDevTitleX = 0; ///< of the label, from the side on which lines start
    /** The driver's answer about its tablet. */
    struct Answer {
        std::array<char, kQVListNameSize> name{};
        bool hasDevice = false;
    };
    std::optional<Answer> mAnswer; ///< for the next showing; differs from what is shown
    bool mHasDevice = false; ///< as currently shown
    std::optional<bool> mIsPushTaken; ///< the last one, by the driver; nothing before the first
    bool mButtonsShown = false; ///< Save and Cancel, if there is a tablet
    QVKeySetClass* mKeyset = nullptr; ///< owned by the main view; none before its first use
    QString mFileName; ///< path of the application last chosen

    std::array<QVKeyComboBox*, kQVSlotCount> mSlotBoxes{}; ///< by slot
    std::array<QLabel*, kQVSlotCount> mSlotLabels{};
    QHash<QWidget*, bool> mEnabledAtFirst; ///< the key page's controls, as in the interface file
    std::optional<std::uint16_t> mLaidOutProduct;
    QPointer<platform::NoticeLabel> mPressed; ///< none before the first press

    /** Frames in the interface file, and then before each layout moved them. */
    platform::Rect keyFrame_org;
    platform::Rect keyFrame_org_scroll_l;
    platform::Rect keyFrame_org_scroll_r;
};
