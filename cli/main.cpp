// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Commands.h"
#include "RecordText.h"
#include "Result.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

namespace {

constexpr const char* kHelp = R"(Usage: qvtbltctl COMMAND [ARGUMENT ...]
The settings of the Quorvia pen tablet, without a window.

Commands:
  status              print whether there is a driver, a tablet, and a usable file
  show [--json]       print the last settings that the driver received
  show [--json] FILE  print the settings in a configuration file; - is standard input
  check FILE          print for every entry of a configuration file whether it is usable
  push                send the settings in the tablet's file to the driver
  set ENTRY VALUE     change a setting, for example 'set Pen/PressureThreshold 120':
                      send it to the driver and save the tablet's file
  usb-mode fast|normal
                      set the report speed of the tablet over USB
  sim tap X Y         touch a point with the simulated pen, in tablet units,
                      while the panel calibrates

Options:
  -h, --help          print this help
  -v, --version       print the version

Exit code: 0 on success; 1 if there is no driver, no tablet or no usable file, or the output
cannot be written; 2 if the command is not valid.
)";

int usageError(const QString& why)
{
    std::fprintf(stderr, "qvtbltctl: %s\nTry 'qvtbltctl --help'.\n", qUtf8Printable(why));
    return kExitUsage;
}

/** A command and its number of operands. */
struct Command {
    const char* name;
    int least;
    int most;
};

constexpr std::array<Command, 7> kCommands{{{"status", 0, 0}, {"show", 0, 1}, {"check", 1, 1},
    {"push", 0, 0}, {"set", 2, 2}, {"usb-mode", 1, 1}, {"sim", 3, 3}}};

/** Checks the command line. */
platform::Result<> checkUsage(const QStringList& words, bool asJson)
{
    if (words.isEmpty()) {
        return platform::Error{QStringLiteral("a command is missing")};
    }
    const auto* const command = std::ranges::find_if(
        kCommands, [&](const Command& one) { return words[0] == QLatin1String(one.name); });
    if (command == kCommands.end()) {
        return platform::Error{QStringLiteral("there is no command '%1'").arg(words[0])};
    }
    if (asJson && words[0] != QLatin1String("show")) {
        return platform::Error{QStringLiteral("--json can only be used with show")};
    }
    const auto count = words.size() - 1;
    if (count < command->least) {
        return platform::Error{QStringLiteral("missing operand after '%1'").arg(words.constLast())};
    }
    if (count > command->most) {
        return platform::Error{QStringLiteral("extra operand '%1'").arg(words[command->most + 1])};
    }
    return {};
}

/** The path for a file operand; - is standard input. */
QString fileOf(const QString& operand)
{
    return operand == QLatin1String("-") ? QStringLiteral("/dev/stdin") : operand;
}

int runMode(const QString& mode)
{
    const bool isFast = mode == QLatin1String("fast");
    return isFast || mode == QLatin1String("normal")
        ? runUsbMode(isFast)
        : usageError(QStringLiteral("there is no report mode '%1'").arg(mode));
}

int runSim(const QString& what, const QString& x, const QString& y)
{
    constexpr qint64 kMost = 65535;
    const qint64 left = numberIn(x).value_or(-1);
    const qint64 top = numberIn(y).value_or(-1);
    if (what != QLatin1String("tap")) {
        return usageError(QStringLiteral("the pen cannot '%1'").arg(what));
    }
    return std::min(left, top) >= 0 && std::max(left, top) <= kMost
        ? runSimTap(static_cast<std::uint16_t>(left), static_cast<std::uint16_t>(top))
        : usageError(QStringLiteral("a point is two numbers from 0 to 65535"));
}

int run(const QStringList& words, bool asJson)
{
    const QString& command = words[0];
    if (command == QLatin1String("status")) {
        return runStatus();
    }
    if (command == QLatin1String("show")) {
        return runShow(words.size() > 1 ? std::optional(fileOf(words[1])) : std::nullopt, asJson);
    }
    if (command == QLatin1String("check")) {
        return runCheck(fileOf(words[1]));
    }
    if (command == QLatin1String("push")) {
        return runPush();
    }
    if (command == QLatin1String("set")) {
        return runSet(words[1], words[2]);
    }
    return command == QLatin1String("usb-mode") ? runMode(words[1])
                                                : runSim(words[1], words[2], words[3]);
}

/** Whether a command pushes the tablet's file, which depends on the displays. */
bool needsDisplays(const QString& command)
{
    return command == QLatin1String("push") || command == QLatin1String("set");
}

/**
 * Creates an application object, with displays if a window system is available: the one that the
 * user has chosen, or those of the environment. Otherwise Qt would end the program; "minimal",
 * which is always available, prevents that.
 */
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv, const QString& command)
{
    QByteArray platforms;
    for (const auto& [variable, platform] :
        {std::pair("WAYLAND_DISPLAY", "wayland;"), {"DISPLAY", "xcb;"}}) {
        platforms += qEnvironmentVariableIsEmpty(variable) ? "" : platform;
    }
    if (needsDisplays(command) && !platforms.isEmpty()) {
        const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
        qputenv("QT_QPA_PLATFORM", (chosen.isEmpty() ? platforms : chosen + ';') + "minimal");
        QGuiApplication::setDesktopSettingsAware(false); // nothing is shown
        // A display that cannot be queried need not be reported: the file's area is used then.
        const QtMessageHandler handler =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        auto application = std::make_unique<QGuiApplication>(argc, argv);
        qInstallMessageHandler(handler);
        if (QGuiApplication::platformName() != QLatin1String("minimal")) {
            return application;
        }
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

/** Returns the exit code, after flushing all output. */
int finish(int code)
{
    const bool isWhole = std::ferror(stdout) == 0;
    errno = 0;
    if (std::fflush(stdout) == 0 && isWhole) {
        return code;
    }
    // If an earlier write failed, its cause is no longer known.
    const int cause = errno;
    std::fprintf(stderr, "qvtbltctl: write error%s%s\n", cause == 0 ? "" : ": ",
        cause == 0 ? "" : std::system_category().message(cause).c_str());
    return kExitBad;
}

} // namespace

int main(int argc, char* argv[])
{
    QStringList words;
    bool asJson = false;
    bool areOptions = true;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        // A negative number is a value, not an option.
        if (!areOptions || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1
            || numberIn(argument)) {
            words.append(argument);
        } else if (argument == QLatin1String("--")) {
            areOptions = false;
        } else if (argument == QLatin1String("-h") || argument == QLatin1String("--help")) {
            std::fputs(kHelp, stdout);
            return finish(kExitGood);
        } else if (argument == QLatin1String("-v") || argument == QLatin1String("--version")) {
            std::puts("qvtbltctl " QVTBLT_VERSION);
            return finish(kExitGood);
        } else if (argument == QLatin1String("--json")) {
            asJson = true;
        } else {
            return usageError(QStringLiteral("there is no option '%1'").arg(argument));
        }
    }
    if (const platform::Result<> usage = checkUsage(words, asJson); !usage) {
        return usageError(usage.error().text);
    }
    int nameAlone = 1; // operands are not Qt options
    const auto application = makeApplication(nameAlone, argv, words[0]);
    return finish(run(words, asJson));
}
