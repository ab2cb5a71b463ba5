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
 * Descriptors, lists, records and events are values and own their data. Every step returns an
 * OSErr, and a test's replacement service can make each step fail. Main thread only.
 */
namespace platform {

/** Result of a step; 0 is success. */
using OSErr = std::int16_t;

inline constexpr OSErr noErr = 0;
inline constexpr OSErr procNotFound = -600; ///< the addressed application is not running
inline constexpr OSErr connectionInvalid = -609; ///< the application cannot be reached
inline constexpr OSErr errAECoercionFail = -1700; ///< data of a wrong type or form
inline constexpr OSErr errAEDescNotFound = -1701; ///< no such parameter
inline constexpr OSErr errAEEventNotHandled = -1708; ///< there is no handler for the event
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

/** The code in readable form: its characters in single quotes, with "?" for non-ASCII ones. */
QByteArray quoted(FourCharCode code);

inline constexpr DescType typeNull = fourCharCode("null"); ///< no data
inline constexpr DescType typeType = fourCharCode("type"); ///< a four-character code
inline constexpr DescType typeEnumerated = fourCharCode("enum"); ///< a four-character code
inline constexpr DescType typeLongInteger = fourCharCode("long"); ///< 32-bit signed integer
inline constexpr DescType typeUTF8Text = fourCharCode("utf8");
inline constexpr DescType typeAEList = fourCharCode("list"); ///< descriptors in order
inline constexpr DescType typeObjectSpecifier = fourCharCode("obj "); ///< a record, see below
inline constexpr DescType typeApplSignature = fourCharCode("sign"); ///< address: a signature
inline constexpr DescType typeBusName = fourCharCode("busn"); ///< address: a D-Bus name

inline constexpr AEKeyword keyDirectObject = fourCharCode("----");
inline constexpr AEKeyword keyAERequestedType = fourCharCode("rtyp");
inline constexpr AEKeyword keyErrorString = fourCharCode("errs"); ///< why an event was rejected

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
 * Notifications, without an object: the application whose events are accepted has appeared, or its
 * answers have changed; an event that was sent without a reply was accepted, or was not.
 */
inline constexpr QLatin1String kSourceChangedNotification("kSourceChangedNotification");
inline constexpr QLatin1String kEventTakenNotification("kEventTakenNotification");
inline constexpr QLatin1String kEventNotTakenNotification("kEventNotTakenNotification");

/** Notification, without an object: a signal of acceptSignal() has arrived; with its arguments. */
inline constexpr QLatin1String kSourceSignalNotification("kSourceSignalNotification");

struct AEDesc;
struct AEKeyDesc;
using AEList = std::vector<AEDesc>;
using AERecord = std::vector<AEKeyDesc>;

/** A typed piece of data: bytes in host order, a list, or a record. */
struct AEDesc {
    DescType type = typeNull;
    std::variant<QByteArray, AEList, AERecord> data;

    /** Returns the bytes; null for a list or a record. */
    const QByteArray* bytes() const { return std::get_if<QByteArray>(&data); }
};

/** A descriptor under a keyword. */
struct AEKeyDesc {
    AEKeyword keyword = 0;
    AEDesc desc;
};

/** Returns the first descriptor with the keyword; null if there is none. */
const AEDesc* find(const AERecord& record, AEKeyword keyword);

/** An event or a reply. */
struct AppleEvent {
    AEEventClass eventClass = 0;
    AEEventID eventID = 0;
    AEDesc address; ///< the receiver of an event to send, the sender of one that arrived
    AERecord parameters;
};

/** The bytes of a plain value, as in memory. */
template <class Value>
std::span<const std::byte> bytesOf(const Value& value)
{
    return std::as_bytes(std::span(&value, 1));
}

/** The service. Steps that only create or read values work without a connection. */
class AppleEvents {
public:
    /**
     * Handles one event. An error is sent back to the sender, with the text of keyErrorString in
     * the reply as the reason.
     *
     * The answer is sent when the handler returns. If a handler runs the event loop, such as for an
     * alert, it is sent then: the reply as it is at that moment, and no error.
     */
    using Handler = std::function<OSErr(const AppleEvent& event, AppleEvent& reply)>;

    virtual ~AppleEvents() = default;

    /** Creates a descriptor of plain data, such as an address. */
    virtual OSErr createDesc(DescType type, std::span<const std::byte> data, AEDesc& result);

    /** Creates an event without parameters. */
    virtual OSErr createAppleEvent(
        AEEventClass eventClass, AEEventID eventID, const AEDesc& target, AppleEvent& result);

    /** Creates an object specifier; consumes its inputs. */
    virtual OSErr createObjSpecifier(
        DescType desiredClass, AEDesc container, DescType keyForm, AEDesc keyData, AEDesc& result);

    /** Adds a parameter: a descriptor, or plain data with its type. */
    virtual OSErr putParamDesc(AppleEvent& event, AEKeyword keyword, AEDesc desc);
    virtual OSErr putParamPtr(
        AppleEvent& event, AEKeyword keyword, DescType type, std::span<const std::byte> data);

    /**
     * Copies a parameter's bytes, up to the buffer's size. A parameter of a different type gives
     * errAECoercionFail, and the buffer is not changed.
     */
    virtual OSErr getParamPtr(const AppleEvent& event, AEKeyword keyword, DescType wanted,
        std::span<std::byte> buffer) const;

    /**
     * Sends the event.
     *
     * With a reply to fill, waits for it up to the time-out, without running the event loop.
     * Without one, queues the event behind those sent before and returns at once; the time-out then
     * only limits the call on the bus, and the outcome is reported by finishSends() and a
     * notification.
     *
     * @param timeOut in ticks
     */
    virtual OSErr send(const AppleEvent& event, AppleEvent* reply, AESendMode mode,
        AESendPriority priority, std::int32_t timeOut) = 0;

    /**
     * Waits until every event sent without a reply has been answered or has timed out.
     *
     * @return the latest error since the last call
     */
    virtual OSErr finishSends() = 0;

    /** Installs a handler, replacing the previous one. */
    virtual OSErr installEventHandler(
        AEEventClass eventClass, AEEventID eventID, Handler handler) = 0;
    /** Removes a handler; errAEHandlerNotFound if there is none. */
    virtual OSErr removeEventHandler(AEEventClass eventClass, AEEventID eventID) = 0;

    /**
     * Accepts events only from the application with that signature. Before this call, all events
     * are rejected.
     */
    virtual void acceptEventsFrom(FourCharCode signature) = 0;

    /**
     * Posts a notification for each signal with that name of one of the same application's objects,
     * and none from others. To be called before acceptEventsFrom().
     */
    virtual void acceptSignal(
        const QString& /*object*/, const QString& /*interface*/, const QString& /*name*/)
    {
    }
};

/** Returns the session's events, or their replacement by a ServiceScope<AppleEvents>. */
AppleEvents& events();

} // namespace platform
