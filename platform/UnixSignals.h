// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <initializer_list>

namespace platform {

/**
 * Turns Unix signals into a Qt signal in the event loop, so that a program can save before it ends.
 * One object per process; it handles its signals until the process ends.
 */
class UnixSignals final : public QObject {
    Q_OBJECT

public:
    /** @param numbers such as SIGTERM and SIGINT */
    explicit UnixSignals(std::initializer_list<int> numbers);

Q_SIGNALS:
    void received(int number);
};

} // namespace platform
