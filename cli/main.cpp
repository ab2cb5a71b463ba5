// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Commands.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr const char* kHelp = R"(Usage: qvtbltctl COMMAND [ARGUMENT ...]
The settings of the Quorvia pen tablet, without a window.

Commands:
  status              say whether there is a driver, a tablet, and a usable file
  show [--json]       print the settings that the driver got last
  show [--json] FILE  print the settings in a configuration file
  check FILE          say of every entry of a configuration file whether it is usable
  push                send the settings in the tablet's file to the driver
  set ENTRY VALUE     change a setting, for instance 'set Pen/PressureThreshold 120':
                      send it to the driver and save the tablet's file
  usb-mode fast|normal
                      tell the tablet on the USB bus how often to report the pen
  sim tap X Y         have the simulated pen touch a point, in tablet units,
                      while the panel calibrates

Options:
  -h, --help          print this text
  -v, --version       print the version

Exit code: 0 when all is well; 1 when there is no driver, no tablet or no usable file;
2 when the command is not understood.
)";

int usageError(const QString& why)
{
    std::fprintf(stderr, "qvtbltctl: %s\nTry 'qvtbltctl --help'.\n", qUtf8Printable(why));
    return kExitUsage;
}

int run(const QStringList& words, bool asJson)
{
    if (words.isEmpty()) {
        return usageError(QStringLiteral("a command is missing"));
    }
    const QString& command = words.constFirst();
    const auto count = words.size() - 1;
    if (asJson && command != QLatin1String("show")) {
        return usageError(QStringLiteral("--json goes with show alone"));
    }
    if (command == QLatin1String("status") && count == 0) {
        return runStatus();
    }
    if (command == QLatin1String("show") && count <= 1) {
        return runShow(words.value(1), asJson);
    }
    if (command == QLatin1String("check") && count == 1) {
        return runCheck(words[1]);
    }
    if (command == QLatin1String("push") && count == 0) {
        return runPush();
    }
    if (command == QLatin1String("set") && count == 2) {
        return runSet(words[1], words[2]);
    }
    if (command == QLatin1String("usb-mode") && count == 1
        && (words[1] == QLatin1String("fast") || words[1] == QLatin1String("normal"))) {
        return runUsbMode(words[1] == QLatin1String("fast"));
    }
    if (command == QLatin1String("sim") && count == 3 && words[1] == QLatin1String("tap")) {
        bool isX = false;
        bool isY = false;
        const ushort x = words[2].toUShort(&isX);
        const ushort y = words[3].toUShort(&isY);
        return isX && isY ? runSimTap(x, y)
                          : usageError(QStringLiteral("a point is two numbers from 0 to 65535"));
    }
    return usageError(QStringLiteral("there is no command '%1'").arg(words.join(QLatin1Char(' '))));
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList words;
    bool asJson = false;
    bool areOptions = true;
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    for (const QString& argument : arguments) {
        bool isNumber = false;
        argument.toLongLong(&isNumber, 0);
        // A negative number is a value, not an option.
        if (!areOptions || isNumber || !argument.startsWith(QLatin1Char('-'))) {
            words.append(argument);
        } else if (argument == QLatin1String("--")) {
            areOptions = false;
        } else if (argument == QLatin1String("-h") || argument == QLatin1String("--help")) {
            std::fputs(kHelp, stdout);
            return kExitGood;
        } else if (argument == QLatin1String("-v") || argument == QLatin1String("--version")) {
            std::puts("qvtbltctl " QVTBLT_VERSION);
            return kExitGood;
        } else if (argument == QLatin1String("--json")) {
            asJson = true;
        } else {
            return usageError(QStringLiteral("there is no option '%1'").arg(argument));
        }
    }
    return run(words, asJson);
}
