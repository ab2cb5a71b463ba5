// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletRelay.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

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
        if (::poll(files.data(), files.size(), -1) < 0 && errno != EINTR) {
            end(RelayNote::Kind::Failed, errno);
            return;
        }
        if (files[0].revents != 0) {
            std::uint64_t count = 0;
            [[maybe_unused]] const ssize_t got = ::read(mFiles.wake, &count, sizeof count);
            if (mIsAsked.exchange(false)) {
                RelayNote note;
                note.kind = RelayNote::Kind::Alive;
                tell(note);
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

void TabletRelay::wake()
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
        take(events.at(i), isPen);
    }
}

void TabletRelay::take(const input_event& event, bool isPen)
{
    bool& hasLost = isPen ? mHasLostPen : mHasLostPad;
    const bool isFrameEnd = event.type == EV_SYN && event.code == SYN_REPORT;
    if (event.type == EV_SYN && event.code == SYN_DROPPED) {
        hasLost = true;
    } else if (hasLost) {
        // Whatever comes up to the end of the frame is incomplete.
        if (isFrameEnd) {
            hasLost = false;
            resync(isPen);
        }
    } else if (isPen) {
        if (const auto frame = mPenDecoder.take(event)) {
            takePen(*frame);
        }
    } else if (const auto frame = mPadDecoder.take(event)) {
        takePad(*frame);
    }
    if (isFrameEnd && !mIsGrabbed) {
        followWishes();
    }
}

void TabletRelay::resync(bool isPen)
{
    const NodeState state = readNode(isPen ? mFiles.pen : mFiles.pad);
    if (state == nullptr) {
        return; // no such node, or one that has just gone, as reading it will tell
    }
    if (isPen) {
        takePen(mPenDecoder.resync(*state));
    } else {
        takePad(mPadDecoder.resync(*state));
    }
}

void TabletRelay::takePen(const PenFrame& frame)
{
    if (!mIsGrabbed) {
        return;
    }
    mCommands.clear();
    const PenPipeline::Result result = mPen.next(frame, mSettings.take(), mButtons, mCommands);
    if (!mPenWriter.write(result.pen)) {
        end(RelayNote::Kind::Failed, errno);
        return;
    }
    if (result.report) {
        RelayNote note;
        note.kind = RelayNote::Kind::Report;
        note.report = *result.report;
        tell(note);
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
            RelayNote note;
            note.kind = RelayNote::Kind::Command;
            note.command = command;
            tell(note);
        }
    }
    const std::uint32_t down = mButtons.down();
    for (std::uint32_t slot = 0; slot < kQVSlotCount; ++slot) {
        if (((down ^ mToldDown) >> slot & 1U) != 0) {
            RelayNote note;
            note.kind = RelayNote::Kind::Button;
            note.slot = static_cast<std::int32_t>(slot);
            note.isDown = (down >> slot & 1U) != 0;
            tell(note);
        }
    }
    mToldDown = down;
}

void TabletRelay::followWishes()
{
    if (mIsGrabbed && !mIsActive) {
        release();
    } else if (!mIsGrabbed && mIsActive && isAtRest()) {
        if (const int error = grab(true); error != 0) {
            end(RelayNote::Kind::Failed, error);
            return;
        }
        // The desktop has seen what happened before, and would wait for its end in vain.
        resync(true);
        resync(false);
        if (!isAtRest()) {
            grab(false);
            return;
        }
        mIsGrabbed = true;
        RelayNote note;
        note.kind = RelayNote::Kind::Grabbed;
        tell(note);
    }
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
    mButtons.releaseAll(mCommands);
    PenFrame gone;
    gone.time = mPenDecoder.last().time;
    // A device that takes nothing any more has nothing pressed, either.
    static_cast<void>(mPenWriter.write(gone));
    mIsGrabbed = false;
    obey(mCommands);
    grab(false);
}

void TabletRelay::tell(const RelayNote& note)
{
    // If the main thread does not read, the pipe is full. The pen must not wait for it.
    [[maybe_unused]] const ssize_t put = ::write(mFiles.notes, &note, sizeof note);
}

void TabletRelay::end(RelayNote::Kind kind, int error)
{
    mHasEnded = true;
    release();
    RelayNote note;
    note.kind = kind;
    note.error = error;
    tell(note);
}
