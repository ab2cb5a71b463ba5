// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Fuzz.h"

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace {

/** The original standard error: libFuzzer closes it for everything but finds. */
int finds = STDERR_FILENO;

/** Our own warnings are about bad input. Qt's warnings are about wrong calls. */
void judge(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isOurs =
        context.category != nullptr && std::strncmp(context.category, "org.quorvia.", 12) == 0;
    if (!isOurs && type != QtDebugMsg
        && type != QtInfoMsg
        // From the offscreen platform.
        && !message.startsWith(QLatin1String("This plugin does not support"))) {
        require(false, qUtf8Printable(message));
    }
}

} // namespace

/**
 * Short stacks and a small quarantine: runs are short, and many. The last option keeps Clang 14's
 * leak checker from crashing (https://github.com/google/sanitizers/issues/1322).
 */
extern "C" const char* __asan_default_options() // NOLINT: the sanitizer's name
{
    return "malloc_context_size=8:quarantine_size_mb=16:intercept_tls_get_addr=0";
}

extern "C" const char* __lsan_default_options() // NOLINT: the sanitizer's name
{
    return "print_suppressions=0";
}

/** Leaks of libraries that we cannot fix. */
extern "C" const char* __lsan_default_suppressions() // NOLINT: the sanitizer's name
{
    // Fontconfig keeps the patterns of fonts that Qt has looked up until the process ends.
    return "leak:libfontconfig.so\n";
}

void startApplication(int* argc, char*** argv)
{
    finds = ::dup(STDERR_FILENO);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(QStringLiteral("Windows")); // has the least to draw
    // Never deleted, since libFuzzer exits without returning to main().
    static const auto* const application = new QApplication(*argc, *argv);
    static_cast<void>(application);
    qInstallMessageHandler(judge);
}

void require(bool condition, const char* what)
{
    if (!condition) {
        ::dprintf(finds, "NOT TRUE: %s\n", what);
        std::abort();
    }
}

void putFile(const QString& path, std::span<const std::uint8_t> bytes)
{
    std::FILE* const file = std::fopen(QFile::encodeName(path).constData(), "wb");
    require(file != nullptr, "the file can be written");
    const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), file);
    require(std::fclose(file) == 0 && written == bytes.size(), "the file is written");
}
