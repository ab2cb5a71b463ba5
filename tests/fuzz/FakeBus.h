// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>
#include <dbus/dbus.h>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

/** A D-Bus message; null for none. */
struct MessageUnref {
    void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using Message = std::unique_ptr<DBusMessage, MessageUnref>;

/**
 * The session bus as one program sees it that knows one other: a socket that speaks D-Bus, on a
 * thread of its own. What is delivered goes as bytes through the program's real D-Bus library. It
 * is a hundred times as fast as a bus of its own process, and ends with this one.
 *
 * The program is ":1.1"; the other is ":1.2" and owns every name that is asked for.
 */
class FakeBus {
public:
    static constexpr auto kProgram = ":1.1";
    static constexpr auto kOther = ":1.2";

    /** From now on, the session's bus is this. */
    FakeBus();

    /** Delivers a message as the other's; runs the event loop until the program has had it. */
    void deliver(Message message);

    /** What the other answers a query with, in its first arguments; nothing for an empty list. */
    void setAnswer(Message answer);

private:
    void serve();
    void authenticate() const;
    void take(Message message);
    Message answerOfBus(DBusMessage* call) const;
    Message answerOfOther(DBusMessage* call);
    void send(DBusMessage* message);

    int mListening;
    int mSocket = -1;
    std::mutex mSending; ///< guards the next two
    std::uint32_t mSerial = 0;
    Message mAnswer;
    std::atomic<std::uint32_t> mAnswered = 0; ///< highest serial of a message that was answered
    std::atomic<bool> mIsClosed = false;
    std::thread mThread;
};
