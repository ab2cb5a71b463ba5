// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace platform {

/** What kind of alert it is; its picture says so. */
enum class AlertType : std::uint8_t {
    Stop, ///< the user has to decide
    Note,
    Caution, ///< something went wrong
};

/** A button of an alert; what was hit. */
inline constexpr std::int16_t kAlertStdAlertOKButton = 1;
inline constexpr std::int16_t kAlertStdAlertCancelButton = 2;

/** An alert in the desktop's look, with the desktop's words on its buttons. */
struct StandardAlert {
    AlertType type = AlertType::Note;
    QString title{}; ///< of its window
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
     * @param parent the window that it belongs to
     * @return the button that was hit; Escape is Cancel, or OK where that is alone; 0 when the
     * alert went away without an answer, as it does with its parent's window
     */
    virtual std::int16_t runStandardAlert(const StandardAlert& alert, QWidget* parent) = 0;
};

/** The desktop's, or what a ServiceScope<Alerts> has put in their place. */
Alerts& alerts();

} // namespace platform
