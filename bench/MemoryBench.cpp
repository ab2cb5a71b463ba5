// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// What stays in memory after a hundred thousand pushes, loads and saves.

#include "BenchSession.h"
#include "Client.h"
#include "NoDiagnostics.h"
#include "QVConfigStore.h"
#include "rzkApplication.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

namespace {

constexpr int kTimes = 100'000;

/** Memory of this process that is in the machine, in KiB. */
double resident()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) {
            return std::stod(line.substr(6));
        }
    }
    return 0;
}

template <class Work>
void growth(benchmark::State& state, const Work& work)
{
    // The first hundredth fills caches that stay.
    for (int i = 0; i < kTimes / 100; ++i) {
        work();
    }
    const double before = resident();
    for ([[maybe_unused]] auto _ : state) {
        work();
    }
    state.counters["grown_KiB"] = resident() - before;
}

void memoryOfPushes(benchmark::State& state)
{
    BenchSession& session = benchSession();
    const NoDiagnostics quiet;
    growth(state, [&] {
        ConnectToDriver(GetqvTabletInfo(), kQVRecordSize);
        session.events.finishSends();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
}
BENCHMARK(memoryOfPushes)->Iterations(kTimes);

void memoryOfLoads(benchmark::State& state)
{
    benchSession();
    QVConfigStore store;
    rzkgetQVDevice();
    growth(state, [&] { store.ReadQVConfigPlist(); });
}
BENCHMARK(memoryOfLoads)->Iterations(kTimes);

void memoryOfSaves(benchmark::State& state)
{
    benchSession();
    QVConfigStore store;
    rzkgetQVDevice();
    growth(state, [&] { store.WriteQVConfigPlist(); });
}
BENCHMARK(memoryOfSaves)->Iterations(kTimes);

} // namespace
