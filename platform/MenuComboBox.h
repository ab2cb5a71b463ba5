// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace platform {

/**
 * A list that works like a menu: neither the wheel nor a key chooses anything while it is closed,
 * since each choice takes effect at once. A key that would choose opens the list, and moves the
 * selection in there.
 */
class MenuComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit MenuComboBox(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace platform
