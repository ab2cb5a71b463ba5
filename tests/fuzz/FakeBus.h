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
 * The session bus as seen by a program that knows one other: a socket that speaks D-Bus, on its own
 * thread. Messages pass as bytes through the program's real D-Bus library. It is a hundred times
 * faster than a separate bus process, and ends with this process.
 *
 * The program is ":1.1"; the other is ":1.2" and owns every name that is asked for.
 */
class FakeBus {
public:
    static constexpr auto kProgram = ":1.1";
    static constexpr auto kOther = ":1.2";

    /** Becomes the session bus. */
    FakeBus();

    /** Delivers a message from the other program, and runs the event loop until it is handled. */
    void deliver(Message message);

    /** Sets the arguments of the other's answer to a query; null for an empty list. */
    void setAnswer(Message answer);

private:
    void serve();
    /** Returns whether the program goes on to send messages. */
    bool authenticate() const;
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
