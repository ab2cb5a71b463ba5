// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"
#include "Service.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

/**
 * Replaces the session's events for its lifetime: records what would be sent, and can make every
 * step fail.
 */
class FakeEvents final : public platform::AppleEvents {
public:
    FakeEvents()
        : mScope(*this)
    {
    }

    /** The arguments of send(). */
    struct Sent {
        platform::AppleEvent event;
        bool wantsReply;
        platform::AESendMode mode;
        platform::AESendPriority priority;
        std::int32_t timeOut;
    };
    std::vector<Sent> sent;
    std::map<std::pair<platform::AEEventClass, platform::AEEventID>, Handler> handlers;

    platform::OSErr createDescResult = platform::noErr;
    platform::OSErr createEventResult = platform::noErr;
    platform::OSErr createSpecifierResult = platform::noErr;
    platform::OSErr putParamResult = platform::noErr;
    platform::OSErr sendResult = platform::noErr;
    platform::AERecord reply; ///< the reply to a query
    std::function<void()> onSend; ///< called before each event is sent

    platform::OSErr createDesc(
        platform::DescType type, std::span<const std::byte> data, platform::AEDesc& result) override
    {
        return createDescResult == platform::noErr ? AppleEvents::createDesc(type, data, result)
                                                   : createDescResult;
    }
    platform::OSErr createAppleEvent(platform::AEEventClass eventClass, platform::AEEventID eventID,
        const platform::AEDesc& target, platform::AppleEvent& result) override
    {
        return createEventResult == platform::noErr
            ? AppleEvents::createAppleEvent(eventClass, eventID, target, result)
            : createEventResult;
    }
    platform::OSErr createObjSpecifier(platform::DescType desiredClass, platform::AEDesc container,
        platform::DescType keyForm, platform::AEDesc keyData, platform::AEDesc& result) override
    {
        return createSpecifierResult == platform::noErr ? AppleEvents::createObjSpecifier(
                   desiredClass, std::move(container), keyForm, std::move(keyData), result)
                                                        : createSpecifierResult;
    }
    platform::OSErr putParamPtr(platform::AppleEvent& event, platform::AEKeyword keyword,
        platform::DescType type, std::span<const std::byte> data) override
    {
        return putParamResult == platform::noErr
            ? AppleEvents::putParamPtr(event, keyword, type, data)
            : putParamResult;
    }
    platform::OSErr send(const platform::AppleEvent& event, platform::AppleEvent* answer,
        platform::AESendMode mode, platform::AESendPriority priority, std::int32_t timeOut) override
    {
        if (onSend) {
            onSend();
        }
        sent.push_back({event, answer != nullptr, mode, priority, timeOut});
        if (answer != nullptr && sendResult == platform::noErr) {
            answer->parameters = reply;
        }
        return sendResult;
    }
    platform::OSErr finishSends() override { return sendResult; }
    platform::OSErr installEventHandler(
        platform::AEEventClass eventClass, platform::AEEventID eventID, Handler handler) override
    {
        handlers.insert_or_assign({eventClass, eventID}, std::move(handler));
        return platform::noErr;
    }
    platform::OSErr removeEventHandler(
        platform::AEEventClass eventClass, platform::AEEventID eventID) override
    {
        return handlers.erase({eventClass, eventID}) == 1 ? platform::noErr
                                                          : platform::errAEHandlerNotFound;
    }
    void acceptEventsFrom(platform::FourCharCode) override { }

    /** Sets the driver's answer to the query. */
    void answer(platform::DescType type, const QByteArray& bytes)
    {
        reply = {{platform::keyDirectObject, {type, bytes}}};
    }
    void answer(std::int32_t number)
    {
        answer(platform::typeLongInteger,
            {reinterpret_cast<const char*>(&number), static_cast<int>(sizeof number)});
    }

private:
    platform::ServiceScope<platform::AppleEvents> mScope;
};
