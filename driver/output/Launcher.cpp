// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Launcher.h"

#include "BusNames.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <chrono>
#include <utility>

using platform::Error;
using platform::kSystemd;
using platform::kSystemdManager;
using platform::kSystemdPath;
using platform::Result;

namespace {

/** A key that bounces, or that is held by mistake, must not fill the screen. */
constexpr std::chrono::milliseconds kPause{1000};

/** A property of a unit: (sv). */
struct UnitProperty {
    QString name;
    QDBusVariant value;
};

/** One command of a unit: (sasb), the last of which ignores its failure. */
struct UnitCommand {
    QString program;
    QStringList arguments;
    bool mayFail = false;
};

/** An auxiliary unit, of which there are none: (sa(sv)). */
struct AuxiliaryUnit {
    QString name;
    QList<UnitProperty> properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const UnitProperty& property)
{
    argument.beginStructure();
    argument << property.name << property.value;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, UnitProperty& property)
{
    argument.beginStructure();
    argument >> property.name >> property.value;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const UnitCommand& command)
{
    argument.beginStructure();
    argument << command.program << command.arguments << command.mayFail;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, UnitCommand& command)
{
    argument.beginStructure();
    argument >> command.program >> command.arguments >> command.mayFail;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const AuxiliaryUnit& unit)
{
    argument.beginStructure();
    argument << unit.name << unit.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, AuxiliaryUnit& unit)
{
    argument.beginStructure();
    argument >> unit.name >> unit.properties;
    argument.endStructure();
    return argument;
}

} // namespace

Q_DECLARE_METATYPE(UnitProperty)
Q_DECLARE_METATYPE(UnitCommand)
Q_DECLARE_METATYPE(AuxiliaryUnit)

namespace {

/** What starts an application. */
struct StartCommand {
    QStringList words; ///< the program and its arguments
    /** Whether it starts the application and ends, with 0 if the application could be started. */
    bool endsOnceStarted = false;
};

QDBusMessage startMessage(const QString& unit, const QString& path, const StartCommand& command)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        kSystemd, kSystemdPath, kSystemdManager, QStringLiteral("StartTransientUnit"));
    const auto property = [](const char* name, const QVariant& value) {
        return UnitProperty{QString::fromLatin1(name), QDBusVariant(value)};
    };
    const QList<UnitCommand> commands{{command.words.front(), command.words, false}};
    const QList<UnitProperty> properties{
        property("Description", path),
        property("ExecStart", QVariant::fromValue(commands)),
        // It has started when its program has, or when that has ended without an error.
        property(
            "Type", command.endsOnceStarted ? QStringLiteral("forking") : QStringLiteral("exec")),
        // It has ended when all of its processes have.
        property("ExitType", QStringLiteral("cgroup")),
        property("CollectMode", QStringLiteral("inactive-or-failed")),
        property("Slice", QStringLiteral("app.slice")),
    };
    call << unit << QStringLiteral("fail") << QVariant::fromValue(properties)
         << QVariant::fromValue(QList<AuxiliaryUnit>());
    return call;
}

/**
 * The command that starts an application: a desktop entry, an AppImage or another executable, or an
 * application folder, by its absolute path.
 *
 * @return an error that says what is wrong with the path
 */
Result<StartCommand> commandFor(const QString& path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || file.isRelative()) {
        return Error{QStringLiteral("no application is chosen")};
    }
    if (!file.exists()) {
        return Error{QStringLiteral("%1 does not exist").arg(path)};
    }
    if (file.isFile() && path.endsWith(QLatin1String(".desktop"))) {
        const QString gio = QStandardPaths::findExecutable(QStringLiteral("gio"));
        if (gio.isEmpty()) {
            return Error{
                QStringLiteral("the program 'gio', which starts %1, is missing").arg(path)};
        }
        return StartCommand{{gio, QStringLiteral("launch"), path}, true};
    }
    const QFileInfo program(file.isDir() ? QDir(path).filePath(QStringLiteral("AppRun")) : path);
    if (!program.isFile() || !program.isExecutable()) {
        return Error{QStringLiteral("%1 is not an application, or is not executable").arg(path)};
    }
    return StartCommand{{program.filePath()}};
}

/** Starts it for a user without a service manager. @param owner lives as long as failed can be
 * called */
void startWithoutManager(QObject* owner, const StartCommand& command, const QString& path,
    const std::function<void(const QString&)>& failed)
{
    const QString program = command.words.front();
    const QStringList arguments = command.words.mid(1);
    const auto fail = [=](const QString& reason) {
        failed(QStringLiteral("%1 could not be started: %2").arg(path, reason));
    };
    if (!command.endsOnceStarted) {
        QProcess process;
        process.setProgram(program);
        process.setArguments(arguments);
        if (!process.startDetached()) {
            fail(process.errorString());
        }
        return;
    }
    auto* const process = new QProcess(owner);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    QObject::connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), owner,
        [=](int code, QProcess::ExitStatus status) {
            process->deleteLater();
            if (status != QProcess::NormalExit || code != 0) {
                fail(QStringLiteral("%1 has failed").arg(program));
            }
        });
    QObject::connect(process, &QProcess::errorOccurred, owner, [=](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) { // no other signal follows
            process->deleteLater();
            fail(process->errorString());
        }
    });
    process->start(program, arguments);
}

} // namespace

Launcher::Launcher(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , mBus(std::move(bus))
{
    qDBusRegisterMetaType<UnitProperty>();
    qDBusRegisterMetaType<QList<UnitProperty>>();
    qDBusRegisterMetaType<UnitCommand>();
    qDBusRegisterMetaType<QList<UnitCommand>>();
    qDBusRegisterMetaType<AuxiliaryUnit>();
    qDBusRegisterMetaType<QList<AuxiliaryUnit>>();
    mBus.connect(kSystemd, kSystemdPath, kSystemdManager, QStringLiteral("JobRemoved"), this,
        SLOT(jobRemoved(QDBusMessage)));
}

void Launcher::launch(
    int slot, const QString& path, const std::function<void(const QString&)>& failed)
{
    QElapsedTimer& last = mLast[slot];
    if (last.isValid() && !last.hasExpired(kPause.count())) {
        return;
    }
    last.start();
    const Result<StartCommand> command = commandFor(path);
    if (!command) {
        failed(command.error().text);
        return;
    }
    const QString unit = QStringLiteral("app-tdsgdriver-%1-%2.service")
                             .arg(QCoreApplication::applicationPid())
                             .arg(++mCount);
    mStarts[unit] = {path, failed};
    // It reports jobs only to those who ask for it.
    QDBusMessage subscribe = QDBusMessage::createMethodCall(
        kSystemd, kSystemdPath, kSystemdManager, QStringLiteral("Subscribe"));
    subscribe.setAutoStartService(false);
    mBus.asyncCall(subscribe);
    auto* const answer =
        new QDBusPendingCallWatcher(mBus.asyncCall(startMessage(unit, path, *command)), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [=, this] {
        answer->deleteLater();
        const QDBusPendingReply<> reply = *answer;
        if (!reply.isError()) {
            return; // jobRemoved() tells what becomes of it
        }
        mStarts.erase(unit);
        if (reply.error().type() != QDBusError::ServiceUnknown) {
            failed(
                QStringLiteral("%1 could not be started: %2").arg(path, reply.error().message()));
        } else {
            startWithoutManager(this, *command, path, failed);
        }
    });
}

void Launcher::jobRemoved(const QDBusMessage& signal)
{
    const QString unit = signal.arguments().value(2).toString();
    const QString result = signal.arguments().value(3).toString();
    const auto start = mStarts.extract(unit);
    if (!start.empty() && result != QLatin1String("done")) {
        start.mapped().failed(
            QStringLiteral("%1 could not be started; the user's journal has the reason")
                .arg(start.mapped().path));
    }
}
