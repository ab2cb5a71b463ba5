// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace platform {

/** The kind of an alert, which determines its icon. */
enum class AlertType : std::uint8_t {
    Stop, ///< the user has to make a decision
    Note,
    Caution, ///< something went wrong
};

/** An alert's button, as the result. */
inline constexpr std::int16_t kAlertStdAlertOKButton = 1;
inline constexpr std::int16_t kAlertStdAlertCancelButton = 2;

/** An alert with the desktop's look and button texts. */
struct StandardAlert {
    AlertType type = AlertType::Note;
    QString title{}; ///< title of the window
    QString message{};
    QString explanation{}; ///< below the message; may be empty
    bool hasCancelButton = false; ///< beside OK, which is the default
};

/** The desktop's alerts. Main thread only. */
class Alerts {
public:
    virtual ~Alerts() = default;

    /**
     * Shows the alert and runs until it is answered.
     *
     * @param parent the window that the alert belongs to
     * @return the button that was pressed; Escape is Cancel, or OK without a Cancel button; 0 if
     *     the alert was destroyed without an answer, such as with its parent window
     */
    virtual std::int16_t runStandardAlert(const StandardAlert& alert, QWidget* parent) = 0;
};

/** Returns the desktop's alerts, or their replacement by a ServiceScope<Alerts>. */
Alerts& alerts();

} // namespace platform
