// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"

class QVDrawView;

/** A line with the last pen or mouse data of the drawing pad. */
class QVPenStats final : public platform::LiveLabel {
    Q_OBJECT

public:
    using LiveLabel::LiveLabel;

    /** Shows the statistics of a pad with the same lifetime. */
    void observe(const QVDrawView& pad);
};
