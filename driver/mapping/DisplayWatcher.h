// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Mapping.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <memory>

/**
 * Watches the displays of the user's desktop. When a connection to the window system breaks, its
 * process ends, so a second process has the connection. It runs reportDisplays(), and is restarted
 * whenever it ends, for instance with the desktop.
 */
class DisplayWatcher final : public QObject {
    Q_OBJECT

public:
    /**
     * @param session the user's bus; its service manager knows the desktop's environment
     * @param program runs reportDisplays() with the argument --displays
     */
    DisplayWatcher(QDBusConnection session, QString program, QObject* parent = nullptr);
    ~DisplayWatcher() override;

    /** Watches from now on. */
    void start();
    /** Ends the process; the displays are no longer known. */
    void stop();

    const DesktopReport& desktop() const { return mDesktop; }

Q_SIGNALS:
    /** desktop() has changed. */
    void changed();

private:
    void begin();
    /** @param variables of the desktop, as name=value; none if nobody knows any */
    void launch(const QStringList& variables);
    void read();
    void tryAgainLater();

    QDBusConnection mBus;
    QString mProgram;
    std::unique_ptr<QProcess> mProcess;
    QTimer mPause{this};
    std::chrono::milliseconds mNextPause{};
    QElapsedTimer mSinceLaunch;
    bool mIsWatching = false;
    bool mHasFailed = false; ///< with the environment of this process
    DesktopReport mDesktop;
};
