// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ButtonActions.h"

#include <algorithm>

namespace {

/** The pen's buttons act at the pen's position, so they are buttons of the virtual pen. */
bool isPenSlot(std::size_t slot)
{
    return slot == kQVUpperPenSlot || slot == kQVLowerPenSlot;
}

} // namespace

void ButtonActions::set(
    std::size_t slot, bool isDown, const TabletSettings& settings, Commands& commands)
{
    if (mIsDown.at(slot) == isDown) {
        return;
    }
    mIsDown.at(slot) = isDown;
    if (isDown) {
        press(slot, settings.buttons.at(slot), commands);
    } else {
        release(slot, commands);
    }
}

void ButtonActions::press(std::size_t slot, const ButtonAssignment& button, Commands& commands)
{
    mHeld.at(slot) = button;
    switch (button.action) {
    case kQVMouseButton:
        if (!isPenSlot(slot) && mMouseHolders.at(static_cast<std::size_t>(button.mouse))++ == 0) {
            commands.add(Command::Kind::MouseDown, button.mouse);
        }
        break;
    case kQVApplication:
        commands.add(Command::Kind::Launch, static_cast<std::int32_t>(slot));
        break;
    case kQVKeyCombination:
        for (const std::uint16_t key : button.keys()) {
            if (mKeyHolders.at(key)++ == 0) {
                commands.add(Command::Kind::KeyDown, key);
            }
        }
        break;
    case kQVNextDisplay:
        commands.add(Command::Kind::NextDisplay, 0);
        break;
    case kQVFinePositioning:
        ++mFine;
        break;
    case kQVPauseTablet:
        mIsPaused = !mIsPaused;
        commands.add(Command::Kind::Pause, mIsPaused ? 1 : 0);
        break;
    case kQVNoAction:
        break;
    }
}

void ButtonActions::release(std::size_t slot, Commands& commands)
{
    const ButtonAssignment button = mHeld.at(slot);
    mHeld.at(slot) = {};
    if (button.action == kQVMouseButton && !isPenSlot(slot)
        && --mMouseHolders.at(static_cast<std::size_t>(button.mouse)) == 0) {
        commands.add(Command::Kind::MouseUp, button.mouse);
    }
    const auto keys = button.keys();
    for (std::size_t i = keys.size(); i-- > 0;) {
        if (--mKeyHolders.at(keys[i]) == 0) {
            commands.add(Command::Kind::KeyUp, keys[i]);
        }
    }
    if (button.action == kQVFinePositioning) {
        --mFine;
    }
}

void ButtonActions::endLostPause(const TabletSettings& settings, Commands& commands)
{
    if (mIsPaused
        && std::ranges::find(settings.buttons, kQVPauseTablet, &ButtonAssignment::action)
            == settings.buttons.end()) {
        mIsPaused = false;
        commands.add(Command::Kind::Pause, 0);
    }
}

void ButtonActions::releaseAll(Commands& commands)
{
    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        if (mIsDown.at(slot)) {
            mIsDown.at(slot) = false;
            release(slot, commands);
        }
    }
}

std::uint32_t ButtonActions::down() const
{
    std::uint32_t bits = 0;
    for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
        bits |= static_cast<std::uint32_t>(mIsDown.at(slot)) << slot;
    }
    return bits;
}

bool ButtonActions::penHolds(QVMouseButton button) const
{
    return std::ranges::any_of(std::array{kQVUpperPenSlot, kQVLowerPenSlot}, [&](std::size_t slot) {
        return mHeld.at(slot).action == kQVMouseButton && mHeld.at(slot).mouse == button;
    });
}
