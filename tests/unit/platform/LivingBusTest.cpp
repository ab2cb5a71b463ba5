// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Whether a bus answers: with sockets that take connections, and of which most never answer.

#include "LivingBus.h"

#include "ScopedVariable.h"
#include "Wait.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <poll.h>
#include <pthread.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using namespace platform;

namespace {

constexpr std::chrono::milliseconds kPatient{kPatience};

/** A socket that takes connections, for its lifetime. */
class ListeningSocket {
public:
    /** @param name its path, or a name with a leading NUL */
    explicit ListeningSocket(const QByteArray& name, int backlog = 64)
    {
        // Valgrind reads a path as a string, also one that fills all its bytes.
        struct {
            sockaddr_un place{};
            char end = '\0';
        } address;
        address.place.sun_family = AF_UNIX;
        EXPECT_LE(static_cast<std::size_t>(name.size()), sizeof address.place.sun_path);
        std::memcpy(
            address.place.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
        const auto size = offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size());
        EXPECT_EQ(::bind(mSocket, reinterpret_cast<const sockaddr*>(&address.place),
                      static_cast<socklen_t>(size)),
            0)
            << std::strerror(errno);
        EXPECT_EQ(::listen(mSocket, backlog), 0);
    }
    ~ListeningSocket() { ::close(mSocket); }
    ListeningSocket(const ListeningSocket&) = delete;
    ListeningSocket& operator=(const ListeningSocket&) = delete;
    ListeningSocket(ListeningSocket&&) = delete;
    ListeningSocket& operator=(ListeningSocket&&) = delete;

    /** Waits for a connection, and takes it. */
    int accept() const
    {
        pollfd wanted{mSocket, POLLIN, 0};
        return ::poll(&wanted, 1, kPatience) > 0 ? ::accept(mSocket, nullptr, nullptr) : -1;
    }

private:
    int mSocket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

class LivingBus : public testing::Test {
protected:
    /** Whether the bus at an address answers, or there is none. */
    static bool answers(
        const QByteArray& address, std::chrono::milliseconds limit = std::chrono::milliseconds(1))
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        return sessionBusAnswers(limit);
    }

    ScopedVariable mAddressScope{"DBUS_SESSION_BUS_ADDRESS", ""};
    ScopedVariable mFolderScope{"XDG_RUNTIME_DIR", ""};
    QTemporaryDir mTemporary;
    QByteArray mFolder = mTemporary.path().toUtf8();
    QByteArray mPath = mFolder + "/bus";
    QByteArray mAddress = "unix:path=" + mPath;
};

std::atomic<int> signalsTaken{0};

/** Takes signals, which interrupt system calls, for its lifetime. */
class SignalHandler {
public:
    SignalHandler()
    {
        struct sigaction action { };
        action.sa_handler = [](int) { ++signalsTaken; };
        EXPECT_EQ(::sigaction(SIGUSR1, &action, &mBefore), 0);
    }
    ~SignalHandler() { ::sigaction(SIGUSR1, &mBefore, nullptr); }
    SignalHandler(const SignalHandler&) = delete;
    SignalHandler& operator=(const SignalHandler&) = delete;
    SignalHandler(SignalHandler&&) = delete;
    SignalHandler& operator=(SignalHandler&&) = delete;

private:
    struct sigaction mBefore { };
};

} // namespace

TEST_F(LivingBus, isFoundToHangHoweverItsAddressIsGiven)
{
    const ListeningSocket bus(mPath);
    EXPECT_FALSE(answers(mAddress));
    EXPECT_FALSE(answers("unix:guid=1f,path=" + mPath));
    EXPECT_FALSE(answers("unix:path=" + mFolder + "/%62us,guid=1f"));
    EXPECT_FALSE(answers("unix:path=/nowhere;" + mAddress));
    const ListeningSocket abstract('\0' + mPath);
    EXPECT_FALSE(answers("unix:abstract=" + mPath));
    qputenv("XDG_RUNTIME_DIR", mFolder);
    EXPECT_FALSE(answers(QByteArray()));
    EXPECT_TRUE(answers("unix:path=/nowhere")) << "an address that is given is the only one";
}

TEST_F(LivingBus, isNoneWhereConnectingFailsAtOnce)
{
    EXPECT_TRUE(answers(mAddress));
    EXPECT_TRUE(answers("unix:abstract=" + mPath));
    EXPECT_TRUE(answers(QByteArray()));
    qputenv("XDG_RUNTIME_DIR", mFolder);
    EXPECT_TRUE(answers(QByteArray()));
}

TEST_F(LivingBus, isNotTriedAtOtherKindsOfAddresses)
{
    const ListeningSocket bus(mPath);
    EXPECT_TRUE(answers("tcp:path=" + mPath));
    EXPECT_TRUE(answers("unix:tmpdir=" + mPath));
    EXPECT_TRUE(answers("tcp:host=localhost,port=1;" + mAddress));
}

TEST_F(LivingBus, hasAPathThatFitsASocketWithANulBehindIt)
{
    constexpr int kSize = sizeof sockaddr_un::sun_path;
    const QByteArray longest = (mFolder + '/').leftJustified(kSize - 1, 'b');
    const ListeningSocket bus(longest);
    EXPECT_FALSE(answers("unix:path=" + longest));
    const QByteArray tooLong = longest + 'b';
    const ListeningSocket other(tooLong);
    EXPECT_TRUE(answers("unix:path=" + tooLong));
}

TEST_F(LivingBus, answersWhoeverAuthenticates)
{
    const ListeningSocket bus(mPath);
    std::string heard;
    std::thread daemon([&bus, &heard] {
        const int connection = bus.accept();
        std::array<char, 64> bytes{};
        const ssize_t size = ::read(connection, bytes.data(), bytes.size());
        heard.assign(bytes.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
        EXPECT_EQ(::write(connection, "OK\r\n", 4), 4);
        ::close(connection);
    });
    EXPECT_TRUE(answers(mAddress, kPatient));
    daemon.join();
    const std::string user = QByteArray::number(::getuid()).toHex().toStdString();
    EXPECT_EQ(heard, '\0' + ("AUTH EXTERNAL " + user + "\r\n"));
}

TEST_F(LivingBus, isGivenUpAtOnceWhenItsQueueIsFull)
{
    const ListeningSocket bus(mPath, 0);
    EXPECT_FALSE(answers(mAddress)) << "the queue has room for one";
    EXPECT_FALSE(answers(mAddress, kPatient));
}

TEST_F(LivingBus, isWaitedForDuringSignals)
{
    const SignalHandler handler;
    const ListeningSocket bus(mPath);
    std::thread daemon([&bus, caller = ::pthread_self()] {
        const int connection = bus.accept();
        char byte = '\0';
        EXPECT_EQ(::read(connection, &byte, 1), 1);
        // The caller has said all it has to say, and waits for the answer.
        for (int i = 0; i < 20; ++i) {
            const int before = signalsTaken;
            EXPECT_EQ(::pthread_kill(caller, SIGUSR1), 0);
            while (signalsTaken == before) {
                std::this_thread::yield();
            }
        }
        EXPECT_EQ(::write(connection, "OK\r\n", 4), 4);
        ::close(connection);
    });
    EXPECT_TRUE(answers(mAddress, kPatient));
    daemon.join();
}

TEST_F(LivingBus, isGivenUpWhateverWasInterruptedBefore)
{
    const ListeningSocket bus(mPath);
    qputenv("DBUS_SESSION_BUS_ADDRESS", mAddress);
    errno = EINTR; // stays when system calls succeed
    EXPECT_FALSE(sessionBusAnswers(std::chrono::milliseconds(1)));
}

TEST_F(LivingBus, leavesNoSocketOpen)
{
    const auto open = [] {
        return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System);
    };
    const ListeningSocket bus(mPath);
    const QStringList before = open();
    EXPECT_FALSE(answers(mAddress));
    EXPECT_TRUE(answers("unix:path=/nowhere"));
    EXPECT_EQ(open(), before);
}
