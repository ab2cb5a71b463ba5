// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FrontWindow.h"
#include "X11Connection.h"

#include <QByteArray>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdint>
#include <memory>

/**
 * The window in front according to the window manager of an X display, which keeps it in the
 * property _NET_ACTIVE_WINDOW of the root window. When the server ends, lost() is emitted, and this
 * process goes on.
 */
class X11Front final : public FrontWindow {
    Q_OBJECT

public:
    /** Connects to the display in DISPLAY. */
    X11Front();
    ~X11Front() override;

    /** Whether there is a connection. */
    bool isConnected() const { return mConnection.isOpen(); }

    std::optional<FrontApplication> application() override;

private:
    struct Atoms;

    void readEvents();
    std::optional<std::uint32_t> number(
        std::uint32_t window, std::uint32_t atom, std::uint32_t type);
    QByteArray text(std::uint32_t window, std::uint32_t atom);
    bool isPartOfDesktop(std::uint32_t window);

    platform::X11Connection mConnection;
    std::unique_ptr<Atoms> mAtoms;
    std::unique_ptr<QSocketNotifier> mNotifier;
    QTimer mSoon;
};

/** The class and the name in the value of a window's WM_CLASS, which has the name first. */
QStringList namesInClass(const QByteArray& value);
