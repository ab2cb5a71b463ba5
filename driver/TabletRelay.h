// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ButtonActions.h"
#include "Commands.h"
#include "EventDecoder.h"
#include "EventWriter.h"
#include "PadPipeline.h"
#include "PenPipeline.h"
#include "QVDriverProtocol.h"
#include "SettingsExchange.h"
#include "TabletNode.h"

#include <atomic>
#include <cstdint>

/** What the input thread tells the main thread, through a pipe. */
struct RelayNote {
    enum class Kind : std::uint8_t {
        Report, ///< a raw report for the panel that calibrates
        Button, ///< slot and whether it is down
        Command, ///< one that is not a key stroke, a mouse button or scrolling
        Grabbed, ///< the tablet is ours alone from now on
        Released, ///< after setActive(false): nothing of ours is pressed
        Busy, ///< another program has the tablet; the relay tries again and again
        Alive, ///< the answer to ask()
        Gone, ///< the tablet was unplugged; the relay has ended
        Failed, ///< number of the error; the relay has ended
    };

    Kind kind{};
    QVPenReport report{};
    Command command{};
    std::int32_t slot = 0;
    bool isDown = false;
    std::int32_t error = 0;
};

/**
 * The input thread: carries the frames of a tablet through the pipelines to the virtual devices. No
 * Qt, no locks; for a frame, no allocation and no system call but poll, read and write.
 */
class TabletRelay {
public:
    /** The open files that it works with; it closes none of them. */
    struct Files {
        int pen = -1;
        int pad = -1; ///< negative if the tablet has no keys
        int virtualPen = -1;
        int keyboard = -1;
        int pointer = -1;
        int notes = -1; ///< the writing end of the pipe to the main thread, non-blocking
        int wake = -1; ///< an eventfd, non-blocking
    };

    TabletRelay(const Files& files, const PenDescription& pen, const PenAxes& virtualPen,
        const PadDescription& pad, SettingsExchange& settings);

    /** Runs until stop(), or until the tablet is gone. */
    void run();

    /** Any thread: whether the tablet shall obey the settings, or be left to the desktop. */
    void setActive(bool isActive);

    /** Any thread: takes over changed settings also while the tablet is still. */
    void wake() const;

    /** Any thread: has the input thread tell that it is alive. */
    void ask();

    /** Any thread: releases everything and ends run(). */
    void stop();

private:
    void read(bool isPen);
    /** @return whether the events that were read with this one are older than the state now */
    bool take(const input_event& event, bool isPen);
    /** Reads the state of a node. @return whether it could be read */
    bool resync(bool isPen);
    void takePen(const PenFrame& frame);
    void takePad(const PadFrame& frame);
    void obey(const Commands& commands);
    /** @return whether the states of the nodes were read, to take the tablet */
    bool followWishes();
    bool isAtRest() const { return mPenDecoder.isAtRest() && mPadDecoder.isAtRest(); }
    int grab(bool isWanted);
    void release();
    /** @return whether the pipe had room */
    bool tell(const RelayNote& note) const;
    void end(RelayNote::Kind kind, int error);

    Files mFiles;
    PenDecoder mPenDecoder;
    PadDecoder mPadDecoder;
    PenPipeline mPen;
    PadPipeline mPad;
    ButtonActions mButtons;
    Commands mCommands;
    PenWriter mPenWriter;
    CommandWriter mCommandWriter;
    SettingsExchange& mSettings;
    std::atomic<bool> mIsActive{true};
    std::atomic<bool> mIsStopped{false};
    std::atomic<bool> mIsAsked{false};
    bool mIsGrabbed = false;
    bool mIsLeft = false; ///< to the desktop, as setActive(false) wishes
    bool mIsBusy = false; ///< another program has the tablet
    bool mHasEnded = false;
    bool mWasPaused = false;
    bool mHasLostPen = false; ///< events of the pen, until the end of the frame
    bool mHasLostPad = false;
    std::uint32_t mToldDown = 0; ///< buttons that the main thread knows to be down, as bits
};
