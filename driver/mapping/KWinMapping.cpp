// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "KWinMapping.h"

#include "BusNames.h"
#include "LivingBus.h"
#include "VirtualDevices.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr QLatin1String kKWin("org.kde.KWin");
constexpr QLatin1String kDevicesPath("/org/kde/KWin/InputDevice");
constexpr QLatin1String kDeviceManager("org.kde.KWin.InputDeviceManager");
constexpr QLatin1String kDevice("org.kde.KWin.InputDevice");

constexpr QLatin1String kMapToWorkspace("mapToWorkspace");
constexpr QLatin1String kOutputName("outputName");
constexpr QLatin1String kOutputArea("outputArea");

constexpr int kKWinAnswerTime = 5000; ///< milliseconds

const QRectF kAll(0, 0, 1, 1);
// KWin cuts products with sides to whole pixels.
constexpr double kLittle = 1e-6;

QDBusMessage propertiesCall(const QString& path, const char* method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        kKWin, path, platform::kBusProperties, QLatin1String(method));
    call << QString(kDevice);
    call.setAutoStartService(false);
    return call;
}

QRectF rectIn(const QVariant& value)
{
    return value.canConvert<QDBusArgument>() ? qdbus_cast<QRectF>(value) : value.toRectF();
}

bool isSame(const QVariant& present, const QVariant& wanted)
{
    if (wanted.userType() != QMetaType::QRectF) {
        return present == wanted;
    }
    const QRectF a = rectIn(present);
    const QRectF b = wanted.toRectF();
    const auto isNear = [](double x, double y) { return std::abs(x - y) < 1e-7; };
    return isNear(a.x(), b.x()) && isNear(a.y(), b.y()) && isNear(a.width(), b.width())
        && isNear(a.height(), b.height());
}

/**
 * All displays, in parts of one of them before the desktop has turned it: KWin turns a point of
 * that display's plane clockwise by its quarter turns.
 */
QRectF areaOf(const QRectF& all, const DesktopDisplay& display)
{
    const QRectF& one = display.bounds;
    const double left = (all.left() - one.left()) / one.width();
    const double right = (one.right() - all.right()) / one.width();
    const double top = (all.top() - one.top()) / one.height();
    const double bottom = (one.bottom() - all.bottom()) / one.height();
    const double width = all.width() / one.width() + kLittle;
    const double height = all.height() / one.height() + kLittle;
    switch (display.turns) {
    case 1:
        return {top, right, height, width};
    case 2:
        return {right, bottom, width, height};
    case 3:
        return {bottom, left, height, width};
    default:
        return {left, top, width, height};
    }
}

/** All displays, in parts of what KWin 6 takes for their size, one point less across and down. */
QRectF areaOfAll(const Desktop& desktop)
{
    const QRectF all = boundsOf(desktop);
    if (all.width() <= 1 || all.height() <= 1) {
        return kAll;
    }
    return {0, 0, all.width() / (all.width() - 1) + kLittle,
        all.height() / (all.height() - 1) + kLittle};
}

} // namespace

KWinSettings kwinSettings(const QVariantMap& present, const Desktop& desktop)
{
    KWinSettings settings;
    // Only properties that this KWin has, and whose values differ.
    const auto want = [&](QLatin1String name, const QVariant& value) {
        if (present.contains(name) && !isSame(present.value(name), value)) {
            settings.changes.insert(name, value);
        }
    };
    if (present.contains(kMapToWorkspace)) {
        want(kMapToWorkspace, true);
        want(kOutputArea, areaOfAll(desktop));
    } else if (!desktop.empty()) {
        const auto upright = std::ranges::find(desktop, 0, &DesktopDisplay::turns);
        const DesktopDisplay& display = upright == desktop.end() ? desktop.front() : *upright;
        want(kOutputName, display.name);
        want(kOutputArea, areaOf(boundsOf(desktop), display));
        settings.turns = display.turns;
    }
    // The panel has settings for these, or none; twice would be wrong.
    want(QLatin1String("leftHanded"), false);
    want(QLatin1String("orientationDBus"), 0);
    want(QLatin1String("rotation"), 0U);
    want(QLatin1String("tabletToolIsRelative"), false);
    want(QLatin1String("inputArea"), kAll);
    want(QLatin1String("pressureRangeMin"), 0.0);
    want(QLatin1String("pressureRangeMax"), 1.0);
    const auto wantDefault = [&](const char* name, const char* defaultName) {
        if (const QVariant value = present.value(QLatin1String(defaultName)); value.isValid()) {
            want(QLatin1String(name), value);
        }
    };
    wantDefault("calibrationMatrix", "defaultCalibrationMatrix");
    wantDefault("pressureCurve", "defaultPressureCurve");
    return settings;
}

KWinMapping::KWinMapping(QDBusConnection session, QObject* parent)
    : QObject(parent)
    , mBus(std::move(session))
{
    if (!mBus.isConnected()) {
        return;
    }
    mBus.connect(kKWin, kDevicesPath, kDeviceManager, QStringLiteral("deviceAdded"), this,
        SLOT(takeDevice(QString)));
    auto* const watcher = new QDBusServiceWatcher(kKWin, mBus,
        QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration,
        this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &KWinMapping::apply);
    // The next desktop may have the same displays, so that nothing else would report it.
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setTurns(0); });
    connect(&mFile, &QFileSystemWatcher::directoryChanged, this, &KWinMapping::watchFile);
    connect(&mFile, &QFileSystemWatcher::fileChanged, this, [this] {
        watchFile(); // before it changes once more
        apply();
    });
}

void KWinMapping::setPen(const QString& node)
{
    mPen = node;
    apply();
}

void KWinMapping::setDesktop(const Desktop& desktop)
{
    mDesktop = desktop;
    apply();
}

void KWinMapping::takeDevice(const QString& node)
{
    if (node == mPen) {
        apply();
    }
}

void KWinMapping::apply()
{
    if (mPen.isEmpty() || !mBus.isConnected()) {
        return;
    }
    if (std::exchange(mIsAsking, true)) {
        mIsToAskAgain = true;
        return;
    }
    const QString path = kDevicesPath + QLatin1Char('/') + mPen;
    auto* const answer = new QDBusPendingCallWatcher(
        mBus.asyncCall(propertiesCall(path, "GetAll"), kKWinAnswerTime), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [=, this] {
        answer->deleteLater();
        mIsAsking = false;
        if (std::exchange(mIsToAskAgain, false)) {
            apply();
            return;
        }
        const QDBusPendingReply<QVariantMap> reply = *answer;
        if (reply.isValid()) {
            set(path, reply.value());
        } else if (platform::isUnanswered(reply.error())) {
            apply(); // it is busy
        } else {
            setTurns(0); // it is gone, or does not know the pen yet
        }
    });
}

void KWinMapping::set(const QString& path, const QVariantMap& present)
{
    // The node of a pen that is gone may be another device's by now.
    if (present.value(QStringLiteral("name")).toString() != QLatin1String(kVirtualPenName)) {
        return;
    }
    const KWinSettings settings = kwinSettings(present, mDesktop);
    for (auto change = settings.changes.begin(); change != settings.changes.end(); ++change) {
        QDBusMessage call = propertiesCall(path, "Set");
        call << change.key() << QVariant::fromValue(QDBusVariant(change.value()));
        auto* const answer =
            new QDBusPendingCallWatcher(mBus.asyncCall(call, kKWinAnswerTime), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            answer->deleteLater();
            watchFile(); // KWin may have made the folder only now
        });
    }
    watchFile();
    setTurns(settings.turns);
}

void KWinMapping::setTurns(int turns)
{
    if (std::exchange(mTurns, turns) != turns) {
        Q_EMIT changed();
    }
}

void KWinMapping::watchFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QString file = folder + QStringLiteral("/kcminputrc");
    // A file that was replaced or deleted is no longer watched.
    if (!mFile.files().isEmpty()) {
        return;
    }
    mFile.addPath(folder); // first, so that a file that appears now is noticed
    if (QFile::exists(file) && mFile.addPath(file)) {
        mFile.removePath(folder);
        apply(); // it may have changed before
    }
}
