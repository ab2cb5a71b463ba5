// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MenuComboBox.h"

/**
 * The list of one button's actions. The number of its slot is its property "tag".
 *
 * Two items show what the user has chosen through them; if their text does not fit, the tooltip
 * shows all of it. A path is elided at its beginning, since its end names the program, keys in
 * their middle.
 */
class QVKeyComboBox final : public platform::MenuComboBox {
    Q_OBJECT

public:
    /** The items, in the order of kActions. */
    enum Item {
        NoAction,
        LeftButton,
        RightButton,
        MiddleButton,
        BackButton,
        Application, ///< its text becomes the application's path
        KeyCombination, ///< its text becomes the combination's keys
        NextDisplay,
        FinePositioning,
        PauseTablet,
    };

    static constexpr int kCommitted = 100; ///< committed() of the first item
    static constexpr int kStored = 256; ///< committed() when the dialog has stored a combination

    explicit QVKeyComboBox(QWidget* parent = nullptr);

    /** The slot, from 0 to 17. */
    int tag() const { return property("tag").toInt(); }

    /** The item to go back to when the user cancels: kCommitted plus its index. */
    int committed() const { return mCommitted; }
    void setCommitted(int committed) { mCommitted = committed; }

    /** Marks the box, as long as its button is pressed on the tablet. */
    void setMarked(bool isMarked);
    bool isMarked() const { return mIsMarked; }

    /** Sets an item's text and selects it. */
    void replaceItem(Item item, const QString& text);

    /**
     * Shows an application's path as the item's text and selects it. Beside it, there are the
     * application's icon and its name, in the tooltip and for screen readers.
     */
    void showApplication(const QString& path, const QString& name, const QIcon& icon);

    /** Whether the item shows that path, with the application's icon and its name. */
    bool showsApplication(const QString& path) const
    {
        return !mApplication.isEmpty() && itemText(Application) == path;
    }

    /** Resets all items to their initial texts, and selects the first. */
    void resetItems();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void describe();

    int mCommitted = kCommitted;
    bool mIsMarked = false;
    QString mApplication; ///< the name of the item's application; empty without one
    QString mDescription; ///< the box's own description, while there is another one
};
