// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PadPipeline.h"
#include "PenFrame.h"
#include "TabletNode.h"

#include <bitset>
#include <linux/input.h>
#include <optional>

/** Collects the events of a pen's node into frames. */
class PenDecoder {
public:
    explicit PenDecoder(const PenDescription& description)
        : mDescription(description)
    {
    }

    /** @return the frame that the event ends */
    std::optional<PenFrame> take(const input_event& event);

    /** Takes over the state of the node, after events were lost or before the first one. */
    PenFrame resync(const libevdev& node);

    /** The last frame. */
    const PenFrame& last() const { return mFrame; }

    /** Whether the pen is out of reach, or does nothing if it never says that it leaves. */
    bool isAtRest() const;

private:
    void takeKey(unsigned code, bool isDown);
    void takeAxis(unsigned code, std::int32_t value);
    PenFrame frame();

    PenDescription mDescription;
    PenFrame mFrame{};
    std::uint32_t mSerial = 0;
    /** The tips in reach. Some tablets tell kinds of pens apart, which are all the same to us. */
    std::bitset<BTN_TOOL_AIRBRUSH - BTN_TOOL_PEN + 1> mTips;
    bool mHasEraser = false;
};

/** Collects the events of the node of a tablet's keys and strips into frames. */
class PadDecoder {
public:
    explicit PadDecoder(PadDescription description)
        : mDescription(std::move(description))
    {
    }

    /** @return the frame that the event ends */
    std::optional<PadFrame> take(const input_event& event);

    /** Takes over the state of the node, after events were lost. */
    PadFrame resync(const libevdev& node);

    /** Whether no key is down. */
    bool isAtRest() const { return mFrame.keys == 0; }

private:
    void takeKey(unsigned code, bool isDown);
    void takeAxis(std::size_t strip, std::int32_t value);

    PadDescription mDescription;
    PadFrame mFrame{};
    bool mSaysTouch = false; ///< ABS_MISC reports whether a finger is on a strip
    bool mIsTouched = false; ///< what it says
};
