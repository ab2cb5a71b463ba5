// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ChoiceSlider.h"

#include "WheelGuard.h"

#include <QAccessibleWidget>

#include <utility>

namespace platform {

namespace {

/** Like the interface of Qt's own slider, except that setting a value is a choice. */
class SliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderInterface(QWidget* slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return slider().value(); }
    void setCurrentValue(const QVariant& value) override
    {
        if (auto* const chooser = qobject_cast<ChoiceSlider*>(object())) {
            chooser->choose(value.toInt());
        }
    }
    QVariant maximumValue() const override { return slider().maximum(); }
    QVariant minimumValue() const override { return slider().minimum(); }
    QVariant minimumStepSize() const override { return slider().singleStep(); }

private:
    const QSlider& slider() const { return *qobject_cast<const QSlider*>(object()); }
};

} // namespace

ChoiceSlider::ChoiceSlider(QWidget* parent)
    : QSlider(parent)
    , Accessible(static_cast<QWidget&>(*this), QAccessible::Slider)
{
    ignoreWheelWithoutFocus(*this);
    // Both are emitted before the value changes, if it does.
    connect(this, &QSlider::actionTriggered, this, &ChoiceSlider::tellUnlessStored);
    connect(this, &QSlider::sliderReleased, this, &ChoiceSlider::tellUnlessStored);
}

void ChoiceSlider::setStored(std::function<bool(int value)> isStored)
{
    mIsStored = std::move(isStored);
}

void ChoiceSlider::choose(int value)
{
    const int before = this->value();
    setValue(value);
    if (this->value() == before) {
        tellUnlessStored();
    }
}

void ChoiceSlider::tellUnlessStored()
{
    const bool staysThere = sliderPosition() == value();
    if (staysThere && mIsStored && !mIsStored(value())) {
        Q_EMIT valueChanged(value());
    }
}

QAccessibleInterface* ChoiceSlider::newInterface()
{
    return new SliderInterface(this); // NOLINT(*-owning-memory): it becomes Qt's
}

} // namespace platform
