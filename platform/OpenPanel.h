// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace platform {

/** The panel for choosing an application. Main thread only. */
class OpenPanel {
public:
    virtual ~OpenPanel() = default;

    /** Says why the caller cannot use an application with that path; empty if it can. */
    using Refusal = std::function<QString(const QString& path)>;

    /**
     * Runs until the user has chosen an application or cancelled: an installed one, or the file of
     * any other (a desktop entry, an AppImage or an application bundle). An application that the
     * caller cannot use is refused, with the reason.
     *
     * A bundle is a folder named *.app. It counts as a file: entering it chooses it, even in the
     * desktop's own dialog. No other folder can be chosen.
     *
     * @return the chosen file's full path, as lastingPath(); nothing if the user cancelled
     */
    virtual std::optional<QString> chooseApplication(QWidget* parent, const Refusal& refusal) = 0;
};

/** Returns the desktop's panel, or its replacement by a ServiceScope<OpenPanel>. */
OpenPanel& openPanel();

} // namespace platform
