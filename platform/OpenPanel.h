// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace platform {

/** The desktop's panel for choosing a file. Main thread only. */
class OpenPanel {
public:
    virtual ~OpenPanel() = default;

    /**
     * Lets the user choose one application: a desktop entry, an AppImage or an application bundle.
     * Starts in the folder of installed applications and runs until the user is done.
     *
     * A bundle is a folder named *.app. It counts as one file: to enter it is to choose it, also in
     * the desktop's own dialog. No other folder can be chosen.
     *
     * @return the chosen file's full path, links followed; nothing when the user chose none
     */
    virtual std::optional<QString> chooseApplication(QWidget* parent) = 0;
};

/** The desktop's panel, or what a ServiceScope<OpenPanel> has put in its place. */
OpenPanel& openPanel();

} // namespace platform
