// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DisplayWatcher.h"
#include "Driver.h"
#include "KWinMapping.h"
#include "Launcher.h"
#include "Notices.h"
#include "Result.h"
#include "SeatSession.h"
#include "SettingsExchange.h"
#include "TabletMonitor.h"
#include "TabletObject.h"
#include "TabletRelay.h"
#include "VirtualDevices.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

struct TabletNodes;

/** The state of the tablet in use. */
enum class TabletState : std::uint8_t {
    None, ///< none is plugged in
    Attached,
    Calibrating,
    Paused, ///< by a key
    NoPermission, ///< it cannot be opened, as problem() says
    Asleep, ///< the session is locked, not in front, or asleep
};

/**
 * Applies the settings to the tablet in use: opens it, starts its input thread, and does what that
 * thread leaves to the main thread. One tablet is in use at a time.
 */
class TabletController final : public QObject {
    Q_OBJECT

public:
    /**
     * @param driver talks to the panel
     * @param session the user's bus, with the service manager
     * @param system the bus of logind
     */
    TabletController(Driver& driver, const QDBusConnection& session, const QDBusConnection& system);
    ~TabletController() override;

    TabletState state() const;
    /** The tablet in use, for the object on the bus. */
    TabletFacts facts() const;
    /** All that are plugged in. */
    QVTabletList list() const;

    /** Uses a tablet from now on, also when it is plugged in again. @param id as Tablet::id() */
    platform::Result<> use(const QString& id);

    /** Asks whether the input thread, if there is one, still answers; alive() is the answer. */
    void ask();

Q_SIGNALS:
    /** facts() may have changed. */
    void changed();
    /** The answer to ask(). */
    void alive();
    /** A button of the tablet or of its pen is down or up. */
    void buttonChanged(ushort slot, bool isDown);

private:
    /** What belongs to a tablet that is open. */
    struct Open;

    const std::vector<Tablet>& tablets() const { return mMonitor.tablets(); }
    /** Opens the tablet that is to be used, if it is not open yet. */
    void choose();
    platform::Result<> attach(const Tablet& tablet);
    /** Gives the tablet its number and its file. */
    platform::Result<> prepare(const Tablet& tablet, const TabletNodes& nodes);
    /** Lets the tablet go, if it is open. */
    void close();
    void readNotes();
    void obey(const RelayNote& note);
    /** Maps the tablet to the next display, until the area of the settings changes. */
    void goToNextDisplay();
    /** Shows a short notice on the screen, if the user wants that. */
    void notice(const QString& text);
    /** The area of the desktop that the settings map the tablet to. */
    QRectF settingsArea() const;
    /** The one that it is mapped to. */
    QRectF area() const;
    TabletSettings settings() const;
    void publish();
    void setProblem(const QString& problem);

    Driver& mDriver;
    TabletMonitor mMonitor;
    SeatSession mSeat;
    Launcher mLauncher;
    DisplayWatcher mDisplays;
    KWinMapping mKWin;
    Notices mNotices;
    std::optional<Tablet> mTablet;
    std::unique_ptr<Open> mOpen;
    QString mProblem;
    bool mIsGone = false; ///< it has just been unplugged; udev has not reported it yet
    bool mIsBusy = false; ///< another program has it
    bool mIsPaused = false;
    std::uint32_t mDown = 0; ///< buttons that are down, as bits
    /** A display that a button has chosen, and the area of the settings that it replaces. */
    struct Detour {
        QRectF from;
        QRectF to;
    };
    std::optional<Detour> mDetour;
};
