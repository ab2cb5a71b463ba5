// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DisplayWatcher.h"

#include "BusNames.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QProcessEnvironment>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kFirstPause{250};
constexpr std::chrono::milliseconds kLongestPause{2000};
/** A process that has lived as long was all right. */
constexpr std::chrono::milliseconds kLongLife{10000};
constexpr int kEnvironmentAnswerTime = 2000; ///< milliseconds
constexpr qint64 kMaxLine = 65536;

/** Any of them leads to a desktop. */
constexpr std::array kDisplayVariables{"WAYLAND_DISPLAY", "DISPLAY"};
/** What Qt chooses its connection to the desktop by, besides. */
constexpr std::array kOtherVariables{
    "XAUTHORITY", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "QT_QPA_PLATFORM"};

/** @param variables as name=value */
QProcessEnvironment environmentOf(const QStringList& variables)
{
    QProcessEnvironment environment;
    for (const QString& variable : variables) {
        const auto equals = variable.indexOf(QLatin1Char('='));
        environment.insert(variable.left(equals), variable.mid(equals + 1));
    }
    return environment;
}

bool hasDisplay(const QProcessEnvironment& environment)
{
    return std::ranges::any_of(kDisplayVariables,
        [&](const char* name) { return environment.contains(QLatin1String(name)); });
}

} // namespace

DisplayWatcher::DisplayWatcher(QDBusConnection session, QString program, QObject* parent)
    : QObject(parent)
    , mBus(std::move(session))
    , mProgram(std::move(program))
{
    mPause.setSingleShot(true);
    connect(&mPause, &QTimer::timeout, this, &DisplayWatcher::begin);
}

DisplayWatcher::~DisplayWatcher()
{
    stop();
}

void DisplayWatcher::start()
{
    if (!std::exchange(mIsWatching, true)) {
        mNextPause = kFirstPause;
        begin();
    }
}

void DisplayWatcher::stop()
{
    mIsWatching = false;
    mPause.stop();
    if (mProcess != nullptr) {
        mProcess->disconnect(this);
        mProcess->kill();
        mProcess->waitForFinished();
        mProcess.reset();
    }
    mDesktop = {};
}

void DisplayWatcher::begin()
{
    if (!mBus.isConnected()) {
        launch({});
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(platform::kSystemd, platform::kSystemdPath,
        platform::kBusProperties, QStringLiteral("Get"));
    call << QString(platform::kSystemdManager) << QStringLiteral("Environment");
    call.setAutoStartService(false);
    auto* const answer =
        new QDBusPendingCallWatcher(mBus.asyncCall(call, kEnvironmentAnswerTime), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        launch(reply.isValid() ? reply.value().variant().toStringList() : QStringList());
    });
}

void DisplayWatcher::launch(const QStringList& variables)
{
    if (!mIsWatching || mProcess != nullptr) {
        return;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QProcessEnvironment desktop = environmentOf(variables);
    // A desktop that has been started again may have another name. A driver that was started by
    // hand on a desktop of its own stays there.
    if (hasDisplay(desktop) && (!hasDisplay(environment) || mHasFailed)) {
        const auto take = [&](const char* name) {
            const QLatin1String variable(name);
            if (desktop.contains(variable)) {
                environment.insert(variable, desktop.value(variable));
            } else {
                environment.remove(variable); // it led to the desktop before
            }
        };
        std::ranges::for_each(kDisplayVariables, take);
        std::ranges::for_each(kOtherVariables, take);
    }
    if (!hasDisplay(environment)) {
        tryAgainLater(); // there is no desktop yet
        return;
    }
    mProcess = std::make_unique<QProcess>();
    mProcess->setProcessEnvironment(environment);
    mProcess->setStandardErrorFile(QProcess::nullDevice());
    connect(mProcess.get(), &QProcess::readyReadStandardOutput, this, &DisplayWatcher::read);
    const auto hasEnded = [this] {
        mHasFailed = true;
        mProcess->disconnect(this);
        mProcess.release()->deleteLater(); // the signal is its own
        tryAgainLater();
    };
    connect(
        mProcess.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, hasEnded);
    connect(
        mProcess.get(), &QProcess::errorOccurred, this, [hasEnded](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                hasEnded(); // no other signal follows
            }
        });
    mSinceLaunch.start();
    mProcess->start(mProgram, {QStringLiteral("--displays")});
}

void DisplayWatcher::read()
{
    while (mProcess->canReadLine()) {
        std::optional<DesktopReport> desktop = reportFrom(mProcess->readLine(kMaxLine));
        if (desktop && *desktop != mDesktop) {
            mDesktop = std::move(*desktop);
            Q_EMIT changed();
        }
    }
}

void DisplayWatcher::tryAgainLater()
{
    if (mSinceLaunch.isValid() && mSinceLaunch.hasExpired(kLongLife.count())) {
        mNextPause = kFirstPause;
    }
    mSinceLaunch.invalidate(); // it counts once
    mPause.start(mNextPause);
    mNextPause = std::min(2 * mNextPause, kLongestPause);
}
