// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "EventMaker.h"

#include "AppleEventWire.h"
#include "QVDriverProtocol.h"
#include "rzkApplication.h"

#include <array>
#include <cstring>
#include <vector>

using namespace platform;

namespace {

constexpr std::array kCodes{typeNull, typeType, typeEnumerated, typeLongInteger, typeUTF8Text,
    typeAEList, typeObjectSpecifier, keyDirectObject, keyAERequestedType, keyAEDesiredClass,
    keyAEKeyForm, keyAEKeyData, keyAEContainer, cProperty, kAECoreSuite, kAEGetData,
    kQVDriverSignature, kQVConfigProperty, kQVSettingsEvent, kQVSettingsData, kQVPenReportType,
    keyErrorString};

/** Deeper than allowed in an event, but less deep than D-Bus allows. */
constexpr int kDeepest = 12;

/** Opens a container within another for its lifetime. */
class Container {
public:
    Container(DBusMessageIter& parent, int type, const char* signature)
        : mParent(parent)
    {
        dbus_message_iter_open_container(&mParent, type, signature, &mIter);
    }
    ~Container() { dbus_message_iter_close_container(&mParent, &mIter); }
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    DBusMessageIter& iter() { return mIter; }

private:
    DBusMessageIter& mParent;
    DBusMessageIter mIter{};
};

void appendCode(DBusMessageIter& to, dbus_uint32_t code)
{
    dbus_message_iter_append_basic(&to, DBUS_TYPE_UINT32, &code);
}

void appendBytes(DBusMessageIter& to, std::span<const std::uint8_t> bytes)
{
    Container variant(to, DBUS_TYPE_VARIANT, "ay");
    Container array(variant.iter(), DBUS_TYPE_ARRAY, "y");
    const std::uint8_t* const first = bytes.data();
    dbus_message_iter_append_fixed_array(
        &array.iter(), DBUS_TYPE_BYTE, &first, static_cast<int>(bytes.size()));
}

void appendDesc(DBusMessageIter& to, Input& input, int depth);

void appendEntries(DBusMessageIter& to, Input& input, int depth)
{
    Container array(to, DBUS_TYPE_ARRAY, "(u(uv))");
    const int count = depth > kDeepest ? 0 : input.byte();
    for (int i = 0; i < count && !input.isEmpty(); ++i) {
        Container entry(array.iter(), DBUS_TYPE_STRUCT, nullptr);
        appendCode(entry.iter(), takeCode(input));
        appendDesc(entry.iter(), input, depth);
    }
}

void appendList(DBusMessageIter& to, Input& input, int depth)
{
    Container variant(to, DBUS_TYPE_VARIANT, "a(uv)");
    Container array(variant.iter(), DBUS_TYPE_ARRAY, "(uv)");
    const int count = depth > kDeepest ? 0 : input.byte();
    for (int i = 0; i < count && !input.isEmpty(); ++i) {
        appendDesc(array.iter(), input, depth + 1);
    }
}

void appendSettings(DBusMessageIter& to, Input& input)
{
    std::array<std::uint8_t, kQVRecordSize> record{};
    const std::size_t size = std::min<std::size_t>(input.word(), record.size());
    std::ranges::copy(input.bytes(size), record.begin());
    appendBytes(to, record);
}

void appendReport(DBusMessageIter& to, Input& input)
{
    std::array<std::uint8_t, 12> report{};
    report[0] = input.byte();
    std::ranges::copy(input.bytes(4), report.begin() + 4);
    appendBytes(to, report);
}

void appendEmptyItems(DBusMessageIter& to, Input& input)
{
    Container variant(to, DBUS_TYPE_VARIANT, "a(uv)");
    Container array(variant.iter(), DBUS_TYPE_ARRAY, "(uv)");
    for (int count = input.byte(); count > 0; --count) {
        Container item(array.iter(), DBUS_TYPE_STRUCT, nullptr);
        appendCode(item.iter(), 0);
        appendBytes(item.iter(), {});
    }
}

/** Appends data of one of the types that no descriptor has. */
void appendStrange(DBusMessageIter& to, Input& input)
{
    switch (input.byte() % 5) {
    case 0: {
        Container variant(to, DBUS_TYPE_VARIANT, "s");
        const char* const text = "text";
        dbus_message_iter_append_basic(&variant.iter(), DBUS_TYPE_STRING, &text);
        break;
    }
    case 1: {
        Container variant(to, DBUS_TYPE_VARIANT, "u");
        appendCode(variant.iter(), input.number());
        break;
    }
    case 2: {
        Container variant(to, DBUS_TYPE_VARIANT, "v");
        appendBytes(variant.iter(), input.bytes(input.byte()));
        break;
    }
    case 3: {
        Container variant(to, DBUS_TYPE_VARIANT, "a(ui)");
        const Container array(variant.iter(), DBUS_TYPE_ARRAY, "(ui)");
        break;
    }
    default: {
        Container variant(to, DBUS_TYPE_VARIANT, "(uv)");
        Container pair(variant.iter(), DBUS_TYPE_STRUCT, nullptr);
        appendCode(pair.iter(), input.number());
        appendBytes(pair.iter(), {});
        break;
    }
    }
}

void appendDesc(DBusMessageIter& to, Input& input, int depth)
{
    Container desc(to, DBUS_TYPE_STRUCT, nullptr);
    appendCode(desc.iter(), takeCode(input));
    switch (input.byte()) {
    case 0:
        appendBytes(desc.iter(), input.bytes(input.byte()));
        break;
    case 1:
        appendList(desc.iter(), input, depth);
        break;
    case 2: {
        Container variant(desc.iter(), DBUS_TYPE_VARIANT, "a(u(uv))");
        appendEntries(variant.iter(), input, depth + 1);
        break;
    }
    case 3:
        appendSettings(desc.iter(), input);
        break;
    case 4:
        appendReport(desc.iter(), input);
        break;
    case 5:
        appendEmptyItems(desc.iter(), input);
        break;
    default:
        appendStrange(desc.iter(), input);
        break;
    }
}

} // namespace

std::uint32_t takeCode(Input& input)
{
    const std::uint8_t code = input.byte();
    return code < kCodes.size() ? kCodes[code] : input.number();
}

void appendParameters(DBusMessage* message, Input& input)
{
    DBusMessageIter arguments;
    dbus_message_iter_init_append(message, &arguments);
    appendEntries(arguments, input, 1);
}

Message takeEvent(Input& input)
{
    Message event(dbus_message_new_method_call(
        FakeBus::kProgram, wire::kObjectPath, wire::kInterface, wire::kSendMethod));
    DBusMessageIter arguments;
    dbus_message_iter_init_append(event.get(), &arguments);
    appendCode(arguments, takeCode(input));
    appendCode(arguments, takeCode(input));
    appendParameters(event.get(), input);
    return event;
}

Message takeAnswer(Input& input)
{
    if (input.byte() == 0) {
        Message answer(dbus_message_new(DBUS_MESSAGE_TYPE_METHOD_RETURN));
        appendParameters(answer.get(), input);
        return answer;
    }
    Message answer(dbus_message_new(DBUS_MESSAGE_TYPE_ERROR));
    constexpr std::array kErrors{wire::kEventNotHandled, wire::kCoercionFail,
        DBUS_ERROR_ACCESS_DENIED, DBUS_ERROR_NO_REPLY, DBUS_ERROR_SERVICE_UNKNOWN,
        DBUS_ERROR_SPAWN_EXEC_FAILED, DBUS_ERROR_DISCONNECTED};
    dbus_message_set_error_name(answer.get(), kErrors[input.byte() % kErrors.size()]);
    appendParameters(answer.get(), input);
    return answer;
}

Message takeWireMessage(std::span<const std::uint8_t> bytes)
{
    if (bytes.empty()
        || (bytes.front() != DBUS_LITTLE_ENDIAN && bytes.front() != DBUS_BIG_ENDIAN)) {
        return nullptr;
    }
    // The library checks a message only if its length is right.
    const auto* const text = reinterpret_cast<const char*>(bytes.data());
    const auto size = static_cast<int>(bytes.size());
    return size == dbus_message_demarshal_bytes_needed(text, size)
        ? Message(dbus_message_demarshal(text, size, nullptr))
        : nullptr;
}
