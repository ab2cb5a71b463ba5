// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "BenchSession.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

std::unique_ptr<BenchSession> session;

} // namespace

BenchSession& benchSession()
{
    if (!session) {
        session = std::make_unique<BenchSession>();
    }
    return *session;
}

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    session.reset();
    return 0;
}
