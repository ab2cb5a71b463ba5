// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"

#include <QSlider>

#include <functional>

namespace platform {

/**
 * A slider for a setting that may be what no slider shows: it stands at its end then, and just that
 * end could not be chosen, since the slider's value would not change. Here a click, a key or a
 * screen reader chooses the value at which the slider stands already, too: where the setting is
 * another, valueChanged() tells it.
 *
 * The wheel does nothing without the focus.
 */
class ChoiceSlider final : public QSlider, public Accessible {
    Q_OBJECT

public:
    explicit ChoiceSlider(QWidget* parent = nullptr);

    /** Connects what says whether a value of the slider's is what the setting is. */
    void setStored(std::function<bool(int value)> isStored);
    /** As setValue(), but the user's choice. */
    void choose(int value);

    QAccessibleInterface* newInterface() override;

private:
    void tellUnlessStored();

    std::function<bool(int value)> mIsStored;
};

} // namespace platform
