// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"

class QVDrawView;

/** Says in a line what the drawing pad last saw of pen and mouse. */
class QVPenStats final : public platform::LiveLabel {
    Q_OBJECT

public:
    explicit QVPenStats(QWidget* parent = nullptr);

    /** Follows the statistics of a pad, which lives as long. */
    void observe(const QVDrawView& pad);
};
