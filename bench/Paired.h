// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <type_traits>
#include <vector>

/**
 * Times an operation alternately with its floor, the minimum that any program would have to do for
 * it, so that a slowdown of the machine affects both. The counters hold the medians in microseconds
 * and their ratio.
 *
 * @param work its end is when it returns, or the time that it returns
 * @param rest called untimed after each, to let pending work finish
 */
template <class Work, class Floor, class Rest>
void timePaired(benchmark::State& state, const Work& work, const Floor& floor, const Rest& rest)
{
    std::vector<double> worked;
    std::vector<double> floored;
    const auto time = [&](const auto& piece, std::vector<double>& times) {
        const auto start = std::chrono::steady_clock::now();
        auto end = start;
        if constexpr (std::is_same_v<decltype(piece()), decltype(end)>) {
            end = piece();
        } else {
            piece();
            end = std::chrono::steady_clock::now();
        }
        const std::chrono::duration<double, std::micro> passed = end - start;
        times.push_back(passed.count());
        rest();
        return passed.count() * 1e-6;
    };
    bool workFirst = false;
    for ([[maybe_unused]] auto _ : state) {
        workFirst = !workFirst;
        if (workFirst) {
            state.SetIterationTime(time(work, worked));
            time(floor, floored);
        } else {
            time(floor, floored);
            state.SetIterationTime(time(work, worked));
        }
    }
    const auto median = [](std::vector<double>& times) {
        const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    };
    const double ours = median(worked);
    const double least = median(floored);
    state.counters["us"] = ours;
    state.counters["floor_us"] = least;
    state.counters["ratio"] = ours / least;
}

/** Number of iterations of a pair. */
inline constexpr int kTurns = 2000;
