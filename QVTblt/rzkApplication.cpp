// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "rzkApplication.h"

#include "QVDriverProtocol.h"

#include <cstdio>
#include <cstring>
#include <optional>
#include <span>
#include <utility>

tagQVTabletInfo qvTabletInfo{};
std::array<char, kQVListNameSize> pListname{};

namespace {

/**
 * Sends the query.
 *
 * @return the driver's answer, 0 if it cannot be read; nothing without an answer
 */
std::optional<std::int64_t> askDriver()
{
    using namespace platform;
    AppleEvents& service = events();

    AEDesc driver;
    if (service.createDesc(typeApplSignature, bytesOf(kQVDriverSignature), driver) != noErr) {
        return std::nullopt;
    }
    // Only the results of the address and the sending matter. If a step in between fails, the
    // driver rejects the incomplete event.
    AppleEvent query;
    service.createAppleEvent(kAECoreSuite, kAEGetData, driver, query);

    AEDesc keyData;
    AEDesc property;
    service.createDesc(typeLongInteger, QVConfigKeyData(), keyData);
    service.createObjSpecifier(cProperty, AEDesc{}, formPropertyID, std::move(keyData), property);
    service.putParamPtr(query, keyAERequestedType, typeType, bytesOf(typeLongInteger));
    service.putParamDesc(query, keyDirectObject, std::move(property));

    AppleEvent reply;
    if (service.send(query, &reply, kAEWaitReply, kAEHighPriority, kQVDriverTimeOut) != noErr) {
        return std::nullopt;
    }
    std::int64_t answer = 0;
    constexpr std::size_t kAnswerSize = 4;
    service.getParamPtr(reply, keyDirectObject, typeLongInteger,
        std::as_writable_bytes(std::span(&answer, 1)).first(kAnswerSize));
    return answer;
}

} // namespace

std::array<std::byte, sizeof(long)> QVConfigKeyData()
{
    constexpr std::array<platform::FourCharCode, 2> kCodes{kQVConfigProperty, kQVDriverSignature};
    std::array<std::byte, sizeof(long)> data{};
    static_assert(sizeof data <= sizeof kCodes);
    std::memcpy(data.data(), kCodes.data(), sizeof data);
    return data;
}

tagQVTabletInfo* GetqvTabletInfo()
{
    return &qvTabletInfo;
}

char* GetPListName()
{
    return pListname.data();
}

bool GetQVConfigFileName(char* name)
{
    const std::optional<std::int64_t> answer = askDriver();
    if (!answer) {
        return false;
    }
    constexpr std::size_t kLongest = sizeof "65535.plist"; // the room that callers provide
    std::snprintf(name, kLongest, "%ld.plist", static_cast<long>(*answer & 0xFFFF));
    return *answer != 0;
}

bool rzkgetQVDevice()
{
    return GetQVConfigFileName(GetPListName());
}

bool GetQVTabeltDevices()
{
    return askDriver().value_or(0) != 0;
}
