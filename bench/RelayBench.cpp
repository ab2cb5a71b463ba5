// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// How long the driver's input thread keeps a frame of the pen, with pipes in place of the event
// nodes and the virtual devices. QVTBLT_RELAY_SECONDS is how long it is measured; by default ten
// seconds.

#include "RelayOverPipes.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <span>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::microseconds kFrameTime{1000};
constexpr int kPatience = 100; ///< in ms, until a frame counts as lost

/** Floor: a thread that reads the same bytes and writes them. */
class Copier {
public:
    Copier()
        : mThread([this] { run(); })
    {
    }

    ~Copier()
    {
        in.writing.reset(); // ends the reading
        mThread.join();
    }

    Copier(const Copier&) = delete;
    Copier& operator=(const Copier&) = delete;

    Pipe in;
    Pipe out;

private:
    void run() const
    {
        std::array<input_event, 64> events; // NOLINT(cppcoreguidelines-pro-type-member-init)
        ssize_t size = 0;
        while ((size = ::read(in.reading->get(), events.data(), sizeof events)) > 0) {
            [[maybe_unused]] const ssize_t put =
                ::write(out.writing->get(), events.data(), static_cast<std::size_t>(size));
        }
    }

    std::thread mThread;
};

/** Sends a frame with that X. @return in microseconds, how long it took; negative if it was lost */
double wayOf(const Pipe& in, const Pipe& out, std::int32_t x)
{
    const std::array frame{event(EV_KEY, BTN_TOOL_PEN, 1), event(EV_ABS, ABS_X, x),
        event(EV_ABS, ABS_PRESSURE, x % 8000), event(EV_KEY, BTN_TOUCH, 1),
        event(EV_SYN, SYN_REPORT, 0)};
    const Clock::time_point start = Clock::now();
    if (::write(in.writing->get(), frame.data(), sizeof frame) != sizeof frame) {
        return -1;
    }
    pollfd answer{out.reading->get(), POLLIN, 0};
    while (::poll(&answer, 1, kPatience) > 0) {
        std::array<input_event, 64> events; // NOLINT(cppcoreguidelines-pro-type-member-init)
        const ssize_t size = ::read(answer.fd, events.data(), sizeof events);
        const auto took = std::chrono::duration<double, std::micro>(Clock::now() - start);
        const std::span came(
            events.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0)) / sizeof events[0]);
        // A push writes a frame, too, with the former X.
        if (std::ranges::any_of(came, [x](const input_event& one) {
                return one.type == EV_ABS && one.code == ABS_X && one.value == x;
            })) {
            return took.count();
        }
    }
    return -1;
}

double percentile(std::vector<double> values, double part)
{
    const auto at =
        values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

/** A pen with 1000 frames a second, each followed by one for the floor. */
void measure(benchmark::State& state, bool hasStorm)
{
    const char* const wanted = std::getenv("QVTBLT_RELAY_SECONDS");
    const std::chrono::seconds duration(wanted == nullptr ? 10 : std::atoi(wanted));
    RelayOverPipes relay;
    const Copier copier;
    std::atomic<bool> hasEnded = false;
    std::thread storm;
    if (hasStorm) {
        storm = std::thread([&] {
            while (!hasEnded) {
                for (int i = 0; i < 10000; ++i) {
                    relay.push();
                }
                std::this_thread::sleep_for(std::chrono::seconds(1));
            }
        });
    }
    std::vector<double> ours;
    std::vector<double> floors;
    double lost = 0;
    for ([[maybe_unused]] auto _ : state) {
        const Clock::time_point start = Clock::now();
        for (Clock::time_point next = start; next < start + duration; next += kFrameTime) {
            std::this_thread::sleep_until(next);
            // Never the one before, which would not be written again.
            const auto x = static_cast<std::int32_t>(1 + ours.size() % RelayOverPipes::kMax);
            const double took = wayOf(relay.in, relay.out, x);
            lost += took < 0 ? 1 : 0;
            ours.push_back(took);
            floors.push_back(wayOf(copier.in, copier.out, x));
        }
    }
    hasEnded = true;
    if (storm.joinable()) {
        storm.join();
    }
    state.counters["relay_us"] = percentile(ours, 0.5);
    state.counters["relay_p99_us"] = percentile(ours, 0.99);
    state.counters["relay_floor_us"] = percentile(floors, 0.5);
    state.counters["relay_frames"] = static_cast<double>(ours.size());
    state.counters["relay_lost"] = lost;
}

void relay(benchmark::State& state)
{
    measure(state, false);
}
BENCHMARK(relay)->Iterations(1);

/** Every second, ten thousand pushes at once. */
void relayInAStorm(benchmark::State& state)
{
    measure(state, true);
}
BENCHMARK(relayInAStorm)->Iterations(1);

} // namespace

BENCHMARK_MAIN();
