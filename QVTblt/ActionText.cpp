// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ActionText.h"

#include "hid_usb_2_adb_keymap_char.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/** The context of the translations. */
struct ActionText {
    Q_DECLARE_TR_FUNCTIONS(ActionText)
};

} // namespace

constexpr std::array<Action, kActionCount> kActions{{
    {kQVNoAction, {},
        //: Action of a tablet key; must fit into the narrow lists of the key page.
        QT_TRANSLATE_NOOP("ActionText", "No action")},
    {kQVMouseButton, kQVLeftButton,
        //: Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Left mouse button")},
    {kQVMouseButton, kQVRightButton,
        //: Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Right mouse button")},
    {kQVMouseButton, kQVMiddleButton,
        //: Action of a tablet key: clicks with this button of a mouse; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Middle mouse button")},
    {kQVMouseButton, kQVBackButton,
        //: The mouse button that goes back, as in a browser; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Back mouse button")},
    {kQVApplication, {},
        //: Action of a tablet key, which asks for the application; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Open an application…")},
    {kQVKeyCombination, {},
        //: Action of a tablet key, which asks for keys; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Press keys…")},
    {kQVNextDisplay, {},
        //: Maps the tablet to the next of several displays; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Go to the next display")},
    {kQVFinePositioning, {},
        //: Slows the pointer down while the key is held; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Move finely while held")},
    {kQVPauseTablet, {},
        //: The pen is ignored until the key is pressed again; must fit into a narrow list.
        QT_TRANSLATE_NOOP("ActionText", "Pause the tablet")},
}};

std::size_t actionOf(const tagQVTabletInfoSubKey& slot)
{
    const auto* const found = std::ranges::find_if(kActions, [&slot](const Action& action) {
        return action.valid == slot.Valid
            && (action.valid != kQVMouseButton || action.mouse == slot.Mouse);
    });
    return found == kActions.end() ? 0 : static_cast<std::size_t>(found - kActions.begin());
}

QString actionText(const Action& action)
{
    return ActionText::tr(action.text);
}

QString actionText(const tagQVTabletInfoSubKey& slot)
{
    if (slot.Valid == kQVApplication) {
        const std::string_view path = QVText(slot.App);
        if (path.empty()) {
            //: Action of a tablet key.
            return ActionText::tr("Open an application (unknown path)");
        }
        //: Action of a tablet key; %1 is the path of an application.
        return ActionText::tr("Open %1").arg(
            QString::fromLatin1(path.data(), static_cast<int>(path.size())));
    }
    if (slot.Valid == kQVKeyCombination) {
        const QString keys = QString::fromStdU16String(QVKeyCombinationText(slot.Key)).trimmed();
        if (keys.isEmpty()) {
            //: Action of a tablet key: a key combination without keys.
            return ActionText::tr("Press no keys");
        }
        //: Action of a tablet key; %1 is a key combination, such as "Ctrl Z".
        return ActionText::tr("Press %1").arg(keys);
    }
    return actionText(kActions.at(actionOf(slot)));
}

QString stripText(std::int16_t field, std::int16_t speed)
{
    if (field != 0) {
        //: Action of a scroll strip.
        return ActionText::tr("No action: the strip is off");
    }
    //: Action of a scroll strip; %1 is 1 to 10.
    return ActionText::tr("Scroll at speed %1").arg(speed);
}
