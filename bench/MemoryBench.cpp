// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Memory growth after a hundred thousand pushes, loads and saves.

#include "BenchSession.h"
#include "Client.h"
#include "NoDiagnostics.h"
#include "QVConfigStore.h"
#include "ResidentMemory.h"
#include "rzkApplication.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace {

constexpr int kTimes = 100'000;

template <class Work>
void growth(benchmark::State& state, const Work& work)
{
    // The first hundredth fills permanent caches.
    for (int i = 0; i < kTimes / 100; ++i) {
        work();
    }
    const double before = residentKiB();
    for ([[maybe_unused]] auto _ : state) {
        work();
    }
    state.counters["grown_KiB"] = residentKiB() - before;
}

void memoryOfPushes(benchmark::State& state)
{
    BenchSession& session = benchSession();
    const NoDiagnostics quiet;
    growth(state, [&] {
        PushQVTabletInfo();
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
