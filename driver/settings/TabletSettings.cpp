// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletSettings.h"

#include "KeyCodes.h"
#include "hid_usb_2_adb_keymap_char.h"

#include <algorithm>
#include <limits>

namespace {

ButtonAssignment decodeButton(const tagQVTabletInfoSubKey& slot)
{
    ButtonAssignment button;
    if (slot.Valid <= kQVNoAction || slot.Valid > kQVPauseTablet) {
        return button;
    }
    button.action = static_cast<QVAction>(slot.Valid);
    if (button.action == kQVMouseButton) {
        if (slot.Mouse < kQVLeftButton || slot.Mouse > kQVMiddleButton) {
            return {};
        }
        button.mouse = static_cast<QVMouseButton>(slot.Mouse);
    } else if (button.action == kQVKeyCombination) {
        const QVKeyCombination combination(slot.Key);
        for (const std::uint8_t code : combination.codes()) {
            const std::uint16_t key = linuxKeyCode(code);
            const auto keys = button.keys();
            if (key != 0 && std::ranges::find(keys, key) == keys.end()) {
                button.keyCodes.at(button.keyCount++) = key;
            }
        }
    }
    return button;
}

bool isEmpty(const TabletRect& rect)
{
    return rect.width() <= 0 || rect.height() <= 0;
}

} // namespace

TabletSettings decodeSettings(
    const tagQVTabletInfo& record, const TabletRect& target, bool isCalibrating)
{
    TabletSettings settings;
    const tagQVTabletInfoBasic& tablet = record.Basic;
    settings.range = {static_cast<double>(tablet.TabletXmin),
        static_cast<double>(tablet.TabletYmin), static_cast<double>(tablet.TabletXmax),
        static_cast<double>(tablet.TabletYmax)};
    if (isEmpty(settings.range)) {
        constexpr double kMax = std::numeric_limits<std::uint16_t>::max();
        settings.range = {0, 0, kMax, kMax};
    }
    const tagQVTabletInfoMonitior& monitor = record.Monitor;
    settings.area = {static_cast<double>(monitor.cTabletXmin),
        static_cast<double>(monitor.cTabletYmin), static_cast<double>(monitor.cTabletXmax),
        static_cast<double>(monitor.cTabletYmax)};
    if (isEmpty(settings.area)) {
        settings.area = settings.range;
    }
    settings.target = target;
    settings.isTurned = monitor.rotationFlag == kQVTurned;
    settings.isCalibrating = isCalibrating;
    settings.threshold = record.Pen.PressureThreshold;
    std::ranges::transform(record.Key.SubKey, settings.buttons.begin(), decodeButton);
    settings.areStripsOn = {record.Key.Scrollbar0 == 0, record.Key.Scrollbar1 == 0};
    settings.scrollSpeed =
        std::clamp<int>(record.Key.ScrollSpeed, kQVSlowestScroll, kQVFastestScroll);
    return settings;
}
