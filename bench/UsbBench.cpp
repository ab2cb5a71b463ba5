// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Client.h"
#include "EmulatedUsb.h"
#include "NoDiagnostics.h"
#include "Paired.h"
#include "QVTabletModels.h"

#include <libusb.h>

namespace {

constexpr int kDevices = 64;
constexpr int kListings = 200;

/** Searches many devices without a tablet. Floor: libusb lists them. */
void controlUSBDevWithoutTablet(benchmark::State& state)
{
    EmulatedUsb bus;
    for (int number = 2; number < 2 + kDevices; ++number) {
        bus.plug({.number = number, .vendor = 0x1D6B, .product = 2});
    }
    const NoDiagnostics quiet;
    timePaired(
        state, [] { controlUSBDev(kQVReportFast, kQVTabletModels.front().productID); },
        [] {
            libusb_context* context = nullptr;
            libusb_init(&context);
            libusb_device** list = nullptr;
            libusb_get_device_list(context, &list);
            libusb_free_device_list(list, 1);
            libusb_exit(context);
        },
        [] {});
}
BENCHMARK(controlUSBDevWithoutTablet)->Iterations(kListings)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
