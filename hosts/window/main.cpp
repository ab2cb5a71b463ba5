// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// qvtblt: the panel in a window.

#include "PaneLoader.h"
#include "PaneWindow.h"
#include "QtVersions.h"
#include "UnixSignals.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTranslator>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <span>

namespace {

constexpr int kFailure = 1;

void say(FILE* stream, const QString& text)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(text));
}

/** Whether there is a window system, or the user has selected a platform plug-in. */
bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/** Renders the pane without a tablet: the same program finds none without a bus. */
bool renderWithoutTablet(const QString& folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(
        QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/dev/null"));
    QProcess self;
    self.setProcessEnvironment(environment);
    self.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    self.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--render"), folder});
    return self.waitForFinished() && self.exitStatus() == QProcess::NormalExit
        && self.exitCode() == 0;
}

int render(PaneWindow& window, const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        say(stderr, QStringLiteral("qvtblt: cannot create the folder %1").arg(folder));
        return kFailure;
    }
    const platform::Result<QStringList> files = window.render(folder);
    if (!files) {
        say(stderr, QStringLiteral("qvtblt: ") + files.error().text);
        return kFailure;
    }
    for (const QString& file : *files) {
        say(stdout, file);
    }
    if (window.hasPages() && !renderWithoutTablet(folder)) {
        say(stderr, QStringLiteral("qvtblt: cannot write all pictures into %1").arg(folder));
        return kFailure;
    }
    return 0;
}

/** Loads Qt's own texts, such as those of standard buttons, in the panel's language. */
bool loadQtTexts(QTranslator& translator, const platform::Bundle& panel)
{
    // Qt names its files after locales: zh_CN for zh-Hans. Some exist only for the language.
    const QLocale locale(panel.preferredLocalization());
    return translator.load(
        QStringLiteral("qtbase_") + locale.name(), platform::translationsFolder());
}

} // namespace

int main(int argc, char* argv[])
{
    const std::span<char*> words(argv, static_cast<std::size_t>(argc));
    bool needsDisplay = true;
    for (const char* const word : words.subspan(1)) {
        const std::string_view text(word);
        needsDisplay = needsDisplay && !text.starts_with("--render") && text != "--help"
            && text != "-h" && text != "--version" && text != "-v" && text != "-platform";
    }
    if (needsDisplay && !hasDisplay()) {
        say(stderr,
            QStringLiteral("qvtblt: there is no display to open a window on; --render DIR draws "
                           "the pages into files"));
        return kFailure;
    }
    if (!needsDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }

    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("qvtblt"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QVTBLT_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.quorvia.qvtblt"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(
        QGuiApplication::desktopFileName(), QIcon::fromTheme(QStringLiteral("input-tablet"))));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Settings of the Quorvia pen tablet, in a window."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption renderOption(QStringLiteral("render"),
        QStringLiteral(
            "Render each page, with and without a tablet, to PNG files in DIR and exit."),
        QStringLiteral("DIR"));
    parser.addOption(renderOption);
    parser.process(application);

    const QString modulePath =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(QVTBLT_MODULE_PATH));
    LoadedPane loaded = loadPane(modulePath, QStringLiteral(QVTBLT_RESOURCES_PATH));
    if (!loaded.pane) {
        say(stderr,
            QStringLiteral("qvtblt: cannot load the panel: %1").arg(loaded.pane.error().text));
        return kFailure;
    }
    QTranslator qtTexts;
    if (loadQtTexts(qtTexts, loaded.bundle)) {
        QCoreApplication::installTranslator(&qtTexts);
    }
    PaneWindow window(std::move(*loaded.pane));
    if (parser.isSet(renderOption)) {
        return render(window, parser.value(renderOption));
    }

    // On a signal, leave the pane as if the window had been closed, which saves.
    const platform::UnixSignals signals({SIGTERM, SIGINT, SIGHUP});
    QObject::connect(&signals, &platform::UnixSignals::received, &application, [&] {
        window.unselect();
        QCoreApplication::quit();
    });
    window.select();
    return QApplication::exec();
}
