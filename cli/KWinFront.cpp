// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "KWinFront.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>

namespace {

constexpr QLatin1String kWindowManager("org.kde.KWin");
constexpr QLatin1String kScriptingPath("/Scripting");
constexpr QLatin1String kScripting("org.kde.kwin.Scripting");
constexpr QLatin1String kScript("org.kde.kwin.Script");
constexpr QLatin1String kPlugin("org.quorvia.qvtbltctl.follow");

constexpr QLatin1String kFrontPath("/org/quorvia/FrontWindow");
constexpr QLatin1String kFrontInterface("org.quorvia.FrontWindow1");

constexpr int kScriptAnswerTime = 5000; ///< milliseconds
constexpr int kScriptEndTime = 1000; ///< milliseconds
constexpr std::chrono::milliseconds kScriptStartTime{1000};
constexpr std::chrono::milliseconds kFirstScriptPause{100};
constexpr std::chrono::milliseconds kLongestScriptPause{5000};
/** A KWin that has just appeared may not know scripts yet. */
constexpr int kTriesToTell = 6;

// KWin 5 has clients, KWin 6 windows. In KWin 5, names are byte arrays. Special windows belong to
// the desktop: its background, its panels and their pop-ups.
constexpr const char* kScriptText = R"(
function text(value) {
    return value === undefined || value === null ? "" : String(value);
}
function tell(window) {
    if (window && !window.specialWindow) {
        callDBus("%1", "%2", "%3", "Activated", text(window.desktopFileName),
            text(window.resourceClass), text(window.resourceName), text(window.pid));
    }
}
callDBus("%1", "%2", "%3", "Started");
(workspace.windowActivated || workspace.clientActivated).connect(tell);
tell(workspace.activeWindow || workspace.activeClient);
)";

/** Where a file stays for as long as the session lasts. */
QString scriptFolder()
{
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QDir::isAbsolutePath(folder) ? folder : QDir::tempPath();
}

} // namespace

bool KWinFront::isOn(const QDBusConnection& bus)
{
    return bus.interface()->isServiceRegistered(kWindowManager);
}

KWinFront::KWinFront(QDBusConnection bus)
    : mBus(std::move(bus))
    , mScript(scriptFolder() + QStringLiteral("/qvtbltctl-XXXXXX.js"))
{
}

void KWinFront::start()
{
    const QByteArray script = QString::fromLatin1(kScriptText)
                                  .arg(mBus.baseService(), kFrontPath, kFrontInterface)
                                  .toUtf8();
    if (!mScript.open() || mScript.write(script) != script.size() || !mScript.flush()) {
        std::fprintf(stderr, "qvtbltctl: cannot write the script for KWin: %s\n",
            qUtf8Printable(mScript.errorString()));
    }
    mScript.close();
    mBus.registerObject(kFrontPath, this, QDBusConnection::ExportScriptableSlots);
    mPause.setSingleShot(true);
    connect(&mPause, &QTimer::timeout, this, &KWinFront::check);
    auto* const watcher = new QDBusServiceWatcher(
        kWindowManager, mBus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString& /*name*/, const QString& /*before*/, const QString& owner) {
            setOwner(owner);
        });
    setOwner(mBus.interface()->serviceOwner(kWindowManager).value());
}

KWinFront::~KWinFront()
{
    if (!mOwner.isEmpty()) {
        QDBusMessage call = scriptingCall("unloadScript");
        call << QString(kPlugin);
        mBus.call(call, QDBus::Block, kScriptEndTime); // so that it is sent
    }
}

bool KWinFront::isFromKWin() const
{
    const bool isIts = !mOwner.isEmpty() && message().service() == mOwner;
    if (!isIts) {
        sendErrorReply(QDBusError::AccessDenied, QStringLiteral("only KWin may call this"));
    }
    return isIts;
}

void KWinFront::Started()
{
    if (isFromKWin()) {
        mPause.stop();
        mTries = 0;
    }
}

void KWinFront::Activated(const QString& desktopEntry, const QString& windowClass,
    const QString& windowName, const QString& processID)
{
    if (isFromKWin()) {
        mApplication = {
            applicationNames({desktopEntry, windowClass, windowName}), processID.toLongLong()};
        Q_EMIT changed();
    }
}

void KWinFront::setOwner(const QString& owner)
{
    if (owner != mOwner) {
        mOwner = owner;
        mTries = 0;
        mPause.stop();
        putIn();
    }
}

void KWinFront::putIn()
{
    if (mOwner.isEmpty()) {
        return;
    }
    mHasRun = false;
    // One that was killed has left its script, which calls nobody.
    QDBusMessage call = scriptingCall("unloadScript");
    call << QString(kPlugin);
    ask(call, [this](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ReplyMessage) {
            load();
        } else {
            tryAgain(answer.errorMessage());
        }
    });
}

void KWinFront::load()
{
    QDBusMessage call = scriptingCall("loadScript");
    call << mScript.fileName() << QString(kPlugin);
    ask(call, [this](const QDBusMessage& answer) {
        const QDBusReply<int> script(answer);
        if (script.isValid() && script.value() >= 0) {
            run(script.value(), true);
        } else {
            tryAgain(answer.errorMessage());
        }
    });
}

void KWinFront::run(int script, bool isNew)
{
    const QString path = isNew ? QStringLiteral("/Scripting/Script%1") : QStringLiteral("/%1");
    const QDBusMessage call =
        QDBusMessage::createMethodCall(mOwner, path.arg(script), kScript, QStringLiteral("run"));
    if (isNew) {
        mHasRun = true;
        mPause.start(kScriptStartTime);
    }
    ask(call, [=, this](const QDBusMessage& answer) {
        if (answer.type() != QDBusMessage::ReplyMessage && isNew) {
            run(script, false);
        }
    });
}

void KWinFront::check()
{
    if (!std::exchange(mHasRun, false)) {
        putIn();
        return;
    }
    // KWin gives a number again that another script still has, and then runs that one. This runs
    // all that do not run yet.
    ask(scriptingCall("start"), [this](const QDBusMessage& answer) {
        tryAgain(answer.type() == QDBusMessage::ReplyMessage
                ? QStringLiteral("its script does not start")
                : answer.errorMessage());
    });
}

void KWinFront::tryAgain(const QString& why)
{
    if (++mTries == kTriesToTell) {
        std::fprintf(stderr, "qvtbltctl: KWin does not report which window is in front: %s\n",
            qUtf8Printable(why));
    }
    mPause.start(std::min(kFirstScriptPause * (1 << std::min(mTries, 6)), kLongestScriptPause));
}

QDBusMessage KWinFront::scriptingCall(const char* method) const
{
    return QDBusMessage::createMethodCall(
        mOwner, kScriptingPath, kScripting, QLatin1String(method));
}

void KWinFront::ask(const QDBusMessage& call, const Answer& take)
{
    auto* const answer = new QDBusPendingCallWatcher(mBus.asyncCall(call, kScriptAnswerTime), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [=, this] {
        answer->deleteLater();
        if (call.service() == mOwner) { // otherwise, there is another KWin by now
            take(answer->reply());
        }
    });
}
