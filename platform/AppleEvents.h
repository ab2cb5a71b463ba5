// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <variant>
#include <vector>

/**
 * @file
 * Events between applications: descriptors, events, sending and handling.
 *
 * Descriptors, lists, records and events are values: what they hold goes with them. Every step
 * answers an OSErr, and a service that a test puts in place can make each step fail. Everything
 * runs on the main thread.
 */
namespace platform {

/** Result of a step; 0 is success. */
using OSErr = std::int16_t;

inline constexpr OSErr noErr = 0;
inline constexpr OSErr procNotFound = -600; ///< the addressed application is not running
inline constexpr OSErr connectionInvalid = -609; ///< there is no way to the application
inline constexpr OSErr errAECoercionFail = -1700; ///< data of another type or form
inline constexpr OSErr errAEDescNotFound = -1701; ///< no such parameter
inline constexpr OSErr errAEEventNotHandled = -1708; ///< nobody handles the event
inline constexpr OSErr errAETimeout = -1712; ///< no answer in time
inline constexpr OSErr errAEHandlerNotFound = -1717; ///< no such handler is installed

/** Four characters in 32 bits, the first in the most significant byte. */
using FourCharCode = std::uint32_t;
using DescType = FourCharCode;
using AEKeyword = FourCharCode;
using AEEventClass = FourCharCode;
using AEEventID = FourCharCode;

/** The code of four ASCII characters: fourCharCode("core") is 0x636F7265. */
consteval FourCharCode fourCharCode(const char (&text)[5]) // NOLINT(*-avoid-c-arrays): a literal
{
    FourCharCode code = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        code = code << 8U | static_cast<unsigned char>(text[i]);
    }
    return code;
}

/** The code as people write it: its characters in single quotes, others than ASCII as "?". */
QByteArray quoted(FourCharCode code);

inline constexpr DescType typeNull = fourCharCode("null"); ///< no data
inline constexpr DescType typeType = fourCharCode("type"); ///< a four-character code
inline constexpr DescType typeEnumerated = fourCharCode("enum"); ///< a four-character code
inline constexpr DescType typeLongInteger = fourCharCode("long"); ///< 32-bit signed integer
inline constexpr DescType typeUTF8Text = fourCharCode("utf8");
inline constexpr DescType typeAEList = fourCharCode("list"); ///< descriptors in their order
inline constexpr DescType typeObjectSpecifier = fourCharCode("obj "); ///< a record, see below
inline constexpr DescType typeApplSignature = fourCharCode("sign"); ///< address: a signature
inline constexpr DescType typeBusName = fourCharCode("busn"); ///< address: a D-Bus name

inline constexpr AEKeyword keyDirectObject = fourCharCode("----");
inline constexpr AEKeyword keyAERequestedType = fourCharCode("rtyp");
inline constexpr AEKeyword keyErrorString = fourCharCode("errs"); ///< why an event was refused

/** The entries of an object specifier, in this order. */
inline constexpr AEKeyword keyAEDesiredClass = fourCharCode("want");
inline constexpr AEKeyword keyAEKeyForm = fourCharCode("form");
inline constexpr AEKeyword keyAEKeyData = fourCharCode("seld");
inline constexpr AEKeyword keyAEContainer = fourCharCode("from");

inline constexpr DescType cProperty = fourCharCode("prop");
inline constexpr DescType formPropertyID = fourCharCode("prop");

inline constexpr AEEventClass kAECoreSuite = fourCharCode("core");
inline constexpr AEEventID kAEGetData = fourCharCode("getd");

using AESendMode = std::int32_t;
inline constexpr AESendMode kAEWaitReply = 3;

using AESendPriority = std::int16_t;
inline constexpr AESendPriority kAEHighPriority = 1;

/** Ticks in one second. */
inline constexpr std::int32_t kTicksPerSecond = 60;

/**
 * Notifications, without an object: the application whose events are accepted has come, or says
 * that it would now answer otherwise; an event that was sent without a reply was taken, or was not.
 */
inline constexpr QLatin1String kSourceChangedNotification("kSourceChangedNotification");
inline constexpr QLatin1String kEventTakenNotification("kEventTakenNotification");
inline constexpr QLatin1String kEventNotTakenNotification("kEventNotTakenNotification");

struct AEDesc;
struct AEKeyDesc;
using AEList = std::vector<AEDesc>;
using AERecord = std::vector<AEKeyDesc>;

/** A typed piece of data: bytes in host order, a list, or a record. */
struct AEDesc {
    DescType type = typeNull;
    std::variant<QByteArray, AEList, AERecord> data;

    /** The bytes; null for a list or a record. */
    const QByteArray* bytes() const { return std::get_if<QByteArray>(&data); }
};

/** A descriptor under a keyword. */
struct AEKeyDesc {
    AEKeyword keyword = 0;
    AEDesc desc;
};

/** The first descriptor under the keyword; null where there is none. */
const AEDesc* find(const AERecord& record, AEKeyword keyword);

/** An event or a reply. */
struct AppleEvent {
    AEEventClass eventClass = 0;
    AEEventID eventID = 0;
    AEDesc address; ///< of an event to send: the receiver; of one that arrived: the sender
    AERecord parameters;
};

/** Bytes of a plain value, as they lie in memory. */
template <class Value>
std::span<const std::byte> bytesOf(const Value& value)
{
    return std::as_bytes(std::span(&value, 1));
}

/** The service. Steps that only make or read values work without a connection. */
class AppleEvents {
public:
    /**
     * Handles one event. An error goes back to the sender; a text under keyErrorString of the reply
     * then says why.
     *
     * The sender has its answer when the handler returns. Where a handler runs the event loop, as
     * for an alert, the sender has it from then on: the reply as it is at that moment, and no
     * error.
     */
    using Handler = std::function<OSErr(const AppleEvent& event, AppleEvent& reply)>;

    virtual ~AppleEvents() = default;

    /** Makes a descriptor of plain data, an address among them. */
    virtual OSErr createDesc(DescType type, std::span<const std::byte> data, AEDesc& result);

    /** Makes an event without parameters. */
    virtual OSErr createAppleEvent(
        AEEventClass eventClass, AEEventID eventID, const AEDesc& target, AppleEvent& result);

    /** Makes an object specifier; takes its inputs. */
    virtual OSErr createObjSpecifier(
        DescType desiredClass, AEDesc container, DescType keyForm, AEDesc keyData, AEDesc& result);

    virtual OSErr putParamDesc(AppleEvent& event, AEKeyword keyword, AEDesc desc);
    virtual OSErr putParamPtr(
        AppleEvent& event, AEKeyword keyword, DescType type, std::span<const std::byte> data);

    /**
     * Copies a parameter's bytes, at most as many as the buffer holds. A parameter of another type
     * than the wanted one is errAECoercionFail; the buffer is then left alone.
     */
    virtual OSErr getParamPtr(const AppleEvent& event, AEKeyword keyword, DescType wanted,
        std::span<std::byte> buffer) const;

    /**
     * Sends the event.
     *
     * With a reply to fill, waits for it without running the user interface, for at most the
     * time-out. Without one, the event is queued behind those sent before, the caller goes on at
     * once, and the time-out only bounds the call on the bus; what became of it shows in
     * finishSends(), and is posted as a notification.
     *
     * @param timeOut in ticks
     */
    virtual OSErr send(const AppleEvent& event, AppleEvent* reply, AESendMode mode,
        AESendPriority priority, std::int32_t timeOut) = 0;

    /**
     * Waits until every event sent without a reply has been answered or has timed out.
     *
     * @return the error of the latest one that failed since the last call
     */
    virtual OSErr finishSends() = 0;

    /** Installing again replaces the previous handler. */
    virtual OSErr installEventHandler(
        AEEventClass eventClass, AEEventID eventID, Handler handler) = 0;
    virtual OSErr removeEventHandler(AEEventClass eventClass, AEEventID eventID) = 0;

    /**
     * Lets the application with that signature, and nobody else, send events to this process. Until
     * then everybody is refused.
     */
    virtual void acceptEventsFrom(FourCharCode signature) = 0;
};

/** The session's events, or what a ServiceScope<AppleEvents> has put in their place. */
AppleEvents& events();

} // namespace platform
