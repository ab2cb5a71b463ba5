// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// qvtbltctl: its help and its command line.

#include "Commands.h"
#include "QVEntryText.h"
#include "Result.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace {

constexpr const char* kHelp = R"(Usage: qvtbltctl COMMAND [ARGUMENT ...]
The settings of the Quorvia pen tablet, without a window.

Commands:
  status              print whether there is a driver, a tablet, and a usable file
  doctor [--json]     check everything between the tablet and the panel, and print
                      what to do where something is wrong
  show [--json]       print the last settings that the driver received
  show [--json] FILE  print the settings in a configuration file; - is standard input
  check FILE          print for every entry of a configuration file whether it is usable
  push                send the settings in the tablet's file to the driver
  set ENTRY VALUE     change a setting, for example 'set Pen/PressureThreshold 120':
                      send it to the driver and save the tablet's file
  profile list [--json]
                      print the tablet's profiles and the applications they are for;
                      * marks the current one
  profile use NAME    use the settings of a profile
  profile next        use the next profile
  profile save NAME   save the current settings as a profile
  profile delete NAME
  profile rename NAME NEWNAME
                      delete a profile, or give it another name
  profile import FILE
                      import a profile, and print what it would change; buttons
                      that would start applications get no action
  profile export NAME FILE
                      write a profile to a new file, for others
  follow              use the profile for the application in front, until stopped
  usb-mode fast|normal
                      set the report speed of the tablet over USB
  tablet list [--json]
                      print the tablets that are plugged in
  tablet use ID       use a tablet of that list, now and when it is plugged in again
  tablet notices on|off
                      turn the notices on or off that are shown when a key pauses the
                      pen or moves it to another display
  sim tap X Y         touch a point with the simulated pen, in tablet units,
                      while the panel calibrates

Options:
  -h, --help          print this help
  -v, --version       print the version

Exit code: 0 on success; 1 if there is no driver, no tablet or no usable file, doctor has found a
problem, the output cannot be written, or something else failed; 2 if the command is not valid.
)";

/** Checks what follows a command. */
platform::Result<> checkArguments(const Command& command, const Arguments& arguments)
{
    const QString name = QString::fromLatin1(command.name);
    const auto count = arguments.operands.size();
    constexpr std::array kWithJson{"doctor", "profile", "show", "tablet"};
    if (arguments.asJson && std::ranges::find(kWithJson, name.toStdString()) == kWithJson.end()) {
        return platform::Error{
            QStringLiteral("--json can only be used with doctor, profile, show and tablet")};
    }
    if (count < command.least) {
        return platform::Error{QStringLiteral("missing operand after '%1'")
                                   .arg(count == 0 ? name : arguments.operands.constLast())};
    }
    if (count > command.most) {
        return platform::Error{
            QStringLiteral("extra operand '%1'").arg(arguments.operands[command.most])};
    }
    return {};
}

/**
 * Creates an application object, with displays if a window system is available: the one that the
 * user has chosen, or those of the environment. Otherwise Qt would end the program; "minimal",
 * which is always available, prevents that.
 */
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv, bool needsDisplays)
{
    QByteArray platforms;
    for (const auto& [variable, platform] :
        {std::pair("WAYLAND_DISPLAY", "wayland;"), {"DISPLAY", "xcb;"}}) {
        platforms += qEnvironmentVariableIsEmpty(variable) ? "" : platform;
    }
    if (needsDisplays && !platforms.isEmpty()) {
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
    Arguments arguments;
    QStringList& words = arguments.operands;
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
            arguments.asJson = true;
        } else {
            return usageError(QStringLiteral("there is no option '%1'").arg(argument));
        }
    }
    if (words.isEmpty()) {
        return usageError(QStringLiteral("a command is missing"));
    }
    const QString name = words.takeFirst();
    const Command* const command = findCommand(name);
    if (command == nullptr) {
        return usageError(QStringLiteral("there is no command '%1'").arg(name));
    }
    if (const platform::Result<> usage = checkArguments(*command, arguments); !usage) {
        return usageError(usage.error().text);
    }
    int nameAlone = 1; // operands are not Qt options
    const auto application = makeApplication(nameAlone, argv, command->needsDisplays(arguments));
    return finish(command->run(arguments));
}
