// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "EventWriter.h"

#include "tagQVTabletInfo.h"

#include <unistd.h>

namespace {

unsigned toolCode(PenTool tool)
{
    return tool == PenTool::Eraser ? BTN_TOOL_RUBBER : BTN_TOOL_PEN;
}

unsigned mouseCode(std::int32_t button)
{
    switch (button) {
    case kQVRightButton:
        return BTN_RIGHT;
    case kQVMiddleButton:
        return BTN_MIDDLE;
    case kQVBackButton:
        return BTN_SIDE; // "back" to libinput and to X
    default:
        return BTN_LEFT;
    }
}

} // namespace

void EventBuffer::add(unsigned type, unsigned code, std::int32_t value)
{
    input_event& event = mEvents.at(mCount++);
    event = {};
    event.type = static_cast<std::uint16_t>(type);
    event.code = static_cast<std::uint16_t>(code);
    event.value = value;
}

void EventBuffer::endFrame()
{
    if (mCount != mFrameBegin) {
        add(EV_SYN, SYN_REPORT, 0);
        mFrameBegin = mCount;
    }
}

bool EventBuffer::writeTo(int fd)
{
    const std::size_t size = mCount * sizeof(input_event);
    mCount = 0;
    mFrameBegin = 0;
    return size == 0 || ::write(fd, mEvents.data(), size) == static_cast<ssize_t>(size);
}

bool PenWriter::write(const PenFrame& frame)
{
    const bool wasNear = mLast.tool != PenTool::None;
    const bool isNear = frame.tool != PenTool::None;
    if (wasNear && (frame.tool != mLast.tool || frame.serial != mLast.serial)) {
        leave();
        stamp(frame.time);
    }
    if (isNear) {
        if (mLast.tool == PenTool::None) {
            arrive(frame);
        }
        stay(frame);
        stamp(frame.time);
    }
    return mEvents.writeTo(mFd);
}

void PenWriter::leave()
{
    PenFrame up = mLast;
    up.isTouching = false;
    up.buttons = 0;
    up.pressure = 0;
    stay(up);
    mEvents.add(EV_KEY, toolCode(mLast.tool), 0);
    mLast.tool = PenTool::None;
}

void PenWriter::arrive(const PenFrame& frame)
{
    mEvents.add(EV_MSC, MSC_SERIAL, static_cast<std::int32_t>(frame.serial));
    mEvents.add(EV_KEY, toolCode(frame.tool), 1);
}

void PenWriter::stay(const PenFrame& frame)
{
    const auto axis = [&](unsigned code, std::int32_t PenFrame::*field) {
        if (frame.*field != mLast.*field) {
            mEvents.add(EV_ABS, code, frame.*field);
        }
    };
    axis(ABS_X, &PenFrame::x);
    axis(ABS_Y, &PenFrame::y);
    axis(ABS_PRESSURE, &PenFrame::pressure);
    axis(ABS_DISTANCE, &PenFrame::distance);
    axis(ABS_TILT_X, &PenFrame::tiltX);
    axis(ABS_TILT_Y, &PenFrame::tiltY);
    axis(ABS_Z, &PenFrame::twist);
    if (frame.isTouching != mLast.isTouching) {
        mEvents.add(EV_KEY, BTN_TOUCH, frame.isTouching ? 1 : 0);
    }
    const auto button = [&](unsigned code, PenButton bit) {
        if (((frame.buttons ^ mLast.buttons) & bit) != 0) {
            mEvents.add(EV_KEY, code, (frame.buttons & bit) != 0 ? 1 : 0);
        }
    };
    button(BTN_STYLUS, kPenLower);
    button(BTN_STYLUS2, kPenUpper);
    button(BTN_STYLUS3, kPenThird);
    mLast = frame;
}

void PenWriter::stamp(std::chrono::microseconds time)
{
    // Without it, libinput takes a pen that stays still for one that has left. It wraps around.
    mEvents.add(EV_MSC, MSC_TIMESTAMP, static_cast<std::int32_t>(time.count() & 0x7FFFFFFF));
    mEvents.endFrame();
}

bool CommandWriter::write(const Commands& commands)
{
    for (const Command& command : commands.all()) {
        switch (command.kind) {
        case Command::Kind::KeyDown:
        case Command::Kind::KeyUp:
            // A frame for each, so that nobody takes them for simultaneous.
            mKeys.add(EV_KEY, static_cast<unsigned>(command.value),
                command.kind == Command::Kind::KeyDown ? 1 : 0);
            mKeys.endFrame();
            break;
        case Command::Kind::MouseDown:
        case Command::Kind::MouseUp:
            mMouse.add(
                EV_KEY, mouseCode(command.value), command.kind == Command::Kind::MouseDown ? 1 : 0);
            mMouse.endFrame();
            break;
        case Command::Kind::Scroll:
            scroll(command.value);
            break;
        default:
            break;
        }
    }
    const bool areKeysTaken = mKeys.writeTo(mKeyboard);
    return mMouse.writeTo(mPointer) && areKeysTaken;
}

void CommandWriter::scroll(std::int32_t amount)
{
    mNotches += amount;
    mMouse.add(EV_REL, REL_WHEEL_HI_RES, amount);
    if (const std::int32_t whole = mNotches / kWheelNotch; whole != 0) {
        mNotches -= whole * kWheelNotch;
        mMouse.add(EV_REL, REL_WHEEL, whole);
    }
    mMouse.endFrame();
}
