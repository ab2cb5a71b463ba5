// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

#include <cstdint>
#include <memory>

class QAbstractButton;
class QVKeyComboBox;

namespace Ui {
class QVKeySetClass;
}

/**
 * The dialog for key combinations. The user clicks up to three keys of an on-screen keyboard; the
 * real keyboard only navigates. OK stores the combination in the record, in the slot of the combo
 * box that opened the dialog; the caller pushes the record.
 *
 * One dialog is used for all boxes: call QVShowWindow() for a box, then exec().
 */
class QVKeySetClass final : public QDialog {
    Q_OBJECT

public:
    explicit QVKeySetClass(QWidget* parent = nullptr);
    ~QVKeySetClass() override;

    /** Shows the window without waiting for the user. */
    void showWindow() { show(); }
    /** Clears the dialog for the box, without showing it. */
    void QVShowWindow(QVKeyComboBox* comboBox);

    /**
     * Stores the combination in the record, informs the box by QVKeyComboBox::kStored, and ends the
     * dialog; the box's item then shows the dialog's own text. Without a key, stores nothing.
     */
    void SaveKeyData();
    /** Ends the dialog; record and box do not change. */
    void CancelSet() { done(Rejected); }
    /**
     * Removes the last key. The value keeps the remaining keys, with their number in its highest
     * byte, to which SaveKeyData() adds its own number by OR. The number of keys is decremented
     * even if there are none, which no button does: that many keys added later show their names,
     * but are not stored.
     */
    void DeleteOneSet();
    /**
     * Adds the button's key, its property "tag", with the button's title. A fourth key is ignored.
     */
    void ClickButton(const QAbstractButton* key);

    /**
     * Resizes the window so that all keys are visible without scrolling, if there is room. Called
     * with the screen's room whenever it is shown.
     *
     * @param room for the window with its frame, in pixels
     */
    void fitInto(const QSize& room);

    void setVisible(bool visible) override;
    /** Escape and the window's close button cancel. */
    void reject() override { CancelSet(); }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHasKeys(bool hasKeys);

    std::int32_t mNum = 0; ///< number of keys so far: up to 3
    [[maybe_unused]] QPointer<QVKeyComboBox> mComboboxkey; ///< not used
    QPointer<QVKeyComboBox> mComboBox; ///< the box that opened the dialog
    std::int64_t mKeyValue = 0; ///< byte n is the code of key n + 1; byte 3 may hold a number
    std::unique_ptr<Ui::QVKeySetClass> ui;
};
