// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Follow.h"

#include "AppleEventWire.h"
#include "Displays.h"
#include "FrontWindow.h"
#include "KWinFront.h"
#include "LivingBus.h"
#include "QVConfigStore.h"
#include "QVDriverProtocol.h"
#include "QVMonitorGeometry.h"
#include "QVPanelObject.h"
#include "QVProfileSwitch.h"
#include "UnixSignals.h"
#include "WindowClasses.h"
#include "X11Front.h"
#include "rzkApplication.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <memory>
#include <vector>

using platform::Error;
using platform::Rect;
using platform::Result;

namespace {

/** Its owner is the process that follows. */
constexpr QLatin1String kFollowerService("org.quorvia.TabletFollower");

/** So that a window that is in front only for a moment does not change the profile. */
constexpr std::chrono::milliseconds kRestOfWindows{150};
/** A driver that is busy may not answer in time; without one, its start is noticed. */
constexpr std::chrono::milliseconds kFirstPause{1000};
constexpr int kMostTries = 6;
constexpr int kAreaTime = 3000; ///< milliseconds
constexpr int kBusAnswerTime = 1000; ///< milliseconds

/** The names of our own window: of its desktop entry and of its class. */
constexpr std::array kPanelNames{QLatin1String("org.quorvia.qvtblt"), QLatin1String("qvtblt")};

/** Asks a second process for the mapped area. */
std::optional<Rect> askForMappedArea(int number)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationFilePath(),
        {QStringLiteral("mapped-area"), QString::number(number)}, QIODevice::ReadOnly);
    if (!process.waitForFinished(kAreaTime)) {
        process.kill();
        process.waitForFinished();
        return std::nullopt;
    }
    const bool isGood = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isGood ? mappedAreaIn(process.readAllStandardOutput()) : std::nullopt;
}

/** Switches profiles in a process that does not know the displays. */
class FollowedProfiles final : public QVProfileSwitch {
public:
    using QVProfileSwitch::QVProfileSwitch;

    void tellTo(QVPanelObject& panel) { mPanel = &panel; }

protected:
    void map() override
    {
        if (const auto area = askForMappedArea(GetqvTabletInfo()->Monitor.num)) {
            QVSetMappedArea(*GetqvTabletInfo(), *area);
        }
    }

    void changed(bool /*isOther*/) override
    {
        if (mPanel != nullptr) {
            mPanel->tellChanged();
        }
    }

private:
    QVPanelObject* mPanel = nullptr;
};

/** Uses the profile for the application in front, once it has been there for a while. */
class Follower final : public QObject {
    Q_OBJECT

public:
    Follower(QDBusConnection bus, FrontWindow& front)
        : mBus(std::move(bus))
        , mFront(front)
        , mPanel(mProfiles, QVPanelObject::Kind::Follower, mBus)
    {
        mProfiles.tellTo(mPanel);
        mRest.setSingleShot(true);
        mRest.setInterval(kRestOfWindows);
        connect(&mRest, &QTimer::timeout, this, &Follower::follow);
        connect(&mFront, &FrontWindow::changed, this, [this] {
            mTries = 0;
            mRest.start();
        });
        connect(&mFront, &FrontWindow::lost, this, &Follower::endFor);
        mPanel.setRoleHandler([this] { tryAgain(); });
        // A driver or a tablet that was not there before.
        const QString driver = platform::wire::busName(kQVDriverSignature);
        auto* const watcher =
            new QDBusServiceWatcher(driver, mBus, QDBusServiceWatcher::WatchForRegistration, this);
        connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &Follower::tryAgain);
        mBus.connect(driver, QLatin1String(platform::wire::kObjectPath),
            QLatin1String(platform::wire::kInterface),
            QLatin1String(platform::wire::kChangedSignal), this, SLOT(tryAgain()));
        // A panel that has ended a calibration.
        mBus.connect(kQVPanelService, kQVPanelPath, kQVPanelInterface, QStringLiteral("Changed"),
            this, SLOT(tryAgain()));
        mBus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
            QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
            SLOT(endWithoutBus()));
        mAgain.setSingleShot(true);
        connect(&mAgain, &QTimer::timeout, this, &Follower::follow);
        mFront.start();
        mRest.start();
    }

private Q_SLOTS:
    void tryAgain()
    {
        if (mHasFailed) {
            mTries = 0;
            mRest.start();
        }
    }

    void endWithoutBus() { endFor(QStringLiteral("the session bus has ended")); }

private: // NOLINT(readability-redundant-access-specifiers): moc reads the one before
    void follow()
    {
        mAgain.stop();
        const std::optional<FrontApplication> application = mFront.application();
        if (!application || isPanel(*application)) {
            return;
        }
        // This process may have the name before it has heard of it, and must not wait for itself.
        const auto owner = ask<QString>("GetNameOwner", kQVPanelService);
        const QStringList names = application->names + mClasses.entriesFor(application->names);
        std::optional<Result<>> done;
        if (owner.isEmpty() || owner == mBus.baseService()) {
            done = mProfiles.useFor(names);
        } else {
            done = QVAskPanel(mBus, "Follow", {QVariant(names)});
        }
        mHasFailed = !done || !*done;
        if (!mHasFailed) {
            mTries = 0;
        } else if (++mTries < kMostTries) {
            mAgain.start(kFirstPause * (1 << (mTries - 1)));
        }
        if (done) {
            tell(*done);
        }
    }

    /** Whether it is a panel, in which the user chooses what is not to change just for that. */
    bool isPanel(const FrontApplication& application) const
    {
        const bool isNamed = std::ranges::any_of(kPanelNames, [&](QLatin1String name) {
            return application.names.contains(name, Qt::CaseInsensitive);
        });
        if (isNamed || application.processID == 0) {
            return isNamed;
        }
        const auto panels = ask<QStringList>("ListQueuedOwners", kQVPanelService);
        return std::ranges::any_of(panels, [&](const QString& panel) {
            return ask<uint>("GetConnectionUnixProcessID", panel) == application.processID;
        });
    }

    /** Asks the bus itself. */
    template <class Value>
    Value ask(const char* method, const QString& name) const
    {
        return QDBusReply<Value>(
            mBus.call(platform::busCall(method, name), QDBus::Block, kBusAnswerTime))
            .value();
    }

    /** Says once why it fails, and not with every window. */
    void tell(const Result<>& done)
    {
        const QString why = done ? QString() : done.error().text;
        if (std::exchange(mWhy, why) != why && !why.isEmpty()) {
            fail(why);
        }
    }

    static void endFor(const QString& why) { QCoreApplication::exit(fail(why)); }

    QDBusConnection mBus;
    FrontWindow& mFront;
    QVConfigStore mStore;
    FollowedProfiles mProfiles{mStore};
    QVPanelObject mPanel;
    WindowClasses mClasses;
    QTimer mRest;
    QTimer mAgain; ///< after a failure, with pauses that become longer
    int mTries = 0; ///< that have failed
    bool mHasFailed = false;
    QString mWhy;
};

/** Creates what reports the window in front on this desktop. */
Result<std::unique_ptr<FrontWindow>> makeFrontWindow(const QDBusConnection& bus)
{
    if (KWinFront::isOn(bus)) {
        return std::unique_ptr<FrontWindow>(std::make_unique<KWinFront>(bus));
    }
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return Error{QStringLiteral("cannot follow: this Wayland desktop does not tell other "
                                    "programs which window is in front; only KWin's does")};
    }
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        return Error{QStringLiteral("cannot follow: there is no desktop, neither KWin on the "
                                    "session bus nor an X display in DISPLAY")};
    }
    auto front = std::make_unique<X11Front>();
    if (!front->isConnected()) {
        return Error{QStringLiteral("cannot follow: the X display %1 cannot be opened")
                         .arg(qEnvironmentVariable("DISPLAY"))};
    }
    return std::unique_ptr<FrontWindow>(std::move(front));
}

} // namespace

int runFollow(const Arguments& /*none*/)
{
    const platform::UnixSignals signals({SIGTERM, SIGINT, SIGHUP});
    QObject::connect(&signals, &platform::UnixSignals::received, QCoreApplication::instance(),
        &QCoreApplication::quit);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return fail(QStringLiteral("cannot follow: there is no session bus"));
    }
    const Result<std::unique_ptr<FrontWindow>> front = makeFrontWindow(bus);
    if (!front) {
        return fail(front.error().text);
    }
    // Who waits for the name learns that it works.
    const auto asked = bus.interface()->registerService(
        kFollowerService, QDBusConnectionInterface::DontQueueService);
    if (asked.value() != QDBusConnectionInterface::ServiceRegistered) {
        return fail(asked.isValid()
                ? QStringLiteral("another process already follows the application in front")
                : asked.error().message());
    }
    Follower follower(bus, **front);
    return QCoreApplication::exec();
}

int runMappedArea(const Arguments& arguments)
{
    bool isNumber = false;
    const std::int16_t number = arguments.operands[0].toShort(&isNumber);
    if (!isNumber) {
        return usageError(QStringLiteral("'%1' is not a number").arg(arguments.operands[0]));
    }
    tagQVTabletInfo record{};
    record.Monitor.num = number;
    if (!QVMapChosenDisplay(record, platform::displays().activeBounds())) {
        return fail(QStringLiteral("there is no display %1").arg(number));
    }
    const auto& area = record.Monitor;
    std::printf("%d %d %d %d\n", area.XOrg, area.YOrg, area.Width, area.Height);
    return kExitGood;
}

std::optional<Rect> mappedAreaIn(const QByteArray& line)
{
    const QList<QByteArray> words = line.trimmed().split(' ');
    std::vector<double> numbers;
    for (const QByteArray& word : words) {
        bool isNumber = false;
        numbers.push_back(word.toShort(&isNumber)); // as the record's fields
        if (!isNumber) {
            return std::nullopt;
        }
    }
    if (numbers.size() != 4 || numbers[2] <= 0 || numbers[3] <= 0) {
        return std::nullopt;
    }
    return Rect{numbers[0], numbers[1], numbers[2], numbers[3]};
}

#include "Follow.moc"
