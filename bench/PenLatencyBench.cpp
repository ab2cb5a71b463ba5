// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// A pen with a thousand events a second on the real window system: from the event to its pixels.

#include "PenInput.h"
#include "QVDrawView.h"
#include "ResidentMemory.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kSeconds = 10;
constexpr int kRate = 1000;
constexpr int kEvents = kSeconds * kRate;
constexpr QSize kPad(1000, 700);
constexpr int kSampled = 100; ///< one of this many events is checked in the window system

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

/** Records when the events that the pad has taken have been painted. */
class WatchingApplication final : public QApplication {
public:
    using QApplication::QApplication;

    const QObject* pad = nullptr;
    int taken = 0; ///< pen events that have reached the pad
    std::vector<Clock::time_point> shown; ///< when each event was painted
    std::vector<double> busy; ///< milliseconds of CPU time in each second
    Clock::time_point start;

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (mDepth > 0) { // nested in another event, which is timed as a whole
            return noted(receiver, event);
        }
        ++mDepth;
        const auto before = Clock::now();
        const bool result = noted(receiver, event);
        const auto second = static_cast<std::size_t>(milliseconds(before - start) / 1000);
        if (second < busy.size()) {
            busy[second] += milliseconds(Clock::now() - before);
        }
        --mDepth;
        return result;
    }

private:
    bool noted(QObject* receiver, QEvent* event)
    {
        if (receiver == pad && event->type() == QEvent::TabletMove) {
            ++taken;
        }
        const bool isHandingOver = event->type() == QEvent::Timer;
        mHandedOver += isHandingOver ? 1 : 0;
        const bool result = QApplication::notify(receiver, event);
        mHandedOver -= isHandingOver ? 1 : 0;
        // During delivery, all events that have been taken are drawn, and then painted.
        if (mHandedOver > 0 && event->type() == QEvent::UpdateRequest) {
            shown.resize(static_cast<std::size_t>(taken), Clock::now());
        }
        return result;
    }

    int mDepth = 0;
    int mHandedOver = 0;
};

WatchingApplication& watchingApplication()
{
    return *static_cast<WatchingApplication*>(QCoreApplication::instance());
}

/** The position of the stroke at an event: row by row across the pad. */
QPointF placeOf(int event)
{
    constexpr int kAcross = kPad.width() - 80;
    return {40.0 + event % kAcross, 40.0 + 50.0 * (event / kAcross)};
}

void penLatency(benchmark::State& state)
{
    WatchingApplication& application = watchingApplication();
    QWidget window;
    window.resize(kPad);
    QLabel pressure(&window);
    pressure.hide();
    QVDrawView pad(&window);
    pad.setOutlets(&pressure);
    pad.awakeFromNib();
    pad.setAdjustSize(false);
    pad.resize(kPad);
    window.show();
    const auto settle = [] {
        const auto until = Clock::now() + std::chrono::seconds(1);
        while (Clock::now() < until) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        }
    };
    settle();
    application.pad = &pad;
    application.busy.assign(kSeconds, 0);
    PenInput pen(pad, 77);
    pen.press(placeOf(0), 0.5);
    settle();

    std::vector<Clock::time_point> sent(kEvents);
    std::vector<double> sampled;
    double grown = 0;
    for ([[maybe_unused]] auto _ : state) {
        application.taken = 0;
        application.start = Clock::now();
        std::jthread hand([&] {
            for (int i = 0; i < kEvents; ++i) {
                std::this_thread::sleep_until(
                    application.start + std::chrono::microseconds(1000000LL * i / kRate));
                sent[static_cast<std::size_t>(i)] = Clock::now();
                pen.move(placeOf(i + 1), 0.5);
            }
        });
        int nextSample = kSampled;
        while (application.shown.size() < kEvents
            && Clock::now() < application.start + std::chrono::seconds(kSeconds + 5)) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            const auto count = static_cast<int>(application.shown.size());
            if (count >= nextSample) {
                nextSample = count + kSampled;
                const QPoint at = placeOf(count).toPoint();
                const QImage pixel =
                    window.screen()->grabWindow(window.winId(), at.x(), at.y(), 1, 1).toImage();
                const auto seen = Clock::now();
                if (pixel.pixelColor(0, 0) == QColor(Qt::black)) {
                    sampled.push_back(
                        milliseconds(seen - sent[static_cast<std::size_t>(count) - 1]));
                }
            }
            if (grown == 0 && count > kEvents / kSeconds) {
                grown = -residentKiB(); // after the first second, which fills permanent caches
            }
        }
    }
    grown += residentKiB();
    std::vector<double> latencies;
    for (std::size_t i = 0; i < application.shown.size(); ++i) {
        latencies.push_back(milliseconds(application.shown[i] - sent[i]));
    }
    const auto percentile = [](std::vector<double>& values, double part) {
        if (values.empty()) {
            return 0.0;
        }
        std::ranges::sort(values);
        return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
    };
    // In the picture itself, each event has left a mark.
    settle();
    const QImage picture = window.screen()->grabWindow(window.winId()).toImage();
    int lost = kEvents - static_cast<int>(application.shown.size());
    for (int i = 1; i <= kEvents; ++i) {
        lost += picture.pixelColor(placeOf(i).toPoint()) == QColor(Qt::black) ? 0 : 1;
    }
    state.counters["median_ms"] = percentile(latencies, 0.5);
    state.counters["p99_ms"] = percentile(latencies, 0.99);
    state.counters["server_p99_ms"] = percentile(sampled, 0.99);
    state.counters["server_samples"] = static_cast<double>(sampled.size());
    state.counters["lost"] = lost;
    state.counters["grown_KiB"] = grown;
    state.counters["second_us"] = application.busy[1];
    state.counters["last_us"] = application.busy.back();
}
BENCHMARK(penLatency)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    const WatchingApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
