// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Displays.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

namespace platform {

/** The sign on one display. */
struct DisplaySign {
    DisplayID display = 0;
    QString number; ///< shown large
    QString text; ///< one line below it, shortened where there is no room for all of it
    QString spoken; ///< both, for screen readers
};

/**
 * Signs on the displays, in windows that let the pointer and the pen through. They disappear after
 * three seconds, with Escape, and when the displays change.
 */
class DisplaySigns final : public QObject {
    Q_OBJECT

public:
    explicit DisplaySigns(QObject* parent = nullptr);
    ~DisplaySigns() override;

    bool areShown() const { return !mWindows.empty(); }
    /** Shows a sign on each of the displays, instead of those that are shown. */
    void show(const std::vector<DisplaySign>& signs);
    void hide();

protected:
    /** Escape, whichever of this program's windows has the keyboard. */
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::vector<std::unique_ptr<QWidget>> mWindows;
    QTimer mEnd;
};

} // namespace platform
