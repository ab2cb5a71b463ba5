// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Client.h"

#include "rzkApplication.h"

#include <cstdio>
#include <span>

namespace {

/** The settings event: the class is the driver's signature. */
constexpr platform::AEEventID kSettingsEvent = platform::fourCharCode("WSnd");
constexpr platform::AEKeyword kSettingsData = platform::fourCharCode("data");

} // namespace

bool ConnectToDriver(const void* record, std::int32_t length)
{
    using namespace platform;
    AppleEvents& service = events();
    const auto* const bytes = static_cast<const unsigned char*>(record);
    std::fprintf(
        stderr, "ConnectToDriver %x %d %d %d\n", bytes[318], bytes[319], bytes[320], bytes[321]);

    AEDesc driver;
    if (service.createDesc(typeApplSignature, bytesOf(kQVDriverSignature), driver) != noErr) {
        std::fputs("ConnectToDriver fail\n", stderr);
        return false;
    }
    AppleEvent settings;
    if (service.createAppleEvent(kQVDriverSignature, kSettingsEvent, driver, settings) != noErr) {
        std::fputs("ConnectToDriver fail..\n", stderr);
        return false;
    }
    // The record is binary. The driver expects it under the type of a text.
    const auto data = std::as_bytes(std::span(bytes, static_cast<std::size_t>(length)));
    if (service.putParamPtr(settings, kSettingsData, typeUTF8Text, data) != noErr) {
        std::fputs("ConnectToDriver fail...\n", stderr);
        return false;
    }
    // The push reads no answer: a driver that is gone shows at the next query.
    service.send(settings, nullptr, kAEWaitReply, kAEHighPriority, kQVDriverTimeOut);
    std::fputs("ConnectToDriver ok\n", stderr);
    return true;
}
