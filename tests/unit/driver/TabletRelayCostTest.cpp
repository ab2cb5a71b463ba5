// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// What the input thread does for a frame, besides its arithmetic.

#include "RelayOverPipes.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <new>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

namespace {

std::atomic<bool> gIsCounting = false;
std::atomic<int> gAllocations = 0;
std::atomic<int> gForeignCalls = 0; ///< system calls that no frame needs
std::atomic<int> gLastForeignCall = 0;

void countForeignCall(int /*signal*/, siginfo_t* info, void* /*context*/)
{
    if (gIsCounting) {
        ++gForeignCalls;
        gLastForeignCall = info->si_syscall;
    }
}

constexpr sock_filter statement(unsigned code, unsigned value)
{
    return {static_cast<std::uint16_t>(code), 0, 0, value};
}

/** From now on, all threads' system calls but these are counted instead of done. */
bool countOtherCalls()
{
    struct sigaction action { };
    action.sa_sigaction = countForeignCall;
    action.sa_flags = SA_SIGINFO;
    ::sigaction(SIGSYS, &action, nullptr);
    static constexpr auto kAllowed =
        std::to_array<unsigned>({SYS_read, SYS_write, SYS_poll, SYS_rt_sigreturn, SYS_exit_group});
    std::array<sock_filter, 2 * kAllowed.size() + 2> filter{
        statement(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    std::size_t at = 1;
    for (const unsigned call : kAllowed) {
        filter.at(at++) = {BPF_JMP | BPF_JEQ | BPF_K, 0, 1, call};
        filter.at(at++) = statement(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
    }
    filter.at(at++) = statement(BPF_RET | BPF_K, SECCOMP_RET_TRAP);
    const sock_fprog program{static_cast<std::uint16_t>(at), filter.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_TSYNC, &program)
        == 0;
}

bool sendFrame(const RelayOverPipes& relay, std::int32_t x, bool isNear = true)
{
    const std::array frame{event(EV_KEY, BTN_TOOL_PEN, isNear ? 1 : 0), event(EV_ABS, ABS_X, x),
        event(EV_ABS, ABS_PRESSURE, x % 8000), event(EV_KEY, BTN_TOUCH, isNear ? 1 : 0),
        event(EV_SYN, SYN_REPORT, 0)};
    return ::write(relay.in.writing->get(), frame.data(), sizeof frame) == sizeof frame;
}

/** Reads frames of the virtual pen up to the one with that X. */
bool comesOut(const RelayOverPipes& relay, std::int32_t x)
{
    constexpr int kPatience = 60'000;
    pollfd file{relay.out.reading->get(), POLLIN, 0};
    while (::poll(&file, 1, kPatience) > 0) {
        input_event one{};
        if (::read(file.fd, &one, sizeof one) != sizeof one) {
            return false;
        }
        if (one.type == EV_ABS && one.code == ABS_X && one.value == x) {
            return true;
        }
    }
    return false;
}

/** Two thousand frames, of which every hundredth is out of reach. Ends the process. */
void countWork()
{
    RelayOverPipes relay;
    bool areAllThere = countOtherCalls();
    gIsCounting = true;
    for (std::int32_t x = 1; x <= 2000 && areAllThere; ++x) {
        const bool isNear = x % 100 != 0;
        areAllThere = sendFrame(relay, x, isNear) && (!isNear || comesOut(relay, x));
    }
    gIsCounting = false;
    std::array<char, 200> text{};
    const int length = std::snprintf(text.data(), text.size(),
        "frames: %s, allocations: %d, other system calls: %d, the last is %d\n",
        areAllThere ? "all" : "lost", gAllocations.load(), gForeignCalls.load(),
        gLastForeignCall.load());
    [[maybe_unused]] const ssize_t put =
        ::write(STDERR_FILENO, text.data(), static_cast<std::size_t>(length));
    std::_Exit(0);
}

} // namespace

void* operator new(std::size_t size)
{
    if (gIsCounting) {
        ++gAllocations;
    }
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

TEST(TabletRelayCostDeathTest, aFrameNeedsNoMemoryAndNoSystemCallButPollReadAndWrite)
{
    // In a process of its own, since the filter of system calls stays.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(countWork(), testing::ExitedWithCode(0),
        "frames: all, allocations: 0, other system calls: 0,");
}
