// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Prints a line for each notification of a display change: "begin" or "end", then the bounds of
// each display, the main one's with a star. The first line, "now", is the initial state.

#include "Displays.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

void print(const char* what)
{
    std::printf("%s", what);
    const platform::Displays& displays = platform::displays();
    const std::uint32_t count = displays.activeDisplayCount().value_or(0);
    for (platform::DisplayID display = 0; display < count; ++display) {
        const platform::Rect bounds = displays.bounds(display);
        std::printf(" %g,%g,%g,%g%s", bounds.x, bounds.y, bounds.width, bounds.height,
            displays.isMain(display) ? "*" : "");
    }
    std::printf("\n");
    std::fflush(stdout);
}

void note(platform::DisplayID display, std::uint32_t flags)
{
    if (display == 0) { // one line for all
        print(flags == platform::kDisplayBeginConfiguration ? "begin" : "end");
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    QObject::connect(&platform::displays(), &platform::Displays::reconfigured, &note);
    print("now");
    return QGuiApplication::exec();
}
