// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletController.h"

#include "Pipe.h"
#include "TabletNodes.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <limits>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

using platform::Error;
using platform::Result;

namespace {

constexpr std::int32_t kMaxUnits = std::numeric_limits<std::uint16_t>::max();
constexpr std::int32_t kMaxPressure = std::numeric_limits<std::int16_t>::max();

} // namespace

struct TabletController::Open {
    Open(TabletNodes tabletNodes, VirtualDevices virtualDevices, const TabletSettings& settings)
        : nodes(std::move(tabletNodes))
        , devices(std::move(virtualDevices))
        , wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
        , exchange(settings)
        , relay({nodes.penFile->get(), nodes.padFile->get(), devices.pen(), devices.keyboard(),
                    devices.pointer(), notes.writing->get(), wake.get()},
              nodes.pen, virtualAxes(nodes.pen), nodes.pad, exchange)
        , notifier(notes.reading->get(), QSocketNotifier::Read)
    {
    }

    ~Open()
    {
        relay.stop();
        if (thread.joinable()) {
            thread.join();
        }
    }

    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;

    TabletNodes nodes;
    VirtualDevices devices;
    Pipe notes{O_NONBLOCK}; ///< without it, the main thread hears nothing, and the pen still works
    Descriptor wake;
    SettingsExchange exchange;
    TabletRelay relay;
    QSocketNotifier notifier;
    std::thread thread;
};

TabletController::TabletController(
    Driver& driver, const QDBusConnection& session, const QDBusConnection& system)
    : mDriver(driver)
    , mSeat(system)
    , mLauncher(session)
    , mDisplays(session, QCoreApplication::applicationFilePath())
    , mKWin(session)
    , mNotices(session)
{
    const auto tryAgain = [this] {
        if (mTablet && mOpen == nullptr) {
            choose();
        }
    };
    connect(&mMonitor, &TabletMonitor::changed, this, &TabletController::choose);
    connect(&mMonitor, &TabletMonitor::accessChanged, this, tryAgain);
    connect(&mSeat, &SeatSession::changed, this, [this, tryAgain] {
        if (mSeat.isOurs()) {
            tryAgain(); // it could not be opened while the session was in the background
        }
        if (mOpen != nullptr) {
            mOpen->relay.setActive(mSeat.isOurs());
        }
        if (mOpen == nullptr) {
            mSeat.letSleep();
        }
        Q_EMIT changed();
    });
    connect(&mDisplays, &DisplayWatcher::changed, this, [this] {
        if (mDetour && !displayAt(mDisplays.desktop().displays, mDetour->to)) {
            mDetour.reset(); // that display is gone, or elsewhere
        }
        mKWin.setDesktop(mDisplays.desktop().displays);
        publish();
    });
    connect(&mKWin, &KWinMapping::changed, this, &TabletController::publish);
    connect(&driver, &Driver::settingsChanged, this, &TabletController::publish);
    connect(&driver, &Driver::calibratingChanged, this, [this](bool isCalibrating) {
        if (isCalibrating) {
            mDetour.reset(); // what is calibrated is the display that the panel has
        }
        publish();
    });
    choose();
}

TabletController::~TabletController()
{
    close();
}

TabletState TabletController::state() const
{
    if (!mTablet || mIsGone) {
        return TabletState::None;
    }
    if (!mSeat.isOurs()) {
        return TabletState::Asleep;
    }
    if (mOpen == nullptr || mIsBusy) {
        return TabletState::NoPermission;
    }
    if (mDriver.isCalibrating()) {
        return TabletState::Calibrating;
    }
    return mIsPaused ? TabletState::Paused : TabletState::Attached;
}

QVTabletList TabletController::list() const
{
    QVTabletList list;
    for (const Tablet& tablet : tablets()) {
        const bool isInUse = mTablet && tablet.device == mTablet->device;
        QVariantMap entries = isInUse && mOpen != nullptr ? describeTablet(tablet, mOpen->nodes)
                                                          : describeTablet(tablet);
        entries.insert(QStringLiteral("inUse"), isInUse);
        if (isInUse && !mProblem.isEmpty()) {
            entries.insert(QStringLiteral("problem"), mProblem);
        }
        list.append(entries);
    }
    return list;
}

TabletFacts TabletController::facts() const
{
    static constexpr std::array kNames{
        "none", "attached", "calibrating", "paused", "no-permission", "asleep"};
    TabletFacts facts;
    if (mTablet) {
        facts.name = mTablet->name;
        facts.vendorID = mTablet->vendor;
        facts.productID = mDriver.attached();
    }
    facts.state = QString::fromLatin1(kNames.at(static_cast<std::size_t>(state())));
    facts.problem = mProblem;
    return facts;
}

void TabletController::ask()
{
    if (mOpen != nullptr) {
        mOpen->relay.ask();
    } else {
        Q_EMIT alive(); // there is no input thread
    }
}

Result<> TabletController::use(const QString& id)
{
    if (std::ranges::find(tablets(), id, &Tablet::id) == tablets().end()) {
        return Error{QStringLiteral("no tablet with the ID %1 is plugged in").arg(id)};
    }
    mDriver.setChosenTablet(id);
    choose();
    return {};
}

void TabletController::choose()
{
    const std::vector<Tablet>& all = tablets();
    const auto isInUse = [this](const Tablet& tablet) {
        return mTablet && tablet.device == mTablet->device;
    };
    const auto isChosen = [this](const Tablet& tablet) {
        return tablet.id() == mDriver.chosenTablet();
    };
    // The chosen one, and of several with that ID the one in use; else the one in use, or the
    // first.
    auto wanted = std::ranges::find_if(
        all, [&](const Tablet& tablet) { return isChosen(tablet) && isInUse(tablet); });
    if (wanted == all.end()) {
        wanted = std::ranges::find_if(all, isChosen);
    }
    if (wanted == all.end()) {
        wanted = std::ranges::find_if(all, isInUse);
    }
    if (wanted == all.end()) {
        wanted = all.begin();
    }
    const std::optional<Tablet> tablet =
        wanted == all.end() ? std::nullopt : std::optional(*wanted);
    if (tablet == mTablet && mOpen != nullptr) {
        return;
    }
    close();
    mIsGone = false;
    mIsPaused = false;
    if (mTablet != tablet) {
        mTablet = tablet;
        mDriver.detach();
    }
    if (!tablet) {
        mDisplays.stop(); // nobody asks for them
    }
    QString problem;
    if (tablet) {
        if (const Result<> attached = attach(*tablet); !attached) {
            mDriver.detach();
            // Another user's tablet is none of this one's business.
            problem = mSeat.isOurs() ? attached.error().text : QString();
        }
    }
    setProblem(problem);
}

Result<> TabletController::attach(const Tablet& tablet)
{
    Result<TabletNodes> nodes = TabletNodes::open(tablet);
    if (!nodes) {
        return nodes.error();
    }
    Result<VirtualDevices> devices = VirtualDevices::create(nodes->pen);
    if (!devices) {
        return devices.error();
    }
    if (Result<> prepared = prepare(tablet, *nodes); !prepared) {
        return prepared;
    }
    mOpen = std::make_unique<Open>(std::move(*nodes), std::move(*devices), settings());
    connect(&mOpen->notifier, &QSocketNotifier::activated, this, &TabletController::readNotes);
    mOpen->relay.setActive(mSeat.isOurs());
    mOpen->thread = std::thread([relay = &mOpen->relay] { relay->run(); });
    mKWin.setPen(mOpen->devices.penNode());
    mDisplays.start();
    return {};
}

Result<> TabletController::prepare(const Tablet& tablet, const TabletNodes& nodes)
{
    const PenDescription& pen = nodes.pen;
    const Result<std::uint16_t> number =
        mDriver.configNumber(tablet.vendor, tablet.product, tablet.name);
    if (!number) {
        return number.error();
    }
    // The record's units have 16 bits. The virtual pen keeps all of the tablet's.
    const std::int32_t most = std::max(pen.x.range(), pen.y.range());
    const std::int32_t divisor = most / (kMaxUnits + 1) + 1;
    const QByteArray name = tablet.name.toUtf8();
    QVTabletModel model{};
    model.productID = *number;
    model.name = name.constData();
    model.keyNum = static_cast<std::uint16_t>(nodes.pad.keys.size());
    model.scrollNum = static_cast<std::uint16_t>(nodes.pad.strips.size());
    model.tabletXmax = static_cast<std::uint16_t>(pen.x.range() / divisor);
    model.tabletYmax = static_cast<std::uint16_t>(pen.y.range() / divisor);
    model.pressureMax = static_cast<std::uint16_t>(
        std::min(pen.pressure ? pen.pressure->range() : 0, kMaxPressure));
    return mDriver.attachTablet(model, tablet.vendor);
}

void TabletController::close()
{
    mOpen.reset();
    mSeat.letSleep(); // the input thread's word may not have been read
    mKWin.setPen({});
    mDetour.reset();
    mIsBusy = false;
    for (ushort slot = 0; mDown != 0; ++slot, mDown >>= 1U) {
        if ((mDown & 1U) != 0) {
            Q_EMIT buttonChanged(slot, false);
        }
    }
}

void TabletController::readNotes()
{
    RelayNote note;
    while (mOpen != nullptr
        && ::read(mOpen->notes.reading->get(), &note, sizeof note)
            == static_cast<ssize_t>(sizeof note)) {
        obey(note);
    }
}

void TabletController::obey(const RelayNote& note)
{
    switch (note.kind) {
    case RelayNote::Kind::Report:
        mDriver.report(note.report);
        break;
    case RelayNote::Kind::Button:
        if (note.isDown) {
            mDown |= 1U << static_cast<unsigned>(note.slot);
        } else {
            mDown &= ~(1U << static_cast<unsigned>(note.slot));
        }
        Q_EMIT buttonChanged(static_cast<ushort>(note.slot), note.isDown);
        break;
    case RelayNote::Kind::Command:
        if (note.command.kind == Command::Kind::Launch && mSeat.isOurs()) {
            setProblem({}); // of an earlier one
            const auto slot = static_cast<std::size_t>(note.command.value);
            const std::string_view path = QVText(mDriver.settings().Key.SubKey.at(slot).App);
            mLauncher.launch(note.command.value,
                QString::fromUtf8(path.data(), static_cast<int>(path.size())),
                [this](const QString& problem) { setProblem(problem); });
        } else if (note.command.kind == Command::Kind::Pause) {
            mIsPaused = note.command.value != 0;
            notice(mIsPaused
                    //: The user has pressed a key of the tablet that pauses it.
                    ? QCoreApplication::translate("Notices", "The pen is paused")
                    //: The user has pressed that key again.
                    : QCoreApplication::translate("Notices", "The pen works again"));
            Q_EMIT changed();
        } else if (note.command.kind == Command::Kind::NextDisplay) {
            goToNextDisplay();
        }
        break;
    case RelayNote::Kind::Grabbed:
        say(QStringLiteral("%1 obeys the settings").arg(mTablet->name));
        if (std::exchange(mIsBusy, false)) {
            setProblem({});
        }
        break;
    case RelayNote::Kind::Released:
        mSeat.letSleep();
        break;
    case RelayNote::Kind::Busy:
        mIsBusy = true;
        setProblem(QStringLiteral("Another program is using %1.").arg(mTablet->name));
        break;
    case RelayNote::Kind::Alive:
        Q_EMIT alive();
        break;
    case RelayNote::Kind::Gone:
        // udev reports this, too, and perhaps that it has come back.
        close();
        mIsGone = true;
        mDriver.detach();
        Q_EMIT changed();
        break;
    case RelayNote::Kind::Failed:
        close();
        mDriver.detach();
        setProblem(QStringLiteral("%1 failed: %2").arg(mTablet->name, qt_error_string(note.error)));
        break;
    }
}

void TabletController::goToNextDisplay()
{
    const Desktop& desktop = mDisplays.desktop().displays;
    const std::optional<std::size_t> next = displayAfter(desktop, area());
    if (next) {
        mDetour = Detour{settingsArea(), desktop[*next].bounds};
        publish();
        //: The pen is now on this display, %1 in the panel's list, with a connector such as DP-1.
        notice(QCoreApplication::translate("Notices", "The pen is on display #%1 (%2)")
                   .arg(*next + 1)
                   .arg(desktop[*next].name));
    }
}

void TabletController::notice(const QString& text)
{
    if (mDriver.showsNotices()) {
        mNotices.show(text);
    }
}

QRectF TabletController::settingsArea() const
{
    const tagQVTabletInfoMonitior& monitor = mDriver.settings().Monitor;
    return {static_cast<double>(monitor.XOrg), static_cast<double>(monitor.YOrg),
        static_cast<double>(monitor.Width), static_cast<double>(monitor.Height)};
}

QRectF TabletController::area() const
{
    return mDetour ? mDetour->to : settingsArea();
}

TabletSettings TabletController::settings() const
{
    TabletSettings settings = decodeSettings(
        mDriver.settings(), targetOf(area(), mDisplays.desktop()), mDriver.isCalibrating());
    settings.desktopTurns = mKWin.turns();
    return settings;
}

void TabletController::publish()
{
    if (mDetour && mDetour->from != settingsArea()) {
        mDetour.reset(); // for good, also if that area comes back
    }
    if (mOpen != nullptr) {
        mOpen->exchange.publish(settings());
        mOpen->relay.wake();
    }
    Q_EMIT changed();
}

void TabletController::setProblem(const QString& problem)
{
    if (!problem.isEmpty() && problem != mProblem) {
        say(problem);
    }
    mProblem = problem;
    Q_EMIT changed();
}
