// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace platform {

namespace {

/** Owned by its control. */
class WheelGuard final : public QObject {
public:
    explicit WheelGuard(QWidget& control)
        : QObject(&control)
        , mControl(control)
    {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || mControl.hasFocus()) {
            return QObject::eventFilter(watched, event);
        }
        event->ignore(); // so that the parent gets it
        return true;
    }

private:
    const QWidget& mControl;
};

} // namespace

void ignoreWheelWithoutFocus(QWidget& control)
{
    if (control.focusPolicy() == Qt::WheelFocus) {
        control.setFocusPolicy(Qt::StrongFocus);
    }
    new WheelGuard(control); // NOLINT(*-owning-memory): the control owns it
}

} // namespace platform
