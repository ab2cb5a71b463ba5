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
     * A bundle is a folder named *.app. It counts as a file: entering it chooses it, even in the
     * desktop's own dialog. No other folder can be chosen.
     *
     * @return the chosen file's full path, with links resolved; nothing if the user cancelled
     */
    virtual std::optional<QString> chooseApplication(QWidget* parent) = 0;
};

/** Returns the desktop's panel, or its replacement by a ServiceScope<OpenPanel>. */
OpenPanel& openPanel();

} // namespace platform
