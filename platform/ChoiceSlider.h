// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"

#include <QSlider>

#include <functional>

namespace platform {

/**
 * A slider for a setting that may be out of its range. It then shows the nearest end, which a
 * normal slider could not choose, since its value would not change. Here, a click, a key or a
 * screen reader can choose the current value, too: if the setting differs, valueChanged() is
 * emitted.
 *
 * The wheel does nothing without the focus.
 */
class ChoiceSlider final : public QSlider, public Accessible {
    Q_OBJECT

public:
    explicit ChoiceSlider(QWidget* parent = nullptr);

    /** Sets the function that says whether a value of the slider is that of the setting. */
    void setStored(std::function<bool(int value)> isStored);
    /** Like setValue(), but as the user's choice. */
    void choose(int value);

    QAccessibleInterface* newInterface() override;

private:
    void tellUnlessStored();

    std::function<bool(int value)> mIsStored;
};

} // namespace platform
