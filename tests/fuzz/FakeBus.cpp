// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "FakeBus.h"

#include "AppleEventWire.h"
#include "Fuzz.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace {

/** Reads exactly that many bytes; returns false at the end. */
bool readAll(int socket, char* to, std::size_t size)
{
    while (size > 0) {
        const ssize_t got = ::read(socket, to, size);
        if (got <= 0) {
            return false;
        }
        to += got;
        size -= static_cast<std::size_t>(got);
    }
    return true;
}

/** Writes all bytes; if that fails, the next read finds the end. */
void writeAll(int socket, std::string_view bytes)
{
    static_cast<void>(::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL));
}

/** Wakes the main thread's event loop, even before it waits. */
void wakeMainThread()
{
    QMetaObject::invokeMethod(
        qApp, [] {}, Qt::QueuedConnection);
}

/** Appends an empty parameter list. */
void appendNothing(DBusMessage* message)
{
    DBusMessageIter all;
    DBusMessageIter list;
    dbus_message_iter_init_append(message, &all);
    dbus_message_iter_open_container(&all, DBUS_TYPE_ARRAY, "(u(uv))", &list);
    dbus_message_iter_close_container(&all, &list);
}

} // namespace

FakeBus::FakeBus()
    : mListening(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    // An abstract socket leaves no file; the system chooses its name.
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socklen_t length = sizeof address.sun_family;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    require(::bind(mListening, plain, length) == 0 && ::listen(mListening, 1) == 0,
        "there is a socket");
    length = sizeof address;
    ::getsockname(mListening, plain, &length);
    const QByteArray name(
        &address.sun_path[1], static_cast<int>(length - sizeof address.sun_family - 1));
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:abstract=" + name);
    mThread = std::thread([this] { serve(); });
    mThread.detach(); // ends with the process
}

void FakeBus::serve()
{
    // A first connection only asks whether the bus answers, and ends.
    do {
        ::close(mSocket);
        mSocket = ::accept(mListening, nullptr, nullptr);
    } while (!authenticate());
    std::array<char, DBUS_MINIMUM_HEADER_SIZE> header{};
    std::string bytes;
    while (readAll(mSocket, header.data(), header.size())) {
        bytes.assign(header.data(), header.size());
        const int size =
            dbus_message_demarshal_bytes_needed(bytes.data(), DBUS_MINIMUM_HEADER_SIZE);
        require(size >= DBUS_MINIMUM_HEADER_SIZE, "the program sends messages");
        bytes.resize(static_cast<std::size_t>(size));
        if (!readAll(mSocket, bytes.data() + header.size(), bytes.size() - header.size())) {
            break;
        }
        Message message(dbus_message_demarshal(bytes.data(), size, nullptr));
        require(message != nullptr, "the program sends well-formed messages");
        take(std::move(message));
    }
    mIsClosed = true; // as when the process ends
    wakeMainThread();
}

bool FakeBus::authenticate() const
{
    // Its first line begins with a NUL; of the rest, only the beginnings matter.
    for (;;) {
        std::string line;
        for (char c = 0; c != '\n'; line += c) {
            if (!readAll(mSocket, &c, 1)) {
                return false;
            }
        }
        if (line.starts_with("BEGIN")) {
            return true;
        }
        writeAll(mSocket,
            line.find("AUTH") != std::string::npos ? "OK 00000000000000000000000000000000\r\n"
                                                   : "ERROR\r\n");
    }
}

void FakeBus::take(Message message)
{
    const int type = dbus_message_get_type(message.get());
    if (type == DBUS_MESSAGE_TYPE_METHOD_RETURN || type == DBUS_MESSAGE_TYPE_ERROR) {
        mAnswered =
            std::max<std::uint32_t>(mAnswered, dbus_message_get_reply_serial(message.get()));
        wakeMainThread();
    } else if (type == DBUS_MESSAGE_TYPE_METHOD_CALL
        && dbus_message_get_no_reply(message.get()) == 0) {
        const bool isForBus = dbus_message_has_destination(message.get(), DBUS_SERVICE_DBUS) != 0;
        const Message answer = isForBus ? answerOfBus(message.get()) : answerOfOther(message.get());
        send(answer.get());
    }
}

Message FakeBus::answerOfBus(DBusMessage* call) const
{
    Message answer(dbus_message_new_method_return(call));
    dbus_message_set_sender(answer.get(), DBUS_SERVICE_DBUS);
    const std::string_view member = dbus_message_get_member(call);
    const char* text = nullptr;
    if (member == "Hello") {
        text = kProgram;
    } else if (member == "GetNameOwner") {
        text = kOther;
    }
    if (text != nullptr) {
        dbus_message_append_args(answer.get(), DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    } else if (member == "NameHasOwner") {
        const dbus_bool_t isThere = 1;
        dbus_message_append_args(answer.get(), DBUS_TYPE_BOOLEAN, &isThere, DBUS_TYPE_INVALID);
    } else if (member == "RequestName") {
        const dbus_uint32_t isOwner = DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER;
        dbus_message_append_args(answer.get(), DBUS_TYPE_UINT32, &isOwner, DBUS_TYPE_INVALID);
    }
    return answer;
}

Message FakeBus::answerOfOther(DBusMessage* call)
{
    DBusMessageIter arguments;
    dbus_uint32_t eventID = 0;
    if (dbus_message_iter_init(call, &arguments) != 0 && dbus_message_iter_next(&arguments) != 0
        && dbus_message_iter_get_arg_type(&arguments) == DBUS_TYPE_UINT32) {
        dbus_message_iter_get_basic(&arguments, &eventID);
    }
    Message answer;
    if (eventID == platform::kAEGetData) {
        const std::scoped_lock lock(mSending);
        answer.reset(mAnswer == nullptr ? nullptr : dbus_message_copy(mAnswer.get()));
    }
    if (answer == nullptr) {
        answer.reset(dbus_message_new(DBUS_MESSAGE_TYPE_METHOD_RETURN));
        appendNothing(answer.get());
    }
    dbus_message_set_reply_serial(answer.get(), dbus_message_get_serial(call));
    dbus_message_set_sender(answer.get(), kOther);
    return answer;
}

void FakeBus::setAnswer(Message answer)
{
    const std::scoped_lock lock(mSending);
    mAnswer = std::move(answer);
}

void FakeBus::send(DBusMessage* message)
{
    dbus_message_set_destination(message, kProgram);
    const std::scoped_lock lock(mSending);
    dbus_message_set_serial(message, ++mSerial);
    char* bytes = nullptr;
    int size = 0;
    require(dbus_message_marshal(message, &bytes, &size) != 0, "there is memory");
    writeAll(mSocket, {bytes, static_cast<std::size_t>(size)});
    dbus_free(bytes);
}

void FakeBus::deliver(Message message)
{
    dbus_message_set_sender(message.get(), kOther);
    send(message.get());
    // Not every message is answered, but answers keep the order of the messages.
    const Message last(dbus_message_new_method_call(kProgram, platform::wire::kObjectPath,
        platform::wire::kInterface, platform::wire::kSendMethod));
    const dbus_uint32_t nobodys = 0;
    dbus_message_append_args(
        last.get(), DBUS_TYPE_UINT32, &nobodys, DBUS_TYPE_UINT32, &nobodys, DBUS_TYPE_INVALID);
    appendNothing(last.get());
    dbus_message_set_sender(last.get(), kOther);
    send(last.get());
    const std::uint32_t serial = dbus_message_get_serial(last.get());
    while (mAnswered < serial) {
        require(!mIsClosed, "the program stays connected");
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}
