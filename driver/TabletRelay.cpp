// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletRelay.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int kBusyRetry = 250; ///< milliseconds

bool isReadable(int fd)
{
    pollfd file{fd, POLLIN, 0};
    return ::poll(&file, 1, 0) > 0 && (file.revents & POLLIN) != 0;
}

} // namespace

TabletRelay::TabletRelay(const Files& files, const PenDescription& pen, const PenAxes& virtualPen,
    const PadDescription& pad, SettingsExchange& settings)
    : mFiles(files)
    , mPenDecoder(pen)
    , mPadDecoder(pad)
    , mPen(pen.axes(), virtualPen)
    , mPad(pad.ranges())
    , mPenWriter(files.virtualPen)
    , mCommandWriter(files.keyboard, files.pointer)
    , mSettings(settings)
{
}

void TabletRelay::run()
{
    resync(true);
    resync(false);
    // poll() passes over a negative file.
    std::array<pollfd, 3> files{
        {{mFiles.wake, POLLIN, 0}, {mFiles.pen, POLLIN, 0}, {mFiles.pad, POLLIN, 0}}};
    followWishes();
    while (!mHasEnded && !mIsStopped) {
        const int ready = ::poll(files.data(), files.size(), mIsBusy ? kBusyRetry : -1);
        if (ready < 0 && errno != EINTR) {
            end(RelayNote::Kind::Failed, errno);
            return;
        }
        if (ready <= 0) {
            followWishes();
            continue;
        }
        if (files[0].revents != 0) {
            std::uint64_t count = 0;
            [[maybe_unused]] const ssize_t got = ::read(mFiles.wake, &count, sizeof count);
            if (mIsAsked.exchange(false)) {
                tell({.kind = RelayNote::Kind::Alive});
            }
            followWishes();
            if (mIsGrabbed) {
                takePen(mPenDecoder.last());
            }
        }
        if (files[1].revents != 0 && !mHasEnded) {
            read(true);
        }
        if (files[2].revents != 0 && !mHasEnded) {
            read(false);
        }
    }
    if (!mHasEnded) {
        release();
    }
}

void TabletRelay::setActive(bool isActive)
{
    mIsActive = isActive;
    wake();
}

void TabletRelay::wake() const
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t put = ::write(mFiles.wake, &one, sizeof one);
}

void TabletRelay::ask()
{
    mIsAsked = true;
    wake();
}

void TabletRelay::stop()
{
    mIsStopped = true;
    wake();
}

void TabletRelay::read(bool isPen)
{
    std::array<input_event, 64> events; // NOLINT(cppcoreguidelines-pro-type-member-init): read into
    const ssize_t size = ::read(isPen ? mFiles.pen : mFiles.pad, events.data(), sizeof events);
    if (size < 0 && (errno == EAGAIN || errno == EINTR)) {
        return;
    }
    if (size <= 0) {
        end(size == 0 || errno == ENODEV ? RelayNote::Kind::Gone : RelayNote::Kind::Failed, errno);
        return;
    }
    const std::size_t count = static_cast<std::size_t>(size) / sizeof(input_event);
    for (std::size_t i = 0; i < count && !mHasEnded; ++i) {
        if (take(events.at(i), isPen)) {
            return;
        }
    }
}

bool TabletRelay::take(const input_event& event, bool isPen)
{
    bool& hasLost = isPen ? mHasLostPen : mHasLostPad;
    const bool isFrameEnd = event.type == EV_SYN && event.code == SYN_REPORT;
    if (event.type == EV_SYN && event.code == SYN_DROPPED) {
        hasLost = true;
    } else if (hasLost) {
        // Whatever comes up to the end of the frame is incomplete.
        if (isFrameEnd) {
            hasLost = false;
            const bool isRead = resync(isPen);
            if (!mIsGrabbed) {
                followWishes();
            }
            return isRead;
        }
    } else if (isPen) {
        if (const auto frame = mPenDecoder.take(event)) {
            takePen(*frame);
        }
    } else if (const auto frame = mPadDecoder.take(event)) {
        takePad(*frame);
    }
    return isFrameEnd && !mIsGrabbed && followWishes();
}

bool TabletRelay::resync(bool isPen)
{
    const int file = isPen ? mFiles.pen : mFiles.pad;
    // What waits in the file is older than the state. Reading that removes some of it only.
    int version = 0;
    const bool isNode = ::ioctl(file, EVIOCGVERSION, &version) == 0;
    std::array<input_event, 64> events; // NOLINT(cppcoreguidelines-pro-type-member-init): read into
    while (isNode && isReadable(file) && ::read(file, events.data(), sizeof events) > 0) { }
    const NodeState state = readNode(file);
    if (state == nullptr) {
        return false; // no such node, or one that has just gone, as reading it will tell
    }
    if (isPen) {
        takePen(mPenDecoder.resync(*state));
    } else {
        takePad(mPadDecoder.resync(*state));
    }
    return true;
}

void TabletRelay::takePen(const PenFrame& frame)
{
    if (!mIsGrabbed) {
        return;
    }
    mCommands.clear();
    const PenPipeline::Result result = mPen.next(frame, mSettings.take(), mButtons, mCommands);
    if ((result.lift && !mPenWriter.write(*result.lift)) || !mPenWriter.write(result.pen)) {
        end(RelayNote::Kind::Failed, errno);
        return;
    }
    if (result.report) {
        tell({.kind = RelayNote::Kind::Report, .report = *result.report});
    }
    obey(mCommands);
}

void TabletRelay::takePad(const PadFrame& frame)
{
    if (mIsGrabbed) {
        mCommands.clear();
        mPad.next(frame, mSettings.take(), mButtons, mCommands);
        obey(mCommands);
        if (mButtons.isPaused() != mWasPaused || mButtons.isFine()) {
            mWasPaused = mButtons.isPaused();
            takePen(mPenDecoder.last());
        }
    }
}

void TabletRelay::obey(const Commands& commands)
{
    if (!mCommandWriter.write(commands)) {
        end(RelayNote::Kind::Failed, errno);
        return;
    }
    for (const Command& command : commands.all()) {
        if (command.kind == Command::Kind::Launch || command.kind == Command::Kind::NextDisplay
            || command.kind == Command::Kind::Pause) {
            tell({.kind = RelayNote::Kind::Command, .command = command});
        }
    }
    const std::uint32_t down = mButtons.down();
    for (std::uint32_t slot = 0; slot < kQVSlotCount; ++slot) {
        if (((down ^ mToldDown) >> slot & 1U) != 0) {
            if (tell({.kind = RelayNote::Kind::Button,
                    .slot = static_cast<std::int32_t>(slot),
                    .isDown = (down >> slot & 1U) != 0})) {
                mToldDown ^= 1U << slot;
            }
        }
    }
}

bool TabletRelay::followWishes()
{
    const bool wasBusy = std::exchange(mIsBusy, false);
    const bool isActive = mIsActive;
    if (!isActive && !mIsLeft) {
        release();
        tell({.kind = RelayNote::Kind::Released});
    }
    mIsLeft = !isActive;
    if (!mIsGrabbed && isActive && isAtRest()) {
        const int error = grab(true);
        if (error == EBUSY) {
            mIsBusy = true;
            if (!wasBusy) {
                tell({.kind = RelayNote::Kind::Busy});
            }
            return false;
        }
        if (error != 0) {
            end(RelayNote::Kind::Failed, error);
            return false;
        }
        // The desktop has seen what happened before, and would wait for its end in vain.
        const bool isPenRead = resync(true);
        const bool isRead = resync(false) || isPenRead;
        if (!isAtRest()) {
            grab(false);
            return isRead;
        }
        mIsGrabbed = true;
        tell({.kind = RelayNote::Kind::Grabbed});
        return isRead;
    }
    return false;
}

int TabletRelay::grab(bool isWanted)
{
    for (const int file : {mFiles.pen, mFiles.pad}) {
        // A pipe cannot be grabbed, and need not be.
        if (file >= 0 && ::ioctl(file, EVIOCGRAB, isWanted ? 1 : 0) != 0 && errno != ENOTTY
            && isWanted) {
            const int error = errno;
            grab(false);
            return error;
        }
    }
    return 0;
}

void TabletRelay::release()
{
    if (!mIsGrabbed) {
        return;
    }
    mCommands.clear();
    // For all pipelines, the pen leaves, so that nothing of a stroke is left for the next one.
    PenFrame gone;
    gone.time = mPenDecoder.last().time;
    const PenPipeline::Result result = mPen.next(gone, mSettings.take(), mButtons, mCommands);
    mButtons.releaseAll(mCommands);
    mPad.forget();
    // A device that takes nothing any more has nothing pressed, either.
    static_cast<void>(mPenWriter.write(result.pen));
    if (result.report) {
        tell({.kind = RelayNote::Kind::Report, .report = *result.report});
    }
    mIsGrabbed = false;
    obey(mCommands);
    grab(false);
}

bool TabletRelay::tell(const RelayNote& note) const
{
    // If the main thread does not read, the pipe is full. The pen must not wait for it.
    return ::write(mFiles.notes, &note, sizeof note) == static_cast<ssize_t>(sizeof note);
}

void TabletRelay::end(RelayNote::Kind kind, int error)
{
    mHasEnded = true;
    release();
    const RelayNote note{.kind = kind, .error = error};
    // There is nothing left to do but this.
    while (!tell(note) && errno == EAGAIN && !mIsStopped) {
        std::array<pollfd, 2> files{{{mFiles.wake, POLLIN, 0}, {mFiles.notes, POLLOUT, 0}}};
        ::poll(files.data(), files.size(), -1);
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t got = ::read(mFiles.wake, &count, sizeof count);
    }
}
