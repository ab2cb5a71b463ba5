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
 * The dialog for key combinations. The user clicks up to three keys of a drawn keyboard; the
 * keyboard of the computer only moves between them. OK stores the combination in the record's slot
 * of the combo box that opened the dialog; pushing the record is left to whoever ran the dialog.
 *
 * One dialog serves all boxes: QVShowWindow() for a box, then exec().
 */
class QVKeySetClass final : public QDialog {
    Q_OBJECT

public:
    explicit QVKeySetClass(QWidget* parent = nullptr);
    ~QVKeySetClass() override;

    /** Shows the window without waiting for the user. */
    void showWindow();
    /** Empties the dialog for the box. Shows nothing yet. */
    void QVShowWindow(QVKeyComboBox* comboBox);

    /**
     * Stores the combination in the record, tells the box by QVKeyComboBox::kStored, and ends the
     * dialog; the box's item then shows the dialog's own text. Without a key, stores nothing.
     */
    void SaveKeyData();
    /** Ends the dialog; record and box stay as they are. */
    void CancelSet();
    /**
     * Takes the last key back. Of the value, the keys that remain are kept and their number is
     * written into its highest byte, where SaveKeyData() adds the number at that time by OR. The
     * number of keys goes down where there is none as well, which no button does: as many keys
     * after that show their names and are not stored.
     */
    void DeleteOneSet();
    /** Adds the button's key, its property "tag", under the button's title. A fourth is ignored. */
    void ClickButton(const QAbstractButton* key);

    /**
     * Gives the window the size at which no key has to be scrolled to, as far as there is room.
     * That happens whenever it is shown, for the screen's room.
     *
     * @param room for the window with its frame, in pixels
     */
    void fitInto(const QSize& room);

    void setVisible(bool visible) override;
    /** Escape and the window's close button cancel. */
    void reject() override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHasKeys(bool hasKeys);

    std::int32_t mNum = 0; ///< keys so far: up to 3
    [[maybe_unused]] QPointer<QVKeyComboBox> mComboboxkey; ///< nothing looks at it
    QPointer<QVKeyComboBox> mComboBox; ///< the box that opened the dialog
    std::int64_t mKeyValue = 0; ///< byte n is the code of key n + 1; byte 3 may hold a number
    std::unique_ptr<Ui::QVKeySetClass> ui;
};
