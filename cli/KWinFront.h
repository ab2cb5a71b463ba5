// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FrontWindow.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QTemporaryFile>
#include <QTimer>
#include <QVariantList>

#include <functional>

/**
 * The window in front according to KWin, on X11 and on Wayland: a script in KWin calls the object
 * that this exports. It is put into each KWin that appears on the bus, and taken out at the end.
 */
class KWinFront final : public FrontWindow, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quorvia.FrontWindow1")

public:
    /** Whether there is a KWin on the bus. */
    static bool isOn(const QDBusConnection& bus);

    explicit KWinFront(QDBusConnection bus);
    ~KWinFront() override;

    /** Loads the script into KWin. */
    void start() override;

    std::optional<FrontApplication> application() override { return mApplication; }

    // For the script alone.
public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): moc reads it
    /** The script runs. */
    Q_SCRIPTABLE void Started();
    /** A window has come to the front. All are strings: scripts have one type of number. */
    Q_SCRIPTABLE void Activated(const QString& desktopEntry, const QString& windowClass,
        const QString& windowName, const QString& processID);

private: // NOLINT(readability-redundant-access-specifiers): moc reads the one before
    using Answer = std::function<void(const QDBusMessage& answer)>;

    bool isFromKWin() const;
    void setOwner(const QString& owner);
    void putIn();
    void load();
    /** @param isNew whether to try the object's path of KWin 6 */
    void run(int script, bool isNew);
    void check();
    void tryAgain(const QString& why);
    QDBusMessage scriptingCall(const char* method) const;
    void ask(const QDBusMessage& call, const Answer& take);

    QDBusConnection mBus;
    QString mOwner; ///< the connection of the present KWin
    QTemporaryFile mScript;
    QTimer mPause; ///< until the next step, unless the script has started
    bool mHasRun = false; ///< it was asked to run
    int mTries = 0;
    std::optional<FrontApplication> mApplication;
};
