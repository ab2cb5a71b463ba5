// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "AppleEvents.h"

#include "DBusAppleEvents.h"
#include "Service.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace platform {

namespace {

QByteArray toByteArray(std::span<const std::byte> data)
{
    return {reinterpret_cast<const char*>(data.data()), static_cast<int>(data.size())};
}

AEKeyDesc codeEntry(AEKeyword keyword, DescType type, FourCharCode value)
{
    return {keyword, {type, toByteArray(bytesOf(value))}};
}

} // namespace

QByteArray quoted(FourCharCode code)
{
    QByteArray text("'");
    for (int shift = 24; shift >= 0; shift -= 8) {
        const auto c = static_cast<unsigned char>(code >> static_cast<unsigned>(shift));
        text += c >= 0x20 && c < 0x7F ? static_cast<char>(c) : '?';
    }
    return text + '\'';
}

const AEDesc* find(const AERecord& record, AEKeyword keyword)
{
    const auto found = std::ranges::find(record, keyword, &AEKeyDesc::keyword);
    return found == record.end() ? nullptr : &found->desc;
}

OSErr AppleEvents::createDesc(DescType type, std::span<const std::byte> data, AEDesc& result)
{
    result = {type, toByteArray(data)};
    return noErr;
}

OSErr AppleEvents::createAppleEvent(
    AEEventClass eventClass, AEEventID eventID, const AEDesc& target, AppleEvent& result)
{
    result = {eventClass, eventID, target, {}};
    return noErr;
}

OSErr AppleEvents::createObjSpecifier(
    DescType desiredClass, AEDesc container, DescType keyForm, AEDesc keyData, AEDesc& result)
{
    AERecord entries;
    entries.push_back(codeEntry(keyAEDesiredClass, typeType, desiredClass));
    // NOLINTNEXTLINE(readability-suspicious-call-argument): the names are the interface's
    entries.push_back(codeEntry(keyAEKeyForm, typeEnumerated, keyForm));
    entries.push_back({keyAEKeyData, std::move(keyData)});
    entries.push_back({keyAEContainer, std::move(container)});
    result = {typeObjectSpecifier, std::move(entries)};
    return noErr;
}

OSErr AppleEvents::putParamDesc(AppleEvent& event, AEKeyword keyword, AEDesc desc)
{
    event.parameters.push_back({keyword, std::move(desc)});
    return noErr;
}

OSErr AppleEvents::putParamPtr(
    AppleEvent& event, AEKeyword keyword, DescType type, std::span<const std::byte> data)
{
    event.parameters.push_back({keyword, {type, toByteArray(data)}});
    return noErr;
}

OSErr AppleEvents::getParamPtr(
    const AppleEvent& event, AEKeyword keyword, DescType wanted, std::span<std::byte> buffer) const
{
    const AEDesc* const desc = find(event.parameters, keyword);
    if (desc == nullptr) {
        return errAEDescNotFound;
    }
    const QByteArray* const bytes = desc->bytes();
    if (bytes == nullptr || desc->type != wanted) {
        return errAECoercionFail;
    }
    const std::size_t size = std::min(buffer.size(), static_cast<std::size_t>(bytes->size()));
    std::memcpy(buffer.data(), bytes->constData(), size);
    return noErr;
}

AppleEvents& events()
{
    if (AppleEvents* const replaced = ServiceScope<AppleEvents>::current()) {
        return *replaced;
    }
    // The connection must be destroyed before the application object, since it lives on its thread.
    static std::unique_ptr<DBusAppleEvents> service;
    if (!service) {
        service = std::make_unique<DBusAppleEvents>();
        qAddPostRoutine([] { service.reset(); });
    }
    return *service;
}

} // namespace platform
