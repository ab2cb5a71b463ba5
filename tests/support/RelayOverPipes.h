// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "InputEvent.h"
#include "Pipe.h"
#include "TabletRelay.h"

#include <cstdlib>
#include <memory>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>

/** The driver's input thread at work, with pipes in place of the pen and of the virtual devices. */
class RelayOverPipes {
public:
    static constexpr std::int32_t kMax = 30000; ///< of X and Y, which come out as they go in

    RelayOverPipes()
    {
        PenDescription pen;
        pen.x = {0, kMax, 100};
        pen.y = {0, kMax, 100};
        pen.pressure = Axis{0, 8191, 0};
        pen.hasTool = true;
        settings.range = {0, 0, kMax, kMax};
        settings.area = settings.range;
        exchange = std::make_unique<SettingsExchange>(settings);
        relay = std::make_unique<TabletRelay>(
            TabletRelay::Files{in.reading->get(), -1, out.writing->get(), keys.writing->get(),
                keys.writing->get(), notes.writing->get(), wake.get()},
            pen, pen.axes(), PadDescription(), *exchange);
        thread = std::thread([this] { relay->run(); });
        RelayNote note;
        while (note.kind != RelayNote::Kind::Grabbed) {
            if (::read(notes.reading->get(), &note, sizeof note) != sizeof note) {
                std::abort();
            }
        }
    }

    ~RelayOverPipes()
    {
        relay->stop();
        thread.join();
    }

    RelayOverPipes(const RelayOverPipes&) = delete;
    RelayOverPipes& operator=(const RelayOverPipes&) = delete;

    /** A push, as the main thread passes it on. */
    void push()
    {
        exchange->publish(settings);
        relay->wake();
    }

    Pipe in;
    Pipe out;

private:
    TabletSettings settings;
    Pipe keys;
    Pipe notes;
    Descriptor wake{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    std::unique_ptr<SettingsExchange> exchange;
    std::unique_ptr<TabletRelay> relay;
    std::thread thread;
};
